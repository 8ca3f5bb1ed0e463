// foundry/editor/addable_commands.h
//
// The commands that Alias_Frm offers for the aliases of a script.

#pragma once

#include <vector>

#include "foundry/document/script_document.h"

namespace lv {

struct AddableCommand {
    Text Command;  // with the separator where the game takes one: "+attack;"
    Text Description;
};

/// Those of the script's kind of game, in the order in which they are offered.
std::vector<AddableCommand> AddableCommands(const ScriptDocument& document);

}  // namespace lv
