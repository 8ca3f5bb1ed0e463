// foundry/forms/editor_dialogs.h
//
// The dialogs over the editor: alias, message, extra binding, color, name, the question before it closes.

#pragma once

#include <wx/dialog.h>

#include <memory>

#include "foundation/modal_window.h"

namespace lv {

/// Nothing for a window that is none of the editor's.
std::unique_ptr<wxDialog> MakeEditorDialog(wxWindow* owner, ModalWindow& window);

}  // namespace lv
