#include "foundry/look/versions_frm.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

constexpr TextView kScript = "C:\\GAME\\ID1\\my.cfg";

class VersionsForm : public ::testing::Test {
  protected:
    VersionsForm() {
        system.Places.IsData = "C:\\HOME\\share";
        system.Time.Is = {2026, 11, 23, 8, 52, 11};
        Put("bind x quit\r\n");
        Keep();
        system.Time.Is.Hour = 20;
        Put("bind x quit\r\nbind y +jump\r\n");
        Keep();
        Put("bind x quit\r\nbind y +attack\r\n");
    }
    void Put(TextView text) { system.Disk.AddFile(kScript, text); }
    void Keep() { ASSERT_EQ(KeepVersion(run, kScript).Fault.Number, 0); }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace

TEST_F(VersionsForm, ListsThemNewestFirst) {
    const Versions_Frm form(run, kScript);
    EXPECT_EQ(form.Caption, "Versions of my.cfg");
    EXPECT_EQ(form.Versions_Lst.Items,
              (std::vector<Text>{"11/23/2026 20:52:11   27 bytes", "11/23/2026 08:52:11   13 bytes"}));
    EXPECT_EQ(form.Versions_Lst.ListIndex, 0);
    EXPECT_EQ(form.Difference_Lbl.Caption, "Bringing it back changes 1 line.");
    EXPECT_EQ(form.Difference_Lst.ListIndex, 1);
}

TEST_F(VersionsForm, ShowsWhatTheSelectedOneWouldChange) {
    Versions_Frm form(run, kScript);
    form.Versions_Lst.ListIndex = 1;
    Versions_Lst_Click(form);
    ASSERT_EQ(form.Difference_Lst.Rows().size(), 2u);
    EXPECT_EQ(form.Difference_Lst.Rows()[1].Kind, RowKind::OnlyLeft);
    EXPECT_EQ(form.Difference_Lst.Rows()[1].Left, "bind y +attack");
    EXPECT_TRUE(form.NextChange_Cmd.Enabled);
}

TEST_F(VersionsForm, SaysWhenNothingWouldChange) {
    Put("bind x quit\r\n");
    Versions_Frm form(run, kScript);
    form.Versions_Lst.ListIndex = 1;
    Versions_Lst_Click(form);
    EXPECT_EQ(form.Difference_Lbl.Caption, "It is what the script holds now.");
    EXPECT_FALSE(form.NextChange_Cmd.Enabled);
}

TEST_F(VersionsForm, BringsOneBack) {
    user.In<Versions_Frm>([](Versions_Frm& form) {
        form.Versions_Lst.ListIndex = 1;
        Versions_Lst_Click(form);
        Versions_BringBack_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
    });
    EXPECT_TRUE(ShowVersions(run, kScript));
    EXPECT_EQ(system.Disk.Bytes(kScript), "bind x quit\r\n");
    EXPECT_EQ(VersionsOf(run, kScript).front().Text, "bind x quit\r\nbind y +attack\r\n");
}

TEST_F(VersionsForm, ClosesWithoutAChange) {
    user.In<Versions_Frm>([](Versions_Frm& form) { Versions_Close_Cmd_Click(form); });
    EXPECT_FALSE(ShowVersions(run, kScript));
    EXPECT_EQ(system.Disk.Bytes(kScript), "bind x quit\r\nbind y +attack\r\n");
}

TEST_F(VersionsForm, StaysWhereTheScriptCannotBeReplaced) {
    system.Disk.Refused["c:\\game\\id1\\my.cfg"] = MakeError(error::kPermissionDenied);
    user.Expect({"Setup Foundry", "The version could not be brought back, and the script is as it was.", 0, false});
    Versions_Frm form(run, kScript);
    Versions_BringBack_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_FALSE(form.BroughtBack);
}

TEST_F(VersionsForm, SaysNothingOfDamageWhereThereIsNone) {
    const Versions_Frm form(run, kScript);
    EXPECT_FALSE(form.Damage_Lbl.Visible);
}

TEST_F(VersionsForm, SaysHowManyCouldNotBeReadAndLaterWhereTheyLie) {
    const Text path = VersionFilePathOf(run, kScript);
    Text bytes = system.Disk.Bytes(path);
    bytes.resize(bytes.size() - 3);
    system.Disk.AddFile(path, bytes);
    {
        const Versions_Frm form(run, kScript);
        EXPECT_EQ(form.Versions.size(), 1u);
        EXPECT_TRUE(form.Damage_Lbl.Visible);
        EXPECT_EQ(form.Damage_Lbl.Caption,
                  "The file that keeps the versions is damaged. What could not be read of it: 1 version.\r\n"
                  "The next save puts the damaged file aside, and what could be read goes on.");
    }
    Keep();
    const Versions_Frm form(run, kScript);
    EXPECT_EQ(form.Versions.size(), 2u);
    EXPECT_EQ(form.Damage_Lbl.Caption, Join("A damaged file of versions was kept as ", path, ".damaged"));
}

TEST_F(VersionsForm, SaysThatADamagedFileWasKeptWhenAVersionIsBroughtBack) {
    const Text path = VersionFilePathOf(run, kScript);
    system.Disk.AddFile(path, Join(system.Disk.Bytes(path), "more"));
    Versions_Frm form(run, kScript);
    user.Expect({"Setup Foundry", KeptAsideText(Join(path, ".damaged"))});
    Versions_BringBack_Cmd_Click(form);
    EXPECT_TRUE(form.BroughtBack);
}

TEST_F(VersionsForm, AFileThatIsAllDamagedIsToldOf) {
    system.Disk.AddFile(VersionFilePathOf(run, kScript), "nothing");
    user.Expect({"Setup Foundry",
                 "No older version of this script can be shown.\r\n\r\n"
                 "The file that keeps the versions is damaged. What could not be read of it: at least 1 "
                 "version.\r\n"});
    EXPECT_FALSE(ShowVersions(run, kScript));
}

TEST_F(VersionsForm, AnEmptyFileIsToldOfAsADamagedOne) {
    system.Disk.AddFile(VersionFilePathOf(run, kScript), "");
    user.Expect({"Setup Foundry",
                 "No older version of this script can be shown.\r\n\r\n"
                 "The file that keeps the versions is damaged. What could not be read of it: at least 1 version.\r\n"
                 "The next save puts the damaged file aside, and what could be read goes on.\r\n"
                 "Each save in Setup Foundry keeps what it replaces."});
    EXPECT_FALSE(ShowVersions(run, kScript));
}

TEST_F(VersionsForm, AFileThatCannotBeReadIsToldOfWithTheReason) {
    const Text path = VersionFilePathOf(run, kScript);
    system.Disk.RefusedReads[LowerCase(path)] = MakeError(error::kPermissionDenied);
    user.Expect({"Setup Foundry", Join("No older version of this script can be shown.\r\n\r\n"
                                       "The file that keeps the versions cannot be read:\r\n\r\n"
                                       "Error Number = 70\r\nError String = Permission denied: ",
                                       path, "\r\n\r\nUntil it can be read, no save keeps what it replaces.")});
    EXPECT_FALSE(ShowVersions(run, kScript));
}

TEST_F(VersionsForm, ADirectoryInThePlaceOfTheFileIsToldOf) {
    const Text path = VersionFilePathOf(run, kScript);
    ASSERT_FALSE(system.Disk.Delete(path));
    system.Disk.AddDirectory(path);
    user.Expect({"Setup Foundry", Join("No older version of this script can be shown.\r\n\r\n"
                                       "The file that keeps the versions cannot be read:\r\n\r\n"
                                       "Error Number = 75\r\nError String = Path/File access error: ",
                                       path,
                                       " is a directory. Rename it, or remove it.\r\n\r\n"
                                       "Until it can be read, no save keeps what it replaces.")});
    EXPECT_FALSE(ShowVersions(run, kScript));
}

TEST_F(VersionsForm, AScriptWithoutOneIsToldOf) {
    user.Expect({"Setup Foundry", "There is no older version of this script yet."});
    EXPECT_FALSE(ShowVersions(run, "C:\\GAME\\ID1\\other.cfg"));
}

}  // namespace lv
