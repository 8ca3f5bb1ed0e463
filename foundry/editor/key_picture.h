// foundry/editor/key_picture.h
//
// The keyboard as a picture of a keyboard: each key's label with its caption and place, and which key a
// label stands for.

#pragma once

#include "foundation/game.h"
#include "foundry/editor/fig_frm.h"

namespace lv {

/// All labels with their captions, places and colours, and the list of controllers, as for a kind of game none of
/// whose keys is bound. Comes before the reader, which paints the bound ones.
void LayOutKeys(Fig_Frm& form);

/// The key that a label acts on by a tool tip or a drag. kNoKey for the labels that can't be bound.
KeyIndex KeyOfLabel(Index label, Game gameKind);

/// The key that a double click on the label frees: as KeyOfLabel, but Unreal's keypad Enter is the main one here.
KeyIndex KeyToClear(Index label, Game gameKind);

/// The label's key in words, for assistive tools and hints: "W", "Up", "Keypad 5". Empty for what is no label.
Text SpokenName(Index label);

}  // namespace lv
