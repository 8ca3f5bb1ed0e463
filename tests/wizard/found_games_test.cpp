#include "wizard/found_games.h"

#include "tests/wizard/found_games_fixture.h"

namespace lv {

TEST_F(FoundGamesTest, FillTheirRowsBeforeTheFirstClick) {
    AddQuake();
    AddEngine("quakespasm");
    user.In<Install_Frm>([](Install_Frm& form) {
        EXPECT_EQ(form.Game_Chk[kQuake].Value, 1);
        EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\HOME\\games\\quake");
        EXPECT_EQ(form.Game_Chk[kHexen2].Value, 0);
        EXPECT_EQ(form.Found_Lbl.Caption, "Found: Quake. Plays here: QuakeSpasm. Click 'OK' to go on.");
        Install_Cancel_Cmd_Click(form);
    });
    ShowInstallWizard(launcher);
}

TEST_F(FoundGamesTest, NothingIsFilledInWhereNothingIsFound) {
    user.In<Install_Frm>([](Install_Frm& form) {
        EXPECT_EQ(form.Game_Chk[kQuake].Value, 0);
        EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "");
        EXPECT_EQ(form.Status_Lbl.Caption, "");
        EXPECT_EQ(form.Found_Lbl.Caption,
                  "No game found in the usual places. Tick yours, and press 'Browse' or 'Do An Auto-Search'.");
        Install_Cancel_Cmd_Click(form);
    });
    ShowInstallWizard(launcher);
}

TEST_F(FoundGamesTest, WhatCouldPlayIsNamedWithoutAGameToo) {
    AddEngine("quakespasm");
    AddEngine("mvdsv");
    EXPECT_EQ(
        FoundText(LookAround(run, launcher.Engines)),
        "No game found in the usual places. Here to play with: QuakeSpasm, mvdsv. Tick yours, and press 'Browse' or "
        "'Do An Auto-Search'.");
}

TEST_F(FoundGamesTest, ACrowdedPlaceIsTold) {
    AddQuake();
    for (int i = 0; i < 3000; ++i) {
        system.Disk.AddDirectory(Join("C:\\HOME\\games\\a", std::to_string(i)));
    }
    AddEngine("quakespasm");
    EXPECT_EQ(FoundText(LookAround(run, launcher.Engines)),
              "Found: Quake. Plays here: QuakeSpasm. C:\\HOME\\games holds too much for a quick look: 'Do An "
              "Auto-Search' looks through it all. Click 'OK' to go on.");
}

TEST_F(FoundGamesTest, DirectoriesWhoseNamesNoGameCouldOpenAreTold) {
    system.Disk.AddDirectory("C:\\HOME\\games");
    system.Disk.Nameless["c:\\home\\games"] = 1;
    EXPECT_EQ(FoundText(LookAround(run, launcher.Engines)),
              "No game found in the usual places. 1 directory has a name that the games could not open: rename it with "
              "Western letters if there is a game in it. Tick yours, and press 'Browse' or 'Do An Auto-Search'.");
    AddQuake();
    system.Disk.Nameless["c:\\home\\games\\quake"] = 1;
    AddEngine("quakespasm");
    EXPECT_EQ(
        FoundText(LookAround(run, launcher.Engines)),
        "Found: Quake. Plays here: QuakeSpasm. 2 directories have names that the games could not open: rename them "
        "with Western letters if there is a game in them. Click 'OK' to go on.");
}

TEST_F(FoundGamesTest, ADirectoryWithALineEndInItsNameIsPassedOver) {
    system.Disk.AddFile("C:\\HOME\\games\\new\nline\\id1\\pak0.pak");
    EXPECT_TRUE(LookAround(run, launcher.Engines).Trees.empty());
}

TEST_F(FoundGamesTest, AKnownRowStaysAsItIs) {
    AddQuake();
    user.In<Install_Frm>([](Install_Frm& form) {
        EXPECT_EQ(form.Game_Chk[kQuake].Value, 2);
        EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\QUAKE");
        Install_Cancel_Cmd_Click(form);
    });
    ShowInstallScan(launcher, {{kQuake, "C:\\QUAKE"}});
}

TEST_F(FoundGamesTest, TheWholeGameCountsAheadOfItsShareware) {
    AddQuake(false);
    system.Disk.AddFile("C:\\HOME\\games\\quake-full\\id1\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\quake-full\\id1\\pak1.pak");
    const FoundGames found = LookAround(run, launcher.Engines);
    ASSERT_NE(TreeOfRow(found, kQuake), nullptr);
    EXPECT_EQ(TreeOfRow(found, kQuake)->Directory, "C:\\HOME\\games\\quake-full");
}

TEST_F(FoundGamesTest, ServersPlayNothing) {
    AddQuake();
    AddEngine("darkplaces-dedicated");
    const FoundGames found = LookAround(run, launcher.Engines);
    ASSERT_EQ(found.Engines.size(), 1u);
    EXPECT_FALSE(PlaysRow(*found.Engines[0].Its, kQuake));
    EXPECT_TRUE(ServesRow(*found.Engines[0].Its, kQuake));
    EXPECT_FALSE(ServesRow(*found.Engines[0].Its, kHexen2));
    EXPECT_EQ(FoundText(found), "Found: Quake. No engine here for: Quake. Click 'OK' to go on.");
}

TEST_F(FoundGamesTest, AProgramInTheGamesOwnDirectoryPlaysIt) {
    for (const char* const program : {"glquake.exe", "quakespasm"}) {
        AddQuake();
        system.Disk.AddFile(Join("C:\\HOME\\games\\quake\\", program));
        EXPECT_EQ(FoundText(LookAround(run, launcher.Engines)), "Found: Quake. Click 'OK' to go on.") << program;
        (void)system.Disk.Delete(Join("C:\\HOME\\games\\quake\\", program));
    }
    system.Disk.AddFile("C:\\HOME\\games\\quake\\darkplaces-dedicated");
    EXPECT_EQ(FoundText(LookAround(run, launcher.Engines)),
              "Found: Quake. No engine here for: Quake. Click 'OK' to go on.");
}

TEST_F(FoundGamesTest, WithoutPackagesThePageIsNamed) {
    const auto advice = AdviceFor(launcher.Engines, kQuake, false);
    ASSERT_TRUE(advice);
    EXPECT_FALSE(advice->IsCommand);
    EXPECT_EQ(advice->Engine, "QuakeSpasm");
    EXPECT_TRUE(advice->What.starts_with("http")) << advice->What;
}

TEST_F(FoundGamesTest, WithoutAPackageThePageIsNamed) {
    const auto advice = AdviceFor(launcher.Engines, kHexen2);
    ASSERT_TRUE(advice);
    EXPECT_FALSE(advice->IsCommand);
    EXPECT_TRUE(advice->What.starts_with("http")) << advice->What;
    EXPECT_FALSE(AdviceFor(launcher.Engines, kShogo));
}

TEST_F(FoundGamesTest, TheMenuCallsTheSetupAgain) {
    AddGames();
    Load();
    ConnectWizard(launcher);
    AddQuake();
    AddEngine("quakespasm");
    user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
    Menu_Click(launcher, MenuItem::SetUpGames_Bar);
    EXPECT_EQ(window.Exe_Cbo.Items.back().Title, "QuakeSpasm");
}

TEST_F(FoundGamesTest, APlayerServesNothing) {
    AddEngine("quakespasm");
    const FoundGames found = LookAround(run, launcher.Engines);
    ASSERT_EQ(found.Engines.size(), 1u);
    EXPECT_FALSE(ServesRow(*found.Engines[0].Its, kQuake));
}

TEST_F(FoundGamesTest, AGameInSeveralPlacesIsCounted) {
    AddQuake();
    AddEngine("quakespasm");
    system.Disk.AddFile("C:\\HOME\\games\\q\\id1\\pak0.pak");
    const FoundGames found = LookAround(run, launcher.Engines);
    EXPECT_EQ(TreesOfRow(found, kQuake).size(), 2u);
    EXPECT_TRUE(TreesOfRow(found, kHexen2).empty());
    EXPECT_EQ(FoundText(found), "Found: Quake (2 places). Plays here: QuakeSpasm. Click 'OK' to go on.");
}

TEST(SearchText, CountsAndNamesWhatWasFound) {
    EXPECT_EQ(SearchText({"Quake"}, {}), "1 game found: Quake. Click 'OK' to go on.");
    EXPECT_EQ(SearchText({"Quake", "Blood 2"}, {"Sin", "Shogo"}),
              "2 games found: Quake, Blood 2. Not found: Sin, Shogo. Click 'OK' to go on.");
    EXPECT_EQ(SearchText({}, {"Sin", "Shogo"}),
              "Nothing found of: Sin, Shogo. Click 'Browse' to show where a game lies.");
}

TEST_F(FoundGamesTest, AGameWithoutAnEngineIsSaidToBe) {
    AddQuake();
    AddEngine("quakespasm");
    system.Disk.AddFile("C:\\HOME\\games\\hexen2\\data1\\pak0.pak");
    EXPECT_EQ(FoundText(LookAround(run, launcher.Engines)),
              "Found: Quake, Hexen 2. Plays here: QuakeSpasm. No engine here for: Hexen 2. Click 'OK' to go on.");
}

}  // namespace lv
