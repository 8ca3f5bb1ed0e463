// foundry/writing/save_filters.h
//
// What the dialog that saves a script offers to show.

#pragma once

#include "foundation/game.h"

namespace lv {

/// The filter of this kind of game. An extension of the script's own, in lower case and without its ".", is a further
/// pattern unless the kind has it already or it is empty.
Text SaveFilter(Game gameKind, TextView extension);

/// The extension of the path's file name in lower case, without its "."; empty if it has none.
Text ExtensionOf(TextView path);

}  // namespace lv
