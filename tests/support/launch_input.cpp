#include "tests/support/launch_input.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

LaunchInput LaunchOf(Index kind, Index family, TextView directory, TextView dataDirectory, TextView executable) {
    LaunchInput input;
    input.Selected.ExecutablePath = Join(directory, "\\", executable);
    input.Game.GameKind = kind;
    input.Game.ScriptFamily = family;
    input.Game.DefaultGameDirectory = directory;
    input.Game.CurrentGameDir = dataDirectory;
    return input;
}

}  // namespace

LaunchInput QuakeLaunch(TextView executable) {
    return LaunchOf(1, 1, "C:\\QUAKE", "ID1", executable);
}
LaunchInput Hexen2Launch(TextView executable) {
    return LaunchOf(2, 1, "C:\\HEXEN2", "DATA1", executable);
}
LaunchInput Quake2Launch() {
    return LaunchOf(3, 3, "C:\\QUAKE2", "BASEQ2", "quake2.exe");
}
LaunchInput UnrealLaunch() {
    return LaunchOf(4, 4, "C:\\Unreal\\System", "", "Unreal.exe");
}
LaunchInput SinLaunch() {
    return LaunchOf(5, 3, "C:\\SIN", "BASE", "sin.exe");
}
LaunchInput Heretic2Launch() {
    return LaunchOf(6, 3, "C:\\HERETIC2", "BASE", "heretic2.exe");
}
LaunchInput HalfLifeLaunch() {
    return LaunchOf(9, 3, "C:\\SIERRA\\HALF-LIFE", "VALVE", "hl.exe");
}

void Use(ProfileSnapshot& profile, TextView stem, TextView content, Index setting, Index flag) {
    for (std::size_t i = 0; i < kProfileTunables; ++i) {
        if (ProfileTunables()[i].Stem == stem) {
            profile.Tunables[i] = {flag, setting, Text(content)};
            return;
        }
    }
    ADD_FAILURE() << "no tunable " << stem;
}

void SetPlainFlag(ProfileSnapshot& profile, TextView key, Index value) {
    for (std::size_t i = 0; i < kProfileFlags; ++i) {
        if (ProfileFlags()[i].Key == key) {
            profile.Flags[i] = value;
            return;
        }
    }
    ADD_FAILURE() << "no flag " << key;
}

Text Padded(TextView name, TextView payload) {
    Text item(name);
    item.resize(100, ' ');
    return item.append(payload);
}

}  // namespace lv
