// console/files/setter_table.h
//
// Who sets each key, alias and setting, in order: the last one wins.

#pragma once

#include <unordered_map>
#include <vector>

#include "console/script_effects.h"

namespace lv {

constexpr std::size_t kNoScript = static_cast<std::size_t>(-1);  // the engine itself

struct Setter {
    std::size_t Script = 0;  // of the list of scripts that were run
    std::size_t Line = 0;
    Text Value{};       // the command, the body, the value
    bool IsSet = true;  // false: the key is free from here on, or the alias gone
    Text Source{};      // the command as the script spells it
    Text Alias{};       // that the script has run, and that did it; empty: the script itself
};

struct SetThing {
    EffectKind Kind = EffectKind::Bind;
    Text Name;                    // as the last one spells it
    Text Identity;                // one for all spellings
    std::vector<Setter> Setters;  // never empty
};

/// In the order in which they were set first.
class SetterTable {
  public:
    void Put(EffectKind kind, const Text& identity, TextView name, Setter setter);
    /// By all that are set.
    void FreeAll(EffectKind kind, const Setter& setter);

    [[nodiscard]] const SetThing* Find(EffectKind kind, TextView identity) const;
    [[nodiscard]] const std::vector<SetThing>& All() const { return things_; }
    [[nodiscard]] std::size_t SetterCount() const { return count_; }

  private:
    std::vector<SetThing> things_;
    std::unordered_map<Text, std::size_t> places_;  // by kind and identity
    std::size_t count_ = 0;
};

}  // namespace lv
