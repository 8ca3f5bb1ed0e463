// catalogs/moved_engine.h
//
// An engine that plays a game from elsewhere and lies in another place now.

#pragma once

#include "foundation/run.h"
#include "games/engines/engine_table.h"

namespace lv {

/// Gives the seat the program from its new place. Another engine gets a seat of its own beside it, which the entries of
/// the old one take. `engines` may be null.
void SeatAnew(Run& run, const EngineTable* engines, const Text& seat, const Text& program);

}  // namespace lv
