// tests/support/launch_input.h
//
// Everything that one launch reads, ready for a test to change a thing or two.

#pragma once

#include "launch/launch_composition.h"

namespace lv {

struct LaunchInput {
    LaunchSelection Selected;
    LaunchGame Game;
    ProfileSnapshot Profile;
    LaunchHooks Hooks;

    [[nodiscard]] LaunchTexts Compose() const { return ComposeLaunch(Selected, Game, Profile, Hooks); }
};

/// Each with its usual executable, nothing ticked, a Voodoo card and an untouched profile.
LaunchInput QuakeLaunch(TextView executable = "GLQUAKE.EXE");
LaunchInput Hexen2Launch(TextView executable = "GLH2.EXE");
LaunchInput Quake2Launch();
LaunchInput UnrealLaunch();
LaunchInput SinLaunch();
LaunchInput Heretic2Launch();
LaunchInput HalfLifeLaunch();

/// Ticks the tunable and chooses an item. The test fails if the profile has no such tunable.
void Use(ProfileSnapshot& profile, TextView stem, TextView content, Index setting = 0, Index flag = 1);

/// Sets a flag that has no list.
void SetPlainFlag(ProfileSnapshot& profile, TextView key, Index value);

/// A padded list item.
Text Padded(TextView name, TextView payload);

}  // namespace lv
