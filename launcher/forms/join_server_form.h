// launcher/forms/join_server_form.h
//
// Shows the dialog of a server's address.

#pragma once

#include <wx/dialog.h>

#include <memory>

#include "foundation/modal_window.h"

namespace lv {

/// The form of the dialog; null for a window that is none.
std::unique_ptr<wxDialog> MakeJoinServerForm(wxWindow* owner, ModalWindow& window);

}  // namespace lv
