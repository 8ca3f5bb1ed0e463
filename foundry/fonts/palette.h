// foundry/fonts/palette.h
//
// A game's 256 colours: 768 bytes, red, green and blue of each.

#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "foundation/text.h"

namespace lv {

constexpr std::size_t kPaletteSize = 768;

struct PaletteColor {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;
};

using Palette = std::array<PaletteColor, 256>;

/// The first 768 bytes as a palette; nothing if there are fewer.
std::optional<Palette> ReadPalette(TextView bytes);

}  // namespace lv
