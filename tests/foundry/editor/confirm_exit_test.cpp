#include "foundry/editor/confirm_exit.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

class ConfirmExitForm : public ::testing::Test {
  protected:
    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    ConfirmExit_Frm form{run};
};

}  // namespace

TEST_F(ConfirmExitForm, SaysWhatItAsks) {
    EXPECT_EQ(form.Caption, "Confirm Exit");
    EXPECT_EQ(form.Label1.Caption, "Changes have not been saved.");
    EXPECT_EQ(form.Label2.Caption, "Exit Anyway?");
    EXPECT_EQ(form.SaveNow_Chk.Caption, "Save Script Now");
    EXPECT_EQ(form.Yes_Cmd.Caption, "&Yes");
    EXPECT_EQ(form.No_Cmd.Caption, "&No");
}

TEST_F(ConfirmExitForm, YesExits) {
    ConfirmExit_Yes_Cmd_Click(form);
    EXPECT_EQ(form.DialogResult, ExitAnswer::Exit);
    EXPECT_TRUE(form.Closed);
}

TEST_F(ConfirmExitForm, YesWithTheBoxTickedSavesFirst) {
    form.SaveNow_Chk.Value = 1;
    ConfirmExit_Yes_Cmd_Click(form);
    EXPECT_EQ(form.DialogResult, ExitAnswer::SaveAndExit);
}

TEST_F(ConfirmExitForm, NoStays) {
    ConfirmExit_No_Cmd_Click(form);
    EXPECT_EQ(form.DialogResult, ExitAnswer::Stay);
    EXPECT_TRUE(form.Closed);
}

TEST_F(ConfirmExitForm, NoWithTheBoxTickedSavesAndStays) {
    form.SaveNow_Chk.Value = 1;
    ConfirmExit_No_Cmd_Click(form);
    EXPECT_EQ(form.DialogResult, ExitAnswer::SaveAndStay);
}

TEST_F(ConfirmExitForm, GivesTheResultBack) {
    user.In<ConfirmExit_Frm>([](ConfirmExit_Frm& shown) {
        shown.SaveNow_Chk.Value = 1;
        ConfirmExit_Yes_Cmd_Click(shown);
    });
    EXPECT_EQ(ConfirmExit(run), ExitAnswer::SaveAndExit);
}

TEST_F(ConfirmExitForm, ClosedByItsFrameIsANo) {
    user.In<ConfirmExit_Frm>([](ConfirmExit_Frm&) {});
    EXPECT_EQ(ConfirmExit(run), ExitAnswer::Stay);
}

}  // namespace lv
