#include "foundry/fonts/palette.h"

#include "foundation/stored_numbers.h"

namespace lv {

std::optional<Palette> ReadPalette(TextView bytes) {
    if (bytes.size() < kPaletteSize) {
        return std::nullopt;
    }
    Palette palette;
    for (std::size_t i = 0; i < palette.size(); ++i) {
        palette[i] = {ByteAt(bytes, i * 3), ByteAt(bytes, i * 3 + 1), ByteAt(bytes, i * 3 + 2)};
    }
    return palette;
}

}  // namespace lv
