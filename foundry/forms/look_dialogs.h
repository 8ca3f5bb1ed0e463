// foundry/forms/look_dialogs.h
//
// The dialogs that look into a script: what a save changes, its versions.

#pragma once

#include <wx/dialog.h>

#include <memory>

#include "foundation/modal_window.h"

namespace lv {

/// Nothing for a window that is none of these.
std::unique_ptr<wxDialog> MakeLookDialog(wxWindow* owner, ModalWindow& window);

}  // namespace lv
