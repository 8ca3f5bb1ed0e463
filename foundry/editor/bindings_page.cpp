#include "foundry/editor/bindings_page.h"

#include "foundation/question_box.h"
#include "foundry/document/bindings.h"
#include "foundry/editor/aliases_page.h"
#include "foundry/editor/free_rows.h"
#include "foundry/editor/key_capture.h"
#include "foundry/editor/key_picture.h"

namespace lv {

namespace {

constexpr int kInSight = 60;  // Left of the panels, in twips
constexpr int kOutOfSight = -75000;
constexpr Index kYes = 0;

void ShowPanels(Fig_Frm& form) {
    form.Keyboard_Fra.Front = !form.JoyChosen;
    form.Joy_Fra.Front = form.JoyChosen;
}

void UnmarkRow(Fig_Frm& form) {
    form.Drag.Marked = kNoSlot;
    form.Drag.OverRow = false;
}

bool UserClears(Fig_Frm& form) {
    return AskUser(form.run, "Comfirm Clear", "Clear binding?", "&Yes,&No") == kYes;
}

}  // namespace

void Main_Tab_Click(Fig_Frm& form, int page) {
    form.Main_Tab.Tab = page;
    form.CaptureRow = kNoSlot;
    RestoreHint(form);
    const bool aliases = page == static_cast<int>(EditorPage::Aliases);
    if (aliases || page == static_cast<int>(EditorPage::Bindings)) {
        form.Keyboard_Fra.Left = form.Joy_Fra.Left = kInSight;
        form.Keyboard_Fra.Visible = form.Joy_Fra.Visible = true;
        ShowPanels(form);
    } else {
        form.Keyboard_Fra.Left = form.Joy_Fra.Left = kOutOfSight;
    }
    if (aliases) {
        FillAliasList(form);
    }
}

void Bindings_Tab_Click(Fig_Frm& form, int page) {
    form.Bindings_Tab.Tab = page;
    form.CaptureRow = kNoSlot;
    RestoreHint(form);
}

void JoyToggle_Cmd_Click(Fig_Frm& form, int index) {
    form.JoyChosen = index == 0;
    ShowPanels(form);
    RestoreHint(form);
}

void Key_Lbl_MouseMove(Fig_Frm& form, Index label) {
    KeyLabel& over = form.KeyLabelOf(label);
    const KeyIndex key = KeyOfLabel(label, form.GameKind());
    over.ToolTip = key == kNoKey ? "Unbindable" : form.Document.KeyBinding[static_cast<std::size_t>(key)];
}

void Key_Lbl_MouseDown(Fig_Frm& form, Index label) {
    const KeyIndex key = KeyOfLabel(label, form.GameKind());
    if (key == kNoKey) {
        return;
    }
    GiveUpCapture(form);
    form.Drag = {.Dragging = true, .Key = key, .Icon = DragIcon::Refuse};
}

void Setting_Lbl_DragEnter(Fig_Frm& form, SlotNumber slot) {
    // The flag outlives a drag that was given up, the icon does not.
    if (form.Drag.Icon == DragIcon::None || !RefusalOf(form, slot).empty()) {
        return;
    }
    form.Drag.Marked = slot;
    form.Drag.OverRow = true;
    form.Drag.Icon = DragIcon::Accept;
}

void Setting_Lbl_DragLeave(Fig_Frm& form, SlotNumber slot) {
    if (form.Drag.OverRow && form.Drag.Marked == slot) {
        UnmarkRow(form);
        form.Drag.Icon = DragIcon::Refuse;
    }
}

void Setting_Lbl_DragDrop(Fig_Frm& form, SlotNumber slot) {
    const bool accepted = form.Drag.OverRow && form.Drag.Marked == slot;
    GiveUpDrag(form);
    if (accepted) {
        form.Drag.Dragging = false;
        BindKey(form.Document, form, form.Drag.Key, slot);
    }
}

void GiveUpDrag(Fig_Frm& form) {
    UnmarkRow(form);
    form.Drag.Icon = DragIcon::None;
}

void Key_Lbl_DblClick(Fig_Frm& form, Index label) {
    GiveUpDrag(form);
    const KeyIndex key = KeyToClear(label, form.GameKind());
    if (key == kNoKey || !UserClears(form)) {
        return;
    }
    // Kept on purpose: to clear a key alone does not ask to save.
    const bool clean = form.Document.ScriptClean;
    UnbindKey(form.Document, form, key);
    form.Document.ScriptClean = clean;
}

void Setting_Lbl_DblClick(Fig_Frm& form, SlotNumber slot) {
    if (!UserClears(form)) {
        return;
    }
    ClearSlotKeys(form.Document, form, slot);
    form.Document.Setting_Lbl[slot].Caption.clear();
    form.SlotChanged(slot);
    Edited(form);
}

void Bound_Lbl_MouseUp(Fig_Frm& form, SlotNumber slot, bool right) {
    if (right) {
        FreeRow_RightClick(form, slot);
    } else {
        FreeRow_LeftClick(form, slot);
    }
}

}  // namespace lv
