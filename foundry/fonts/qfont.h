// foundry/fonts/qfont.h
//
// Half-Life's fonts: letters of different widths on one sheet, with their palette.

#pragma once

#include <optional>

#include "foundation/text.h"
#include "foundry/fonts/font_map.h"

namespace lv {

/// A lump of type 70. Index 255 is transparent. Letters of up to 8 rows are doubled, those of more than 16 made
/// smaller; each is in the middle of its cell. A letter that begins outside of the sheet is left out. Nothing if the
/// sheet or the palette does not lie within the bytes.
std::optional<FontMap> ReadQfont(TextView lump);

}  // namespace lv
