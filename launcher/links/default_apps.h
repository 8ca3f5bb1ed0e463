// launcher/links/default_apps.h
//
// The list of default applications that Linux desktops share, mimeapps.list: its group [Default Applications] names the
// desktop entries that open a MIME type, best first. UTF-8. Of entries of one type the last counts, as desktops have
// it. All that is not asked for stays byte for byte.

#pragma once

#include <vector>

#include "foundation/text.h"

namespace lv {

/// The entries that are named for the type, best first.
std::vector<Text> DefaultsOf(TextView list, TextView type);

/// The list with the entry ahead of those that were named before.
Text WithDefault(TextView list, TextView type, TextView entry);

/// The list without the entry: what was named before is the default again. A line that names nothing else goes.
Text WithoutDefault(TextView list, TextView type, TextView entry);

}  // namespace lv
