// launcher/launchers/setup_launchers.h
//
// The launchers of setups: starts of a setup on the desktop and in the menu of programs. They follow their setup.

#pragma once

#include <span>

#include "launcher/launcher.h"

namespace lv {

constexpr const char* kLauncherTitle = "Make a Launcher";

constexpr ShortcutPlace kLauncherPlaces[] = {ShortcutPlace::Menu, ShortcutPlace::Desktop};

/// Whether the system shows launchers anywhere.
bool CanMakeLaunchers(const Run& run);

/// Makes them, or replaces those of the same setup, and tells what was written and what could not be.
void MakeLaunchers(Launcher& launcher, const Setup& setup, std::span<const ShortcutPlace> places);

/// A setup was kept or renamed, and was called `before`: launchers of it, if there are any, show and start what it is
/// now. The user is told what could not be done.
void LaunchersFollow(Launcher& launcher, TextView before, const Setup& now);

/// A setup was deleted.
void TakeLaunchersAway(Launcher& launcher, const Setup& deleted);

}  // namespace lv
