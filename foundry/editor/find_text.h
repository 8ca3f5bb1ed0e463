// foundry/editor/find_text.h
//
// The box above the pages: finds a function, command, key or alias by its text, on all pages, and leads to it.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// A text was typed: shows the page of the first place that has it. The keyboard stays in the box, so that more can be
/// typed: FoundControl is left alone. Letter case and blanks around the text don't matter, and what is hidden is not
/// found.
void Find_Txt_Change(Fig_Frm& form);

/// Enter in the box: gives the keyboard to the place that is shown, by FoundControl. From then on to the next one, from
/// the start again behind the last.
void FindNext_Cmd_Click(Fig_Frm& form);

}  // namespace lv
