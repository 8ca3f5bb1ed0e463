#include "launcher/forms/setups_form.h"

#include <wx/button.h>
#include <wx/listbox.h>

#include "foundation/forms/wrapped_label.h"
#include "launcher/setups/setups_frm.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr long kStyle = wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER;
constexpr int kGap = 8;
constexpr int kListWidth = 520;  // at 100 %
constexpr int kListHeight = 240;
constexpr int kLabelLines = 2;

wxListBox* MakeList(ModalForm& form, Setups_Frm& setups) {
    auto* list = new wxListBox(&form, wxID_ANY, wxDefaultPosition, form.FromDIP(wxSize(kListWidth, kListHeight)), 0,
                               nullptr, wxLB_HSCROLL);
    form.Controls.Bind("Setups_Lst", setups.Setups_Lst, list, [&setups] { Setups_Lst_Click(setups); });
    SetSpokenName(list->GetHandle(), "Setups");
    const auto start = [&form, &setups] { form.Controls.Run([&setups] { StartSetup_Cmd_Click(setups); }); };
    list->Bind(wxEVT_LISTBOX_DCLICK, [start](wxCommandEvent&) { start(); });
    // The list would keep Enter to itself.
    list->Bind(wxEVT_KEY_DOWN, [start](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER) {
            start();
        } else {
            event.Skip();
        }
    });
    return list;
}

}  // namespace

std::unique_ptr<wxDialog> MakeSetupsForm(wxWindow* owner, ModalWindow& window) {
    auto* setups = dynamic_cast<Setups_Frm*>(&window);
    if (setups == nullptr) {
        return nullptr;
    }
    auto form = std::make_unique<ModalForm>(
        owner, *setups, [setups] { CloseSetups_Cmd_Click(*setups); }, kStyle);
    wxListBox* const list = MakeList(*form, *setups);
    auto* buttons = new wxBoxSizer(wxVERTICAL);
    const auto add = [&](const char* name, CommandButton& model, void (*click)(Setups_Frm&)) {
        wxButton* const button = form->MakeButton(name, model, [setups, click] { click(*setups); });
        buttons->Add(button, wxSizerFlags().Expand().Border(wxBOTTOM, kGap));
        return button;
    };
    add("StartSetup_Cmd", setups->StartSetup_Cmd, StartSetup_Cmd_Click)->SetDefault();
    add("PickSetup_Cmd", setups->PickSetup_Cmd, PickSetup_Cmd_Click);
    add("KeepSetupChanges_Cmd", setups->KeepSetupChanges_Cmd, KeepSetupChanges_Cmd_Click);
    add("RenameSetup_Cmd", setups->RenameSetup_Cmd, RenameSetup_Cmd_Click);
    add("DeleteSetup_Cmd", setups->DeleteSetup_Cmd, DeleteSetup_Cmd_Click);
    add("MakeLauncher_Cmd", setups->MakeLauncher_Cmd, MakeLauncher_Cmd_Click);
    buttons->AddStretchSpacer();
    wxWindow* const close = add("CloseSetups_Cmd", setups->CloseSetups_Cmd, CloseSetups_Cmd_Click);
    auto* label = new WrappedLabel(form.get(), kLabelLines);
    form->Controls.Bind("Setups_Lbl", setups->Setups_Lbl, label);
    form->AddWide(label);
    auto* content = new wxBoxSizer(wxHORIZONTAL);
    content->Add(list, wxSizerFlags(1).Expand().Border(wxRIGHT | wxBOTTOM, kGap));
    content->Add(buttons, wxSizerFlags().Expand());
    form->AddWide(content, 1);
    form->Arrange();
    (setups->Setups_Lst.Items.empty() ? close : static_cast<wxWindow*>(list))->SetFocus();
    return form;
}

}  // namespace lv
