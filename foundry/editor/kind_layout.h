// foundry/editor/kind_layout.h
//
// What each kind of game changes in the window when it opens: pages, legend, rows, settings that it has or not.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// The captions and tool tips that all kinds share. Runs once, when the window is made.
void FillCaptions(Fig_Frm& form);

/// Pages, captions and what is hidden for the kind of game. Runs behind the reader, when the window loads.
void ApplyGameKind(Fig_Frm& form);

}  // namespace lv
