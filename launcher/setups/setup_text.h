// launcher/setups/setup_text.h
//
// A setup as one text, and back: "1;Executable=C:\QUAKE\GLQUAKE.EXE;Ticked=Game_Chk,Map_Chk;Modification=-game ctf".
// The leading number is the form's. Fields that are not there are empty. "%", ";", control characters and blanks at a
// field's ends are "%" and two hexadecimal digits, so that any byte survives. The name is not part of it: it stands in
// the list of names.

#pragma once

#include "launcher/setups/setup.h"

namespace lv {

Text TextOfSetup(const Setup& setup);

/// Nothing if the text is not wholly one of this form.
std::optional<Setup> SetupOfText(TextView text);

/// A name, or any other text, within such a field.
Text Escaped(TextView text);
std::optional<Text> Unescaped(TextView text);

}  // namespace lv
