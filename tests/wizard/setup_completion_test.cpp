#include "wizard/setup_completion.h"

#include "tests/wizard/wizard_fixture.h"

namespace lv {

class SetupCompletion : public WizardTest {
  protected:
    void Choose(Install_Frm& form, Row row, TextView path) {
        Tick(form, row);
        form.GamePath_Txt[row].Text = path;
    }
    Text Executables() { return Stored(kOptions, "Executables"); }
};

TEST_F(SetupCompletion, EveryProgramHasItsName) {
    struct Program {
        Row Game;
        const char* Title;
        const char* File;
    };
    const std::vector<Program> programs = {
        {kQuake, "Quake", "quake.exe"},
        {kQuake, "GL Quake", "glquake.exe"},
        {kQuake, "QuakeWorld", "qwcl.exe"},
        {kQuake, "GL QuakeWorld", "glqwcl.exe"},
        {kQuake, "WinQuake", "winquake.exe"},
        {kQuake, "V Quake", "vquake.exe"},
        {kHexen2, "Hexen 2", "h2.exe"},
        {kHexen2, "GL Hexen 2", "glh2.exe"},
        {kHexen2, "Hexen World", "hwcl.exe"},
        {kHexen2, "Hexen 2 - Portals", "h2mp.exe"},
        {kHexen2, "GL Hexen 2 - Portals", "glh2mp.exe"},
        {kQuake2, "Quake 2", "quake2.exe"},
        {kUnreal, "Unreal", "unreal.exe"},
        {kSin, "Sin", "sin.exe"},
        {kHeretic2, "Heretic 2", "heretic2.exe"},
        {kShogo, "Shogo", "shogo.exe"},
        {kBlood2, "Blood 2", "blood2.exe"},
        {kBlood2, "Blood 2", "b2demo.exe"},
        {kHalfLife, "Half-Life", "hl.exe"},
    };
    int number = 0;
    for (const Program& program : programs) {
        const Text directory = "c:\\d" + std::to_string(number++);
        system.Disk.AddFile(directory + "\\" + program.File);
        Save(run, kOptions, "Executables", "");
        Install_Frm form(run);
        Choose(form, program.Game, directory);
        Install_OK_Cmd_Click(form);
        EXPECT_EQ(Executables(), Text(program.Title) + ";" + directory + "\\" + program.File);
    }
}

TEST_F(SetupCompletion, TakesAPathOfTheSystemsOwn) {
    system.Disk.AddFile("C:\\HOME\\games\\quake\\quake.exe");
    Install_Frm form(run);
    Choose(form, kQuake, " ~/games/quake ");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(), "Quake;c:\\home\\games\\quake\\quake.exe");
}

TEST_F(SetupCompletion, ProgramsOfOneGameComeInOrder) {
    for (const char* name : {"VQUAKE.EXE", "QWCL.EXE", "QUAKE.EXE", "GLQUAKE.EXE"}) {
        system.Disk.AddFile(Text("C:\\QUAKE\\") + name);
    }
    Install_Frm form(run);
    Choose(form, kQuake, "C:\\QUAKE");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(),
              "Quake;c:\\quake\\quake.exe;GL Quake;c:\\quake\\glquake.exe;QuakeWorld;c:\\quake\\qwcl.exe;V "
              "Quake;c:\\quake\\vquake.exe");
    EXPECT_TRUE(form.DialogResult);
    EXPECT_TRUE(form.Closed);
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\quake\\");
}

TEST_F(SetupCompletion, OfANewListAnEntryThatStartsIsPicked) {
    system.Disk.AddFile("C:\\QUAKE\\QUAKE.EXE");
    system.Disk.AddFile("C:\\QUAKE\\GLQUAKE.EXE");
    system.Disk.AddFile("C:\\QUAKE\\WINQUAKE.EXE");
    system.Programs.WithoutRunner = {"c:\\quake\\quake.exe"};
    Install_Frm form(run);
    Choose(form, kQuake, "C:\\QUAKE");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(),
              "Quake;c:\\quake\\quake.exe;GL Quake;c:\\quake\\glquake.exe;WinQuake;c:\\quake\\winquake.exe");
    EXPECT_EQ(Stored(kOptions, "ExecutablesPos"), "1");
}

TEST_F(SetupCompletion, OfAListThatWasThereThePickStays) {
    Save(run, kOptions, "Executables", "Quake;c:\\quake\\quake.exe");
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    system.Programs.WithoutRunner = {"c:\\quake\\quake.exe"};
    Install_Frm form(run);
    Choose(form, kSin, "C:\\SIN");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Stored(kOptions, "ExecutablesPos"), "(none)");
}

TEST_F(SetupCompletion, NewEntriesAddToWhatIsThere) {
    Save(run, kOptions, "Executables", " Old;C:\\OLD\\OLD.EXE ");
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    Install_Frm form(run);
    Choose(form, kSin, " C:\\SIN ");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(), "Old;C:\\OLD\\OLD.EXE;Sin;c:\\sin\\sin.exe");
}

TEST_F(SetupCompletion, AMissingPathIsToldByTheGamesName) {
    const char* const names[] = {"Quake",     "Hexen 2", "Quake 2", "Unreal",   "Sin",
                                 "Heretic 2", "Shogo",   "Blood 2", "Half-Life"};
    for (int i = 0; i < 9; ++i) {
        Install_Frm form(run);
        Choose(form, static_cast<Row>(i), "  ");
        ExpectTold(Text(names[i]) + " Path is missing.");
        Install_OK_Cmd_Click(form);
        EXPECT_FALSE(form.Closed);
        form.GamePath_Txt[static_cast<std::size_t>(i)].Text = "C:\\NOWHERE";
        ExpectTold(Text(names[i]) + " Path does not exist.");
        Install_OK_Cmd_Click(form);
        EXPECT_FALSE(form.Closed);
    }
    EXPECT_EQ(Executables(), "(none)");
}

TEST_F(SetupCompletion, ABadRowLeavesEverythingAsItWas) {
    system.Disk.AddFile("C:\\QUAKE\\QUAKE.EXE");
    Install_Frm form(run);
    Choose(form, kQuake, "C:\\QUAKE");
    Choose(form, kSin, "C:\\NOWHERE");
    ExpectTold("Sin Path does not exist.");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(), "(none)");
    EXPECT_EQ(run.DefaultGameDirectory, "");
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\QUAKE");
    EXPECT_EQ(form.Focus, "GamePath_Txt(4)");
}

TEST_F(SetupCompletion, WithoutAnyExecutableTheWindowStaysOpen) {
    system.Disk.AddDirectory("C:\\EMPTY");
    Install_Frm form(run);
    Choose(form, kQuake, "C:\\EMPTY");
    ExpectTold("No supported executables were found\r\nin the selected directories.");
    Install_OK_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_EQ(Executables(), "(none)");
}

TEST_F(SetupCompletion, ADirectoryWithoutExecutablesAddsNothing) {
    system.Disk.AddDirectory("C:\\EMPTY");
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    Install_Frm form(run);
    Choose(form, kQuake2, "C:\\EMPTY");
    Choose(form, kSin, "C:\\SIN");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(), "Sin;c:\\sin\\sin.exe");
}

TEST_F(SetupCompletion, ASecondRunWithTheSamePathsAddsNothing) {
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    for (int i = 0; i < 2; ++i) {
        Install_Frm form(run);
        Choose(form, kSin, "C:\\SIN");
        Install_OK_Cmd_Click(form);
        EXPECT_TRUE(form.DialogResult);
        EXPECT_EQ(Executables(), "Sin;c:\\sin\\sin.exe");
    }
}

TEST_F(SetupCompletion, AHandWrittenUpperCaseEntryIsCaught) {
    Save(run, kOptions, "Executables", "Mine;C:\\SIN\\SIN.EXE");
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    Install_Frm form(run);
    Choose(form, kSin, "C:\\SIN");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(), "Mine;C:\\SIN\\SIN.EXE");
}

TEST_F(SetupCompletion, Blood2MayStandTwice) {
    system.Disk.AddFile("C:\\B\\BLOOD2.EXE");
    system.Disk.AddFile("C:\\B\\B2DEMO.EXE");
    Install_Frm form(run);
    Choose(form, kBlood2, "C:\\B");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(), "Blood 2;c:\\b\\blood2.exe;Blood 2;c:\\b\\b2demo.exe");
}

TEST_F(SetupCompletion, ATrailingBackslashIsDoubledAndStillFound) {
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    Install_Frm form(run);
    Choose(form, kSin, "C:\\SIN\\");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(), "Sin;c:\\sin\\\\sin.exe");
}

TEST_F(SetupCompletion, TheFirstGameGivesTheDefaultDirectory) {
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    system.Disk.AddFile("C:\\HL\\HL.EXE");
    Install_Frm form(run);
    Choose(form, kSin, "C:\\SIN");
    Choose(form, kHalfLife, "C:\\HL");
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\sin\\");
}

TEST_F(SetupCompletion, ADefaultDirectoryStaysForAllButQuake) {
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    system.Disk.AddFile("C:\\QUAKE\\QUAKE.EXE");
    run.DefaultGameDirectory = "D:\\OLD";
    Install_Frm sin(run);
    Choose(sin, kSin, "C:\\SIN");
    Install_OK_Cmd_Click(sin);
    EXPECT_EQ(run.DefaultGameDirectory, "D:\\OLD");
    Install_Frm quake(run);
    Choose(quake, kQuake, "C:\\QUAKE");
    Install_OK_Cmd_Click(quake);
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\quake\\");
}

TEST_F(SetupCompletion, APathThatWouldDamageTheListIsLeftOut) {
    system.Disk.AddFile("C:\\A;B\\SIN.EXE");
    Install_Frm form(run);
    Choose(form, kSin, "C:\\A;B");
    ExpectTold("No supported executables were found\r\nin the selected directories.");
    Install_OK_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
}

TEST_F(SetupCompletion, KnownGamesAloneAreEnough) {
    Save(run, kOptions, "Executables", "Sin;C:\\SIN\\SIN.EXE");
    Install_Frm form(run, {{kSin, "C:\\SIN"}});
    Install_OK_Cmd_Click(form);
    EXPECT_TRUE(form.DialogResult);
    EXPECT_EQ(Executables(), "Sin;C:\\SIN\\SIN.EXE");
}

TEST_F(SetupCompletion, AProgramWhosePathTheListHoldsAnywhereIsNotAdded) {
    Save(run, kOptions, "Executables", "Mine;C:\\SIN\\SIN.EXE.BAT");
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    Install_Frm form(run);
    Choose(form, kSin, "C:\\SIN");
    Install_OK_Cmd_Click(form);
    EXPECT_TRUE(form.DialogResult);
    EXPECT_EQ(Executables(), "Mine;C:\\SIN\\SIN.EXE.BAT");
}

}  // namespace lv
