// console/engine_consoles.h
//
// Which console an engine of games/engines has.

#pragma once

#include "console/console_rules.h"
#include "games/engines/engine_table.h"

namespace lv {

/// Of an engine that nobody has looked at, of the user's table say, that of the game as it was sold.
Console ConsoleOfEngine(const Engine& engine, Game game, bool isQuakeWorld);

/// Of the game's own program where `engine` is null: HexenWorld's is told by its name.
Console ConsoleOfProgram(const Engine* engine, TextView program, Game game, bool isQuakeWorld);

}  // namespace lv
