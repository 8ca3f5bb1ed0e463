// wizard/setup_completion.h
//
// What the wizard leaves behind: the entries of the games that it was shown.

#pragma once

#include "wizard/install_frm.h"

namespace lv {

/// Turns the ticked rows into entries of the catalog of executables.
void Install_OK_Cmd_Click(Install_Frm& form);

}  // namespace lv
