#include "foundry/document/bindings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/foundry/kinds.h"
#include "tests/foundry/watching_view.h"

namespace lv {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr KeyIndex kSpace = 0;
constexpr KeyIndex kA = 1;
constexpr KeyIndex kFive = 32;
constexpr KeyIndex kCtrl = 50;
constexpr KeyIndex kEnter = 75;
constexpr Color kGreen = 0x00c000;
constexpr Color kOlive = 0x00c0c0;

struct Bindings : testing::Test {
    explicit Bindings(Game kind = Game::Quake) : document(MakeScriptDocument({.GameKind = kind})) {}

    void Bind(KeyIndex key, SlotNumber slot) { BindKey(document, view, key, slot); }
    void Unbind(KeyIndex key) { UnbindKey(document, view, key); }
    [[nodiscard]] Text Binding(KeyIndex key) const { return document.KeyBinding[static_cast<std::size_t>(key)]; }
    [[nodiscard]] Text Keys(SlotNumber slot) const { return document.Setting_Lbl[slot].Caption; }

    ScriptDocument document;
    WatchingView view;
};

struct SinBindings : Bindings {
    SinBindings() : Bindings(Game::Sin) {}
};
struct UnrealBindings : Bindings {
    UnrealBindings() : Bindings(Game::Unreal) {}
};
struct HalfLifeBindings : Bindings {
    HalfLifeBindings() : Bindings(Game::HalfLife) {}
};

TEST_F(Bindings, BindingGivesTheKeyTheCommandAndTheSlotTheKey) {
    Bind(kA, 111);
    EXPECT_EQ(Binding(kA), "+attack");
    EXPECT_EQ(Keys(111), "{A}");
    EXPECT_FALSE(document.ScriptClean);
    EXPECT_THAT(view.ChangedSlots, Contains(111));
}

TEST_F(Bindings, BindingAKeyThatHasAFunctionMovesIt) {
    Bind(kA, 111);
    EXPECT_EQ(view.KeyColor(kA), kGreen);
    Bind(kA, 201);
    EXPECT_EQ(Binding(kA), "impulse 1");
    EXPECT_EQ(Keys(111), "");
    EXPECT_EQ(Keys(201), "{A}");
    EXPECT_EQ(view.KeyColor(kA), kOlive);
}

TEST_F(Bindings, TheNewestKeyStandsLastInTheKeyList) {
    Bind(kCtrl, 111);
    Bind(kSpace, 111);
    EXPECT_EQ(Keys(111), "Ctrl : Spc");
    Bind(kA, 111);
    EXPECT_EQ(Keys(111), "Ctrl : Spc : {A}");
}

TEST_F(Bindings, ClearingOneOfTwoKeysLeavesTheOtherAlone) {
    Bind(kCtrl, 111);
    Bind(kSpace, 111);
    Unbind(kCtrl);
    EXPECT_EQ(Keys(111), "Spc");
    Bind(kCtrl, 111);
    EXPECT_EQ(Keys(111), "Spc : Ctrl");
    Unbind(kCtrl);
    EXPECT_EQ(Keys(111), "Spc");
}

TEST_F(Bindings, ClearingTheMiddleOfThreeKeysJoinsTheRest) {
    Bind(kCtrl, 111);
    Bind(kSpace, 111);
    Bind(kA, 111);
    Unbind(kSpace);
    EXPECT_EQ(Keys(111), "Ctrl : {A}");
}

TEST_F(Bindings, BindingAKeyAgainToItsSlotMovesItToTheEnd) {
    Bind(kCtrl, 111);
    Bind(kSpace, 111);
    Bind(kCtrl, 111);
    EXPECT_EQ(Keys(111), "Spc : Ctrl");
}

TEST_F(Bindings, UnbindingPaintsTheKeyWhiteAndEmptiesItsToolTip) {
    Bind(kA, 111);
    view.ClearedTips.clear();
    document.ScriptClean = true;
    Unbind(kA);
    EXPECT_EQ(Binding(kA), "");
    EXPECT_EQ(view.KeyColor(kA), kWhite);
    EXPECT_THAT(view.ClearedTips, ElementsAre(kA));
    EXPECT_FALSE(document.ScriptClean);
}

TEST_F(Bindings, UnbindingAFreeKeyOnlyEmptiesItsToolTip) {
    Unbind(kA);
    EXPECT_THAT(view.ClearedTips, ElementsAre(kA));
    EXPECT_THAT(view.KeyColors, IsEmpty());
    EXPECT_THAT(view.ChangedSlots, IsEmpty());
    EXPECT_TRUE(document.ScriptClean);
}

TEST_F(Bindings, WhatIsNoKeyBindsAndUnbindsNothing) {
    Bind(kA, 111);
    document.ScriptClean = true;
    view = {};
    for (const KeyIndex key : KeyList{-1, -32768, 136, 149, 32767}) {
        Bind(key, 112);
        Unbind(key);
    }
    EXPECT_EQ(Binding(kA), "+attack");
    EXPECT_EQ(Keys(112), "");
    EXPECT_TRUE(document.ScriptClean);
    EXPECT_THAT(view.ClearedTips, IsEmpty());
    EXPECT_THAT(view.KeyColors, IsEmpty());
}

TEST_F(Bindings, TwoRowsOfOneCommandBothLoseTheKey) {
    document.SlotCommand[501] = "+hook";
    document.SlotCommand[502] = "+hook";
    Bind(kA, 501);
    document.Setting_Lbl[502].Caption = "Ctrl : {A}";
    Unbind(kA);
    EXPECT_EQ(Keys(501), "");
    EXPECT_EQ(Keys(502), "Ctrl");
}

TEST_F(Bindings, ARowOfTheSameCommandWithoutTheKeyKeepsItsKeys) {
    document.SlotCommand[501] = "+hook";
    document.SlotCommand[502] = "+hook";
    Bind(kA, 501);
    Bind(kSpace, 502);
    Unbind(kA);
    EXPECT_EQ(Keys(502), "Spc");
}

TEST_F(Bindings, CommandsThatDifferInCaseAreNotTheSame) {
    document.SlotCommand[501] = "+hook";
    document.SlotCommand[502] = "+Hook";
    Bind(kA, 501);
    document.Setting_Lbl[502].Caption = "{A}";
    Unbind(kA);
    EXPECT_EQ(Keys(502), "{A}");
}

TEST_F(Bindings, TheCaptionsOfAKeyListAreTrimmedWhenOneGoes) {
    Bind(kA, 111);
    document.Setting_Lbl[111].Caption = "  Ctrl  :{A}:   Spc ";
    Unbind(kA);
    EXPECT_EQ(Keys(111), "Ctrl : Spc");
}

TEST_F(Bindings, ABoundKeyColoursItsTwinOnTheKeypad) {
    Bind(kFive, 111);
    EXPECT_EQ(view.KeyColor(88), kGreen);
    Unbind(kFive);
    EXPECT_EQ(view.KeyColor(88), kWhite);
}

TEST_F(Bindings, ABoundShiftColoursTheRightOneToo) {
    Bind(49, 111);
    EXPECT_EQ(view.KeyColor(49), kGreen);
    EXPECT_EQ(view.KeyColor(149), kGreen);
}

TEST_F(SinBindings, NoKeyHasATwin) {
    Bind(kFive, 111);
    Bind(49, 111);
    Bind(kEnter, 111);
    EXPECT_EQ(view.KeyColors.size(), 3U);
}

TEST_F(UnrealBindings, OnlyEnterHasATwin) {
    Bind(kEnter, 111);
    Bind(kFive, 111);
    EXPECT_EQ(view.KeyColor(93), kGreen);
    EXPECT_EQ(view.KeyColors.size(), 3U);
    Unbind(kEnter);
    EXPECT_EQ(view.KeyColor(93), kWhite);
}

TEST_F(HalfLifeBindings, TheTwoJumpsHaveOneCommandAndTheirOwnKeys) {
    Bind(kSpace, 109);
    Bind(kA, 112);
    EXPECT_EQ(Keys(109), "Spc");
    EXPECT_EQ(Keys(112), "{A}");
    Unbind(kSpace);
    EXPECT_EQ(Keys(109), "");
    EXPECT_EQ(Keys(112), "{A}");
}

TEST_F(HalfLifeBindings, ARowWithoutACommandShowsTheKeyAndLeavesItFree) {
    Bind(kA, 206);
    EXPECT_EQ(Binding(kA), "");
    EXPECT_EQ(Keys(206), "{A}");
}

TEST_F(Bindings, ClearingARowUnbindsAllItsKeys) {
    Bind(kCtrl, 111);
    Bind(kSpace, 111);
    Bind(kA, 112);
    ClearSlotKeys(document, view, 111);
    EXPECT_EQ(Binding(kCtrl), "");
    EXPECT_EQ(Binding(kSpace), "");
    EXPECT_EQ(Keys(111), "");
    EXPECT_EQ(Binding(kA), "+jump");
}

TEST_F(Bindings, ClearingARowOfOneKeyNeedsNoColon) {
    Bind(kCtrl, 111);
    ClearSlotKeys(document, view, 111);
    EXPECT_EQ(Binding(kCtrl), "");
    EXPECT_EQ(Keys(111), "");
}

TEST_F(Bindings, ClearingAnEmptyRowDoesNothing) {
    ClearSlotKeys(document, view, 111);
    EXPECT_TRUE(document.ScriptClean);
    EXPECT_THAT(view.ClearedTips, IsEmpty());
}

TEST_F(Bindings, ClearingPassesOverWhatIsNoKeysCaption) {
    Bind(kA, 111);
    document.Setting_Lbl[111].Caption = "no key : {A} : ";
    ClearSlotKeys(document, view, 111);
    EXPECT_EQ(Binding(kA), "");
    EXPECT_EQ(Keys(111), "no key :");
    EXPECT_THAT(view.ClearedTips, ElementsAre(kA, kA));  // bound, then cleared
}

TEST_F(Bindings, ARenamedSlotGivesItsKeysTheNewCommand) {
    document.SlotCommand[801] = "say hello";
    Bind(kA, 801);
    Bind(kSpace, 801);
    Bind(kCtrl, 111);
    document.ScriptClean = true;
    RenameSlotCommand(document, view, 801, "say bye");
    EXPECT_EQ(document.SlotCommand[801], "say bye");
    EXPECT_EQ(Binding(kA), "say bye");
    EXPECT_EQ(Binding(kSpace), "say bye");
    EXPECT_EQ(Binding(kCtrl), "+attack");
    EXPECT_EQ(Keys(801), "{A} : Spc");
    EXPECT_FALSE(document.ScriptClean);
    EXPECT_THAT(view.ChangedSlots, Contains(801));
    Unbind(kA);
    EXPECT_EQ(Keys(801), "Spc");
}

TEST_F(Bindings, ARenamedSlotPassesOverWhatIsNoKey) {
    document.Setting_Lbl[801].Caption = "no key : {A} :";
    RenameSlotCommand(document, view, 801, "say bye");
    EXPECT_EQ(Binding(kA), "say bye");
    EXPECT_EQ(std::ranges::count(document.KeyBinding, Text("say bye")), 1);
}

TEST_F(Bindings, ARenamedSlotWithoutKeysChangesNoKey) {
    RenameSlotCommand(document, view, 801, "say bye");
    EXPECT_EQ(document.SlotCommand[801], "say bye");
    EXPECT_EQ(std::ranges::count(document.KeyBinding, Text()), kKeyCount);
}

TEST_F(Bindings, AMessageIsSaidToThoseThatItsBoxTellsWhenAKeyIsBound) {
    document.SlotCommand[801] = "say hello";
    document.Say_Team_Chk[801].Value = 1;
    Bind(kA, 801);
    EXPECT_EQ(Binding(kA), "say_team hello");
    EXPECT_EQ(document.SlotCommand[801], "say_team hello");
    document.Say_Team_Chk[801].Value = 0;
    Bind(kSpace, 801);
    EXPECT_EQ(Binding(kSpace), "say hello");
}

TEST_F(Bindings, AMessagesCommandIsItsWordAndItsText) {
    EXPECT_EQ(SayCommand("hi", false), "say hi");
    EXPECT_EQ(SayCommand("hi", true), "say_team hi");
}

struct AliasTables : Bindings {};

TEST_F(AliasTables, AnAliasDefinedTwiceKeepsItsFirstBody) {
    EXPECT_TRUE(AddAlias(document, "zoom", "fov 20"));
    EXPECT_FALSE(AddAlias(document, "zoom", "fov 40"));
    EXPECT_FALSE(AddAlias(document, "ZOOM", "fov 60"));
    ASSERT_EQ(document.AliasTable.AliasCount(), 1U);
    EXPECT_EQ(document.AliasTable[0].Body, "fov 20");
}

TEST_F(AliasTables, ANewAliasIsNotBoundAndLeavesTheScriptClean) {
    AddAlias(document, "zoom", "fov 20");
    EXPECT_FALSE(document.AliasTable[0].Bound);
    EXPECT_TRUE(document.ScriptClean);
}

TEST_F(AliasTables, AreSortedWithoutRegardToCase) {
    for (const TextView name : {"delta", "Alpha", "charlie", "BRAVO", "_x"}) {
        AddAlias(document, name, "wait");
    }
    std::vector<Text> names;
    for (std::size_t i = 0; i < document.AliasTable.AliasCount(); ++i) {
        names.push_back(document.AliasTable[i].Name);
    }
    EXPECT_THAT(names, ElementsAre("_x", "Alpha", "BRAVO", "charlie", "delta"));
}

TEST_F(AliasTables, FindTellsThePlaceOfAMissingName) {
    AddAlias(document, "b", "wait");
    AddAlias(document, "d", "wait");
    EXPECT_TRUE(FindAlias(document, "D").Found);
    EXPECT_EQ(FindAlias(document, "D").Place, 1U);
    EXPECT_FALSE(FindAlias(document, "c").Found);
    EXPECT_EQ(FindAlias(document, "a").Place, 0U);
    EXPECT_EQ(FindAlias(document, "c").Place, 1U);
    EXPECT_EQ(FindAlias(document, "e").Place, 2U);
}

TEST_F(AliasTables, TakeNoEmptyNameAndNoEmptyBody) {
    EXPECT_FALSE(AddAlias(document, "", "wait"));
    EXPECT_FALSE(AddAlias(document, "zoom", ""));
    EXPECT_TRUE(document.AliasTable.empty());
}

TEST_F(AliasTables, TakeTheNameNoneInAConsoleScript) {
    EXPECT_TRUE(AddAlias(document, "none", "wait"));
}

struct UnrealAliases : UnrealBindings {
    [[nodiscard]] Text Only() const {
        return document.AliasTable.AliasCount() == 1 ? document.AliasTable[0].Name + "=" + document.AliasTable[0].Body
                                                     : std::to_string(document.AliasTable.AliasCount());
    }
};

TEST_F(UnrealAliases, AreReadFromTheRightPartOfTheLine) {
    AddAlias(document, "Aliases[0]=(Command=\"Fire | Jump\",Alias=both)", "(Command=\"Fire | Jump\",Alias=both)");
    EXPECT_EQ(Only(), "both=Fire | Jump");
}

TEST_F(UnrealAliases, AreReadInAnyCase) {
    AddAlias(document, "", "(COMMAND=\"Axis aUp Speed=+300.0\",ALIAS=MoveUp)");
    EXPECT_EQ(Only(), "MoveUp=Axis aUp Speed=+300.0");
}

TEST_F(UnrealAliases, TakeNoPlaceThatIsNotInUse) {
    EXPECT_FALSE(AddAlias(document, "", "(Command=\"\",Alias=None)"));
    EXPECT_FALSE(AddAlias(document, "", "(Command=\"Fire\",Alias=NONE)"));
    EXPECT_FALSE(AddAlias(document, "", "(Command=\"\",Alias=both)"));
    EXPECT_FALSE(AddAlias(document, "", "(Command=\"Fire\",Alias=)"));
    EXPECT_TRUE(document.AliasTable.empty());
}

TEST_F(UnrealAliases, TakeNothingFromADamagedLine) {
    for (const TextView line : {"", "(", "\"", "Command=Fire,Alias=both)", "(Command=\"Fire,Alias=both)",
                                "(Command=\"Fire\")", "alias=", "\"\"alias=)"}) {
        EXPECT_FALSE(AddAlias(document, "x", line)) << line;
    }
    EXPECT_TRUE(document.AliasTable.empty());
}

TEST_F(UnrealAliases, EndTheNameAtTheLinesEndWithoutABracket) {
    EXPECT_TRUE(AddAlias(document, "", "(Command=\"Fire\",Alias=both"));
    EXPECT_EQ(Only(), "both=Fire");
}

}  // namespace
}  // namespace lv
