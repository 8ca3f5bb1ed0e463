// tests/catalogs/packed_files.h
//
// Archives with files in them, made by hand, byte by byte.

#pragma once

#include <cstdint>
#include <vector>

#include "foundation/text.h"

namespace lv {

inline Text Bytes16(std::uint32_t number) {
    return {static_cast<char>(number & 0xFF), static_cast<char>(number >> 8U & 0xFF)};
}

inline Text Bytes32(std::uint32_t number) {
    return Bytes16(number & 0xFFFF) + Bytes16(number >> 16U);
}

inline Text Field(Text name, std::size_t width) {
    name.resize(width, '\0');
    return name;
}

struct Packed {
    Text Name;
    Text Content;
};

inline Text PackedFiles(const std::vector<Packed>& files, const Text& magic = "PACK") {
    const std::size_t field = magic == "SPAK" ? 120 : 56;
    Text data;
    Text directory;
    for (const Packed& file : files) {
        directory += Field(file.Name, field) + Bytes32(static_cast<std::uint32_t>(12 + data.size())) +
                     Bytes32(static_cast<std::uint32_t>(file.Content.size()));
        data += file.Content;
    }
    return magic + Bytes32(static_cast<std::uint32_t>(12 + data.size())) +
           Bytes32(static_cast<std::uint32_t>(directory.size())) + data + directory;
}

/// A file as an archive of the zip kind has it: its bytes may be packed, by method 8.
struct Zipped {
    Text Name;
    Text Stored;
    std::uint32_t Length = 0;
    std::uint32_t Method = 0;
    std::uint32_t Flags = 0;
};

inline Text ZippedFiles(const std::vector<Zipped>& files, const Text& comment = "") {
    Text data;
    Text directory;
    for (const Zipped& file : files) {
        const Text facts = Bytes16(20) + Bytes16(file.Flags) + Bytes16(file.Method) + Bytes32(0) + Bytes32(0) +
                           Bytes32(static_cast<std::uint32_t>(file.Stored.size())) + Bytes32(file.Length) +
                           Bytes16(static_cast<std::uint32_t>(file.Name.size()));
        directory += Text("PK\1\2", 4) + Bytes16(20) + facts + Bytes16(3) + Bytes16(0) + Text(8, '\0') +
                     Bytes32(static_cast<std::uint32_t>(data.size())) + file.Name + "new";
        // The two lengths behind the facts differ from the directory's.
        data += Text("PK\3\4", 4) + facts + Bytes16(5) + file.Name + "extra" + file.Stored;
    }
    const auto count = static_cast<std::uint32_t>(files.size());
    return data + directory + Text("PK\5\6", 4) + Bytes32(0) + Bytes16(count) + Bytes16(count) +
           Bytes32(static_cast<std::uint32_t>(directory.size())) + Bytes32(static_cast<std::uint32_t>(data.size())) +
           Bytes16(static_cast<std::uint32_t>(comment.size())) + comment;
}

inline Zipped StoredFile(const Text& name, const Text& content) {
    return {name, content, static_cast<std::uint32_t>(content.size())};
}

}  // namespace lv
