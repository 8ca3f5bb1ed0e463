// console/checks/engine_words.h
//
// Settings and commands of the games' engines beyond those that command_words tells apart: by their names, and by how
// most of them begin.

#pragma once

#include "foundation/text.h"

namespace lv {

/// In any letter case.
bool IsEngineWord(TextView word);

}  // namespace lv
