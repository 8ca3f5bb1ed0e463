// foundation/desktop_entry_text.h
//
// Texts as a desktop entry (a ".desktop" file of Linux desktops) has them. All that they replace is ASCII, so they take
// code page 1252 and UTF-8 alike.

#pragma once

#include "foundation/text.h"

namespace lv {

/// A text as the value of a key: line ends, tabs, "\" and a blank in front as their escapes.
Text DesktopEntryValue(TextView text);

/// One argument of the key Exec as its value has it, the quotes included: "%" is doubled, which would begin a field
/// code, and what a shell would read has a "\" in front; both escapes are then those of a value.
Text QuoteForExec(TextView argument);

}  // namespace lv
