// foundry/forms/key_codes.h
//
// The toolkit's keys as the keys of a script.

#pragma once

#include <wx/event.h>

#include "foundry/tables/keys.h"

namespace lv {

/// The label of the keyboard's picture that the pressed key is; kNoKey for one that no script knows.
Index LabelOfKey(const wxKeyEvent& event);

/// The same for a mouse button or a turn of the wheel; kNoKey for a mere movement.
Index LabelOfMouse(const wxMouseEvent& event);

}  // namespace lv
