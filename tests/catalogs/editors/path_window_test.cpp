#include "catalogs/editors/path_window.h"

#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

class PathWindow : public EditorsTest {
  protected:
    PathWindow() {
        for (const char* path : {"C:\\Quake\\maps", "C:\\Quake\\ID1", "C:\\Quake\\ctf", "D:\\GAMES"}) {
            system.Disk.AddDirectory(path);
        }
        system.Disk.AddFile("C:\\Quake\\A.EXE");
    }
};

TEST_F(PathWindow, ShowsDrivesAndDirectories) {
    const Path_Frm form(run, "C:\\Quake");
    EXPECT_EQ(form.Name, "Path_Frm");
    EXPECT_EQ(form.Caption, "Select Path");
    EXPECT_EQ(form.Drive1.Items, (TextList{"C:", "D:"}));
    EXPECT_EQ(form.Drive1.ListIndex, 0);
    EXPECT_EQ(form.Dir1.Items, (TextList{"C:\\", "Quake", "ctf", "ID1", "maps"}));
    EXPECT_EQ(form.DirPaths, (TextList{"C:\\", "C:\\Quake", "C:\\Quake\\ctf", "C:\\Quake\\ID1", "C:\\Quake\\maps"}));
    EXPECT_EQ(form.DirLevels, (std::vector<int>{0, 1, 2, 2, 2}));
    EXPECT_EQ(form.Dir1.ListIndex, 1);
    EXPECT_EQ(form.Focus, "Dir1");
    EXPECT_EQ(form.Path_Lbl.Caption, "C:\\Quake");
}

TEST_F(PathWindow, OpensInTheCurrentDirectoryWhereTheStartIsGone) {
    system.Disk.ChangeDirectory("C:\\Quake\\ID1");
    EXPECT_EQ(Path_Frm(run, "C:\\GONE").Path_Lbl.Caption, "C:\\Quake\\ID1");
    EXPECT_EQ(Path_Frm(run, "").Path_Lbl.Caption, "C:\\Quake\\ID1");
}

TEST_F(PathWindow, GoesDownAndUp) {
    Path_Frm form(run, "C:\\Quake\\");
    Path_Dir1_DblClick(form, 3);
    EXPECT_EQ(form.Path_Lbl.Caption, "C:\\Quake\\ID1");
    Path_Dir1_DblClick(form, 0);
    EXPECT_EQ(form.Path_Lbl.Caption, "C:\\");
    EXPECT_EQ(form.Dir1.Items, (TextList{"C:\\", "Quake"}));
    EXPECT_EQ(form.DirPaths[1], "C:\\Quake");
    Path_Dir1_DblClick(form, 7);
    EXPECT_EQ(form.Path_Lbl.Caption, "C:\\");
}

TEST_F(PathWindow, TypingSelectsANameAndEntersNothing) {
    Path_Frm form(run, "C:\\Quake");
    Path_Dir1_KeyPress(form, 'm');
    EXPECT_EQ(form.Dir1.ListIndex, 4);
    Path_Dir1_KeyPress(form, 'x');
    EXPECT_EQ(form.Dir1.ListIndex, 4);
    EXPECT_EQ(form.Path_Lbl.Caption, "C:\\Quake");
}

TEST_F(PathWindow, TheChosenDirectoryIsWhereTheNextChoiceBegins) {
    user.In<Path_Frm>([](Path_Frm& form) { Path_OK_Cmd_Click(form); });
    ChoosePath(run, "C:\\Quake\\ctf");
    EXPECT_EQ(run.LastBrowsed, "C:\\Quake\\ctf");
    user.In<Path_Frm>([](Path_Frm& form) { Path_Cancel_Cmd_Click(form); });
    ChoosePath(run, "D:\\GAMES");
    EXPECT_EQ(run.LastBrowsed, "C:\\Quake\\ctf");
}

TEST_F(PathWindow, AnotherDriveShowsItsRoot) {
    Path_Frm form(run, "C:\\Quake");
    form.Drive1.ListIndex = 1;
    Path_Drive1_Change(form);
    EXPECT_EQ(form.Path_Lbl.Caption, "D:\\");
    EXPECT_EQ(form.Dir1.Items, (TextList{"D:\\", "GAMES"}));
}

TEST_F(PathWindow, ADriveThatFailsGoesBackToTheLastGoodOne) {
    Path_Frm form(run, "C:\\Quake");
    system.Disk.DrivesNotReady.insert("D:");
    form.Drive1.ListIndex = 1;
    ExpectTold("Disk not ready.", "D:");
    Path_Drive1_Change(form);
    EXPECT_EQ(form.Drive1.ListIndex, 0);
    EXPECT_EQ(form.Path_Lbl.Caption, "C:\\Quake");
}

TEST_F(PathWindow, ADirectoryThatCannotBeReadIsTold) {
    system.Disk.Unreadable.insert("c:\\quake\\id1");
    Path_Frm form(run, "C:\\Quake");
    ExpectTold("Path access error.", "C:");
    Path_Dir1_DblClick(form, 3);
    EXPECT_EQ(form.Path_Lbl.Caption, "C:\\Quake");
}

TEST(DriveErrorText, KnowsSixErrors) {
    EXPECT_EQ(DriveErrorText(57), "Device I/O error.");
    EXPECT_EQ(DriveErrorText(68), "Device unavailable.");
    EXPECT_EQ(DriveErrorText(70), "Permission denied.");
    EXPECT_EQ(DriveErrorText(71), "Disk not ready.");
    EXPECT_EQ(DriveErrorText(75), "Path access error.");
    EXPECT_EQ(DriveErrorText(76), "Path not found.");
    EXPECT_EQ(DriveErrorText(5), "Unexpected error #5");
}

TEST_F(PathWindow, OkGivesThePath) {
    user.In<Path_Frm>([](Path_Frm& form) {
        EXPECT_EQ(form.Caption, "Choose It");
        Path_OK_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
    });
    EXPECT_EQ(ChoosePath(run, "C:\\Quake", "Choose It"), "C:\\Quake");
}

TEST_F(PathWindow, CancelGivesItsWord) {
    user.In<Path_Frm>([](Path_Frm& form) {
        Path_Cancel_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
    });
    EXPECT_EQ(ChoosePath(run, "C:\\Quake"), "CANCEL");
}

TEST_F(PathWindow, ClosedByItsFrameItIsACancel) {
    user.In<Path_Frm>([](Path_Frm&) {});
    EXPECT_EQ(ChoosePath(run, "C:\\Quake"), "CANCEL");
}

TEST_F(PathWindow, KeepsItsPlace) {
    user.In<Path_Frm>([](Path_Frm& form) {
        form.Placement.Top = 300;
        form.Placement.Left = 450;
    });
    ChoosePath(run, "C:\\Quake");
    EXPECT_EQ(Stored("Top", "Path_Frm"), "300");
    user.In<Path_Frm>([](Path_Frm& form) {
        EXPECT_EQ(form.Placement.Top, 300);
        EXPECT_EQ(form.Placement.Left, 450);
    });
    ChoosePath(run, "C:\\Quake");
}

}  // namespace lv
