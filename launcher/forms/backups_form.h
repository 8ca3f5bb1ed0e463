// launcher/forms/backups_form.h
//
// Shows Backups_Frm, the copies of the settings.

#pragma once

#include <wx/dialog.h>

#include <memory>

#include "foundation/modal_window.h"

namespace lv {

/// Nothing for any other window.
std::unique_ptr<wxDialog> MakeBackupsForm(wxWindow* owner, ModalWindow& window);

}  // namespace lv
