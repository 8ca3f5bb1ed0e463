// games/trees/linked_tree.h
//
// A tree that cannot be played where it lies, because nothing can be written there or its archives are spelled for
// another system: a directory of the program's own that links its files. Scripts and settings have a place beside the
// links, and the original stays untouched.

#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "games/trees/game_tree.h"

namespace lv {

constexpr std::size_t kMostLinks = 100000;
constexpr std::size_t kMostLinkedDirectories = 10000;
constexpr int kDeepestLinked = 12;  // levels below a game directory

struct LinkedTree {
    std::size_t Made = 0;       // links
    std::size_t Copied = 0;     // settings and saved games
    std::size_t Removed = 0;    // links to what has gone
    std::size_t Kept = 0;       // files of the user's that stand where a link would
    std::vector<Text> LeftOut;  // settings that are neither linked nor copied: "id1\\config.cfg", as the tree spells it
    bool IsWhole = true;        // false: there are more files than are linked, or it was to end before
    Error Fault;                // what stopped it, if anything did
};

/// Makes `directory`, with those above it, hold a link for each file of the tree's game directories and what is below
/// them, or brings it up to date. Settings and saved games are copied once instead: a game writes through a link. One
/// that cannot be read or is too large to copy is left out, and so is one that is a link, which may lead anywhere.
/// Where the game's engines look for "id1/pak0.pak" the links are in lower case. What is the user's stays as it is:
/// files, directories, and links that lead anywhere but into the tree; a directory that is a link is not gone into. Of
/// the tree's directories that are links only those count that stand at its top and hold data of a game. A second run
/// changes nothing. `goesOn` is asked before each file, and false ends the work; none: it is done to its end. Error 75
/// if one of the two directories lies in the other.
LinkedTree LinkTree(Files& files, const GameTree& tree, TextView directory, const std::function<bool()>& goesOn = {});

}  // namespace lv
