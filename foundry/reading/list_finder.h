// foundry/reading/list_finder.h
//
// The choice of a value in the drop-down of a setting.

#pragma once

#include <unordered_map>

#include "foundation/controls.h"

namespace lv {

/// A damaged script adds no more rows than this to a list.
constexpr int kMostAddedRows = 1000;

/// Remembers the rows of each list that it has searched, so that a long script takes no longer a line than a short
/// one. While it lives, nobody else adds or removes rows of these lists.
class ListFinder {
  public:
    /// Selects the first row that is the text, blind to letter case, or is a number of the same value, "," read as a
    /// point; a text that is no number has the value 0. Without such a row the text is added: a value that the list
    /// does not offer survives. After kMostAddedRows it takes the place of the last one.
    void Select(ListBox& list, TextView text);

    /// Adds the text unless it stands in the list, blind to letter case. False if there are too many.
    bool Add(ListBox& list, TextView text);

  private:
    struct Rows {
        std::unordered_map<Text, int> ByText;  // upper case
        std::unordered_map<double, int> ByNumber;
        int Added = 0;
    };
    Rows& RowsOf(const ListBox& list);
    static void Note(Rows& rows, const Text& item, int row);
    static void Forget(Rows& rows, const Text& item, int row);

    std::unordered_map<const ListBox*, Rows> lists_;
};

/// ListFinder::Select, for a single value.
void SelectInList(ListBox& list, TextView text);

/// The first row that is the text, blind to letter case; -1 if there is none.
int RowOf(const ListBox& list, TextView text);

}  // namespace lv
