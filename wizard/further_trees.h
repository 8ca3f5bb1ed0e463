// wizard/further_trees.h
//
// A game that lies in several places: the setup's window has one row for it, and the others are offered beside it.

#pragma once

#include "wizard/install_frm.h"

namespace lv {

struct FurtherTree {
    std::size_t Row = 0;
    Text Path;  // where its programs lie, as the look around has found it
};

/// The found trees of the ticked rows' games that no row names and that are lacking an entry in the ";"-list.
std::vector<FurtherTree> FurtherTrees(Install_Frm& form, TextView list);

/// Whether the user wants entries of these too. Asks nothing where there are none.
bool WantsFurtherTrees(Run& run, const std::vector<FurtherTree>& trees);

/// The directories of the games that are found or named in the window, but for this one.
std::vector<Text> TreesBeside(Install_Frm& form, TextView path);

}  // namespace lv
