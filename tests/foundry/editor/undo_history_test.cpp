#include "foundry/editor/undo_history.h"

#include "foundry/editor/bindings_page.h"
#include "tests/foundry/editor/undo_fixture.h"

namespace lv {
namespace {

TEST_F(UndoTest, AFreshScriptHasNothingToTakeBack) {
    form.Undo_Cmd.Enabled = form.Redo_Cmd.Enabled = true;
    form.Hint_Lbl.Caption = "Pick a key.";
    Start();
    EXPECT_FALSE(form.Undo_Cmd.Enabled);
    EXPECT_FALSE(form.Redo_Cmd.Enabled);
    Undo();
    Redo();
    EXPECT_EQ(form.Hint_Lbl.Caption, "Pick a key.");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(UndoTest, ABindingIsTakenBackAndRepeatedWithTheColorOfItsKey) {
    Start(kQuakeDialect, "bind w +forward\n");
    Bind(1, 101);
    EXPECT_EQ(Keys(101), "{W} : {A}");

    Undo();
    EXPECT_EQ(Keys(101), "{W}");
    EXPECT_EQ(Command(1), "");
    EXPECT_EQ(KeyColor(1), kWhite);
    EXPECT_EQ(form.Hint_Lbl.Caption, "Taken back.");
    EXPECT_TRUE(form.Document.ScriptClean);

    Redo();
    EXPECT_EQ(Keys(101), "{W} : {A}");
    EXPECT_EQ(Command(1), "+forward");
    EXPECT_EQ(KeyColor(1), 0x00c000U);
    EXPECT_EQ(form.Hint_Lbl.Caption, "Repeated.");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(UndoTest, AKeyThatMovedGoesBackToItsRowAndPlace) {
    Start(kQuakeDialect, "bind w +forward\nbind a +forward\nbind s +back\n");
    Bind(23, 102);
    EXPECT_EQ(Keys(101), "{A}");
    EXPECT_EQ(Keys(102), "{S} : {W}");
    Undo();
    EXPECT_EQ(Keys(101), "{W} : {A}");
    EXPECT_EQ(Keys(102), "{S}");
    EXPECT_EQ(Command(23), "+forward");
}

TEST_F(UndoTest, TwinsTakeTheirColorsBackToo) {
    Start();
    Bind(32, 111);
    EXPECT_EQ(KeyColor(88), 0x00c000U);
    Undo();
    EXPECT_EQ(KeyColor(32), kWhite);
    EXPECT_EQ(KeyColor(88), kWhite);
}

TEST_F(UndoTest, NoKeyTellsTheCommandThatItHadBefore) {
    Start();
    Bind(1, 101);
    form.KeyLabelOf(1).ToolTip = "+forward";
    Undo();
    EXPECT_EQ(form.KeyLabelOf(1).ToolTip, "");
}

TEST_F(UndoTest, TheButtonsTellWhatCanBeDone) {
    Start();
    Bind(1, 101);
    EXPECT_TRUE(form.Undo_Cmd.Enabled);
    EXPECT_FALSE(form.Redo_Cmd.Enabled);
    Bind(2, 101);
    Undo();
    EXPECT_TRUE(form.Undo_Cmd.Enabled);
    EXPECT_TRUE(form.Redo_Cmd.Enabled);
    Undo();
    EXPECT_FALSE(form.Undo_Cmd.Enabled);
    EXPECT_TRUE(form.Redo_Cmd.Enabled);
    Bind(3, 101);
    EXPECT_TRUE(form.Undo_Cmd.Enabled);
    EXPECT_FALSE(form.Redo_Cmd.Enabled);
}

TEST_F(UndoTest, AnEventThatChangedNothingIsNoEdit) {
    Start();
    form.Document.ScriptClean = false;
    NoteEdit(form);
    EXPECT_EQ(EditCount(), 0U);
    EXPECT_FALSE(form.Undo_Cmd.Enabled);
}

TEST_F(UndoTest, AnEditBehindAnUndoCutsWhatWasTakenBack) {
    Start();
    Bind(1, 101);
    Bind(2, 102);
    Undo();
    Bind(3, 103);
    EXPECT_EQ(EditCount(), 2U);
    Redo();
    EXPECT_EQ(Keys(102), "");
    EXPECT_EQ(Keys(103), "{C}");
    Undo();
    Undo();
    EXPECT_EQ(Keys(101), "");
}

TEST_F(UndoTest, TheScriptIsCleanAgainWhereItWasSaved) {
    Start();
    Bind(1, 101);
    NoteSaved(form);
    form.Document.ScriptClean = true;
    Bind(2, 102);
    Undo();
    EXPECT_TRUE(form.Document.ScriptClean);
    Undo();
    EXPECT_FALSE(form.Document.ScriptClean);
    Redo();
    EXPECT_TRUE(form.Document.ScriptClean);
    Redo();
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(UndoTest, TheScriptIsCleanAgainByWhateverWayItComesBackToItsFile) {
    Start(kQuakeDialect, "bind w +forward\n");
    Bind(5, 111);
    EXPECT_FALSE(form.Document.ScriptClean);
    UnbindKey(form.Document, form, 5);
    NoteEdit(form);
    EXPECT_TRUE(form.Document.ScriptClean);
    Bind(23, 102);
    EXPECT_FALSE(form.Document.ScriptClean);
    Bind(23, 101);
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_EQ(EditCount(), 4U);
    Undo();
    EXPECT_FALSE(form.Document.ScriptClean);
    Redo();
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(UndoTest, ATickAndItsOppositeAreNoChange) {
    Start();
    CheckBox& box = form.Document.Unbindall_Chk;
    const auto was = box.Value;
    const auto tick = [&](bool back) {
        box.Value = back ? was : static_cast<decltype(box.Value)>(1 - was);
        Edited(form);
        NoteEdit(form);
    };
    tick(false);
    EXPECT_FALSE(form.Document.ScriptClean);
    tick(true);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(UndoTest, WhatChangedNothingLeavesTheScriptClean) {
    Start();
    Edited(form);
    NoteEdit(form);
    EXPECT_TRUE(form.Document.ScriptClean);
    Bind(5, 111);
    Edited(form);
    NoteEdit(form);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(UndoTest, AKeyThatIsClearedAloneDoesNotAskToSaveHoweverOftenItIsTakenBack) {
    Start(kQuakeDialect, "bind w +forward\n");
    user.Expect({.Title = "Comfirm Clear", .Text_ = "Clear binding?", .Answer = 0});
    Key_Lbl_DblClick(form, 23);
    NoteEdit(form);
    EXPECT_EQ(Keys(101), "");
    EXPECT_TRUE(form.Document.ScriptClean);
    Undo();
    EXPECT_TRUE(form.Document.ScriptClean);
    Redo();
    EXPECT_EQ(Keys(101), "");
    EXPECT_TRUE(form.Document.ScriptClean);
    Bind(5, 111);
    EXPECT_FALSE(form.Document.ScriptClean);
    Undo();
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(UndoTest, AfterASaveTheStateBeforeIsNotTheFilesAnyMore) {
    Start(kQuakeDialect, "bind w +forward\n");
    Bind(5, 111);
    form.Document.ScriptClean = true;
    NoteSaved(form);
    Undo();
    EXPECT_FALSE(form.Document.ScriptClean);
    Bind(5, 111);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(UndoTest, ASavedStateThatWasCutIsReachedByNoUndo) {
    Start();
    Bind(1, 101);
    NoteSaved(form);
    Undo();
    Bind(2, 102);
    EXPECT_EQ(form.History.CleanPosition, kNoPosition);
    Undo();
    EXPECT_FALSE(form.Document.ScriptClean);
    Redo();
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(UndoTest, AScriptThatIsNotItsFilesFromTheStartIsCleanNowhere) {
    Open(kQuakeDialect);
    form.Document.ScriptClean = false;
    StartHistory(form);
    Bind(1, 101);
    Undo();
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(UndoTest, WhatWasTypedBeforeASaveBelongsToIt) {
    Start();
    form.Document.Name_Txt.Text = "Zoe";  // its event is not over
    NoteSaved(form);
    EXPECT_EQ(EditCount(), 1U);
    EXPECT_EQ(form.History.CleanPosition, 1U);
}

TEST_F(UndoTest, AnEditNotSeenYetIsTakenBackFirst) {
    Start();
    Bind(1, 101);
    BindKey(form.Document, form, 2, 102);
    Undo();
    EXPECT_EQ(Keys(102), "");
    EXPECT_EQ(Keys(101), "{A}");
}

TEST_F(UndoTest, NothingIsAnEditBeforeTheStartOrWhileTheReaderRuns) {
    Open(kQuakeDialect);
    Bind(1, 101);
    EXPECT_EQ(EditCount(), 0U);
    Undo();
    EXPECT_EQ(Keys(101), "{A}");

    StartHistory(form);
    form.Document.ScriptLoading = true;
    Bind(2, 102);
    EXPECT_EQ(EditCount(), 0U);
}

TEST_F(UndoTest, AnotherStartForgetsTheEditsBefore) {
    Start();
    Bind(1, 101);
    StartHistory(form);
    EXPECT_FALSE(form.Undo_Cmd.Enabled);
    Undo();
    EXPECT_EQ(Keys(101), "{A}");
}

TEST_F(UndoTest, AListComesBackWithItsRowsAndItsSelection) {
    Start(kQuakeDialect, "fov 90\n");
    ListBox& fov = form.Document.fov_Cbo;
    const std::vector<Text> rows = fov.Items;
    ASSERT_EQ(fov.Selected(), "90");
    fov.ListIndex = 0;
    NoteEdit(form);
    fov.Items.insert(fov.Items.begin(), "1");
    NoteEdit(form);
    Undo();
    EXPECT_EQ(fov.Items, rows);
    EXPECT_EQ(fov.ListIndex, 0);
    Undo();
    EXPECT_EQ(fov.Items, rows);
    EXPECT_EQ(fov.Selected(), "90");
    fov.ListIndex = -1;
    NoteEdit(form);
    Undo();
    EXPECT_EQ(fov.Selected(), "90");
    Redo();
    EXPECT_EQ(fov.ListIndex, -1);
}

TEST_F(UndoTest, WhatAChoiceEnablesGoesWithIt) {
    Start(kQuakeWorldDialect, "crosshair 1\n");
    form.Document.CrossHairColor_Cbo.Enabled = false;
    StartHistory(form);
    form.Document.Crosshair_Cbo.ListIndex = 2;
    form.Document.CrossHairColor_Cbo.Enabled = true;
    NoteEdit(form);
    Undo();
    EXPECT_FALSE(form.Document.CrossHairColor_Cbo.Enabled);
    Redo();
    EXPECT_TRUE(form.Document.CrossHairColor_Cbo.Enabled);
}

TEST_F(UndoTest, ARowThatTheUserTypedGoesAndComesWithItsEdit) {
    Start();
    ListBox& fov = form.Document.fov_Cbo;
    const int row = static_cast<int>(fov.Items.size());
    fov.Items.emplace_back("91");
    fov.ListIndex = row;
    form.TypedRows[&fov] = row;
    NoteEdit(form);
    Undo();
    EXPECT_EQ(form.TypedRows.count(&fov), 0U);
    Redo();
    ASSERT_EQ(form.TypedRows.count(&fov), 1U);
    EXPECT_EQ(form.TypedRows[&fov], row);
    EXPECT_EQ(fov.Selected(), "91");

    form.Document.gamma_Cbo.ListIndex = 3;
    NoteEdit(form);
    Undo();
    EXPECT_EQ(form.TypedRows[&fov], row);
}

TEST_F(UndoTest, AliasesComeBackInTheirOrderWithAnyByte) {
    Start(kQuakeDialect, "alias b b\nalias d d\n");
    AliasList& aliases = form.Document.AliasTable;
    const Text name("c\0\"\r\n\xff\x80 ", 8);
    aliases.Insert({.Bound = true, .Name = name, .Body = Text("\0;\n", 3)});
    NoteEdit(form);
    aliases.Erase(0);
    NoteEdit(form);
    aliases.Clear();
    NoteEdit(form);

    Undo();
    Undo();
    ASSERT_EQ(aliases.AliasCount(), 3U);
    EXPECT_EQ(aliases[0].Name, "b");
    EXPECT_EQ(aliases[1].Name, name);
    EXPECT_EQ(aliases[1].Body, Text("\0;\n", 3));
    EXPECT_TRUE(aliases[1].Bound);
    EXPECT_EQ(aliases[2].Name, "d");
    EXPECT_FALSE(aliases[2].Bound);
    EXPECT_TRUE(FindAlias(form.Document, "D").Found);
    Undo();
    EXPECT_EQ(aliases.AliasCount(), 2U);
    EXPECT_FALSE(FindAlias(form.Document, name).Found);
}

TEST_F(UndoTest, TheListShowsTheAliasesAsTheyAre) {
    Start(kQuakeDialect, "alias b b\n");
    AddAlias(form.Document, "c", "c");
    NoteEdit(form);
    Undo();
    EXPECT_EQ(form.Alias_Lst.Items.size(), 1U);
    Redo();
    EXPECT_EQ(form.Alias_Lst.Items.size(), 2U);
}

TEST_F(UndoTest, TheSelectedAliasStaysWhileOtherThingsAreTakenBack) {
    Start(kQuakeDialect, "alias b b\n");
    form.Alias_Lst.Items = {"b"};
    form.Alias_Lst.ListIndex = 0;
    Bind(1, 101);
    Undo();
    EXPECT_EQ(form.Alias_Lst.ListIndex, 0);
}

TEST_F(UndoTest, AnEditKeepsOnlyWhatItChanged) {
    Start();
    constexpr int kAliases = 10000;
    for (int i = 0; i < kAliases; ++i) {
        form.Document.AliasTable.Insert({.Bound = false, .Name = "alias_" + std::to_string(i), .Body = "echo hello"});
    }
    Text& lines = form.Document.Sections.front().Text;
    constexpr std::size_t kLong = 1000000;
    lines.assign(kLong, 'x');
    StartHistory(form);

    form.Document.AliasTable.Replace(5000, {.Bound = false, .Name = "alias_5", .Body = "echo goodbye"});
    form.Document.AliasTable[5000].Body = "echo goodbye";
    NoteEdit(form);
    EXPECT_LT(Kept(0), 100U);
    Type(lines, kLong / 2, "y");
    EXPECT_EQ(Kept(1), 1U);
    Bind(1, 101);
    EXPECT_LT(Kept(2), 100U);
    form.Document.CrossHairColor_Cbo.Items.emplace_back("300");
    form.Document.CrossHairColor_Cbo.ListIndex = 256;
    NoteEdit(form);
    EXPECT_LT(Kept(3), 100U);
}

TEST_F(UndoTest, ARowThatWaitsForAKeyWaitsNoMore) {
    Start();
    Bind(1, 101);
    form.CaptureRow = 101;
    Undo();
    EXPECT_EQ(form.CaptureRow, kNoSlot);
}

TEST_F(UndoTest, ADragIsGivenUp) {
    Start();
    Bind(1, 101);
    form.Drag = {.Dragging = true, .Key = 2, .OverRow = true, .Marked = 101, .Icon = DragIcon::Accept};
    Undo();
    EXPECT_EQ(form.Drag.Icon, DragIcon::None);
    EXPECT_EQ(form.Drag.Marked, kNoSlot);
}

TEST_F(UndoTest, SelectingAWeaponIsNoEdit) {
    Start(kUnrealDialect, "[Engine.PlayerPawn]\nWeaponPriority[0]=ASMD\nWeaponPriority[1]=Rifle\n");
    form.Document.WeaponsAvailable_Lst.ListIndex = 0;
    form.Document.WeaponsPriority_Lst.ListIndex = 1;
    NoteEdit(form);
    EXPECT_EQ(EditCount(), 0U);
    EXPECT_FALSE(form.Undo_Cmd.Enabled);
}

TEST_F(UndoTest, AWeaponThatIsTakenBackLeavesNoSelectionBehindTheLastRow) {
    Start(kUnrealDialect, "[Engine.PlayerPawn]\nWeaponPriority[0]=ASMD\n");
    ListBox& wanted = form.Document.WeaponsPriority_Lst;
    const Index last = static_cast<Index>(wanted.Items.size());
    wanted.Items.emplace_back("Minigun");
    Edited(form);
    NoteEdit(form);
    wanted.ListIndex = last;
    Undo();
    EXPECT_EQ(static_cast<Index>(wanted.Items.size()), last);
    EXPECT_EQ(wanted.ListIndex, -1);
}

}  // namespace
}  // namespace lv
