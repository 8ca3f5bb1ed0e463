// console/alias_spellings.h
//
// Aliases whose names differ in letter case alone: which of them a call runs.

#pragma once

#include <unordered_map>
#include <vector>

#include "console/script_effects.h"

namespace lv {

class AliasSpellings {
  public:
    explicit AliasSpellings(AliasCases cases) : cases_(cases) {}

    /// A definition, or a removal. Gives the one that a call runs from then on, or what has removed the last one.
    Effect Put(Effect effect);
    void Clear() { spellings_.clear(); }

  private:
    AliasCases cases_;
    std::unordered_map<Text, std::vector<Effect>> spellings_;  // of each alias, in the order in which they were made
};

}  // namespace lv
