// foundry/forms/scrolled_page.h
//
// A page that scrolls where the window leaves it less room than its controls need.

#pragma once

#include <wx/panel.h>

namespace lv {

/// A page for what is filled in later.
wxPanel* MakeScrolledPage(wxWindow* parent);

/// Lays a page out anew, whether it scrolls or not: what it holds has changed.
void LayOutPage(wxWindow* page);

}  // namespace lv
