#include "catalogs/editors/add_demo.h"

#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

class AddDemo : public EditorsTest {
  protected:
    AddDemo() {
        BeInQuake();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\MINE.DEM");
        system.Disk.AddFile("C:\\QUAKE2\\BASEQ2\\DEMO1.DM2");
        lists.Demo_Cbo.Items = {Item("One", "demomap demo1.dm2")};
        lists.Demo_Cbo.ListIndex = 0;
    }
    void BeInQuake2() {
        run.GameKind = Game::Quake2;
        run.DefaultGameDirectory = "c:\\quake2";
        run.CurrentGameDir = "BASEQ2";
    }
    void Fill(AddDemo_Frm& form, TextView title, TextView path) {
        form.DemoTitle_Txt.Text = title;
        form.DemoPath_Txt.Text = path;
    }
};

TEST_F(AddDemo, HasItsCaptions) {
    const AddDemo_Frm add(run, lists, EntryMode::Add);
    EXPECT_EQ(add.Caption, "Add Demo");
    const AddDemo_Frm edit(run, lists, EntryMode::Edit);
    EXPECT_EQ(edit.Caption, "Edit Current Demo");
    EXPECT_EQ(edit.DemoTitle_Txt.Text, "One");
    EXPECT_EQ(edit.DemoPath_Txt.Text, "demo1.dm2");
}

TEST_F(AddDemo, StopsAtTheFirstFault) {
    AddDemo_Frm form(run, lists, EntryMode::Add);
    Fill(form, "", "");
    ExpectFault(form, AddDemo_OK_Cmd_Click, "DemoTitle_Txt", "Enter a Title for the demo file.");
    Fill(form, "a,b", "");
    ExpectFault(form, AddDemo_OK_Cmd_Click, "DemoTitle_Txt", "The Title may not contain a comma.");
    Fill(form, "Mine", "");
    ExpectFault(form, AddDemo_OK_Cmd_Click, "DemoPath_Txt", "Enter the Demo File Name.");
    Fill(form, "Mine", "NONE.DEM");
    ExpectFault(form, AddDemo_OK_Cmd_Click, "DemoPath_Txt",
                "File Name is invalid. The demo must be in the ID1 subdirectory");
}

TEST_F(AddDemo, AddsAPlaydemo) {
    AddDemo_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Mine", "MINE.DEM");
    ExpectConfirmed("Mine now references playdemo MINE.DEM");
    AddDemo_OK_Cmd_Click(form);
    EXPECT_EQ(Stored("Demos"), "One;demomap demo1.dm2;Mine;playdemo MINE.DEM");
}

TEST_F(AddDemo, AddsADemomapInQuake2) {
    BeInQuake2();
    AddDemo_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Two", "DEMO1.DM2");
    ExpectConfirmed("Two now references demomap DEMO1.DM2");
    AddDemo_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Demo_Cbo), (TextList{"One|demomap demo1.dm2", "Two|demomap DEMO1.DM2"}));
}

TEST_F(AddDemo, AnEditInQuake2TurnsTheCommandToPlaydemo) {
    BeInQuake2();
    AddDemo_Frm form(run, lists, EntryMode::Edit);
    ExpectConfirmed("One now references playdemo demo1.dm2");
    AddDemo_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Demo_Cbo), (TextList{"One|playdemo demo1.dm2"}));
    EXPECT_EQ(Stored("Demos"), "One;playdemo demo1.dm2");
}

TEST_F(AddDemo, BrowsesWithTheGamesFilter) {
    AddDemo_Frm form(run, lists, EntryMode::Add);
    user.FileAnswers.push_back(std::optional<Text>("C:\\QUAKE\\ID1\\OLD\\MINE.DEM"));
    AddDemo_Browse_Cmd_Click(form);
    EXPECT_EQ(form.DemoPath_Txt.Text, "OLD\\MINE.DEM");
    EXPECT_EQ(user.FileRequests.at(0).Filter, "Quake Demonstrations (*.dem;*.qwd)|*.dem;*.qwd|All Files (*.*)|*.*");
    EXPECT_EQ(user.FileRequests.at(0).InitialDirectory, "c:\\quake\\ID1");
}

TEST_F(AddDemo, TakesAPathOfTheSystemsOwnBelowTheGame) {
    system.Disk.Home = "C:\\QUAKE";
    system.Disk.AddFile("C:\\QUAKE\\ID1\\OLD\\MINE.DEM");
    AddDemo_Frm form(run, lists, EntryMode::Add);
    Fill(form, "Mine", "~/ID1/OLD/MINE.DEM");
    ExpectConfirmed("Mine now references playdemo OLD\\MINE.DEM");
    AddDemo_OK_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    user.FileAnswers.push_back(std::optional<Text>());
    AddDemo_Browse_Cmd_Click(form);
    EXPECT_EQ(user.FileRequests.at(0).InitialDirectory, "c:\\quake\\ID1\\OLD");
}

TEST_F(AddDemo, BrowsingElsewhereTakesTheNameAlone) {
    AddDemo_Frm form(run, lists, EntryMode::Add);
    user.FileAnswers.push_back(std::optional<Text>("C:\\OTHER\\MINE.DEM"));
    AddDemo_Browse_Cmd_Click(form);
    EXPECT_EQ(form.DemoPath_Txt.Text, "MINE.DEM");
}

TEST_F(AddDemo, AGameWithoutDemosBrowsesAllFiles) {
    run.GameKind = Game::Unreal;
    AddDemo_Frm form(run, lists, EntryMode::Add);
    user.FileAnswers.push_back(std::optional<Text>());
    AddDemo_Browse_Cmd_Click(form);
    EXPECT_EQ(user.FileRequests.at(0).Filter, "All Files (*.*)|*.*");
    EXPECT_EQ(form.DemoPath_Txt.Text, "");
}

}  // namespace lv
