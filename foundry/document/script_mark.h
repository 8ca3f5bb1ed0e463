// foundry/document/script_mark.h
//
// A name for a script in names of files that the program keeps of it.

#pragma once

#include "foundation/text.h"

namespace lv {

/// The same for all spellings of a path: FNV-1a, 64 bit, in 16 hexadecimal digits.
Text ScriptMark(TextView script);

}  // namespace lv
