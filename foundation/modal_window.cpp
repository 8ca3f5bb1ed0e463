#include "foundation/modal_window.h"

namespace lv {

void ShowModal(ModalWindow& window) {
    const TopmostSuspension dialog(window.run);
    window.run.User.ShowModal(window);
}

}  // namespace lv
