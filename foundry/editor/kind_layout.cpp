#include "foundry/editor/kind_layout.h"

namespace lv {

void FillCaptions(Fig_Frm&) {}

}  // namespace lv
