// foundry/editor/controllers.h
//
// The panel of joystick and auxiliary keys: laid out in a grid, or over the picture of a controller.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// A controller was picked: its picture, and the labels over their buttons. A picture that is missing is told once.
void Device_Cbo_Click(Fig_Frm& form);

}  // namespace lv
