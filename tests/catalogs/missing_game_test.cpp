#include "catalogs/missing_game.h"

#include "catalogs/executables.h"
#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

class MissingGameTest : public CatalogsTest {
  protected:
    MissingGameTest() { system.Disk.AddFile("C:\\SIN\\sin.exe"); }

    static constexpr Index kDeleted = 0;
    static constexpr Index kMoved = 1;
    static constexpr Index kIgnore = 2;

    void ExpectMissing(TextView game, Index answer) {
        user.Expect({"Game Not Found...", Text(game) + "\r\nThis Game -->\r\nwas not found.", answer, false, true,
                     "I &deleted this Game,I &moved this Game,I&gnore"});
    }

    void ExpectOffer(TextView path, Index answer) {
        user.Expect({"Lookie Here...", Text(path) + "\r\nIs this the new location?", answer, false, true,
                     "&Yep - that's it!,&No way"});
    }
};

// Deleted

TEST_F(MissingGameTest, DeletedFromADirectoryThatIsThereGoesAlone) {
    system.Disk.AddFile("C:\\QUAKE\\qwcl.exe");
    Store("Executables", "Sin;C:\\SIN\\sin.exe;Quake;C:\\QUAKE\\quake.exe;QuakeWorld;C:\\QUAKE\\qwcl.exe");
    Store("Scripts", "Mine;c:\\quake\\id1\\my.cfg");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kDeleted);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Sin;C:\\SIN\\sin.exe;QuakeWorld;C:\\QUAKE\\qwcl.exe");
    EXPECT_EQ(Stored("Scripts"), "Mine;c:\\quake\\id1\\my.cfg");
    EXPECT_EQ(Rows(lists.Exe_Cbo), (TextList{"Sin|C:\\SIN\\sin.exe", "QuakeWorld|C:\\QUAKE\\qwcl.exe"}));
}

TEST_F(MissingGameTest, TheFirstAndTheLastRecordCanGo) {
    system.Disk.AddDirectory("C:\\QUAKE");
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe;Sin;C:\\SIN\\sin.exe;GL;C:\\QUAKE\\glquake.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kDeleted);
    ExpectMissing("GL  C:\\QUAKE\\glquake.exe", kDeleted);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Sin;C:\\SIN\\sin.exe");
}

TEST_F(MissingGameTest, TheOnlyRecordLeavesAnEmptyCatalog) {
    system.Disk.AddDirectory("C:\\QUAKE");
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kDeleted);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "");
    EXPECT_EQ(lists.Exe_Cbo.ListIndex, -1);
}

TEST_F(MissingGameTest, AnotherRowThatEndsInTheSameTextStaysWhole) {
    system.Disk.AddDirectory("C:\\QUAKE");
    Store("Executables", "My Quake;C:\\QUAKE\\quake.exe2;Quake;C:\\QUAKE\\quake.exe");
    ExpectMissing("My Quake  C:\\QUAKE\\quake.exe2", kIgnore);
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kDeleted);
    ExpectMissing("My Quake  C:\\QUAKE\\quake.exe2", kIgnore);  // read again from the top
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "My Quake;C:\\QUAKE\\quake.exe2");
}

TEST_F(MissingGameTest, ARecordStoredWithBlanksGoesToo) {
    system.Disk.AddDirectory("C:\\QUAKE");
    Store("Executables", "Sin;C:\\SIN\\sin.exe; Quake;  C:\\QUAKE\\quake.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kDeleted);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Sin;C:\\SIN\\sin.exe");
}

TEST_F(MissingGameTest, DeletedWithItsDirectoryTakesAllRecordsBelowIt) {
    Store("Executables",
          "Quake;C:\\QUAKE\\quake.exe;Sin;C:\\SIN\\sin.exe;QuakeWorld;c:\\quake\\qwcl.exe;Deep;C:\\Quake\\GL\\gl.exe");
    Store("Scripts", "Mine;c:\\quake\\id1\\my.cfg;Sin;c:\\sin\\base\\my.cfg");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kDeleted);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Sin;C:\\SIN\\sin.exe");
    EXPECT_EQ(Stored("Scripts"), "Sin;c:\\sin\\base\\my.cfg");
}

TEST_F(MissingGameTest, ADirectoryThatBeginsLikeTheGoneOneStays) {
    system.Disk.AddFile("C:\\QUAKE2\\quake2.exe");
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe;Quake 2;C:\\QUAKE2\\quake2.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kDeleted);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake 2;C:\\QUAKE2\\quake2.exe");
}

TEST_F(MissingGameTest, DamagedScriptsEndTheProgramWithTheirOwnName) {
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe;Sin;C:\\SIN\\sin.exe");
    Store("Scripts", "Mine;c:\\quake\\id1\\my.cfg;odd");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kDeleted);
    ExpectDamage("scriptSettings", "Mine;c:\\quake\\id1\\my.cfg;odd");
    EXPECT_FALSE(LoadExes(run, lists));
    EXPECT_TRUE(run.Ended);
    EXPECT_EQ(Stored("Scripts"), "Mine;c:\\quake\\id1\\my.cfg;odd");
}

TEST_F(MissingGameTest, APathWithoutADirectoryGoesAlone) {
    Store("Executables", "Lost;quake.exe;Sin;C:\\SIN\\sin.exe");
    ExpectMissing("Lost  quake.exe", kDeleted);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Sin;C:\\SIN\\sin.exe");
}

TEST_F(MissingGameTest, AStoreThatRefusesTheDeletionIsAskedAgain) {
    system.Disk.AddDirectory("C:\\QUAKE");
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe;Sin;C:\\SIN\\sin.exe");
    system.Settings.RefuseWrites = MakeError(error::kDiskFull);
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kDeleted);
    user.Expect({"Lorvane 3D", "Error String = Disk full"});
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kIgnore);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 2U);
}

// Moved

TEST_F(MissingGameTest, MovedToAnotherDriveCorrectsAllRowsOfTheGame) {
    system.Disk.AddFile("D:\\QUAKE\\quake.exe");
    system.Disk.AddFile("D:\\QUAKE\\qwcl.exe");
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe;Sin;C:\\SIN\\sin.exe;QuakeWorld;c:\\quake\\qwcl.exe");
    Store("Scripts", "Mine;c:\\quake\\id1\\my.cfg;Sin;c:\\sin\\base\\my.cfg");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kMoved);
    ExpectOffer("D:\\QUAKE\\quake.exe", 0);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;D:\\QUAKE\\quake.exe;Sin;C:\\SIN\\sin.exe;QuakeWorld;D:\\QUAKE\\qwcl.exe");
    EXPECT_EQ(Stored("Scripts"), "Mine;D:\\QUAKE\\id1\\my.cfg;Sin;c:\\sin\\base\\my.cfg");
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 3U);
}

TEST_F(MissingGameTest, FloppiesAndDrivesThatAreNotReadyAreNotOffered) {
    system.Disk.AddFile("A:\\QUAKE\\quake.exe");
    system.Disk.AddFile("B:\\QUAKE\\quake.exe");
    system.Disk.AddFile("E:\\QUAKE\\quake.exe");
    system.Disk.AddFile("F:\\QUAKE\\quake.exe");
    system.Disk.DrivesNotReady = {"E:"};
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kMoved);
    ExpectOffer("F:\\QUAKE\\quake.exe", 0);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;F:\\QUAKE\\quake.exe");
}

TEST_F(MissingGameTest, ARefusedOfferGoesOnToTheNextDriveAndThenTheDialog) {
    system.Disk.AddFile("D:\\QUAKE\\quake.exe");
    system.Disk.AddFile("E:\\QUAKE\\quake.exe");
    system.Disk.AddFile("C:\\GAMES\\Q\\quake.exe");
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kMoved);
    ExpectOffer("D:\\QUAKE\\quake.exe", 1);
    ExpectOffer("E:\\QUAKE\\quake.exe", 1);
    user.FileAnswers.push_back(std::optional<Text>("C:\\GAMES\\Q\\quake.exe"));
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;C:\\GAMES\\Q\\quake.exe");
}

TEST_F(MissingGameTest, TheDialogAsksForTheFile) {
    Store("Executables", "Quake;C:\\QUAKE\\glquake.exe");
    ExpectMissing("Quake  C:\\QUAKE\\glquake.exe", kMoved);
    user.FileAnswers.push_back(std::optional<Text>());
    ExpectMissing("Quake  C:\\QUAKE\\glquake.exe", kIgnore);
    EXPECT_TRUE(LoadExes(run, lists));
    ASSERT_EQ(user.FileRequests.size(), 1U);
    EXPECT_EQ(user.FileRequests[0].InitialDirectory, "C:\\");
    EXPECT_EQ(user.FileRequests[0].Filter,
              "Game Executable [glquake.exe](glquake.exe)|glquake.exe|All Files (*.*)|*.*");
    EXPECT_FALSE(user.FileRequests[0].ForSaving);
}

TEST_F(MissingGameTest, ACancelledDialogReadsTheListAgain) {
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kMoved);
    user.FileAnswers.push_back(std::optional<Text>());
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kIgnore);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;C:\\QUAKE\\quake.exe");
}

TEST_F(MissingGameTest, AFailedDialogIsToldAndReadsTheListAgain) {
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kMoved);
    user.FileAnswers.push_back(Error{7, "Out of memory"});
    user.Expect({"A Windows Related Error Occured",
                 "Error Number = 7\r\nError String = Out of memory\r\n\r\nLorvane 3D setting have not been altered.", 0,
                 false, true, "&OK"});
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kIgnore);
    EXPECT_TRUE(LoadExes(run, lists));
}

TEST_F(MissingGameTest, ANewNameInTheSameDirectoryChangesNothingAndIsAskedAgain) {
    system.Disk.AddFile("C:\\QUAKE\\renamed.exe");
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kMoved);
    user.FileAnswers.push_back(std::optional<Text>("C:\\QUAKE\\renamed.exe"));
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kIgnore);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;C:\\QUAKE\\quake.exe");
}

TEST_F(MissingGameTest, ADirectoryThatBeginsLikeTheMovedOneStays) {
    system.Disk.AddFile("D:\\QUAKE\\quake.exe");
    system.Disk.AddFile("C:\\QUAKE2\\quake2.exe");
    Store("Executables", "Quake;C:\\QUAKE\\quake.exe;Quake 2;C:\\QUAKE2\\quake2.exe");
    ExpectMissing("Quake  C:\\QUAKE\\quake.exe", kMoved);
    ExpectOffer("D:\\QUAKE\\quake.exe", 0);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;D:\\QUAKE\\quake.exe;Quake 2;C:\\QUAKE2\\quake2.exe");
}

TEST_F(MissingGameTest, MovedIntoItsOwnSubdirectoryIsMovedOnce) {
    system.Disk.AddFile("C:\\QUAKE\\OLD\\quake.exe");
    Store("Executables", "Quake;c:\\quake\\quake.exe");
    ExpectMissing("Quake  c:\\quake\\quake.exe", kMoved);
    user.FileAnswers.push_back(std::optional<Text>("c:\\quake\\old\\quake.exe"));
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;c:\\quake\\old\\quake.exe");
}

TEST(MovePaths, MovesWhatLiesInTheDirectory) {
    EXPECT_EQ(MovePaths("A;C:\\Q\\a.exe;B;c:\\q\\x\\b.exe;C;C:\\R\\c.exe", "C:\\Q\\", "D:\\G\\"),
              "A;D:\\G\\a.exe;B;D:\\G\\x\\b.exe;C;C:\\R\\c.exe");
    EXPECT_EQ(MovePaths("", "C:\\Q\\", "D:\\"), "");
    EXPECT_EQ(MovePaths("A; C:\\Q\\a.exe;", "C:\\Q\\", "D:\\"), "A;D:\\a.exe;");
    EXPECT_EQ(MovePaths("A;C:/Q/a.exe", "C:\\Q\\", "D:\\"), "A;D:\\a.exe");
}

TEST(MovePaths, WithoutADirectoryChangesNothing) {
    EXPECT_EQ(MovePaths("A;quake.exe", "", "D:\\"), "A;quake.exe");
}

}  // namespace
}  // namespace lv
