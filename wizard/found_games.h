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
    bool HasLooked = false;             // the system knows usual places
    std::vector<GameTree> Trees;        // in the order in which they are offered
    std::vector<FoundEngine> Engines;   // outside of the trees; servers too
    std::vector<Text> Crowded;          // usual places that hold more than was looked through
    std::size_t Nameless = 0;           // directories there with names that no game could open
    std::vector<std::size_t> Playable;  // rows of the wizard with a program in the game's own directory
};

/// Takes under a second. Nothing where the system knows no usual places.
FoundGames LookAround(Run& run, const EngineTable& engines);

/// The engines alone, for one that has been installed since. None where an engine plays only from the game's directory.
std::vector<FoundEngine> EnginesHere(Run& run, const EngineTable& engines);

/// All trees of the wizard's row.
std::vector<const GameTree*> TreesOfRow(const FoundGames& found, std::size_t row);

/// Whether a program that plays the game, an original one or an engine of today, lies in the tree.
bool HoldsItsProgram(Files& disk, const EngineTable& engines, const GameTree& tree);

/// The first whole tree of the wizard's row, or the first at all; null without one.
const GameTree* TreeOfRow(const FoundGames& found, std::size_t row);

/// Whether the engine lets its user play a game of the row.
bool PlaysRow(const Engine& engine, std::size_t row);

/// Whether the engine is a server of a game of the row, and nothing else.
bool ServesRow(const Engine& engine, std::size_t row);

/// What was found, for people: "Found: Quake, Quake 2 (2 places). Plays here: QuakeSpasm, ezQuake." and how to go on.
Text FoundText(const FoundGames& found);

/// What a search for the ticked games has found, for people: names of games, and of those that it has not.
Text SearchText(const std::vector<Text>& found, const std::vector<Text>& missing);

/// What to install for a row that nothing here plays.
struct EngineAdvice {
    Text What;  // "apt install quakespasm", or a page of the web
    bool IsCommand = false;
    Text Engine;
    Text Part;  // of Debian that has to be among the sources of packages; empty: the one that always is
};
/// `packages`: whether the system gets programs by Debian's packages.
std::optional<EngineAdvice> AdviceFor(const EngineTable& engines, std::size_t row, bool packages = true);

}  // namespace lv
