// foundry/fonts/pcx.h
//
// PCX of 8 bits a pixel, run-length encoded, as Quake II reads it: width and height are xmax + 1 and ymax + 1, whatever
// the minima; the palette is the file's last 768 bytes, whatever stands before them.

#pragma once

#include <optional>

#include "foundry/fonts/font_map.h"
#include "foundry/fonts/palette.h"

namespace lv {

/// The palette of a PCX; nothing if the bytes are none.
std::optional<Palette> ReadPcxPalette(TextView bytes);

/// A font of 16 by 16 letters. Index 255 is transparent. At most 640 by 480 pixels, as the game has it; a picture that
/// ends too early is none.
std::optional<FontMap> ReadPcxFont(TextView bytes, const Palette& palette);

}  // namespace lv
