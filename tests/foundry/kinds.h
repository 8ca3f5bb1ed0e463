// tests/foundry/kinds.h
//
// Kinds of games as the tests go through them.

#pragma once

#include <initializer_list>

#include "foundation/text.h"

namespace lv {

using Kinds = std::initializer_list<Index>;
using Slots = std::initializer_list<Index>;

constexpr Index kKinds[] = {1, 2, 3, 4, 5, 6, 9};

}  // namespace lv
