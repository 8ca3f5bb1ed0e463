#include "console/console_commands.h"

#include <algorithm>

namespace lv {

namespace {

constexpr unsigned char kBlank = ' ';
constexpr TextView kComment = "//";
constexpr unsigned char kFirstHighByte = 0x80;

bool BeginsWithComment(TextView text, std::size_t at) {
    return text[at] == '/' && at + 1 < text.size() && text[at + 1] == '/';
}

bool IsEscape(TextView text, std::size_t at) {
    return text[at] == '\\' && at + 1 < text.size() && (text[at + 1] == '"' || text[at + 1] == '\\');
}

}  // namespace

CommandReader::CommandReader(TextView text, const ConsoleRules& rules, std::size_t firstLine)
    : rules_(rules), text_(text.substr(0, text.find('\0'))), line_(firstLine) {}

bool CommandReader::IsBlank(char c) const {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= kFirstHighByte) {
        return rules_.HighBytesPart;
    }
    return rules_.EveryControlParts ? byte <= kBlank : c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// `begin` is where the command does.
bool CommandReader::BeginsComment(std::size_t at, std::size_t begin, bool inQuotes) const {
    if (rules_.Comment == CommentRule::Splits || !BeginsWithComment(text_, at)) {
        return false;
    }
    const bool afterBlank = at == begin || IsBlank(text_[at - 1]);
    return rules_.Comment == CommentRule::Anywhere ||
           (!inQuotes && (rules_.Comment == CommentRule::Unquoted || afterBlank));
}

CommandReader::Stretch CommandReader::FindEnd() const {
    Stretch found{text_.size(), text_.size()};
    bool inQuotes = false;
    bool inComment = false;
    for (std::size_t at = at_; at < text_.size(); ++at) {
        const char c = text_[at];
        if (c == '\n' || (c == '\r' && rules_.ReturnEnds) || (c == ';' && !inQuotes && !inComment)) {
            // The CR of a CR LF counts for nothing, though in a quote that is open some take it along.
            found.End = at > at_ && c == '\n' && text_[at - 1] == '\r' ? at - 1 : at;
            break;
        }
        if (inComment) {
            continue;
        }
        if (c == '"') {
            inQuotes = !inQuotes;
            found.Quote = at;
        } else if (inQuotes && rules_.Escapes && IsEscape(text_, at)) {
            ++at;
        } else if (c == '/' && BeginsComment(at, at_, inQuotes)) {
            inComment = true;
            found.Comment = at;
        }
    }
    // Those that look for it ahead of the words cut it off as well.
    const bool cuts = inComment && rules_.Comment == CommentRule::AfterBlank;
    found.Comment = cuts ? std::min(found.Comment, found.End) : found.End;
    found.OddQuote = inQuotes;
    return found;
}

void CommandReader::MoveBehind(const Stretch& stretch) {
    at_ = stretch.End;
    if (at_ >= text_.size()) {
        return;
    }
    const char end = text_[at_++];
    if (end == '\r' && at_ < text_.size() && text_[at_] == '\n') {
        ++at_;
    }
    if (end != ';') {
        ++line_;
        lineBegin_ = at_;
    }
}

bool CommandReader::Next(ConsoleCommand& command) {
    while (at_ < text_.size()) {
        const std::size_t begin = at_;
        const std::size_t line = line_;
        const std::size_t lineBegin = lineBegin_;
        const Stretch stretch = FindEnd();
        MoveBehind(stretch);
        TextView words = text_.substr(begin, stretch.Comment - begin);
        command.Length = words.size();
        command.HasOddQuote = stretch.OddQuote;
        command.IsBehindComment = commentLine_ == line;
        if (rules_.Line > 0 && words.size() > rules_.Line) {
            if (rules_.Long == LongLine::Dropped) {
                continue;
            }
            words = rules_.Long == LongLine::Cut ? words.substr(0, rules_.Line) : words;
        }
        if (stretch.OddQuote && rules_.OddQuoteDrops) {
            continue;
        }
        const std::size_t comment = TakeWords(words, command);
        const bool isEmpty = begin == lineBegin && command.Words.empty() && words.substr(comment) == kComment;
        if (comment < words.size() && !isEmpty) {
            commentLine_ = line;
        }
        command.IsQuoteInComment = stretch.OddQuote && comment < words.size() && stretch.Quote > begin + comment;
        if (!command.Words.empty()) {
            command.Line = line;
            command.Column = static_cast<std::size_t>(command.Whole.data() - text_.data()) - lineBegin + 1;
            return true;
        }
    }
    return false;
}

TextView CommandReader::TakeLine() {
    const std::size_t begin = at_;
    const std::size_t end = text_.find('\n', at_);
    at_ = end == TextView::npos ? text_.size() : end + 1;
    if (end != TextView::npos) {
        ++line_;
        lineBegin_ = at_;
    }
    return text_.substr(begin, at_ - begin);
}

TextView UnendedCommand(TextView text, const ConsoleRules& rules) {
    text = text.substr(0, text.find('\0'));
    CommandReader reader(text.substr(text.rfind('\n') + 1), rules);
    while (reader.at_ < reader.text_.size()) {
        const std::size_t begin = reader.at_;
        const CommandReader::Stretch stretch = reader.FindEnd();
        if (stretch.End == reader.text_.size()) {
            return reader.text_.substr(begin);
        }
        reader.MoveBehind(stretch);
    }
    return {};
}

TextView CommandReader::Shortened(TextView word) const {
    return rules_.Word > 0 ? word.substr(0, rules_.Word) : word;
}

// `at` stands on the opening quote.
TextView CommandReader::TakeQuoted(TextView line, std::size_t& at) {
    const std::size_t begin = ++at;
    bool escapes = false;
    for (; at < line.size() && line[at] != '"'; ++at) {
        if (rules_.Escapes && IsEscape(line, at)) {
            escapes = true;
            ++at;
        }
    }
    const TextView raw = line.substr(begin, at - begin);
    at += at < line.size() ? 1 : 0;
    if (!escapes) {
        return raw;
    }
    Text& word = unescaped_.emplace_back();
    for (std::size_t i = 0; i < raw.size(); ++i) {
        i += IsEscape(raw, i) ? 1 : 0;
        word += raw[i];
    }
    return word;
}

std::size_t CommandReader::TakeWords(TextView line, ConsoleCommand& command) {
    command.Words.clear();
    std::size_t comment = 0;
    std::size_t first = 0;
    std::size_t last = 0;
    for (std::size_t at = 0;;) {
        while (at < line.size() && IsBlank(line[at])) {
            ++at;
        }
        if (at >= line.size() || BeginsWithComment(line, at)) {
            comment = at;
            break;
        }
        const std::size_t begin = at;
        TextView word;
        if (line[at] == '"') {
            word = TakeQuoted(line, at);
        } else {
            at += 1;
            while (!IsOwnWord(line[begin]) && at < line.size() && !IsBlank(line[at]) && !IsOwnWord(line[at])) {
                ++at;
            }
            word = line.substr(begin, at - begin);
        }
        first = command.Words.empty() ? begin : first;
        last = at;
        if (rules_.Words == 0 || command.Words.size() < rules_.Words) {
            command.Words.push_back(Shortened(word));
        }
    }
    command.Whole = line.substr(first, last - first);
    std::size_t end = line.size();
    while (end > last && IsBlank(line[end - 1])) {
        --end;
    }
    command.Raw = line.substr(first, end - first);
    return comment;
}

}  // namespace lv
