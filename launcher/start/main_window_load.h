// launcher/start/main_window_load.h
//
// The load of the main window: stored values brought up to date, lists filled, the stored executable selected.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// False if the program ended on the way: a damaged catalog has been told of.
bool LV_Frm_Load(Launcher& launcher);

/// Brings the loaded window in line with settings that were replaced as a whole, as the next start would, without what
/// that counts, asks of a first run, or does to the window itself. False if the program ended.
bool ReloadMainWindow(Launcher& launcher);

}  // namespace lv
