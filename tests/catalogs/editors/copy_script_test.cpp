#include "catalogs/editors/copy_script.h"

#include "catalogs/editors/path_window.h"
#include "catalogs/scripts.h"
#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

class CopyingScripts : public EditorsTest {
  protected:
    CopyingScripts() {
        BeInQuake();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\OWN.CFG", "own");
        system.Disk.AddFile("C:\\OTHER\\TAKEN.CFG", "taken");
        EXPECT_TRUE(FillScriptsCombo(run, lists));
    }
    void Copy(const Text& directory, std::vector<std::optional<Text>> names) {
        user.In<Path_Frm>([directory](Path_Frm& form) {
            EXPECT_EQ(form.Caption, "Choose Destination Directory");
            form.Path_Lbl.Caption = directory;
            Path_OK_Cmd_Click(form);
        });
        user.InputAnswers.assign(names.begin(), names.end());
        CopyScript(run, lists);
    }
};

TEST_F(CopyingScripts, NeedsASelection) {
    lists.Script_Cbo.Clear();
    ExpectTold("No script is selected.");
    CopyScript(run, lists);
}

TEST_F(CopyingScripts, ACancelledPathEndsIt) {
    user.In<Path_Frm>([](Path_Frm& form) { Path_Cancel_Cmd_Click(form); });
    CopyScript(run, lists);
    EXPECT_TRUE(user.Inputs.empty());
}

TEST_F(CopyingScripts, OffersTheScriptsOwnName) {
    Copy("C:\\OTHER", {"own.cfg"});
    EXPECT_EQ(user.Inputs, (TextList{"New Script|Click 'OK' to keep this name."}));
    EXPECT_EQ(user.Offered, (TextList{"own.cfg"}));
    EXPECT_EQ(system.Disk.Bytes("C:\\OTHER\\OWN.CFG"), "own");
}

TEST_F(CopyingScripts, TheSameDirectoryRequiresANewName) {
    Copy("c:\\quake\\id1", {"copy"});
    EXPECT_EQ(user.Inputs, (TextList{"New Script|Perhaps the new script needs a new name?\r\n"
                                     "Click 'OK' to keep this name.\r\nThe new script will require a new name."}));
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\COPY.CFG"), "own");
    EXPECT_EQ(lists.Script_Cbo.Items.size(), 2u);
}

TEST_F(CopyingScripts, OntoItselfFails) {
    ExpectTold("Operation Failed");
    Copy("c:\\quake\\id1", {"own.cfg"});
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\OWN.CFG"), "own");
}

TEST_F(CopyingScripts, ATakenNameIsAskedAboutOnceMore) {
    Copy("C:\\OTHER", {"taken", "taken"});
    ASSERT_EQ(user.Inputs.size(), 2u);
    EXPECT_EQ(user.Inputs[1], "New Script|Perhaps the new script needs a new name?\r\nClick 'OK' to keep this name.");
    EXPECT_EQ(user.Offered[1], "taken");
    EXPECT_EQ(system.Disk.Bytes("C:\\OTHER\\TAKEN.CFG"), "own");
}

TEST_F(CopyingScripts, ACancelledNameCopiesNothing) {
    Copy("C:\\OTHER", {std::nullopt});
    EXPECT_FALSE(system.Disk.FileExists("C:\\OTHER\\OWN.CFG"));
}

TEST_F(CopyingScripts, AFailureIsTold) {
    system.Disk.Refused["c:\\other\\own.cfg"] = Error{61, "Disk full"};
    ExpectTold("Operation Failed");
    Copy("C:\\OTHER", {"own.cfg"});
}

TEST_F(CopyingScripts, ALinkThatLeadsAwayIsAskedAbout) {
    system.Disk.AddFile("C:\\ETC\\PASSWD", "theirs");
    system.Disk.AddFileLink("C:\\OTHER\\link.cfg", "C:\\ETC\\PASSWD");
    user.Expect({.Title = "Link To Another Place", .Text_ = "c:\\etc\\passwd", .Answer = 0});
    Copy("C:\\OTHER", {"link.cfg", "link.cfg"});
    EXPECT_EQ(system.Disk.Bytes("C:\\ETC\\PASSWD"), "theirs");
    user.Expect({.Title = "Link To Another Place", .Text_ = "c:\\etc\\passwd", .Answer = 1});
    Copy("C:\\OTHER", {"link.cfg", "link.cfg"});
    EXPECT_EQ(system.Disk.Bytes("C:\\ETC\\PASSWD"), "own");
}

}  // namespace lv
