#include "video/forms/add_vid_profile_form.h"

#include <wx/button.h>

#include "foundation/forms/modal_form.h"
#include "foundation/forms/wx_text.h"
#include "video/add_vid_profile.h"

namespace lv {

std::unique_ptr<wxDialog> MakeAddVidProfileForm(wxWindow* owner, ModalWindow& window) {
    auto* dialog = dynamic_cast<AddVidProfile_Frm*>(&window);
    if (dialog == nullptr) {
        return nullptr;
    }
    auto form = std::make_unique<ModalForm>(owner, *dialog, [dialog] { AddVidProfile_Cancel_Cmd_Click(*dialog); });
    auto* name = new wxTextCtrl(form.get(), wxID_ANY, "", wxDefaultPosition, form->FromDIP(wxSize(280, -1)));
    form->Controls.Bind("NewVidProfileName_Txt", dialog->NewVidProfileName_Txt, name,
                        [dialog] { AddVidProfile_NewVidProfileName_Txt_Change(*dialog); });
    name->Bind(wxEVT_CHAR, [](wxKeyEvent& event) {
        const wxString typed(event.GetUnicodeKey());
        const Text inCodePage = FromWx(typed);
        const bool known = ToWx(inCodePage) == typed;
        const wxChar key = event.GetUnicodeKey();
        if (key < WXK_SPACE || key == WXK_DELETE || event.HasModifiers() ||
            (known && TakesProfileNameCharacter(inCodePage.front()))) {
            event.Skip();
        }
    });
    form->AddField(dialog->NewVidProfileName_Lbl, "NewVidProfileName_Lbl", name);
    form->Finish(
        form->MakeButton("OK_Cmd", dialog->OK_Cmd, [dialog] { AddVidProfile_OK_Cmd_Click(*dialog); }),
        form->MakeButton("Cancel_Cmd", dialog->Cancel_Cmd, [dialog] { AddVidProfile_Cancel_Cmd_Click(*dialog); }));
    return form;
}

}  // namespace lv
