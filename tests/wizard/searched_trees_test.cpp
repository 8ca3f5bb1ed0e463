#include "wizard/searched_trees.h"

#include <algorithm>

#include "tests/wizard/found_games_fixture.h"
#include "wizard/game_search.h"

namespace lv {

/// The search through the disks with rows that are ticked.
class SearchedTreesTest : public FoundGamesTest {
  protected:
    void AddTree(TextView directory, bool isFull = true) {
        system.Disk.AddFile(Join(directory, "\\id1\\pak0.pak"));
        if (isFull) {
            system.Disk.AddFile(Join(directory, "\\id1\\pak1.pak"));
        }
    }
    void Search(Install_Frm& form) {
        user.Expect({"Lorvane 3D", "extensive", 0});
        Install_AutoSearch_Cmd_Click(form);
    }
    Text QuakeFound() {
        Install_Frm form(run);
        Tick(form, kQuake);
        Search(form);
        return form.GamePath_Txt[kQuake].Text;
    }
};

TEST_F(SearchedTreesTest, FillTheRowOfAGameWithoutItsPrograms) {
    AddTree("D:\\backup\\old\\Q1");
    Install_Frm form(run);
    Tick(form, kQuake);
    Search(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "D:\\backup\\old\\Q1");
    EXPECT_EQ(form.Found_Lbl.Caption, "1 game found: Quake. Click 'OK' to go on.");
}

TEST_F(SearchedTreesTest, GetTheEnginesThatAreHere) {
    AddTree("C:\\backup\\q1");
    AddEngine("quakespasm");
    Install_Frm form(run);
    form.Engines = launcher.Engines;
    Tick(form, kQuake);
    Search(form);
    Install_OK_Cmd_Click(form);
    EXPECT_EQ(Executables(), "QuakeSpasm;c:\\backup\\q1\\quakespasm");
}

TEST_F(SearchedTreesTest, StandBehindAProgramThatTheWalkFindsLater) {
    AddTree("C:\\a");
    system.Disk.AddFile("D:\\z\\QUAKE.EXE");
    EXPECT_EQ(QuakeFound(), "D:\\z");
}

TEST_F(SearchedTreesTest, FillByTheFirstWholeGameOrTheFirstAtAll) {
    AddTree("C:\\a", false);
    AddTree("C:\\b", false);
    EXPECT_EQ(QuakeFound(), "C:\\a");
    AddTree("C:\\c");
    AddTree("C:\\d");
    EXPECT_EQ(QuakeFound(), "C:\\c");
}

TEST_F(SearchedTreesTest, FillTheDirectoryOfUnrealsPrograms) {
    system.Disk.AddFile("C:\\ut\\x\\System\\UnrealShare.u");
    system.Disk.AddDirectory("C:\\ut\\x\\Maps");
    Install_Frm form(run);
    Tick(form, kUnreal);
    Search(form);
    EXPECT_EQ(form.GamePath_Txt[kUnreal].Text, "C:\\ut\\x\\System");
}

TEST_F(SearchedTreesTest, MayLieInADrivesRoot) {
    system.Disk.AddFile("D:\\id1\\pak0.pak");
    EXPECT_EQ(QuakeFound(), "D:");
}

TEST_F(SearchedTreesTest, LeaveTheRowsThatAreNotTicked) {
    AddTree("C:\\a");
    Install_Frm form(run);
    Tick(form, kSin);
    Search(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "");
    EXPECT_EQ(form.GamePath_Txt[kSin].Text, "");
}

TEST_F(SearchedTreesTest, LeaveARowThatNamesATreeAlready) {
    AddTree("C:\\a");
    AddTree("D:\\mine");
    for (const char* const named : {"D:\\mine", "D:\\System"}) {
        Install_Frm form(run);
        Tick(form, kQuake);
        form.GamePath_Txt[kQuake].Text = named;
        form.FoundPaths[kQuake] = "D:\\System";
        Search(form);
        EXPECT_EQ(form.GamePath_Txt[kQuake].Text, named);
        EXPECT_EQ(form.Found_Lbl.Caption, "1 game found: Quake. Click 'OK' to go on.");
    }
}

TEST_F(SearchedTreesTest, FillARowWhosePathHoldsNoGame) {
    AddTree("C:\\a");
    system.Disk.AddFile("D:\\other\\baseq2\\pak0.pak");
    for (const char* const named : {"D:\\nowhere", "D:\\other"}) {
        Install_Frm form(run);
        Tick(form, kQuake);
        form.GamePath_Txt[kQuake].Text = named;
        Search(form);
        EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\a");
    }
}

TEST_F(SearchedTreesTest, AreKeptWhenTheSearchIsStopped) {
    AddTree("C:\\a");
    system.Disk.AddDirectory("C:\\b");
    system.Time.Step = 1;
    Install_Frm form(run);
    Tick(form, kQuake);
    user.OnPump = [&] {
        if (form.Status_Lbl.Caption == "Searching...  C:\\b") {
            Install_AutoSearch_Cmd_Click(form);
        }
    };
    Search(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\a");
}

TEST_F(SearchedTreesTest, AreNoLinksOfOurOwnAndNoZipMagicFolders) {
    AddTree("C:\\lorvane3d\\quake-1234");
    AddTree("C:\\old.zip\\q");
    Install_Frm form(run);
    Tick(form, kQuake);
    form.ZipMagic_Chk.Value = 1;
    Search(form);
    EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "");
}

TEST_F(SearchedTreesTest, CostAListingOnlyWhereADirectoryIsCalledSo) {
    system.Disk.AddDirectory("C:\\a\\b");
    AddTree("C:\\q");
    QuakeFound();
    EXPECT_EQ(std::ranges::count(system.Disk.Listed, "C:\\a\\b"), 1);
    EXPECT_EQ(std::ranges::count(system.Disk.Listed, "C:\\a"), 1);
    EXPECT_EQ(std::ranges::count(system.Disk.Listed, "C:\\q\\id1"), 2);
}

}  // namespace lv
