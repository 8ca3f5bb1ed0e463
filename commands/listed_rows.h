// commands/listed_rows.h
//
// The rows of the launcher's lists with the names that a user may type for them.

#pragma once

#include "commands/command_words.h"
#include "commands/named_rows.h"
#include "launcher/launcher.h"

namespace lv {

/// Those of the picked game; setups are of all games.
std::vector<NamedRow> RowsOf(const Launcher& launcher, Listed kind);

/// What a message calls one of them, "modification".
TextView NameOfKind(Listed kind);

}  // namespace lv
