// foundry/editor/standard_aliases.h
//
// The ready-made aliases of StdAliases_Cbo, by their rows there.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// StdAliases_Cbo for the kind of game; only Quake has such aliases.
void FillStandardAliases(Fig_Frm& form);

/// Empty for a row that is none.
Text StandardAliasName(std::size_t entry);
Text StandardAliasBody(const ScriptDocument& document, std::size_t entry);

/// Writes what the alias runs into the game's directory. False if it could not be written, which the user was told.
bool WriteStandardAliasFiles(Fig_Frm& form, std::size_t entry);

}  // namespace lv
