// foundation/own_directory.h
//
// Where the program keeps files of its own making, beside the settings.

#pragma once

#include "foundation/run.h"

namespace lv {

/// "<data>\lorvane3d\<name>" in the directory for the programs' data; "<program>\<name>" where the system has none.
Text OwnDirectory(const Run& run, TextView name);

/// Makes the directory, and those above it, unless it is there. Errors as Files::MakeDirectory.
Error MakeWholeDirectory(Files& disk, const Text& directory);

}  // namespace lv
