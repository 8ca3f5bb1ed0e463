#include "games/trees/tree_search.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

using Paths = std::vector<Text>;

Paths PathsOf(const std::vector<GameTree>& trees) {
    Paths paths;
    for (const GameTree& tree : trees) {
        paths.push_back(tree.Directory);
    }
    return paths;
}

Paths LookedFor(MemoryPlatform& system) {
    return PathsOf(QuickLook(system.Disk, &system.Places));
}

}  // namespace

TEST(QuickLook, FindsGamesInTheUsersDirectory) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games"};
    system.Disk.AddFile("C:\\HOME\\games\\quake\\id1\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\id\\quake2\\baseq2\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\gog\\hexen\\data\\data1\\pak0.pak");
    EXPECT_EQ(LookedFor(system),
              (Paths{"C:\\HOME\\games\\quake", "C:\\HOME\\games\\id\\quake2", "C:\\HOME\\games\\gog\\hexen\\data"}));
}

TEST(QuickLook, FindsAGameThatIsAUsualPlaceItself) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games"};
    system.Disk.AddFile("C:\\HOME\\games\\id1\\pak0.pak");
    EXPECT_EQ(LookedFor(system), (Paths{"C:\\HOME\\games"}));
}

TEST(QuickLook, LooksNoDeeperThanThreeLevels) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games"};
    system.Disk.AddFile("C:\\HOME\\games\\1\\2\\3\\id1\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\1\\2\\3\\4\\id1\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\a\\b\\c\\d\\id1\\pak0.pak");
    EXPECT_EQ(LookedFor(system), (Paths{"C:\\HOME\\games\\1\\2\\3"}));
}

TEST(QuickLook, DoesNotLookElsewhere) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games"};
    system.Disk.AddDirectory("C:\\HOME\\games");
    system.Disk.AddFile("C:\\HOME\\Documents\\quake\\id1\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\.hidden\\id1\\pak0.pak");
    EXPECT_EQ(LookedFor(system), Paths());
    EXPECT_EQ(std::ranges::count(system.Disk.Listed, "C:\\HOME\\Documents"), 0);
}

TEST(QuickLook, LooksAtDirectoriesThatAreCalledLikeAGameFirst) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games"};
    for (int i = 0; i < 3000; ++i) {
        system.Disk.AddDirectory(Join("C:\\HOME\\games\\a", std::to_string(i)));
    }
    system.Disk.AddFile("C:\\HOME\\games\\Quake (full)\\id1\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\hexen2\\data1\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\zzz\\id1\\pak0.pak");
    TreeSearch search(system.Disk, &system.Places);
    while (search.Step()) {
    }
    EXPECT_EQ(PathsOf(search.Found()), (Paths{"C:\\HOME\\games\\hexen2", "C:\\HOME\\games\\Quake (full)"}));
    EXPECT_EQ(search.Crowded(), (Paths{"C:\\HOME\\games"}));
}

TEST(QuickLook, LooksAtThemAheadOfAllOthersOnEachLevel) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games"};
    for (int i = 0; i < 60; ++i) {
        for (int j = 0; j < 60; ++j) {
            system.Disk.AddDirectory(Join("C:\\HOME\\games\\a", std::to_string(i), "\\b", std::to_string(j)));
        }
    }
    system.Disk.AddFile("C:\\HOME\\games\\zz\\quake\\id1\\pak0.pak");
    EXPECT_EQ(LookedFor(system), (Paths{"C:\\HOME\\games\\zz\\quake"}));
}

TEST(QuickLook, CountsDirectoriesWhoseNamesNoGameCouldOpenOnce) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games", "C:\\HOME\\games"};
    system.Disk.AddDirectory("C:\\HOME\\games\\quake");
    system.Disk.Nameless = {{"c:\\home\\games", 2}, {"c:\\home\\games\\quake", 1}, {"c:\\home", 8}};
    TreeSearch search(system.Disk, &system.Places);
    while (search.Step()) {
    }
    EXPECT_EQ(search.Nameless(), 3u);
}

TEST(QuickLook, TellsOfNoPlaceThatItHasLookedThrough) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games"};
    for (std::size_t i = 1; i < kMostListedInAPlace; ++i) {
        system.Disk.AddDirectory(Join("C:\\HOME\\games\\a", std::to_string(i)));
    }
    TreeSearch search(system.Disk, &system.Places);
    while (search.Step()) {
    }
    EXPECT_EQ(search.Crowded(), Paths());
}

TEST(QuickLook, FindsInTheOrderOfThePlaces) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games", "Z:\\usr\\share\\games"};
    system.Places.IsSteamRoots = {"C:\\STEAM"};
    system.Places.IsNotedGames = {"D:\\noted"};
    system.Places.IsWinePrefixes = {"D:\\prefix"};
    for (const char* const tree :
         {"C:\\QUAKE", "D:\\prefix\\drive_c\\GOG Games\\Quake", "D:\\noted", "C:\\STEAM\\steamapps\\common\\Quake",
          "Z:\\usr\\share\\games\\quake", "C:\\HOME\\games\\quake"}) {
        system.Disk.AddFile(Join(tree, "\\id1\\pak0.pak"));
    }
    EXPECT_EQ(LookedFor(system),
              (Paths{"C:\\HOME\\games\\quake", "Z:\\usr\\share\\games\\quake", "C:\\STEAM\\steamapps\\common\\Quake",
                     "D:\\noted", "D:\\prefix\\drive_c\\GOG Games\\Quake", "C:\\quake"}));
}

TEST(QuickLook, FindsTheRereleaseAsATreeOfItsOwn) {
    MemoryPlatform system;
    system.Places.IsSteamRoots = {"C:\\STEAM"};
    system.Disk.AddFile("C:\\STEAM\\steamapps\\common\\Quake\\Id1\\PAK0.PAK");
    system.Disk.AddFile("C:\\STEAM\\steamapps\\common\\Quake\\rerelease\\id1\\pak0.pak");
    system.Disk.AddFile("C:\\STEAM\\steamapps\\common\\Quake\\rerelease\\QuakeEX.kpf");
    const auto found = QuickLook(system.Disk, &system.Places);
    EXPECT_EQ(PathsOf(found),
              (Paths{"C:\\STEAM\\steamapps\\common\\Quake", "C:\\STEAM\\steamapps\\common\\Quake\\rerelease"}));
    EXPECT_FALSE(found.at(0).IsSpelledForToday);
    EXPECT_TRUE(found.at(1).IsSpelledForToday);
    EXPECT_TRUE(found.at(1).IsFull);
}

TEST(QuickLook, FindsGamesInSteamsFurtherLibrariesAndTheirPrefixes) {
    MemoryPlatform system;
    system.Places.IsSteamRoots = {"C:\\STEAM"};
    system.Disk.AddFile("C:\\STEAM\\steamapps\\libraryfolders.vdf", R"("libraryfolders" { "1" { "path" "/d:/lib" } })");
    system.Disk.AddFile("D:\\lib\\steamapps\\common\\Half-Life\\valve\\liblist.gam");
    system.Disk.AddFile("D:\\lib\\steamapps\\compatdata\\99\\pfx\\drive_c\\Program Files\\Sin\\base\\pak0.sin");
    EXPECT_EQ(LookedFor(system), (Paths{"D:\\lib\\steamapps\\common\\Half-Life",
                                        "D:\\lib\\steamapps\\compatdata\\99\\pfx\\drive_c\\Program Files\\Sin"}));
}

TEST(QuickLook, FindsWhatSteamAndGogHaveInstalledInAPrefix) {
    MemoryPlatform system;
    system.Places.IsWinePrefixes = {"D:\\w"};
    system.Disk.AddFile("D:\\w\\drive_c\\Program Files (x86)\\Steam\\steamapps\\common\\Quake 2\\baseq2\\pak0.pak");
    system.Disk.AddFile("D:\\w\\drive_c\\Program Files (x86)\\GOG Galaxy\\Games\\Quake\\id1\\pak0.pak");
    system.Disk.AddFile("D:\\w\\drive_c\\Sierra\\id1\\pak0.pak");
    system.Disk.AddFile("D:\\w\\drive_c\\windows\\id1\\pak0.pak");
    EXPECT_EQ(LookedFor(system),
              (Paths{"D:\\w\\drive_c\\Program Files (x86)\\Steam\\steamapps\\common\\Quake 2",
                     "D:\\w\\drive_c\\Program Files (x86)\\GOG Galaxy\\Games\\Quake", "D:\\w\\drive_c\\Sierra"}));
}

TEST(QuickLook, FindsEachTreeOnceWhicheverLinksLeadToIt) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games", "C:\\HOME\\Spiele", "C:\\HOME\\games\\quake"};
    system.Disk.AddFile("C:\\HOME\\games\\quake\\id1\\pak0.pak");
    system.Disk.AddLink("C:\\HOME\\games\\same", "C:\\HOME\\games\\quake");
    system.Disk.AddLink("C:\\HOME\\games\\round", "C:\\HOME\\games");
    system.Disk.AddLink("C:\\HOME\\Spiele", "C:\\HOME\\games");
    EXPECT_EQ(LookedFor(system), (Paths{"C:\\HOME\\games\\quake"}));
}

TEST(QuickLook, LooksDeeperFromAPlaceThatItHasPassed) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games", "C:\\HOME\\games\\1\\2\\3"};
    system.Disk.AddFile("C:\\HOME\\games\\1\\2\\3\\4\\5\\id1\\pak0.pak");
    EXPECT_EQ(LookedFor(system), (Paths{"C:\\HOME\\games\\1\\2\\3\\4\\5"}));
}

TEST(QuickLook, LooksAtTheDrivesOwnDirectoriesWithoutKnownPlaces) {
    MemoryPlatform system;
    system.Disk.AddFile("A:\\quake\\id1\\pak0.pak");
    system.Disk.AddFile("C:\\quake\\id1\\pak0.pak");
    system.Disk.AddFile("D:\\Sierra\\Half-Life\\valve\\liblist.gam");
    EXPECT_EQ(PathsOf(QuickLook(system.Disk, nullptr)), (Paths{"C:\\quake", "D:\\sierra\\half-life"}));
}

TEST(QuickLook, PassesOverWhatCannotBeRead) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\NONE", "C:\\HOME\\games"};
    system.Disk.AddFile("C:\\HOME\\games\\quake\\id1\\pak0.pak");
    system.Disk.AddDirectory("C:\\HOME\\games\\locked");
    system.Disk.Unreadable.insert("c:\\home\\games\\locked");
    EXPECT_EQ(LookedFor(system), (Paths{"C:\\HOME\\games\\quake"}));
}

TEST(TreeSearch, GoesStepByStepAndCanBeLeft) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\HOME\\games"};
    system.Disk.AddFile("C:\\HOME\\games\\quake\\id1\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\quake2\\baseq2\\pak0.pak");
    TreeSearch search(system.Disk, &system.Places);
    EXPECT_TRUE(search.Step());
    EXPECT_EQ(search.At(), "C:\\HOME\\games");
    EXPECT_TRUE(search.Found().empty());
    EXPECT_TRUE(search.Step());
    EXPECT_EQ(search.At(), "C:\\HOME\\games\\quake");
    EXPECT_EQ(PathsOf(search.Found()), (Paths{"C:\\HOME\\games\\quake"}));
    EXPECT_TRUE(search.Step());
    EXPECT_FALSE(search.Step());
    EXPECT_EQ(search.Listed(), 3u);
}

// A place with `count` directories in it, each of them empty.
void AddManyBelow(MemoryFiles& disk, const Text& place, int count) {
    for (int i = 0; i < count; ++i) {
        disk.AddDirectory(place + "\\d" + std::to_string(i));
    }
}

TEST(TreeSearch, LeavesALargePlaceForThoseBehindIt) {
    MemoryPlatform system;
    system.Places.IsGames = {"C:\\large", "C:\\small"};
    AddManyBelow(system.Disk, "C:\\large", 2600);
    system.Disk.AddFile("C:\\small\\quake\\id1\\pak0.pak");
    TreeSearch search(system.Disk, &system.Places);
    while (search.Step()) {
    }
    EXPECT_EQ(PathsOf(search.Found()), (Paths{"C:\\small\\quake"}));
    EXPECT_EQ(search.Listed(), 2502u);
}

TEST(TreeSearch, ListsNoMoreThanFiveThousandDirectories) {
    MemoryPlatform system;
    for (int i = 0; i < 5200; ++i) {
        system.Places.IsGames.push_back("C:\\none" + std::to_string(i));
    }
    TreeSearch search(system.Disk, &system.Places);
    while (search.Step()) {
    }
    EXPECT_EQ(search.Listed(), 5000u);
}

}  // namespace lv
