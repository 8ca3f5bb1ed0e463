#include "catalogs/game_identification.h"

#include "foundation/padded_item.h"
#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

class IdentifyTest : public CatalogsTest {
  protected:
    IdentifyTest() {
        system.Disk.AddDirectory("C:\\QUAKE\\ID1");
        system.Disk.AddDirectory("C:\\HEXEN2\\DATA1");
        system.Disk.AddDirectory("C:\\QUAKE2\\BASEQ2");
        system.Disk.AddDirectory("C:\\UNREAL\\SYSTEM");
        system.Disk.AddDirectory("C:\\HL\\VALVE");
        system.Disk.AddDirectory("C:\\DOOM");
    }

    bool Pick(TextView path) {
        lists.Exe_Cbo.Items.push_back({"Game", Text(path), "", ""});
        lists.Exe_Cbo.ListIndex = static_cast<int>(lists.Exe_Cbo.Items.size()) - 1;
        return IdentifyGame(run, lists);
    }
};

TEST_F(IdentifyTest, WhatAProgramPlaysIsToldWithoutAPick) {
    const EngineTable engines = ReadEngines("", "");
    const PlayedBy world = WhatPlays(system.Disk, &engines, "C:\\QUAKE\\QWCL.EXE");
    EXPECT_EQ(world.Facts->GameKind, Game::Quake);
    EXPECT_TRUE(world.Flags.IsQuakeWorld);
    EXPECT_EQ(world.OfToday, nullptr);
    const PlayedBy two = WhatPlays(system.Disk, nullptr, "C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_EQ(two.Facts->GameKind, Game::Quake2);
    EXPECT_FALSE(two.Flags.IsQuakeWorld);
    EXPECT_EQ(WhatPlays(system.Disk, nullptr, "C:\\DOOM\\DOOM.EXE").Facts->GameKind, Game::None);
    EXPECT_EQ(run.GameKind, Game::None);
}

TEST_F(IdentifyTest, APickSetsTheRun) {
    EXPECT_TRUE(Pick("C:\\QUAKE2\\QUAKE2.EXE"));
    EXPECT_EQ(run.GameKind, Game::Quake2);
    EXPECT_EQ(run.ScriptFamily, Dialect::Quake2);
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\quake2");
    EXPECT_EQ(run.BaseGameDir, "BASEQ2");
    EXPECT_EQ(run.CurrentGameDir, "BASEQ2");
    EXPECT_TRUE(run.UsesAccelerator);
}

TEST_F(IdentifyTest, APickSavesThePosition) {
    Pick("C:\\QUAKE\\quake.exe");
    EXPECT_EQ(Stored("ExecutablesPos"), "0");
    Pick("C:\\QUAKE2\\quake2.exe");
    EXPECT_EQ(Stored("ExecutablesPos"), "1");
}

TEST_F(IdentifyTest, SlashesBecomeBackslashes) {
    EXPECT_TRUE(Pick("C:/QUAKE/qwcl.exe"));
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\quake");
    EXPECT_EQ(run.GameKind, Game::Quake);
    EXPECT_FALSE(run.UsesAccelerator);
}

TEST_F(IdentifyTest, QuakeWorldIsQuakeWithAFlag) {
    Pick("C:\\QUAKE\\qwcl.exe");
    EXPECT_EQ(run.GameKind, Game::Quake);
    EXPECT_TRUE(run.IsQuakeWorld);
    EXPECT_FALSE(run.UsesAccelerator);
    Pick("C:\\QUAKE\\glqwcl.exe");
    EXPECT_TRUE(run.IsQuakeWorld);
    EXPECT_TRUE(run.UsesAccelerator);
}

TEST_F(IdentifyTest, TheFlagsOfTheGameBeforeAreCleared) {
    Pick("C:\\HEXEN2\\h2mp.exe");
    EXPECT_TRUE(run.IsMissionPack);
    Pick("C:\\QUAKE\\qwcl.exe");
    EXPECT_FALSE(run.IsMissionPack);
    Pick("C:\\QUAKE2\\quake2.exe");
    EXPECT_FALSE(run.IsQuakeWorld);
    EXPECT_TRUE(run.UsesAccelerator);
}

TEST_F(IdentifyTest, TheServersAreFilledAfterTheFlags) {
    Store("NetServers", "Home;127.0.0.1;26000;0;;World;10.0.0.1;27500;1;");
    Pick("C:\\QUAKE\\qwcl.exe");
    EXPECT_EQ(Rows(lists.Server_Cbo), (TextList{"World|10.0.0.1;27500;1;"}));
    Pick("C:\\QUAKE\\quake.exe");
    EXPECT_EQ(Rows(lists.Server_Cbo), (TextList{"Home|127.0.0.1;26000;0;"}));
}

TEST_F(IdentifyTest, AllThreeListsAreFilled) {
    system.Disk.AddFile("C:\\HL\\VALVE\\config.cfg");
    system.Disk.AddFile("C:\\HL\\TFC\\pak0.pak");
    Store("Games", "Team Fortress;-game tfc");
    Store("NetServers", "Home;127.0.0.1;27015;9;");
    EXPECT_TRUE(Pick("C:\\HL\\hl.exe"));
    EXPECT_EQ(run.GameKind, Game::HalfLife);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"Team Fortress|-game tfc"}));
    EXPECT_EQ(Rows(lists.Script_Cbo), (TextList{"config.cfg|c:\\hl\\valve\\config.cfg"}));
    EXPECT_EQ(Rows(lists.Server_Cbo), (TextList{"Home|127.0.0.1;27015;9;"}));
}

TEST_F(IdentifyTest, HalfLifesSettingsGoToAScriptInItsDataDirectory) {
    TextList written;
    lists.Exe_Cbo.Items = {{"Game", "C:\\HL\\hl.exe", "", ""}, {"Game", "C:\\QUAKE\\quake.exe", "", ""}};
    for (const int row : {0, 1}) {
        lists.Exe_Cbo.ListIndex = row;
        EXPECT_TRUE(IdentifyGame(run, lists, [&](TextView path) { written.emplace_back(path); }));
    }
    EXPECT_EQ(written, (TextList{"c:\\hl\\valve\\lv3dhlrg.cfg"}));
}

TEST_F(IdentifyTest, AnUnknownTreeEmptiesTheListsAndKeepsTheFamily) {
    system.Disk.AddFile("C:\\QUAKE2\\BASEQ2\\config.cfg");
    Store("NetServers", "Two;10.0.0.2;27910;3;");
    Pick("C:\\QUAKE2\\quake2.exe");
    ASSERT_EQ(lists.Server_Cbo.Items.size(), 1U);
    EXPECT_TRUE(Pick("C:\\DOOM\\doom.exe"));
    EXPECT_EQ(run.GameKind, Game::None);
    EXPECT_EQ(run.ScriptFamily, Dialect::Quake2);
    EXPECT_EQ(run.BaseGameDir, "");
    EXPECT_EQ(run.CurrentGameDir, "");
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\doom");
    EXPECT_TRUE(lists.Game_Cbo.Items.empty());
    EXPECT_TRUE(lists.Script_Cbo.Items.empty());
    EXPECT_TRUE(lists.Server_Cbo.Items.empty());
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 2U);
}

TEST_F(IdentifyTest, ARowAddedWithoutAGameLosesNoOtherRows) {
    Store("NetServers", "Two;10.0.0.2;27910;3;;World;10.0.0.1;27500;1;");
    Pick("C:\\QUAKE2\\quake2.exe");
    Pick("C:\\DOOM\\doom.exe");
    lists.Server_Cbo.Items = {MakeItem("New", "1.2.3.4;666;7;")};
    SaveCatalog(run, lists, "NetServers", lists.Server_Cbo);
    EXPECT_EQ(Stored("NetServers"), "New;1.2.3.4;666;7;;Two;10.0.0.2;27910;3;;World;10.0.0.1;27500;1;");
}

TEST_F(IdentifyTest, AnEmptyPathIsToldAndTheRunGoesOn) {
    Pick("C:\\QUAKE\\qwcl.exe");
    user.Expect({"Lorvane 3D",
                 "\"\"\t\r\nThere is a problem with this path:\r\nDefaultGameDirectory not found and was NOT SET - YOU "
                 "WILL NOT BE ABLE TO LAUNCH.",
                 0, false, true, "&OK"});
    EXPECT_TRUE(Pick(""));
    EXPECT_EQ(run.DefaultGameDirectory, "");
    EXPECT_EQ(run.GameKind, Game::Quake);
    EXPECT_FALSE(run.IsQuakeWorld);
    EXPECT_TRUE(run.UsesAccelerator);
    EXPECT_FALSE(run.Ended);
}

TEST_F(IdentifyTest, WithoutASelectedRowNothingHappens) {
    run.GameKind = Game::Quake2;
    EXPECT_TRUE(IdentifyGame(run, lists));
    EXPECT_EQ(run.GameKind, Game::Quake2);
    EXPECT_EQ(system.Settings.Count(), 0U);
}

TEST_F(IdentifyTest, AChangeOfKindDropsTheModificationForGood) {
    system.Disk.AddDirectory("C:\\QUAKE2\\CTF");
    Store("Games", "Capture;-game ctf");
    Store("UseGames", "1");
    Pick("C:\\QUAKE\\quake.exe");
    Pick("C:\\QUAKE2\\quake2.exe");
    EXPECT_EQ(lists.Game_Cbo.ListIndex, 0);
    EXPECT_EQ(lists.Game_Chk.Value, 0);
    EXPECT_EQ(Stored("UseGames"), "0");
    IdentifyGame(run, lists);
    EXPECT_EQ(lists.Game_Chk.Value, 0);
}

TEST_F(IdentifyTest, TheFirstGameOfAStartLeavesTheStoredTick) {
    system.Disk.AddDirectory("C:\\QUAKE\\CTF");
    Store("Games", "Capture;-game ctf");
    Store("UseGames", "1");
    Pick("C:\\QUAKE\\quake.exe");
    EXPECT_EQ(lists.Game_Chk.Value, 0);
    EXPECT_EQ(Stored("UseGames"), "1");
}

TEST_F(IdentifyTest, AGamePickedBehindAnUnknownOneDropsTheModificationForGood) {
    system.Disk.AddDirectory("C:\\QUAKE\\CTF");
    Store("Games", "Capture;-game ctf");
    Store("UseGames", "1");
    Pick("C:\\DOOM\\doom.exe");
    run.MainFormLoaded = true;
    Pick("C:\\QUAKE\\quake.exe");
    EXPECT_EQ(Stored("UseGames"), "0");
}

TEST_F(IdentifyTest, TheSameKindKeepsTheModification) {
    system.Disk.AddDirectory("C:\\QUAKE\\CTF");
    Store("Games", "Capture;-game ctf");
    Store("UseGames", "1");
    Pick("C:\\QUAKE\\quake.exe");
    Pick("C:\\QUAKE\\glquake.exe");
    EXPECT_EQ(lists.Game_Chk.Value, 1);
}

TEST_F(IdentifyTest, ASecondPickOfTheSameRowRunsEverythingAgain) {
    Pick("C:\\QUAKE\\quake.exe");
    EXPECT_TRUE(lists.Script_Cbo.Items.empty());
    system.Disk.AddFile("C:\\QUAKE\\ID1\\new.cfg");
    EXPECT_TRUE(IdentifyGame(run, lists));
    EXPECT_EQ(Rows(lists.Script_Cbo), (TextList{"new.cfg|c:\\quake\\id1\\new.cfg"}));
}

TEST_F(IdentifyTest, ADamagedCatalogEndsIt) {
    Store("NetServers", "Home;127.0.0.1;26000;0");
    ExpectDamage("defaultServers", "Home;127.0.0.1;26000;0");
    EXPECT_FALSE(Pick("C:\\QUAKE\\quake.exe"));
    EXPECT_TRUE(run.Ended);
}

TEST_F(IdentifyTest, AnExecutableInARootHasTheDriveAsItsDirectory) {
    EXPECT_TRUE(Pick("C:\\doom.exe"));
    EXPECT_EQ(run.DefaultGameDirectory, "c:");
}

class MissionPackTest : public CatalogsTest {
  protected:
    MissionPackTest() {
        run.GameKind = Game::Hexen2;
        lists.Game_Cbo.Items = {MakeItem("CTF", "-game ctf"), MakeItem("Portals of Praevus", "-game Portals"),
                                MakeItem("Again", "-game portals")};
        lists.Game_Cbo.ListIndex = 0;
    }
};

TEST_F(MissionPackTest, ItsExecutableSelectsTheFirstPortals) {
    run.IsMissionPack = true;
    ApplyMissionPackRule(run, lists);
    EXPECT_EQ(lists.Game_Cbo.ListIndex, 1);
    EXPECT_EQ(lists.Game_Chk.Value, 1);
}

TEST_F(MissionPackTest, WithoutThatRowNothingHappens) {
    run.IsMissionPack = true;
    lists.Game_Cbo.Items.resize(1);
    ApplyMissionPackRule(run, lists);
    EXPECT_EQ(lists.Game_Cbo.ListIndex, 0);
    EXPECT_EQ(lists.Game_Chk.Value, 0);
}

TEST_F(MissionPackTest, AnotherExecutableDropsPortals) {
    lists.Game_Cbo.ListIndex = 2;
    lists.Game_Chk.Value = 1;
    ApplyMissionPackRule(run, lists);
    EXPECT_EQ(lists.Game_Cbo.ListIndex, 2);
    EXPECT_EQ(lists.Game_Chk.Value, 0);
}

TEST_F(MissionPackTest, AnotherModificationStays) {
    lists.Game_Chk.Value = 1;
    ApplyMissionPackRule(run, lists);
    EXPECT_EQ(lists.Game_Chk.Value, 1);
}

TEST_F(MissionPackTest, AnotherGameKeepsPortals) {
    run.GameKind = Game::Quake;
    lists.Game_Cbo.ListIndex = 1;
    lists.Game_Chk.Value = 1;
    ApplyMissionPackRule(run, lists);
    EXPECT_EQ(lists.Game_Chk.Value, 1);
}

TEST_F(IdentifyTest, HexenWorldIsHexen2WithAFlag) {
    Pick("C:\\HEXEN2\\hwcl.exe +x");
    EXPECT_EQ(run.GameKind, Game::Hexen2);
    EXPECT_TRUE(run.IsHexenWorld);
    EXPECT_FALSE(run.IsMissionPack);
    EXPECT_FALSE(run.UsesAccelerator);
    Pick("C:\\HEXEN2\\hwcl.exe");
    EXPECT_FALSE(run.IsHexenWorld);
}

TEST_F(IdentifyTest, TheFlagsOfTheGameBeforeAreClearedWithoutAGameToo) {
    Pick("C:\\HEXEN2\\hwcl.exe +x");
    Pick("C:\\DOOM\\doom.exe");
    EXPECT_FALSE(run.IsHexenWorld);
    EXPECT_TRUE(run.UsesAccelerator);
    Pick("C:\\HEXEN2\\h2mp.exe");
    Pick("C:\\DOOM\\doom.exe");
    EXPECT_FALSE(run.IsMissionPack);
    Pick("C:\\QUAKE\\qwcl.exe");
    Pick("C:\\DOOM\\doom.exe");
    EXPECT_FALSE(run.IsQuakeWorld);
}

}  // namespace
}  // namespace lv
