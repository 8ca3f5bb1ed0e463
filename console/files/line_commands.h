// console/files/line_commands.h
//
// The commands in a game's command line.

#pragma once

#include <vector>

#include "console/console_rules.h"

namespace lv {

/// "exec lv_666.qs" of "+exec lv_666.qs -zone 512": from a word that begins with "+" up to the next that does, or that
/// begins with "-" and is no number. Quotes stay. Of Unreal's all words, which may name an ini.
std::vector<Text> LineCommands(TextView commandLine, Console console);

}  // namespace lv
