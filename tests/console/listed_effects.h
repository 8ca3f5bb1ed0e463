// tests/console/listed_effects.h
//
// What a script sets, and what differs, as a test writes it down.

#pragma once

#include "console/script_comparison.h"

namespace lv {

/// "F1=+attack, x-": a key or a setting that is set, one that was freed.
inline Text Listed(const EffectTable& table) {
    Text all;
    for (const Effect& effect : table.All()) {
        all += Join(all.empty() ? "" : ", ", effect.Name, effect.IsSet ? "=" : "-", effect.Value);
    }
    return all;
}

inline Text Listed(const std::vector<Effect>& actions) {
    Text all;
    for (const Effect& action : actions) {
        all += Join(all.empty() ? "" : ", ", action.Value);
    }
    return all;
}

/// "lost bind x: a>b", joined by "; ".
inline Text Listed(const std::vector<ScriptDifference>& differences) {
    constexpr TextView kKinds[] = {"lost", "changed", "added", "moved"};
    constexpr TextView kWhat[] = {"bind", "alias", "setting", "action"};
    Text all;
    for (const ScriptDifference& each : differences) {
        all += Join(all.empty() ? "" : "; ", kKinds[static_cast<int>(each.Kind)], " ",
                    kWhat[static_cast<int>(each.What)], " ", each.Name, ": ", each.Before.Value, ">", each.After.Value);
    }
    return all;
}

}  // namespace lv
