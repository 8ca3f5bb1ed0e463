// foundry/losses/written_lines.h
//
// The lines of the script that a save would write: where it binds keys and defines aliases, whatever runs behind that.

#pragma once

#include <unordered_map>
#include <vector>

#include "console/console_rules.h"

namespace lv {

class WrittenLines {
  public:
    /// `written` outlives it. An ini binds and defines nothing by commands.
    WrittenLines(TextView written, Console console);

    /// Whether a line ahead of this one, from 1, binds the key; by KeyIdentity.
    [[nodiscard]] bool BindsAhead(const Text& key, std::size_t line) const;
    /// Whether one defines the alias; in lower case.
    [[nodiscard]] bool DefinesAhead(const Text& alias, std::size_t line) const;

    /// "the alias zoom", if the line begins with what sets that, and a quote stands in it that has no other half.
    [[nodiscard]] Text OwnerOfOddQuote(std::size_t line) const;

  private:
    Console console_;
    std::vector<TextView> lines_;
    std::unordered_map<Text, std::size_t> binds_;  // the first line of each
    std::unordered_map<Text, std::size_t> aliases_;
};

}  // namespace lv
