#include "foundry/fonts/player_colors.h"

#include "foundation/stored_numbers.h"

namespace lv {

namespace {

constexpr std::size_t kColorsInARow = 16;  // of the palette
constexpr std::size_t kShownOfARow = 8;

constexpr std::size_t kRowSize = 256;  // of the table: an index for each of the palette
constexpr std::size_t kRowsOfABlock = 14;
constexpr std::size_t kBlockAt = kRowSize + 2 * kRowsOfABlock * kRowSize;  // the third block
constexpr std::size_t kBlockSize = kRowsOfABlock * kRowSize;
constexpr std::size_t kMostHexen2Colors = 10;
constexpr std::uint8_t kNotRecolored = 255;

Color ColorOf(const PaletteColor& color) {
    return static_cast<Color>(color.Red) | static_cast<Color>(color.Green) << 8U |
           static_cast<Color>(color.Blue) << 16U;
}

}  // namespace

PlayerColorList QuakeColors(const Palette& palette) {
    PlayerColorList colors{};
    for (std::size_t row = 0; row < colors.size(); ++row) {
        colors[row] = ColorOf(palette[row * kColorsInARow + kShownOfARow]);
    }
    return colors;
}

std::optional<PlayerColorList> Hexen2Colors(const Palette& palette, TextView table) {
    if (table.size() < kBlockAt + kBlockSize) {
        return std::nullopt;
    }
    const TextView block = table.substr(kBlockAt, kBlockSize);
    std::size_t shown = kRowSize;  // the last index that the shirt recolours
    while (shown > 0 && ByteAt(block, shown - 1) == kNotRecolored) {
        --shown;
    }
    if (shown == 0) {
        return std::nullopt;
    }
    --shown;
    PlayerColorList colors{};
    for (std::size_t color = 0; color < colors.size(); ++color) {
        const bool own = color == 0 || color > kMostHexen2Colors;
        const std::size_t row = own ? 0 : 1 + color;
        colors[color] = ColorOf(palette[ByteAt(block, row * kRowSize + shown)]);
    }
    return colors;
}

}  // namespace lv
