// catalogs/archive_entries.h
//
// What lies in an archive, and a file out of it: id Software's PAK, Sin's, and the zip kind (".pk3").

#pragma once

#include <optional>
#include <vector>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

/// The largest directory that is read, in bytes and in entries.
constexpr std::uint32_t kLargestArchiveDirectory = 4U << 20U;
constexpr std::size_t kMostEntriesOfArchive = 65536;

enum class Packing {
    None,
    Zip,       // behind a header of its own, whose length only that tells
    Deflated,  // the same
    Unknown,   // by a method that is not read
};

struct ArchiveEntry {
    Text Name;  // as it is spelled there, "gfx/palette.lmp"
    std::uint32_t Offset = 0;
    std::uint32_t Packed = 0;  // bytes in the archive
    std::uint32_t Length = 0;  // bytes of the file
    Packing How = Packing::None;
};

/// In the directory's order. Nothing for what is no archive, or whose directory lies outside of it or is too large.
std::optional<std::vector<ArchiveEntry>> ReadArchiveEntries(RandomAccessFile& archive);

/// The file. Nothing if it lies outside of the archive, is damaged, or is longer than `most` bytes.
std::optional<Text> ReadArchiveEntry(RandomAccessFile& archive, const ArchiveEntry& entry, std::uint32_t most);

/// All of the stretch, or nothing.
std::optional<Text> ReadStretch(RandomAccessFile& archive, std::uint64_t at, std::size_t length);

}  // namespace lv
