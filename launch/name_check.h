// launch/name_check.h
//
// The names of a launch looked at before anything is written, and the user told.

#pragma once

#include "foundation/run.h"
#include "launch/launch_names.h"

namespace lv {

/// False if the reader of a batch in `directory` would take one of the names for more than text, or would run a file
/// there as a part of the command; the user was told.
bool NamesAreText(Run& run, const std::vector<LaunchName>& names, LineReader reader, TextView directory);

/// False if a game might carry out a part of one of the names, and the user does not want it started then.
bool NamesMayBeCommands(Run& run, const std::vector<LaunchName>& names);

}  // namespace lv
