// transfer/path_moves.h
//
// Paths of another machine, brought to where the same directories lie on this one.

#pragma once

#include <functional>
#include <vector>

#include "foundation/text.h"
#include "platform/settings_backing.h"

namespace lv {

/// All that lies in From lies in To here. A "\" at the end of either does not count.
struct PathMove {
    Text From;
    Text To;
};

/// Why the directory cannot stand in a stored list, in plain words; empty if it can.
Text FaultOfPlace(TextView directory);

/// The path after the moves: the one whose From is the deepest directory above it moves it, once. Whole components
/// count, letter case and the kind of separator do not. Where the path says From in lower case alone it says To so too,
/// for some lists are compared letter by letter. What no move concerns stays as it is.
Text MovedPath(TextView path, const std::vector<PathMove>& moves);

/// The same for each field of a ";"-list.
Text MovedFields(TextView list, const std::vector<PathMove>& moves);

using PathRewrite = std::function<Text(TextView path)>;

/// A stored setup with what `rewrite` makes of the paths in it: "1;Executable=C:\QUAKE\QUAKE.EXE;Ticked=Map_Chk".
Text RewriteSetup(TextView value, const PathRewrite& rewrite);

/// All values after the moves, as the rules of carried_values say where their paths stand; of two names that become
/// one the first is kept. Error 5 for a value that would be too long to be stored, or a move that FaultOfPlace is
/// against.
Result<std::vector<StoredValue>> MoveValues(const std::vector<StoredValue>& values, const std::vector<PathMove>& moves);

}  // namespace lv
