// launcher/window/unreal_options.h
//
// Which of Unreal's ini files a launch rewrites, and the writing.

#pragma once

#include <optional>

#include "launcher/launcher.h"

namespace lv {

constexpr TextView kUnrealIni = "unreal.ini";
constexpr TextView kUnrealWorkFile = "temp666_.ini";

/// Sets the current video profile in the ini that Unreal is going to read: `ini`, or the selected script, or the one
/// of the game directory. With `ini`, the ini's directory becomes run.DefaultGameDirectory; the launch by GameSpy
/// relies on it. Without a game directory nothing is written.
///
/// The ini is replaced in one step. A work file that lies in the game directory is taken away. Errors: those of reading
/// and replacing the ini; it is then as it was.
Error SetUnrealVideoOptionsForLaunch(Launcher& launcher, const std::optional<Text>& ini = std::nullopt);

}  // namespace lv
