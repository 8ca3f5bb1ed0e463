#include "foundry/fonts/raw_font.h"

#include "foundry/fonts/letter_sheet.h"

namespace lv {

namespace {

constexpr std::uint32_t kHeight = 128;
constexpr int kTransparent = 0;
constexpr int kRows = 16;

std::optional<FontMap> ReadRaw(TextView bytes, std::uint32_t width, int columns, const Palette& palette) {
    if (bytes.size() != std::size_t{width} * kHeight) {
        return std::nullopt;
    }
    const auto sheet = ColorSheet(bytes, width, kHeight, palette, kTransparent);
    return sheet ? MapOfSheet(*sheet, columns, kRows) : std::nullopt;
}

}  // namespace

std::optional<FontMap> ReadQuakeFont(TextView bytes, const Palette& palette) {
    return ReadRaw(bytes, 128, 16, palette);
}

std::optional<FontMap> ReadHexen2Font(TextView bytes, const Palette& palette) {
    return ReadRaw(bytes, 256, 32, palette);
}

}  // namespace lv
