// foundry/editor/find_text.h
//
// The box above the pages: finds a function, command, key or alias by its text, on all pages, and leads to it.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// A text was typed: the first place that has it.
void Find_Txt_Change(Fig_Frm& form);
/// The next one, from the start again behind the last.
void FindNext_Cmd_Click(Fig_Frm& form);

}  // namespace lv
