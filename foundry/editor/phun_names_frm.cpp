#include "foundry/editor/phun_names_frm.h"

namespace lv {

PhunNames_Frm::PhunNames_Frm(Run& owner) : ModalWindow(owner, "PhunNames_Frm") {
    Caption = "Setup Foundry - Phun*Names Editor";
}

}  // namespace lv
