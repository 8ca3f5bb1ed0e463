#include "foundry/editor/found_parts.h"

#include "foundry/document/slot_captions.h"
#include "tests/foundry/editor/find_fixture.h"
#include "tests/foundry/kinds.h"

namespace lv {
namespace {

using FoundPartsTest = FindTest;

TEST_F(FoundPartsTest, ASettingIsFoundByItsCaption) {
    Start();
    EXPECT_EQ(Type("weapon bob"), "1 of 1: Weapon Bob");
    EXPECT_EQ(form.Main_Tab.Tab, 0);
    EXPECT_EQ(form.Document.Options_Tab.Tab, 2);
    EXPECT_EQ(Next(), "1 of 1: Weapon Bob -> cl_bob_Cbo");
}

TEST_F(FoundPartsTest, SettingsComeInTheOrderOfTheirPagesBeforeTheRows) {
    Start();
    form.Document.LookStrafe_Chk.Caption = "Bob for apples";
    form.Document.Bound_Lbl[301].Caption = " Bobsleigh";
    EXPECT_EQ(Type("bob"), "1 of 5: Bob for apples");
    EXPECT_EQ(form.Document.Options_Tab.Tab, 0);
    EXPECT_EQ(Next(), "1 of 5: Bob for apples -> LookStrafe_Chk");
    EXPECT_EQ(Next(), "2 of 5: Weapon Bob -> cl_bob_Cbo");
    EXPECT_EQ(form.Document.Options_Tab.Tab, 2);
    EXPECT_EQ(Next(), "3 of 5: Bob Speed -> cl_bobcycle_Cbo");
    EXPECT_EQ(Next(), "4 of 5: Bob Cycle Height -> cl_bobup_Cbo");
    EXPECT_EQ(Next(), "5 of 5: Bobsleigh -> Setting_Lbl(301)");
}

TEST_F(FoundPartsTest, ACheckIsFoundByTheCaptionThatItHasNow) {
    Start();
    form.Document.MLook_Chk.Caption = "F&reelook";
    EXPECT_EQ(Type("freelook"), "1 of 1: Freelook");
    EXPECT_EQ(Next(), "1 of 1: Freelook -> MLook_Chk");
    EXPECT_EQ(Type("(mlook)"), "Nothing found.");
}

TEST_F(FoundPartsTest, TheCheckAmongTheSystemRowsIsFoundThere) {
    Start();
    form.Document.Unbindall_Chk.Caption = "&Unbind All (gently)";
    EXPECT_EQ(Type("unbind all"), "1 of 1: Unbind All (gently)");
    EXPECT_EQ(form.Bindings_Tab.Tab, 1);
    EXPECT_EQ(Next(), "1 of 1: Unbind All (gently) -> Unbindall_Chk");
    form.Document.Unbindall_Chk.Visible = false;
    EXPECT_EQ(Type("unbind all"), "Nothing found.");
}

TEST_F(FoundPartsTest, WhatIsHiddenIsNotFound) {
    Start();
    form.Document.cl_bob_Cbo.Visible = false;
    EXPECT_EQ(Type("weapon bob"), "Nothing found.");
    form.Document.cl_bob_Cbo.Visible = true;
    form.Bob_Pic.Visible = false;
    EXPECT_EQ(Type("weapon bob"), "Nothing found.");
    form.Bob_Pic.Visible = true;
    form.Document.Options_Tab[2].Visible = false;
    EXPECT_EQ(Type("weapon bob"), "Nothing found.");

    EXPECT_EQ(Type("toggleconsole"), "1 of 1: Console");
    form.Document.Bound_Lbl[304].Visible = false;
    EXPECT_EQ(Type("toggleconsole"), "Nothing found.");
    form.Document.Bound_Lbl[304].Visible = true;
    form.Bindings_Tab[1].Visible = false;
    EXPECT_EQ(Type("toggleconsole"), "Nothing found.");

    ShowKey(23, "W");
    form.Document.KeyBinding[23] = "my_own";
    EXPECT_EQ(Type("my_own"), "1 of 1: Key W");
    form.KeyLabelOf(23).Visible = false;
    EXPECT_EQ(Type("my_own"), "Nothing found.");
}

TEST_F(FoundPartsTest, ARowIsFoundByItsCommandAndByItsKeys) {
    Start(kQuakeDialect, "bind uparrow toggleconsole\nbind leftarrow toggleconsole\n");
    EXPECT_EQ(Type("toggleC"), "1 of 1: Console");
    EXPECT_EQ(Type("upar :"), "1 of 1: Console");
    EXPECT_EQ(Type("leftarrow"), "1 of 1: Console");
    EXPECT_EQ(Next(), "1 of 1: Console -> Setting_Lbl(304)");
}

TEST_F(FoundPartsTest, ARowIsFoundByTheWholeOfAShortenedText) {
    Start();
    form.Document.SlotCommand[501] = "a";
    CaptionSlot(form.Document, form, 501, "one two three four five six seven eight");
    EXPECT_EQ(Type("seven eight"), Join("1 of 1: ", Text(form.Document.Bound_Lbl[501].Caption).substr(1)));
    EXPECT_EQ(form.Bindings_Tab.Tab, 2);
}

TEST_F(FoundPartsTest, ARowThatIsNotFilledIsNone) {
    Start();
    form.Document.SlotCommand[501] = "left over";
    EXPECT_EQ(Type("left over"), "Nothing found.");
}

TEST_F(FoundPartsTest, RowsComeByTheirPagesAndNotByTheirNumbers) {
    Start();
    for (const SlotNumber slot : Slots{501, 601, 701, 801, 901, 1001, 1101}) {
        form.Document.Bound_Lbl[slot].Caption = " zap";
        form.Document.Bound_Lbl[slot].Visible = form.Document.Setting_Lbl[slot].Visible = true;
    }
    form.Document.AliasTable.Insert({.Bound = true, .Name = "zap", .Body = "x"});
    ShowKey(23, "W");
    form.Document.KeyBinding[23] = "zap";
    EXPECT_EQ(Type("zap"), "1 of 9: zap");
    EXPECT_EQ(Next(), "1 of 9: zap -> Setting_Lbl(501)");
    EXPECT_EQ(Next(), "2 of 9: zap -> Setting_Lbl(701)");
    EXPECT_EQ(Next(), "3 of 9: zap -> Setting_Lbl(801)");
    EXPECT_EQ(form.Bindings_Tab.Tab, 3);
    EXPECT_EQ(Next(), "4 of 9: zap -> Setting_Lbl(901)");
    EXPECT_EQ(form.Bindings_Tab.Tab, 4);
    EXPECT_EQ(Next(), "5 of 9: zap -> Setting_Lbl(1101)");
    EXPECT_EQ(form.Bindings_Tab.Tab, 5);
    EXPECT_EQ(Next(), "6 of 9: zap -> Setting_Lbl(1001)");
    EXPECT_EQ(form.Bindings_Tab.Tab, 6);
    EXPECT_EQ(Next(), "7 of 9: zap -> Setting_Lbl(601)");
    EXPECT_EQ(form.Main_Tab.Tab, 2);
    EXPECT_EQ(Next(), "8 of 9: Key W -> Key_Lbl(23)");
    EXPECT_EQ(form.Main_Tab.Tab, 1);
    EXPECT_EQ(Next(), "9 of 9: Alias zap -> Alias_Lst");
    EXPECT_EQ(form.Main_Tab.Tab, 2);
}

TEST_F(FoundPartsTest, AKeyIsFoundByItsCaptionItsNamesAndItsCommand) {
    Start(kQuakeDialect);
    ShowKey(70, "PgD!");
    form.Document.KeyBinding[70] = "my_own";
    for (const TextView text : {"pgd!", "pgdn", "my_own"}) {
        EXPECT_EQ(Type(text), "1 of 1: Key PgD!") << text;
    }
    form.Document.KeyCaption[70] = "{PageDown}";
    EXPECT_EQ(Type("{PageD"), "1 of 1: Key PgD!");
}

TEST_F(FoundPartsTest, AKeyAndItsRowAreFoundByTheNameThatIsSpoken) {
    Start(kQuakeDialect, "bind mouse1 toggleconsole\n");
    ShowKey(79, "M-1");
    EXPECT_EQ(Type("mouse 1"), "1 of 2: Console");
    EXPECT_EQ(Next(), "1 of 2: Console -> Setting_Lbl(304)");
    EXPECT_EQ(Next(), "2 of 2: Key M-1 -> Key_Lbl(79)");
}

TEST_F(FoundPartsTest, AKeypadLabelIsFoundByTheCommandOfItsTwin) {
    Start(kQuakeDialect);
    ShowKey(88, "num five");
    form.Document.KeyBinding[32] = "my_own";
    EXPECT_EQ(Type("my_own"), "1 of 1: Key num five");
    Start(kQuake2Dialect);
    ShowKey(88, "num five");
    form.Document.KeyBinding[32] = "my_own";
    EXPECT_EQ(Type("my_own"), "Nothing found.");
}

TEST_F(FoundPartsTest, AKeyThatCannotBeBoundIsFoundByItsCaption) {
    Start();
    ShowKey(200, "The Esc");
    EXPECT_EQ(Type("the esc"), "1 of 1: Key The Esc");
}

TEST_F(FoundPartsTest, UnrealsListsStandInPlaceOfTheOthers) {
    Start(kUnrealDialect);
    EXPECT_EQ(Type("dodge"), "1 of 1: Dodge Click Time");
    EXPECT_EQ(form.Document.Options_Tab.Tab, 1);
    EXPECT_EQ(Next(), "1 of 1: Dodge Click Time -> PlayerPawn_Cbo(0)");
    Type("y-axis speed");
    EXPECT_EQ(Next(), "1 of 1: Mouse Y-Axis Speed -> MouseBind_Cbo(1)");
    Type("use filter");
    EXPECT_EQ(Next(), "1 of 1: Use Filter -> UnrealAudio_Cbo(1)");
    EXPECT_EQ(form.Document.Options_Tab.Tab, 2);
    EXPECT_EQ(Type("weapon bob"), "Nothing found.");
    Start();
    EXPECT_EQ(Type("dodge"), "Nothing found.");
}

}  // namespace
}  // namespace lv
