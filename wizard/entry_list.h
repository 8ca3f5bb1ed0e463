// wizard/entry_list.h
//
// The ";"-list of titles and paths that the setup adds its entries to.

#pragma once

#include <vector>

#include "foundation/run.h"

namespace lv {

/// Whether the program, a path in lower case, is there and can be added. One whose path the list holds anywhere is not
/// new; a path that cannot stand in the list would take all entries behind it with it.
bool IsNewProgram(Run& run, TextView list, TextView program);

/// Whether an entry of the list has this path, in lower case.
bool IsListed(TextView list, TextView path);

/// The title itself, if the ";"-list of entries has no other of it; otherwise with as much of the tree's path behind it
/// as none of the `others`, the other trees of the game, ends in: "QuakeSpasm (rerelease)". Fit for a list, as far as
/// `title` is.
Text TitleOfEntry(TextView list, TextView title, TextView tree, const std::vector<Text>& others);

}  // namespace lv
