#include "foundry/fonts/qfont.h"

#include <algorithm>

#include "foundation/stored_numbers.h"
#include "foundry/fonts/letter_sheet.h"

namespace lv {

namespace {

constexpr std::size_t kHeightAt = 4;
constexpr std::size_t kRowHeightAt = 12;
constexpr std::size_t kLettersAt = 16;
constexpr std::size_t kPixelsAt = 1040;
constexpr std::size_t kColorCount = 2;  // bytes of the number in front of the palette
constexpr std::size_t kPadding = 64;    // behind the palette of a sheet that is 16 letters wide
constexpr std::uint32_t kUsualWidth = 256;
constexpr int kTransparent = 255;

std::uint32_t SheetWidth(TextView lump, std::uint32_t height) {
    const std::uint64_t width = std::uint64_t{Number32At(lump, 0)} * 16;
    const bool known =
        width <= kLargestSheet && kPixelsAt + height * width + kColorCount + kPaletteSize + kPadding == lump.size();
    return known ? static_cast<std::uint32_t>(width) : kUsualWidth;
}

std::optional<LetterSheet> ReadSheet(TextView lump) {
    const std::uint32_t height = Number32At(lump, kHeightAt);
    if (height > kLargestSheet) {
        return std::nullopt;
    }
    const std::uint32_t width = SheetWidth(lump, height);
    const std::size_t pixels = std::size_t{width} * height;
    if (!LiesWithin(kPixelsAt, pixels + kColorCount + kPaletteSize, lump.size())) {
        return std::nullopt;
    }
    const std::uint16_t colors = Number16At(lump, kPixelsAt + pixels);
    const auto palette = ReadPalette(lump.substr(kPixelsAt + pixels + kColorCount));
    if ((colors != 256 && colors != 768) || !palette) {
        return std::nullopt;
    }
    return ColorSheet(lump.substr(kPixelsAt, pixels), width, height, *palette, kTransparent);
}

int Fitted(int pixels, int rowHeight) {
    const int wanted = rowHeight <= kFontCell / 2 ? pixels * 2
                       : rowHeight > kFontCell    ? pixels * kFontCell / rowHeight
                                                  : pixels;
    return std::clamp(wanted, 1, kFontCell);
}

}  // namespace

std::optional<FontMap> ReadQfont(TextView lump) {
    const std::uint32_t rowHeight = Number32At(lump, kRowHeightAt);
    const auto sheet = ReadSheet(lump);
    if (!sheet || rowHeight == 0 || rowHeight > kUsualWidth) {
        return std::nullopt;
    }
    FontMap map;
    const int rows = static_cast<int>(rowHeight);
    for (int code = 0; code < kFontCodes; ++code) {
        const std::size_t at = kLettersAt + static_cast<std::size_t>(code) * 4;
        const int start = Number16At(lump, at);
        const int width = Number16At(lump, at + 2);
        if (width == 0 || width > sheet->Width) {
            continue;
        }
        DrawCell(map, code, *sheet, {start % sheet->Width, start / sheet->Width, width, rows}, Fitted(width, rows),
                 Fitted(rows, rows));
    }
    return map;
}

}  // namespace lv
