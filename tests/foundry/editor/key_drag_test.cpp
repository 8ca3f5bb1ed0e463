// A key's way from the picture to a row, by the mouse.

#include "foundry/editor/bindings_page.h"

#include "tests/foundry/editor/bindings_fixture.h"

namespace lv {
namespace {

// The tool tip

struct KeyTips : KeyBindingTest {};

TEST_F(KeyTips, AreTheCommandsOfTheKeys) {
    NewScript(Game::Quake);
    BindKey(form.Document, form, kA, 111);
    Key_Lbl_MouseMove(form, kA);
    EXPECT_EQ(form.KeyLabelOf(kA).ToolTip, "+attack");
    UnbindKey(form.Document, form, kA);
    Key_Lbl_MouseMove(form, kA);
    EXPECT_EQ(form.KeyLabelOf(kA).ToolTip, "");
}

TEST_F(KeyTips, OfTheKeypadAreThoseOfTheMainKeyInTheOlderEngines) {
    for (const Game kind : kKinds) {
        NewScript(kind);
        BindKey(form.Document, form, kFive, 111);
        Key_Lbl_MouseMove(form, kKeypadFive);
        const bool older = kind == Game::Quake || kind == Game::Hexen2 || kind == Game::HalfLife;
        EXPECT_EQ(form.KeyLabelOf(kKeypadFive).ToolTip, older ? "+attack" : "") << NumberOf(kind);
    }
}

TEST_F(KeyTips, OfTheRightModifiersAreThoseOfTheLeftOnes) {
    for (const Game kind : kKinds) {
        NewScript(kind);
        BindKey(form.Document, form, 50, 111);
        Key_Lbl_MouseMove(form, 150);
        EXPECT_EQ(form.KeyLabelOf(150).ToolTip, kind == Game::Unreal ? "Fire" : "+attack") << NumberOf(kind);
    }
}

TEST_F(KeyTips, OfTheFiveOthersSayThatTheyAreUnbindable) {
    NewScript(Game::Quake);
    for (Index label = 200; label <= 204; ++label) {
        Key_Lbl_MouseMove(form, label);
        EXPECT_EQ(form.KeyLabelOf(label).ToolTip, "Unbindable") << label;
    }
}

// The drag

struct Dragging : KeyBindingTest {
    Dragging() { NewScript(Game::Quake); }
};

TEST_F(Dragging, BeginsAtThePressWithThePointerOfRefusal) {
    Key_Lbl_MouseDown(form, kA);
    EXPECT_TRUE(form.Drag.Dragging);
    EXPECT_EQ(form.Drag.Key, kA);
    EXPECT_EQ(form.Drag.Icon, DragIcon::Refuse);
    EXPECT_EQ(form.Drag.Marked, kNoSlot);
    EXPECT_FALSE(form.Drag.OverRow);
}

TEST_F(Dragging, DoesNotBeginAtTheKeysThatCannotBeBound) {
    for (Index label = 200; label <= 204; ++label) {
        Key_Lbl_MouseDown(form, label);
        EXPECT_FALSE(form.Drag.Dragging) << label;
        ExpectNoDrag();
    }
}

TEST_F(Dragging, MarksTheRowItIsOver) {
    Key_Lbl_MouseDown(form, kA);
    Setting_Lbl_DragEnter(form, 101);
    EXPECT_EQ(form.Drag.Marked, 101);
    EXPECT_TRUE(form.Drag.OverRow);
    EXPECT_EQ(form.Drag.Icon, DragIcon::Accept);
    Setting_Lbl_DragLeave(form, 101);
    EXPECT_EQ(form.Drag.Marked, kNoSlot);
    EXPECT_FALSE(form.Drag.OverRow);
    EXPECT_EQ(form.Drag.Icon, DragIcon::Refuse);
}

TEST_F(Dragging, KeepsTheNewMarkWhenTheOldRowIsLeftLast) {
    Key_Lbl_MouseDown(form, kA);
    Setting_Lbl_DragEnter(form, 101);
    Setting_Lbl_DragEnter(form, 102);
    Setting_Lbl_DragLeave(form, 101);
    EXPECT_EQ(form.Drag.Marked, 102);
    EXPECT_EQ(form.Drag.Icon, DragIcon::Accept);
}

TEST_F(Dragging, BindsTheKeyWhereItIsDropped) {
    DragOnto(kA, 111);
    EXPECT_EQ(Command(kA), "+attack");
    EXPECT_EQ(Keys(111), "{A}");
    EXPECT_EQ(KeyColor(kA), kMoveColor);
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_FALSE(form.Drag.Dragging);
    ExpectNoDrag();
}

TEST_F(Dragging, MovesAKeyThatHasAFunction) {
    DragOnto(kA, 111);
    DragOnto(kA, 201);
    EXPECT_EQ(Keys(111), "");
    EXPECT_EQ(Keys(201), "{A}");
    EXPECT_EQ(KeyColor(kA), 0x00c0c0U);
}

TEST_F(Dragging, AddsAKeyBehindTheOthersOfTheRow) {
    DragOnto(50, 111);
    DragOnto(kSpace, 111);
    EXPECT_EQ(Keys(111), "Ctrl : Spc");
}

TEST_F(Dragging, OverAnEmptyRowMarksNothingAndADropThereBindsNothing) {
    for (const SlotNumber slot : Slots{501, 524, 601, 627, 701, 712, 801, 813}) {
        form.Document.Bound_Lbl[slot].Caption = "  ";
        Key_Lbl_MouseDown(form, kA);
        Setting_Lbl_DragEnter(form, slot);
        EXPECT_EQ(form.Drag.Marked, kNoSlot) << slot;
        EXPECT_EQ(form.Drag.Icon, DragIcon::Refuse) << slot;
        Setting_Lbl_DragDrop(form, slot);
        EXPECT_EQ(Keys(slot), "") << slot;
        EXPECT_EQ(Command(kA), "") << slot;
        EXPECT_TRUE(form.Document.ScriptClean) << slot;
        ExpectNoDrag();
    }
}

TEST_F(Dragging, BindsToARowThatTheUserFilled) {
    FillRow(501, "+hook");
    DragOnto(kA, 501);
    EXPECT_EQ(Command(kA), "+hook");
    EXPECT_EQ(KeyColor(kA), 0x8080ffU);
}

TEST_F(Dragging, OntoARowThatIsHiddenDisabledOrAHeadingBindsNothing) {
    form.Document.Setting_Lbl[101].Enabled = false;
    form.Document.Setting_Lbl[102].Visible = false;
    for (const SlotNumber slot : Slots{101, 102, 100, 67, 1199, 0, 117}) {
        DragOnto(kA, slot);
        EXPECT_EQ(Command(kA), "") << slot;
        ExpectNoDrag();
    }
}

TEST_F(Dragging, ReleasedElsewhereBindsNothingAndLeavesOnlyTheFlag) {
    Key_Lbl_MouseDown(form, kA);
    Setting_Lbl_DragEnter(form, 101);
    GiveUpDrag(form);
    EXPECT_TRUE(form.Drag.Dragging);
    ExpectNoDrag();
    EXPECT_EQ(Command(kA), "");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(Dragging, OnceGivenUpHasNoEffectOnTheRowsPassed) {
    Key_Lbl_MouseDown(form, kA);
    GiveUpDrag(form);
    Setting_Lbl_DragEnter(form, 101);
    ExpectNoDrag();
    Setting_Lbl_DragLeave(form, 101);
    ExpectNoDrag();
    Setting_Lbl_DragDrop(form, 101);
    EXPECT_EQ(Command(kA), "");
    EXPECT_TRUE(form.Drag.Dragging);
}

TEST_F(Dragging, DroppedOnARowThatIsNotMarkedLeavesTheFlag) {
    Key_Lbl_MouseDown(form, kA);
    Setting_Lbl_DragEnter(form, 101);
    Setting_Lbl_DragDrop(form, 102);
    EXPECT_EQ(Command(kA), "");
    EXPECT_TRUE(form.Drag.Dragging);
    ExpectNoDrag();
}

TEST_F(Dragging, StartsAnewWithTheNextPress) {
    Key_Lbl_MouseDown(form, kA);
    GiveUpDrag(form);
    DragOnto(kSpace, 111);
    EXPECT_EQ(Command(kSpace), "+attack");
    EXPECT_EQ(Command(kA), "");
    EXPECT_FALSE(form.Drag.Dragging);
}

TEST_F(Dragging, TakesTheKeypadsFiveForTheMainOneInTheOlderEnginesOnly) {
    for (const Game kind : kKinds) {
        NewScript(kind);
        DragOnto(kKeypadFive, 111);
        const bool older = kind == Game::Quake || kind == Game::Hexen2 || kind == Game::HalfLife;
        const Text attack = kind == Game::Unreal ? "Fire" : "+attack";
        EXPECT_EQ(Command(kFive), older ? attack : "") << NumberOf(kind);
        EXPECT_EQ(Command(kKeypadFive), older ? "" : attack) << NumberOf(kind);
        EXPECT_EQ(Keys(111), older ? "{5}" : "kp5") << NumberOf(kind);
        EXPECT_EQ(KeyColor(kFive), older ? kMoveColor : kWhite) << NumberOf(kind);
        EXPECT_EQ(KeyColor(kKeypadFive), kMoveColor) << NumberOf(kind);
    }
}

TEST_F(Dragging, TakesTheRightShiftForTheLeftOneWhichAloneIsColoredInTheNewerEngines) {
    for (const Game kind : kKinds) {
        NewScript(kind);
        DragOnto(149, 111);
        const bool older = kind == Game::Quake || kind == Game::Hexen2 || kind == Game::HalfLife;
        EXPECT_EQ(Command(49), kind == Game::Unreal ? "Fire" : "+attack") << NumberOf(kind);
        EXPECT_EQ(Keys(111), "Shft") << NumberOf(kind);
        EXPECT_EQ(KeyColor(49), kMoveColor) << NumberOf(kind);
        EXPECT_EQ(KeyColor(149), older ? kMoveColor : kWhite) << NumberOf(kind);
    }
}

TEST_F(Dragging, BindsUnrealsKeypadEnterItself) {
    NewScript(Game::Unreal);
    DragOnto(93, 111);
    EXPECT_EQ(Command(93), "Fire");
    EXPECT_EQ(Command(75), "");
    EXPECT_EQ(Keys(111), "kpEnt");
    EXPECT_EQ(KeyColor(93), kMoveColor);
    EXPECT_EQ(KeyColor(75), kWhite);
}

TEST_F(Dragging, OfUnrealsMainEnterColorsTheKeypadsToo) {
    NewScript(Game::Unreal);
    DragOnto(75, 111);
    EXPECT_EQ(Command(93), "");
    EXPECT_EQ(KeyColor(75), kMoveColor);
    EXPECT_EQ(KeyColor(93), kMoveColor);
}

TEST_F(Dragging, BindsJoystickKeysLikeAnyOther) {
    DragOnto(98, 111);
    DragOnto(135, 111);
    EXPECT_EQ(Keys(111), "J1 : A32");
}

TEST_F(Dragging, RefusesTheRowsOfHalfLifeThatHaveNoWeapon) {
    NewScript(Game::HalfLife);
    for (SlotNumber slot = 206; slot <= 210; ++slot) {
        form.Document.Bound_Lbl[slot].Visible = form.Document.Setting_Lbl[slot].Visible = true;
        form.Document.Setting_Lbl[slot].Enabled = false;
        DragOnto(kA, slot);
        EXPECT_EQ(Keys(slot), "") << slot;
    }
}

}  // namespace
}  // namespace lv
