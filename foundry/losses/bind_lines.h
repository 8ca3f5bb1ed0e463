// foundry/losses/bind_lines.h
//
// The lines by which the editor binds keys, whatever the game makes of them.

#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "console/script_effects.h"
#include "foundry/document/script_document.h"

namespace lv {

struct KeyBindLine {
    Text Key;  // as it is spelled
    Text Command;
    std::size_t Line = 0;   // from 1
    std::size_t Words = 0;  // to the game; 0 if it drops the line
};

class BindLines {
  public:
    /// Of a console script.
    BindLines(const std::vector<TextView>& lines, const ScriptEffects& effects, const ScriptDialect& dialect);

    /// By KeyIdentity. Null if there is none.
    [[nodiscard]] const KeyBindLine* LastOf(const Text& key) const;

    /// The line that binds another key of the game's, which the editor writes as this one: of "~" for "`". Null if
    /// there is none.
    [[nodiscard]] const KeyBindLine* OtherOf(const Text& key) const;

    /// The first slot of the block that had no room left for the command, nor had that of the extra ones.
    [[nodiscard]] std::optional<SlotNumber> FullBlockOf(const Text& command) const;

  private:
    std::unordered_map<Text, KeyBindLine> last_;
    std::unordered_map<Text, KeyBindLine> others_;  // the last one each, by the key that is written
    std::unordered_map<Text, SlotNumber> dropped_;
};

/// The name by which the editor writes the key; empty for a key that it has not got.
Text WrittenKeyName(TextView key, const ScriptDialect& dialect);

/// The words of the first command, as the game counts them.
std::size_t WordCount(TextView source, Console console);

}  // namespace lv
