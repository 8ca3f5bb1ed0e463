#include "tests/support/launch_input.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

LaunchInput LaunchOf(Game kind, Dialect family, TextView directory, TextView dataDirectory, TextView executable) {
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
    return LaunchOf(Game::Quake, Dialect::Quake, "C:\\QUAKE", "ID1", executable);
}
LaunchInput Hexen2Launch(TextView executable) {
    return LaunchOf(Game::Hexen2, Dialect::Quake, "C:\\HEXEN2", "DATA1", executable);
}
LaunchInput Quake2Launch() {
    return LaunchOf(Game::Quake2, Dialect::Quake2, "C:\\QUAKE2", "BASEQ2", "quake2.exe");
}
LaunchInput UnrealLaunch() {
    return LaunchOf(Game::Unreal, Dialect::Unreal, "C:\\Unreal\\System", "", "Unreal.exe");
}
LaunchInput SinLaunch() {
    return LaunchOf(Game::Sin, Dialect::Quake2, "C:\\SIN", "BASE", "sin.exe");
}
LaunchInput Heretic2Launch() {
    return LaunchOf(Game::Heretic2, Dialect::Quake2, "C:\\HERETIC2", "BASE", "heretic2.exe");
}
LaunchInput HalfLifeLaunch() {
    return LaunchOf(Game::HalfLife, Dialect::Quake2, "C:\\SIERRA\\HALF-LIFE", "VALVE", "hl.exe");
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
