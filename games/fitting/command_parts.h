// games/fitting/command_parts.h
//
// A composed command line as its parts: each switch with its arguments. The other way round too.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/processes.h"

namespace lv {

/// A word of a command line: a stretch without blanks outside double quotes, or a value that is given as one word.
struct CommandWord {
    Text Written;   // as it stands there
    Text Argument;  // what the program gets
    Text Option;    // ahead of both, where the word is given: "INI="
    bool IsGiven = false;

    [[nodiscard]] Text Whole() const { return Option + Argument; }
};

enum class PartKind {
    Option,   // "-width 640"
    Command,  // "+exec lv_666.qs"
    Word,     // "start.unr"
};

/// Never without a word.
struct CommandPart {
    PartKind Kind = PartKind::Word;
    std::vector<CommandWord> Words;
    bool BehindLineBreak = false;  // a line break stands right before it, and it has no sign of its own

    /// As it stands in a command line.
    [[nodiscard]] Text Written() const;
    /// Whether its first word is this one, in any letter case.
    [[nodiscard]] bool Is(TextView name) const;
};

/// `given` are the words that are one each whatever they hold, with their places in the text, in their order; those
/// that do not stand there are passed over. What begins with "-" or "+" and no digit behind that takes the words behind
/// it along, up to the next of these or to a line break; with `wordByWord` each word is a part.
std::vector<CommandPart> PartsOfCommand(TextView command, const std::vector<GivenWord>& given, bool wordByWord = false);

/// The parts behind the text, with a blank behind each. `given` gets the given words with their places.
void AppendParts(const std::vector<CommandPart>& parts, Text& command, std::vector<GivenWord>& given);

}  // namespace lv
