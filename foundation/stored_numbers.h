// foundation/stored_numbers.h
//
// Little-endian numbers of a stranger's file. What would lie outside of the bytes is 0.

#pragma once

#include <cstdint>

#include "foundation/text.h"

namespace lv {

constexpr std::uint8_t ByteAt(TextView bytes, std::uint64_t at) {
    return at < bytes.size() ? static_cast<std::uint8_t>(bytes[static_cast<std::size_t>(at)]) : std::uint8_t{0};
}

constexpr std::uint16_t Number16At(TextView bytes, std::uint64_t at) {
    return static_cast<std::uint16_t>(ByteAt(bytes, at) | ByteAt(bytes, at + 1) << 8);
}

constexpr std::uint32_t Number32At(TextView bytes, std::uint64_t at) {
    return Number16At(bytes, at) | static_cast<std::uint32_t>(Number16At(bytes, at + 2)) << 16;
}

/// Whether the stretch lies within the bytes, whatever the two numbers are.
constexpr bool LiesWithin(std::uint64_t at, std::uint64_t length, std::uint64_t all) {
    return at <= all && length <= all - at;
}

/// A zero-padded name; one that fills its field has no zero.
inline TextView NameAt(TextView bytes, std::size_t at, std::size_t field) {
    const TextView name = at < bytes.size() ? bytes.substr(at, field) : TextView();
    return name.substr(0, name.find('\0'));
}

}  // namespace lv
