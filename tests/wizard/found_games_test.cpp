#include "wizard/found_games.h"

#include "foundation/field_strings.h"

#include "tests/support/shipped_engines.h"
#include "tests/wizard/wizard_fixture.h"
#include "wizard/setup_completion.h"
#include "wizard/wizard.h"

namespace lv {

class FoundGamesTest : public WizardTest {
  protected:
    FoundGamesTest() {
        launcher.Engines = ShippedEngines();
        system.Places.IsGames = {"C:\\HOME\\games"};
        system.Places.IsPrograms = {"Z:\\usr\\games"};
    }
    void AddQuake(bool isFull = true) {
        system.Disk.AddFile("C:\\HOME\\games\\quake\\id1\\pak0.pak");
        if (isFull) {
            system.Disk.AddFile("C:\\HOME\\games\\quake\\id1\\pak1.pak");
        }
    }
    void AddEngine(TextView name) { system.Disk.AddFile(Join("Z:\\usr\\games\\", name)); }
    Text Executables() { return Stored(kOptions, "Executables"); }
};

TEST_F(FoundGamesTest, FillTheirRowsBeforeTheFirstClick) {
    AddQuake();
    AddEngine("quakespasm");
    user.In<Install_Frm>([](Install_Frm& form) {
        EXPECT_EQ(form.Game_Chk[kQuake].Value, 1);
        EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\HOME\\games\\quake");
        EXPECT_EQ(form.Game_Chk[kHexen2].Value, 0);
        EXPECT_EQ(form.Status_Lbl.Caption, "Found: Quake. Plays here: QuakeSpasm. Click 'OK' to go on.");
        Install_Cancel_Cmd_Click(form);
    });
    ShowInstallWizard(launcher);
}

TEST_F(FoundGamesTest, NothingIsFilledInWhereNothingIsFound) {
    user.In<Install_Frm>([](Install_Frm& form) {
        EXPECT_EQ(form.Game_Chk[kQuake].Value, 0);
        EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "");
        EXPECT_EQ(form.Status_Lbl.Caption, "");
        Install_Cancel_Cmd_Click(form);
    });
    ShowInstallWizard(launcher);
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
    EXPECT_TRUE(LookAround(run, launcher.Engines).Engines.empty());
}

TEST_F(FoundGamesTest, EachEngineIsAnEntryWithItsSeatInTheTree) {
    AddQuake();
    AddEngine("darkplaces");
    AddEngine("quakespasm");
    user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
    EXPECT_TRUE(ShowInstallWizard(launcher));
    EXPECT_EQ(Executables(),
              "DarkPlaces;c:\\home\\games\\quake\\darkplaces;QuakeSpasm;c:\\home\\games\\quake\\quakespasm");
    EXPECT_TRUE(system.Disk.FileExists("C:\\HOME\\games\\quake\\quakespasm"));
    EXPECT_EQ(system.Disk.ToHost("C:\\HOME\\games\\quake\\quakespasm"),
              system.Disk.ToHost("Z:\\usr\\games\\quakespasm"));
}

TEST_F(FoundGamesTest, TheOriginalProgramsStandAheadOfTheEngines) {
    AddQuake();
    AddEngine("quakespasm");
    system.Disk.AddFile("C:\\HOME\\games\\quake\\quake.exe");
    user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
    ShowInstallWizard(launcher);
    EXPECT_EQ(Executables(), "Quake;c:\\home\\games\\quake\\quake.exe;QuakeSpasm;c:\\home\\games\\quake\\quakespasm");
}

TEST_F(FoundGamesTest, ASecondRunAddsNothing) {
    AddQuake();
    AddEngine("quakespasm");
    for (int i = 0; i < 2; ++i) {
        user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
        ShowInstallWizard(launcher);
    }
    EXPECT_EQ(Executables(), "QuakeSpasm;c:\\home\\games\\quake\\quakespasm");
}

TEST_F(FoundGamesTest, AnEngineInTheTreeIsAPlainEntry) {
    AddQuake();
    system.Disk.AddFile("C:\\HOME\\games\\quake\\quakespasm");
    user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
    ShowInstallWizard(launcher);
    EXPECT_EQ(Executables(), "QuakeSpasm;c:\\home\\games\\quake\\quakespasm");
    EXPECT_EQ(Stored("Engines", "Seats"), "(none)");
}

TEST_F(FoundGamesTest, AnEngineWhoseNameBeginsAnothersIsNotPassedOver) {
    AddQuake();
    AddEngine("darkplaces-sdl");
    AddEngine("darkplaces");
    user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
    ShowInstallWizard(launcher);
    EXPECT_NE(Executables().find("quake\\darkplaces-sdl"), Text::npos) << Executables();
    EXPECT_TRUE(Join(Executables(), ";").find("quake\\darkplaces;") != Text::npos) << Executables();
}

TEST_F(FoundGamesTest, ATreeThatCannotBeWrittenIsPlayedThroughLinks) {
    system.Places.IsGames = {"Z:\\usr\\share\\games"};
    system.Disk.AddFile("Z:\\usr\\share\\games\\quake\\id1\\pak0.pak");
    system.Disk.AddFile("Z:\\usr\\share\\games\\quake\\id1\\pak1.pak");
    system.Disk.AddDrive("C:");
    system.Disk.ReadOnly.insert("z:\\usr\\share\\games\\quake");
    AddEngine("quakespasm");
    user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
    ShowInstallWizard(launcher);
    const Text entry = Executables();
    EXPECT_TRUE(entry.starts_with("QuakeSpasm;c:\\lorvane3d\\quake-")) << entry;
    const Text directory = DirectoryOf(entry.substr(entry.find(';') + 1));
    EXPECT_TRUE(system.Disk.FileExists(directory + "\\id1\\pak0.pak"));
    EXPECT_TRUE(system.Disk.FileExists(entry.substr(entry.find(';') + 1)));
}

TEST_F(FoundGamesTest, SharewareIsPlayedThroughLinksByAnEngineThatReadsItsAutoexecAlone) {
    AddQuake(false);
    AddEngine("darkplaces");
    AddEngine("quakespasm");
    user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
    ShowInstallWizard(launcher);
    EXPECT_NE(Executables().find("DarkPlaces;c:\\home\\games\\quake\\darkplaces"), Text::npos) << Executables();
    EXPECT_NE(Executables().find("QuakeSpasm;c:\\lorvane3d\\quake-"), Text::npos) << Executables();
}

TEST_F(FoundGamesTest, WithoutAnEngineThePackageIsNamedAndCopied) {
    AddQuake();
    user.Expect({"Nothing Here to Play It With", "apt install quakespasm", 1, false, false, "&OK,&Copy"});
    ExpectTold("No supported executables were found\r\nin the selected directories.");
    user.In<Install_Frm>([](Install_Frm& form) {
        Install_OK_Cmd_Click(form);
        EXPECT_FALSE(form.Closed);
        Install_Cancel_Cmd_Click(form);
    });
    ShowInstallWizard(launcher);
    EXPECT_EQ(system.Clip.Held, "apt install quakespasm");
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

TEST_F(FoundGamesTest, AGameWithoutAnEngineIsSaidToBe) {
    AddQuake();
    AddEngine("quakespasm");
    system.Disk.AddFile("C:\\HOME\\games\\hexen2\\data1\\pak0.pak");
    EXPECT_EQ(FoundText(LookAround(run, launcher.Engines)),
              "Found: Quake, Hexen 2. Plays here: QuakeSpasm. No engine here for: Hexen 2. Click 'OK' to go on.");
}

}  // namespace lv
