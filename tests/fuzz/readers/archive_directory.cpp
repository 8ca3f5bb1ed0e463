// An archive: the names in its directory, its maps, and its files.

#include "catalogs/archive_entries.h"
#include "catalogs/archive_names.h"
#include "catalogs/pak_directory.h"
#include "tests/fuzz/readers.h"

namespace lv {

void FuzzArchiveDirectory(TextView input) {
    FuzzedFile archive(input);
    const std::vector<Text> names = ArchiveEntryNames(archive);
    MustHold(names.size() <= kMostArchiveEntries, "no more entries than any game reads");
    MustHold(names.size() <= input.size(), "no more entries than the file has bytes");
    for (const Text& name : names) {
        MustHold(!name.empty() && name.size() <= 120, "a name is as long as its field at most");
        MustHold(name.front() != '/' && name.back() != '/', "no component of a name is empty");
        MustHold(name.find_first_of(TextView("\0\n\r\\:", 5)) == Text::npos, "a name is one that a file can have");
        MustHold(name != ".." && !name.starts_with("../") && name.find("/../") == Text::npos,
                 "no name leads out of its directory");
    }
    std::size_t files = 0;
    for (const ArchiveEntry& entry : ReadArchiveEntries(archive).value_or(std::vector<ArchiveEntry>())) {
        constexpr std::uint32_t kMost = 4096;
        const auto file = files++ < 100 ? ReadArchiveEntry(archive, entry, kMost) : std::nullopt;
        MustHold(!file || file->size() <= kMost, "a file is no longer than wanted");
    }
    for (const TextView magic : {"PACK", "SPAK"}) {
        for (const Text& map : PakMapNames(archive, magic)) {
            MustHold(map.size() <= kPakEntrySize, "a map's name lies in its entry");
            MustHold(map.find(';') == Text::npos, "a map's name can stand in a list");
        }
    }
}

}  // namespace lv
