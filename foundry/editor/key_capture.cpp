#include "foundry/editor/key_capture.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundry/document/bindings.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/key_picture.h"

namespace lv {

namespace {

bool IsRow(SlotNumber slot) {
    return std::ranges::binary_search(SlotNumbers(), slot);
}

bool IsFreeRow(SlotNumber slot) {
    return kExtras.Holds(slot) || kBoundAliases.Holds(slot) || kBoundScripts.Holds(slot) || kMessages.Holds(slot);
}

Text RowCaption(const Fig_Frm& form, SlotNumber slot) {
    return Trim(form.Document.Bound_Lbl[slot].Caption);
}

/// Visits the key captions that the row shows, each key once at most.
template <class Visit>
void ForEachKeyOf(const ScriptDocument& document, SlotNumber slot, Visit visit) {
    const Text& keyList = document.Setting_Lbl[slot].Caption;
    const int count = keyList.empty() ? 0 : std::min<int>(CountDelimiters(keyList, ":") + 1, kKeyCount);
    for (Index piece = 0; piece < count; ++piece) {
        visit(Trim(GetField(keyList, piece, ":")));
    }
}

bool ShowsKey(const ScriptDocument& document, SlotNumber slot, KeyIndex key) {
    bool shows = false;
    ForEachKeyOf(document, slot, [&](TextView caption) {
        shows = shows || caption == document.KeyCaption[static_cast<std::size_t>(key)];
    });
    return shows;
}

/// What the key does, in words: the row that shows it, or the bare command if none does.
Text FunctionOfKey(const Fig_Frm& form, KeyIndex key) {
    const ScriptDocument& document = form.Document;
    const Text& binding = document.KeyBinding[static_cast<std::size_t>(key)];
    if (binding.empty()) {
        return "free";
    }
    for (const SlotNumber slot : SlotNumbers()) {
        if (document.SlotCommand[slot] == binding && ShowsKey(document, slot, key)) {
            return RowCaption(form, slot);
        }
    }
    return binding;
}

}  // namespace

TextView RefusalOf(const Fig_Frm& form, SlotNumber slot) {
    if (!IsRow(slot)) {
        return "A heading takes no key.";
    }
    const Label& name = form.Document.Bound_Lbl[slot];
    const Label& keys = form.Document.Setting_Lbl[slot];
    if (!name.Visible || !name.Enabled || !keys.Visible || !keys.Enabled) {
        return "This row is not in use in this game.";
    }
    if (!TrimmedView(name.Caption).empty()) {
        return {};
    }
    return IsFreeRow(slot) ? "This row is empty. Fill it first, then bind a key to it."
                           : "This row has no function in this game.";
}

void StartCapture(Fig_Frm& form, SlotNumber slot) {
    const TextView refusal = RefusalOf(form, slot);
    if (!refusal.empty()) {
        form.Hint_Lbl.Caption = refusal;
        return;
    }
    const KeyIndex picked = form.PickedKey;
    form.PickedKey = kNoKey;
    form.CaptureRow = slot;
    if (picked != kNoKey) {
        CaptureKey(form, picked);
    }
    RestoreHint(form);
}

void CaptureKey(Fig_Frm& form, Index label) {
    const SlotNumber slot = form.CaptureRow;
    if (slot == kNoSlot) {
        return;
    }
    const KeyIndex key = KeyOfLabel(label, form.GameKind());
    if (key == kNoKey) {
        form.Hint_Lbl.Caption = Join("That key can't be bound. ", UsualHint(form));
        return;
    }
    GiveUpCapture(form);
    BindKey(form.Document, form, key, slot);
}

void GiveUpCapture(Fig_Frm& form) {
    form.CaptureRow = kNoSlot;
    form.PickedKey = kNoKey;
    RestoreHint(form);
}

void PickUpKey(Fig_Frm& form, Index label) {
    const KeyIndex key = KeyOfLabel(label, form.GameKind());
    if (key == kNoKey) {
        form.Hint_Lbl.Caption = Join(SpokenName(label), " can't be bound.");
        return;
    }
    const bool again = form.PickedKey == key;
    GiveUpCapture(form);
    form.PickedKey = again ? kNoKey : key;
    RestoreHint(form);
}

void ClearRow(Fig_Frm& form, SlotNumber slot) {
    const TextView refusal = RefusalOf(form, slot);
    if (refusal.empty()) {
        Setting_Lbl_DblClick(form, slot);
    } else {
        form.Hint_Lbl.Caption = refusal;
    }
}

Text UsualHint(const Fig_Frm& form) {
    if (form.CaptureRow != kNoSlot) {
        return Join("Press a key for ", RowCaption(form, form.CaptureRow));
    }
    if (form.PickedKey != kNoKey) {
        return Join(SpokenName(form.PickedKey),
                    " is picked up. Press Enter on the row that it is to do, Escape lays it down.");
    }
    switch (static_cast<EditorPage>(form.Main_Tab.Tab)) {
        case EditorPage::Bindings:
        case EditorPage::Aliases:
            return "Drag a key onto a function, or press Enter on a function and then the key.";
        case EditorPage::SaveAndExit:
            return "Save writes the script anew; what this editor does not know stays among the free form additions.";
        case EditorPage::FreeForm:
            return "These lines are written as they stand, behind all others.";
        default:
            return "What you leave empty is not written. The game reads the script when it is ticked at the launch.";
    }
}

void RestoreHint(Fig_Frm& form) {
    form.Hint_Lbl.Caption = UsualHint(form);
}

Text SpokenKey(const Fig_Frm& form, Index label) {
    const KeyIndex key = KeyOfLabel(label, form.GameKind());
    return Join(SpokenName(label), ", ", key == kNoKey ? "can't be bound" : FunctionOfKey(form, key));
}

Text SpokenRow(const Fig_Frm& form, SlotNumber slot) {
    const Text name = RowCaption(form, slot);
    Text keys;
    ForEachKeyOf(form.Document, slot, [&](const Text& caption) {
        const KeyIndex key = KeyIndexOfCaption(form.Document.KeyCaption, caption);
        keys += Join(keys.empty() ? "" : " : ", key == kNoKey ? caption : SpokenName(key));
    });
    return Join(name.empty() ? "Empty row" : name, ": ", keys.empty() ? "no key" : keys);
}

}  // namespace lv
