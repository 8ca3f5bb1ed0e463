#include "catalogs/map_scan.h"

#include "catalogs/catalog_store.h"
#include "catalogs/pak_directory.h"
#include "catalogs/timed_file.h"
#include "catalogs/wildcard.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr Index kUnreal = 4;
constexpr Index kSin = 5;
// An archive may hold the window up for a tenth of a second. Thousands of them may not do so one by one.
constexpr double kSecondsForAnArchive = 0.1;
constexpr double kSecondsForADirectory = 1;

// More than the archives of any game and its modification hold. A drop-down list takes its time for each row, and the
// more of it the more rows it has.
constexpr std::size_t kMostMapsOfArchives = 1024;

constexpr std::size_t kSystemLength = 6;  // of the word "system"

void AddMap(Text& mapList, TextView name) {
    if (FitsAField(name)) {
        mapList.append(name).append(";");
    }
}

// The test for ".unr" looks at the case: a file named in upper case is left out, on purpose.
void ScanUnreal(Files& files, TextView systemDirectory, Text& mapList) {
    const Text directory = DropRight(systemDirectory, kSystemLength) + "MAPS";
    for (const Text& name : ListFiles(files, directory, "*.unr")) {
        const std::size_t at = name.find(".unr");
        if (at != Text::npos && at > 0) {
            AddMap(mapList, TextView(name).substr(0, at));
        }
    }
}

void ScanLooseFiles(Files& files, TextView directory, Text& mapList) {
    for (const Text& name : ListFiles(files, Join(directory, "\\maps"), "*.bsp")) {
        const std::size_t at = LowerCase(name).find(".bsp");
        if (at != Text::npos && at > 0) {
            AddMap(mapList, TextView(name).substr(0, at));
        }
    }
}

void ScanArchives(Run& run, TextView directory, std::size_t& room, Text& mapList) {
    const bool isSin = run.GameKind == kSin;
    Files& files = run.System.Disk;
    Clock& clock = run.System.Time;
    const double end = clock.Seconds() + kSecondsForADirectory;
    for (const Text& name : ListFiles(files, directory, isSin ? "*.sin" : "*.pak")) {
        if (room == 0 || clock.Seconds() > end) {
            return;
        }
        const auto archive = files.Open(Join(directory, "\\", name));
        if (!archive.Ok()) {
            continue;
        }
        TimedFile timed(*archive.Value, clock, kSecondsForAnArchive);
        for (const Text& map : PakMapNames(timed, isSin ? "SPAK" : "PACK", room)) {
            AddMap(mapList, map);
            --room;
        }
    }
}

void ScanDirectory(Run& run, TextView subdirectory, std::size_t& room, Text& mapList) {
    Text directory = Join(run.DefaultGameDirectory, "\\", subdirectory);
    if (directory.ends_with('\\')) {
        directory.pop_back();
    }
    ScanArchives(run, directory, room, mapList);
    ScanLooseFiles(run.System.Disk, directory, mapList);
}

void ScanGame(Run& run, Text& mapList) {
    if (run.GameKind == kUnreal) {
        ScanUnreal(run.System.Disk, run.DefaultGameDirectory, mapList);
        return;
    }
    std::size_t room = kMostMapsOfArchives;
    if (UpperCase(run.CurrentGameDir) != UpperCase(run.BaseGameDir)) {
        ScanDirectory(run, run.CurrentGameDir, room, mapList);
    }
    ScanDirectory(run, run.BaseGameDir, room, mapList);
}

}  // namespace

void ScanForMaps(Run& run, CatalogLists& lists) {
    lists.MapList.clear();
    if (!run.DefaultGameDirectory.empty()) {
        ScanGame(run, lists.MapList);
    }
    lists.Map_Cbo.Clear();
    if (lists.MapList.empty()) {
        return;
    }
    lists.MapList.pop_back();
    for (const Text& name : SplitFields(lists.MapList)) {
        lists.Map_Cbo.Items.push_back(UpperCase(name));
    }
    lists.Map_Cbo.ListIndex = 0;
}

}  // namespace lv
