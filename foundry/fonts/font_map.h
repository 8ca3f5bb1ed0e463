// foundry/fonts/font_map.h
//
// A game's console font as the editor shows it: 256 cells of 16 by 16 pixels, 15 in a row, in the order of their codes.

#pragma once

#include <cstdint>
#include <vector>

#include "foundation/text.h"

namespace lv {

constexpr int kFontCell = 16;  // pixels, both ways
constexpr int kFontCellsInRow = 15;
constexpr int kFontRows = 18;
constexpr int kFontCodes = 256;
constexpr int kFontMapWidth = kFontCell * kFontCellsInRow;
constexpr int kFontMapHeight = kFontCell * kFontRows;

struct FontMap {
    /// 4 bytes a pixel: red, green, blue, opacity; rows from the top. Always of kFontMapWidth by kFontMapHeight.
    std::vector<std::uint8_t> Pixels =
        std::vector<std::uint8_t>(static_cast<std::size_t>(kFontMapWidth) * kFontMapHeight * 4);

    [[nodiscard]] std::uint8_t* Pixel(int x, int y) {
        return Pixels.data() + (static_cast<std::size_t>(y) * kFontMapWidth + static_cast<std::size_t>(x)) * 4;
    }
    [[nodiscard]] const std::uint8_t* Pixel(int x, int y) const {
        return Pixels.data() + (static_cast<std::size_t>(y) * kFontMapWidth + static_cast<std::size_t>(x)) * 4;
    }
};

}  // namespace lv
