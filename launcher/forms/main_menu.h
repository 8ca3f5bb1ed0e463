// launcher/forms/main_menu.h
//
// The menu bar and its menus, made from the table.

#pragma once

#include <wx/menu.h>

#include <functional>

#include "launcher/window/lv_frm.h"

namespace lv {

/// The toolkit's number of an item.
int MenuIdOf(MenuItem item);

/// One menu with all below it, in its present state.
wxMenu* MakeMenu(const LV_Frm& window, MenuItem parent);

wxMenuBar* MakeMenuBar(const LV_Frm& window);

/// Brings captions, check marks, enabling, and what is hidden in line with the struct.
void ShowMenuState(const LV_Frm& window, wxMenuBar& bar);

/// The menu of that name, "File_Bar"; None if there is none.
MenuItem MenuNamed(TextView name);

}  // namespace lv
