// launcher/drop/listed_programs.h
//
// The rows of the list of executables by what they play, and which of them a path belongs to.

#pragma once

#include <optional>
#include <vector>

#include "catalogs/game_identification.h"
#include "launcher/launcher.h"

namespace lv {

struct ListedProgram {
    Text Title;
    Text Path;       // "\" between its parts
    Text Directory;  // it lies there
    PlayedBy Plays;

    /// The client of QuakeWorld or HexenWorld, which plays on servers alone.
    [[nodiscard]] bool IsOfAWorld() const { return Plays.Flags.IsQuakeWorld || Plays.Flags.IsHexenWorld; }
    /// Where the game lies: the directory, of Unreal the one above "System".
    [[nodiscard]] Text Tree() const;
};

/// All, in the list's order, whether or not they play a game that is known.
std::vector<ListedProgram> ListedPrograms(Launcher& launcher);

/// The one that is picked.
std::optional<ListedProgram> PickedProgram(Launcher& launcher);

/// A path in the tree of a listed program's game.
struct PlaceInGame {
    ListedProgram Program;
    std::vector<Text> Below;  // the parts of the path below the tree: "id1", "maps", "e1m1.bsp"
};

/// Nothing for a path that lies in no listed game. Of several programs there the picked one counts, else one that plays
/// alone ahead of a world's client, else the first. `wantsWorldToo` is false for what a world's client has no use for:
/// then it counts last, picked or not.
std::optional<PlaceInGame> PlaceOf(Launcher& launcher, TextView path, bool wantsWorldToo);

}  // namespace lv
