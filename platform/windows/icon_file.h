// platform/windows/icon_file.h
//
// Pictures of several sizes as one ".ico" file, each compressed as a PNG, as Windows has read them since Vista.

#pragma once

#include <span>
#include <string>

#include "platform/shortcuts.h"

namespace lv {

/// Those of 1 to 256 pixels.
std::string IconFileOf(std::span<const ShortcutPicture> pictures);

}  // namespace lv
