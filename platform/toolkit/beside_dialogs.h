// platform/toolkit/beside_dialogs.h
//
// A window that can be used while a dialog of the program waits for an answer.

#pragma once

namespace lv {

/// Both are native handles of windows at the top level. To be said anew when the window comes forward: the dialog that
/// is up then, or null, does not stand in front of it.
void LetWorkBesideDialogs(void* window, void* dialog);

}  // namespace lv
