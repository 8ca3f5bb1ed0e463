// platform/starting/dosbox_start_up.h
//
// What DOSBox is told in a configuration file: the start-up lines that do what the batch of a DOS program says. The
// user's own DOSBox settings stay in force.

#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/starting/batch_game.h"

namespace lv {

/// A name that DOS itself could have given: up to eight characters, perhaps a dot and up to three.
bool IsShortName(std::string_view name);

/// The [autoexec] section. `mounted` is the host directory that becomes the drive, `directory` the path on it.
std::string DosBoxStartUp(const BatchPlan& plan, char drive, std::string_view mounted, std::string_view directory);

/// The path as DOSBox, a program of the host, has it.
using HostPathOf = std::function<std::string(std::string_view path)>;

/// The file's text for this game. Error 75 for a directory or a program that cannot be said to DOSBox, 5 if there is
/// more to say than it takes.
Result<std::string> DosBoxConfiguration(const BatchGame& game, const HostPathOf& hostPathOf);

}  // namespace lv
