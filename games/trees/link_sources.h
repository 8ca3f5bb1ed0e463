// games/trees/link_sources.h
//
// Of which tree each directory of links is made, and what a launch does with that. The settings keep it: section
// "LinkedTrees", a value for each directory of links, called as that is, with the path of the tree. Section
// "LinksLeftOut" keeps under the same names which files the user was told of.

#pragma once

#include "foundation/run.h"
#include "games/trees/linked_tree.h"

namespace lv {

/// How long a launch is held up by the links at most, in seconds. What is left then is left as it is.
constexpr double kLongestRefresh = 3;

/// The directory of links for this tree: the one that it has, or one that is no other tree's.
Text LinksOf(Run& run, TextView tree);

/// The path of the tree that the links were made of; empty if that is not known.
Text SourceOfLinks(Run& run, TextView links);

/// Makes the links of this tree, in `links`, and keeps in the settings that they are of it. Files that are left out are
/// told of by name, once as long as they are the same.
LinkedTree MakeLinks(Run& run, const GameTree& tree, TextView links);

struct LinkRefresh {
    Text Source;                // empty: no directory of links, or of a tree that is not known; nothing was done
    bool SourceIsThere = true;  // false: there is no game now, its disk may not be in; nothing was done
    LinkedTree Done;
};

/// Brings a directory of links up to date with its tree. Files that are left out are told of as above.
LinkRefresh RefreshLinks(Run& run, TextView links);

}  // namespace lv
