// foundry/editor/kind_layout.h
//
// What each kind of game changes in the window when it opens: pages, legend, rows, settings that it has or not.

#pragma once

#include "foundry/editor/captions.h"

namespace lv {

/// Pages, captions and what is hidden for the kind of game. Runs behind the reader, when the window loads, on a key
/// picture and a document that are as they are made. No edit.
void ApplyGameKind(Fig_Frm& form);

}  // namespace lv
