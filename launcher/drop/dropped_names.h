// launcher/drop/dropped_names.h
//
// What a file from elsewhere is to be called in a game.

#pragma once

#include "games/games.h"
#include "launcher/drop/dropped_thing.h"

namespace lv {

constexpr std::size_t kLongestModificationName = 32;

/// A file's name without its ending.
Text StemOf(TextView file);

/// Whether a new directory of a modification may be called so: letters, digits, "_", "-" and ".", a letter or a digit
/// first, not the base game's, and no device of Windows'. A launch passes such a name on as it stands.
bool IsModificationName(TextView name, const GameFacts& game);

/// The name that an archive's modification is offered: the file's own without its ending, made such a name; for one
/// that is called as the games call theirs, "pak0.pak", that of the directory it lies in.
Text ModificationNameFor(TextView archive, const GameFacts& game);

/// How the archive is to be called for the game to find it in a directory of its own.
Text ArchiveNameFor(const DroppedThing& thing, Game game);

/// Whether a game's console takes a map of that name, without its ending, and each system a file.
bool IsMapName(TextView stem);

/// Whether lists, a game's console and each system take a script of that name, its ending with it.
bool IsScriptName(TextView name);

}  // namespace lv
