#include "launcher/forms/launcher_form.h"

#include <wx/button.h>
#include <wx/checkbox.h>

#include "foundation/forms/wrapped_label.h"
#include "foundation/forms/wx_text.h"
#include "launcher/launchers/launcher_frm.h"

namespace lv {

namespace {

constexpr int kLabelLines = 2;
constexpr int kLabelWidth = 380;  // at 100 %

}  // namespace

std::unique_ptr<wxDialog> MakeLauncherForm(wxWindow* owner, ModalWindow& window) {
    auto* places = dynamic_cast<Launcher_Frm*>(&window);
    if (places == nullptr) {
        return nullptr;
    }
    auto form = std::make_unique<ModalForm>(owner, *places, [places] { Launcher_Cancel_Cmd_Click(*places); });
    auto* label = new WrappedLabel(form.get(), kLabelLines);
    form->Controls.Bind("LauncherFor_Lbl", places->LauncherFor_Lbl, label);
    label->SetMinSize(wxSize(form->FromDIP(kLabelWidth), label->GetMinSize().GetHeight()));
    form->AddWide(label);
    const auto add = [&](const char* name, CheckBox& model) {
        auto* box = new wxCheckBox(form.get(), wxID_ANY, ToWx(model.Caption));
        form->Controls.Bind(name, model, box, [places] { LauncherPlace_Chk_Click(*places); });
        form->AddWide(box);
    };
    add("LauncherInMenu_Chk", places->LauncherInMenu_Chk);
    add("LauncherOnDesktop_Chk", places->LauncherOnDesktop_Chk);
    form->Finish(form->MakeButton("WriteLauncher_Cmd", places->WriteLauncher_Cmd,
                                  [places] { Launcher_Write_Cmd_Click(*places); }),
                 form->MakeButton("Cancel_Cmd", places->Cancel_Cmd, [places] { Launcher_Cancel_Cmd_Click(*places); }));
    return form;
}

}  // namespace lv
