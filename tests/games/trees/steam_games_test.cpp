#include "games/trees/steam_games.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

using Paths = std::vector<Text>;

constexpr TextView kRoot = "C:\\STEAM";

// The paths of memory's drives in the host's form: "/d:/Games".
constexpr const char* kNewLayout = R"("libraryfolders"
{
    "contentstatsid"  "-123"
    "0" { "path" "/c:/STEAM" "label" "" "apps" { "2310" "100" } }
    "1" { "path" "/d:/Library" "label" "" "apps" { } }
    "2" { "path" "/d:/Gone" }
})";
constexpr const char* kOldLayout = R"("LibraryFolders"
{
    "TimeNextStatsReport"  "1561832478"
    "ContentStatsID"       "-158337411110787451"
    "1"                    "/d:/Library"
    "2"                    "/d:/Gone"
})";

}  // namespace

TEST(SteamGames, AreThoseOfTheTableInItsOrder) {
    struct Title {
        const char* AppId;
        const char* Directory;
    };
    // clang-format off
    constexpr Title kTitles[] = {
        {"2310",    "Quake"},
        {"2320",    "Quake 2"},
        {"1089130", "Quake II RTX"},
        {"9060",    "Hexen 2"},
        {"70",      "Half-Life"},
        {"13250",   "Unreal Gold"},
        {"1313",    "SiN 1"},
        {"1313",    "SiN Gold"},
    };
    // clang-format on
    const Text common = "C:\\STEAM\\steamapps\\common\\";
    MemoryFiles byName;
    Paths all;
    for (const Title& title : kTitles) {
        all.push_back(Join(common, title.Directory));
        byName.AddDirectory(all.back());
        MemoryFiles byManifest;
        byManifest.AddFile(Join("C:\\STEAM\\steamapps\\appmanifest_", title.AppId, ".acf"),
                           R"("AppState" { "installdir" "Elsewhere" })");
        byManifest.AddDirectory(Join(common, "Elsewhere"));
        EXPECT_EQ(SteamGameDirectories(byManifest, kRoot), Paths{Join(common, "Elsewhere")}) << title.AppId;
    }
    EXPECT_EQ(SteamGameDirectories(byName, kRoot), all);
}

TEST(SteamLibraries, AreNamedInEitherLayoutAndEitherPlace) {
    for (const char* const layout : {kNewLayout, kOldLayout}) {
        for (const char* const place :
             {"C:\\STEAM\\steamapps\\libraryfolders.vdf", "C:\\STEAM\\config\\libraryfolders.vdf"}) {
            MemoryFiles disk;
            disk.AddFile(place, layout);
            disk.AddDirectory("D:\\Library");
            EXPECT_EQ(SteamLibraries(disk, kRoot), (Paths{"C:\\STEAM", "D:\\Library"})) << place << layout;
        }
    }
}

TEST(SteamLibraries, AreTheRootAloneWithoutAListOrWithADamagedOne) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\STEAM");
    EXPECT_EQ(SteamLibraries(disk, kRoot), (Paths{"C:\\STEAM"}));
    disk.AddFile("C:\\STEAM\\steamapps\\libraryfolders.vdf", "\"libraryfolders\" \"x\" { { \"1\"");
    EXPECT_EQ(SteamLibraries(disk, kRoot), (Paths{"C:\\STEAM"}));
}

TEST(SteamLibraries, AreNoMoreThanIsSensible) {
    MemoryFiles disk;
    Text list = "\"libraryfolders\" {";
    for (int i = 0; i < 200; ++i) {
        const Text number = std::to_string(i);
        disk.AddDirectory("D:\\L" + number);
        list += "\"" + number + "\" \"/d:/L" + number + "\" ";
    }
    disk.AddFile("C:\\STEAM\\steamapps\\libraryfolders.vdf", list);
    EXPECT_EQ(SteamLibraries(disk, kRoot).size(), 64u);
}

TEST(SteamGames, AreFoundByTheirManifests) {
    MemoryFiles disk;
    disk.AddFile("C:\\STEAM\\steamapps\\appmanifest_2310.acf",
                 R"("AppState" { "appid" "2310" "InstallDir" "Quake Old" })");
    disk.AddDirectory("C:\\STEAM\\steamapps\\common\\Quake Old");
    disk.AddDirectory("C:\\STEAM\\steamapps\\common\\Quake");
    EXPECT_EQ(SteamGameDirectories(disk, kRoot), (Paths{"C:\\STEAM\\steamapps\\common\\Quake Old"}));
}

TEST(SteamGames, AreFoundByNameWithoutAManifest) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\STEAM\\steamapps\\common\\quake 2");
    disk.AddDirectory("C:\\STEAM\\steamapps\\common\\Half-Life");
    disk.AddDirectory("C:\\STEAM\\steamapps\\common\\SiN Gold");
    disk.AddDirectory("C:\\STEAM\\steamapps\\common\\Other");
    EXPECT_EQ(SteamGameDirectories(disk, kRoot),
              (Paths{"C:\\STEAM\\steamapps\\common\\Quake 2", "C:\\STEAM\\steamapps\\common\\Half-Life",
                     "C:\\STEAM\\steamapps\\common\\SiN Gold"}));
}

TEST(SteamGames, AreNeverLookedForOutsideTheirPlace) {
    for (const char* const name : {"..", "..\\\\..\\\\HOME", "../../HOME", "C:", "", "."}) {
        MemoryFiles disk;
        disk.AddDirectory("C:\\STEAM\\HOME");
        disk.AddDirectory("C:\\STEAM\\steamapps\\common\\Quake");
        disk.AddFile("C:\\STEAM\\steamapps\\appmanifest_2310.acf",
                     Join("\"AppState\" { \"installdir\" \"", name, "\" }"));
        EXPECT_EQ(SteamGameDirectories(disk, kRoot), (Paths{"C:\\STEAM\\steamapps\\common\\Quake"})) << name;
    }
}

TEST(SteamGames, AreNoneWhereNothingIsInstalled) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\STEAM");
    disk.AddFile("C:\\STEAM\\steamapps\\appmanifest_2310.acf", R"("AppState" { "installdir" "Quake" })");
    EXPECT_EQ(SteamGameDirectories(disk, kRoot), Paths());
}

TEST(SteamPrefixes, AreThoseWithADrive) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\STEAM\\steamapps\\compatdata\\2310\\pfx\\drive_c");
    disk.AddDirectory("C:\\STEAM\\steamapps\\compatdata\\13250\\pfx\\drive_c");
    disk.AddDirectory("C:\\STEAM\\steamapps\\compatdata\\70");
    disk.AddDirectory("C:\\STEAM\\steamapps\\compatdata\\other\\pfx\\drive_c");
    EXPECT_EQ(SteamPrefixes(disk, kRoot),
              (Paths{"C:\\STEAM\\steamapps\\compatdata\\13250\\pfx", "C:\\STEAM\\steamapps\\compatdata\\2310\\pfx"}));
    EXPECT_EQ(SteamPrefixes(disk, "C:\\NONE"), Paths());
}

}  // namespace lv
