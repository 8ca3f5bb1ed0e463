// commands/dry_run/missing_parts.h
//
// What a launch needs and is not there.

#pragma once

#include <functional>

#include "launcher/launcher.h"

namespace lv {

/// A path on the drives as it is said; empty: as it is.
using PathText = std::function<Text(TextView path)>;
Text SaidPath(const PathText& asSaid, TextView path);

/// A sentence each: the program, what runs it, the modification's directory, the script, the map, and scripts that the
/// game would execute at its start.
std::vector<Text> MissingParts(Launcher& launcher, const PathText& asSaid = {});

}  // namespace lv
