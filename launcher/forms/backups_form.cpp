#include "launcher/forms/backups_form.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/stattext.h>

#include "foundation/forms/modal_form.h"
#include "foundation/forms/wrapped_label.h"
#include "launcher/menu/backups_frm.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

// At 100 %.
constexpr int kWidth = 620;
constexpr int kHeight = 220;

constexpr int kAboutLines = 2;

}  // namespace

std::unique_ptr<wxDialog> MakeBackupsForm(wxWindow* owner, ModalWindow& window) {
    auto* const backups = dynamic_cast<Backups_Frm*>(&window);
    if (backups == nullptr) {
        return nullptr;
    }
    Backups_Frm& model = *backups;
    auto form = std::make_unique<ModalForm>(owner, model, [&model] { Backups_CloseBackups_Cmd_Click(model); });
    form->AddWide(form->MakeLabel(form.get(), "Backups_Lbl", model.Backups_Lbl));
    auto* list = new wxListBox(form.get(), wxID_ANY, wxDefaultPosition, form->FromDIP(wxSize(kWidth, kHeight)), 0,
                               nullptr, wxLB_HSCROLL);
    form->Controls.Bind("Backups_Lst", model.Backups_Lst, list, [&model] { Backups_Lst_Click(model); });
    SetSpokenName(list->GetHandle(), "Backups, the newest first");
    Binder& controls = form->Controls;
    list->Bind(wxEVT_LISTBOX_DCLICK, [&model, &controls](wxCommandEvent&) {
        controls.Run([&model] { Backups_BringBackup_Cmd_Click(model); });
    });
    form->AddWide(list);
    auto* about = new WrappedLabel(form.get(), kAboutLines);
    form->Controls.Bind("Backup_Lbl", model.Backup_Lbl, about);
    form->AddWide(about);
    form->Finish(
        form->MakeButton("BringBackup_Cmd", model.BringBackup_Cmd, [&model] { Backups_BringBackup_Cmd_Click(model); }),
        form->MakeButton("CloseBackups_Cmd", model.CloseBackups_Cmd,
                         [&model] { Backups_CloseBackups_Cmd_Click(model); }));
    return form;
}

}  // namespace lv
