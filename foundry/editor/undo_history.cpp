#include "foundry/editor/undo_history.h"

#include <algorithm>
#include <map>
#include <utility>

#include "foundry/editor/aliases_page.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/document_cells.h"
#include "foundry/editor/fig_frm.h"

namespace lv {

namespace {

/// What an event has changed.
struct Changes {
    std::vector<CellChange> Cells;
    bool Typed = false;  // the last of them
};

/// Less what both texts begin and end with.
CellChange Difference(std::uint32_t cell, TextView before, TextView after) {
    const auto start = std::ranges::mismatch(before, after);
    const auto at = static_cast<std::size_t>(start.in1 - before.begin());
    before.remove_prefix(at);
    after.remove_prefix(at);
    const auto end = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend());
    const auto alike = static_cast<std::size_t>(end.first - before.rbegin());
    before.remove_suffix(alike);
    after.remove_suffix(alike);
    return {.Cell = cell, .At = at, .Removed = Text(before), .Inserted = Text(after)};
}

Changes FindChanges(const Fig_Frm& form) {
    const std::vector<Text>& state = form.History.State;
    Changes changes;
    std::uint32_t count = 0;
    ReadCells(form, [&](std::uint32_t cell, TextView text, CellUse use) {
        count = cell + 1;
        const TextView before = cell < state.size() ? TextView(state[cell]) : TextView();
        if (text != before) {
            changes.Cells.push_back(Difference(cell, before, text));
            changes.Typed = use == CellUse::Typed;
        }
    });
    for (; count < state.size(); ++count) {  // sections that are gone
        if (!state[count].empty()) {
            changes.Cells.push_back(Difference(count, state[count], {}));
        }
    }
    return changes;
}

/// Whether the letter stands directly behind what the edit has inserted into `text`. Beside its like, an insertion
/// could be any of several stretches and is seen as the last of them: of those the one that fits is taken.
bool Follows(CellChange& edit, const CellChange& letter, TextView text) {
    const std::size_t length = edit.Inserted.size();
    const std::size_t end = edit.At + length;
    if (letter.At >= end) {
        const TextView between = text.substr(end, letter.At - end);
        return between.find_first_not_of(letter.Inserted.front()) == TextView::npos;
    }
    const std::size_t back = end - letter.At;
    if (back > edit.At || !edit.Removed.empty() || text.substr(edit.At - back, back) != text.substr(letter.At, back)) {
        return false;
    }
    edit.At -= back;
    edit.Inserted = text.substr(edit.At, length);
    return true;
}

bool IsLetter(const CellChange& change) {
    return change.Removed.empty() && change.Inserted.size() == 1 &&
           change.Inserted.find_first_of(" \r\n") == Text::npos;
}

/// Makes what was typed a part of the edit before; false if it is an edit of its own.
bool JoinTyping(UndoHistory& history, const Changes& changes) {
    const bool behindLast = history.Position > 0 && history.Position == history.Edits.size() &&
                            history.Position != history.CleanPosition && history.Position != history.SealedPosition;
    if (!behindLast || !changes.Typed || changes.Cells.size() != 1 || !IsLetter(changes.Cells.front())) {
        return false;
    }
    const CellChange& letter = changes.Cells.front();
    std::vector<CellChange>& last = history.Edits.back();
    CellChange& edit = last.front();
    if (last.size() != 1 || edit.Cell != letter.Cell || edit.Inserted.empty() ||
        !Follows(edit, letter, history.State[letter.Cell])) {
        return false;
    }
    edit.Inserted += letter.Inserted;
    return true;
}

void AddEdit(UndoHistory& history, std::vector<CellChange> changes) {
    history.Edits.erase(history.Edits.begin() + static_cast<std::ptrdiff_t>(history.Position), history.Edits.end());
    if (history.CleanPosition > history.Position) {
        history.CleanPosition = kNoPosition;
    }
    if (history.SealedPosition > history.Position) {
        history.SealedPosition = kNoPosition;
    }
    history.Edits.push_back(std::move(changes));
    ++history.Position;
    history.Clean.resize(history.Position + 1);
}

bool EqualsFile(const UndoHistory& history) {
    return !history.FileState.empty() && history.Different.empty();
}

/// The cells have changed in State.
void CompareWithFile(UndoHistory& history, const std::vector<CellChange>& changes) {
    if (history.FileState.empty()) {
        return;
    }
    for (const CellChange& change : changes) {
        const TextView inFile =
            change.Cell < history.FileState.size() ? TextView(history.FileState[change.Cell]) : TextView();
        if (history.State[change.Cell] == inFile) {
            history.Different.erase(change.Cell);
        } else {
            history.Different.insert(change.Cell);
        }
    }
}

/// The document equals its file, and at no other position.
void KeepFileState(UndoHistory& history) {
    history.CleanPosition = history.Position;
    history.FileState = history.State;
    history.Different.clear();
    history.Clean.assign(history.Edits.size() + 1, false);
    history.Clean[history.Position] = true;
}

void EnableButtons(Fig_Frm& form) {
    form.Undo_Cmd.Enabled = form.History.Position > 0;
    form.Redo_Cmd.Enabled = form.History.Position < form.History.Edits.size();
}

/// No key is on its way to a row that may be gone.
void LayKeysDown(Fig_Frm& form) {
    if (form.CaptureRow != kNoSlot) {
        GiveUpCapture(form);
    }
    if (form.Drag.Icon != DragIcon::None) {
        GiveUpDrag(form);
    }
}

/// Brings the edit's cells to what they were before it, or behind it.
void Apply(Fig_Frm& form, const std::vector<CellChange>& edit, bool back) {
    std::map<std::uint32_t, TextView> changed;
    for (const CellChange& change : edit) {
        Text& text = form.History.State[change.Cell];
        const Text& old = back ? change.Inserted : change.Removed;
        text.replace(change.At, old.size(), back ? change.Removed : change.Inserted);
        changed[change.Cell] = text;
    }
    LayKeysDown(form);
    if (WriteCells(form, changed)) {
        FillAliasList(form);
    }
    for (KeyLabel& label : form.Key_Lbl) {
        label.ToolTip.clear();
    }
    CompareWithFile(form.History, edit);
    form.Document.ScriptClean = EqualsFile(form.History) || form.History.Clean[form.History.Position];
    EnableButtons(form);
}

}  // namespace

void StartHistory(Fig_Frm& form) {
    UndoHistory& history = form.History;
    history = {};
    history.CleanPosition = kNoPosition;
    history.Clean.assign(1, false);
    ReadCells(form, [&](std::uint32_t, TextView text, CellUse) { history.State.emplace_back(text); });
    if (form.Document.ScriptClean) {
        KeepFileState(history);
    }
    EnableButtons(form);
}

void NoteEdit(Fig_Frm& form) {
    UndoHistory& history = form.History;
    if (history.State.empty() || form.Document.ScriptLoading) {
        return;
    }
    Changes changes = FindChanges(form);
    if (changes.Cells.empty()) {
        form.Document.ScriptClean = form.Document.ScriptClean || EqualsFile(history);
        return;
    }
    history.State.resize(std::max<std::size_t>(history.State.size(), changes.Cells.back().Cell + 1));
    const bool joined = JoinTyping(history, changes);
    for (const CellChange& change : changes.Cells) {
        history.State[change.Cell].replace(change.At, change.Removed.size(), change.Inserted);
    }
    CompareWithFile(history, changes.Cells);
    if (!joined) {
        AddEdit(history, std::move(changes.Cells));
    }
    form.Document.ScriptClean = form.Document.ScriptClean || EqualsFile(history);
    history.Clean[history.Position] = form.Document.ScriptClean;
    EnableButtons(form);
}

void NoteWholeEdit(Fig_Frm& form) {
    NoteEdit(form);
    form.History.SealedPosition = form.History.Position;
}

void NoteSaved(Fig_Frm& form) {
    NoteEdit(form);
    KeepFileState(form.History);
}

void Undo_Cmd_Click(Fig_Frm& form) {
    NoteEdit(form);
    UndoHistory& history = form.History;
    if (history.Position == 0) {
        return;
    }
    --history.Position;
    Apply(form, history.Edits[history.Position], true);
    form.Hint_Lbl.Caption = "Taken back.";
}

void Redo_Cmd_Click(Fig_Frm& form) {
    NoteEdit(form);
    UndoHistory& history = form.History;
    if (history.Position == history.Edits.size()) {
        return;
    }
    ++history.Position;
    Apply(form, history.Edits[history.Position - 1], false);
    form.Hint_Lbl.Caption = "Repeated.";
}

}  // namespace lv
