// catalogs/missing_game.h
//
// What the user says of an executable that is not where the catalog has it: deleted, moved, or never mind.

#pragma once

#include "foundation/run.h"
#include "games/engines/engine_table.h"

namespace lv {

struct GameRecord {
    Text Title;
    Text Path;
};

enum class MissingGame {
    Ignored,    // the row stays
    ReadAgain,  // the catalog is to be read from the top, or the program is at its end
};

/// The path as the disk knows it: a stored path may have "/" between its parts.
Text OnDisk(TextView path);

/// The lines with which each message about a game begins.
Text AboutGame(const GameRecord& game);

/// Asks, and corrects the catalogs of executables and scripts after the answer. An engine that has gone from where it
/// lies, outside of the game's directory, is named; one that has moved keeps its entry, whose seat gets the program
/// from its new place. `engines` may be null.
MissingGame AskForMissingGame(Run& run, const EngineTable* engines, const GameRecord& game);

/// The ";"-list with every path in the directory `from` moved to `to`, in any letter case. Both end in "\".
Text MovePaths(TextView list, TextView from, TextView to);

}  // namespace lv
