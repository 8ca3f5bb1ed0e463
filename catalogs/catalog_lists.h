// catalogs/catalog_lists.h
//
// The main window's list controls as the catalogs see them, and the records of other games that they hold back.

#pragma once

#include "foundation/controls.h"
#include "foundation/run.h"
#include "games/engines/engine_table.h"

namespace lv {

struct CatalogLists {
    ImageCombo& Exe_Cbo;
    ListBox& Game_Cbo;
    CheckBox& Game_Chk;
    ListBox& Script_Cbo;
    CheckBox& Script_Chk;
    ListBox& Server_Cbo;
    CheckBox& Server_Chk;
    ListBox& Demo_Cbo;
    ListBox& Mem_Cbo;
    ListBox& Map_Cbo;

    // Records of games other than the current one, so that a rebuilt value loses nothing.
    Text HiddenGames;
    Text HiddenScripts;
    Text HiddenServers;

    Text MapList;  // ";"-list of the names found by the last map scan

    const EngineTable* Engines = nullptr;  // null: only the games' own programs are known

    // The directories of which the user was told last that they hold more than a list shows.
    Text ModificationsToldOf = {};
    Text MapsToldOf = {};
    Text ScriptsToldOf = {};
};

/// The selected row goes, and the first that is left is selected.
template <class List>
void TakeRowOut(List& list) {
    list.Items.erase(list.Items.begin() + list.ListIndex);
    list.ListIndex = list.Items.empty() ? -1 : 0;
}

}  // namespace lv
