#include "foundry/editor/free_rows.h"

#include <algorithm>

#include "catalogs/editors/choose_script.h"
#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundry/document/bindings.h"
#include "foundry/document/slot_captions.h"
#include "foundry/editor/line_dialogs.h"

namespace lv {

namespace {

constexpr TextView kNotepad = "notepad.exe";

struct HowTo {
    const char* Title;
    TextView Text;
};

constexpr HowTo kEditMessage = {"Message Editing", "To edit a message, click it."};
constexpr HowTo kDeleteMessage = {"Message Editing", "To delete a message, right-click it."};
constexpr HowTo kEditExtraBinding = {"Extra Binding Editing", "To edit an extended binding, click it."};
constexpr HowTo kDeleteExtraBinding = {"Extra Binding Editing", "To delete an extra binding, right-click it."};
constexpr HowTo kEditBoundScript = {"Bound Script Editing", "To edit an bound script, click it."};
constexpr HowTo kDeleteBoundScript = {"Bound Script Editing", "To delete a bound script, right-click it."};

struct Deletion {
    SlotBlock Rows;
    TextView Question;
};

constexpr Deletion kDeletions[] = {
    {{kMessages.First, kMessages.Last - 1}, "Delete this message?"},  // the last row keeps its message, on purpose
    {kExtras, "Delete this extra binding?"},
    {kBoundScripts, "Delete this script binding?"},
};

void Tell(Fig_Frm& form, const HowTo& how) {
    AskUser(form.run, how.Title, how.Text);
}

TextView ShownText(const Fig_Frm& form, SlotNumber slot) {
    return TrimmedView(form.Document.Bound_Lbl[slot].Caption);
}

bool IsFree(const Fig_Frm& form, SlotNumber slot) {
    return ShownText(form, slot).empty();
}

/// What the row stands for as its labels tell it: the tool tip of a shortened one.
Text RowText(const Fig_Frm& form, SlotNumber slot) {
    const TextView whole = TrimmedView(form.Document.Bound_Lbl[slot].ToolTip);
    return Text(whole.empty() ? ShownText(form, slot) : whole);
}

/// Captions the first free row with the text. kNoSlot if a row has it already, which a blank text is taken for too, or
/// if no row is free.
SlotNumber TakeRow(Fig_Frm& form, SlotBlock rows, TextView text) {
    const TextView wanted = TrimmedView(text);
    SlotNumber taken = kNoSlot;
    for (SlotNumber slot = rows.First; slot <= rows.Last; ++slot) {
        if (ShownText(form, slot) == wanted) {
            return kNoSlot;
        }
        if (taken == kNoSlot && IsFree(form, slot)) {
            taken = slot;
        }
    }
    if (taken != kNoSlot) {
        CaptionSlot(form.Document, form, taken, wanted);
    }
    return taken;
}

/// Shows the dialog with this text in it. The result, empty after Cancel, is kept in `last` too.
template <class Dialog>
Text AskForLine(Fig_Frm& form, TextView offered, Text& last) {
    Dialog dialog(form.run);
    dialog.Message_Txt.Text = offered;
    ShowModal(dialog);
    last = dialog.Taken ? dialog.Result : Text();
    if (dialog.Taken) {
        Edited(form);
    }
    return last;
}

Text AskForMessage(Fig_Frm& form, TextView offered) {
    return AskForLine<SayStuff_Frm>(form, offered, form.MessageResult);
}

Text AskForCommands(Fig_Frm& form, TextView offered) {
    return AskForLine<ExtraBinding_Frm>(form, offered, form.ExtraBindingResult);
}

Text MessageCommand(const Fig_Frm& form, SlotNumber slot, TextView message) {
    return SayCommand(TrimmedView(message), form.Document.Say_Team_Chk[slot].Value != 0);
}

/// The new text is not shortened and the tool tip stays as it was, on purpose.
void ReplaceRow(Fig_Frm& form, SlotNumber slot, TextView text, TextView command) {
    form.Document.Bound_Lbl[slot].Caption = Join(Blank, TrimmedView(text));
    RenameSlotCommand(form.Document, form, slot, command);
}

void EditMessage(Fig_Frm& form, SlotNumber slot) {
    const Text message = AskForMessage(form, RowText(form, slot));
    if (!TrimmedView(message).empty()) {
        ReplaceRow(form, slot, message, MessageCommand(form, slot, message));
    }
}

void EditExtra(Fig_Frm& form, SlotNumber slot) {
    const Text commands = AskForCommands(form, RowText(form, slot));
    if (!TrimmedView(commands).empty()) {
        ReplaceRow(form, slot, commands, commands);
    }
}

/// The name comes out of a script, and so from a stranger.
bool IsFileName(TextView name) {
    return std::ranges::none_of(name, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
}

void OpenInEditor(Fig_Frm& form, SlotNumber slot) {
    Run& run = form.run;
    const Text name = RowText(form, slot);
    if (!IsFileName(name)) {
        AskUser(run, "Setup Foundry", "The script can't be opened: its name holds characters that no file name has.");
        return;
    }
    const std::vector<Text> arguments = {Join(form.Document.CurrentScriptDirectory, name)};
    const Text editor = GetSetting(run, run.AppName, kOptions, "ScriptEditor", kNotepad);
    if (const Error failed = run.System.Programs.StartProgram(editor, arguments)) {
        AskUser(run, Join("Error Opening Default Editor [", editor, "]").c_str(), ErrorLines(failed));
        if (const Error again = run.System.Programs.StartProgram(kNotepad, arguments)) {
            AskUser(run, "Error Opening Notepad", ErrorLines(again));
        }
    }
}

void EmptyRow(Fig_Frm& form, SlotNumber slot) {
    ScriptDocument& document = form.Document;
    document.Bound_Lbl[slot].Caption.clear();
    document.Bound_Lbl[slot].ToolTip.clear();
    ClearSlotKeys(document, form, slot);
    document.Setting_Lbl[slot].Caption.clear();
    document.SlotCommand[slot].clear();
    form.SlotChanged(slot);
}

}  // namespace

void AddMessage_Cmd_Click(Fig_Frm& form) {
    const Text message = AskForMessage(form, "");
    const SlotNumber slot = TakeRow(form, kMessages, message);
    if (slot != kNoSlot) {
        RenameSlotCommand(form.Document, form, slot, MessageCommand(form, slot, message));
    }
}

void AddExtraBinding_Cmd_Click(Fig_Frm& form) {
    const Text commands = AskForCommands(form, "");
    const SlotNumber slot = TakeRow(form, kExtras, commands);
    if (slot != kNoSlot) {
        RenameSlotCommand(form.Document, form, slot, commands);
    }
}

void AddBoundScript_Cmd_Click(Fig_Frm& form) {
    ChooseScript_Frm dialog(form.run, form.Document.CurrentScriptDirectory);
    ShowModal(dialog);
    if (!dialog.DialogResult) {
        return;
    }
    Edited(form);
    const SlotNumber slot = TakeRow(form, kBoundScripts, dialog.LastEntry);
    if (slot == kNoSlot) {
        return;
    }
    Label& label = form.Document.Bound_Lbl[slot];
    if (!label.ToolTip.empty()) {
        // A shortened name gets the last extra binding as its tool tip: kept on purpose.
        label.ToolTip = form.ExtraBindingResult;
    }
    RenameSlotCommand(form.Document, form, slot, Join("exec ", dialog.LastEntry));
}

void EditMessage_Cmd_Click(Fig_Frm& form) {
    Tell(form, kEditMessage);
}

void DeleteMessage_Cmd_Click(Fig_Frm& form) {
    Tell(form, kDeleteMessage);
}

void EditExtraBinding_Cmd_Click(Fig_Frm& form) {
    Tell(form, kEditExtraBinding);
}

void DeleteExtraBinding_Cmd_Click(Fig_Frm& form) {
    Tell(form, kDeleteExtraBinding);
}

void EditoundScript_Cmd_Click(Fig_Frm& form) {
    Tell(form, kEditBoundScript);
}

void DeleteBoundScript_Cmd_Click(Fig_Frm& form) {
    Tell(form, kDeleteBoundScript);
}

void Say_Team_Chk_Click(Fig_Frm& form, SlotNumber slot) {
    ScriptDocument& document = form.Document;
    if (document.ScriptLoading || TrimmedView(document.Setting_Lbl[slot].Caption).empty()) {
        return;
    }
    // From the caption, so a shortened message loses its end: kept on purpose.
    RenameSlotCommand(document, form, slot, MessageCommand(form, slot, ShownText(form, slot)));
}

void FreeRow_LeftClick(Fig_Frm& form, SlotNumber slot) {
    if (kMessages.Holds(slot)) {
        IsFree(form, slot) ? AddMessage_Cmd_Click(form) : EditMessage(form, slot);
    } else if (kExtras.Holds(slot)) {
        IsFree(form, slot) ? AddExtraBinding_Cmd_Click(form) : EditExtra(form, slot);
    } else if (kBoundScripts.Holds(slot)) {
        IsFree(form, slot) ? AddBoundScript_Cmd_Click(form) : OpenInEditor(form, slot);
    }
}

void FreeRow_RightClick(Fig_Frm& form, SlotNumber slot) {
    for (const Deletion& deletion : kDeletions) {
        if (!deletion.Rows.Holds(slot) || IsFree(form, slot)) {
            continue;
        }
        const Text question = Join(ShownText(form, slot), NewLine, NewLine, deletion.Question);
        if (AskUser(form.run, "Confirm Deletion", question, "&Yes,&No") == 0) {
            EmptyRow(form, slot);
        }
    }
}

}  // namespace lv
