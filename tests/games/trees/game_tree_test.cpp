#include "games/trees/game_tree.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

using Names = std::vector<Text>;

// A directory "C:\G" with these files below it.
std::optional<GameTree> TreeWith(const Names& filesBelow) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\G");
    for (const Text& file : filesBelow) {
        disk.AddFile("C:\\G\\" + file);
    }
    return TreeIn(disk, "C:\\G");
}

Game GameWith(const Names& filesBelow) {
    const auto tree = TreeWith(filesBelow);
    return tree ? tree->GameKind : Game::None;
}

}  // namespace

TEST(GameTree, IsKnownByItsArchives) {
    EXPECT_EQ(GameWith({"id1\\pak0.pak"}), Game::Quake);
    EXPECT_EQ(GameWith({"data1\\pak0.pak"}), Game::Hexen2);
    EXPECT_EQ(GameWith({"baseq2\\pak0.pak"}), Game::Quake2);
    EXPECT_EQ(GameWith({"System\\Unreal.exe", "Maps\\Vortex2.unr"}), Game::Unreal);
    EXPECT_EQ(GameWith({"System\\UnrealShare.u", "Maps\\Vortex2.unr"}), Game::Unreal);
    EXPECT_EQ(GameWith({"base\\pak0.sin"}), Game::Sin);
    EXPECT_EQ(GameWith({"base\\Htic2-0.pak"}), Game::Heretic2);
    EXPECT_EQ(GameWith({"valve\\liblist.gam"}), Game::HalfLife);
    EXPECT_EQ(GameWith({"valve\\pak0.pak"}), Game::HalfLife);
    EXPECT_EQ(GameWith({"valve\\halflife.wad"}), Game::HalfLife);
}

TEST(GameTree, IsKnownInAnyLetterCase) {
    EXPECT_EQ(GameWith({"ID1\\PAK0.PAK"}), Game::Quake);
    EXPECT_EQ(GameWith({"Data1\\Pak0.Pak"}), Game::Hexen2);
    EXPECT_EQ(GameWith({"BaseQ2\\PAK0.pak"}), Game::Quake2);
    EXPECT_EQ(GameWith({"SYSTEM\\UNREAL.EXE", "MAPS\\A.UNR"}), Game::Unreal);
    EXPECT_EQ(GameWith({"BASE\\PAK0.SIN"}), Game::Sin);
    EXPECT_EQ(GameWith({"Base\\HTIC2-0.PAK"}), Game::Heretic2);
    EXPECT_EQ(GameWith({"Valve\\LibList.gam"}), Game::HalfLife);
}

TEST(GameTree, IsNoneWithoutItsArchives) {
    EXPECT_EQ(GameWith({}), Game::None);
    EXPECT_EQ(GameWith({"quake.exe", "id1\\config.cfg"}), Game::None);
    EXPECT_EQ(GameWith({"id1"}), Game::None);
    EXPECT_EQ(GameWith({"id1\\pak0.pak\\a"}), Game::None);
    EXPECT_EQ(GameWith({"base\\pak0.pk3"}), Game::None);
    EXPECT_EQ(GameWith({"base\\pak0.pak"}), Game::None);
    EXPECT_EQ(GameWith({"System\\Unreal.exe"}), Game::None);
    EXPECT_EQ(GameWith({"portals\\pak3.pak", "hw\\pak4.pak"}), Game::None);
}

TEST(GameTree, IsNotTheSameMakersOtherGame) {
    EXPECT_EQ(GameWith({"System\\UnrealShare.u", "System\\Botpack.u", "Maps\\DM-Deck16.unr"}), Game::None);
}

TEST(GameTree, IsTheFirstOfSeveralThatHasArchives) {
    EXPECT_EQ(GameWith({"id1\\pak0.pak", "data1\\pak0.pak"}), Game::Quake);
    EXPECT_EQ(GameWith({"id1\\config.cfg", "data1\\pak0.pak"}), Game::Hexen2);
}

TEST(GameTree, SaysWhereItLies) {
    const auto tree = TreeWith({"Id1\\PAK0.PAK"});
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->Directory, "C:\\G");
    EXPECT_EQ(tree->BaseGameDir, "Id1");
    EXPECT_EQ(ProgramDirectoryOf(*tree), "C:\\G");
    EXPECT_EQ(ProgramDirectoryOf(*TreeWith({"System\\Unreal.exe", "Maps\\A.unr"})), "C:\\G\\System");
}

TEST(GameTree, IsFullWithTheArchiveThatSharewareHasNot) {
    EXPECT_FALSE(TreeWith({"id1\\pak0.pak"})->IsFull);
    EXPECT_TRUE(TreeWith({"id1\\PAK0.PAK", "id1\\PAK1.PAK"})->IsFull);
    EXPECT_TRUE(TreeWith({"id1\\pak0.pak", "QuakeEX.kpf"})->IsFull);
    EXPECT_FALSE(TreeWith({"data1\\pak0.pak"})->IsFull);
    EXPECT_TRUE(TreeWith({"data1\\pak0.pak", "data1\\pak1.pak"})->IsFull);
    EXPECT_FALSE(TreeWith({"baseq2\\pak0.pak"})->IsFull);
    EXPECT_TRUE(TreeWith({"baseq2\\pak0.pak", "baseq2\\pak1.pak"})->IsFull);
    EXPECT_TRUE(TreeWith({"baseq2\\pak0.pak", "Q2Game.kpf"})->IsFull);
    EXPECT_FALSE(TreeWith({"base\\htic2-0.pak"})->IsFull);
    EXPECT_TRUE(TreeWith({"base\\htic2-0.pak", "base\\htic2-1.pak"})->IsFull);
    EXPECT_TRUE(TreeWith({"valve\\pak0.pak"})->IsFull);
    EXPECT_TRUE(TreeWith({"base\\pak0.sin"})->IsFull);
    EXPECT_TRUE(TreeWith({"System\\Unreal.exe", "Maps\\A.unr"})->IsFull);
}

TEST(GameTree, IsSpelledForTodaysEnginesInLowerCase) {
    EXPECT_TRUE(TreeWith({"id1\\pak0.pak", "id1\\Autoexec.cfg", "QUAKE.EXE"})->IsSpelledForToday);
    EXPECT_FALSE(TreeWith({"id1\\PAK0.PAK"})->IsSpelledForToday);
    EXPECT_FALSE(TreeWith({"id1\\pak0.pak", "id1\\Pak1.pak"})->IsSpelledForToday);
    EXPECT_FALSE(TreeWith({"Id1\\pak0.pak"})->IsSpelledForToday);
    EXPECT_TRUE(TreeWith({"System\\Unreal.exe", "Maps\\A.unr"})->IsSpelledForToday);
}

TEST(GameTree, NamesItsMissionPacks) {
    EXPECT_EQ(TreeWith({"id1\\pak0.pak", "Hipnotic\\PAK0.PAK", "rogue\\pak0.pak", "dopa\\pak0.pak", "mg1\\pak0.pak",
                        "other\\pak0.pak"})
                  ->MissionPacks,
              (Names{"Hipnotic", "rogue", "dopa", "mg1"}));
    EXPECT_EQ(TreeWith({"data1\\pak0.pak", "portals\\pak3.pak", "hw\\pak4.pak"})->MissionPacks,
              (Names{"portals", "hw"}));
    EXPECT_EQ(TreeWith({"baseq2\\pak0.pak", "rogue\\pak0.pak", "xatrix\\pak0.pak"})->MissionPacks,
              (Names{"xatrix", "rogue"}));
    EXPECT_EQ(TreeWith({"base\\pak0.sin", "2015\\pak0.sin"})->MissionPacks, (Names{"2015"}));
    EXPECT_EQ(TreeWith({"valve\\liblist.gam", "gearbox\\liblist.gam", "bshift\\pak0.pak"})->MissionPacks,
              (Names{"gearbox", "bshift"}));
    EXPECT_EQ(TreeWith({"id1\\pak0.pak", "rogue\\config.cfg"})->MissionPacks, Names());
}

}  // namespace lv
