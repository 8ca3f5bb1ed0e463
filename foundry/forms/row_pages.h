// foundry/forms/row_pages.h
//
// The rows of functions: a name on its group's colour, and the keys that do it. Which rows stand on which page, and in
// which column.

#pragma once

#include "foundry/forms/fig_parts.h"

namespace lv {

/// One of the seven pages of Bindings_Tab, with its buttons.
void MakeBindingsPage(FigParts& parts, wxWindow* page, BindingsPage which);

/// The boxes that aliases are bound in, four columns.
wxSizer* MakeAliasRows(FigParts& parts, wxWindow* page);

}  // namespace lv
