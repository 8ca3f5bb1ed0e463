#include "foundry/fonts/letter_sheet.h"

#include <algorithm>
#include <cstring>

#include "foundation/stored_numbers.h"

namespace lv {

namespace {

constexpr std::size_t kPixel = 4;  // bytes

bool IsSheetSize(std::uint32_t width, std::uint32_t height) {
    constexpr auto kLargest = static_cast<std::uint32_t>(kLargestSheet);
    return width > 0 && height > 0 && width <= kLargest && height <= kLargest;
}

}  // namespace

std::optional<LetterSheet> ColorSheet(TextView indexes, std::uint32_t width, std::uint32_t height,
                                      const Palette& palette, int transparent) {
    if (!IsSheetSize(width, height) || indexes.size() < std::size_t{width} * height) {
        return std::nullopt;
    }
    LetterSheet sheet{static_cast<int>(width), static_cast<int>(height), {}};
    const std::size_t count = std::size_t{width} * height;
    sheet.Pixels.reserve(count * kPixel);
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t index = ByteAt(indexes, i);
        const PaletteColor color = palette[index];
        const std::uint8_t opacity = index == transparent ? 0 : 255;
        sheet.Pixels.insert(sheet.Pixels.end(), {color.Red, color.Green, color.Blue, opacity});
    }
    return sheet;
}

void DrawCell(FontMap& map, int code, const LetterSheet& sheet, const SheetCell& cell, int width, int height) {
    width = std::clamp(width, 1, kFontCell);
    height = std::clamp(height, 1, kFontCell);
    const int left = code % kFontCellsInRow * kFontCell + (kFontCell - width) / 2;
    const int top = code / kFontCellsInRow * kFontCell;
    const std::size_t line = static_cast<std::size_t>(sheet.Width) * kPixel;
    for (int y = 0; y < height; ++y) {
        const int fromY = cell.Top + y * cell.Height / height;
        if (fromY < 0 || fromY >= sheet.Height) {
            continue;
        }
        const std::uint8_t* from = sheet.Pixels.data() + static_cast<std::size_t>(fromY) * line;
        std::uint8_t* to = map.Pixel(left, top + y);
        for (int x = 0; x < width; ++x, to += kPixel) {
            const int fromX = cell.Left + x * cell.Width / width;
            if (fromX >= 0 && fromX < sheet.Width) {
                std::memcpy(to, from + static_cast<std::size_t>(fromX) * kPixel, kPixel);
            }
        }
    }
}

std::optional<FontMap> MapOfSheet(const LetterSheet& sheet, int columns, int rows) {
    const int width = sheet.Width / columns;
    const int height = sheet.Height / rows;
    if (width == 0 || height == 0) {
        return std::nullopt;
    }
    FontMap map;
    for (int code = 0; code < kFontCodes; ++code) {
        DrawCell(map, code, sheet, {code % columns * width, code / columns * height, width, height});
    }
    return map;
}

}  // namespace lv
