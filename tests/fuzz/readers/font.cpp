// The first byte chooses the format, the rest is the file.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "foundry/fonts/heretic_picture.h"
#include "foundry/fonts/pak_file.h"
#include "foundry/fonts/pcx.h"
#include "foundry/fonts/player_colors.h"
#include "foundry/fonts/qfont.h"
#include "foundry/fonts/raw_font.h"
#include "foundry/fonts/wad.h"
#include "tests/fuzz/readers.h"

namespace {

/// A file of exactly these bytes, in which nobody asks for more than there are.
class WholeFile : public lv::RandomAccessFile {
  public:
    explicit WholeFile(lv::TextView bytes) : bytes_(bytes) {}
    [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }
    lv::Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        constexpr std::size_t kHeader = 12;
        if (count > bytes_.size() && count > kHeader) {
            std::fprintf(stderr, "%zu bytes asked for of %zu\n", count, bytes_.size());
            std::abort();
        }
        return offset >= bytes_.size() ? std::string()
                                       : std::string(bytes_.substr(static_cast<std::size_t>(offset), count));
    }

  private:
    lv::TextView bytes_;
};

lv::Palette GreyPalette() {
    lv::Palette palette;
    for (std::size_t i = 0; i < palette.size(); ++i) {
        const auto light = static_cast<std::uint8_t>(i);
        palette[i] = {light, light, light};
    }
    return palette;
}

void Check(const std::optional<lv::FontMap>& map) {
    if (map && map->Pixels.size() != lv::FontMap().Pixels.size()) {
        std::fprintf(stderr, "a map of %zu bytes\n", map->Pixels.size());
        std::abort();
    }
}

void ReadRaw(lv::TextView bytes) {
    Check(lv::ReadQuakeFont(bytes, GreyPalette()));
    Check(lv::ReadHexen2Font(bytes, GreyPalette()));
}

void ReadColors(lv::TextView bytes) {
    const auto palette = lv::ReadPalette(bytes);
    if (palette) {
        lv::QuakeColors(*palette);
        lv::Hexen2Colors(*palette, bytes.substr(lv::kPaletteSize));
    }
}

void ReadPcx(lv::TextView bytes) {
    const auto palette = lv::ReadPcxPalette(bytes);
    Check(lv::ReadPcxFont(bytes, palette.value_or(GreyPalette())));
}

void ReadHeretic(lv::TextView bytes) {
    Check(lv::ReadHereticFont(bytes));
}

void ReadWad(lv::TextView bytes) {
    for (const lv::TextView name : {"CONCHARS", "FONT0"}) {
        const auto lump = lv::FindWadLump(bytes, name);
        if (lump && (lump->data() < bytes.data() || lump->size() > bytes.size())) {
            std::abort();
        }
        if (lump) {
            ReadRaw(*lump);
            Check(lv::ReadQfont(*lump));
        }
    }
}

void ReadQfont(lv::TextView bytes) {
    Check(lv::ReadQfont(bytes));
}

void ReadPak(lv::TextView bytes) {
    constexpr std::uint32_t kMost = 1000;
    WholeFile archive(bytes);
    for (const lv::TextView name : {"gfx.wad", "a"}) {
        const auto content = lv::ReadFromPak(archive, name, kMost);
        if (content && content->size() > kMost) {
            std::abort();
        }
    }
}

constexpr std::array kReaders = {ReadRaw, ReadColors, ReadPcx, ReadHeretic, ReadWad, ReadQfont, ReadPak};

}  // namespace

namespace lv {

void FuzzFont(TextView input) {
    if (!input.empty()) {
        kReaders[TakeChoice(input, kReaders.size())](input);
    }
}

}  // namespace lv
