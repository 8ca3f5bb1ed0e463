#include "foundry/reading/bind_line.h"

#include <gtest/gtest.h>

#include "tests/foundry/reading.h"
#include "tests/foundry/watching_view.h"

namespace lv {
namespace {

class BindLineTest : public ::testing::Test {
  protected:
    void Use(Game kind) { document = MakeScriptDocument(DialectOf(kind)); }
    Text Bind(TextView key, TextView command) { return BindLine(document, view, key, Text(command)); }
    [[nodiscard]] Text Held(TextView key) const { return BindingOf(document, key); }
    [[nodiscard]] Text Caption(SlotNumber slot) const { return document.Bound_Lbl[slot].Caption; }
    [[nodiscard]] Text Keys(SlotNumber slot) const { return document.Setting_Lbl[slot].Caption; }
    [[nodiscard]] Text Command(SlotNumber slot) const { return document.SlotCommand[slot]; }

    ScriptView view;
    ScriptDocument document = MakeScriptDocument(DialectOf(Game::Quake));
};

constexpr const char* kKeys[] = {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m", "n",
                                 "o", "p", "q", "r", "s", "t", "u", "v", "w", "x", "y", "z", "0", "1"};

TEST_F(BindLineTest, ReachesTheFixedSlotInItsOwnSpelling) {
    Bind("a", "+ATTACK");
    EXPECT_EQ(Held("a"), "+attack");
    EXPECT_EQ(Keys(111), "{A}");
    Bind("q", "use blaster");
    EXPECT_EQ(Held("q"), "impulse 1");
    EXPECT_EQ(Keys(201), "{Q}");
}

TEST_F(BindLineTest, ACommandThatIsWrittenWithABlankAheadComesBackToItsSlot) {
    constexpr Game kKinds[] = {Game::Quake, Game::Hexen2,   Game::Quake2,  Game::Unreal,
                               Game::Sin,   Game::Heretic2, Game::HalfLife};
    int seen = 0;
    for (const Game kind : kKinds) {
        Use(kind);
        const ScriptDocument fresh = document;
        for (const SlotNumber slot : SlotNumbers()) {
            if (!fresh.SlotCommand[slot].starts_with(' ')) {
                continue;
            }
            ++seen;
            document = fresh;
            Bind("a", fresh.SlotCommand[slot]);
            EXPECT_EQ(Held("a"), fresh.SlotCommand[slot]) << NumberOf(kind) << " " << slot;
            EXPECT_EQ(Keys(slot), "{A}") << NumberOf(kind) << " " << slot;
            EXPECT_EQ(Caption(501), "") << NumberOf(kind) << " " << slot;
        }
    }
    EXPECT_GT(seen, 0);
}

TEST_F(BindLineTest, AnUnknownKeyIsDroppedInAConsoleScript) {
    EXPECT_EQ(Bind("escape", "togglemenu"), "");
    EXPECT_EQ(Bind("shift+a", "+attack"), "");
    EXPECT_EQ(Keys(305), "");
    EXPECT_EQ(Keys(111), "");
}

TEST_F(BindLineTest, AnUnknownKeyOfUnrealIsALineOfTheText) {
    Use(Game::Unreal);
    EXPECT_EQ(Bind("Minus", "Fire"), "minus=Fire\r\n");
    EXPECT_EQ(Keys(111), "");
}

TEST_F(BindLineTest, AKeyOfAnyLengthIsUnknown) {
    EXPECT_EQ(Bind(Text(100000, 'a'), "+attack"), "");
    EXPECT_EQ(Keys(111), "");
}

TEST_F(BindLineTest, ACommandOfAnotherKindIsDropped) {
    Bind("a", "+jump");
    Bind("a", "impulse 13");
    EXPECT_EQ(Held("a"), "+jump");
    Use(Game::Quake2);
    Bind("a", "impulse 20");
    EXPECT_EQ(Held("a"), "");
    EXPECT_EQ(Caption(501), "");
}

TEST_F(BindLineTest, ACommandWhoseSlotIsEmptyInThisKindFreesTheKey) {
    Bind("a", "+jump");
    Bind("b", "+jump");
    Bind("a", "weaplast");  // 211, of Quake II and its like
    EXPECT_EQ(Held("a"), "");
    EXPECT_EQ(Held("b"), "+jump");
    EXPECT_EQ(Keys(211), "");
    Bind("a", "impulse 200");
    EXPECT_EQ(Held("a"), "impulse 200");
    EXPECT_EQ(Caption(501), " impulse 200");
}

TEST_F(BindLineTest, BlanksAtACommandsEndsSayNothing) {
    Use(Game::Unreal);
    Bind("F10", " Cancel");
    EXPECT_EQ(Keys(411), "{F10}");
    EXPECT_EQ(Caption(501), "");
    document.AliasTable.Insert({.Bound = false, .Name = "slink", .Body = "Button bDuck"});
    Bind("C", " Slink ");
    EXPECT_EQ(Keys(601), "{C}");
    Use(Game::Quake);
    Bind("a", " +attack ");
    EXPECT_EQ(Keys(111), "{A}");
    Bind("b", " exec duel.cfg");
    EXPECT_EQ(Command(701), "exec duel.cfg");
    Bind("c", " say hello");
    EXPECT_EQ(Command(801), "say hello");
    EXPECT_EQ(Caption(501), "");
}

TEST_F(BindLineTest, AnEmptyCommandIsTwoDoubleQuotes) {
    Bind("a", "");
    EXPECT_EQ(Held("a"), "\"\"");
    EXPECT_EQ(Caption(501), " \"\"");
    Bind("b", "   ");
    EXPECT_EQ(Held("b"), "\"\"");
    EXPECT_EQ(Keys(501), "{A} : {B}");
}

TEST_F(BindLineTest, AScriptTakesTheFirstFreeSlotOfItsKind) {
    Bind("a", "exec Duel.cfg");
    EXPECT_EQ(Caption(701), " Duel.cfg");
    EXPECT_EQ(Command(701), "exec Duel.cfg");
    EXPECT_EQ(Held("a"), "exec Duel.cfg");
    Bind("b", "EXEC  Duel.cfg ");
    EXPECT_EQ(Held("b"), "exec Duel.cfg");
    EXPECT_EQ(Keys(701), "{A} : {B}");
    Bind("c", "exec duel.cfg");
    EXPECT_EQ(Caption(702), " duel.cfg");
}

TEST_F(BindLineTest, TheThirteenthScriptIsAnExtra) {
    for (int number = 0; number < 12; ++number) {
        Bind(kKeys[number], "exec s" + std::to_string(number) + ".cfg");
    }
    EXPECT_EQ(Caption(712), " s11.cfg");
    Bind("z", "exec s12.cfg");
    EXPECT_EQ(Caption(501), " exec s12.cfg");
    EXPECT_EQ(Held("z"), "exec s12.cfg");
    Bind("y", "exec s3.cfg");
    EXPECT_EQ(Held("y"), "exec s3.cfg");
    EXPECT_EQ(Keys(704), "{D} : {Y}");
}

TEST_F(BindLineTest, ExecOfNothingIsAnExtra) {
    Bind("a", "exec  ");
    EXPECT_EQ(Keys(701), "");
    EXPECT_EQ(Caption(501), " exec");
    EXPECT_EQ(Command(501), "exec  ");
    EXPECT_EQ(Held("a"), "exec  ");
}

TEST_F(BindLineTest, AMessageTakesTheFirstFreeSlotOfItsKind) {
    Bind("a", "say Hello there");
    EXPECT_EQ(Caption(801), " Hello there");
    EXPECT_EQ(Command(801), "say Hello there");
    EXPECT_EQ(document.Say_Team_Chk[801].Value, 0);
    Bind("b", "SAY Hello there");
    EXPECT_EQ(Held("b"), "say Hello there");
    EXPECT_EQ(Keys(801), "{A} : {B}");
    EXPECT_EQ(Caption(802), "");
}

TEST_F(BindLineTest, EachMessageToTheTeamTakesASlotOfItsOwn) {
    Bind("x", "say_team hello");
    Bind("y", "say_team hello");
    EXPECT_EQ(Caption(801), " hello");
    EXPECT_EQ(Caption(802), " hello");
    EXPECT_EQ(Keys(801), "{X}");
    EXPECT_EQ(Keys(802), "{Y}");
    EXPECT_EQ(document.Say_Team_Chk[801].Value, 1);
    EXPECT_EQ(document.Say_Team_Chk[802].Value, 1);
    EXPECT_EQ(Command(802), "say_team hello");
}

TEST_F(BindLineTest, AMessageToAllIsNotSaidToTheTeam) {
    Bind("x", "say_team hello");
    Bind("y", "say hello");
    EXPECT_EQ(Held("y"), "say hello");
    EXPECT_EQ(Keys(802), "{Y}");
}

TEST_F(BindLineTest, AMessageThatFindsNoSlotIsAnExtra) {
    for (int number = 0; number < 13; ++number) {
        Bind(kKeys[number], "say_team m" + std::to_string(number));
    }
    EXPECT_EQ(Caption(813), " m12");
    Bind("z", "say_team m13");
    EXPECT_EQ(Caption(501), " say_team m13");
    EXPECT_EQ(Held("z"), "say_team m13");
}

TEST_F(BindLineTest, SayOfNothingIsAnExtra) {
    Bind("a", "say  ");
    EXPECT_EQ(Keys(801), "");
    EXPECT_EQ(Caption(501), " say");
    Bind("b", "say");
    EXPECT_EQ(Held("b"), "say  ");
    EXPECT_EQ(Keys(501), "{A} : {B}");
}

TEST_F(BindLineTest, AnAliasTakesASlotOfItsOwn) {
    AddAlias(document, "rj", "+jump;+attack");
    AddAlias(document, "duck", "+movedown");
    Bind("a", "RJ");
    EXPECT_EQ(Caption(601), " rj");
    EXPECT_EQ(Command(601), "rj");
    EXPECT_EQ(Held("a"), "rj");
    EXPECT_TRUE(document.AliasTable[FindAlias(document, "rj").Place].Bound);
    EXPECT_FALSE(document.AliasTable[FindAlias(document, "duck").Place].Bound);
    Bind("b", "rj");
    EXPECT_EQ(Keys(601), "{A} : {B}");
    EXPECT_EQ(Caption(602), "");
}

TEST_F(BindLineTest, AnUnrealAliasKeepsItsCaseAndIsFoundAgain) {
    Use(Game::Unreal);
    AddAlias(document, "", "(Command=\"Fire | Jump\",Alias=FireJump)");
    Bind("a", "firejump");
    Bind("b", "FIREJUMP");
    EXPECT_EQ(Command(601), "FireJump");
    EXPECT_EQ(Keys(601), "{A} : {B}");
}

TEST_F(BindLineTest, AnAliasWithBlanksAroundItsNameIsFound) {
    AddAlias(document, " rj ", "+jump");
    Bind("a", "rj");
    Bind("b", "rj");
    EXPECT_EQ(Keys(601), "{A} : {B}");
    EXPECT_EQ(Held("a"), "rj");
}

TEST_F(BindLineTest, AShortenedAliasIsFoundByItsToolTip) {
    WatchingView narrow;
    AddAlias(document, "FireAtWillAndThenJump", "fire");
    BindLine(document, narrow, "a", "fireatwillandthenjump");
    EXPECT_EQ(document.Bound_Lbl[601].ToolTip, "FireAtWillAndThenJump");
    BindLine(document, narrow, "b", "fireatwillandthenjump");
    EXPECT_EQ(Keys(601), "{A} : {B}");
}

TEST_F(BindLineTest, TheTwentyEighthAliasIsAnExtra) {
    for (int number = 0; number < 28; ++number) {
        AddAlias(document, "x" + std::to_string(number), "wait");
    }
    for (int number = 0; number < 28; ++number) {
        Bind(kKeys[number], "x" + std::to_string(number));
    }
    EXPECT_EQ(Caption(627), " x26");
    EXPECT_EQ(Caption(501), " x27");
    EXPECT_EQ(Held("1"), "x27");
    EXPECT_FALSE(document.AliasTable[FindAlias(document, "x27").Place].Bound);
}

TEST_F(BindLineTest, OfTwoBoundAliasSlotsWithTheSameCommandTheLastHolds) {
    document.SlotCommand[601] = "rj";
    document.SlotCommand[605] = "rj";
    Bind("a", "rj");
    EXPECT_EQ(Keys(605), "{A}");
    EXPECT_EQ(Keys(601), "");
}

TEST_F(BindLineTest, AnyOtherCommandIsAnExtra) {
    Bind("a", "Timerefresh");
    EXPECT_EQ(Caption(501), " Timerefresh");
    EXPECT_EQ(Held("a"), "Timerefresh");
    Bind("b", "Timerefresh");
    EXPECT_EQ(Keys(501), "{A} : {B}");
    Bind("c", "timerefresh");  // letter case makes another one
    EXPECT_EQ(Caption(502), " timerefresh");
}

TEST_F(BindLineTest, TheTwentyFifthExtraIsDropped) {
    for (int number = 0; number < 24; ++number) {
        Bind(kKeys[number], "command" + std::to_string(number));
    }
    EXPECT_EQ(Caption(524), " command23");
    Bind("z", "+jump");
    Bind("z", "command24");
    EXPECT_EQ(Held("z"), "+jump");
}

TEST_F(BindLineTest, TheUnrealCommandLookIsAnExtra) {
    Use(Game::Unreal);
    Bind("x", "Look");
    EXPECT_EQ(Keys(115), "");
    EXPECT_EQ(Caption(501), " Look");
    EXPECT_EQ(Held("x"), "Look");
}

TEST_F(BindLineTest, ALongCommandIsShownShortAndTakesASlotEachTime) {
    WatchingView narrow;
    BindLine(document, narrow, "a", "wait;wait;wait;wait;wait");
    EXPECT_EQ(Caption(501), " wait;wait;wait;...");
    EXPECT_EQ(document.Bound_Lbl[501].ToolTip, "wait;wait;wait;wait;wait");
    EXPECT_EQ(Held("a"), "wait;wait;wait;wait;wait");
    BindLine(document, narrow, "b", "wait;wait;wait;wait;wait");
    EXPECT_EQ(Keys(501), "{A}");
    EXPECT_EQ(Keys(502), "{B}");
}

TEST_F(BindLineTest, MovesAKeyThatWasBound) {
    Bind("<", "+attack");
    Bind(",", "+jump");
    EXPECT_EQ(Held(","), "+jump");
    EXPECT_EQ(Keys(111), "");
    EXPECT_EQ(Keys(112), "{,}");
}

TEST_F(BindLineTest, PassesBytesAbove127Through) {
    Bind("a", "say \xE4\xFF\x93");
    EXPECT_EQ(Held("a"), "say \xE4\xFF\x93");
    EXPECT_EQ(Caption(801), " \xE4\xFF\x93");
}

TEST(AliasNames, AreFoundWithoutCaseAndBlanks) {
    AliasList aliases;
    aliases.Insert({.Bound = false, .Name = " Both ", .Body = "x"});
    aliases.Insert({.Bound = false, .Name = "a", .Body = "y"});
    const AliasNames names(aliases);
    EXPECT_EQ(aliases[names.Find("both")].Body, "x");
    EXPECT_EQ(aliases[names.Find("a")].Body, "y");
    EXPECT_EQ(names.Find("c"), AliasNames::kNone);
}

TEST_F(BindLineTest, AnAliasNamedAsACommandOfTheGameIsThatCommand) {
    AddAlias(document, "zoom_in", "fov 30");
    Bind("a", "zoom_in");
    EXPECT_EQ(Keys(409), "{A}");
    EXPECT_EQ(Caption(601), "");
    EXPECT_FALSE(document.AliasTable[FindAlias(document, "zoom_in").Place].Bound);
}

TEST_F(BindLineTest, AnAliasNamedAsACommandOfAnotherKindIsDropped) {
    AddAlias(document, "toggle_dm", "impulse 200");
    Bind("a", "toggle_dm");
    EXPECT_EQ(Held("a"), "");
    EXPECT_EQ(Caption(601), "");
    EXPECT_EQ(Caption(501), "");
}

}  // namespace
}  // namespace lv
