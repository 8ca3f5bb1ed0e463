#include "launcher/start/start_directories.h"

#include <utility>

#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

constexpr const char* kQuestion =
    "Lorvane 3D has detected an older version of itself\r\n\r\n"
    "in the old default install directory of\r\n\r\n"
    "C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\r\n\r\n"
    "Would you Lorvane 3D to remove it?";

class StartDirectories : public LauncherTest {
  protected:
    void AddOldInstall() {
        system.Disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\Lorvane3D.exe");
        system.Disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\LV3D.hlp");
        system.Disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\readme.txt");
    }
    void ExpectQuestion(int answer) { user.Expect({"Lorvane 3D", kQuestion, answer, false, true, "&Yes,&No"}); }
};

/// A platform whose program lies elsewhere.
class ElsewhereFiles : public MemoryFiles {
  public:
    std::string ProgramDirectory() override { return Program; }
    std::string Program;
};

class AlignElsewhere : public ::testing::Test {
  protected:
    ElsewhereFiles disk;
    MemoryPlatform system;
    Platform services{system.Settings, system.Registry, disk, system.Programs, system.Clip, system.Time};
    ScriptedUser user;
    lv::Run run{services, user};
};

}  // namespace

TEST_F(StartDirectories, TheProgramsDirectoryBecomesCurrent) {
    run.AppDirectory.clear();
    system.Disk.AddDirectory("C:\\LORVANE");
    EXPECT_TRUE(AlignDirectories(run));
    EXPECT_EQ(run.AppDirectory, "C:\\LORVANE");
    EXPECT_EQ(system.Disk.CurrentDirectory(), "C:\\LORVANE");
}

TEST_F(StartDirectories, AProgramThatIsWhereItLiesKeepsItsDirectory) {
    (void)system.Disk.ChangeDirectory("C:\\LORVANE");
    run.AppDirectory.clear();
    EXPECT_TRUE(AlignDirectories(run));
    EXPECT_EQ(run.AppDirectory, "C:\\LORVANE");
}

TEST_F(AlignElsewhere, ANetworkPathIsKeptAndTheCurrentDirectoryStays) {
    disk.AddDirectory("C:\\GAMES");
    (void)disk.ChangeDirectory("C:\\GAMES");
    disk.Program = "\\\\server\\lorvane";
    EXPECT_TRUE(AlignDirectories(run));
    EXPECT_EQ(run.AppDirectory, "\\\\server\\lorvane");
    EXPECT_EQ(disk.CurrentDirectory(), "C:\\GAMES");
}

TEST_F(AlignElsewhere, ADirectoryThatIsGoneEndsTheProgram) {
    disk.AddDirectory("C:\\GAMES");
    disk.Program = "C:\\GONE";
    user.Expect({"Lorvane 3D",
                 "Error number 76 while attempting to align application directories. \r\n\r\nPath not found", 0, false,
                 true, "&OK"});
    EXPECT_FALSE(AlignDirectories(run));
    EXPECT_TRUE(run.Ended);
    EXPECT_TRUE(user.ProgramEnded);
}

TEST_F(AlignElsewhere, ADriveThatIsNotReadyEndsTheProgram) {
    disk.AddDirectory("C:\\GAMES");
    disk.AddDirectory("D:\\LORVANE");
    disk.DrivesNotReady.insert("D:");
    disk.Program = "D:\\LORVANE";
    user.Expect({"Lorvane 3D", "Error number 71 while attempting to align application directories. \r\n\r\n"});
    EXPECT_FALSE(AlignDirectories(run));
    EXPECT_TRUE(run.Ended);
}

TEST_F(StartDirectories, WithoutAnOlderInstallNothingIsAsked) {
    OfferRemovalOfOlderInstall(run);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(StartDirectories, AnOlderInstallIsRemovedOnYes) {
    AddOldInstall();
    ExpectQuestion(0);
    OfferRemovalOfOlderInstall(run);
    EXPECT_FALSE(system.Disk.DirectoryExists("C:\\Program Files\\Ostrand Digital, LLC"));
    EXPECT_TRUE(system.Disk.DirectoryExists("C:\\Program Files"));
}

TEST_F(StartDirectories, YesIsPreselected) {
    AddOldInstall();
    ExpectQuestion(1);
    OfferRemovalOfOlderInstall(run);
    EXPECT_TRUE(user.Asked.back().Button_Cmd[0].Default);
}

TEST_F(StartDirectories, AnOlderInstallStaysOnNo) {
    AddOldInstall();
    ExpectQuestion(1);
    OfferRemovalOfOlderInstall(run);
    EXPECT_TRUE(system.Disk.FileExists("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\Lorvane3D.exe"));
    EXPECT_TRUE(system.Disk.Log.empty());
}

TEST_F(StartDirectories, AnInstallWithoutTheProgramIsNoOlderInstall) {
    system.Disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\LV3D.hlp");
    OfferRemovalOfOlderInstall(run);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(StartDirectories, AMakersDirectoryWithoutFilesGoesToo) {
    system.Disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\Lorvane3D.exe");
    ExpectQuestion(0);
    OfferRemovalOfOlderInstall(run);
    EXPECT_FALSE(system.Disk.DirectoryExists("C:\\Program Files\\Ostrand Digital, LLC"));
}

TEST_F(StartDirectories, ADirectoryWithMoreInItStopsTheRemoval) {
    AddOldInstall();
    system.Disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\saved\\mine.cfg", "mine");
    ExpectQuestion(0);
    user.Expect(
        {"Error attempting to remove the old directory.", "The old directory could not be removed.", 0, false, true});
    OfferRemovalOfOlderInstall(run);
    EXPECT_EQ(system.Disk.Bytes("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\saved\\mine.cfg"), "mine");
    EXPECT_TRUE(system.Disk.FileExists("C:\\Program Files\\Ostrand Digital, LLC\\readme.txt"));
}

TEST_F(StartDirectories, AMakersDirectoryWithOtherProgramsStays) {
    AddOldInstall();
    system.Disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\Other\\other.exe");
    ExpectQuestion(0);
    user.Expect({"Error attempting to remove the old directory.", "The old directory could not be removed."});
    OfferRemovalOfOlderInstall(run);
    EXPECT_FALSE(system.Disk.DirectoryExists("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D"));
    EXPECT_TRUE(system.Disk.FileExists("C:\\Program Files\\Ostrand Digital, LLC\\Other\\other.exe"));
}

/// A disk with a file in use.
class BusyFiles : public MemoryFiles {
  public:
    Error Delete(std::string_view path) override {
        return path.ends_with(Busy) ? MakeError(error::kPermissionDenied) : MemoryFiles::Delete(path);
    }
    std::string Busy;
};

TEST(OlderInstall, AFileInUseStopsTheRemoval) {
    BusyFiles disk;
    MemoryPlatform system;
    Platform services{system.Settings, system.Registry, disk, system.Programs, system.Clip, system.Time};
    ScriptedUser user;
    lv::Run run{services, user};
    disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\Lorvane3D.exe");
    disk.Busy = "Lorvane3D.exe";
    user.Expect({"Lorvane 3D", "Would you Lorvane 3D to remove it?", 0});
    user.Expect({"Error attempting to remove the old files.",
                 "The old files could not be removed.\r\nThey may be in use.", 0, false, true});
    OfferRemovalOfOlderInstall(run);
    EXPECT_TRUE(disk.FileExists("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\Lorvane3D.exe"));
}

TEST_F(StartDirectories, AProgramInTheOldDirectoryItselfIsStillAsked) {
    AddOldInstall();
    run.AppDirectory = kOldInstall;
    ExpectQuestion(1);
    OfferRemovalOfOlderInstall(run);
}

TEST_F(StartDirectories, OnlyADirectoryOfTheOldProgramsVeryPathIsNotAsked) {
    AddOldInstall();
    run.AppDirectory = kOldProgram;
    OfferRemovalOfOlderInstall(run);
    EXPECT_TRUE(user.Asked.empty());
}

TEST(CutTrailingBackslash, TakesOneOff) {
    for (const auto& [given, kept] :
         {std::pair("C:\\LORVANE\\", "C:\\LORVANE"), std::pair("C:\\", "C:"), std::pair("C:\\A\\\\", "C:\\A\\"),
          std::pair("C:\\A", "C:\\A"), std::pair("", "")}) {
        Text directory = given;
        CutTrailingBackslash(directory);
        EXPECT_EQ(directory, kept);
    }
}

}  // namespace lv
