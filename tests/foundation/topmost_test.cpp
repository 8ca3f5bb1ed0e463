#include "foundation/topmost.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

class Topmost : public ::testing::Test {
  protected:
    Topmost() {
        run.MainFormLoaded = true;
        run.Topmost.AlwaysOnTop = true;
        run.Topmost.InBand = true;
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace

TEST_F(Topmost, ADialogTakesTheWindowOutAndPutsItBack) {
    SuspendTopmost(run);
    EXPECT_FALSE(run.Topmost.InBand);
    ResumeTopmost(run);
    EXPECT_TRUE(run.Topmost.InBand);
}

TEST_F(Topmost, TwoNestedDialogsPutItBackOnlyAfterTheOuterOne) {
    SuspendTopmost(run);
    SuspendTopmost(run);
    EXPECT_EQ(run.Topmost.Nesting, 2);
    ResumeTopmost(run);
    EXPECT_FALSE(run.Topmost.InBand);
    ResumeTopmost(run);
    EXPECT_TRUE(run.Topmost.InBand);
    EXPECT_EQ(run.Topmost.Nesting, 0);
}

TEST_F(Topmost, WithoutAMainWindowNothingIsCounted) {
    run.MainFormLoaded = false;
    SuspendTopmost(run);
    EXPECT_EQ(run.Topmost.Nesting, 0);
    EXPECT_TRUE(run.Topmost.InBand);
    ResumeTopmost(run);
    EXPECT_EQ(run.Topmost.Nesting, 0);
}

TEST_F(Topmost, TheCountIsKeptWithoutTheCheckMark) {
    run.Topmost.AlwaysOnTop = false;
    run.Topmost.InBand = false;
    SuspendTopmost(run);
    EXPECT_EQ(run.Topmost.Nesting, 1);
    run.Topmost.AlwaysOnTop = true;  // checked while the dialog is up
    ResumeTopmost(run);
    EXPECT_EQ(run.Topmost.Nesting, 0);
    EXPECT_TRUE(run.Topmost.InBand);
}

TEST_F(Topmost, AWindowThatIsNotToBeOnTopIsLeftAlone) {
    run.Topmost.AlwaysOnTop = false;
    run.Topmost.InBand = false;
    SuspendTopmost(run);
    ResumeTopmost(run);
    EXPECT_FALSE(run.Topmost.InBand);
}

TEST_F(Topmost, AQuestionBoxBracketsItself) {
    bool inBand = true;
    user.OnDialog = [&] { inBand = run.Topmost.InBand; };
    user.Expect({"Lorvane 3D", "Hello"});
    AskUser(run, "", "Hello");
    EXPECT_FALSE(inBand);
    EXPECT_TRUE(run.Topmost.InBand);
}

TEST_F(Topmost, AQuestionInAQuestionKeepsTheWindowDown) {
    std::vector<bool> inBand;
    user.OnDialog = [&] { inBand.push_back(run.Topmost.InBand); };
    {
        const TopmostSuspension outer(run);
        user.Expect({"Lorvane 3D", "Hello"});
        AskUser(run, "", "Hello");
        inBand.push_back(run.Topmost.InBand);
    }
    EXPECT_EQ(inBand, (std::vector<bool>{false, false}));
    EXPECT_TRUE(run.Topmost.InBand);
}

TEST_F(Topmost, AWindowUncheckedUnderADialogStaysDown) {
    SuspendTopmost(run);
    run.Topmost.AlwaysOnTop = false;
    ResumeTopmost(run);
    EXPECT_EQ(run.Topmost.Nesting, 0);
    EXPECT_FALSE(run.Topmost.InBand);
}

}  // namespace lv
