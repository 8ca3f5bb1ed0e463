#include "launcher/forms/join_server_form.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "foundation/forms/modal_form.h"
#include "foundation/forms/wx_text.h"
#include "launcher/drop/join_server.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kListWidth = 460;  // at 100 %
constexpr int kListHeight = 150;

}  // namespace

std::unique_ptr<wxDialog> MakeJoinServerForm(wxWindow* owner, ModalWindow& window) {
    auto* join = dynamic_cast<JoinServer_Frm*>(&window);
    if (join == nullptr) {
        return nullptr;
    }
    auto form = std::make_unique<ModalForm>(owner, *join, [join] { JoinServer_Cancel_Cmd_Click(*join); });
    wxTextCtrl* const address = form->MakeText("JoinAddress_Txt", join->JoinAddress_Txt, kListWidth);
    address->SetEditable(false);
    form->AddField(join->JoinAddress_Lbl, "JoinAddress_Lbl", address);
    form->AddWide(form->MakeLabel(form.get(), "JoinPrograms_Lbl", join->JoinPrograms_Lbl, LabelText::Keyed));
    auto* list = new wxListBox(form.get(), wxID_ANY, wxDefaultPosition, form->FromDIP(wxSize(kListWidth, kListHeight)),
                               0, nullptr, wxLB_SINGLE | wxLB_HSCROLL);
    form->Controls.Bind("JoinPrograms_Lst", join->JoinPrograms_Lst, list,
                        [join] { JoinServer_JoinPrograms_Lst_Click(*join); });
    SetSpokenName(list->GetHandle(), "Programs and Setups That Can Join");
    form->AddWide(list);
    // Not bound: it never changes, and a bound label would lose its line breaks.
    auto* hint = new wxStaticText(form.get(), wxID_ANY, ToWx(join->JoinHint_Lbl.Caption));
    hint->SetName("JoinHint_Lbl");
    hint->Wrap(form->FromDIP(kListWidth));
    form->AddWide(hint);
    wxButton* const start = form->MakeButton("Join_Cmd", join->Join_Cmd, [join] { JoinServer_Join_Cmd_Click(*join); });
    wxButton* const add =
        form->MakeButton("JoinAdd_Cmd", join->JoinAdd_Cmd, [join] { JoinServer_JoinAdd_Cmd_Click(*join); });
    wxButton* const cancel =
        form->MakeButton("Cancel_Cmd", join->Cancel_Cmd, [join] { JoinServer_Cancel_Cmd_Click(*join); });
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(start);
    buttons->Add(add, wxSizerFlags().Border(wxLEFT));
    buttons->Add(cancel, wxSizerFlags().Border(wxLEFT));
    auto* row = new wxBoxSizer(wxVERTICAL);
    row->Add(buttons, wxSizerFlags().Center().Border(wxBOTTOM, 16));
    form->AddWide(row);
    cancel->SetDefault();
    form->Arrange();
    return form;
}

}  // namespace lv
