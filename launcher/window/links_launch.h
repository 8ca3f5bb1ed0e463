// launcher/window/links_launch.h
//
// What a launch does first where the game is played through links: they follow the game that they are made of.

#pragma once

#include "foundation/run.h"

namespace lv {

/// Brings the links in the game's directory up to date, if it is one of links. False if the launch is to end: the game
/// is not there now, or the user wants it to. The user was told.
bool LinksAreUpToDate(Run& run, TextView directory);

}  // namespace lv
