#include "catalogs/editors/add_exe.h"

#include "catalogs/editors/path_window.h"
#include "catalogs/executables.h"
#include "games/engines/engine_seats.h"
#include "tests/catalogs/editors/editors_fixture.h"
#include "tests/support/shipped_engines.h"

namespace lv {

class AddExe : public EditorsTest {
  protected:
    AddExe() {
        system.Disk.AddFile("C:\\QUAKE\\GLQUAKE.EXE");
        system.Disk.AddFile("C:\\HL\\HL.EXE");
        lists.Exe_Cbo.Items = {{"Old", "C:\\OLD\\QUAKE.EXE", "QUAKE", "QUAKE"}};
        lists.Exe_Cbo.ListIndex = 0;
    }
    void Fill(AddExe_Frm& form, TextView title, TextView path) {
        form.ExeTitle_Txt.Text = title;
        form.ExePath_Txt.Text = path;
    }
};

TEST_F(AddExe, HasItsCaptions) {
    const AddExe_Frm add(run, lists, EntryMode::Add);
    EXPECT_EQ(add.Name, "AddExe_Frm");
    EXPECT_EQ(add.Caption, "Add Executable");
    EXPECT_EQ(add.ExeTitle_Lbl.Caption, "Executable Title");
    EXPECT_EQ(add.ExePath_Lbl.Caption, "Executable Path and File Name");
    EXPECT_EQ(add.ExeTitle_Txt.Text, "");
    const AddExe_Frm edit(run, lists, EntryMode::Edit);
    EXPECT_EQ(edit.Caption, "Edit Current Executable");
    EXPECT_EQ(edit.ExeTitle_Txt.Text, "Old");
    EXPECT_EQ(edit.ExePath_Txt.Text, "C:\\OLD\\QUAKE.EXE");
}

TEST_F(AddExe, StopsAtTheFirstFault) {
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "  ", "");
    ExpectFault(form, AddExe_OK_Cmd_Click, "ExeTitle_Txt", "Enter a Title for the executable file.");
    Fill(form, "a,b", "");
    ExpectFault(form, AddExe_OK_Cmd_Click, "ExeTitle_Txt", "The Title may not contain a comma.");
    Fill(form, "Quake", "  ");
    ExpectFault(form, AddExe_OK_Cmd_Click, "ExePath_Txt", "Enter a Path and File Name.");
    Fill(form, "Quake", "C:\\NO.EXE");
    ExpectFault(form, AddExe_OK_Cmd_Click, "ExePath_Txt", "Path and/or File Name are invalid.");
    EXPECT_EQ(Stored("Executables"), "(none)");
}

TEST_F(AddExe, AddsARowAndSelectsIt) {
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "  GL Quake ", " C:\\QUAKE\\GLQUAKE.EXE ");
    Text during;
    form.ChangeGame = [&] { during = Stored("Executables"); };
    ExpectConfirmed("GL Quake now references C:\\QUAKE\\GLQUAKE.EXE");
    AddExe_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Exe_Cbo), (TextList{"Old|C:\\OLD\\QUAKE.EXE", "GL Quake|C:\\QUAKE\\GLQUAKE.EXE"}));
    EXPECT_EQ(lists.Exe_Cbo.Items[1].Image, "QUAKE");
    EXPECT_EQ(lists.Exe_Cbo.Items[1].SelectedImage, "QUAKE");
    EXPECT_EQ(lists.Exe_Cbo.ListIndex, 1);
    EXPECT_EQ(Stored("ExecutablesPos"), "1");
    EXPECT_EQ(during, "Old;C:\\OLD\\QUAKE.EXE;GL Quake;C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_EQ(run.DefaultGameDirectory, "C:\\QUAKE");
    EXPECT_TRUE(form.Closed);
    EXPECT_TRUE(form.DialogResult);
}

TEST_F(AddExe, EditReplacesTitleAndKeyAndKeepsThePicture) {
    AddExe_Frm form(run, lists, EntryMode::Edit);
    Fill(form, "Life", "C:\\HL\\HL.EXE");
    ExpectConfirmed("Life now references C:\\HL\\HL.EXE");
    AddExe_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Exe_Cbo), (TextList{"Life|C:\\HL\\HL.EXE"}));
    EXPECT_EQ(lists.Exe_Cbo.Items[0].Image, "QUAKE");
    EXPECT_EQ(Stored("ExecutablesPos"), "(none)");
    EXPECT_EQ(Stored("Executables"), "Life;C:\\HL\\HL.EXE");
}

TEST_F(AddExe, RefusesAPathThatIsListedAlready) {
    system.Disk.AddFile("C:\\OLD\\QUAKE.EXE");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Again", "C:\\OLD\\QUAKE.EXE");
    ExpectFault(form, AddExe_OK_Cmd_Click, "ExePath_Txt",
                "Again  C:\\OLD\\QUAKE.EXE\r\nThis Game -->\r\nwas listed twice. The second entry will be ignored.",
                "Duplicate Game");
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 1u);
}

TEST_F(AddExe, AnEditMayKeepItsPath) {
    system.Disk.AddFile("C:\\OLD\\QUAKE.EXE");
    AddExe_Frm form(run, lists, EntryMode::Edit);
    form.ExeTitle_Txt.Text = "New";
    ExpectConfirmed("New now references C:\\OLD\\QUAKE.EXE");
    AddExe_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Exe_Cbo), (TextList{"New|C:\\OLD\\QUAKE.EXE"}));
}

TEST_F(AddExe, APathWithoutADirectoryIsWarnedOf) {
    system.Disk.AddFile("C:\\QUAKE.EXE");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Quake", "QUAKE.EXE");
    ExpectTold("DefaultGameDirectory NOT SET - YOU WILL NOT BE ABLE TO LAUNCH\r\nPlease edit the executable.");
    ExpectConfirmed("Quake now references QUAKE.EXE");
    AddExe_OK_Cmd_Click(form);
    EXPECT_EQ(run.DefaultGameDirectory, "");
}

TEST_F(AddExe, ATitleWithASemicolonPassesAndDamagesTheCatalog) {
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "GL;Quake", "C:\\QUAKE\\GLQUAKE.EXE");
    ExpectConfirmed("GL;Quake now references C:\\QUAKE\\GLQUAKE.EXE");
    AddExe_OK_Cmd_Click(form);
    const Text value = "Old;C:\\OLD\\QUAKE.EXE;GL;Quake;C:\\QUAKE\\GLQUAKE.EXE";
    EXPECT_EQ(Stored("Executables"), value);
    ExpectDamage("defaultExes", value);
    EXPECT_FALSE(LoadExes(run, lists));
}

TEST_F(AddExe, ACatalogThatWouldBeTooLongKeepsListAndWindow) {
    lists.Exe_Cbo.Items[0].Title = Text(16000, 'x');
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "GL Quake", "C:\\QUAKE\\GLQUAKE.EXE");
    user.Expect({"Lorvane 3D", ""});
    AddExe_OK_Cmd_Click(form);
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 1u);
    EXPECT_FALSE(form.Closed);
}

TEST_F(AddExe, BrowsesForPrograms) {
    AddExe_Frm form(run, lists, EntryMode::Add);
    user.FileAnswers.push_back(std::optional<Text>("C:\\HL\\HL.EXE"));
    AddExe_Browse_Cmd_Click(form);
    EXPECT_EQ(form.ExePath_Txt.Text, "C:\\HL\\HL.EXE");
    EXPECT_EQ(user.FileRequests.at(0).Filter, "Quake Executables (*.exe, *.bat)|*.exe;*.bat|All Files (*.*)|*.*");
    EXPECT_EQ(user.FileRequests.at(0).FilterIndex, 1) << "programs of the system have no ending";
    EXPECT_EQ(user.FileRequests.at(0).InitialDirectory, "C:\\HOME");
    system.Disk.AddDirectory("C:\\HL");
    user.FileAnswers.push_back(std::optional<Text>());
    AddExe_Browse_Cmd_Click(form);
    EXPECT_EQ(form.ExePath_Txt.Text, "C:\\HL\\HL.EXE");
    EXPECT_EQ(user.FileRequests.at(1).InitialDirectory, "C:\\HL");
}

TEST_F(AddExe, ShowsProgramsByTheirEndingWhereTheyHaveOne) {
    system.Disk.KnowsStandIns = false;
    AddExe_Frm form(run, lists, EntryMode::Add);
    user.FileAnswers.push_back(std::optional<Text>());
    AddExe_Browse_Cmd_Click(form);
    EXPECT_EQ(user.FileRequests.at(0).FilterIndex, 0);
}

TEST_F(AddExe, TakesAPathOfTheSystemsOwn) {
    system.Disk.AddFile("C:\\HOME\\games\\glquake.exe");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Mine", " ~/games/glquake.exe");
    ExpectConfirmed("Mine now references C:\\HOME\\games\\glquake.exe");
    AddExe_OK_Cmd_Click(form);
    EXPECT_EQ(lists.Exe_Cbo.Items.back().Key, "C:\\HOME\\games\\glquake.exe");
}

class AddEngineOutside : public AddExe {
  protected:
    AddEngineOutside() {
        lists.Engines = &ShippedEngines();
        system.Disk.AddFile("Z:\\usr\\games\\darkplaces");
        system.Disk.AddFile("C:\\GAMES\\quake\\id1\\pak0.pak");
        system.Disk.AddDirectory("C:\\EMPTY");
        system.Disk.AddDirectory("C:\\HOME");
        run.LastBrowsed = "Z:\\usr\\games";
    }
    void ExpectTreeQuestion(int answer) {
        user.Expect(
            {"Which Game?", "DarkPlaces lies in no game's directory.", answer, false, false, "C&hoose,&Cancel"});
    }
    void ExpectUnknownAsked(int answer, TextView name = "my-engine") {
        user.Expect({"Which Game?", Join(name, " lies in no game's directory."), answer, false, false,
                     "C&hoose,&As It Is,&Cancel"});
    }
    void ExpectTreeAsked(TextView answer, TextView beginning = "C:\\HOME") {
        ExpectTreeQuestion(0);
        user.In<Path_Frm>([answer, beginning](Path_Frm& shown) {
            EXPECT_EQ(shown.Caption, "Select Game Path");
            EXPECT_EQ(shown.Path_Lbl.Caption, beginning);
            if (answer.empty()) {
                Path_Cancel_Cmd_Click(shown);
                return;
            }
            shown.Path_Lbl.Caption = answer;
            Path_OK_Cmd_Click(shown);
        });
    }
};

TEST_F(AddEngineOutside, GetsASeatInTheTreeThatTheUserShows) {
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "DP", "Z:\\usr\\games\\darkplaces");
    ExpectTreeAsked("C:\\GAMES\\quake");
    ExpectConfirmed("DP now references C:\\GAMES\\quake\\darkplaces");
    AddExe_OK_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_EQ(lists.Exe_Cbo.Items.back().Key, "C:\\GAMES\\quake\\darkplaces");
    EXPECT_EQ(run.DefaultGameDirectory, "C:\\GAMES\\quake");
    EXPECT_TRUE(system.Disk.FileExists("C:\\GAMES\\QUAKE\\DARKPLACES"));
}

TEST_F(AddEngineOutside, ACancelLeavesTheDialogOpen) {
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "DP", "Z:\\usr\\games\\darkplaces");
    ExpectTreeAsked("");
    AddExe_OK_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 1u);
}

TEST_F(AddEngineOutside, NoChoiceOfATreeLeavesTheDialogOpen) {
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "DP", "Z:\\usr\\games\\darkplaces");
    ExpectTreeQuestion(1);
    AddExe_OK_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 1u);
}

TEST_F(AddEngineOutside, TheChoiceBeginsAtThePresentGameIfTheEnginePlaysIt) {
    BeInQuake();
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "DP", "Z:\\usr\\games\\darkplaces");
    ExpectTreeAsked("", "c:\\quake");
    AddExe_OK_Cmd_Click(form);
}

TEST_F(AddEngineOutside, TheChoiceBeginsAtAFoundGameThatTheEnginePlays) {
    BeInQuake();
    run.GameKind = Game::Hexen2;
    system.Places.IsGames = {"C:\\GAMES"};
    system.Disk.AddFile("C:\\GAMES\\hexen2\\data1\\pak0.pak");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "DP", "Z:\\usr\\games\\darkplaces");
    ExpectTreeAsked("", "C:\\GAMES\\quake");
    AddExe_OK_Cmd_Click(form);
}

TEST_F(AddEngineOutside, TheChoiceBeginsWhereGamesLieIfThereIsNone) {
    system.Disk.Delete("C:\\GAMES\\quake\\id1\\pak0.pak");
    system.Disk.AddDirectory("C:\\HOME\\games");
    system.Places.IsGames = {"C:\\HOME\\games", "C:\\EMPTY"};
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "DP", "Z:\\usr\\games\\darkplaces");
    ExpectTreeAsked("", "C:\\HOME\\games");
    AddExe_OK_Cmd_Click(form);
}

TEST_F(AddEngineOutside, AGameThatTheEngineDoesNotPlayIsToldOf) {
    system.Disk.AddFile("C:\\GAMES\\hexen2\\data1\\pak0.pak");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "DP", "Z:\\usr\\games\\darkplaces");
    ExpectTreeAsked("C:\\GAMES\\hexen2");
    ExpectFault(form, AddExe_OK_Cmd_Click, "ExePath_Txt",
                "There is no game in this directory that DarkPlaces could play: C:\\GAMES\\hexen2");
    EXPECT_EQ(Stored("Seats", "Engines"), "(none)");
}

TEST_F(AddEngineOutside, ADirectoryWithoutAGameIsToldOf) {
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "DP", "Z:\\usr\\games\\darkplaces");
    ExpectTreeAsked("C:\\EMPTY");
    ExpectFault(form, AddExe_OK_Cmd_Click, "ExePath_Txt",
                "There is no game in this directory that DarkPlaces could play: C:\\EMPTY");
    EXPECT_FALSE(form.Closed);
}

TEST_F(AddEngineOutside, AProgramThatNoTableKnowsGetsASeatToo) {
    system.Disk.AddFile("Z:\\opt\\mine\\my-engine");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Mine", "Z:\\opt\\mine\\my-engine");
    ExpectUnknownAsked(0);
    user.In<Path_Frm>([](Path_Frm& shown) {
        shown.Path_Lbl.Caption = "C:\\GAMES\\quake";
        Path_OK_Cmd_Click(shown);
    });
    ExpectConfirmed("Mine now references C:\\GAMES\\quake\\my-engine");
    AddExe_OK_Cmd_Click(form);
    EXPECT_EQ(ProgramOfSeat(run, "C:\\GAMES\\quake\\my-engine"), "Z:\\opt\\mine\\my-engine");
}

TEST_F(AddEngineOutside, AProgramThatNoTableKnowsMayBeAddedAsItIs) {
    system.Disk.AddFile("Z:\\home\\me\\bin\\start-quake");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Mine", "Z:\\home\\me\\bin\\start-quake");
    ExpectUnknownAsked(1, "start-quake");
    ExpectConfirmed("Mine now references Z:\\home\\me\\bin\\start-quake");
    AddExe_OK_Cmd_Click(form);
    EXPECT_EQ(lists.Exe_Cbo.Items.back().Key, "Z:\\home\\me\\bin\\start-quake");
    EXPECT_EQ(Stored("Seats", "Engines"), "(none)");
}

TEST_F(AddEngineOutside, TheQuestionOfAProgramThatNoTableKnowsCanBeCancelled) {
    system.Disk.AddFile("Z:\\opt\\mine\\my-engine");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Mine", "Z:\\opt\\mine\\my-engine");
    ExpectUnknownAsked(2);
    AddExe_OK_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 1u);
}

TEST_F(AddEngineOutside, AProgramOfWindowsOrDosIsAskedForNoGame) {
    for (const char* const program : {"Z:\\opt\\old\\my.exe", "Z:\\opt\\old\\GAME.COM", "Z:\\opt\\old\\go.bat"}) {
        system.Disk.AddFile(program);
        AddExe_Frm form(run, lists, EntryMode::Add);
        Fill(form, LastPathPart(program), program);
        ExpectConfirmed(Join(LastPathPart(program), " now references ", program));
        AddExe_OK_Cmd_Click(form);
        EXPECT_TRUE(form.Closed) << program;
    }
}

TEST_F(AddEngineOutside, AnEngineInAGamesDirectoryIsTakenAsItIs) {
    system.Disk.AddFile("C:\\GAMES\\quake\\darkplaces");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "DP", "C:\\GAMES\\quake\\darkplaces");
    ExpectConfirmed("DP now references C:\\GAMES\\quake\\darkplaces");
    AddExe_OK_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
}

TEST_F(AddEngineOutside, AnEntryThatIsEditedLeavesItsSeat) {
    SeatEngine(run, "c:\\games\\quake\\darkplaces", "Z:\\usr\\games\\darkplaces");
    lists.Exe_Cbo.Items = {{"DP", "c:\\games\\quake\\darkplaces", "", ""}};
    AddExe_Frm form(run, lists, EntryMode::Edit);
    Fill(form, "Own", "C:\\QUAKE\\GLQUAKE.EXE");
    ExpectConfirmed("Own now references C:\\QUAKE\\GLQUAKE.EXE");
    AddExe_OK_Cmd_Click(form);
    EXPECT_EQ(Stored("Seats", "Engines"), "");
}

TEST_F(AddExe, ANewRowShowsAnUnknownProgramUntilTheNextStart) {
    system.Disk.AddFile("C:\\OLD\\QUAKE.EXE");
    AddExe_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Life", "C:\\HL\\HL.EXE");
    ExpectConfirmed("Life now references C:\\HL\\HL.EXE");
    AddExe_OK_Cmd_Click(form);
    ASSERT_EQ(lists.Exe_Cbo.Items.size(), 2u);
    EXPECT_EQ(lists.Exe_Cbo.Items[1].Image, "QUESTION");
    EXPECT_EQ(lists.Exe_Cbo.Items[1].SelectedImage, "QUESTION");
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(lists.Exe_Cbo.Items[1].Image, "HALFLIFE");
}

}  // namespace lv
