#include "foundry/forms/foundry_forms.h"

#include "foundry/forms/editor_dialogs.h"
#include "foundry/forms/fig_form.h"
#include "foundry/forms/look_dialogs.h"
#include "foundry/forms/phun_names_form.h"

namespace lv {

WxUser::FormMaker MakeFoundryForms(WxUser& user) {
    return [&user](wxWindow* owner, ModalWindow& window) -> std::unique_ptr<wxDialog> {
        if (auto* editor = dynamic_cast<Fig_Frm*>(&window)) {
            return std::make_unique<FigForm>(owner, *editor, user);
        }
        auto* names = dynamic_cast<PhunNames_Frm*>(&window);
        auto* over = dynamic_cast<FigForm*>(owner);
        if (names != nullptr && over != nullptr) {
            return std::make_unique<PhunNamesForm>(owner, over->Model(), [over] { over->ShowState(); });
        }
        auto dialog = MakeEditorDialog(owner, window);
        return dialog ? std::move(dialog) : MakeLookDialog(owner, window);
    };
}

}  // namespace lv
