#include "foundry/reading/list_finder.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/numbers.h"

namespace lv {

namespace {

constexpr std::size_t kLongestNumber = 400;  // characters; more digits make no other value

double ValueOf(TextView text) {
    const double value = ToNumber(ReplaceSameLength(text.substr(0, kLongestNumber), ",", "."));
    return value == 0 ? 0 : value;  // "-0" too
}

/// "0.5", ",5" and "22050Hz" are numbers, "True" is none.
bool IsNumber(TextView text) {
    text = TrimmedView(text.substr(0, kLongestNumber));
    const std::size_t digit = std::min(text.find_first_not_of("+-.,"), text.size());
    return digit <= 2 && digit < text.size() && text[digit] >= '0' && text[digit] <= '9';
}

int LastRow(const ListBox& list) {
    return static_cast<int>(list.Items.size()) - 1;
}

}  // namespace

void ListFinder::Note(Rows& rows, const Text& item, int row) {
    rows.ByText.try_emplace(UpperCase(item), row);
    if (IsNumber(item)) {
        rows.ByNumber.try_emplace(ValueOf(item), row);
    }
}

void ListFinder::Forget(Rows& rows, const Text& item, int row) {
    if (const auto text = rows.ByText.find(UpperCase(item)); text != rows.ByText.end() && text->second == row) {
        rows.ByText.erase(text);
    }
    if (const auto number = rows.ByNumber.find(ValueOf(item)); number != rows.ByNumber.end() && number->second == row) {
        rows.ByNumber.erase(number);
    }
}

ListFinder::Rows& ListFinder::RowsOf(const ListBox& list) {
    const auto [place, isNew] = lists_.try_emplace(&list);
    for (int row = 0; isNew && row <= LastRow(list); ++row) {
        Note(place->second, list.Items[static_cast<std::size_t>(row)], row);
    }
    return place->second;
}

void ListFinder::Select(ListBox& list, TextView text) {
    Rows& rows = RowsOf(list);
    int found = -1;
    if (const auto byText = rows.ByText.find(UpperCase(text)); byText != rows.ByText.end()) {
        found = byText->second;
    }
    if (const auto byNumber = rows.ByNumber.find(ValueOf(text)); byNumber != rows.ByNumber.end()) {
        found = found < 0 ? byNumber->second : std::min(found, byNumber->second);
    }
    if (found < 0) {
        if (rows.Added < kMostAddedRows) {
            list.Items.emplace_back(text);
            ++rows.Added;
        } else {
            Forget(rows, list.Items.back(), LastRow(list));
            list.Items.back() = text;
        }
        found = LastRow(list);
        Note(rows, list.Items.back(), found);
    }
    list.ListIndex = found;
}

bool ListFinder::Add(ListBox& list, TextView text) {
    Rows& rows = RowsOf(list);
    if (rows.ByText.contains(UpperCase(text))) {
        return true;
    }
    if (rows.Added >= kMostAddedRows) {
        return false;
    }
    ++rows.Added;
    list.Items.emplace_back(text);
    Note(rows, list.Items.back(), LastRow(list));
    return true;
}

void SelectInList(ListBox& list, TextView text) {
    ListFinder().Select(list, text);
}

int RowOf(const ListBox& list, TextView text) {
    const auto found =
        std::find_if(list.Items.begin(), list.Items.end(), [text](const Text& item) { return SameText(item, text); });
    return found == list.Items.end() ? -1 : static_cast<int>(found - list.Items.begin());
}

}  // namespace lv
