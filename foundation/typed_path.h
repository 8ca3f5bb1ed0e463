// foundation/typed_path.h
//
// Paths that the user types: each text box that takes one reads it through here.

#pragma once

#include "foundation/run.h"

namespace lv {

/// What was typed, without the blanks around it, as a path on the drives: on a system with paths of its own "~/quake"
/// and "/srv/quake" are taken too. Anything else is given as it was typed.
Text TypedPath(const Run& run, TextView typed);

/// The same for a box that takes a name below `directory`: the system's own path of something there gives the name.
Text TypedName(const Run& run, TextView typed, TextView directory);

/// What lies below the directory, without that and its "\"; empty for a path that does not.
Text NameBelow(TextView directory, TextView path);

}  // namespace lv
