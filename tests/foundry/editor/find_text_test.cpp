#include "foundry/editor/find_text.h"

#include "tests/foundry/editor/find_fixture.h"

namespace lv {
namespace {

TEST_F(FindTest, TypingShowsThePageAndLeavesTheKeyboardInTheBox) {
    Start();
    EXPECT_EQ(Type("centerview"), "1 of 1: CenterView");
    EXPECT_EQ(form.Main_Tab.Tab, 1);
    EXPECT_EQ(form.Bindings_Tab.Tab, 1);
    EXPECT_EQ(form.FoundControl, "nothing");
}

TEST_F(FindTest, EnterLeadsToWhatIsShownAndThenFromOneToTheNextAndRound) {
    Start(kQuakeDialect, "alias zap_a xx\nalias zap_b xx\nalias zap_c xx\n");
    EXPECT_EQ(Type("zap_"), "1 of 3: Alias zap_a");
    EXPECT_EQ(Next(), "1 of 3: Alias zap_a -> Alias_Lst");
    EXPECT_EQ(Next(), "2 of 3: Alias zap_b -> Alias_Lst");
    EXPECT_EQ(Next(), "3 of 3: Alias zap_c -> Alias_Lst");
    EXPECT_EQ(Next(), "1 of 3: Alias zap_a -> Alias_Lst");
    EXPECT_EQ(Type("zap_"), "1 of 3: Alias zap_a");
    EXPECT_EQ(Next(), "1 of 3: Alias zap_a -> Alias_Lst");
}

TEST_F(FindTest, NextStaysWithinWhatIsLeft) {
    Start(kQuakeDialect, "alias zap_a xx\nalias zap_b xx\n");
    Type("zap_");
    Next();
    Next();
    form.Document.AliasTable.Erase(0);
    EXPECT_EQ(Next(), "1 of 1: Alias zap_b -> Alias_Lst");
}

TEST_F(FindTest, AnAliasIsSelectedInItsList) {
    Start(kQuakeDialect, "alias b one\nalias zap two\n");
    EXPECT_EQ(Type("two"), "1 of 1: Alias zap");
    EXPECT_EQ(form.Main_Tab.Tab, 2);
    EXPECT_EQ(form.Alias_Lst.ListIndex, 1);
}

TEST_F(FindTest, NoPlaceIsToldOf) {
    Start();
    EXPECT_EQ(Type("xyzzy"), "Nothing found.");
    EXPECT_EQ(Next(), "Nothing found. -> ");
    EXPECT_EQ(form.Main_Tab.Tab, 0);
}

TEST_F(FindTest, AnEmptyTextSaysNothing) {
    Start();
    Type("xyzzy");
    EXPECT_EQ(Type(""), "");
    EXPECT_EQ(Next(), " -> ");
    EXPECT_EQ(Type("  "), "");
}

TEST_F(FindTest, LetterCaseAndBlanksAroundDoNotMatter) {
    Start(kQuakeDialect, "alias x \"say \xC4rger\"\n");
    EXPECT_EQ(Type(" CENTERVIEW "), "1 of 1: CenterView");
    EXPECT_EQ(Type("\xE4RG"), "1 of 1: Alias x");
}

TEST_F(FindTest, AKeyOfTheJoystickIsShownOnItsPanel) {
    Start();
    ShowKey(98, "Joy1");
    ShowKey(151, "right Alt");
    EXPECT_EQ(Type("joy1"), "1 of 1: Key Joy1");
    EXPECT_TRUE(form.JoyChosen);
    EXPECT_EQ(Type("right alt"), "1 of 1: Key right Alt");
    EXPECT_FALSE(form.JoyChosen);
}

}  // namespace
}  // namespace lv
