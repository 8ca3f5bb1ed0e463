// games/engines/playing_directory.h
//
// Where an engine plays a tree: in the tree itself, or in a directory of links to it.

#pragma once

#include "foundation/run.h"
#include "games/engines/engine_table.h"

namespace lv {

/// The tree itself, if the engine can play it there. Links are made, or brought up to date, for a tree that cannot be
/// written, whose archives are spelled for another system, whose path no list could hold (";"), or whose shareware data
/// keep the engine from running a script but from its own autoexec.cfg. Error 76 if there is no game in the directory;
/// those of LinkTree.
Result<Text> PlayingDirectory(Run& run, const Engine& engine, TextView directory);

}  // namespace lv
