#include "launcher/menu/backups_frm.h"

#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

class BackupsWindow : public ::testing::Test {
  protected:
    BackupsWindow() {
        system.Disk.AddDirectory("C:\\HOME");
        system.Places.IsData = "C:\\HOME";
    }
    void Keep(TextView games, int hour) {
        system.Time.Is.Hour = hour;
        Save(run, kOptions, "Games", games);
        ASSERT_EQ(KeepBackup(run).Fault.Number, 0);
    }
    void KeepThree() {
        Keep("One;-game one", 10);
        Keep("One;-game one;Two;-game two", 11);
        Keep("One;-game one;Two;-game two;Three;-game three", 12);
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace

TEST_F(BackupsWindow, ShowsEachWithWhatDiffersNow) {
    KeepThree();
    Backups_Frm form(run);
    EXPECT_EQ(form.Backups_Lst.Items,
              (std::vector<Text>{"1999-11-21 12:30:00   as it is now", "1999-11-21 11:30:00   differs in 1 list entry",
                                 "1999-11-21 10:30:00   differs in 2 list entries"}));
    EXPECT_EQ(form.Backups_Lst.ListIndex, 0);
    EXPECT_EQ(form.Backup_Lbl.Caption, "It is what is there now.");
    EXPECT_FALSE(form.BringBackup_Cmd.Enabled);
    form.Backups_Lst.ListIndex = 2;
    Backups_Lst_Click(form);
    EXPECT_EQ(form.Backup_Lbl.Caption, "Bringing it back changes 2 list entries.");
    EXPECT_TRUE(form.BringBackup_Cmd.Enabled);
}

TEST_F(BackupsWindow, SaysThatThereIsNone) {
    Backups_Frm form(run);
    EXPECT_TRUE(form.Backups_Lst.Items.empty());
    EXPECT_EQ(form.Backup_Lbl.Caption, "There is none yet.");
    EXPECT_FALSE(form.BringBackup_Cmd.Enabled);
    Backups_BringBackup_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
}

TEST_F(BackupsWindow, ShowsADamagedOneAndWhy) {
    KeepThree();
    system.Disk.AddFile(Backups(run)[1].Path, "Lorvane 3D settings 1\n");
    Backups_Frm form(run);
    EXPECT_EQ(form.Backups_Lst.Items[1], "1999-11-21 11:30:00   cannot be read");
    form.Backups_Lst.ListIndex = 1;
    Backups_Lst_Click(form);
    EXPECT_EQ(form.Backup_Lbl.Caption, "The file is damaged: in line 2 its end is missing. Nothing of it was used.");
    EXPECT_FALSE(form.BringBackup_Cmd.Enabled);
}

TEST_F(BackupsWindow, BringsTheSelectedOneBackOnceTheUserAgrees) {
    KeepThree();
    Backups_Frm form(run);
    form.Backups_Lst.ListIndex = 2;
    Backups_Lst_Click(form);
    user.Expect({"Backups of the Settings", "This changes 2 list entries.", 1, false, false, "&Bring Back,&Cancel"});
    Backups_BringBackup_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_FALSE(form.BroughtBack);
    user.Expect({"Backups of the Settings", "Bring back the settings of 1999-11-21 10:30:00?", 0});
    Backups_BringBackup_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    ASSERT_TRUE(form.BroughtBack);
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Games"), "One;-game one");
}

TEST_F(BackupsWindow, BringsTheOldestOfTenBackThoughANewOneTakesItsPlace) {
    for (int i = 0; i < 10; ++i) {
        Keep(Join("Number;-game ", std::to_string(i)), i);
    }
    Save(run, kOptions, "Games", "Another;-game another");
    Backups_Frm form(run);
    form.Backups_Lst.ListIndex = 9;
    Backups_Lst_Click(form);
    user.Expect({"Backups of the Settings", "00:30:00?", 0});
    Backups_BringBackup_Cmd_Click(form);
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Games"), "Number;-game 0");
    EXPECT_EQ(Backups(run).size(), 10u);
}

TEST_F(BackupsWindow, StaysOpenWhereTheSettingsCannotBeReplaced) {
    KeepThree();
    Backups_Frm form(run);
    form.Backups_Lst.ListIndex = 1;
    Backups_Lst_Click(form);
    system.Settings.RefuseGroups = MakeError(error::kDiskFull);
    user.Expect({"Backups of the Settings", "Bring back", 0});
    user.Expect({"Backups of the Settings", "The settings could not be brought back, and are as they were."});
    Backups_BringBackup_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_FALSE(form.BroughtBack);
}

}  // namespace lv
