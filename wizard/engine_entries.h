// wizard/engine_entries.h
//
// The entries of today's engines: each tree gets every engine that is here and plays it, beside the game's own
// programs.

#pragma once

#include "wizard/found_games.h"

namespace lv {

struct EngineEntry {
    Text Title;
    Text Path;  // lower case: of a program in the tree, or the engine's seat there
};

/// Of the tree in `path`. One that cannot be played where it lies, for want of a place to write or for the sake of an
/// engine, is played through a directory of links on drive C:, which is made here. What went wrong is told.
std::vector<EngineEntry> EngineEntries(Run& run, const EngineTable& engines, const FoundGames& found, std::size_t row,
                                       TextView path);

/// The same of the servers that are here for the tree's game. They are no use to one who wants to play, and belong
/// behind what plays it.
std::vector<EngineEntry> ServerEntries(Run& run, const EngineTable& engines, const FoundGames& found, std::size_t row,
                                       TextView path);

/// Whether an engine that is here and plays the tree in `path` has no entry for it in the ";"-list. Makes nothing.
bool HasNewEngine(Run& run, const EngineTable& engines, const FoundGames& found, std::size_t row, TextView path,
                  TextView list);

}  // namespace lv
