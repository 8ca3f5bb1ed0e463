#include "catalogs/map_scan.h"

#include "catalogs/catalog_store.h"
#include "catalogs/list_room.h"
#include "catalogs/pak_directory.h"
#include "catalogs/timed_file.h"
#include "catalogs/wildcard.h"
#include "foundation/field_strings.h"
#include "games/games.h"

namespace lv {

namespace {

// An archive may hold the window up for a tenth of a second. Thousands of them may not do so one by one.
constexpr double kSecondsForAnArchive = 0.1;
constexpr double kSecondsForADirectory = 1;

// More than the archives of any game and its modification hold. A drop-down list takes its time for each row, and the
// more of it the more rows it has.
constexpr std::size_t kMostMapsOfArchives = 1024;

// What one scan has found, and what it may still find.
struct MapScan {
    Text& List;
    std::size_t RoomForArchives = kMostMapsOfArchives;
    std::size_t RoomForFiles = kMostLooseMaps;
    Text FullAt = "";  // the directory that has more loose maps than there is room for
};

constexpr std::size_t kSystemLength = 6;  // of the word "system"

void AddMap(Text& mapList, TextView name) {
    if (FitsAField(name)) {
        mapList.append(name).append(";");
    }
}

void AddLooseMap(MapScan& scan, TextView directory, TextView name) {
    if (scan.RoomForFiles == 0) {
        scan.FullAt = directory;
        return;
    }
    --scan.RoomForFiles;
    AddMap(scan.List, name);
}

// The test for ".unr" looks at the case: a file named in upper case is left out, on purpose.
void ScanUnreal(Files& files, TextView systemDirectory, MapScan& scan) {
    const Text directory = DropRight(systemDirectory, kSystemLength) + "MAPS";
    for (const Text& name : ListFiles(files, directory, "*.unr")) {
        const std::size_t at = name.find(".unr");
        if (at != Text::npos && at > 0) {
            AddLooseMap(scan, directory, TextView(name).substr(0, at));
        }
    }
}

void ScanLooseFiles(Files& files, TextView directory, MapScan& scan) {
    const Text maps = Join(directory, "\\maps");
    for (const Text& name : ListFiles(files, maps, "*.bsp")) {
        const std::size_t at = LowerCase(name).find(".bsp");
        if (at != Text::npos && at > 0) {
            AddLooseMap(scan, maps, TextView(name).substr(0, at));
        }
    }
}

void ScanArchives(Run& run, TextView directory, MapScan& scan) {
    const GameFacts& game = FactsOf(run.GameKind);
    Files& files = run.System.Disk;
    Clock& clock = run.System.Time;
    const double end = clock.Seconds() + kSecondsForADirectory;
    for (const Text& name : ListFiles(files, directory, game.Archives)) {
        if (scan.RoomForArchives == 0 || clock.Seconds() > end) {
            return;
        }
        const auto archive = files.Open(Join(directory, "\\", name));
        if (!archive.Ok()) {
            continue;
        }
        TimedFile timed(*archive.Value, clock, kSecondsForAnArchive);
        for (const Text& map : PakMapNames(timed, game.ArchiveMark, scan.RoomForArchives)) {
            AddMap(scan.List, map);
            --scan.RoomForArchives;
        }
    }
}

void ScanDirectory(Run& run, TextView subdirectory, MapScan& scan) {
    Text directory = Join(run.DefaultGameDirectory, "\\", subdirectory);
    if (directory.ends_with('\\')) {
        directory.pop_back();
    }
    ScanArchives(run, directory, scan);
    ScanLooseFiles(run.System.Disk, directory, scan);
}

void ScanGame(Run& run, MapScan& scan) {
    if (run.GameKind == Game::Unreal) {
        ScanUnreal(run.System.Disk, run.DefaultGameDirectory, scan);
        return;
    }
    if (UpperCase(run.CurrentGameDir) != UpperCase(run.BaseGameDir)) {
        ScanDirectory(run, run.CurrentGameDir, scan);
    }
    ScanDirectory(run, run.BaseGameDir, scan);
}

}  // namespace

void ScanForMaps(Run& run, CatalogLists& lists) {
    lists.MapList.clear();
    MapScan scan{.List = lists.MapList};
    if (!run.DefaultGameDirectory.empty()) {
        ScanGame(run, scan);
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
    if (!scan.FullAt.empty()) {
        TellListIsFull(run, lists.MapsToldOf, scan.FullAt, "maps", lists.Map_Cbo.Items.size());
    }
}

}  // namespace lv
