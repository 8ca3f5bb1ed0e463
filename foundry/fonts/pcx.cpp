#include "foundry/fonts/pcx.h"

#include <algorithm>

#include "foundation/stored_numbers.h"
#include "foundry/fonts/letter_sheet.h"

namespace lv {

namespace {

constexpr std::size_t kHeaderSize = 128;
constexpr std::uint32_t kWidestPicture = 640;
constexpr std::uint32_t kHighestPicture = 480;
constexpr int kTransparent = 255;
constexpr std::uint8_t kRunMark = 0xC0;  // both top bits; the others are the run's length

bool IsPcx(TextView bytes) {
    return bytes.size() >= kHeaderSize + kPaletteSize && ByteAt(bytes, 0) == 10 && ByteAt(bytes, 1) == 5 &&
           ByteAt(bytes, 2) == 1 && ByteAt(bytes, 3) == 8 && ByteAt(bytes, 65) == 1;
}

/// Takes one line's bytes off the data; a run ends with its line. False if the data ends first.
bool TakeLine(TextView& data, std::size_t length, Text& line) {
    line.clear();
    while (line.size() < length) {
        if (data.empty()) {
            return false;
        }
        std::size_t run = 1;
        const std::uint8_t first = ByteAt(data, 0);
        if ((first & kRunMark) == kRunMark) {
            data.remove_prefix(1);
            run = first & ~kRunMark & 0xFFU;
        }
        if (data.empty()) {
            return false;
        }
        line.append(std::min(run, length - line.size()), data[0]);
        data.remove_prefix(1);
    }
    return true;
}

}  // namespace

std::optional<Palette> ReadPcxPalette(TextView bytes) {
    return IsPcx(bytes) ? ReadPalette(bytes.substr(bytes.size() - kPaletteSize)) : std::nullopt;
}

std::optional<FontMap> ReadPcxFont(TextView bytes, const Palette& palette) {
    if (!IsPcx(bytes)) {
        return std::nullopt;
    }
    const std::uint32_t width = Number16At(bytes, 8) + 1U;
    const std::uint32_t height = Number16At(bytes, 10) + 1U;
    const std::size_t lineBytes = Number16At(bytes, 66);
    if (width > kWidestPicture || height > kHighestPicture || lineBytes < width ||
        lineBytes > std::size_t{2} * kWidestPicture) {
        return std::nullopt;
    }
    TextView data = bytes.substr(kHeaderSize, bytes.size() - kHeaderSize - kPaletteSize);
    Text indexes;
    Text line;
    for (std::uint32_t y = 0; y < height; ++y) {
        if (!TakeLine(data, lineBytes, line)) {
            return std::nullopt;
        }
        indexes.append(line, 0, width);
    }
    const auto sheet = ColorSheet(indexes, width, height, palette, kTransparent);
    return sheet ? MapOfSheet(*sheet, 16, 16) : std::nullopt;
}

}  // namespace lv
