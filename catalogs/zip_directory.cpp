#include "catalogs/zip_directory.h"

#include <algorithm>

#include "foundation/stored_numbers.h"

namespace lv {

namespace {

constexpr TextView kEndMark{"PK\5\6", 4};
constexpr TextView kEntryMark{"PK\1\2", 4};
constexpr TextView kFileMark{"PK\3\4", 4};
constexpr std::size_t kEndSize = 22;
constexpr std::size_t kEntrySize = 46;
constexpr std::size_t kFileSize = 30;
constexpr std::size_t kLongestComment = 0xFFFF;

constexpr unsigned kStored = 0;
constexpr unsigned kDeflated = 8;
constexpr unsigned kHasPassword = 1;

/// The last of the archive's records, which a comment may follow.
std::optional<Text> ReadEnd(RandomAccessFile& archive) {
    const std::uint64_t size = archive.Size();
    if (size < kEndSize) {
        return std::nullopt;
    }
    const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(size, kEndSize + kLongestComment));
    // Most have none.
    for (const std::size_t tail : {kEndSize, length}) {
        const auto bytes = ReadStretch(archive, size - tail, tail);
        const std::size_t at = bytes ? bytes->rfind(kEndMark) : Text::npos;
        if (at != Text::npos && LiesWithin(at, kEndSize, bytes->size())) {
            return bytes->substr(at, kEndSize);
        }
    }
    return std::nullopt;
}

Packing PackingOf(TextView entry) {
    if ((Number16At(entry, 8) & kHasPassword) != 0) {
        return Packing::Unknown;
    }
    switch (Number16At(entry, 10)) {
        case kStored:
            return Packing::Zip;
        case kDeflated:
            return Packing::Deflated;
        default:
            return Packing::Unknown;
    }
}

}  // namespace

std::optional<std::vector<ArchiveEntry>> ReadZipEntries(RandomAccessFile& archive) {
    if (archive.Read(0, 2).Value != "PK") {
        return std::nullopt;
    }
    const auto end = ReadEnd(archive);
    const std::uint32_t length = end ? Number32At(*end, 12) : 0;
    const auto directory =
        end && length <= kLargestArchiveDirectory ? ReadStretch(archive, Number32At(*end, 16), length) : std::nullopt;
    if (!directory) {
        return std::nullopt;
    }
    std::vector<ArchiveEntry> entries;
    const TextView all = *directory;
    for (std::size_t at = 0; LiesWithin(at, kEntrySize, all.size()) && entries.size() < kMostEntriesOfArchive;) {
        const TextView entry = all.substr(at);
        const std::size_t name = Number16At(entry, 28);
        const std::size_t whole = kEntrySize + name + Number16At(entry, 30) + Number16At(entry, 32);
        if (!entry.starts_with(kEntryMark) || whole > entry.size()) {
            break;
        }
        at += whole;
        const TextView path = entry.substr(kEntrySize, name);
        if (!path.ends_with('/')) {
            entries.push_back(
                {Text(path), Number32At(entry, 42), Number32At(entry, 20), Number32At(entry, 24), PackingOf(entry)});
        }
    }
    return entries;
}

std::optional<std::uint64_t> StartOfZipEntry(RandomAccessFile& archive, std::uint64_t header) {
    const auto head = ReadStretch(archive, header, kFileSize);
    if (!head || !head->starts_with(kFileMark)) {
        return std::nullopt;
    }
    return header + kFileSize + Number16At(*head, 26) + Number16At(*head, 28);
}

}  // namespace lv
