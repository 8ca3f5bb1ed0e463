#include "foundry/editor/bindings_page.h"

#include <gmock/gmock.h>

#include "foundry/editor/line_dialogs.h"
#include "tests/foundry/editor/bindings_fixture.h"

namespace lv {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// The pages

struct KeyPages : KeyBindingTest {
    KeyPages() { NewScript(Game::Quake); }
};

TEST_F(KeyPages, OfKeysBringBothPanelsIntoSight) {
    for (const int page : {1, 2}) {
        Main_Tab_Click(form, 0);
        form.Keyboard_Fra.Visible = form.Joy_Fra.Visible = false;
        Main_Tab_Click(form, page);
        EXPECT_EQ(form.Main_Tab.Tab, page);
        EXPECT_EQ(form.Keyboard_Fra.Left, 60);
        EXPECT_EQ(form.Joy_Fra.Left, 60);
        EXPECT_TRUE(form.Keyboard_Fra.Visible);
        EXPECT_TRUE(form.Joy_Fra.Visible);
        EXPECT_TRUE(form.Keyboard_Fra.Front);
        EXPECT_FALSE(form.Joy_Fra.Front);
    }
}

TEST_F(KeyPages, WithoutKeysMoveBothPanelsOutOfSight) {
    for (const int page : {0, 3, 4}) {
        Main_Tab_Click(form, 1);
        Main_Tab_Click(form, page);
        EXPECT_EQ(form.Main_Tab.Tab, page);
        EXPECT_EQ(form.Keyboard_Fra.Left, -75000);
        EXPECT_EQ(form.Joy_Fra.Left, -75000);
    }
}

TEST_F(KeyPages, RememberWhichPanelWasChosen) {
    Main_Tab_Click(form, 1);
    JoyToggle_Cmd_Click(form, 0);
    EXPECT_TRUE(form.Joy_Fra.Front);
    EXPECT_FALSE(form.Keyboard_Fra.Front);
    Main_Tab_Click(form, 0);
    Main_Tab_Click(form, 2);
    EXPECT_TRUE(form.Joy_Fra.Front);
    EXPECT_FALSE(form.Keyboard_Fra.Front);
    JoyToggle_Cmd_Click(form, 1);
    EXPECT_TRUE(form.Keyboard_Fra.Front);
    EXPECT_FALSE(form.Joy_Fra.Front);
    EXPECT_FALSE(form.JoyChosen);
}

TEST_F(KeyPages, OfAliasesFillTheirListAnew) {
    AddAlias(form.Document, "zoom", "fov 20");
    form.Alias_Lst.Items = {"of another script"};
    Main_Tab_Click(form, 1);
    EXPECT_THAT(form.Alias_Lst.Items, ElementsAre("of another script"));
    Main_Tab_Click(form, 2);
    EXPECT_THAT(form.Alias_Lst.Items, ElementsAre(HasSubstr("zoom")));
}

TEST_F(KeyPages, OfBindingsAreTurned) {
    Bindings_Tab_Click(form, 6);
    EXPECT_EQ(form.Bindings_Tab.Tab, 6);
}

TEST_F(KeyPages, AreNoEdit) {
    for (const int page : {0, 1, 2, 3, 4}) {
        Main_Tab_Click(form, page);
        Bindings_Tab_Click(form, page);
        JoyToggle_Cmd_Click(form, page % 2);
    }
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(KeyPages, SayWhatToDo) {
    Main_Tab_Click(form, 1);
    EXPECT_EQ(form.Hint_Lbl.Caption, "Drag a key onto a function, or press Enter on a function and then the key.");
    Main_Tab_Click(form, 3);
    EXPECT_EQ(form.Hint_Lbl.Caption, "These lines are written as they stand, behind all others.");
    Main_Tab_Click(form, 0);
    EXPECT_EQ(form.Hint_Lbl.Caption,
              "What you leave empty is not written. The game reads the script when it is ticked at the launch.");
}

// The double clicks

struct DoubleClicks : KeyBindingTest {
    DoubleClicks() { NewScript(Game::Quake); }
};

TEST_F(DoubleClicks, OnAKeyFreeItIfTheUserSaysYes) {
    BindKey(form.Document, form, kA, 111);
    ExpectClear(1);
    Key_Lbl_DblClick(form, kA);
    EXPECT_EQ(Command(kA), "+attack");
    ExpectClear(0);
    Key_Lbl_DblClick(form, kA);
    EXPECT_EQ(Command(kA), "");
    EXPECT_EQ(Keys(111), "");
    EXPECT_EQ(KeyColor(kA), kWhite);
}

TEST_F(DoubleClicks, OnAKeyLeaveACleanScriptClean) {
    BindKey(form.Document, form, kA, 111);
    form.Document.ScriptClean = true;
    ExpectClear(0);
    Key_Lbl_DblClick(form, kA);
    EXPECT_EQ(Command(kA), "");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(DoubleClicks, OnAKeyLeaveAChangedScriptChanged) {
    BindKey(form.Document, form, kA, 111);
    ExpectClear(0);
    Key_Lbl_DblClick(form, kA);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(DoubleClicks, OnAFreeKeyAskToo) {
    ExpectClear(0);
    Key_Lbl_DblClick(form, kA);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(DoubleClicks, OnAnUnbindableKeyAskNothing) {
    for (Index label = 200; label <= 204; ++label) {
        Key_Lbl_DblClick(form, label);
    }
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(DoubleClicks, OnTheKeypadFreeTheMainKeyInTheOlderEngines) {
    for (const Game kind : kKinds) {
        NewScript(kind);
        BindKey(form.Document, form, kFive, 111);
        ExpectClear(0);
        Key_Lbl_DblClick(form, kKeypadFive);
        const bool older = kind == Game::Quake || kind == Game::Hexen2 || kind == Game::HalfLife;
        EXPECT_EQ(Command(kFive).empty(), older) << NumberOf(kind);
        EXPECT_EQ(KeyColor(kKeypadFive), kWhite) << NumberOf(kind);
    }
}

TEST_F(DoubleClicks, OnARightModifierFreeTheLeftOne) {
    for (const Game kind : kKinds) {
        NewScript(kind);
        for (const Index label : KeyList{149, 150, 151}) {
            const auto key = static_cast<KeyIndex>(label - 100);
            BindKey(form.Document, form, key, 111);
            ExpectClear(0);
            Key_Lbl_DblClick(form, label);
            EXPECT_EQ(Command(key), "") << NumberOf(kind) << " " << label;
        }
    }
}

TEST_F(DoubleClicks, OnUnrealsKeypadEnterFreeTheMainOneAndLeaveItsOwnBinding) {
    NewScript(Game::Unreal);
    BindKey(form.Document, form, 75, 111);
    BindKey(form.Document, form, 93, 112);
    ExpectClear(0);
    Key_Lbl_DblClick(form, 93);
    EXPECT_EQ(Command(75), "");
    EXPECT_EQ(Command(93), "Jump");
}

TEST_F(DoubleClicks, EndTheDragThatTheSecondPressBegan) {
    Key_Lbl_MouseDown(form, kA);
    user.OnDialog = [&] { ExpectNoDrag(); };
    ExpectClear(1);
    Key_Lbl_DblClick(form, kA);
    ExpectNoDrag();
}

TEST_F(DoubleClicks, OnARowFreeAllItsKeysAndDirtyTheScript) {
    BindKey(form.Document, form, kA, 111);
    BindKey(form.Document, form, kSpace, 111);
    form.Document.ScriptClean = true;
    ExpectClear(1);
    Setting_Lbl_DblClick(form, 111);
    EXPECT_EQ(Keys(111), "{A} : Spc");
    EXPECT_TRUE(form.Document.ScriptClean);
    ExpectClear(0);
    Setting_Lbl_DblClick(form, 111);
    EXPECT_EQ(Keys(111), "");
    EXPECT_EQ(Command(kA), "");
    EXPECT_EQ(Command(kSpace), "");
    EXPECT_EQ(KeyColor(kA), kWhite);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(DoubleClicks, OnAnEmptyRowDirtyTheScriptToo) {
    ExpectClear(0);
    Setting_Lbl_DblClick(form, 111);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(DoubleClicks, OnARowEmptyWhatIsNoKeysCaption) {
    form.Document.Setting_Lbl[111].Caption = "no key : {A}";
    ExpectClear(0);
    Setting_Lbl_DblClick(form, 111);
    EXPECT_EQ(Keys(111), "");
}

// The names of the rows

struct RowNameClicks : KeyBindingTest {
    RowNameClicks() { NewScript(Game::Quake); }
};

TEST_F(RowNameClicks, OnFixedRowsAreIgnored) {
    for (const SlotNumber slot : Slots{101, 212, 413, 601, 901, 1005, 1124, 100, 814}) {
        Bound_Lbl_MouseUp(form, slot, false);
        Bound_Lbl_MouseUp(form, slot, true);
    }
    EXPECT_TRUE(user.Asked.empty());
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(RowNameClicks, FillAFreeRowOfExtrasWithTheLeftButton) {
    bool shown = false;
    user.In<ExtraBinding_Frm>([&](ExtraBinding_Frm&) { shown = true; });
    Bound_Lbl_MouseUp(form, 501, false);
    EXPECT_TRUE(shown);
}

TEST_F(RowNameClicks, DeleteAFilledRowWithTheRightButton) {
    FillRow(501, "+hook");
    user.Expect({"Confirm Deletion", "Delete this extra binding?", 1});
    Bound_Lbl_MouseUp(form, 501, true);
    EXPECT_EQ(form.Document.Bound_Lbl[501].Caption, " +hook");
}

TEST_F(RowNameClicks, OnTheLastMessageEditItButNeverDeleteIt) {
    FillRow(813, "hello");
    Bound_Lbl_MouseUp(form, 813, true);
    EXPECT_TRUE(user.Asked.empty());
    bool shown = false;
    user.In<SayStuff_Frm>([&](SayStuff_Frm&) { shown = true; });
    Bound_Lbl_MouseUp(form, 813, false);
    EXPECT_TRUE(shown);
}

}  // namespace
}  // namespace lv
