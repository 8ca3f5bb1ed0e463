#include "platform/windows/icon_file.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace lv {

namespace {

constexpr int kLargest = 256;  // which its byte says as 0
constexpr std::uint32_t kHeadSize = 6;
constexpr std::uint32_t kEntrySize = 16;
constexpr std::uint16_t kIsIcon = 1;
constexpr std::uint16_t kPlanes = 1;
constexpr std::uint16_t kBitsAPixel = 32;
constexpr unsigned kByteBits = 8;

template <class Number>
void Append(std::string& bytes, Number number) {
    for (unsigned i = 0; i < sizeof(Number); ++i) {
        bytes += static_cast<char>(static_cast<unsigned char>(number >> (i * kByteBits)));
    }
}

}  // namespace

std::string IconFileOf(std::span<const ShortcutPicture> pictures) {
    std::vector<ShortcutPicture> fitting(pictures.begin(), pictures.end());
    std::erase_if(fitting, [](const ShortcutPicture& each) { return each.Height < 1 || each.Height > kLargest; });
    std::string bytes;
    Append<std::uint16_t>(bytes, 0);
    Append<std::uint16_t>(bytes, kIsIcon);
    Append(bytes, static_cast<std::uint16_t>(fitting.size()));
    auto offset = kHeadSize + kEntrySize * static_cast<std::uint32_t>(fitting.size());
    for (const ShortcutPicture& picture : fitting) {
        const auto size = static_cast<std::uint32_t>(picture.Png.size());
        bytes.append(2, static_cast<char>(picture.Height % kLargest));  // width and height
        bytes.append(2, '\0');                                          // no palette
        Append<std::uint16_t>(bytes, kPlanes);
        Append<std::uint16_t>(bytes, kBitsAPixel);
        Append(bytes, size);
        Append(bytes, offset);
        offset += size;
    }
    for (const ShortcutPicture& picture : fitting) {
        bytes += picture.Png;
    }
    return bytes;
}

}  // namespace lv
