// commands/named_rows.h
//
// Rows of a list by the names that a user may type for them.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/error.h"

namespace lv {

/// A row of a list.
struct NamedRow {
    Text Title;
    Text Value;        // what picks it
    Text OtherName{};  // another name that means it; empty: none
};

/// The value of the row that is called so, in any letter case: by its title, else by its other name, else by its value.
/// `what` is what the rows are, "modification". The error says that there is none, with what may have been meant, or
/// that several are called so.
Result<Text> RowCalled(const std::vector<NamedRow>& rows, TextView name, TextView what);

}  // namespace lv
