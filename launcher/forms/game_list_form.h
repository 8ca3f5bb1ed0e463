// launcher/forms/game_list_form.h
//
// Shows GameList_Frm, the window of all executables.

#pragma once

#include <wx/dialog.h>

#include <memory>

#include "foundation/modal_window.h"

namespace lv {

/// Nothing for another window.
std::unique_ptr<wxDialog> MakeGameListForm(wxWindow* owner, ModalWindow& window);

}  // namespace lv
