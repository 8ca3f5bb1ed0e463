// catalogs/editors/entry_window.h
//
// What the dialogs have in common that add or edit a row of a catalog: the mode, OK and Cancel, and how a fault is
// told.

#pragma once

#include "catalogs/catalog_store.h"
#include "foundation/modal_window.h"

namespace lv {

enum class EntryMode { Add = 0, Edit = 1, New = 2 };  // New is the script dialog's: a new file

struct EntryWindow : ModalWindow {
    EntryWindow(Run& owner, TextView name, EntryMode mode);

    EntryMode Mode;
    bool DialogResult = false;  // the entry was taken
    CommandButton OK_Cmd;
    CommandButton Cancel_Cmd;
};

/// Also for the window's close box.
void Entry_Cancel_Cmd_Click(EntryWindow& form);

/// Tells the fault and puts the focus where it is.
void TellFault(EntryWindow& form, TextView focus, TextView text, const char* title = "");

/// "Player now references C:\QUAKE\ID1\PLAYER.CFG", and the window closes with its DialogResult set.
void ConfirmEntry(EntryWindow& form, TextView title, TextView value);

}  // namespace lv
