// catalogs/unused_seats.h
//
// The seats of engines in the games' directories, held to the entries that use them.

#pragma once

#include "foundation/run.h"

namespace lv {

/// Gives up the seats that no entry of the stored catalog of executables uses any more. A catalog that cannot be read
/// keeps them all.
void LeaveUnusedSeats(Run& run);

}  // namespace lv
