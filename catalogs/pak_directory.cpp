#include "catalogs/pak_directory.h"

#include <algorithm>
#include <iterator>

#include "catalogs/catalog_store.h"
#include "foundation/stored_numbers.h"

namespace lv {

namespace {

constexpr std::size_t kBlock = 1024 * kPakEntrySize;

void AddMapNames(TextView entries, std::vector<Text>& names) {
    for (std::size_t at = 0; at < entries.size(); at += kPakEntrySize) {
        if (auto name = MapNameOfEntry(entries.substr(at, kPakEntrySize))) {
            names.push_back(*std::move(name));
        }
    }
}

}  // namespace

std::optional<PakHeader> ReadPakHeader(TextView header, TextView magic) {
    if (header.size() < kPakHeaderSize || !header.starts_with(magic)) {
        return std::nullopt;
    }
    return PakHeader{Number32At(header, 4), Number32At(header, 8)};
}

const PakFormat* FormatOfPak(TextView header) {
    const auto* const format = std::ranges::find_if(
        kPakFormats, [&](const PakFormat& each) { return ReadPakHeader(header, each.Magic).has_value(); });
    return format == std::end(kPakFormats) ? nullptr : format;
}

PakPlace PlaceOfEntry(TextView entry, const PakFormat& format) {
    return {Number32At(entry, format.NameSize), Number32At(entry, format.NameSize + 4)};
}

std::uint32_t PakEntryCount(std::uint32_t length) {
    constexpr std::uint32_t kSize = kPakEntrySize;
    const std::uint32_t whole = length / kSize;
    const std::uint32_t rest = length % kSize;
    const bool up = rest > kSize / 2 || (rest == kSize / 2 && whole % 2 == 1);
    return whole + (up ? 1 : 0);
}

std::optional<Text> MapNameOfEntry(TextView entry) {
    constexpr TextView kBefore = "maps/";
    const std::size_t maps = entry.find(kBefore);
    const std::size_t end = entry.find(".bsp");
    if (maps == TextView::npos || end == TextView::npos || maps > end) {
        return std::nullopt;
    }
    const std::size_t begin = maps + kBefore.size();
    const TextView name = entry.substr(begin, end - begin);
    if (name.starts_with("b_") || !FitsAField(name)) {
        return std::nullopt;
    }
    return Text(name);
}

std::vector<Text> PakMapNames(RandomAccessFile& archive, TextView magic, std::size_t most) {
    const auto header = ReadPakHeader(archive.Read(0, kPakHeaderSize).Value, magic);
    if (!header || header->Offset >= archive.Size()) {
        return {};
    }
    const std::uint64_t wanted =
        std::uint64_t{std::min(PakEntryCount(header->Length), kMostMapEntries)} * kPakEntrySize;
    const std::uint64_t end = header->Offset + std::min(wanted, archive.Size() - header->Offset);

    std::vector<Text> names;
    for (std::uint64_t at = header->Offset; at < end && names.size() < most; at += kBlock) {
        const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(kBlock, end - at));
        const Result<Text> block = archive.Read(at, size);
        AddMapNames(block.Value, names);
        if (block.Value.size() < size) {
            break;
        }
    }
    names.resize(std::min(names.size(), most));
    return names;
}

}  // namespace lv
