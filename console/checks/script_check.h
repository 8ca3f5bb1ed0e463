// console/checks/script_check.h
//
// A script looked through for what its game would take otherwise than it was meant.

#pragma once

#include <functional>
#include <unordered_set>

#include "console/checks/finding.h"
#include "console/console_rules.h"

namespace lv {

constexpr std::size_t kMostFindings = 1000;

struct CheckedScript {
    TextView File;  // as findings name it
    TextView Content;
    Console Of = Console::Quake;
    /// Names in lower case that other scripts have defined or set.
    const std::unordered_set<Text>* KnownNames = nullptr;
    /// Whether "exec" finds a script; none: nobody knows.
    std::function<bool(TextView)> IsThere{};
};

/// In the order of the lines. Nothing for Unreal's ini, which is no script.
std::vector<Finding> CheckScript(const CheckedScript& script);

}  // namespace lv
