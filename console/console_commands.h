// console/console_commands.h
//
// A script as the commands that a console takes it for.

#pragma once

#include <deque>
#include <vector>

#include "console/console_rules.h"

namespace lv {

struct ConsoleCommand {
    std::vector<TextView> Words;    // without their quotes; none for a command of blanks or of a comment alone
    TextView Whole;                 // from its first word to its last one, as written
    TextView Raw;                   // and on to its end, with a comment: what "say" says
    std::size_t Line = 0;           // from 1, where it begins
    std::size_t Column = 0;         // from 1
    std::size_t Length = 0;         // in bytes, as the console counts them against its longest line
    bool IsBehindComment = false;   // a comment stands before it in its line, and has not kept it from being run: one
                                    // of words, not the empty one of a line that begins with "//;"
    bool HasOddQuote = false;       // one that does not close
    bool IsQuoteInComment = false;  // and it stands in a comment: it changes nothing but for who counts all quotes
};

/// What stands behind the last end of a command: the end of a script whose last line has none.
TextView UnendedCommand(TextView text, const ConsoleRules& rules);

/// Commands in their order. Views into the text, which ends at a byte 0 as it does for the games.
class CommandReader {
  public:
    /// `text` outlives the reader.
    CommandReader(TextView text, const ConsoleRules& rules, std::size_t firstLine = 1);

    /// The next command that has words. What it gives stays as long as the reader; false behind the last one.
    bool Next(ConsoleCommand& command);

    /// The rest of the line that it stands in, with its end, if it has one; it stands behind that then.
    TextView TakeLine();

    [[nodiscard]] bool IsAtEnd() const { return at_ >= text_.size(); }

  private:
    friend TextView UnendedCommand(TextView text, const ConsoleRules& rules);

    struct Stretch {
        std::size_t End = 0;      // of the command, without what ends it
        std::size_t Comment = 0;  // where what is commented out begins, End without one
        bool OddQuote = false;
        std::size_t Quote = 0;  // where the one that is open last stands
    };

    [[nodiscard]] Stretch FindEnd() const;
    void MoveBehind(const Stretch& stretch);
    /// Where the comment begins that ends them; the length of the line without one.
    std::size_t TakeWords(TextView line, ConsoleCommand& command);
    TextView TakeQuoted(TextView line, std::size_t& at);
    [[nodiscard]] bool IsBlank(char c) const;
    [[nodiscard]] bool BeginsComment(std::size_t at, std::size_t begin, bool inQuotes) const;
    [[nodiscard]] bool IsOwnWord(char c) const { return rules_.OwnWords.find(c) != TextView::npos; }
    [[nodiscard]] TextView Shortened(TextView word) const;

    const ConsoleRules& rules_;
    TextView text_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::size_t lineBegin_ = 0;
    std::size_t commentLine_ = 0;  // the last one with a comment
    std::deque<Text> unescaped_;
};

}  // namespace lv
