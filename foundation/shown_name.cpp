#include "foundation/shown_name.h"

#include <algorithm>

namespace lv {

namespace {

constexpr std::size_t kLongestShown = 200;

}  // namespace

Text Shown(TextView name) {
    Text shown(name.substr(0, kLongestShown));
    std::ranges::replace_if(
        shown, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
    return name.size() > kLongestShown ? Join(shown, "...") : shown;
}

}  // namespace lv
