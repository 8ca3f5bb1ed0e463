#include "foundry/fonts/pak_file.h"

#include <algorithm>

#include "catalogs/archive_entries.h"
#include "catalogs/pak_directory.h"

namespace lv {

std::optional<Text> ReadFromPak(RandomAccessFile& archive, TextView name, std::uint32_t most) {
    if (FormatOfPak(archive.Read(0, kPakHeaderSize).Value) == nullptr) {
        return std::nullopt;
    }
    const auto entries = ReadArchiveEntries(archive);
    if (!entries) {
        return std::nullopt;
    }
    const auto entry =
        std::ranges::find_if(*entries, [&](const ArchiveEntry& each) { return SameText(each.Name, name); });
    return entry == entries->end() ? std::nullopt : ReadArchiveEntry(archive, *entry, most);
}

}  // namespace lv
