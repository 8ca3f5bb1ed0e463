#include "foundry/fonts/wad.h"

#include "foundation/stored_numbers.h"

namespace lv {

namespace {

constexpr std::size_t kHeaderSize = 12;
constexpr std::size_t kEntrySize = 32;
constexpr std::size_t kCompressionAt = 13;
constexpr std::size_t kNameAt = 16;
constexpr std::size_t kNameField = 16;
constexpr std::uint32_t kMostLumps = 65536;

}  // namespace

std::optional<TextView> FindWadLump(TextView wad, TextView name) {
    if (wad.size() < kHeaderSize || !(wad.starts_with("WAD2") || wad.starts_with("WAD3"))) {
        return std::nullopt;
    }
    const std::uint32_t count = Number32At(wad, 4);
    const std::uint32_t directory = Number32At(wad, 8);
    if (count > kMostLumps || !LiesWithin(directory, std::uint64_t{count} * kEntrySize, wad.size())) {
        return std::nullopt;
    }
    for (std::uint32_t i = 0; i < count; ++i) {
        const TextView entry = wad.substr(directory + std::size_t{i} * kEntrySize, kEntrySize);
        const std::uint32_t at = Number32At(entry, 0);
        const std::uint32_t length = Number32At(entry, 4);
        const bool whole = ByteAt(entry, kCompressionAt) == 0 && LiesWithin(at, length, wad.size());
        if (whole && SameText(NameAt(entry, kNameAt, kNameField), name)) {
            return wad.substr(at, length);
        }
    }
    return std::nullopt;
}

}  // namespace lv
