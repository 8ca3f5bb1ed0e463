// catalogs/editors/add_server.h
//
// The dialog that adds, edits or copies a server, and the one that asks for the game of several.

#pragma once

#include <array>

#include "catalogs/editors/entry_window.h"
#include "catalogs/servers.h"

namespace lv {

struct AddServer_Frm : EntryWindow {
    /// With `fromRow` the fields hold the selected row, else the type is the current game's.
    AddServer_Frm(Run& owner, CatalogLists& lists, EntryMode mode, bool fromRow);

    CatalogLists& Lists;
    Label ServerTitle_Lbl;
    Label ServerPath_Lbl;
    Label Port_Lbl;
    Label Password_Lbl;
    TextBox ServerTitle_Txt;
    TextBox ServerPath_Txt;
    TextBox Port_Txt;
    TextBox Password_Txt;
    Panel Server_Fra;
    std::array<Text, kServerTypes> Server_Opt;  // the captions of the radio buttons
    Index ServerType = 0;                       // the one that is on
};

void AddServer_Server_Opt_Click(AddServer_Frm& form, Index type);

/// An entry of another game goes to that game's hidden records.
void AddServer_OK_Cmd_Click(AddServer_Frm& form);

struct SelectServerType_Frm : EntryWindow {
    SelectServerType_Frm(Run& owner, TextView message);

    Label Message_Lbl;
    std::array<Text, kServerTypes> Server_Opt;
    Index ServerType = 0;
    Text LastEntry;  // the type's number
};

void SelectServerType_Server_Opt_Click(SelectServerType_Frm& form, Index type);
void SelectServerType_OK_Cmd_Click(SelectServerType_Frm& form);

}  // namespace lv
