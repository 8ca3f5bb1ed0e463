// games/engines/engine_seats.h
//
// Engines that play a game without lying in its directory: each has a seat there, the path of a file that is not there,
// "C:\QUAKE\quakespasm", for which the engine stands in. The catalog of executables keeps the seat like any program,
// and the settings keep whose it is: section "Engines", value "Seats", a list of seat and program in turn, parted by
// ";".

#pragma once

#include "foundation/run.h"

namespace lv {

/// Puts all seats that are kept in force. Once, at the start.
void RestoreEngineSeats(Run& run);

/// Keeps the seat and puts it in force. False if this system knows no stand-ins, a ";" in a path keeps it from being
/// kept, or saving failed; the user was told of that.
bool SeatEngine(Run& run, TextView seat, TextView program);

}  // namespace lv
