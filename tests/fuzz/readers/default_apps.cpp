// The list of default applications that Linux desktops share.

#include "launcher/links/default_apps.h"

#include <algorithm>

#include "tests/fuzz/readers.h"

namespace lv {

namespace {

constexpr TextView kType = "x-scheme-handler/qw";
constexpr TextView kOther = "x-scheme-handler/quake";
constexpr TextView kOurs = "ours.desktop";

bool Names(const std::vector<Text>& entries) {
    return std::ranges::find(entries, kOurs) != entries.end();
}

}  // namespace

void FuzzDefaultApps(TextView input) {
    const std::vector<Text> before = DefaultsOf(input, kType);
    const std::vector<Text> others = DefaultsOf(input, kOther);
    const Text taken = WithDefault(input, kType, kOurs);
    const std::vector<Text> after = DefaultsOf(taken, kType);
    MustHold(!after.empty() && after.front() == kOurs, "the entry is the first");
    MustHold(std::ranges::count(after, kOurs) == 1 || taken == input, "it stands there once");
    MustHold(DefaultsOf(taken, kOther) == others, "other types keep theirs");
    MustHold(WithDefault(taken, kType, kOurs) == taken, "taking twice is taking once");
    const Text left = WithoutDefault(taken, kType, kOurs);
    MustHold(DefaultsOf(left, kOther) == others, "other types keep theirs");
    if (!before.empty() && !Names(before)) {
        MustHold(left == input, "what was named before comes back byte for byte");
    }
}

}  // namespace lv
