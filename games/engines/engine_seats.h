// games/engines/engine_seats.h
//
// Engines that play a game without lying in its directory: each has a seat there, the path of a file that is not there,
// "C:\QUAKE\quakespasm", for which the engine stands in. The catalog of executables keeps the seat like any program,
// and the settings keep whose it is: section "Engines", value "Seats", a list of seat and program in turn, parted by
// ";".

#pragma once

#include <vector>

#include "foundation/run.h"
#include "games/engines/engine_table.h"

namespace lv {

/// Puts all seats that are kept in force. Once, at the start.
void RestoreEngineSeats(Run& run);

/// Keeps the seat and puts it in force. False if this system knows no stand-ins, a ";" in a path keeps it from being
/// kept, or saving failed; the user was told of that.
bool SeatEngine(Run& run, TextView seat, TextView program);

/// The program that the seat is kept for; empty for any other path.
Text ProgramOfSeat(Run& run, TextView seat);

/// Gives up all seats but these, in any letter case.
void KeepSeatsOnly(Run& run, const std::vector<Text>& seats);

/// What is told beside a seat's path when its program has gone: the engine, the program as the host names it, and what
/// brings it back. Empty for any other path. `engines` may be null.
Text AboutGoneEngine(Run& run, const EngineTable* engines, TextView seat);

}  // namespace lv
