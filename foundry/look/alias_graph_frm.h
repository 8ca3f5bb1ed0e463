// foundry/look/alias_graph_frm.h
//
// The window of what aliases and keys call, and who calls them: a tree as a list of rows, each behind its depth, that
// opens and closes row by row.

#pragma once

#include <vector>

#include "console/checks/alias_graph.h"
#include "foundation/modal_window.h"

namespace lv {

struct AliasGraph_Frm : ModalWindow {
    AliasGraph_Frm(Run& owner, std::span<const NamedBody> bodies, Console console);

    Label Way_Lbl;
    ListBox Way_Cbo;  // what each calls, or who calls each
    Label Tree_Lbl;
    ListBox Tree_Lst;
    CommandButton Open_Cmd;  // opens or closes the selected row
    CommandButton Close_Cmd;

    struct Row {
        std::vector<std::size_t> Path;  // nodes of the graph, from the root
        TreeRow Its;
        bool IsOpen = false;
    };
    AliasGraph Graph;
    std::vector<Row> Rows;  // of Tree_Lst
};

void AliasGraph_Way_Cbo_Click(AliasGraph_Frm& form);
void AliasGraph_Tree_Lst_Click(AliasGraph_Frm& form);
/// Opens the selected row, as the right arrow key does. Nothing for one that is open or has nothing below it.
void AliasGraph_OpenRow(AliasGraph_Frm& form);
/// Closes it, as the left arrow key does; of one that is not open the row above is selected.
void AliasGraph_CloseRow(AliasGraph_Frm& form);
void AliasGraph_Open_Cmd_Click(AliasGraph_Frm& form);
void AliasGraph_Close_Cmd_Click(AliasGraph_Frm& form);

}  // namespace lv
