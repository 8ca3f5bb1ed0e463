#include "foundry/reading/joined_line.h"

#include "platform/code_page.h"

namespace lv {

namespace {

constexpr TextView kMouseX = "mousex=";
constexpr TextView kMouseY = "mousey=";

// A command of an axis has blanks before its "=", as "Axis aMouseX Speed=2.0" and "Count bXAxis | Axis aBaseX Speed=2";
// the name of a key has none.
bool IsKeptLine(TextView text) {
    return text.starts_with("//") || text.find('=') < text.find_first_of(" \t");
}

}  // namespace

std::size_t AxesWithoutSpeed(TextView line) {
    std::size_t at = 0;
    for (;;) {
        const TextView rest = line.substr(at);
        const bool x = StartsWithText(rest, kMouseX) && StartsWithText(rest.substr(kMouseX.size()), kMouseY);
        const bool y = StartsWithText(rest, kMouseY) && IsKeptLine(rest.substr(kMouseY.size()));
        if (!x && !y) {
            return at;
        }
        at += x ? kMouseX.size() : kMouseY.size();
    }
}

}  // namespace lv
