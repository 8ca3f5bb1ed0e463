// transfer/carried_values.h
//
// Which of the stored values go with the user to another machine, and which are of this one: a row a rule.

#pragma once

#include <optional>
#include <span>
#include <vector>

#include "foundation/text.h"
#include "platform/settings_backing.h"

namespace lv {

/// Where paths stand in a value.
enum class PathsIn {
    kNowhere,
    kWhole,   // the value is a path
    kFields,  // each field of its ";"-list may be one
    kKeyToo,  // the value is a path, and so is the key
    kSetup,   // a setup's own fields
};

enum class Carried {
    kNo,
    kYes,
    kIfThere,  // taken only where the path leads to something on this machine
};

struct CarriedRule {
    TextView Section;  // "": of a video profile
    TextView Key;      // "*": any that no rule above names
    Carried Goes = Carried::kNo;
    PathsIn Paths = PathsIn::kNowhere;
    /// What stands for the value where it was never stored. Nothing: its absence alone does.
    std::optional<TextView> Missing = std::nullopt;
};

/// In the order in which they are asked; the first one that fits says it.
std::span<const CarriedRule> CarriedRules();

/// The names of the video profiles that these values list, in lower case and sorted. Names of the program's own
/// sections and windows are left out: no profile goes by them.
std::vector<Text> ProfileNames(const std::vector<StoredValue>& values);

/// The rule of a value; null if there is none, and it stays where it is. `profiles` as ProfileNames gives them.
const CarriedRule* RuleOf(const std::vector<Text>& profiles, TextView section, TextView key);

/// Those of the values that go, by section and key in lower case, each name once. What no settings text can hold is
/// left out and, if the caller wants to know, named there as "section\key".
std::vector<StoredValue> CarriedOf(const std::vector<StoredValue>& values, std::vector<Text>* leftOut = nullptr);

/// The value of that name in any letter case; null without one.
const StoredValue* FindValue(const std::vector<StoredValue>& values, TextView section, TextView key);

}  // namespace lv
