#include "games/fitting/command_parts.h"

#include <algorithm>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kParting = " \t\r\n";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// "-game" and "+map"; "-1" is a value, and so is what stands in double quotes.
bool BeginsPart(const CommandWord& word) {
    const TextView text = word.Written;
    return !word.IsGiven && text.size() > 1 && (text[0] == '-' || text[0] == '+') && !IsDigit(text[1]);
}

Text WithoutQuotes(TextView written) {
    Text argument(written);
    std::erase(argument, '"');
    return argument;
}

/// The end of the word at `at`: the next blank outside double quotes.
std::size_t EndOfWord(TextView command, std::size_t at) {
    bool grouped = false;
    for (; at < command.size(); ++at) {
        if (command[at] == '"') {
            grouped = !grouped;
        } else if (!grouped && Holds(kParting, command.substr(at, 1))) {
            break;
        }
    }
    return at;
}

bool StandsThere(TextView command, const GivenWord& word) {
    return !word.Written.empty() && word.At <= command.size() &&
           command.substr(word.At).starts_with(Join(word.Option, word.Written));
}

/// Reads the words, one after the other.
class WordReader {
  public:
    WordReader(TextView command, const std::vector<GivenWord>& given) : command_(command), given_(given) {}

    bool Next(CommandWord& word, bool& behindLineBreak) {
        const std::size_t begin = std::min(command_.find_first_not_of(kParting, at_), command_.size());
        behindLineBreak = command_.substr(at_, begin - at_).find('\n') != TextView::npos;
        at_ = begin;
        while (next_ < given_.size() && (given_[next_].At < at_ || !StandsThere(command_, given_[next_]))) {
            ++next_;
        }
        if (at_ == command_.size()) {
            return false;
        }
        if (next_ < given_.size() && given_[next_].At == at_) {
            const GivenWord& given = given_[next_++];
            word = {given.Written, given.Argument, given.Option, true};
            at_ += given.Option.size() + given.Written.size();
            return true;
        }
        std::size_t end = EndOfWord(command_, at_);
        if (next_ < given_.size()) {
            end = std::min(end, given_[next_].At);
        }
        const TextView written = command_.substr(at_, end - at_);
        word = {Text(written), WithoutQuotes(written), {}, false};
        at_ = end;
        return true;
    }

  private:
    TextView command_;
    const std::vector<GivenWord>& given_;
    std::size_t at_ = 0;
    std::size_t next_ = 0;
};

}  // namespace

Text CommandPart::Written() const {
    Text written;
    for (const CommandWord& word : Words) {
        written += Join(written.empty() ? TextView() : Blank, word.Option, word.Written);
    }
    return written;
}

bool CommandPart::Is(TextView name) const {
    return SameText(Words.front().Whole(), name);
}

std::vector<CommandPart> PartsOfCommand(TextView command, const std::vector<GivenWord>& given, bool wordByWord) {
    std::vector<CommandPart> parts;
    WordReader reader(command, given);
    CommandWord word;
    for (bool lineBreak = false; reader.Next(word, lineBreak);) {
        const bool begins = BeginsPart(word);
        const bool followsSwitch = !parts.empty() && parts.back().Kind != PartKind::Word && !wordByWord;
        if (followsSwitch && !begins && !lineBreak) {
            parts.back().Words.push_back(word);
            continue;
        }
        const bool broken = followsSwitch && !begins;
        const bool isOption = begins && word.Written.front() == '-';
        const PartKind kind = isOption ? PartKind::Option : begins || broken ? PartKind::Command : PartKind::Word;
        parts.push_back({wordByWord && !begins ? PartKind::Word : kind, {word}, broken});
    }
    return parts;
}

void AppendParts(const std::vector<CommandPart>& parts, Text& command, std::vector<GivenWord>& given) {
    for (const CommandPart& part : parts) {
        for (const CommandWord& word : part.Words) {
            if (word.IsGiven) {
                given.push_back({command.size(), word.Written, word.Argument, word.Option});
            }
            command += Join(word.Option, word.Written, Blank);
        }
    }
}

}  // namespace lv
