#include "console/alias_spellings.h"

#include <algorithm>

namespace lv {

namespace {

constexpr std::size_t kMostSpellings = 64;  // of one alias; more than any player's

}  // namespace

Effect AliasSpellings::Put(Effect effect) {
    std::vector<Effect>& spellings = spellings_[LowerCase(effect.Name)];
    const bool areOne = cases_ == AliasCases::AreOne;
    const auto known =
        std::ranges::find_if(spellings, [&](const Effect& each) { return areOne || each.Name == effect.Name; });
    const bool isGone = !effect.IsSet;
    if (known != spellings.end()) {
        *known = std::move(effect);
    } else if (spellings.size() < kMostSpellings) {
        spellings.push_back(std::move(effect));
    } else {
        spellings.back() = std::move(effect);
    }
    const Effect* runs = nullptr;
    for (const Effect& each : spellings) {
        const bool isAhead = runs == nullptr || cases_ != AliasCases::FirstRuns || each.Name < runs->Name;
        runs = each.IsSet && isAhead ? &each : runs;
    }
    Effect found = runs != nullptr ? *runs : spellings.back();
    if (isGone) {
        std::erase_if(spellings, [](const Effect& each) { return !each.IsSet; });
    }
    return found;
}

}  // namespace lv
