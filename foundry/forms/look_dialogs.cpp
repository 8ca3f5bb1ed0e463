#include "foundry/forms/look_dialogs.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/stattext.h>

#include "foundation/forms/modal_form.h"
#include "foundation/forms/wx_text.h"
#include "foundry/forms/difference_view.h"
#include "foundry/look/changes_frm.h"
#include "foundry/look/versions_frm.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr long kLookStyle = wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX;
constexpr int kGap = 8;
constexpr int kWidth = 860;  // of the lists, at 100 %
constexpr int kRowsHeight = 300;
constexpr int kListHeight = 120;

class LookForm : public ModalForm {
  public:
    LookForm(wxWindow* owner, ModalWindow& window, std::function<void()> cancel)
        : ModalForm(owner, window, std::move(cancel), kLookStyle) {}

    wxListBox* AddList(const char* name, ListBox& model, TextView spoken, const std::function<void()>& click) {
        auto* list = new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(kWidth, kListHeight)), 0, nullptr,
                                   wxLB_HSCROLL);
        Controls.Bind(name, model, list, click);
        SetSpokenName(list->GetHandle(), ToUtf8(spoken));
        AddWide(list);
        return list;
    }

    void AddDifference(const char* name, DifferenceList& model, TextView spoken) {
        auto* view = new DifferenceView(this, name, model);
        view->SetMinSize(FromDIP(wxSize(kWidth, kRowsHeight)));
        SetSpokenName(view->GetHandle(), ToUtf8(spoken));
        for (wxWindow* part : view->GetChildren()) {
            SetSpokenName(part->GetHandle(), ToUtf8(spoken));  // the toolkit's own list is made of several
        }
        Controls.OnShow([view] {
            view->ShowState();
            return false;
        });
        auto* row = new wxBoxSizer(wxVERTICAL);
        row->Add(view, wxSizerFlags(1).Expand());
        AddWide(row, 1);
    }

    void AddButtons(std::initializer_list<wxButton*> buttons) {
        auto* row = new wxBoxSizer(wxHORIZONTAL);
        row->AddStretchSpacer();
        for (wxButton* button : buttons) {
            row->Add(button, wxSizerFlags().Border(wxLEFT | wxBOTTOM, kGap));
        }
        AddWide(row);
        Arrange();
    }
};

std::unique_ptr<wxDialog> MakeChanges(wxWindow* owner, Changes_Frm& changes) {
    auto form = std::make_unique<LookForm>(owner, changes, [&changes] { Changes_Close_Cmd_Click(changes); });
    form->AddWide(form->MakeLabel(form.get(), "Losses_Lbl", changes.Losses_Lbl));
    form->AddList("Losses_Lst", changes.Losses_Lst, "What the save changes for the game",
                  [&changes] { Changes_Losses_Lst_Click(changes); });
    form->AddWide(form->MakeLabel(form.get(), "Difference_Lbl", changes.Difference_Lbl));
    form->AddDifference("Difference_Lst", changes.Difference_Lst, "The file and what is saved");
    form->AddButtons(
        {form->MakeButton("NextChange_Cmd", changes.NextChange_Cmd,
                          [&changes] { Changes_NextChange_Cmd_Click(changes); }),
         form->MakeButton("Keep_Cmd", changes.Keep_Cmd, [&changes] { Changes_Keep_Cmd_Click(changes); }),
         form->MakeButton("Save_Cmd", changes.Save_Cmd, [&changes] { Changes_Save_Cmd_Click(changes); }),
         form->MakeButton("Close_Cmd", changes.Close_Cmd, [&changes] { Changes_Close_Cmd_Click(changes); })});
    return form;
}

std::unique_ptr<wxDialog> MakeVersions(wxWindow* owner, Versions_Frm& versions) {
    auto form = std::make_unique<LookForm>(owner, versions, [&versions] { Versions_Close_Cmd_Click(versions); });
    form->AddWide(form->MakeLabel(form.get(), "Versions_Lbl", versions.Versions_Lbl));
    form->AddList("Versions_Lst", versions.Versions_Lst, "Versions", [&versions] { Versions_Lst_Click(versions); });
    form->AddWide(form->MakeLabel(form.get(), "Difference_Lbl", versions.Difference_Lbl));
    form->AddDifference("Difference_Lst", versions.Difference_Lst, "What bringing it back changes");
    form->AddButtons(
        {form->MakeButton("NextChange_Cmd", versions.NextChange_Cmd,
                          [&versions] { Versions_NextChange_Cmd_Click(versions); }),
         form->MakeButton("BringBack_Cmd", versions.BringBack_Cmd,
                          [&versions] { Versions_BringBack_Cmd_Click(versions); }),
         form->MakeButton("Close_Cmd", versions.Close_Cmd, [&versions] { Versions_Close_Cmd_Click(versions); })});
    return form;
}

}  // namespace

std::unique_ptr<wxDialog> MakeLookDialog(wxWindow* owner, ModalWindow& window) {
    if (auto* changes = dynamic_cast<Changes_Frm*>(&window)) {
        return MakeChanges(owner, *changes);
    }
    if (auto* versions = dynamic_cast<Versions_Frm*>(&window)) {
        return MakeVersions(owner, *versions);
    }
    return nullptr;
}

}  // namespace lv
