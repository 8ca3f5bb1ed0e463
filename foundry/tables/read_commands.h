// foundry/tables/read_commands.h
//
// Which slot a command of a script means.

#pragma once

#include "foundation/game.h"
#include "foundry/tables/slots.h"

namespace lv {

/// What recognition says of a command.
struct SlotMatch {
    bool Known = false;         // a spelling of some kind of game
    SlotNumber Slot = kNoSlot;  // kNoSlot with Known set: another kind's command; such a binding is dropped
};

/// Looks for the command among the spellings of the fixed slots. The text comes in lower case.
SlotMatch SlotFromCommand(TextView lowerCaseCommand, Game gameKind);

}  // namespace lv
