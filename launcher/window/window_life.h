// launcher/window/window_life.h
//
// The main window shown, hidden, raised and left: its menu, its tray icon, its close box.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// Messages of the tray icon.
constexpr int kTrayLeftButtonUp = 514;
constexpr int kTrayRightButtonUp = 517;

/// Shows the window, and the video profile window if it was hidden with it.
void ShowMainWindow(Launcher& launcher);
/// Hides the window, and the video profile window with it; both come back together. Without a tray it goes to the task
/// bar.
void HideMainWindow(Launcher& launcher);
/// The same for a game that gets the screen: the video profile window comes back too, but counts as closed till then.
void HideForLaunch(Launcher& launcher);

void ShowLorvane_Bar_Click(Launcher& launcher);

/// A dialog waits for its user.
bool DialogIsUp(const Run& run);

/// The tray icon was clicked; nothing happens while a dialog is up.
void Tray_Click(Launcher& launcher, int message);

/// Another start of the program asked for this one.
void ComeForward(Launcher& launcher);

/// The window's close box. True if the window may go: only Exit_Bar lets it. Otherwise it is hidden.
bool LV_Frm_QueryUnload(Launcher& launcher);

/// The user's way out: the placement is saved, the tray icon removed, the video profile window noted, the program ends.
void Exit_Bar_Click(Launcher& launcher);

/// The user's session ends, and the program with it, whatever is up: all is kept that Exit_Bar keeps.
void SessionEnds(Launcher& launcher);

/// Shown, minimised to the task bar, or hidden.
Presence PresenceOf(const LV_Frm& window);

}  // namespace lv
