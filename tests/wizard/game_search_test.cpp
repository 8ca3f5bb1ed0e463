#include "wizard/game_search.h"

#include <algorithm>

#include "tests/wizard/wizard_fixture.h"

namespace lv {

using GameSearch = WizardTest;

TEST_F(GameSearch, UncheckingAllRowsGivesTheMessageAndSearchesNothing) {
    Install_Frm form(run);
    ExpectTold("Please check the games you have before starting the Auto-Search.");
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.Status_Lbl.Caption, "");
    EXPECT_FALSE(form.Hourglass);
    EXPECT_TRUE(system.Disk.Listed.empty());
}

TEST_F(GameSearch, EveryUsualPlaceIsLookedAt) {
    struct Place {
        Row Game;
        const char* Path;
        const char* File;
    };
    const std::vector<Place> places = {
        {kQuake, "\\quake\\", "quake.exe"},
        {kQuake, "\\games\\quake\\", "quake.exe"},
        {kQuake, "\\program files\\quake\\", "quake.exe"},
        {kHexen2, "\\hexen2\\", "h2.exe"},
        {kHexen2, "\\games\\hexen2\\", "h2.exe"},
        {kHexen2, "\\program files\\hexen2\\", "h2.exe"},
        {kQuake2, "\\quake2\\", "quake2.exe"},
        {kQuake2, "\\games\\quake2\\", "quake2.exe"},
        {kQuake2, "\\program files\\quake2\\", "quake2.exe"},
        {kUnreal, "\\unreal\\system\\", "unreal.exe"},
        {kUnreal, "\\games\\unreal\\system\\", "unreal.exe"},
        {kUnreal, "\\program files\\unreal\\system\\", "unreal.exe"},
        {kSin, "\\sin\\", "sin.exe"},
        {kSin, "\\games\\sin\\", "sin.exe"},
        {kSin, "\\program files\\sin\\", "sin.exe"},
        {kSin, "\\activision\\sin\\", "sin.exe"},
        {kSin, "\\games\\activision\\sin\\", "sin.exe"},
        {kSin, "\\program files\\activision\\sin\\", "sin.exe"},
        {kSin, "\\sin demo\\", "sin.exe"},
        {kSin, "\\games\\sin demo\\", "sin.exe"},
        {kSin, "\\program files\\sin demo\\", "sin.exe"},
        {kSin, "\\activision\\sin demo\\", "sin.exe"},
        {kSin, "\\games\\activision\\sin demo\\", "sin.exe"},
        {kSin, "\\program files\\activision\\sin demo\\", "sin.exe"},
        {kHeretic2, "\\heretic ii\\", "Heretic2.exe"},
        {kHeretic2, "\\games\\heretic ii\\", "Heretic2.exe"},
        {kHeretic2, "\\program files\\heretic ii\\", "Heretic2.exe"},
        {kHeretic2, "\\heretic ii demo\\", "Heretic2.exe"},
        {kHeretic2, "\\games\\heretic ii demo\\", "Heretic2.exe"},
        {kHeretic2, "\\program files\\heretic ii demo\\", "Heretic2.exe"},
        {kShogo, "\\shogo\\", "shogo.exe"},
        {kShogo, "\\games\\shogo\\", "shogo.exe"},
        {kShogo, "\\program files\\shogo\\", "shogo.exe"},
        {kBlood2, "\\blood2\\", "blood2.exe"},
        {kBlood2, "\\games\\blood2\\", "blood2.exe"},
        {kBlood2, "\\program files\\blood2\\", "blood2.exe"},
        {kHalfLife, "\\sierra\\half-life\\", "HL.exe"},
        {kHalfLife, "\\games\\sierra\\half-life\\", "HL.exe"},
        {kHalfLife, "\\program files\\sierra\\half-life\\", "HL.exe"},
    };
    ASSERT_EQ(places.size(), 39u);
    // Each place wins over those before it.
    for (const Place& place : places) {
        const Text directory = Text("D:") + place.Path;
        system.Disk.AddFile(directory + place.File);
        Install_Frm form(run);
        Tick(form, place.Game);
        Install_AutoSearch_Cmd_Click(form);
        EXPECT_EQ(form.GamePath_Txt[place.Game].Text, directory.substr(0, directory.size() - 1));
        EXPECT_EQ(form.Status_Lbl.Caption, "Search Complete:");
        EXPECT_TRUE(form.Found_Lbl.Caption.starts_with("1 game found: ")) << form.Found_Lbl.Caption;
    }
}

TEST_F(GameSearch, TheLastDriveWinsOverTheFirst) {
    system.Disk.AddFile("C:\\quake\\quake.exe");
    system.Disk.AddFile("D:\\quake\\quake.exe");
    Install_Frm form(run);
    Tick(form, kQuake);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "D:\\quake");
}

TEST_F(GameSearch, TheLaterPlaceWinsOverTheLaterDrive) {
    system.Disk.AddFile("C:\\games\\quake\\quake.exe");
    system.Disk.AddFile("D:\\quake\\quake.exe");
    Install_Frm form(run);
    Tick(form, kQuake);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\games\\quake");
}

TEST_F(GameSearch, AAndBAreNeverTouched) {
    system.Disk.AddFile("A:\\quake\\quake.exe");
    system.Disk.AddFile("B:\\quake\\quake.exe");
    Install_Frm form(run);
    Tick(form, kQuake);
    ExpectWalkOffer("Quake", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "");
    EXPECT_TRUE(std::none_of(system.Disk.Listed.begin(), system.Disk.Listed.end(),
                             [](const Text& path) { return path[0] == 'A' || path[0] == 'B'; }));
}

TEST_F(GameSearch, TheGamesNotFoundAreNamedInOrder) {
    Install_Frm form(run);
    for (int i = 0; i < 9; ++i) {
        Tick(form, static_cast<Row>(i));
    }
    ExpectWalkOffer("Quake, Hexen2, Quake2, Unreal, Sin, Heretic 2, Shogo, Blood 2, Half-Life", 1);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.Status_Lbl.Caption, "Search Complete:");
    EXPECT_TRUE(system.Disk.Listed.empty());
    EXPECT_FALSE(form.Hourglass);
}

TEST_F(GameSearch, AGameFoundInAUsualPlaceIsNotLookedForInTheWalk) {
    system.Disk.AddFile("C:\\quake\\quake.exe");
    system.Disk.AddFile("C:\\zzz\\quake.exe");
    system.Disk.AddFile("C:\\deep\\down\\SIN.EXE");
    Install_Frm form(run);
    Tick(form, kQuake);
    Tick(form, kSin);
    form.GamePath_Txt[kQuake].Text = "by hand";
    ExpectWalkOffer("Sin", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\quake");
    EXPECT_EQ(form.GamePath_Txt[kSin].Text, "C:\\deep\\down");
}

TEST_F(GameSearch, TheWalkFindsEachGameByItsName) {
    const char* const files[] = {"quake.exe",    "h2.exe",    "quake2.exe", "unreal.exe", "sin.exe",
                                 "heretic2.exe", "shogo.exe", "blood2.exe", "hl.exe"};
    Install_Frm form(run);
    for (int i = 0; i < 9; ++i) {
        system.Disk.AddFile(Text("C:\\elsewhere\\g") + static_cast<char>('0' + i) + "\\" + files[i]);
        Tick(form, static_cast<Row>(i));
    }
    user.Expect({"Lorvane 3D", "extensive", 0});
    Install_AutoSearch_Cmd_Click(form);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(form.GamePath_Txt[static_cast<std::size_t>(i)].Text,
                  Text("C:\\elsewhere\\g") + static_cast<char>('0' + i));
    }
}

TEST_F(GameSearch, InTheWalkTheFirstHitCountsAndEndsIt) {
    system.Disk.AddFile("C:\\a\\quake.exe");
    system.Disk.AddFile("C:\\b\\quake.exe");
    Install_Frm form(run);
    Tick(form, kQuake);
    ExpectWalkOffer("Quake", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\a");
    EXPECT_EQ(system.Disk.Listed.back(), "C:\\a");
}

TEST_F(GameSearch, AGameInADrivesRootHasNoBackslash) {
    system.Disk.AddFile("D:\\hl.exe");
    Install_Frm form(run);
    Tick(form, kHalfLife);
    ExpectWalkOffer("Half-Life", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kHalfLife].Text, "D:");
}

TEST_F(GameSearch, ADirectoryOfThatNameIsNoGame) {
    system.Disk.AddDirectory("C:\\x\\hl.exe");
    Install_Frm form(run);
    Tick(form, kHalfLife);
    ExpectWalkOffer("Half-Life", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kHalfLife].Text, "");
}

TEST_F(GameSearch, ADriveThatIsNotReadyIsSkipped) {
    system.Disk.AddDrive("D:");
    system.Disk.DrivesNotReady.insert("D:");
    Install_Frm form(run);
    Tick(form, kQuake);
    ExpectWalkOffer("Quake", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(std::count(system.Disk.Listed.begin(), system.Disk.Listed.end(), "D:\\"), 0);
}

TEST_F(GameSearch, ZipMagicFoldersAreWalkedButHoldNoGames) {
    system.Disk.AddFile("C:\\old.zip\\in\\quake.exe");
    Install_Frm form(run);
    Tick(form, kQuake);
    form.ZipMagic_Chk.Value = 1;
    ExpectWalkOffer("Quake", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "");
    EXPECT_EQ(std::count(system.Disk.Listed.begin(), system.Disk.Listed.end(), "C:\\old.zip\\in"), 1);
    form.ZipMagic_Chk.Value = 0;
    ExpectWalkOffer("Quake", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\old.zip\\in");
}

TEST_F(GameSearch, OnlyTheSearchButtonWorksMeanwhile) {
    Install_Frm form(run, {{kSin, "C:\\SIN"}});
    Tick(form, kQuake);
    ExpectWalkOffer("Quake", 0);
    bool looked = false;
    user.OnPump = [&] {
        looked = true;
        EXPECT_TRUE(form.SearchRunning);
        EXPECT_TRUE(form.Hourglass);
        EXPECT_FALSE(form.OK_Cmd.Enabled);
        EXPECT_FALSE(form.Cancel_Cmd.Enabled);
        EXPECT_FALSE(form.Browse_Cmd[kQuake].Enabled);
        EXPECT_EQ(form.AutoSearch_Cmd.Caption, "Cancel &Search");
        EXPECT_TRUE(form.AutoSearch_Cmd.Enabled);
        EXPECT_EQ(form.Status_Lbl.Caption, "Searching...  C:\\");
    };
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_TRUE(looked);
    EXPECT_TRUE(form.OK_Cmd.Enabled);
    EXPECT_TRUE(form.Cancel_Cmd.Enabled);
    EXPECT_TRUE(form.Browse_Cmd[kQuake].Enabled);
    EXPECT_FALSE(form.Browse_Cmd[kSin].Enabled);
    EXPECT_EQ(form.AutoSearch_Cmd.Caption, "&Do An Auto-Search");
    EXPECT_EQ(form.Status_Lbl.Caption, "Search Complete:");
    EXPECT_FALSE(form.SearchRunning);
    EXPECT_FALSE(form.Hourglass);
}

TEST_F(GameSearch, ACancelKeepsThePathsFoundSoFar) {
    system.Disk.AddFile("C:\\a\\quake.exe");
    system.Disk.AddFile("C:\\b\\c\\sin.exe");
    system.Time.Step = 1;  // every look at the clock is a second later
    Install_Frm form(run);
    Tick(form, kQuake);
    Tick(form, kSin);
    ExpectWalkOffer("Quake, Sin", 0);
    user.OnPump = [&] {
        if (form.Status_Lbl.Caption == "Searching...  C:\\b") {
            Install_AutoSearch_Cmd_Click(form);
        }
    };
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\a");
    EXPECT_EQ(form.GamePath_Txt[kSin].Text, "");
    EXPECT_EQ(form.Status_Lbl.Caption, "Search Complete:");
    EXPECT_FALSE(form.CancelSearch);
}

TEST_F(GameSearch, EventsAreHandledTenTimesASecondOrMore) {
    for (int i = 0; i < 500; ++i) {
        system.Disk.AddDirectory("C:\\games\\d" + std::to_string(i));
    }
    system.Time.Step = 0.001;  // a directory, and its look at the clock, takes a millisecond
    Install_Frm form(run);
    Tick(form, kSin);
    ExpectWalkOffer("Sin", 0);
    std::vector<double> pumped;
    user.OnPump = [&] { pumped.push_back(system.Time.Elapsed); };
    Install_AutoSearch_Cmd_Click(form);
    ASSERT_GE(pumped.size(), 10u);
    for (std::size_t i = 1; i < pumped.size(); ++i) {
        EXPECT_LE(pumped[i] - pumped[i - 1], 0.1) << i;
    }
}

TEST_F(GameSearch, TheCloseBoxOnlyStopsASearch) {
    Install_Frm form(run);
    Tick(form, kQuake);
    ExpectWalkOffer("Quake", 0);
    user.OnPump = [&] { EXPECT_FALSE(Install_QueryUnload(form)); };
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_EQ(system.Disk.Listed.size(), 1u);
}

TEST_F(GameSearch, EventsArePumpedByTimeAndNotByDirectory) {
    for (int i = 0; i < 100; ++i) {
        system.Disk.AddDirectory("C:\\d" + std::to_string(i));
    }
    system.Time.Step = 0.001;
    Install_Frm form(run);
    Tick(form, kQuake);
    ExpectWalkOffer("Quake", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_GE(user.Pumps, 4);
    EXPECT_LE(user.Pumps, 7);
}

TEST_F(GameSearch, AProgramThatEndedStopsTheWalk) {
    Install_Frm form(run);
    Tick(form, kQuake);
    ExpectWalkOffer("Quake", 0);
    user.OnPump = [&] { EndProgram(run); };
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(system.Disk.Listed.size(), 1u);
}

TEST_F(GameSearch, AKnownGameIsNotLookedFor) {
    system.Disk.AddFile("C:\\quake\\quake.exe");
    Install_Frm form(run, {{kQuake, "D:\\MINE"}});
    Tick(form, kSin);
    ExpectWalkOffer("Sin", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "D:\\MINE");
}

TEST_F(GameSearch, TellsWhatTheUsualPlacesAndTheDisksHaveGiven) {
    system.Disk.AddFile("C:\\QUAKE\\QUAKE.EXE");
    system.Disk.AddFile("C:\\OLD\\SIN\\SIN.EXE");
    Install_Frm form(run);
    Tick(form, kQuake);
    Tick(form, kSin);
    Tick(form, kBlood2);
    ExpectWalkOffer("Sin, Blood 2", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.Status_Lbl.Caption, "Search Complete:");
    EXPECT_EQ(form.Found_Lbl.Caption, "2 games found: Quake, Sin. Not found: Blood 2. Click 'OK' to go on.");
    EXPECT_EQ(form.Found_Lbl.ToolTip, form.Found_Lbl.Caption);
}

TEST_F(GameSearch, TellsWhatARefusedWalkLeavesOpen) {
    Install_Frm form(run);
    Tick(form, kSin);
    ExpectWalkOffer("Sin", 1);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.Found_Lbl.Caption, "Nothing found of: Sin. Click 'Browse' to show where a game lies.");
}

TEST_F(GameSearch, TheWalkBeginsWithTheFirstDrive) {
    system.Disk.AddFile("D:\\a\\sin.exe");
    system.Disk.AddFile("C:\\z\\sin.exe");
    Install_Frm form(run);
    Tick(form, kSin);
    ExpectWalkOffer("Sin", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kSin].Text, "C:\\z");
    EXPECT_TRUE(std::none_of(system.Disk.Listed.begin(), system.Disk.Listed.end(),
                             [](const Text& path) { return path[0] == 'D'; }));
}

TEST_F(GameSearch, AHitOfTheWalkReplacesWhatWasTyped) {
    system.Disk.AddFile("C:\\deep\\sin.exe");
    Install_Frm form(run);
    Tick(form, kSin);
    form.GamePath_Txt[kSin].Text = "by hand";
    ExpectWalkOffer("Sin", 0);
    Install_AutoSearch_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt[kSin].Text, "C:\\deep");
}

}  // namespace lv
