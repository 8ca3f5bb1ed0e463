#include "foundry/editor/line_dialogs.h"

#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

TEST_F(FigTest, TheDialogOfMessagesSaysWhatItWants) {
    const SayStuff_Frm dialog(run);
    EXPECT_EQ(dialog.Name, "SayStuff_Frm");
    EXPECT_EQ(dialog.Caption, "You Got Something To Say?");
    EXPECT_EQ(dialog.Label1.Caption, "Type something that sounds really cool !!");
    EXPECT_EQ(dialog.Cancel_Cmd.Caption, "&Cancel");
    EXPECT_EQ(dialog.Message_Txt.Text, "");
}

TEST_F(FigTest, TheDialogOfExtraBindingsSaysWhatItWants) {
    const ExtraBinding_Frm dialog(run);
    EXPECT_EQ(dialog.Name, "ExtraBinding_Frm");
    EXPECT_EQ(dialog.Caption, "Extra Binding");
    EXPECT_EQ(dialog.Label1.Caption, "Keys will be bound to the following commands -->");
    EXPECT_EQ(dialog.Cancel_Cmd.Caption, "&Cancel");
}

TEST_F(FigTest, OkOfALineDialogTakesTheTextAsItWasTyped) {
    ExtraBinding_Frm dialog(run);
    dialog.Message_Txt.Text = " +hook ";
    LineDialog_OK_Cmd_Click(dialog);
    EXPECT_EQ(dialog.Result, " +hook ");
    EXPECT_TRUE(dialog.Taken);
    EXPECT_TRUE(dialog.Closed);
}

TEST_F(FigTest, OkOfALineDialogTakesAnEmptyTextToo) {
    SayStuff_Frm dialog(run);
    LineDialog_OK_Cmd_Click(dialog);
    EXPECT_EQ(dialog.Result, "");
    EXPECT_TRUE(dialog.Taken);
}

TEST_F(FigTest, CancelOfALineDialogTakesNothing) {
    SayStuff_Frm dialog(run);
    dialog.Message_Txt.Text = "hello";
    LineDialog_Cancel_Cmd_Click(dialog);
    EXPECT_EQ(dialog.Result, "");
    EXPECT_FALSE(dialog.Taken);
    EXPECT_TRUE(dialog.Closed);
}

}  // namespace
}  // namespace lv
