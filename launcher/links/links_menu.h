// launcher/links/links_menu.h
//
// The item of the menu Tools by which links of games come to this program, and its check mark.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// Takes the links, after a question where another program has them; or gives them back.
void TakeLinks_Bar_Click(Launcher& launcher);

/// The mark as the system has it: a menu is about to open.
void Menu_Open(Launcher& launcher);

}  // namespace lv
