#include "foundry/fonts/pak_file.h"

#include "catalogs/pak_directory.h"
#include "foundation/stored_numbers.h"

namespace lv {

namespace {

/// All of the stretch, or nothing.
std::optional<Text> ReadWhole(RandomAccessFile& archive, std::uint64_t at, std::size_t length) {
    if (!LiesWithin(at, length, archive.Size())) {
        return std::nullopt;
    }
    auto read = archive.Read(at, length);
    if (!read.Ok() || read.Value.size() != length) {
        return std::nullopt;
    }
    return std::move(read.Value);
}

std::optional<TextView> FindEntry(TextView directory, const PakFormat& format, TextView name) {
    for (std::size_t at = 0; LiesWithin(at, format.EntrySize, directory.size()); at += format.EntrySize) {
        if (SameText(NameAt(directory, at, format.NameSize), name)) {
            return directory.substr(at, format.EntrySize);
        }
    }
    return std::nullopt;
}

std::optional<Text> ReadEntry(RandomAccessFile& archive, const PakFormat& format, const PakHeader& header,
                              TextView name, std::uint32_t most) {
    if (header.Length > kLargestPakDirectory || header.Length / format.EntrySize > kMostPakEntries) {
        return std::nullopt;
    }
    const auto directory = ReadWhole(archive, header.Offset, header.Length);
    const auto entry = directory ? FindEntry(*directory, format, name) : std::nullopt;
    if (!entry) {
        return std::nullopt;
    }
    const PakPlace place = PlaceOfEntry(*entry, format);
    return place.Length > most ? std::nullopt : ReadWhole(archive, place.Offset, place.Length);
}

}  // namespace

std::optional<Text> ReadFromPak(RandomAccessFile& archive, TextView name, std::uint32_t most) {
    const Text start = archive.Read(0, kPakHeaderSize).Value;
    const PakFormat* const format = FormatOfPak(start);
    return format == nullptr ? std::nullopt
                             : ReadEntry(archive, *format, *ReadPakHeader(start, format->Magic), name, most);
}

}  // namespace lv
