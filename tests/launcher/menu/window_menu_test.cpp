#include "launcher/menu/window_menu.h"

#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

class WindowMenu : public LauncherTest {
  protected:
    WindowMenu() { AddGames(); }
    void Rename(std::optional<Text> answer) {
        user.InputAnswers.push_back(std::move(answer));
        RenameButton_Bar_Click(launcher);
    }
    void BeOnTop() {
        run.MainFormLoaded = true;
        SetAlwaysOnTop(launcher, true);
    }
};

}  // namespace

TEST(NameNice, BeginsWithACapital) {
    EXPECT_EQ(NameNice("  QUAKE  "), "Quake");
}

TEST(NameNice, CapitalisesTheLetterBehindTheFirstBlank) {
    EXPECT_EQ(NameNice("CAPTURE the FLAG"), "Capture The flag");
}

TEST(NameNice, TakesASecondBlankAsTheLetter) {
    EXPECT_EQ(NameNice("a  b"), "A  b");
}

TEST(NameNice, OfNothingIsNothing) {
    EXPECT_EQ(NameNice("   "), "");
}

TEST(NameNice, KnowsAccentedLetters) {
    EXPECT_EQ(NameNice("\xE9tude \xC9T\xC9"), "\xC9tude \xC9t\xE9");
}

TEST(WithoutAccessKeys, KeepsADoubleOneAsOne) {
    EXPECT_EQ(WithoutAccessKeys("A&&B&C"), "A&BC");
}

TEST(WithoutAccessKeys, DropsOneAtTheEnd) {
    EXPECT_EQ(WithoutAccessKeys("Go&"), "Go");
}

TEST_F(WindowMenu, RenameGivesTheButtonItsCaption) {
    Rename("A&&B&C");
    EXPECT_EQ(user.Inputs, (std::vector<Text>{"New Caption|Enter a New Caption for the Exec Button!"}));
    EXPECT_EQ(window.DoIt_Cmd[0].Caption, "A&&B&C");
    EXPECT_EQ(window.Bar(MenuItem::Launch_Bar).Caption, "A&&B&C");
    EXPECT_EQ(window.ButtonBar_Cmd[0].ToolTip, "A&BC");
    EXPECT_EQ(Stored(kOptions, "CommandCaption"), "A&&B&C");
}

TEST_F(WindowMenu, RenameToNothingChangesNothing) {
    Rename("");
    EXPECT_EQ(window.DoIt_Cmd[0].Caption, "&Launch Me!");
    EXPECT_EQ(Stored(kOptions, "CommandCaption"), "(none)");
}

TEST_F(WindowMenu, ACancelledRenameChangesNothing) {
    Rename(std::nullopt);
    EXPECT_EQ(window.DoIt_Cmd[0].Caption, "&Launch Me!");
    EXPECT_EQ(Stored(kOptions, "CommandCaption"), "(none)");
}

TEST_F(WindowMenu, TheInputBoxSuspendsAlwaysOnTop) {
    BeOnTop();
    bool inBand = true;
    user.OnDialog = [&] { inBand = run.Topmost.InBand; };
    Rename(std::nullopt);
    EXPECT_FALSE(inBand);
    EXPECT_TRUE(run.Topmost.InBand);
}

TEST_F(WindowMenu, AlwaysOnTopGoesOnAndOff) {
    AlwaysOnTop_Bar_Click(launcher);
    EXPECT_TRUE(window.Bar(MenuItem::AlwaysOnTop_Bar).Checked);
    EXPECT_TRUE(run.Topmost.InBand);
    EXPECT_EQ(Stored(kOptions, "OnTop"), "True");
    AlwaysOnTop_Bar_Click(launcher);
    EXPECT_FALSE(window.Bar(MenuItem::AlwaysOnTop_Bar).Checked);
    EXPECT_FALSE(run.Topmost.InBand);
    EXPECT_EQ(Stored(kOptions, "OnTop"), "False");
}

TEST_F(WindowMenu, AlwaysOnTopSetInADialogWaitsForItsEnd) {
    run.MainFormLoaded = true;
    {
        const TopmostSuspension dialog(run);
        AlwaysOnTop_Bar_Click(launcher);
        EXPECT_FALSE(run.Topmost.InBand);
    }
    EXPECT_TRUE(run.Topmost.InBand);
}

TEST_F(WindowMenu, ADefaultEditorIsChosen) {
    user.FileAnswers.push_back(std::optional<Text>("C:\\TOOLS\\EDIT.EXE"));
    ScriptEditorChangeDefault_Bar_Click(launcher);
    EXPECT_EQ(user.FileRequests.back().Filter, "Executables (*.exe)|*.exe|All Files (*.*)|*.*");
    EXPECT_EQ(user.FileRequests.back().FilterIndex, 1);
    EXPECT_FALSE(user.FileRequests.back().ForSaving);
    EXPECT_EQ(Stored(kOptions, "ScriptEditor"), "C:\\TOOLS\\EDIT.EXE");
}

TEST_F(WindowMenu, ACancelledChoiceKeepsTheEditor) {
    Save(run, kOptions, "ScriptEditor", "C:\\TOOLS\\OLD.EXE");
    user.FileAnswers.push_back(std::optional<Text>());
    ScriptEditorChangeDefault_Bar_Click(launcher);
    EXPECT_EQ(Stored(kOptions, "ScriptEditor"), "C:\\TOOLS\\OLD.EXE");
}

TEST_F(WindowMenu, AFileDialogThatFailsIsTold) {
    user.FileAnswers.push_back(Error{76, "Path not found"});
    user.Expect({"A Windows Related Error Occured",
                 "Error Number = 76\r\nError String = Path not found\r\n\r\nLorvane 3D setting have not been altered.",
                 0, false, true});
    ScriptEditorChangeDefault_Bar_Click(launcher);
    EXPECT_EQ(Stored(kOptions, "ScriptEditor"), "(none)");
}

TEST_F(WindowMenu, TheScriptsOfTheGameAreLookedIntoWhereTheProgramCan) {
    Load();
    Menu_Click(launcher, MenuItem::FileOrder_Bar);
    Menu_Click(launcher, MenuItem::ScriptCheck_Bar);
    Text looks;
    launcher.ShowFileOrder = [&] { looks += "order "; };
    launcher.ShowScriptCheck = [&] { looks += "check "; };
    Menu_Click(launcher, MenuItem::FileOrder_Bar);
    Menu_Click(launcher, MenuItem::ScriptCheck_Bar);
    EXPECT_EQ(looks, "order check ");
}

TEST_F(WindowMenu, TheSelectedScriptOpensInTheDefaultEditor) {
    Load();
    ASSERT_TRUE(window.Script_Cbo.HasSelection());
    ScriptsOpen_Bar_Click(launcher);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"notepad.exe|c:\\quake\\id1\\my.cfg"}));
}

TEST_F(WindowMenu, TheChosenEditorIsTheOneThatStarts) {
    Load();
    Save(run, kOptions, "ScriptEditor", "C:\\TOOLS\\EDIT.EXE");
    ScriptsOpen_Bar_Click(launcher);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"C:\\TOOLS\\EDIT.EXE|c:\\quake\\id1\\my.cfg"}));
}

TEST_F(WindowMenu, WithoutAScriptNoEditorStarts) {
    user.Expect({"Lorvane 3D", "No script is selected.", 0, false, true, "&OK"});
    ScriptsOpen_Bar_Click(launcher);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(WindowMenu, AnEditorThatDoesNotStartIsTold) {
    Load();
    system.Programs.Refuse = {53, "File not found: wine"};
    user.Expect({"Error Opening Default Editor [notepad.exe]",
                 "Error Number = 53\r\nError String = File not found: wine", 0, false, true});
    ScriptsOpen_Bar_Click(launcher);
}

TEST_F(WindowMenu, DryRunShowsWhatTheProgramCanTell) {
    DryRun_Bar_Click(launcher);  // a program without it
    int shown = 0;
    launcher.ShowDryRun = [&shown] { ++shown; };
    DryRun_Bar_Click(launcher);
    EXPECT_EQ(shown, 1);
}

}  // namespace lv
