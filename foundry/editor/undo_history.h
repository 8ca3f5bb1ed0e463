// foundry/editor/undo_history.h
//
// Every edit of the editor's document, to be taken back and repeated. What an edit is, is seen by looking: after each
// event the document is compared with what it was.

#pragma once

#include <cstdint>
#include <set>
#include <vector>

#include "foundation/text.h"

namespace lv {

struct Fig_Frm;

/// One cell's change: `Removed` stood at `At` of the cell's text, and `Inserted` took its place.
struct CellChange {
    std::uint32_t Cell = 0;
    std::size_t At = 0;
    Text Removed;
    Text Inserted;
};

constexpr std::size_t kNoPosition = static_cast<std::size_t>(-1);

struct UndoHistory {
    std::vector<Text> State;                     // the document's cells as they were last seen
    std::vector<std::vector<CellChange>> Edits;  // the oldest first
    std::size_t Position = 0;                    // how many of them are in force
    std::size_t CleanPosition = 0;               // where the document equals its file, or kNoPosition
    std::size_t SealedPosition = kNoPosition;    // letters typed there are an edit of their own
    std::vector<bool> Clean;                     // ScriptClean at each position, 0 included
    std::vector<Text> FileState;                 // the cells as the file has them; empty while nobody knows
    std::set<std::uint32_t> Different;           // the cells that are not as the file has them
};

/// The document was read and laid out: nothing to take back.
void StartHistory(Fig_Frm& form);

/// Looks for what the event that is over has changed; an edit, if it has. Edits that were taken back before are gone
/// then. Letters typed one after the other into one text are one edit, up to a blank or the line's end. ScriptClean is
/// set where the document equals its file again, by whatever way. Nothing happens before StartHistory, nor while the
/// reader runs.
void NoteEdit(Fig_Frm& form);

/// The same, for an edit that no letters typed behind it belong to.
void NoteWholeEdit(Fig_Frm& form);

/// The document equals its file now.
void NoteSaved(Fig_Frm& form);

/// Takes the last edit back, or repeats the one that was taken back last; nothing happens without one. The pages show
/// the document as it is then, keys in their colours, and ScriptClean is set where the document equals its file, and
/// where it was set then: a key that was cleared alone does not ask to save.
void Undo_Cmd_Click(Fig_Frm& form);
void Redo_Cmd_Click(Fig_Frm& form);

}  // namespace lv
