// tests/foundry/fonts/font_files.h
//
// Fonts and archives made by hand, byte by byte, and what a map shows.

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "foundation/text.h"
#include "foundry/fonts/font_map.h"
#include "foundry/fonts/palette.h"
#include "tests/catalogs/packed_files.h"
#include "tests/support/damage.h"

namespace lv {

inline Text Zeros(std::size_t count) {
    return Text(count, '\0');
}

/// Color i is (i, 255 - i, i / 2).
inline Text PaletteBytes() {
    Text bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += {static_cast<char>(i), static_cast<char>(255 - i), static_cast<char>(i / 2)};
    }
    return bytes;
}

inline Palette TestPalette() {
    return *ReadPalette(PaletteBytes());
}

/// A raw picture in which every pixel of a letter is the letter's code, modulo 256.
inline Text LetterPixels(std::size_t columns, std::size_t rows, std::size_t cell = 8) {
    Text bytes;
    for (std::size_t y = 0; y < rows * cell; ++y) {
        for (std::size_t x = 0; x < columns * cell; ++x) {
            bytes += static_cast<char>(y / cell * columns + x / cell);
        }
    }
    return bytes;
}

/// Each pixel in a run of one, which any byte can be.
inline Text PcxRuns(TextView pixels) {
    Text data;
    for (const char pixel : pixels) {
        data += '\xC1';
        data += pixel;
    }
    return data;
}

inline Text PcxFile(std::uint32_t width, std::uint32_t height, std::uint32_t lineBytes, const Text& data,
                    const Text& palette = PaletteBytes()) {
    return Text("\x0A\x05\x01\x08", 4) + Zeros(4) + Bytes16(width - 1) + Bytes16(height - 1) + Zeros(53) + "\x01" +
           Bytes16(lineBytes) + Zeros(60) + data + "\x0C" + palette;
}

inline Text M8File(std::uint32_t width, std::uint32_t height, const Text& pixels, std::uint32_t offset = 1040) {
    return Bytes32(2) + Field("font", 32) + Bytes32(width) + Zeros(60) + Bytes32(height) + Zeros(60) + Bytes32(offset) +
           Zeros(60) + Zeros(32) + PaletteBytes() + Zeros(12) + pixels;
}

inline Text M32File(std::uint32_t width, std::uint32_t height, const Text& pixels, std::uint32_t offset = 968) {
    return Bytes32(4) + Zeros(512) + Bytes32(width) + Zeros(60) + Bytes32(height) + Zeros(60) + Bytes32(offset) +
           Zeros(60) + Zeros(260) + pixels;
}

struct Lump {
    Text Name;
    Text Content;
    char Type = 68;
    char Compression = 0;
};

inline Text WadFile(const std::vector<Lump>& lumps, const Text& magic = "WAD2") {
    Text data;
    Text directory;
    for (const Lump& lump : lumps) {
        const auto length = static_cast<std::uint32_t>(lump.Content.size());
        directory += Bytes32(static_cast<std::uint32_t>(12 + data.size())) + Bytes32(length) + Bytes32(length) +
                     Text{lump.Type, lump.Compression, 0, 0} + Field(lump.Name, 16);
        data += lump.Content;
    }
    return magic + Bytes32(static_cast<std::uint32_t>(lumps.size())) +
           Bytes32(static_cast<std::uint32_t>(12 + data.size())) + data + directory;
}

/// A sheet 256 wide of `rows` rows. Letter c begins at pixel c * width, and its pixels are c.
inline Text QfontLump(std::uint32_t width, std::uint32_t rowHeight, std::uint32_t sheetRows, int colors = 256) {
    Text letters;
    Text pixels(std::size_t{256} * rowHeight * sheetRows, '\0');
    const std::uint32_t inRow = 256 / width;
    for (std::uint32_t c = 0; c < 256; ++c) {
        const std::uint32_t start = c / inRow * rowHeight * 256 + c % inRow * width;
        const bool fits = c / inRow < sheetRows;
        letters += fits ? Bytes16(start) + Bytes16(width) : Zeros(4);
        for (std::uint32_t y = 0; fits && y < rowHeight; ++y) {
            std::fill_n(pixels.begin() + start + y * 256, width, static_cast<char>(c));
        }
    }
    return Bytes32(16) + Bytes32(rowHeight * sheetRows) + Bytes32(sheetRows) + Bytes32(rowHeight) + letters + pixels +
           Bytes16(static_cast<std::uint32_t>(colors)) + PaletteBytes();
}

/// Red, green, blue, opacity.
using Pixel = std::array<int, 4>;

inline Pixel PixelOf(const FontMap& map, int code, int x = 8, int y = 8) {
    const std::uint8_t* at = map.Pixel(code % 15 * 16 + x, code / 15 * 16 + y);
    return {at[0], at[1], at[2], at[3]};
}

inline bool IsEmpty(const FontMap& map, int code) {
    for (int i = 0; i < 256; ++i) {
        if (PixelOf(map, code, i % 16, i / 16)[3] != 0) {
            return false;
        }
    }
    return true;
}

/// What a reader of fonts owes for any bytes: a whole map, or none.
inline void ExpectWholeOrNone(const std::optional<FontMap>& map) {
    if (map) {
        EXPECT_EQ(map->Pixels.size(), 276480U);
    }
}

}  // namespace lv
