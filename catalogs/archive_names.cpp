#include "catalogs/archive_names.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "catalogs/pak_directory.h"

namespace lv {

namespace {

struct ArchiveKind {
    TextView Magic;
    std::size_t NameSize;
    std::size_t EntrySize;
};

constexpr ArchiveKind kArchiveKinds[] = {
    {"PACK", 56, 64},
    {"SPAK", 120, 128},
};

std::uint64_t NumberAt(TextView bytes, std::size_t at) {
    std::uint64_t number = 0;
    for (std::size_t i = 4; i-- > 0;) {
        number = number * 256 + static_cast<unsigned char>(bytes[at + i]);
    }
    return number;
}

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
    const auto* const kind = std::ranges::find_if(
        kArchiveKinds, [&](const ArchiveKind& each) { return ReadPakHeader(head, each.Magic).has_value(); });
    if (kind == std::end(kArchiveKinds)) {
        return {};
    }
    const auto header = ReadPakHeader(head, kind->Magic);
    if (header->Offset >= archive.Size()) {
        return {};
    }
    const std::uint64_t length = std::min<std::uint64_t>(header->Length, archive.Size() - header->Offset);
    const auto count = std::min<std::size_t>(static_cast<std::size_t>(length) / kind->EntrySize, kMostArchiveEntries);
    const Text directory = archive.Read(header->Offset, count * kind->EntrySize).Value;

    std::vector<Text> names;
    for (std::size_t at = 0; at + kind->EntrySize <= directory.size(); at += kind->EntrySize) {
        const TextView entry = TextView(directory).substr(at, kind->EntrySize);
        const TextView field = entry.substr(0, kind->NameSize);
        const TextView name = field.substr(0, field.find('\0'));
        const std::uint64_t end = NumberAt(entry, kind->NameSize) + NumberAt(entry, kind->NameSize + 4);
        if (end <= archive.Size() && IsFileName(name)) {
            names.emplace_back(name);
        }
    }
    return names;
}

}  // namespace lv
