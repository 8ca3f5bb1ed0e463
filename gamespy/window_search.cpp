#include "gamespy/window_search.h"

#include <algorithm>

namespace lv {

namespace {

constexpr TextView kTitles[] = {"GameSpy 3D", "[UNREGISTERED] GameSpy 3D"};
constexpr TextView kClasses[] = {"Afx:", "QW Class"};

template <std::size_t Count>
bool BeginsWithOneOf(TextView text, const TextView (&beginnings)[Count]) {
    return std::ranges::any_of(beginnings, [text](TextView beginning) { return text.starts_with(beginning); });
}

}  // namespace

bool IsGameSpyWindow(const TopWindow& window) {
    return BeginsWithOneOf(window.Title, kTitles) && (!window.ClassKnown || BeginsWithOneOf(window.Class, kClasses));
}

WindowHandle FindGameSpyWindow(Desktop* desktop) {
    if (desktop == nullptr) {
        return 0;
    }
    const std::vector<TopWindow> windows = desktop->EnumWindows();
    const auto found = std::ranges::find_if(windows, IsGameSpyWindow);
    return found == windows.end() ? 0 : found->Handle;
}

}  // namespace lv
