// catalogs/pak_directory.h
//
// The directory of an archive in id Software's PAK format: 4 bytes magic ("PACK", Sin's "SPAK"), 4 bytes offset and
// 4 bytes length of the directory, little-endian; the directory is an array of entries. Read for map names an entry is
// 64 bytes of text, whatever its fields. The same stride serves a Sin archive, on purpose.

#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

constexpr std::size_t kPakHeaderSize = 12;
constexpr std::size_t kPakEntrySize = 64;

/// More entries than any game reads, whatever a header claims; what stands behind them is not looked at.
constexpr std::uint32_t kMostMapEntries = 65536;

/// Where the directory lies. Nothing if the header is short or its magic another.
struct PakHeader {
    std::uint32_t Offset = 0;
    std::uint32_t Length = 0;
};
std::optional<PakHeader> ReadPakHeader(TextView header, TextView magic);

/// Behind the name of an entry stand 4 bytes offset and 4 bytes length of its file, little-endian.
struct PakFormat {
    TextView Magic;
    std::size_t NameSize;
    std::size_t EntrySize;
};

inline constexpr PakFormat kPakFormats[] = {
    {"PACK", 56, kPakEntrySize},
    {"SPAK", 120, 128},
};

/// That of the header; none if it is short or its magic another.
const PakFormat* FormatOfPak(TextView header);

/// Where the file of a whole entry lies, as the entry has it.
struct PakPlace {
    std::uint32_t Offset = 0;
    std::uint32_t Length = 0;
};
PakPlace PlaceOfEntry(TextView entry, const PakFormat& format);

/// How many entries the length stands for: rounded to the nearest whole number, a half to the even one.
std::uint32_t PakEntryCount(std::uint32_t length);

/// The map that an entry names: what stands between "maps/" and ".bsp", in this case. Nothing for other entries, for
/// the models "b_...", and for names that cannot stand in a list.
std::optional<Text> MapNameOfEntry(TextView entry);

/// The maps of an archive in the directory's order, read in blocks. Whatever the header says, no more is read than the
/// file holds and kMostMapEntries take; a read that fails ends the list, as `most` names do. A damaged archive costs
/// its own entries and nothing else.
std::vector<Text> PakMapNames(RandomAccessFile& archive, TextView magic, std::size_t most = kMostMapEntries);

}  // namespace lv
