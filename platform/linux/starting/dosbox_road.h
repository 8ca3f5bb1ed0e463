// platform/linux/starting/dosbox_road.h
//
// The road of a DOS program: DOSBox, told in a configuration file what the batch says. The user's own DOSBox settings
// stay in force, the file only adds its start-up lines.

#pragma once

#include "platform/linux/starting/game_start.h"

namespace lv {

/// Error 53 if DOSBox is not installed, 75 for a directory or a program that cannot be said to it, 5 if there is more
/// to say than DOSBox takes.
Result<HostCommand> DosBoxRoad(Files& disk, const GameStart& start);

/// A name that DOS itself could have given: up to eight characters, perhaps a dot and up to three.
bool IsShortName(std::string_view name);

/// The [autoexec] section. `mounted` is the host directory that becomes the drive, `directory` the path on it.
std::string DosBoxStartUp(const BatchPlan& plan, char drive, std::string_view mounted, std::string_view directory);

}  // namespace lv
