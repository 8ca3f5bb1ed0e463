// launcher/drop/file_link.h
//
// A file of this machine as a link names it, "file:///home/me/My%20maps/dm3.bsp": as desktops hand files over.

#pragma once

#include <optional>

#include "foundation/text.h"

namespace lv {

/// The host's path, UTF-8. Nothing for any other link, a file of another machine, and what no path could hold.
std::optional<std::string> PathOfFileLink(TextView link);

}  // namespace lv
