// foundation/forms/search_keys.h
//
// A list with more rows than one sees at once is searched by typing any part of a name while it has the keyboard.

#pragma once

#include <wx/window.h>

#include <functional>

#include "foundation/text.h"

namespace lv {

constexpr const char* kSearchBubbleName = "Search_Bubble";

/// What a search needs of its list.
struct SearchedRows {
    std::function<std::size_t()> Count;
    std::function<Text(std::size_t row)> Name;
    std::function<int()> Selected;
    std::function<void(int row)> Pick;  // as its user would
};

/// From now on, as long as the list lives. What is typed, and which of how many rows it is, stands in a bubble beside
/// the list and in the name that assistive tools read. Backspace takes a letter back, Up and Down go to the next hit,
/// Escape ends the search and does nothing else. A drop-down list that is open closes with the first letter, where the
/// system would keep the letters to itself.
void SearchByTyping(wxWindow* list, SearchedRows rows);

}  // namespace lv
