#include "foundation/about_box.h"

#include <gtest/gtest.h>

#include "foundation/number_format.h"
#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

class AboutBox : public ::testing::Test {
  protected:
    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace

TEST_F(AboutBox, TellsNameVersionAndCounts) {
    run.VersionText = "1.06.0112 <Beta>";
    Save(run, "LV-Stuff", "RunCount", 7);
    Save(run, "LV-Stuff", "LaunchCount", 12);
    const About_Frm form = MakeAbout(run);
    EXPECT_EQ(form.Name_Lbl.Caption, "Lorvane 3D 1.06.0112 <Beta>");
    EXPECT_EQ(form.TimesRun_Lbl.Caption, " Times Run: 7");
    EXPECT_EQ(form.Launches_Lbl.Caption, "   Total Launches: 12");
}

TEST_F(AboutBox, WithoutCountsTellsZero) {
    const About_Frm form = MakeAbout(run);
    EXPECT_EQ(form.TimesRun_Lbl.Caption, " Times Run: 0");
    EXPECT_EQ(form.Launches_Lbl.Caption, "   Total Launches: 0");
}

TEST_F(AboutBox, BracketsItselfAndClosesByItsButton) {
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

}  // namespace lv
