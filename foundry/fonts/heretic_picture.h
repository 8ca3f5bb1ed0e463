// foundry/fonts/heretic_picture.h
//
// Heretic II's pictures: M32, red, green, blue and opacity of each pixel, and M8, palette indexes with the palette in
// the file. Of their mip levels the first is read.

#pragma once

#include <optional>

#include "foundation/text.h"
#include "foundry/fonts/font_map.h"

namespace lv {

/// A font of 16 by 16 letters in either format, which the version in front tells. An M8 has no transparent index.
/// Nothing if the bytes are neither, or the picture does not lie within them.
std::optional<FontMap> ReadHereticFont(TextView bytes);

}  // namespace lv
