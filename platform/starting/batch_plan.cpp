#include "platform/starting/batch_plan.h"

#include <algorithm>
#include <cstddef>

namespace lv {

namespace {

// The first two characters of a network's path stand where a drive would.
constexpr std::string_view kServerDrive = "\\\\";

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string_view Trim(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// `upper` in ASCII capitals.
bool SaysBlindToCase(std::string_view text, std::string_view upper) {
    return text.size() == upper.size() &&
           std::equal(text.begin(), text.end(), upper.begin(), [](char a, char b) { return Upper(a) == b; });
}

bool StartsBlindToCase(std::string_view text, std::string_view upper) {
    return SaysBlindToCase(text.substr(0, upper.size()), upper);
}

// What stands behind the word and the blank after it; nothing if the line is another.
std::string_view Behind(std::string_view line, std::string_view word) {
    return StartsBlindToCase(line, word) && line.size() > word.size() && IsBlank(line[word.size()])
               ? line.substr(word.size() + 1)
               : std::string_view();
}

BatchLineKind KindOf(std::string_view line) {
    const std::string_view trimmed = Trim(line);
    if (trimmed.empty()) {
        return BatchLineKind::kNothing;
    }
    if (SaysBlindToCase(trimmed, "SET") || SaysBlindToCase(trimmed, "PAUSE")) {
        return BatchLineKind::kShow;
    }
    if (Behind(line, "SET").find('=') != std::string_view::npos) {
        return BatchLineKind::kSet;
    }
    if (trimmed == kServerDrive) {
        return BatchLineKind::kDrive;
    }
    if (trimmed.size() == 2 && trimmed[1] == ':' && Upper(trimmed[0]) >= 'A' && Upper(trimmed[0]) <= 'Z') {
        return BatchLineKind::kDrive;
    }
    return Trim(Behind(line, "CD")).empty() ? BatchLineKind::kCommand : BatchLineKind::kDirectory;
}

std::string_view WithoutQuotes(std::string_view text) {
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') {
        return text.substr(1, text.size() - 2);
    }
    return text;
}

// Backslashes at `at`, then perhaps a quote: appends what they stand for and says how many characters were used.
std::size_t TakeBackslashes(std::string_view text, std::size_t at, std::string& word) {
    const std::size_t end = std::min(text.find_first_not_of('\\', at), text.size());
    const std::size_t count = end - at;
    if (end == text.size() || text[end] != '"') {
        word.append(count, '\\');
        return count;
    }
    word.append(count / 2, '\\');
    if (count % 2 == 0) {
        return count;
    }
    word += '"';
    return count + 1;
}

// The word at `at`, which is moved behind it.
std::string TakeWord(std::string_view command, std::size_t& at) {
    std::string word;
    bool grouped = false;
    while (at < command.size() && (grouped || !IsBlank(command[at]))) {
        if (command[at] == '\\') {
            at += TakeBackslashes(command, at, word);
        } else if (command[at] != '"') {
            word += command[at++];
        } else if (grouped && at + 1 < command.size() && command[at + 1] == '"') {
            word += '"';
            at += 2;
        } else {
            grouped = !grouped;
            ++at;
        }
    }
    return word;
}

void AddWords(std::string_view text, std::vector<std::string>& words) {
    for (std::size_t at = 0; (at = text.find_first_not_of(" \t", at)) < text.size();) {
        words.push_back(TakeWord(text, at));
    }
}

// A stretch of the batch, and where in the command it went.
struct Piece {
    std::size_t InBatch = 0;
    std::size_t InCommand = 0;
    std::string_view Text;
};

// The given words that stand in the piece, from the one at `next`, which is moved behind them.
void AddGiven(const Piece& piece, const std::vector<GivenWord>& given, std::size_t& next, BatchPlan& plan) {
    for (std::size_t least = piece.InBatch; next < given.size(); ++next) {
        GivenWord word = given[next];
        const std::string whole = word.Option + word.Written;
        const bool within = !whole.empty() && word.At >= least && word.At < piece.InBatch + piece.Text.size();
        if (!within || !piece.Text.substr(word.At - piece.InBatch).starts_with(whole)) {
            return;
        }
        least = word.At + whole.size();
        word.At += piece.InCommand - piece.InBatch;
        plan.given.push_back(std::move(word));
    }
}

}  // namespace

std::vector<BatchLine> ReadBatchLines(std::string_view text) {
    std::vector<BatchLine> lines;
    bool inCommand = false;
    const std::size_t whole = text.size();
    while (!text.empty()) {
        const std::size_t at = whole - text.size();
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        const BatchLineKind kind = inCommand ? BatchLineKind::kCommand : KindOf(line);
        inCommand = kind == BatchLineKind::kCommand || kind == BatchLineKind::kDirectory;
        lines.push_back({kind, std::string(line), at});
    }
    return lines;
}

BatchPlan ParseBatch(std::string_view text, const std::vector<GivenWord>& given) {
    BatchPlan plan;
    std::size_t next = 0;
    for (const BatchLine& line : ReadBatchLines(text)) {
        const std::string_view whole = line.Text;
        if (line.Kind == BatchLineKind::kSet) {
            const std::string_view setting = Behind(whole, "SET");
            const std::size_t equals = setting.find('=');
            plan.environment.emplace_back(Trim(setting.substr(0, equals)), setting.substr(equals + 1));
        } else if (line.Kind == BatchLineKind::kShow) {
            plan.showsEnvironment = true;
        } else if (line.Kind == BatchLineKind::kDrive) {
            plan.drive = Trim(whole) == kServerDrive ? "" : Trim(whole);
        } else if (line.Kind == BatchLineKind::kDirectory) {
            plan.directory = WithoutQuotes(Trim(Behind(whole, "CD")));
        } else if (line.Kind == BatchLineKind::kCommand && !Trim(whole).empty()) {
            const std::string_view trimmed = Trim(whole);
            plan.command += plan.command.empty() ? "" : " ";
            const auto ahead = static_cast<std::size_t>(trimmed.data() - whole.data());
            AddGiven({line.At + ahead, plan.command.size(), trimmed}, given, next, plan);
            plan.command += trimmed;
        }
    }
    return plan;
}

std::vector<std::string> SplitArguments(std::string_view command, const std::vector<GivenWord>& given) {
    std::vector<std::string> words;
    std::size_t at = 0;
    for (const GivenWord& word : given) {
        AddWords(command.substr(at, word.At - at), words);
        words.push_back(word.Option + word.Argument);
        at = word.At + word.Option.size() + word.Written.size();
    }
    AddWords(command.substr(at), words);
    return words;
}

}  // namespace lv
