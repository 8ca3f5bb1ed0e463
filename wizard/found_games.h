// wizard/found_games.h
//
// What a quick look finds before the wizard asks: the games in the usual places of the system, told by their data, and
// the engines of today that play them.

#pragma once

#include <optional>
#include <vector>

#include "foundation/run.h"
#include "games/engines/engine_search.h"
#include "games/places.h"
#include "games/trees/game_tree.h"

namespace lv {

struct FoundGames {
    std::vector<GameTree> Trees;       // in the order in which they are offered
    std::vector<FoundEngine> Engines;  // outside of the trees
};

/// Takes under a second. Nothing where the system knows no usual places.
FoundGames LookAround(Run& run, const EngineTable& engines);

/// The first whole tree of the wizard's row, or the first at all; null without one.
const GameTree* TreeOfRow(const FoundGames& found, std::size_t row);

/// Whether the engine lets its user play a game of the row.
bool PlaysRow(const Engine& engine, std::size_t row);

/// What was found, for people: "Found: Quake, Quake 2. Here to play them: QuakeSpasm, ezQuake." and how to go on.
Text FoundText(const FoundGames& found);

/// What to install for a row that nothing here plays.
struct EngineAdvice {
    Text What;  // "apt install quakespasm", or a page of the web
    bool IsCommand = false;
    Text Engine;
};
std::optional<EngineAdvice> AdviceFor(const EngineTable& engines, std::size_t row);

}  // namespace lv
