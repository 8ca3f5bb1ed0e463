// wizard/game_search.h
//
// The search for the ticked games.

#pragma once

#include "wizard/install_frm.h"

namespace lv {

/// Looks for the games' programs in the usual places, then on whole disks if the user wants that. A game whose program
/// is nowhere is taken by its data. While it runs it only asks it to stop.
void Install_AutoSearch_Cmd_Click(Install_Frm& form);

}  // namespace lv
