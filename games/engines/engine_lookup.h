// games/engines/engine_lookup.h
//
// Engines by their programs' names, for those who ask for many.

#pragma once

#include <unordered_map>
#include <utility>
#include <vector>

#include "games/engines/engine_table.h"

namespace lv {

inline bool IsProgramPattern(TextView program) {
    return program.find('*') != TextView::npos;
}

/// Whether the name fits the pattern, in which "*" is any text. Both in lower case.
bool FitsPattern(TextView name, TextView pattern);

/// The table must outlive it and stay as it is.
class EngineLookup {
  public:
    explicit EngineLookup(const EngineTable& table);
    /// As EngineOf.
    [[nodiscard]] const Engine* Of(TextView programFileName) const;

  private:
    std::unordered_map<Text, const Engine*> whole_;
    std::vector<std::pair<TextView, const Engine*>> patterns_;
};

}  // namespace lv
