#include "catalogs/archive_entries.h"

#include "catalogs/inflate.h"
#include "catalogs/pak_directory.h"
#include "catalogs/zip_directory.h"
#include "foundation/stored_numbers.h"

namespace lv {

namespace {

std::optional<std::vector<ArchiveEntry>> ReadPakEntries(RandomAccessFile& archive, const PakFormat& format,
                                                        const PakHeader& header) {
    if (header.Length > kLargestArchiveDirectory || header.Length / format.EntrySize > kMostEntriesOfArchive) {
        return std::nullopt;
    }
    const auto directory = ReadStretch(archive, header.Offset, header.Length);
    if (!directory) {
        return std::nullopt;
    }
    std::vector<ArchiveEntry> entries;
    entries.reserve(directory->size() / format.EntrySize);
    for (std::size_t at = 0; LiesWithin(at, format.EntrySize, directory->size()); at += format.EntrySize) {
        const TextView entry = TextView(*directory).substr(at, format.EntrySize);
        const PakPlace place = PlaceOfEntry(entry, format);
        entries.push_back(
            {Text(NameAt(entry, 0, format.NameSize)), place.Offset, place.Length, place.Length, Packing::None});
    }
    return entries;
}

}  // namespace

std::optional<Text> ReadStretch(RandomAccessFile& archive, std::uint64_t at, std::size_t length) {
    if (!LiesWithin(at, length, archive.Size())) {
        return std::nullopt;
    }
    auto read = archive.Read(at, length);
    if (!read.Ok() || read.Value.size() != length) {
        return std::nullopt;
    }
    return std::move(read.Value);
}

std::optional<std::vector<ArchiveEntry>> ReadArchiveEntries(RandomAccessFile& archive) {
    const Text head = archive.Read(0, kPakHeaderSize).Value;
    const PakFormat* const format = FormatOfPak(head);
    return format == nullptr ? ReadZipEntries(archive)
                             : ReadPakEntries(archive, *format, *ReadPakHeader(head, format->Magic));
}

std::optional<Text> ReadArchiveEntry(RandomAccessFile& archive, const ArchiveEntry& entry, std::uint32_t most) {
    if (entry.Length > most || entry.How == Packing::Unknown) {
        return std::nullopt;
    }
    if (entry.How == Packing::None) {
        return ReadStretch(archive, entry.Offset, entry.Length);
    }
    constexpr std::uint32_t kPackedInVain = 1024;  // what cannot be packed grows a little
    if (entry.Packed > std::uint64_t{entry.Length} + entry.Length / 1024 + kPackedInVain) {
        return std::nullopt;
    }
    const auto at = StartOfZipEntry(archive, entry.Offset);
    const auto packed = at ? ReadStretch(archive, *at, entry.Packed) : std::nullopt;
    auto file = packed && entry.How == Packing::Deflated ? Inflate(*packed, entry.Length) : packed;
    return file && file->size() == entry.Length ? file : std::nullopt;
}

}  // namespace lv
