// foundry/fonts/raw_font.h
//
// Fonts without a header: Quake's lump CONCHARS, 128 by 128 bytes, and Hexen II's conchars.lmp, 256 by 128 bytes with
// 512 letters. Index 0 is transparent. The size says which it is, and nothing else may be.

#pragma once

#include <optional>

#include "foundry/fonts/font_map.h"
#include "foundry/fonts/palette.h"

namespace lv {

/// 16 letters in a row, the plain ones below their golden twins.
std::optional<FontMap> ReadQuakeFont(TextView bytes, const Palette& palette);

/// 32 letters in a row. Its codes from 256 are the same letters in another colour: no name can hold them.
std::optional<FontMap> ReadHexen2Font(TextView bytes, const Palette& palette);

}  // namespace lv
