#include "foundry/editor/alias_boxes.h"

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundry/document/bindings.h"
#include "foundry/document/slot_captions.h"

namespace lv {

namespace {

SlotNumber FreeBox(const ScriptDocument& document) {
    for (SlotNumber box = kBoundAliases.First; box <= kBoundAliases.Last; ++box) {
        if (TrimmedView(document.Bound_Lbl[box].Caption).empty()) {
            return box;
        }
    }
    return kNoSlot;
}

void TellLimit(Fig_Frm& form, TextView name) {
    const int boxes = kBoundAliases.Last - kBoundAliases.First + 1;
    AskUser(form.run, "Limitation Reached",
            Join("Unable to place alias in a bindable box; the limitation of ", std::to_string(boxes),
                 " bindable aliases would have to be exceeded.", NewLine, NewLine, "Your Options:", NewLine,
                 "1) Bind this alias manually in the 'Free Form Additions' section as follows:", NewLine, "bind b \"",
                 name, "\" // this binds the alias to the b key"));
}

}  // namespace

SlotNumber BoxOfAlias(const ScriptDocument& document, TextView name) {
    const TextView wanted = TrimmedView(name);
    for (SlotNumber box = kBoundAliases.First; box <= kBoundAliases.Last; ++box) {
        const Text& command = document.SlotCommand[box];
        if (!command.empty() && SameText(command, wanted)) {
            return box;
        }
    }
    return kNoSlot;
}

bool PutIntoBox(Fig_Frm& form, TextView name) {
    const SlotNumber box = FreeBox(form.Document);
    if (box == kNoSlot) {
        TellLimit(form, name);
        return false;
    }
    RenameBox(form, box, name);
    return true;
}

void RenameBox(Fig_Frm& form, SlotNumber box, TextView name) {
    CaptionSlot(form.Document, form, box, name);
    RenameSlotCommand(form.Document, form, box, TrimmedView(name));
}

void EmptyBox(Fig_Frm& form, SlotNumber box) {
    ScriptDocument& document = form.Document;
    ClearSlotKeys(document, form, box);
    document.Setting_Lbl[box].Caption.clear();
    document.Bound_Lbl[box].Caption.clear();
    document.Bound_Lbl[box].ToolTip.clear();
    document.SlotCommand[box].clear();
    form.SlotChanged(box);
    Edited(form);
}

bool TakeOutOfBox(Fig_Frm& form, SlotNumber box) {
    const bool hasKeys = !TrimmedView(form.Document.Setting_Lbl[box].Caption).empty();
    if (hasKeys && AskUser(form.run, "Alias is Bound",
                           "This alias is currently bound. Do you want to remove the binding?", "&Yes,&No") != 0) {
        return false;
    }
    EmptyBox(form, box);
    return true;
}

}  // namespace lv
