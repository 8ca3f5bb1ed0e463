// console/console_script.h
//
// A console's script, run.

#pragma once

#include "console/script_effects.h"

namespace lv {

/// Of the commands that aliases run no more than these bytes count: one that calls itself ends too.
constexpr std::size_t kMostAliasBytes = 1U << 20U;
constexpr int kDeepestAlias = 16;

ScriptEffects ConsoleEffects(TextView script, Console console);

}  // namespace lv
