// foundation/shown_name.h
//
// A stranger's name, fit to be shown: by a terminal, or in a message.

#pragma once

#include "foundation/text.h"

namespace lv {

/// Control characters become "?", so that a name never commands a terminal, and what is longer than 200 characters is
/// cut.
Text Shown(TextView name);

}  // namespace lv
