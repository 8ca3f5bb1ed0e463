// foundry/reading/bind_line.h
//
// One binding as a script spells it: which slot the command belongs to, and what becomes of a command that is none of
// the game's own.

#pragma once

#include <unordered_map>

#include "foundry/document/bindings.h"

namespace lv {

/// The aliases by their names in lower case, without blanks at the ends. Good as long as no alias comes, goes or moves.
class AliasNames {
  public:
    explicit AliasNames(const AliasList& aliases);

    /// The place in the table; kNone if there is no such alias.
    [[nodiscard]] std::size_t Find(const Text& lowerCaseName) const;
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  private:
    std::unordered_map<Text, std::size_t> places_;
};

/// Binds the key, in the spelling of any script, to the command; blanks at the command's ends say nothing. An empty
/// command is written as two double quotes. A command that no fixed slot stands for takes a free slot: "exec", "say"
/// and "say_team" theirs, an alias one of its own, anything else an extra. A command that this kind of game knows but
/// has no use for leaves the key free. Dropped without a word are a command that only another kind of game has, what
/// finds no free slot, and an unknown key; but in Unreal the line of an unknown key is the result, with a CR LF, for
/// the free-form text. The result is empty otherwise.
Text BindLine(ScriptDocument& document, ScriptView& view, TextView key, Text command, const AliasNames& aliases);
Text BindLine(ScriptDocument& document, ScriptView& view, TextView key, Text command);

}  // namespace lv
