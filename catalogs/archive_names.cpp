#include "catalogs/archive_names.h"

#include <algorithm>
#include <cstdint>

#include "catalogs/pak_directory.h"
#include "foundation/stored_numbers.h"

namespace lv {

namespace {

bool IsComponent(TextView part) {
    constexpr TextView kNever = "\\\"*:<>?|";
    return !part.empty() && part != "." && part != ".." && std::ranges::all_of(part, [&](char c) {
        return static_cast<unsigned char>(c) >= ' ' && kNever.find(c) == TextView::npos;
    });
}

bool IsFileName(TextView name) {
    for (std::size_t slash = name.find('/'); slash != TextView::npos; slash = name.find('/')) {
        if (!IsComponent(name.substr(0, slash))) {
            return false;
        }
        name.remove_prefix(slash + 1);
    }
    return IsComponent(name);
}

}  // namespace

std::vector<Text> ArchiveEntryNames(RandomAccessFile& archive) {
    const Text head = archive.Read(0, kPakHeaderSize).Value;
    const PakFormat* const format = FormatOfPak(head);
    if (format == nullptr) {
        return {};
    }
    const auto header = ReadPakHeader(head, format->Magic);
    if (header->Offset >= archive.Size()) {
        return {};
    }
    const std::uint64_t length = std::min<std::uint64_t>(header->Length, archive.Size() - header->Offset);
    const auto count = std::min<std::size_t>(static_cast<std::size_t>(length) / format->EntrySize, kMostArchiveEntries);
    const Text directory = archive.Read(header->Offset, count * format->EntrySize).Value;

    std::vector<Text> names;
    for (std::size_t at = 0; at + format->EntrySize <= directory.size(); at += format->EntrySize) {
        const TextView entry = TextView(directory).substr(at, format->EntrySize);
        const TextView name = NameAt(entry, 0, format->NameSize);
        const PakPlace place = PlaceOfEntry(entry, *format);
        const std::uint64_t end = std::uint64_t{place.Offset} + place.Length;
        if (end <= archive.Size() && IsFileName(name)) {
            names.emplace_back(name);
        }
    }
    return names;
}

}  // namespace lv
