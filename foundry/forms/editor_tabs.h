// foundry/forms/editor_tabs.h
//
// The tabs of the editor, and which page is whose.

#pragma once

#include <wx/notebook.h>

#include "foundry/forms/fig_parts.h"
#include "foundry/forms/late_pages.h"

namespace lv {

constexpr int kEditorWidth = 1000;  // at 100 %: what a screen of 1024 by 768 has room for
constexpr int kEditorHeight = 686;
constexpr int kPageRows = 17;  // of labels, that a page has room for

/// Main_Tab with the tabs of the player and of the bindings inside.
wxNotebook* MakeEditorTabs(wxWindow* parent, FigParts& parts, LatePages& late);

/// Of the tabs that show so many rows, in pixels: with the tabs of two notebooks above the rows.
int EditorTabsHeight(const wxWindow* tabs, FigParts& parts, int rows);

}  // namespace lv
