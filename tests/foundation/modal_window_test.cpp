#include "foundation/modal_window.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

struct Some_Frm : ModalWindow {
    explicit Some_Frm(Run& owner) : ModalWindow(owner, "Some_Frm") {}
};

class ModalWindows : public ::testing::Test {
  protected:
    ModalWindows() {
        run.MainFormLoaded = true;
        run.Topmost.AlwaysOnTop = true;
        run.Topmost.InBand = true;
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(ModalWindows, AreOpenUnderTheirNameWithoutACaption) {
    const Some_Frm window(run);
    EXPECT_EQ(window.Name, "Some_Frm");
    EXPECT_EQ(window.Caption, "");
    EXPECT_EQ(window.Focus, "");
    EXPECT_FALSE(window.Closed);
}

TEST_F(ModalWindows, AreShownAsTheVeryStructThatWasGiven) {
    Some_Frm window(run);
    const ModalWindow* shown = nullptr;
    user.In<Some_Frm>([&shown](Some_Frm& form) {
        shown = &form;
        form.Closed = true;
    });
    ShowModal(window);
    EXPECT_EQ(shown, &window);
    EXPECT_TRUE(window.Closed);
}

TEST_F(ModalWindows, TakeTheMainWindowOutOfTheTopmostBandMeanwhile) {
    Some_Frm window(run);
    bool inBand = true;
    user.In<Some_Frm>([&](Some_Frm&) { inBand = run.Topmost.InBand; });
    ShowModal(window);
    EXPECT_FALSE(inBand);
    EXPECT_TRUE(run.Topmost.InBand);
}

TEST_F(ModalWindows, OneInAnotherPutTheMainWindowBackAfterTheOuterOne) {
    Some_Frm outer(run);
    Some_Frm inner(run);
    bool inBand = true;
    user.In<Some_Frm>([&](Some_Frm&) {
        user.In<Some_Frm>([](Some_Frm&) {});
        ShowModal(inner);
        inBand = run.Topmost.InBand;
    });
    ShowModal(outer);
    EXPECT_FALSE(inBand);
    EXPECT_TRUE(run.Topmost.InBand);
}

}  // namespace
}  // namespace lv
