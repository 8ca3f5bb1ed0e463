#include "foundation/question_box.h"

#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

class QuestionBoxTest : public ::testing::Test {
  protected:
    static std::vector<Text> Captions(const QuestionBox_Frm& box) {
        std::vector<Text> captions;
        for (const CommandButton& button : box.Button_Cmd) {
            captions.push_back(button.Caption);
        }
        return captions;
    }

    static int DefaultOf(const QuestionBox_Frm& box) {
        int chosen = -1;
        for (std::size_t i = 0; i < box.Button_Cmd.size(); ++i) {
            if (box.Button_Cmd[i].Default) {
                EXPECT_EQ(chosen, -1) << "two default buttons";
                chosen = static_cast<int>(i);
            }
        }
        return chosen;
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(QuestionBoxTest, SplitsTheCaptions) {
    EXPECT_EQ(Captions(MakeQuestionBox("T", "x", "&Yes,&No,&Cancel", 0, 0)),
              (std::vector<Text>{"&Yes", "&No", "&Cancel"}));
}

TEST_F(QuestionBoxTest, CaptionsLoseTheirLeadingBlanks) {
    EXPECT_EQ(Captions(MakeQuestionBox("T", "x", "I &deleted this Game,I &moved this Game, I&gnore", 0, 0)),
              (std::vector<Text>{"I &deleted this Game", "I &moved this Game", "I&gnore"}));
}

TEST_F(QuestionBoxTest, HasOneButtonByDefault) {
    user.Expect({"T", "x", 0, false, true, "&OK"});
    EXPECT_EQ(AskUser(run, "T", "x"), 0);
}

TEST_F(QuestionBoxTest, ADefaultOutsideTheRowBecomesTheFirst) {
    EXPECT_EQ(DefaultOf(MakeQuestionBox("T", "x", "&A,&B,&C", 5, 0)), 0);
    EXPECT_EQ(DefaultOf(MakeQuestionBox("T", "x", "&A,&B,&C", 3, 0)), 0);
    EXPECT_EQ(DefaultOf(MakeQuestionBox("T", "x", "&A,&B,&C", -1, 0)), 0);
}

TEST_F(QuestionBoxTest, ADefaultInsideTheRowStays) {
    EXPECT_EQ(DefaultOf(MakeQuestionBox("T", "x", "&A,&B,&C", 2, 0)), 2);
}

TEST_F(QuestionBoxTest, AnIconOutsideBecomesTheFirst) {
    EXPECT_EQ(MakeQuestionBox("T", "x", "&OK", 0, 13).Display_Pic.Index, 13);
    EXPECT_EQ(MakeQuestionBox("T", "x", "&OK", 0, 14).Display_Pic.Index, 0);
    EXPECT_EQ(MakeQuestionBox("T", "x", "&OK", 0, -1).Display_Pic.Index, 0);
}

struct QuietCase {
    const char* Buttons;
    int Quiet;
};

// Every list of buttons that the program shows.
constexpr QuietCase kQuietCases[] = {
    {"&OK", 0},
    {"&Cool", 0},
    {"DOH!", 0},
    {"&Thanks SetupFoundry!", 0},
    {"&Yes,&No", 1},
    {"&Yes,&Cancel", 1},
    {"&OK,&Not OK", 1},
    {"&OK,&No Way!", 1},
    {"&Cool,&Not Cool", 1},
    {"&Do it!,&No", 1},
    {"&Accept,&Decline", 1},
    {"&Yep - that's it!,&No way", 1},
    {"I &deleted this Game,I &moved this Game, I&gnore", 2},
    {"&Cool - Thanks Man!,P&lace in Clipboard,Launch Me!", 0},
    {"&That's OK,&Abort Launch", 1},
    {"&I Don't Care,&Cancel,&Tell Me How To Avoid This", 1},
    {"&Screw That - Save This Anyway,&Cancel and I'll Try That", 1},
    {"&Of Course I Am a GLQuake GOD,&I'm smart enough to admit I don't know what I am doing", 1},
    {"&I Know All,&I'm smart enough to admit I don't know what I am doing", 1},
    {"&Leave It Alone,&Change That File", 0},
    {"&Leave It Alone,&Write There", 0},
    {"&Leave It,&Read It", 0},
    {"&Take It Anyway,&Show Where,&Leave as They Are", 2},
    {"&Don't Start,&Start It", 0},
    {"&Close,C&opy", 0},
    {"&A,&B,&C", -1},
};

TEST_F(QuestionBoxTest, ClosesByTheButtonThatChangesNothing) {
    for (const QuietCase& one : kQuietCases) {
        const QuestionBox_Frm box = MakeQuestionBox("T", "x", one.Buttons, 0, 0);
        EXPECT_EQ(box.QuietButton, one.Quiet) << one.Buttons;
        EXPECT_EQ(box.LastButton, one.Quiet < 0 ? 0 : one.Quiet) << one.Buttons;
    }
}

TEST_F(QuestionBoxTest, AnEmptyTitleBecomesTheProgramsForTheCallerToo) {
    Text title;
    user.Expect({"Lorvane 3D", "x", 0, false, true});
    AskUser(run, title, "x");
    EXPECT_EQ(title, "Lorvane 3D");
}

TEST_F(QuestionBoxTest, ATitleStays) {
    Text title = "Scan Results";
    user.Expect({"Scan Results", "x", 0, false, true});
    AskUser(run, title, "x");
    EXPECT_EQ(title, "Scan Results");
}

TEST_F(QuestionBoxTest, NoTextShowsAnEmptyBox) {
    user.Expect({"T", "", 0, false, true});
    EXPECT_EQ(AskUser(run, "T", ""), 0);
}

TEST_F(QuestionBoxTest, GivesTheIndexOfThePressedButton) {
    user.Expect({"T", "x", 2, false, true, "&A,&B,&C"});
    EXPECT_EQ(AskUser(run, "T", "x", "&A,&B,&C"), 2);
}

TEST_F(QuestionBoxTest, SeveralBoxesReuseNoState) {
    user.Expect({"T", "three", 2, false, true, "&A,&B,&C"});
    user.Expect({"T", "one", 0, false, true, "&OK"});
    AskUser(run, "T", "three", "&A,&B,&C", 1);
    EXPECT_EQ(AskUser(run, "T", "one"), 0);
    ASSERT_EQ(user.Asked.size(), 2U);
    EXPECT_EQ(user.Asked[1].Button_Cmd.size(), 1U);
    EXPECT_EQ(DefaultOf(user.Asked[1]), 0);
}

TEST_F(QuestionBoxTest, APlainBoxHidesTheTick) {
    user.Expect({"T", "x"});
    AskUser(run, "T", "x");
    EXPECT_FALSE(user.Asked[0].NotAgain_Chk.Visible);
}

TEST_F(QuestionBoxTest, APlainBoxLeavesShowAgainAlone) {
    run.ShowAgain = false;
    user.Expect({"T", "x"});
    AskUser(run, "T", "x");
    EXPECT_FALSE(run.ShowAgain);
}

TEST_F(QuestionBoxTest, AskUserOnceShowsTheTick) {
    Text title = "T";
    user.Expect({"T", "x"});
    AskUserOnce(run, title, "x");
    EXPECT_TRUE(user.Asked[0].NotAgain_Chk.Visible);
    EXPECT_EQ(user.Asked[0].NotAgain_Chk.Caption, "Don't show this message again");
    EXPECT_TRUE(run.ShowAgain);
}

TEST_F(QuestionBoxTest, ATickClearsShowAgain) {
    Text title = "T";
    user.Expect({"T", "x", 0, true});
    AskUserOnce(run, title, "x");
    EXPECT_FALSE(run.ShowAgain);
}

TEST_F(QuestionBoxTest, TheNextBoxWithoutATickSetsShowAgain) {
    Text title = "T";
    run.ShowAgain = false;
    user.Expect({"T", "x"});
    AskUserOnce(run, title, "x");
    EXPECT_TRUE(run.ShowAgain);
}

TEST_F(QuestionBoxTest, AskUserUnlessToldRemembersTheTick) {
    user.Expect({"T", "x", 1, true});
    EXPECT_EQ(AskUserUnlessTold(run, "VideoProfiles", "T", "x", "&Yes,&No"), 1);
    EXPECT_EQ(GetSetting(run, run.AppName, "ShowMessage", "VideoProfiles"), "0");
    EXPECT_EQ(AskUserUnlessTold(run, "VideoProfiles", "T", "x", "&Yes,&No", 0), 0);
    EXPECT_EQ(user.Asked.size(), 1U);
}

TEST_F(QuestionBoxTest, AskUserUnlessToldComesAgainWithoutATick) {
    user.Expect({"T", "x"});
    user.Expect({"T", "x"});
    AskUserUnlessTold(run, "VideoProfiles", "T", "x");
    AskUserUnlessTold(run, "VideoProfiles", "T", "x");
    EXPECT_EQ(GetSetting(run, run.AppName, "ShowMessage", "VideoProfiles", "(none)"), "(none)");
}

TEST_F(QuestionBoxTest, WritingIntoTheMessageIsUndone) {
    QuestionBox_Frm box = MakeQuestionBox("T", "the message", "&OK", 0, 0);
    TextBox shown;
    shown.Text = "the mess";
    QuestionBox_Question_Txt_Change(box, shown);
    EXPECT_EQ(shown.Text, "the message");
}

TEST_F(QuestionBoxTest, AHiddenTickDoesNotCount) {
    QuestionBox_Frm box = MakeQuestionBox("T", "x", "&A,&B", 0, 0);
    box.NotAgain_Chk.Value = 1;
    QuestionBox_Button_Cmd_Click(box, 1);
    EXPECT_EQ(box.LastButton, 1);
    EXPECT_TRUE(box.LastNotAgain);
}

// The scripted user's font is 8 pixels wide and 16 high, the screen 1000 by 1000.
TEST_F(QuestionBoxTest, TheTextIsAsLargeAsItsMeasure) {
    QuestionBox_Frm box = MakeQuestionBox("T", Text(50, 'x') + "\r\nshort\r\n", "&OK", 0, 0);
    LayOutQuestionBox(box, user);
    EXPECT_EQ(box.Layout.TextWidth, 400);
    EXPECT_EQ(box.Layout.TextHeight, 48);
    EXPECT_FALSE(box.Layout.ScrollsAcross);
    EXPECT_FALSE(box.Layout.ScrollsDown);
}

TEST_F(QuestionBoxTest, TheGapIsAQuarterOfAButtonsHeight) {
    QuestionBox_Frm box = MakeQuestionBox("T", "x", "&OK", 0, 0);
    LayOutQuestionBox(box, user);
    EXPECT_EQ(box.Layout.Gap * 4, box.Layout.ButtonHeight);
}

TEST_F(QuestionBoxTest, AShortTextIsWidenedToTheRowOfButtons) {
    QuestionBox_Frm box = MakeQuestionBox("T", "x", "&One,&Two,&Three", 0, 0);
    LayOutQuestionBox(box, user);
    EXPECT_EQ(box.Layout.TextWidth, 3 * box.Layout.ButtonWidth + 2 * box.Layout.Gap);
}

TEST_F(QuestionBoxTest, AllButtonsAreAsWideAsTheWidestCaption) {
    QuestionBox_Frm box = MakeQuestionBox("T", "x", "&A," + Text(40, 'w'), 0, 0);
    LayOutQuestionBox(box, user);
    EXPECT_GE(box.Layout.ButtonWidth, 320);
    EXPECT_LT(box.Layout.ButtonWidth, 400);
}

TEST_F(QuestionBoxTest, ATextThatIsTooLargeScrolls) {
    Text text(101, 'x');
    for (int i = 0; i < 60; ++i) {
        text += "\r\n";
    }
    QuestionBox_Frm box = MakeQuestionBox("T", text, "&OK", 0, 0);
    LayOutQuestionBox(box, user);
    EXPECT_TRUE(box.Layout.ScrollsAcross);
    EXPECT_TRUE(box.Layout.ScrollsDown);
    EXPECT_EQ(box.Layout.TextWidth, 800);
    EXPECT_EQ(box.Layout.TextHeight, 800);
}

TEST_F(QuestionBoxTest, ALineThatIsTooLongWrapsBeforeItScrolls) {
    Text line = Text(60, 'x') + " " + Text(60, 'y') + " " + Text(30, 'z');
    QuestionBox_Frm box = MakeQuestionBox("T", line + "\r\nshort", "&OK", 0, 0);
    LayOutQuestionBox(box, user);
    EXPECT_TRUE(box.Layout.Wraps);
    EXPECT_FALSE(box.Layout.ScrollsAcross);
    EXPECT_FALSE(box.Layout.ScrollsDown);
    EXPECT_EQ(box.Layout.TextWidth, 800);
    EXPECT_EQ(box.Layout.TextHeight, 4 * 16);  // x, y and z, short, and one for the toolkit
}

TEST_F(QuestionBoxTest, AWordThatIsTooLongBreaksAnywhere) {
    QuestionBox_Frm box = MakeQuestionBox("T", "c:\\" + Text(297, 'x'), "&OK", 0, 0);
    LayOutQuestionBox(box, user);
    EXPECT_TRUE(box.Layout.Wraps);
    EXPECT_EQ(box.Layout.TextHeight, 4 * 16);
}

TEST_F(QuestionBoxTest, ATextThatWrappedWouldBeTooHighScrolls) {
    Text text(101, 'x');
    for (int i = 0; i < 48; ++i) {
        text += "\r\n";
    }
    QuestionBox_Frm box = MakeQuestionBox("T", text, "&OK", 0, 0);
    LayOutQuestionBox(box, user);
    EXPECT_FALSE(box.Layout.Wraps);
    EXPECT_TRUE(box.Layout.ScrollsAcross);
    EXPECT_FALSE(box.Layout.ScrollsDown);
}

TEST_F(QuestionBoxTest, AFilesTextKeepsItsLines) {
    QuestionBox_Frm box = MakeQuestionBox("T", Text(101, 'x'), "&OK", 0, 0);
    box.FixedWidth = true;
    LayOutQuestionBox(box, user);
    EXPECT_FALSE(box.Layout.Wraps);
    EXPECT_TRUE(box.Layout.ScrollsAcross);
}

TEST_F(QuestionBoxTest, AFilesTextIsMeasuredInTheFontThatItIsShownIn) {
    QuestionBox_Frm box = MakeQuestionBox("T", Text(70, 'x') + "\r\n\r\nend", "&OK", 0, 0);
    box.FixedWidth = true;
    LayOutQuestionBox(box, user);
    EXPECT_EQ(box.Layout.TextWidth, 700);
    EXPECT_EQ(box.Layout.TextHeight, 54);
    EXPECT_EQ(box.Layout.ButtonHeight, 32) << "the buttons' font is the windows'";
}

TEST_F(QuestionBoxTest, ATextOfExactlyTheLimitDoesNotScroll) {
    QuestionBox_Frm box = MakeQuestionBox("T", Text(100, 'x'), "&OK", 0, 0);
    LayOutQuestionBox(box, user);
    EXPECT_FALSE(box.Layout.ScrollsAcross);
    EXPECT_EQ(box.Layout.TextWidth, 800);
}

TEST_F(QuestionBoxTest, TellsOfWorkThatWasGivenUp) {
    user.Expect({"Lorvane 3D",
                 "What was under way has been given up.\r\n\r\nError Number = 7\r\nError String = Out of memory"
                 "\r\n\r\nSave your work, and close other programs before you try again.",
                 0, false, true, "&OK"});
    TellOfGivenUpWork(run, MakeError(error::kOutOfMemory));
}

TEST_F(QuestionBoxTest, LeavesTheWordOutThatThereIsNoMemoryFor) {
    user.OnDialog = [] { throw std::bad_alloc(); };
    TellOfGivenUpWork(run, MakeError(error::kOutOfMemory));
    EXPECT_EQ(run.Topmost.Nesting, 0);
}

TEST_F(QuestionBoxTest, TheViewBoxHasAFixedWidthFont) {
    user.Expect({"Viewing", "SET X=1", 1, false, true, "&OK,&Not OK"});
    EXPECT_EQ(AskUserFixedWidth(run, "Viewing", "SET X=1", "&OK,&Not OK"), 1);
    EXPECT_TRUE(user.Asked.back().FixedWidth);
}

TEST_F(QuestionBoxTest, OtherBoxesHaveNone) {
    user.Expect({"Lorvane 3D", "Hello"});
    AskUser(run, "", "Hello");
    EXPECT_FALSE(user.Asked.back().FixedWidth);
}

}  // namespace
}  // namespace lv
