// tests/support/damage.h
//
// A file damaged in every way that one byte can be.

#pragma once

#include <cstddef>
#include <vector>

#include "foundation/text.h"

namespace lv {

/// Runs `read` on every beginning of the bytes, and on them with each byte changed, but of the `plain` ones at the end
/// (pixels, colours) only with some. The bytes lie in memory alone, so that a sanitizer sees a read beside them.
template <class Read>
void ForEachDamage(const Text& bytes, std::size_t plain, Read read) {
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const std::vector<char> cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
        read(TextView(cut.data(), cut.size()));
    }
    const std::size_t told = bytes.size() - plain;
    for (std::size_t at = 0; at < bytes.size(); at += at < told ? 1 : 97) {
        for (const int change : {0x01, 0x80, 0xFF}) {
            std::vector<char> changed(bytes.begin(), bytes.end());
            changed[at] = static_cast<char>(changed[at] ^ change);
            read(TextView(changed.data(), changed.size()));
        }
    }
}

}  // namespace lv
