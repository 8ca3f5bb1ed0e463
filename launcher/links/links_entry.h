// launcher/links/links_entry.h
//
// The desktop entry by which a Linux desktop hands links of games over to this program. UTF-8.

#pragma once

#include <optional>
#include <span>

#include "foundation/text.h"

namespace lv {

constexpr TextView kLinksEntry = "lorvane3d-links.desktop";

/// "x-scheme-handler/qw" for "qw".
Text TypeOfScheme(TextView scheme);

/// The entry for the program at that whole path, in no menu, for these schemes.
Text LinksEntryText(TextView programFile, std::span<const TextView> schemes);

/// Whether an entry starts the program at that path for a link.
bool StartsThisProgram(TextView entry, TextView programFile);

}  // namespace lv
