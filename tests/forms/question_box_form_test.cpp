#include "foundation/forms/question_box_form.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/textctrl.h>

#include "foundation/forms/wx_text.h"
#include "foundation/forms/wx_user.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"

namespace lv {
namespace {

class QuestionBoxForm_ : public ::testing::Test {
  protected:
    Index Ask(Text title, TextView text, TextView buttons, int byDefault = 0, int icon = 0) {
        return AskUser(run, title, text, buttons, byDefault, icon);
    }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
};

TEST_F(QuestionBoxForm_, EnterPressesTheDefaultButton) {
    WhenModal([] {
        SettleUntil([] { return Find("Button_Cmd(1)")->HasFocus(); }, 5000);
        EXPECT_TRUE(Find("Button_Cmd(1)")->HasFocus());
        Screenshot("question_box");
        PressKey(WXK_RETURN);
    });
    EXPECT_EQ(Ask("Confirm Deletion", "Do you want to remove this game from the list?", "&Yes,&Cancel", 1, 2), 1);
}

TEST_F(QuestionBoxForm_, AClickPressesAnyButton) {
    WhenModal([] { ClickOn(Find("Button_Cmd(2)")); });
    EXPECT_EQ(Ask("Game Not Found...", "Quake  c:\\quake\\quake.exe\r\nThis Game -->\r\nwas not found.",
                  "I &deleted this Game,I &moved this Game, I&gnore"),
              2);
}

TEST_F(QuestionBoxForm_, AnAccessKeyPressesItsButton) {
    WhenModal([] { PressKey('N', wxMOD_ALT); });
    EXPECT_EQ(Ask("", "Would you like to set up your game executables?", "&Yes,&No"), 1);
}

TEST_F(QuestionBoxForm_, EscapePressesTheButtonThatChangesNothing) {
    WhenModal([] { PressKey(WXK_ESCAPE); });
    EXPECT_EQ(Ask("", "Question", "&Yes,&No"), 1);
}

TEST_F(QuestionBoxForm_, TheWindowManagerClosesItByTheButtonThatChangesNothing) {
    WhenModal([] { PressKey(WXK_F4, wxMOD_ALT); });
    EXPECT_EQ(Ask("", "Setup cancelled at users request.", "&OK,&Not OK"), 1);
    WhenModal([] { PressKey(WXK_F4, wxMOD_ALT); });
    EXPECT_EQ(Ask("", "Would you like to set up your game executables?", "&Yes,&No"), 1);
    WhenModal([] { PressKey(WXK_F4, wxMOD_ALT); });
    EXPECT_EQ(Ask("", "Text", "&OK"), 0);
}

TEST_F(QuestionBoxForm_, AChoiceWithoutAQuietButtonIsMadeByAButtonAlone) {
    WhenModal([] {
        PressKey(WXK_ESCAPE);
        PressKey(WXK_F4, wxMOD_ALT);
        EXPECT_TRUE(Find("Button_Cmd(1)")->IsShownOnScreen());
        ClickOn(Find("Button_Cmd(1)"));
    });
    EXPECT_EQ(Ask("", "Question", "&This,Th&at"), 1);
}

TEST_F(QuestionBoxForm_, AnEmptyTitleShowsTheProgramsName) {
    WhenModal([] {
        EXPECT_EQ(Find("QuestionBox_Frm")->GetLabel(), "Lorvane 3D");
        PressKey(WXK_RETURN);
    });
    Ask("", "Text", "&OK");
}

TEST_F(QuestionBoxForm_, TheTextCanBeSelectedAndCopiedButNotChanged) {
    WhenModal([] {
        auto* text = FindAs<wxTextCtrl>("Question_Txt");
        EXPECT_FALSE(text->IsEditable());
        text->SelectAll();
        EXPECT_EQ(text->GetStringSelection(), ToWx("One line\nand \xE9\x80"));
        EXPECT_TRUE(text->CanCopy());
        ClickOn(Find("Button_Cmd(0)"));
    });
    Ask("", "One line\r\nand \xE9\x80", "&OK");
}

TEST_F(QuestionBoxForm_, ALongTextStaysOnTheScreen) {
    Text text;
    for (int i = 0; i < 300; ++i) {
        text +=
            "A line of a long text that goes on and on and on and on and on and on and on and on and on and on and "
            "on and on and on and on and on and on and on and on and on\r\n";
    }
    WhenModal([] {
        const wxSize size = Find("QuestionBox_Frm")->GetSize();
        EXPECT_LT(size.x, 1024);
        EXPECT_LT(size.y, 768);
        Screenshot("question_box_long");
        ClickOn(Find("Button_Cmd(0)"));
    });
    Ask("Viewing Commands", text, "&Cool - Thanks Man!,P&lace in Clipboard,Launch Me!");
}

TEST_F(QuestionBoxForm_, AFileIsShownAsWideAsItsLongestLine) {
    const Text line = "iiiiiiiii.ill -illi +fill lilliliillii.ffif;tilt iiii ftll " + Text(30, 'l');
    WhenModal([&] {
        auto* text = FindAs<wxTextCtrl>("Question_Txt");
        wxCoord width = 0;
        text->GetTextExtent(ToWx(line + line.substr(0, 10)), &width, nullptr);
        EXPECT_GE(text->GetClientSize().x, width);
        Screenshot("question_box_file");
        ClickOn(Find("Button_Cmd(0)"));
    });
    AskUserFixedWidth(run, "Viewing Commands", Join("short\r\n", line, line.substr(0, 10), "\r\nSET\tX"), "&OK");
}

TEST_F(QuestionBoxForm_, DontShowAgainIsHandedBack) {
    WhenModal([] {
        ClickOn(Find("NotAgain_Chk"));
        Screenshot("question_box_once");
        ClickOn(Find("Button_Cmd(0)"));
    });
    Text title = "Half-Life Console Warning";
    AskUserOnce(run, title, "Click the button to launch the listen server.");
    EXPECT_FALSE(run.ShowAgain);
}

}  // namespace
}  // namespace lv
