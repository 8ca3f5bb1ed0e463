#include "console/files/search_path.h"

#include <gtest/gtest.h>

#include "tests/console/files/listed_run.h"

namespace lv {
namespace {

/// "ID1/pak1.pak ID1/pak0.pak ID1", below the game's directory.
Text Listed(MemoryFiles& disk, const PlayedGame& game) {
    Text all;
    for (const SearchPlace& place : SearchPath(disk, game)) {
        all += Join(all.empty() ? "" : " ", PathBelowGame(place.Directory), place.Archive.empty() ? "" : "/",
                    place.Archive);
    }
    return all;
}

PlayedGame Played(Console console, Game game = Game::Quake, Text modification = "") {
    return {.Of = console, .GameKind = game, .Directory = "C:\\QUAKE", .Modification = std::move(modification)};
}

}  // namespace

TEST(SearchPath, HasTheNewestArchiveFirstAndThenTheFiles) {
    GameDisk game;
    for (const char* name : {"pak0.pak", "PAK1.PAK", "pak3.pak", "other.pak", "more.pk3", "pak10.pak"}) {
        game.Add(Join("ID1\\", name), "");
    }
    EXPECT_EQ(Listed(game.Disk, Played(Console::Quake)), "id1/PAK1.PAK id1/pak0.pak id1");
    EXPECT_EQ(Listed(game.Disk, Played(Console::Hexen2, Game::Hexen2)), "");
    EXPECT_EQ(Listed(game.Disk, Played(Console::EzQuake)), "id1/more.pk3 id1/PAK1.PAK id1/pak0.pak id1");
    EXPECT_EQ(Listed(game.Disk, Played(Console::DarkPlaces)),
              "id1 id1/more.pk3 id1/pak3.pak id1/pak10.pak id1/PAK1.PAK id1/pak0.pak id1/other.pak");
}

TEST(SearchPath, GoesBeyondNineUntilTheFirstGap) {
    GameDisk game;
    for (int i = 0; i <= 11; ++i) {
        game.Add(Join("ID1\\pak", std::to_string(i), ".pak"), "");
    }
    EXPECT_TRUE(Listed(game.Disk, Played(Console::Quake)).starts_with("id1/pak11.pak id1/pak10.pak id1/pak9.pak"));
}

TEST(SearchPath, SkipsGapsUpToNine) {
    GameDisk game;
    for (const char* name : {"pak1.pak", "pak9.pak", "pak10.pak", "a.pkz"}) {
        game.Add(Join("BASEQ2\\", name), "");
    }
    EXPECT_EQ(Listed(game.Disk, Played(Console::Quake2, Game::Quake2)), "baseq2/pak9.pak baseq2/pak1.pak baseq2");
    EXPECT_EQ(Listed(game.Disk, Played(Console::Q2Pro, Game::Quake2)),
              "baseq2/a.pkz baseq2/pak10.pak baseq2/pak9.pak baseq2/pak1.pak baseq2");
}

TEST(SearchPath, KnowsTheOthersArchives) {
    GameDisk game;
    game.Add("BASE\\Htic2-0.pak", "");
    game.Add("BASE\\pak0.sin", "");
    EXPECT_EQ(Listed(game.Disk, Played(Console::Heretic2, Game::Heretic2)), "base/Htic2-0.pak base");
    EXPECT_EQ(Listed(game.Disk, Played(Console::Sin, Game::Sin)), "base/pak0.sin base");
    game.Add("DATA1\\pak0.pak", "");
    game.Add("PORTALS\\pak3.pak", "");
    EXPECT_EQ(Listed(game.Disk, Played(Console::Hexen2, Game::Hexen2, "portals")),
              "portals portals/pak3.pak data1 data1/pak0.pak");
    game.Add("HW\\pak4.pak", "");
    EXPECT_EQ(Listed(game.Disk, Played(Console::HexenWorld, Game::Hexen2)),
              "hw hw/pak4.pak portals portals/pak3.pak data1 data1/pak0.pak");
}

TEST(SearchPath, HasTheModificationAheadOfTheBase) {
    GameDisk game;
    game.Add("CTF\\pak0.pak", "");
    game.Add("QW\\x.cfg", "");
    EXPECT_EQ(Listed(game.Disk, Played(Console::Quake, Game::Quake, "CTF")), "CTF/pak0.pak CTF id1");
    EXPECT_EQ(Listed(game.Disk, Played(Console::QuakeWorld, Game::Quake, "CTF")), "CTF/pak0.pak CTF qw id1");
    EXPECT_EQ(Listed(game.Disk, Played(Console::QuakeWorld, Game::Quake, "qw")), "qw id1");
    EXPECT_EQ(SearchPath(game.Disk, Played(Console::QuakeWorld, Game::Quake, "CTF")).back().Level, 2U);
}

TEST(SearchPath, HasTheUsersDirectoryAheadOfTheGames) {
    GameDisk game;
    game.Add("CTF\\x.cfg", "");
    game.Disk.AddDirectory("C:\\HOME\\.darkplaces\\ctf");
    game.Disk.AddDirectory("C:\\HOME\\.darkplaces\\id1");
    PlayedGame played = Played(Console::DarkPlaces, Game::Quake, "CTF");
    played.Engine = "DarkPlaces";
    EXPECT_EQ(Listed(game.Disk, played), "CTF id1");
    played.UserHome = "C:\\HOME";
    EXPECT_EQ(Listed(game.Disk, played), "C:\\HOME\\.darkplaces\\CTF CTF C:\\HOME\\.darkplaces\\id1 id1");
    game.Disk.AddDirectory("C:\\HOME\\.local\\share\\quake\\id1");
    played = Played(Console::Fte);
    played.Engine = "FTEQW";
    played.UserHome = "C:\\HOME";
    EXPECT_EQ(Listed(game.Disk, played), "C:\\HOME\\.local\\share\\quake\\id1 id1");
}

TEST(SearchPath, HasTheEnginesOwnArchiveAheadOfTheBasesOthers) {
    GameDisk game;
    game.Add("quakespasm.pak", "");
    game.Add("ID1\\pak0.pak", "");
    PlayedGame played = Played(Console::Ironwail, Game::Quake, "CTF");
    game.Disk.AddDirectory("C:\\QUAKE\\CTF");
    EXPECT_EQ(Listed(game.Disk, played), "CTF id1/pak0.pak id1");
    played.Engine = "QuakeSpasm";
    EXPECT_EQ(Listed(game.Disk, played), "CTF C:\\QUAKE/quakespasm.pak id1/pak0.pak id1");
}

TEST(SearchPath, TakesSoManyArchivesAndNoMore) {
    GameDisk game;
    for (int i = 0; i < 100; ++i) {
        game.Add(Join("ID1\\pak", std::to_string(i), ".pak"), "");
    }
    const auto places = SearchPath(game.Disk, Played(Console::Quake));
    EXPECT_EQ(places.size(), 65U);
    EXPECT_EQ(places.front().Archive, "pak99.pak");
    EXPECT_EQ(places.back().Archive, "");
}

TEST(SearchPath, IsUnrealsSystemDirectory) {
    GameDisk game;
    PlayedGame played = Played(Console::Unreal, Game::Unreal);
    played.Directory = "C:\\QUAKE\\ID1";
    EXPECT_EQ(Listed(game.Disk, played), "ID1");
}

}  // namespace lv
