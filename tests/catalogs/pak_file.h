// tests/catalogs/pak_file.h
//
// Archives made by hand, byte by byte.

#pragma once

#include <cstdint>
#include <vector>

#include "foundation/text.h"

namespace lv {

inline Text LittleEndian(std::uint32_t number) {
    Text bytes;
    for (int i = 0; i < 4; ++i) {
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
    }
    return bytes;
}

/// 56 bytes of path, in Sin's 120, zero-padded; offset and length of the data.
inline Text PakEntry(const Text& path, std::size_t pathSize = 56) {
    Text entry = path;
    entry.resize(pathSize, '\0');
    return entry + LittleEndian(12) + LittleEndian(4);
}

/// Magic, offset and length; 4 bytes of data; the directory.
inline Text PakFile(const std::vector<Text>& paths, const Text& magic = "PACK", std::size_t pathSize = 56) {
    Text directory;
    for (const Text& path : paths) {
        directory += PakEntry(path, pathSize);
    }
    return magic + LittleEndian(16) + LittleEndian(static_cast<std::uint32_t>(directory.size())) + "DATA" + directory;
}

inline Text SinFile(const std::vector<Text>& paths) {
    return PakFile(paths, "SPAK", 120);
}

}  // namespace lv
