#include "catalogs/editors/add_script.h"

#include "catalogs/scripts.h"
#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

class AddScript : public EditorsTest {
  protected:
    AddScript() {
        BeInQuake();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\OWN.CFG");
        system.Disk.AddFile("C:\\QUAKE\\ID1\\FOO.QS", "foo");
        Store("Scripts", "Own;c:\\quake\\id1\\own.cfg;Far;c:\\quake2\\baseq2\\far.cfg");
        EXPECT_TRUE(FillScriptsCombo(run, lists));
    }
    void Fill(AddScript_Frm& form, TextView title, TextView path) {
        form.ScriptTitle_Txt.Text = title;
        form.ScriptPath_Txt.Text = path;
    }
    void BeInUnreal() {
        run.GameKind = Game::Unreal;
        run.DefaultGameDirectory = "c:\\unreal\\system";
        run.CurrentGameDir = "MAPS";
        system.Disk.AddDirectory("C:\\UNREAL\\SYSTEM");
    }
};

TEST_F(AddScript, HasItsCaptions) {
    EXPECT_EQ(AddScript_Frm(run, lists, EntryMode::Add).Caption, "Add Script");
    EXPECT_EQ(AddScript_Frm(run, lists, EntryMode::New).Caption, "New Script");
    const AddScript_Frm edit(run, lists, EntryMode::Edit);
    EXPECT_EQ(edit.Caption, "Edit Current Script");
    EXPECT_EQ(edit.ScriptTitle_Txt.Text, "Own");
    EXPECT_EQ(edit.ScriptPath_Txt.Text, "c:\\quake\\id1\\own.cfg");
    EXPECT_EQ(edit.ScriptTitle_Lbl.Caption, "Script Title");
    EXPECT_EQ(edit.ScriptPath_Lbl.Caption, "Script File Name");
}

TEST_F(AddScript, StopsAtTheFirstFault) {
    AddScript_Frm form(run, lists, EntryMode::Add);
    Fill(form, "", "");
    ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptTitle_Txt", "Enter a Title for the script file.");
    Fill(form, "a,;", "");
    ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptTitle_Txt", "The Title may not contain a comma.");
    Fill(form, "a;b", "");
    ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptTitle_Txt", "The Title may not contain a semi-colon.");
    Fill(form, "a", "");
    ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptPath_Txt", "Enter the Script File Name.");
    Fill(form, "a", "x;y.cfg");
    ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptPath_Txt", "The File Name may not contain a semi-colon.");
    Fill(form, "a", "none.cfg");
    ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptPath_Txt", "The script must be in the 'ID1' subdirectory.",
                "File Name is Invalid.");
}

TEST_F(AddScript, APathThatIsListedIsRefused) {
    for (const EntryMode mode : {EntryMode::Add, EntryMode::New}) {
        AddScript_Frm form(run, lists, mode);
        Fill(form, "Again", "OWN");
        ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptPath_Txt",
                    "Requested file 'c:\\quake\\ID1\\OWN.cfg' already exists.", "Error Adding Script");
    }
}

TEST_F(AddScript, AddsTheFileAndSelectsIt) {
    AddScript_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Foo", "foo.qs");
    ExpectConfirmed("Foo now references c:\\quake\\ID1\\foo.qs");
    AddScript_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Script_Cbo), (TextList{"Own|c:\\quake\\id1\\own.cfg", "Foo|c:\\quake\\id1\\foo.qs"}));
    EXPECT_EQ(lists.Script_Cbo.ListIndex, 1);
    EXPECT_EQ(Stored("c:\\quake\\ID1", "DefaultScript"), "c:\\quake\\id1\\foo.qs");
    EXPECT_EQ(lists.HiddenScripts, "Far;c:\\quake2\\baseq2\\far.cfg");
}

TEST_F(AddScript, EditGivesTheEntryANewName) {
    AddScript_Frm form(run, lists, EntryMode::Edit);
    form.ScriptTitle_Txt.Text = "Mine";
    ExpectConfirmed("Mine now references c:\\quake\\id1\\own.cfg");
    AddScript_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Script_Cbo), (TextList{"Mine|c:\\quake\\id1\\own.cfg"}));
    EXPECT_EQ(Stored("Scripts"), "Mine;c:\\quake\\id1\\own.cfg;Far;c:\\quake2\\baseq2\\far.cfg");
}

TEST_F(AddScript, ANameWithoutAPointBecomesAScriptOfTheGame) {
    EXPECT_EQ(WholeScriptPath(run, "foo"), "c:\\quake\\ID1\\foo.cfg");
    EXPECT_EQ(WholeScriptPath(run, "foo.qs"), "c:\\quake\\ID1\\foo.qs");
    EXPECT_EQ(WholeScriptPath(run, "C:\\QUAKE\\ID1\\foo"), "C:\\QUAKE\\ID1\\foo.cfg");
    EXPECT_EQ(WholeScriptPath(run, "D:\\foo"), "D:\\foo.cfg");
    BeInUnreal();
    EXPECT_EQ(WholeScriptPath(run, "foo"), "c:\\unreal\\system\\foo.ini");
}

TEST_F(AddScript, ANewScriptIsACopyOfTheGamesOwn) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\CONFIG.CFG", "the game's");
    AddScript_Frm form(run, lists, EntryMode::New);
    Fill(form, "New", "new");
    ExpectConfirmed("New now references c:\\quake\\ID1\\new.cfg");
    AddScript_OK_Cmd_Click(form);
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\NEW.CFG"), "the game's");
    EXPECT_EQ(Row(lists.Script_Cbo.Selected()), "New|c:\\quake\\id1\\new.cfg");
}

TEST_F(AddScript, ANewScriptOfUnrealIsACopyOfUnrealIni) {
    BeInUnreal();
    system.Disk.AddFile("C:\\UNREAL\\SYSTEM\\UNREAL.INI", "[URL]");
    AddScript_Frm form(run, lists, EntryMode::New);
    Fill(form, "New", "new");
    ExpectConfirmed("New now references c:\\unreal\\system\\new.ini");
    AddScript_OK_Cmd_Click(form);
    EXPECT_EQ(system.Disk.Bytes("C:\\UNREAL\\SYSTEM\\NEW.INI"), "[URL]");
}

TEST_F(AddScript, WithoutOneToCopyTheNewScriptIsEmpty) {
    AddScript_Frm form(run, lists, EntryMode::New);
    Fill(form, "New", "new");
    ExpectConfirmed("New now references c:\\quake\\ID1\\new.cfg");
    AddScript_OK_Cmd_Click(form);
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\NEW.CFG"), "");
}

TEST_F(AddScript, ANewScriptNeverTakesAFilesPlace) {
    AddScript_Frm form(run, lists, EntryMode::New);
    Fill(form, "Foo", "foo.qs");
    ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptPath_Txt",
                "Requested file 'c:\\quake\\ID1\\foo.qs' already exists.", "Error Creating File");
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\FOO.QS"), "foo");
}

TEST_F(AddScript, ANewScriptThatCannotBeMadeIsTold) {
    system.Disk.Refused["c:\\quake\\id1\\new.cfg"] = Error{61, "Disk full"};
    AddScript_Frm form(run, lists, EntryMode::New);
    Fill(form, "New", "new");
    ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptPath_Txt",
                "Unable to create new file.\r\nError Number = 61\r\nError String = Disk full", "Error Creating File");
}

TEST_F(AddScript, UnrealsScriptsLieInADirectory) {
    BeInUnreal();
    AddScript_Frm form(run, lists, EntryMode::Add);
    Fill(form, "a", "none");
    ExpectFault(form, AddScript_OK_Cmd_Click, "ScriptPath_Txt", "The script must be in the 'MAPS' directory.",
                "File Name is Invalid.");
}

TEST_F(AddScript, ADamagedCatalogEndsTheProgram) {
    Store("Scripts", "only one field");
    AddScript_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Foo", "foo.qs");
    ExpectDamage("defaultScripts", "only one field");
    AddScript_OK_Cmd_Click(form);
    EXPECT_TRUE(run.Ended);
    EXPECT_TRUE(form.Closed);
    EXPECT_FALSE(form.DialogResult);
}

TEST_F(AddScript, BrowsesWithTheGamesFilter) {
    AddScript_Frm form(run, lists, EntryMode::Add);
    user.FileAnswers.push_back(std::optional<Text>("C:\\QUAKE\\ID1\\FOO.QS"));
    AddScript_Browse_Cmd_Click(form);
    EXPECT_EQ(form.ScriptPath_Txt.Text, "C:\\QUAKE\\ID1\\FOO.QS");
    EXPECT_EQ(user.FileRequests.at(0).Filter, "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*");
    EXPECT_EQ(user.FileRequests.at(0).InitialDirectory, "c:\\quake\\ID1");
}

TEST_F(AddScript, TakesAPathOfTheSystemsOwn) {
    system.Disk.AddFile("C:\\HOME\\keys\\foo.qs");
    AddScript_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Foo", "~/keys/foo.qs");
    user.FileAnswers.push_back(std::optional<Text>());
    AddScript_Browse_Cmd_Click(form);
    EXPECT_EQ(user.FileRequests.at(0).InitialDirectory, "C:\\HOME\\keys");
    ExpectConfirmed("Foo now references C:\\HOME\\keys\\foo.qs");
    AddScript_OK_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
}

TEST_F(AddScript, ANewScriptIsNotMadeWhereALinkLeadsAway) {
    system.Disk.AddFileLink("C:\\QUAKE\\ID1\\trap.cfg", "C:\\ETC\\NEW");
    AddScript_Frm form(run, lists, EntryMode::New);
    Fill(form, "Trap", "trap.cfg");
    user.Expect({.Title = "Link To Another Place", .Text_ = "c:\\etc\\new", .Answer = 0});
    AddScript_OK_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_FALSE(system.Disk.FileExists("C:\\ETC\\NEW"));
}

}  // namespace lv
