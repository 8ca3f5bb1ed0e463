#include "foundry/fonts/pak_file.h"

#include "catalogs/pak_directory.h"
#include "foundry/fonts/stored_numbers.h"

namespace lv {

namespace {

struct PakFormat {
    TextView Magic;
    std::size_t EntrySize;
    std::size_t NameField;  // place and length of the file follow
};

constexpr PakFormat kFormats[] = {
    {"PACK", 64, 56},
    {"SPAK", 128, 120},
};

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
        if (SameText(NameAt(directory, at, format.NameField), name)) {
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
    const std::uint32_t length = Number32At(*entry, format.NameField + 4);
    return length > most ? std::nullopt : ReadWhole(archive, Number32At(*entry, format.NameField), length);
}

}  // namespace

std::optional<Text> ReadFromPak(RandomAccessFile& archive, TextView name, std::uint32_t most) {
    const Text start = archive.Read(0, kPakHeaderSize).Value;
    for (const PakFormat& format : kFormats) {
        if (const auto header = ReadPakHeader(start, format.Magic)) {
            return ReadEntry(archive, format, *header, name, most);
        }
    }
    return std::nullopt;
}

}  // namespace lv
