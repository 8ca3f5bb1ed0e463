// foundry/fonts/letter_sheet.h
//
// A picture of letters as a game has it, and how it becomes a FontMap.

#pragma once

#include <optional>
#include <vector>

#include "foundation/text.h"
#include "foundry/fonts/font_map.h"
#include "foundry/fonts/palette.h"

namespace lv {

/// The largest sheet, in pixels each way.
constexpr int kLargestSheet = 1024;

struct LetterSheet {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint8_t> Pixels;  // red, green, blue, opacity; rows from the top
};

/// A stretch of a sheet, in pixels.
struct SheetCell {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
};

constexpr int kNoTransparentColor = -1;

/// A sheet of palette indexes, one byte a pixel; the transparent index gets no opacity. Nothing if there are too few
/// bytes, or the measures are not of a sheet.
std::optional<LetterSheet> ColorSheet(TextView indexes, std::uint32_t width, std::uint32_t height,
                                      const Palette& palette, int transparent);

/// Draws the part of the cell that lies on the sheet into the map's cell of `code`, stretched to `width` by `height`
/// pixels (1 to 16), in the middle of its width and at the top.
void DrawCell(FontMap& map, int code, const LetterSheet& sheet, const SheetCell& cell, int width = kFontCell,
              int height = kFontCell);

/// The first 256 cells of a sheet of `columns` by `rows` letters. Nothing if a cell would have no pixels.
std::optional<FontMap> MapOfSheet(const LetterSheet& sheet, int columns, int rows);

}  // namespace lv
