#include "catalogs/editors/add_game.h"

#include "catalogs/editors/path_window.h"
#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

class AddGame : public EditorsTest {
  protected:
    AddGame() {
        BeInQuake();
        system.Disk.AddDirectory("C:\\QUAKE\\CTF");
        system.Disk.AddDirectory("C:\\OTHER");
        lists.Game_Cbo.Items = {Item("Base", "-game ID1")};
        lists.Game_Cbo.ListIndex = 0;
        lists.HiddenGames = "Arena;-game ARENA";
    }
    void Fill(AddGame_Frm& form, TextView title, TextView path) {
        form.GameTitle_Txt.Text = title;
        form.GamePath_Txt.Text = path;
    }
    void BrowseTo(AddGame_Frm& form, const Text& path) {
        user.In<Path_Frm>([path](Path_Frm& shown) {
            shown.Path_Lbl.Caption = path;
            Path_OK_Cmd_Click(shown);
        });
        AddGame_Browse_Cmd_Click(form);
    }
};

TEST_F(AddGame, HasItsCaptions) {
    const AddGame_Frm add(run, lists, EntryMode::Add);
    EXPECT_EQ(add.Caption, "Add Game");
    const AddGame_Frm edit(run, lists, EntryMode::Edit);
    EXPECT_EQ(edit.Caption, "Edit Current Game");
    EXPECT_EQ(edit.GameTitle_Txt.Text, "Base");
    EXPECT_EQ(edit.GamePath_Txt.Text, "ID1");
}

TEST_F(AddGame, StopsAtTheFirstFault) {
    AddGame_Frm form(run, lists, EntryMode::Add);
    Fill(form, "", "");
    ExpectFault(form, AddGame_OK_Cmd_Click, "GameTitle_Txt", "Enter a Title for the game.");
    Fill(form, "a,b", "");
    ExpectFault(form, AddGame_OK_Cmd_Click, "GameTitle_Txt", "The Title may not contain a comma.");
    Fill(form, "CTF", " ");
    ExpectFault(form, AddGame_OK_Cmd_Click, "GamePath_Txt", "Enter a Path.");
    Fill(form, "CTF", "NONE");
    ExpectFault(form, AddGame_OK_Cmd_Click, "GamePath_Txt", "Path is invalid.");
}

TEST_F(AddGame, AddsARowBeforeTheHiddenOnes) {
    AddGame_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Flags", "CTF");
    ExpectConfirmed("Flags now references -game CTF");
    AddGame_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"Base|-game ID1", "Flags|-game CTF"}));
    EXPECT_EQ(Stored("Games"), "Base;-game ID1;Flags;-game CTF;Arena;-game ARENA");
    EXPECT_EQ(Stored("GamesPos"), "(none)");
}

TEST_F(AddGame, EditReplacesTheRowAndWritesItsPosition) {
    AddGame_Frm form(run, lists, EntryMode::Edit);
    Fill(form, "Flags", "CTF");
    ExpectConfirmed("Flags now references -game CTF");
    AddGame_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"Flags|-game CTF"}));
    EXPECT_EQ(Stored("GamesPos"), "0");
}

TEST_F(AddGame, BrowsingCutsTheGameDirectoryOff) {
    AddGame_Frm form(run, lists, EntryMode::Add);
    BrowseTo(form, "C:\\QUAKE\\CTF");
    EXPECT_EQ(form.GamePath_Txt.Text, "CTF");
}

TEST_F(AddGame, TakesAPathOfTheSystemsOwnBelowTheGame) {
    system.Disk.Home = "C:\\QUAKE";
    AddGame_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Flags", "~/CTF");
    ExpectConfirmed("Flags now references -game CTF");
    AddGame_OK_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
}

TEST_F(AddGame, BrowsingBeginsInTheGameUntilTheBoxNamesADirectoryOfIt) {
    AddGame_Frm form(run, lists, EntryMode::Add);
    for (const auto& [typed, start] : std::vector<std::pair<const char*, const char*>>{
             {"", "c:\\quake"}, {"CTF", "c:\\quake\\CTF"}, {"GONE", "c:\\quake"}}) {
        form.GamePath_Txt.Text = typed;
        user.In<Path_Frm>([&start](Path_Frm& shown) {
            EXPECT_EQ(shown.Path_Lbl.Caption, start);
            Path_Cancel_Cmd_Click(shown);
        });
        AddGame_Browse_Cmd_Click(form);
    }
}

TEST_F(AddGame, BrowsingElsewhereIsNotAccepted) {
    AddGame_Frm form(run, lists, EntryMode::Add);
    Fill(form, "x", "ID1");
    for (const char* path : {"C:\\OTHER", "C:\\QUAKE", "C:\\QUAKE2\\CTF"}) {
        ExpectTold("Path is invalid.");
        BrowseTo(form, path);
        EXPECT_EQ(form.GamePath_Txt.Text, "ID1");
    }
}

TEST_F(AddGame, ACancelledPathLeavesTheFieldUnchanged) {
    AddGame_Frm form(run, lists, EntryMode::Add);
    Fill(form, "x", "ID1");
    user.In<Path_Frm>([](Path_Frm& shown) {
        EXPECT_EQ(shown.Path_Lbl.Caption, "c:\\quake\\ID1");
        Path_Cancel_Cmd_Click(shown);
    });
    AddGame_Browse_Cmd_Click(form);
    EXPECT_EQ(form.GamePath_Txt.Text, "ID1");
}

TEST_F(AddGame, ACatalogThatWouldBeTooLongKeepsListAndWindow) {
    lists.Game_Cbo.Items[0] = LongItem();
    AddGame_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Flags", "CTF");
    user.Expect({"Lorvane 3D", ""});
    AddGame_OK_Cmd_Click(form);
    EXPECT_EQ(lists.Game_Cbo.Items.size(), 1u);
    EXPECT_FALSE(form.Closed);
}

}  // namespace lv
