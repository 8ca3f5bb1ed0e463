// foundry/editor/controllers.h
//
// The panel of joystick and auxiliary keys: laid out in a grid, or over the picture of a controller.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// The list of controllers, the unlisted one chosen.
void FillDevices(Fig_Frm& form);

/// All labels of the panel in rows and columns, and seen.
void LayOutGrid(Fig_Frm& form);

/// Twips.
struct PanelRoom {
    int Width = 0;
    int Height = 0;
};

/// What the buttons of all controllers need.
PanelRoom RoomOfControllers();

/// A controller was picked: its picture, and the labels over their buttons. A picture that is missing is told once.
void Device_Cbo_Click(Fig_Frm& form);

/// The form could not show the file DevicePicture: it is as if it were missing.
void Device_Pic_LoadFailed(Fig_Frm& form);

}  // namespace lv
