#include "foundry/reading/joined_line.h"

#include <gtest/gtest.h>

#include "tests/foundry/reading.h"

namespace lv {
namespace {

/// What is left of the line, and behind it all that the reader keeps of it in its section.
void ExpectBehindAxes(TextView line, TextView left) {
    EXPECT_EQ(line.substr(AxesWithoutSpeed(line)), left) << line;
}

ScriptDocument Input(TextView lines) {
    return ReadScript(Game::Unreal, Join("[Engine.Input]\r\n", lines));
}

TEST(AxesWithoutSpeed, StandInFrontOfTheOtherAxis) {
    ExpectBehindAxes("MouseX=MouseY=", "MouseY=");
    ExpectBehindAxes("MouseX=MouseY=Axis aMouseY Speed=6.0", "MouseY=Axis aMouseY Speed=6.0");
}

TEST(AxesWithoutSpeed, StandInFrontOfAKeptLine) {
    ExpectBehindAxes("MouseY=minus=Fire", "minus=Fire");
    ExpectBehindAxes("MouseX=MouseY=minus=Fire a=b", "minus=Fire a=b");
    ExpectBehindAxes("MouseX=MouseY=// by hand", "// by hand");
}

TEST(AxesWithoutSpeed, AreTakenAwayHoweverOftenTheyWereKept) {
    ExpectBehindAxes("MouseX=MouseY=mousex=MouseY=mousex=MouseY=", "MouseY=");
    ExpectBehindAxes("MouseX=MouseY=mousex=MouseY=minus=Fire", "minus=Fire");
}

TEST(AxesWithoutSpeed, AreNotThoseWithACommand) {
    for (const TextView line :
         {"MouseX=Axis aMouseX Speed=6.0", "MouseY=Axis aMouseY Speed=6.0", "MouseY=Axis aMouseX Speed=2.0",
          "MouseY=Count bYAxis | Axis aBaseY Speed=2", "MouseX=minus=Fire", "MouseX=// none", "MouseY=Fire",
          "MouseY=", "MouseX=", "a=MouseX=MouseY=", ""}) {
        EXPECT_EQ(AxesWithoutSpeed(line), 0U) << line;
    }
}

TEST(JoinedLine, OfTwoAxesWithoutSpeedIsNoKey) {
    EXPECT_EQ(Input("MouseX=MouseY=\r\n\r\n").Sections[0].Text, "");
}

TEST(JoinedLine, GivesTheSecondAxisItsSpeed) {
    const ScriptDocument d = Input("MouseX=MouseY=Axis aMouseY Speed=6.0\r\n");
    EXPECT_EQ(d.MouseBind_Cbo[0].ListIndex, -1);
    EXPECT_EQ(d.MouseBind_Cbo[1].Selected(), "6.0");
    EXPECT_EQ(d.Sections[0].Text, "");
}

TEST(JoinedLine, GivesTheKeptLineBackAsItStood) {
    EXPECT_EQ(Input("MouseX=MouseY=minus=Fire\r\n\r\n").Sections[0].Text, "minus=Fire\r\n");
    EXPECT_EQ(Input("MouseX=Axis aMouseX Speed=2.0\r\nMouseY=// by hand\r\n").Sections[0].Text, "// by hand");
}

TEST(JoinedLine, GivesAKeyAndAnAliasOfTheFreeTextBack) {
    EXPECT_EQ(BindingOf(Input("MouseX=MouseY=F10=Jump\r\n"), "f10"), "Jump");
    EXPECT_EQ(AliasesOf(Input("MouseX=MouseY=Aliases[0]=(Command=\"Fire\",Alias=x)\r\n")), "x=Fire");
}

TEST(JoinedLine, IsOneOfTheInputSectionOnly) {
    EXPECT_EQ(ReadScript(Game::Unreal, "[Other]\r\nMouseX=MouseY=minus=Fire\r\n").Sections[0].Text, "");
    EXPECT_EQ(ReadScript(Game::Unreal, "[Other]\r\nMouseY=minus=Fire\r\n").MouseBind_Cbo[1].Selected(), "minus=Fire");
}

}  // namespace
}  // namespace lv
