#include "catalogs/typed_search.h"

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr double kLongestPause = 1;  // seconds

bool IsOneLetterAgain(TextView typed) {
    return typed.size() > 1 && typed.find_first_not_of(typed[0]) == TextView::npos;
}

// The first that begins so from `from` on, around the end.
int FindFrom(const std::vector<Text>& names, std::size_t from, TextView start) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::size_t at = (from + i) % names.size();
        if (SameText(TextView(names[at]).substr(0, start.size()), start)) {
            return static_cast<int>(at);
        }
    }
    return -1;
}

}  // namespace

int FindTyped(TypedSearch& search, const std::vector<Text>& names, int row, char letter, double seconds) {
    if (seconds - search.Seconds > kLongestPause) {
        search.Typed.clear();
    }
    search.Seconds = seconds;
    search.Typed += LowerCase(letter);
    const std::size_t here = row < 0 ? 0 : static_cast<std::size_t>(row);
    const std::size_t next = row < 0 ? 0 : here + 1;
    const int found = FindFrom(names, search.Typed.size() == 1 ? next : here, search.Typed);
    if (found >= 0 || !IsOneLetterAgain(search.Typed)) {
        return found;
    }
    return FindFrom(names, next, search.Typed.substr(0, 1));
}

}  // namespace lv
