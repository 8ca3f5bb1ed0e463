#include "foundation/dialogs.h"

#include <gtest/gtest.h>

#include "foundation/number_format.h"
#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

class Dialogs : public ::testing::Test {
  protected:
    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace

TEST(ConfirmExitForm, SaysWhatItAsks) {
    const ConfirmExit_Frm form;
    EXPECT_EQ(form.Caption, "Confirm Exit");
    EXPECT_EQ(form.Label1.Caption, "Changes have not been saved.");
    EXPECT_EQ(form.Label2.Caption, "Exit Anyway?");
    EXPECT_EQ(form.SaveNow_Chk.Caption, "Save Script Now");
    EXPECT_EQ(form.Yes_Cmd.Caption, "&Yes");
    EXPECT_EQ(form.No_Cmd.Caption, "&No");
}

TEST(ConfirmExitForm, YesIs0) {
    ConfirmExit_Frm form;
    ConfirmExit_Yes_Cmd_Click(form);
    EXPECT_EQ(form.DialogResult, 0);
    EXPECT_TRUE(form.Closed);
}

TEST(ConfirmExitForm, YesWithTheBoxTickedIs2) {
    ConfirmExit_Frm form;
    form.SaveNow_Chk.Value = 1;
    ConfirmExit_Yes_Cmd_Click(form);
    EXPECT_EQ(form.DialogResult, 2);
}

TEST(ConfirmExitForm, NoIs1) {
    ConfirmExit_Frm form;
    ConfirmExit_No_Cmd_Click(form);
    EXPECT_EQ(form.DialogResult, 1);
    EXPECT_TRUE(form.Closed);
}

TEST(ConfirmExitForm, NoWithTheBoxTickedIs3) {
    ConfirmExit_Frm form;
    form.SaveNow_Chk.Value = 1;
    ConfirmExit_No_Cmd_Click(form);
    EXPECT_EQ(form.DialogResult, 3);
}

TEST_F(Dialogs, ConfirmExitGivesTheResultBack) {
    user.InConfirmExit.push_back([](ConfirmExit_Frm& form) {
        form.SaveNow_Chk.Value = 1;
        ConfirmExit_Yes_Cmd_Click(form);
    });
    EXPECT_EQ(ConfirmExit(run), 2);
}

TEST_F(Dialogs, ConfirmExitClosedByItsFrameIsANo) {
    user.InConfirmExit.push_back([](ConfirmExit_Frm&) {});
    EXPECT_EQ(ConfirmExit(run), 1);
}

TEST_F(Dialogs, AboutTellsNameVersionAndCounts) {
    run.VersionText = "1.06.0112 <Beta>";
    Save(run, "LV-Stuff", "RunCount", 7);
    Save(run, "LV-Stuff", "LaunchCount", 12);
    const About_Frm form = MakeAbout(run);
    EXPECT_EQ(form.Name_Lbl.Caption, "Lorvane 3D 1.06.0112 <Beta>");
    EXPECT_EQ(form.TimesRun_Lbl.Caption, " Times Run: 7");
    EXPECT_EQ(form.Launches_Lbl.Caption, "   Total Launches: 12");
}

TEST_F(Dialogs, AboutWithoutCountsTellsZero) {
    const About_Frm form = MakeAbout(run);
    EXPECT_EQ(form.TimesRun_Lbl.Caption, " Times Run: 0");
    EXPECT_EQ(form.Launches_Lbl.Caption, "   Total Launches: 0");
}

TEST_F(Dialogs, AboutBracketsItselfAndClosesByItsButton) {
    run.MainFormLoaded = true;
    run.Topmost.AlwaysOnTop = true;
    run.Topmost.InBand = true;
    bool inBand = true;
    bool closed = false;
    user.InAbout.push_back([&](About_Frm& form) {
        inBand = run.Topmost.InBand;
        About_ButtonBar_Cmd_Click(form);
        closed = form.Closed;
    });
    ShowAboutBox(run);
    EXPECT_TRUE(closed);
    EXPECT_FALSE(inBand);
    EXPECT_TRUE(run.Topmost.InBand);
}

TEST_F(Dialogs, TheViewBoxHasAFixedWidthFont) {
    user.Expect({"Viewing", "SET X=1", 1, false, true, "&OK,&Not OK"});
    EXPECT_EQ(AskUserFixedWidth(run, "Viewing", "SET X=1", "&OK,&Not OK"), 1);
    EXPECT_TRUE(user.Asked.back().FixedWidth);
}

TEST_F(Dialogs, OtherBoxesHaveNone) {
    user.Expect({"Lorvane 3D", "Hello"});
    AskUser(run, "", "Hello");
    EXPECT_FALSE(user.Asked.back().FixedWidth);
}

}  // namespace lv
