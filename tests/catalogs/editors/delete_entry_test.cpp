#include "catalogs/editors/delete_entry.h"

#include "games/engines/engine_seats.h"
#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

class DeleteEntry : public EditorsTest {
  protected:
    static constexpr int kYes = 0;
    static constexpr int kCool = 0;

    void ExpectDeletion(TextView question, TextView done) {
        user.Expect({"Confirm Deletion", Text(question), kYes, false, true, "&Yes,&Cancel"});
        user.Expect({"Lorvane 3D", Text(done), kCool, false, true, "&Cool,&Not Cool"});
    }
    void ListScript() {
        system.Disk.AddFile("C:\\QUAKE\\ID1\\OWN.CFG");
        lists.Script_Cbo.Items = {Item("Own", "c:\\quake\\id1\\own.cfg")};
        lists.Script_Cbo.ListIndex = 0;
        lists.HiddenScripts = "Far;c:\\far\\far.cfg";
        ExpectDeletion(
            "Do you want to delete this script?\r\n(yes, this DOES delete the file from your harddrive)\r\n"
            "Own  /  c:\\quake\\id1\\own.cfg",
            "Own was deleted.");
    }
};

TEST_F(DeleteEntry, NeedsASelection) {
    ExpectTold("No executable is selected.");
    EXPECT_FALSE(DeleteExecutable(run, lists));
    ExpectTold("No game directory is selected.");
    EXPECT_FALSE(DeleteGame(run, lists));
    ExpectTold("No Demo is selected.");
    EXPECT_FALSE(DeleteDemo(run, lists));
    ExpectTold("No script is selected.");
    EXPECT_FALSE(DeleteScript(run, lists));
    ExpectTold("No server is selected.");
    EXPECT_FALSE(DeleteServer(run, lists));
}

TEST_F(DeleteEntry, AnExecutableIsRemovedFromTheList) {
    lists.Exe_Cbo.Items = {{"Quake", "C:\\Q.EXE", "", ""}, {"Quake 2", "C:\\Q2.EXE", "", ""}};
    lists.Exe_Cbo.ListIndex = 1;
    ExpectDeletion(
        "Do you want to remove this executable from the list?\r\n"
        "(no, this does NOT delete any files from your harddrive)\r\nQuake 2  /  C:\\Q2.EXE",
        "Quake 2 was removed from the list.");
    EXPECT_TRUE(DeleteExecutable(run, lists));
    EXPECT_EQ(Rows(lists.Exe_Cbo), (TextList{"Quake|C:\\Q.EXE"}));
    EXPECT_EQ(lists.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(Stored("Executables"), "Quake;C:\\Q.EXE");
}

TEST_F(DeleteEntry, AnExecutablesSeatGoesWithIt) {
    system.Disk.AddFile("Z:\\usr\\games\\engine");
    SeatEngine(run, "c:\\quake\\engine", "Z:\\usr\\games\\engine");
    SeatEngine(run, "c:\\quake\\other", "Z:\\usr\\games\\engine");
    lists.Exe_Cbo.Items = {{"One", "c:\\quake\\engine", "", ""}, {"Two", "c:\\quake\\other", "", ""}};
    lists.Exe_Cbo.ListIndex = 0;
    user.Expect({"Confirm Deletion", "", 0});
    user.Expect({"Lorvane 3D", "", 0});
    EXPECT_TRUE(DeleteExecutable(run, lists));
    EXPECT_EQ(Stored("Seats", "Engines"), "c:\\quake\\other;Z:\\usr\\games\\engine");
}

TEST_F(DeleteEntry, ACancelKeepsTheRow) {
    lists.Demo_Cbo.Items = {Item("One", "playdemo demo1.dem")};
    lists.Demo_Cbo.ListIndex = 0;
    user.Expect({"Confirm Deletion", "", 1});
    EXPECT_FALSE(DeleteDemo(run, lists));
    EXPECT_EQ(lists.Demo_Cbo.Items.size(), 1u);
    EXPECT_EQ(Stored("Demos"), "(none)");
}

TEST_F(DeleteEntry, NotCoolCancelsAfterTheFact) {
    lists.Exe_Cbo.Items = {{"Quake", "C:\\Q.EXE", "", ""}};
    lists.Exe_Cbo.ListIndex = 0;
    user.Expect({"Confirm Deletion", "", 0});
    user.Expect({"Lorvane 3D", "Quake was removed from the list.", 1});
    ExpectTold("List Entry Deletion Cancelled");
    EXPECT_FALSE(DeleteExecutable(run, lists));
    lists.Game_Cbo.Items = {Item("Flags", "-game CTF")};
    lists.Game_Cbo.ListIndex = 0;
    user.Expect({"Confirm Deletion", "", 0});
    user.Expect({"Lorvane 3D", "Flags was deleted.", 1});
    ExpectTold("Deletion Cancelled");
    EXPECT_FALSE(DeleteGame(run, lists));
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 1u);
    EXPECT_EQ(lists.Game_Cbo.Items.size(), 1u);
}

TEST_F(DeleteEntry, TheLastRowLeavesTheOtherGamesRows) {
    lists.Game_Cbo.Items = {Item("Flags", "-game CTF")};
    lists.Game_Cbo.ListIndex = 0;
    lists.HiddenGames = "Arena;-game ARENA";
    ExpectDeletion(
        "Do you want to remove this game from the list?\r\n"
        "(no, this does NOT remove any files from your harddrive)\r\nFlags  /  -game CTF",
        "Flags was deleted.");
    EXPECT_TRUE(DeleteGame(run, lists));
    EXPECT_EQ(lists.Game_Cbo.ListIndex, -1);
    EXPECT_EQ(Stored("Games"), "Arena;-game ARENA");
}

TEST_F(DeleteEntry, ADemoIsDeleted) {
    lists.Demo_Cbo.Items = {Item("One", "playdemo demo1.dem"), Item("Two", "playdemo demo2.dem")};
    lists.Demo_Cbo.ListIndex = 1;
    ExpectDeletion("Do you want to delete this demo (i.e. remove it from the list)?\r\nTwo  /  playdemo demo2.dem",
                   "Two was deleted.");
    EXPECT_TRUE(DeleteDemo(run, lists));
    EXPECT_EQ(Stored("Demos"), "One;playdemo demo1.dem");
    EXPECT_EQ(lists.Demo_Cbo.ListIndex, 0);
}

TEST_F(DeleteEntry, AServerIsDeleted) {
    lists.Server_Cbo.Items = {Item("Home", "10.0.0.1;26000;0;")};
    lists.Server_Cbo.ListIndex = 0;
    lists.HiddenServers = "World;q.example;27500;1;";
    ExpectDeletion("Do you want to delete this server?\r\nHome  /  10.0.0.1;26000;0;", "Home was deleted.");
    EXPECT_TRUE(DeleteServer(run, lists));
    EXPECT_EQ(Stored("NetServers"), "World;q.example;27500;1;");
}

TEST_F(DeleteEntry, AScriptsFileGoesToo) {
    ListScript();
    EXPECT_TRUE(DeleteScript(run, lists));
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\ID1\\OWN.CFG"));
    EXPECT_EQ(Stored("Scripts"), "Far;c:\\far\\far.cfg");
}

TEST_F(DeleteEntry, AScriptThatIsGoneAlreadyIsTold) {
    ListScript();
    system.Disk.Delete("C:\\QUAKE\\ID1\\OWN.CFG");
    ExpectTold("The Script was already gone when I got there...");
    EXPECT_TRUE(DeleteScript(run, lists));
    EXPECT_TRUE(lists.Script_Cbo.Items.empty());
}

TEST_F(DeleteEntry, AScriptThatCannotBeDeletedIsTold) {
    ListScript();
    system.Disk.RefusedDeletes.insert("c:\\quake\\id1\\own.cfg");
    ExpectTold("The Script was not deleted.", "Error");
    EXPECT_TRUE(DeleteScript(run, lists));
    EXPECT_TRUE(lists.Script_Cbo.Items.empty());
    EXPECT_EQ(Stored("Scripts"), "Far;c:\\far\\far.cfg");
}

}  // namespace lv
