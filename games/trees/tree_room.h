// games/trees/tree_room.h
//
// Where the linked trees stand: on drive C:, in a directory of the program's own.

#pragma once

#include "foundation/text.h"

namespace lv {

/// "c:\lorvane3d\quake-1234" for "Z:\usr\share\games\quake". Two trees of one name have different ones.
Text LinkedTreeDirectory(TextView tree);

/// Whether the directory is one of these.
bool IsLinkedTree(TextView directory);

}  // namespace lv
