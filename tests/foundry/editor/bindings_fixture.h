// tests/foundry/editor/bindings_fixture.h
//
// The editor's window on an empty script of any kind of game, for binding keys.

#pragma once

#include "foundation/game.h"
#include "foundry/document/bindings.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/key_picture.h"
#include "tests/foundry/editor/fig_fixture.h"
#include "tests/foundry/kinds.h"

namespace lv {

constexpr KeyIndex kSpace = 0;
constexpr KeyIndex kA = 1;
constexpr KeyIndex kFive = 32;
constexpr Index kKeypadFive = 88;
constexpr Color kMoveColor = 0x00c000;

class KeyBindingTest : public FigTest {
  protected:
    void NewScript(Game kind) {
        LayOutKeys(form);
        form.Document = MakeScriptDocument({.GameKind = kind});
        form.Main_Tab.Tab = static_cast<int>(EditorPage::Bindings);
    }

    void DragOnto(Index label, SlotNumber slot) {
        Key_Lbl_MouseDown(form, label);
        Setting_Lbl_DragEnter(form, slot);
        Setting_Lbl_DragDrop(form, slot);
    }

    void FillRow(SlotNumber slot, TextView command) {
        form.Document.Bound_Lbl[slot].Caption = Join(" ", command);
        form.Document.SlotCommand[slot] = command;
    }

    void ExpectClear(int answer) { user.Expect({"Comfirm Clear", "Clear binding?", answer, false, true, "&Yes,&No"}); }

    void ExpectNoDrag() {
        EXPECT_EQ(form.Drag.Icon, DragIcon::None);
        EXPECT_EQ(form.Drag.Marked, kNoSlot);
        EXPECT_FALSE(form.Drag.OverRow);
    }
};

}  // namespace lv
