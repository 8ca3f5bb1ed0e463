// commands/dry_run/missing_parts.h
//
// What a launch needs and is not there.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// A sentence each: the program, what runs it, the modification's directory, the script, the map, and scripts that the
/// game would execute at its start.
std::vector<Text> MissingParts(Launcher& launcher);

}  // namespace lv
