// launcher/setups/setup_words.h
//
// What the windows say of a setup.

#pragma once

#include "launcher/setups/setup_store.h"

namespace lv {

constexpr const char* kSetupsTitle = "Setups";

/// A stranger's text on one line: control characters are left out.
Text ShownText(TextView text);

/// The same as the caption of a menu item, with no access key of its own.
Text MenuText(TextView text);

/// What the setup plays: "Quake, ctf, on club.example:26000".
Text WordsOf(const Launcher& launcher, const Setup& setup);

/// A name for what the window holds: the title of its game, and of the modification that is ticked.
Text OfferedName(const Launcher& launcher);

}  // namespace lv
