// catalogs/game_identification.h
//
// The change of game. Which game an executable is, is worked out afresh at each pick from what lies beside it and from
// its name. There is no stored game type.

#pragma once

#include <functional>

#include "catalogs/catalog_lists.h"
#include "games/games.h"
#include "games/programs.h"

namespace lv {

/// What a program plays.
struct PlayedBy {
    const GameFacts* Facts;  // those of Game::None where its directory is no game's
    ExecutableFlags Flags;
    const Engine* OfToday;  // null: no engine of today
};

/// Told by what lies beside the program and by its name. `engines` may be null.
PlayedBy WhatPlays(Files& files, const EngineTable* engines, TextView program);

/// Writes Half-Life's registry settings as a script to this path.
using RegistryToScript = std::function<void(TextView path)>;

/// The change of game to the selected row of Exe_Cbo: saves the position, sets the run's globals, fills the lists of
/// modifications, scripts and servers. Half-Life's settings become a script before, if there is a conversion. Without a
/// selected row nothing happens. False if the program ended.
bool IdentifyGame(Run& run, CatalogLists& lists, const RegistryToScript& toScript = {});

/// Selects the mission pack's modification for its own executable and drops it for the others of Hexen II. For after
/// the window was set up for the game.
void ApplyMissionPackRule(Run& run, CatalogLists& lists);

}  // namespace lv
