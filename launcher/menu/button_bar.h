// launcher/menu/button_bar.h
//
// The row of nine picture buttons.

#pragma once

#include <span>

namespace lv {

struct Launcher;

constexpr int kBarButtons = 9;

struct BarButtonRow {
    const char* ToolTip;  // at design time
    const char* Picture;  // of assets/icons/buttons
    void (*Click)(Launcher&);
};

std::span<const BarButtonRow> BarButtonRows();

void ButtonBar_Cmd_Click(Launcher& launcher, int index);

/// The tool tip of button 0 once the main window is loaded.
constexpr const char* kLaunchToolTip = "Launch Me [F2]";

}  // namespace lv
