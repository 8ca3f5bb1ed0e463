// catalogs/list_room.h
//
// How many names out of a directory a drop-down list takes. A list takes its time for each of its rows, and a directory
// may be a stranger's.

#pragma once

#include "foundation/run.h"

namespace lv {

/// More than most players ever collect, and shown in less than a second.
inline constexpr std::size_t kMostLooseMaps = 4096;
inline constexpr std::size_t kMostFoundScripts = 1024;  // beside those that the catalog knows

/// Tells, once for a directory until `told` names another one, that the list of `what` ("maps") shows its first `shown`
/// only. The user may wish never to hear of it again.
void TellListIsFull(Run& run, Text& told, TextView directory, TextView what, std::size_t shown);

}  // namespace lv
