// transfer/moved_places.h
//
// Where the games of a file lay that do not lie there on this machine.

#pragma once

#include <vector>

#include "platform/files.h"
#include "transfer/path_moves.h"

namespace lv {

/// A directory that is not here, with all that lay in it.
struct MovedPlace {
    Text Directory;                // without a "\" at the end
    std::vector<Text> Games;       // the titles of the executables in it
    std::vector<Text> Programs{};  // their paths, in the same order
};

/// The directories of the executables among these values that are not on this machine, in the catalog's order. One
/// that lies in another one of them is not named: it moves along. Drives "A:" and "B:" and other machines on the
/// network are not looked at; the first count as not there, the latter as there.
std::vector<MovedPlace> MovedPlacesOf(Files& disk, const std::vector<StoredValue>& values);

/// Where the place may lie, after what was said of others: a directory that is there. Empty if that tells nothing.
Text LikelyPlace(Files& disk, const MovedPlace& place, const std::vector<PathMove>& known);

/// Which of the place's executables are not there if it lies in the directory `here`: their paths below it, each once.
/// Other machines on the network are not looked at, and have them all.
std::vector<Text> MissingIn(Files& disk, const MovedPlace& place, TextView here);

/// Where to begin looking for the place on a machine with that list of executables: a directory of one that is called
/// as the place is, else the root of the drive that the first one lies on, else that of the place itself. Empty if none
/// of them is there.
Text WhereToLook(Files& disk, const MovedPlace& place, TextView executables);

/// Whether what the path names is on this machine, by the same rules; a network path is not.
bool IsHere(Files& disk, TextView path);

}  // namespace lv
