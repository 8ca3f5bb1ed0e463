#include "foundry/editor/key_capture.h"

#include "foundry/document/bindings.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/controllers.h"
#include "foundry/editor/key_picture.h"
#include "tests/foundry/editor/fig_fixture.h"
#include "tests/foundry/kinds.h"

namespace lv {
namespace {

constexpr KeyIndex kA = 1;
constexpr KeyIndex kW = 23;
constexpr const char* kUsual = "Drag a key onto a function, or press Enter on a function and then the key.";
constexpr const char* kWIsPickedUp = "W is picked up. Press Enter on the row that it is to do, Escape lays it down.";

struct KeyCapture : FigTest {
    KeyCapture() { NewScript(Game::Quake); }

    void NewScript(Game kind) {
        LayOutKeys(form);
        form.Document = MakeScriptDocument({.GameKind = kind});
        form.Main_Tab.Tab = static_cast<int>(EditorPage::Bindings);
        RestoreHint(form);
    }

    Text Hint() { return form.Hint_Lbl.Caption; }
};

TEST_F(KeyCapture, WaitsForTheKeyOfTheRow) {
    EXPECT_EQ(Hint(), kUsual);
    StartCapture(form, 101);
    EXPECT_EQ(form.CaptureRow, 101);
    EXPECT_EQ(Hint(), "Press a key for Forward");
    CaptureKey(form, kW);
    EXPECT_EQ(Command(kW), "+forward");
    EXPECT_EQ(Keys(101), "{W}");
    EXPECT_EQ(KeyColor(kW), 0x00c000U);
    EXPECT_EQ(form.CaptureRow, kNoSlot);
    EXPECT_EQ(Hint(), kUsual);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(KeyCapture, TakesOneKeyOnly) {
    StartCapture(form, 101);
    CaptureKey(form, kW);
    CaptureKey(form, kA);
    EXPECT_EQ(Keys(101), "{W}");
    EXPECT_EQ(Command(kA), "");
}

TEST_F(KeyCapture, TakesMouseButtonsAndTurnsOfTheWheel) {
    for (const KeyIndex key : KeyList{79, 80, 81, 96, 97, 98, 66, 75}) {
        StartCapture(form, 101);
        CaptureKey(form, key);
        EXPECT_EQ(Command(key), "+forward") << key;
    }
    EXPECT_EQ(Keys(101), "M1 : M2 : M3 : MwU : MwD : J1 : Del : Ent");
}

TEST_F(KeyCapture, GivesUpOnEscape) {
    StartCapture(form, 101);
    GiveUpCapture(form);
    EXPECT_EQ(form.CaptureRow, kNoSlot);
    EXPECT_EQ(Hint(), kUsual);
    CaptureKey(form, kW);
    EXPECT_EQ(Command(kW), "");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(KeyCapture, SaysThatAKeyCannotBeBoundAndGoesOnWaiting) {
    StartCapture(form, 101);
    for (const Index label : KeyList{-1, 200, 201, 140}) {
        CaptureKey(form, label);
        EXPECT_EQ(Hint(), "That key can't be bound. Press a key for Forward") << label;
        EXPECT_EQ(form.CaptureRow, 101) << label;
    }
    EXPECT_TRUE(form.Document.ScriptClean);
    CaptureKey(form, kW);
    EXPECT_EQ(Keys(101), "{W}");
}

TEST_F(KeyCapture, TakesTheKeypadForTheMainKeysInTheOlderEngines) {
    for (const Game kind : kKinds) {
        NewScript(kind);
        StartCapture(form, 111);
        CaptureKey(form, 88);
        const bool older = kind == Game::Quake || kind == Game::Hexen2 || kind == Game::HalfLife;
        EXPECT_EQ(Keys(111), older ? "{5}" : "kp5") << NumberOf(kind);
    }
}

TEST_F(KeyCapture, RefusesARowThatIsEmpty) {
    for (const SlotNumber slot : Slots{501, 601, 701, 801, 813}) {
        StartCapture(form, slot);
        EXPECT_EQ(form.CaptureRow, kNoSlot) << slot;
        EXPECT_EQ(Hint(), "This row is empty. Fill it first, then bind a key to it.") << slot;
    }
}

TEST_F(KeyCapture, RefusesARowWithoutAFunction) {
    form.Document.Bound_Lbl[210].Caption = " ";
    StartCapture(form, 210);
    EXPECT_EQ(form.CaptureRow, kNoSlot);
    EXPECT_EQ(Hint(), "This row has no function in this game.");
}

TEST_F(KeyCapture, RefusesARowThatIsHiddenOrDisabled) {
    form.Document.Setting_Lbl[101].Enabled = false;
    form.Document.Setting_Lbl[102].Visible = false;
    form.Document.Bound_Lbl[103].Visible = false;
    for (const SlotNumber slot : Slots{101, 102, 103}) {
        RestoreHint(form);
        StartCapture(form, slot);
        EXPECT_EQ(form.CaptureRow, kNoSlot) << slot;
        EXPECT_EQ(Hint(), "This row is not in use in this game.") << slot;
    }
}

TEST_F(KeyCapture, RefusesAHeading) {
    for (const SlotNumber slot : Slots{100, 67, 0, 1199, -1, 32767}) {
        RestoreHint(form);
        StartCapture(form, slot);
        EXPECT_EQ(form.CaptureRow, kNoSlot) << slot;
        EXPECT_EQ(Hint(), "A heading takes no key.") << slot;
    }
}

TEST_F(KeyCapture, ThatIsRefusedLeavesARowThatWaits) {
    StartCapture(form, 101);
    StartCapture(form, 501);
    EXPECT_EQ(form.CaptureRow, 101);
    CaptureKey(form, kW);
    EXPECT_EQ(Keys(101), "{W}");
}

TEST_F(KeyCapture, EndsWhenThePageIsLeft) {
    StartCapture(form, 101);
    Main_Tab_Click(form, 0);
    EXPECT_EQ(form.CaptureRow, kNoSlot);
    Main_Tab_Click(form, 1);
    StartCapture(form, 101);
    Bindings_Tab_Click(form, 1);
    EXPECT_EQ(form.CaptureRow, kNoSlot);
    EXPECT_EQ(Hint(), kUsual);
}

TEST_F(KeyCapture, EndsWhenADragBegins) {
    StartCapture(form, 101);
    Key_Lbl_MouseDown(form, kA);
    EXPECT_EQ(form.CaptureRow, kNoSlot);
    EXPECT_EQ(Hint(), kUsual);
}

struct PickedUp : KeyCapture {};

TEST_F(PickedUp, AKeyIsDroppedOnTheRowWhereEnterIsPressed) {
    PickUpKey(form, kW);
    EXPECT_EQ(form.PickedKey, kW);
    EXPECT_EQ(Hint(), kWIsPickedUp);
    StartCapture(form, 101);
    EXPECT_EQ(Keys(101), "{W}");
    EXPECT_EQ(form.PickedKey, kNoKey);
    EXPECT_EQ(form.CaptureRow, kNoSlot);
    EXPECT_EQ(Hint(), kUsual);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(PickedUp, AKeyIsLaidDownByEscapeOrASecondEnter) {
    PickUpKey(form, kW);
    GiveUpCapture(form);
    EXPECT_EQ(form.PickedKey, kNoKey);
    EXPECT_EQ(Hint(), kUsual);
    PickUpKey(form, kW);
    PickUpKey(form, kW);
    EXPECT_EQ(form.PickedKey, kNoKey);
    EXPECT_EQ(Hint(), kUsual);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(PickedUp, AnotherKeyTakesThePlaceOfTheFirst) {
    PickUpKey(form, kA);
    PickUpKey(form, kW);
    EXPECT_EQ(form.PickedKey, kW);
    EXPECT_EQ(Hint(), kWIsPickedUp);
}

TEST_F(PickedUp, AKeyGoesAlongToAnotherPage) {
    PickUpKey(form, kW);
    Main_Tab_Click(form, 1);
    Bindings_Tab_Click(form, 1);
    EXPECT_EQ(Hint(), kWIsPickedUp);
    StartCapture(form, 301);
    EXPECT_EQ(Command(kW), "sizeup");
}

TEST_F(PickedUp, AKeyStaysSoWhenARowRefusesIt) {
    PickUpKey(form, kW);
    StartCapture(form, 501);
    EXPECT_EQ(Hint(), "This row is empty. Fill it first, then bind a key to it.");
    EXPECT_EQ(form.PickedKey, kW);
    StartCapture(form, 101);
    EXPECT_EQ(Keys(101), "{W}");
}

TEST_F(PickedUp, AKeyOfTheKeypadIsTheMainOneInTheOlderEnginesAndItselfInUnreal) {
    PickUpKey(form, 93);
    EXPECT_EQ(form.PickedKey, 75);
    NewScript(Game::Unreal);
    PickUpKey(form, 93);
    StartCapture(form, 111);
    EXPECT_EQ(Command(93), "Fire");
    EXPECT_EQ(Command(75), "");
}

TEST_F(PickedUp, NoKeyIsThatCannotBeBound) {
    PickUpKey(form, kW);
    PickUpKey(form, 200);
    EXPECT_EQ(Hint(), "Esc can't be bound.");
    EXPECT_EQ(form.PickedKey, kW);
}

TEST_F(PickedUp, AnotherPanelOrControllerForgetsTheRefusal) {
    PickUpKey(form, 200);
    JoyToggle_Cmd_Click(form, 0);
    EXPECT_EQ(Hint(), kUsual);
    PickUpKey(form, 200);
    Device_Cbo_Click(form);
    EXPECT_EQ(Hint(), kUsual);
}

TEST_F(PickedUp, AKeyIsLaidDownWhenADragBegins) {
    PickUpKey(form, kW);
    Key_Lbl_MouseDown(form, kA);
    EXPECT_EQ(form.PickedKey, kNoKey);
    EXPECT_EQ(Hint(), kUsual);
}

struct ClearedRow : KeyCapture {};

TEST_F(ClearedRow, AsksAsTheDoubleClickDoes) {
    BindKey(form.Document, form, kW, 101);
    user.Expect({"Comfirm Clear", "Clear binding?", 1, false, true, "&Yes,&No"});
    ClearRow(form, 101);
    EXPECT_EQ(Keys(101), "{W}");
    user.Expect({"Comfirm Clear", "Clear binding?", 0, false, true, "&Yes,&No"});
    ClearRow(form, 101);
    EXPECT_EQ(Keys(101), "");
    EXPECT_EQ(Command(kW), "");
}

TEST_F(ClearedRow, SaysWhyThereIsNothingToClear) {
    ClearRow(form, 100);
    EXPECT_EQ(Hint(), "A heading takes no key.");
    ClearRow(form, 501);
    EXPECT_EQ(Hint(), "This row is empty. Fill it first, then bind a key to it.");
    EXPECT_TRUE(user.Asked.empty());
}

struct SpokenBindings : KeyCapture {};

TEST_F(SpokenBindings, AKeyTellsWhatItDoes) {
    EXPECT_EQ(SpokenKey(form, kW), "W, free");
    BindKey(form.Document, form, kW, 101);
    EXPECT_EQ(SpokenKey(form, kW), "W, Forward");
    EXPECT_EQ(SpokenKey(form, 200), "Esc, can't be bound");
    EXPECT_EQ(SpokenKey(form, 204), "Num Lock, can't be bound");
}

TEST_F(SpokenBindings, ATwinTellsWhatTheMainKeyDoes) {
    BindKey(form.Document, form, 32, 101);
    BindKey(form.Document, form, 49, 114);
    EXPECT_EQ(SpokenKey(form, 88), "Keypad 5, Forward");
    EXPECT_EQ(SpokenKey(form, 149), "Right Shift, Run On");
}

TEST_F(SpokenBindings, AKeyTellsTheRowThatShowsItWhereTwoHaveItsCommand) {
    NewScript(Game::HalfLife);
    BindKey(form.Document, form, kW, 112);
    EXPECT_EQ(SpokenKey(form, kW), "W, Jump");
    BindKey(form.Document, form, kA, 109);
    EXPECT_EQ(SpokenKey(form, kA), "A, Jump / Up");
}

TEST_F(SpokenBindings, AKeyThatNoRowShowsTellsItsCommand) {
    form.Document.KeyBinding[static_cast<std::size_t>(kW)] = "+hook";
    EXPECT_EQ(SpokenKey(form, kW), "W, +hook");
}

TEST_F(SpokenBindings, ARowTellsItsKeysInWords) {
    EXPECT_EQ(SpokenRow(form, 101), "Forward: no key");
    BindKey(form.Document, form, kW, 101);
    EXPECT_EQ(SpokenRow(form, 101), "Forward: W");
    BindKey(form.Document, form, 71, 101);
    EXPECT_EQ(SpokenRow(form, 101), "Forward: W : Up");
}

TEST_F(SpokenBindings, ARowTellsWhatIsNoKeysCaptionAsItStands) {
    form.Document.Setting_Lbl[101].Caption = "what : {W}";
    EXPECT_EQ(SpokenRow(form, 101), "Forward: what : W");
}

TEST_F(SpokenBindings, AnEmptyRowSaysSo) {
    EXPECT_EQ(SpokenRow(form, 501), "Empty row: no key");
}

}  // namespace
}  // namespace lv
