#include "games/engines/engine_search.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/memory/memory_files.h"
#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

std::vector<Text> Found(const EngineSearch& search) {
    std::vector<Text> all;
    for (const FoundEngine& each : search.Engines) {
        all.push_back(Join(each.Title, " = ", each.Path));
    }
    return all;
}

using Lines = std::vector<Text>;

TEST(FindEngines, TakesTheFirstOfTwoProgramsOfOneName) {
    MemoryFiles disk;
    disk.AddFile("C:\\usr\\games\\quakespasm");
    disk.AddFile("C:\\usr\\games\\ls");
    disk.AddFile("C:\\home\\bin\\QuakeSpasm");
    disk.AddFile("C:\\home\\bin\\vkquake.AppImage");
    const EngineSearch search = FindEngines(disk, {"C:\\usr\\games", "C:\\home\\bin", "C:\\none"}, ShippedEngines());
    EXPECT_EQ(Found(search),
              (Lines{"QuakeSpasm = C:\\usr\\games\\quakespasm", "vkQuake = C:\\home\\bin\\vkquake.AppImage"}));
    EXPECT_EQ(search.CutShort, Lines());
}

TEST(FindEngines, GivesThemInTheOrderOfTheTable) {
    MemoryFiles disk;
    disk.AddFile("C:\\home\\bin\\tyr-quake");
    disk.AddFile("C:\\home\\bin\\vkquake-2.appimage");
    disk.AddFile("C:\\usr\\games\\darkplaces");
    disk.AddFile("C:\\usr\\games\\ezquake");
    disk.AddFile("C:\\usr\\games\\quakespasm");
    disk.AddFile("C:\\usr\\games\\vkquake");
    EXPECT_EQ(Found(FindEngines(disk, {"C:\\home\\bin", "C:\\usr\\games"}, ShippedEngines())),
              (Lines{"QuakeSpasm = C:\\usr\\games\\quakespasm",
                     "vkQuake (vkquake-2.appimage) = C:\\home\\bin\\vkquake-2.appimage",
                     "vkQuake (vkquake) = C:\\usr\\games\\vkquake", "DarkPlaces = C:\\usr\\games\\darkplaces",
                     "ezQuake = C:\\usr\\games\\ezquake", "TyrQuake = C:\\home\\bin\\tyr-quake"}));
}

TEST(FindEngines, PutsTheUsersOwnFirst) {
    const EngineTable table = ReadEngines("name\tprograms\tgames\nQuakeSpasm\tquakespasm\tquake\n",
                                          "name\tprograms\tgames\nZ Quake\tzquake\tquake\n");
    MemoryFiles disk;
    disk.AddFile("C:\\games\\quakespasm");
    disk.AddFile("C:\\games\\zquake");
    EXPECT_EQ(Found(FindEngines(disk, {"C:\\games"}, table)),
              (Lines{"Z Quake = C:\\games\\zquake", "QuakeSpasm = C:\\games\\quakespasm"}));
}

TEST(FindEngines, ListsADirectoryOnce) {
    MemoryFiles disk;
    disk.AddFile("C:\\games\\mvdsv");
    FindEngines(disk, {"C:\\games", "c:\\GAMES\\", "", "C:\\games"}, ShippedEngines());
    EXPECT_EQ(disk.Listed, Lines{"C:\\games"});
}

TEST(FindEngines, TellsProgramsOfOneEngineApart) {
    MemoryFiles disk;
    disk.AddFile("C:\\games\\tyr-quake");
    disk.AddFile("C:\\games\\tyr-glquake");
    EXPECT_EQ(
        Found(FindEngines(disk, {"C:\\games"}, ShippedEngines())),
        (Lines{"TyrQuake (tyr-glquake) = C:\\games\\tyr-glquake", "TyrQuake (tyr-quake) = C:\\games\\tyr-quake"}));
}

TEST(FindEngines, PassesOverDirectoriesAndDevices) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\games\\quakespasm");
    disk.AddDevice("C:\\games\\mvdsv");
    EXPECT_EQ(Found(FindEngines(disk, {"C:\\games"}, ShippedEngines())), Lines());
}

TEST(FindEngines, MakesAStrangersNameFitForAList) {
    MemoryFiles disk;
    disk.AddFile("C:\\games\\vkquake;\n.appimage");
    disk.AddFile("C:\\games\\vkquake");
    const EngineSearch search = FindEngines(disk, {"C:\\games"}, ShippedEngines());
    ASSERT_EQ(search.Engines.size(), 2U);
    EXPECT_EQ(search.Engines[1].Title, "vkQuake (vkquake??.appimage)");
    EXPECT_EQ(search.Engines[1].Path, "C:\\games\\vkquake;\n.appimage");
}

TEST(FindEngines, FindsTheExportsOfFlatpak) {
    MemoryFiles disk;
    disk.AddFile("C:\\exports\\bin\\org.fteqw.fteqw");
    EXPECT_EQ(Found(FindEngines(disk, {"C:\\exports\\bin"}, ShippedEngines())),
              Lines{"FTEQW = C:\\exports\\bin\\org.fteqw.fteqw"});
}

/// A directory with any number of entries.
class LongFiles : public MemoryFiles {
  public:
    Result<std::vector<DirectoryEntry>> List(std::string_view) override {
        std::vector<DirectoryEntry> entries(kMostDirectoryEntries, {"x", false, false});
        entries.push_back({"quakespasm", false, false});
        return entries;
    }
};

TEST(FindEngines, SaysWhichDirectoryHasMoreEntriesThanItLooksAt) {
    LongFiles disk;
    const EngineSearch search = FindEngines(disk, {"C:\\games"}, ShippedEngines());
    EXPECT_TRUE(search.Engines.empty());
    EXPECT_EQ(search.CutShort, Lines{"C:\\games"});
}

}  // namespace
}  // namespace lv
