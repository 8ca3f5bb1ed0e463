// catalogs/forms/entry_forms.h
//
// Shows the dialogs that edit the catalogs.

#pragma once

#include <wx/dialog.h>

#include <memory>

#include "foundation/modal_window.h"

namespace lv {

/// The form of a catalog's dialog; null for a window that is none.
std::unique_ptr<wxDialog> MakeEntryForm(wxWindow* owner, ModalWindow& window);

}  // namespace lv
