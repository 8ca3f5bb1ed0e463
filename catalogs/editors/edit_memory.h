// catalogs/editors/edit_memory.h
//
// The dialog that makes the whole list of memory sizes anew from three numbers.

#pragma once

#include <array>

#include "catalogs/editors/entry_window.h"

namespace lv {

struct EditMem_Frm : EntryWindow {
    EditMem_Frm(Run& owner, CatalogLists& lists);

    CatalogLists& Lists;
    std::array<Label, 3> Label1;     // what stands above each list
    std::array<ListBox, 3> Ram_Cbo;  // lowest, separation, highest
    std::array<Label, 3> Label2;     // "megabytes."
};

void EditMem_Ram_Cbo_Click(EditMem_Frm& form, int index);

/// A lowest above the highest gives an empty list.
void EditMem_OK_Cmd_Click(EditMem_Frm& form);

}  // namespace lv
