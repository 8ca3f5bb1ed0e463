// games/trees/tree_room.h
//
// Where the linked trees stand: on drive C:, in a directory of the program's own, and never in the tree itself.

#pragma once

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

/// "c:\lorvane3d\quake-1234" for "Z:\usr\share\games\quake". Two trees of one name have different ones.
Text LinkedTreeDirectory(TextView tree);

/// Whether the directory is one of these.
bool IsLinkedTree(TextView directory);

/// Makes the directory, with those above it, for links to the tree. Error 76 if there is no such tree, 75 if one of the
/// two lies in the other.
Error MakeLinkRoom(Files& files, TextView tree, TextView directory);

}  // namespace lv
