// tests/foundry/editor/undo_fixture.h
//
// A user who edits a script and takes it back.

#pragma once

#include "foundry/document/bindings.h"
#include "foundry/editor/undo_history.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {

class UndoTest : public FigTest {
  protected:
    void Start(const ScriptDialect& dialect = kQuakeDialect, TextView script = "") {
        Open(dialect, script);
        StartHistory(form);
    }

    void Bind(KeyIndex key, SlotNumber slot) {
        BindKey(form.Document, form, key, slot);
        NoteEdit(form);
    }

    /// As a text box tells it: its whole text, letter by letter.
    void Enter(Text& box, TextView text) {
        box = text;
        Edited(form);
        NoteEdit(form);
    }
    void Type(Text& box, std::size_t at, TextView letters) {
        for (const char letter : letters) {
            Text typed = box;
            typed.insert(at++, 1, letter);
            Enter(box, typed);
        }
    }

    void Undo() { Undo_Cmd_Click(form); }
    void Redo() { Redo_Cmd_Click(form); }

    std::size_t EditCount() { return form.History.Edits.size(); }

    /// Bytes that an edit keeps.
    std::size_t Kept(std::size_t edit) {
        std::size_t bytes = 0;
        for (const CellChange& change : form.History.Edits[edit]) {
            bytes += change.Removed.size() + change.Inserted.size();
        }
        return bytes;
    }
};

}  // namespace lv
