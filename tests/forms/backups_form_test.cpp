#include "launcher/forms/backups_form.h"

#include <gtest/gtest.h>
#include <wx/listbox.h>
#include <wx/stattext.h>

#include "foundation/forms/wx_user.h"
#include "foundation/settings.h"
#include "launcher/menu/backups_frm.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"

namespace lv {
namespace {

class BackupsForm : public ::testing::Test {
  protected:
    BackupsForm() {
        user.AddForms(MakeBackupsForm);
        system.Disk.AddDirectory("C:\\HOME");
        system.Places.IsData = "C:\\HOME";
        Keep("One;-game one", 10);
        Keep("One;-game one;Two & Three;-game two", 11);
        Keep("One;-game one;Two & Three;-game two;Four;-game four", 12);
    }
    void Keep(TextView games, int hour) {
        system.Time.Is.Hour = hour;
        Save(run, kOptions, "Games", games);
        EXPECT_EQ(KeepBackup(run).Fault.Number, 0);
    }
    Text Games() { return GetSetting(run, run.AppName, kOptions, "Games"); }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
};

TEST_F(BackupsForm, IsUsedByKeyboardAlone) {
    WhenModal([] {
        EXPECT_TRUE(HasKeyboard(Find("Backups_Lst")));
        EXPECT_FALSE(Find("BringBackup_Cmd")->IsEnabled());
        PressKey(WXK_DOWN);
        // The first row or the second: the system's choice.
        EXPECT_NE(FindAs<wxListBox>("Backups_Lst")->GetSelection(), wxNOT_FOUND);
        PressKey(WXK_END);
        EXPECT_EQ(FindAs<wxListBox>("Backups_Lst")->GetSelection(), 2);
        EXPECT_TRUE(Find("BringBackup_Cmd")->IsEnabled());
        EXPECT_EQ(Find("Backup_Lbl")->GetLabel(), "Bringing it back changes 2 list entries.");
        Screenshot("backups");
        DoAndAnswer([] { PressKey('B', wxMOD_ALT); }, [] { PressKey(WXK_RETURN); });
    });
    Backups_Frm form(run);
    ShowModal(form);
    EXPECT_TRUE(form.BroughtBack);
    EXPECT_EQ(Games(), "One;-game one");
}

TEST_F(BackupsForm, EscapeClosesItAndChangesNothing) {
    WhenModal([] {
        PressKey(WXK_DOWN);
        PressKey(WXK_ESCAPE);
    });
    Backups_Frm form(run);
    ShowModal(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_FALSE(form.BroughtBack);
    EXPECT_EQ(Games(), "One;-game one;Two & Three;-game two;Four;-game four");
}

TEST_F(BackupsForm, ACancelledQuestionLeavesItOpen) {
    WhenModal([] {
        PressKey(WXK_DOWN);
        DoAndAnswer([] { ClickOn(Find("BringBackup_Cmd")); }, [] { PressKey(WXK_ESCAPE); });
        EXPECT_TRUE(Find("Backups_Lst")->IsShownOnScreen());
        ClickOn(Find("CloseBackups_Cmd"));
    });
    Backups_Frm form(run);
    ShowModal(form);
    EXPECT_FALSE(form.BroughtBack);
}

}  // namespace
}  // namespace lv
