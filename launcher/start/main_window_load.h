// launcher/start/main_window_load.h
//
// The load of the main window: stored values brought up to date, lists filled, the stored executable selected.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// False if the program ended on the way: a damaged catalog has been told of.
bool LV_Frm_Load(Launcher& launcher);

}  // namespace lv
