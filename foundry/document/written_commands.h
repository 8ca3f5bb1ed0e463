// foundry/document/written_commands.h
//
// What the fixed slots write and are called, from the rows of foundry/tables/bindings_page_rows.h.

#pragma once

#include "foundation/game.h"
#include "foundry/document/script_document.h"

namespace lv {

/// The commands of the fixed slots, and the captions of slots and headings, in this kind of game. A slot that the kind
/// has no use for gets an empty command and is hidden. Runs on tables that are empty.
void FillCommandTable(ScriptDocument& document, Game gameKind);

}  // namespace lv
