// foundry/editor/document_cells.h
//
// The editor's document as a row of cells, a text each. Together they are all that an edit can change.

#pragma once

#include <cstdint>
#include <functional>
#include <map>

#include "foundation/text.h"

namespace lv {

struct Fig_Frm;

enum class CellUse {
    Value,
    Typed,  // the user types into it, letter by letter
    Aliases,
};

/// Shows each cell in order, from 0. The text is there during the call only. The row is the same for as long as the
/// script is open, but for the texts of sections, which come and go at its end.
void ReadCells(const Fig_Frm& form, const std::function<void(std::uint32_t cell, TextView text, CellUse use)>& see);

/// Gives cells the texts that ReadCells once had for them. True if the aliases were among them: whoever shows them
/// must be told.
bool WriteCells(Fig_Frm& form, const std::map<std::uint32_t, TextView>& texts);

}  // namespace lv
