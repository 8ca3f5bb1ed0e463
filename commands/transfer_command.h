// commands/transfer_command.h
//
// "--export" and "--import": the settings as one file.

#pragma once

#include "commands/command_place.h"

namespace lv {

CommandResult ExportToFile(TextView word, const CommandPlace& place);

/// Nobody is asked where games lie that are elsewhere here: what may be their directory is taken for it, and told; the
/// rest stays as the file has it, and is told too. A damaged file changes nothing.
CommandResult ImportFromFile(TextView word, const CommandPlace& place);

}  // namespace lv
