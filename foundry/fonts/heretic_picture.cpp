#include "foundry/fonts/heretic_picture.h"

#include "foundation/stored_numbers.h"
#include "foundry/fonts/letter_sheet.h"

namespace lv {

namespace {

/// Where a format keeps what of the first mip level is needed.
struct PictureFormat {
    std::uint32_t Version;
    std::size_t HeaderSize;
    std::size_t WidthAt;
    std::size_t HeightAt;
    std::size_t OffsetAt;
    std::size_t PixelSize;  // bytes
};

constexpr PictureFormat kM8 = {2, 1040, 36, 100, 164, 1};
constexpr PictureFormat kM32 = {4, 968, 516, 580, 644, 4};
constexpr std::size_t kM8PaletteAt = 260;

struct FirstLevel {
    std::uint32_t Width = 0;
    std::uint32_t Height = 0;
    TextView Pixels;
};

std::optional<FirstLevel> FindFirstLevel(TextView bytes, const PictureFormat& format) {
    if (bytes.size() < format.HeaderSize || Number32At(bytes, 0) != format.Version) {
        return std::nullopt;
    }
    FirstLevel level{Number32At(bytes, format.WidthAt), Number32At(bytes, format.HeightAt), {}};
    const std::uint32_t offset = Number32At(bytes, format.OffsetAt);
    if (level.Width > kLargestSheet || level.Height > kLargestSheet || offset < format.HeaderSize) {
        return std::nullopt;
    }
    const std::uint64_t length = std::uint64_t{level.Width} * level.Height * format.PixelSize;
    if (length == 0 || !LiesWithin(offset, length, bytes.size())) {
        return std::nullopt;
    }
    level.Pixels = bytes.substr(offset, static_cast<std::size_t>(length));
    return level;
}

std::optional<LetterSheet> ReadM8(TextView bytes) {
    const auto level = FindFirstLevel(bytes, kM8);
    const auto palette = level ? ReadPalette(bytes.substr(kM8PaletteAt)) : std::nullopt;
    return palette ? ColorSheet(level->Pixels, level->Width, level->Height, *palette, kNoTransparentColor)
                   : std::nullopt;
}

std::optional<LetterSheet> ReadM32(TextView bytes) {
    const auto level = FindFirstLevel(bytes, kM32);
    if (!level) {
        return std::nullopt;
    }
    return LetterSheet{
        static_cast<int>(level->Width), static_cast<int>(level->Height), {level->Pixels.begin(), level->Pixels.end()}};
}

}  // namespace

std::optional<FontMap> ReadHereticFont(TextView bytes) {
    const auto sheet = Number32At(bytes, 0) == kM8.Version ? ReadM8(bytes) : ReadM32(bytes);
    return sheet ? MapOfSheet(*sheet, 16, 16) : std::nullopt;
}

}  // namespace lv
