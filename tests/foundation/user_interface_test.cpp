// What a user interface does that has only what it must have.

#include "foundation/user_interface.h"

#include <gtest/gtest.h>

#include "foundation/modal_window.h"
#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

class BareUser : public UserInterface {
  public:
    void ShowQuestionBox(QuestionBox_Frm&) override {}
    Result<std::optional<Text>> ChooseFile(const FileRequest&) override { return std::optional<Text>(); }
    void Refresh() override {}
    void PumpEvents() override {}
    void EndProgram() override {}
    int TextWidth(TextView) override { return 0; }
    int TextHeight() override { return 0; }
    ScreenSize Screen() override { return {}; }
};

TEST(UserInterface, WithoutAnInputBoxAnswersAsAUserWhoCancels) {
    BareUser user;
    EXPECT_EQ(user.InputBox("Rename", "New name:", "Mine"), std::nullopt);
}

TEST(UserInterface, WithoutAViewerHasNoHandbookToOpen) {
    BareUser user;
    EXPECT_EQ(user.OpenHelp("C:\\LORVANE\\LORVANE.HLP", {}).Number, 53);
}

TEST(UserInterface, WithoutABrowserOpensNoAddress) {
    BareUser user;
    EXPECT_EQ(user.OpenUrl("https://lorvane3d.example/").Number, 53);
}

TEST(UserInterface, HasNoTrayUnlessItSaysSo) {
    BareUser user;
    EXPECT_FALSE(user.TrayAvailable());
}

TEST(UserInterface, LeavesAWindowThatItCannotShowAsItIs) {
    MemoryPlatform system;
    BareUser user;
    lv::Run run{system.Services, user};
    ModalWindow window(run, "Some_Frm");
    window.Caption = "Some";
    user.ShowModal(window);
    EXPECT_FALSE(window.Closed);
    EXPECT_EQ(window.Caption, "Some");
}

}  // namespace
}  // namespace lv
