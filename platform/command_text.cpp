#include "platform/command_text.h"

#include <algorithm>

#include "platform/code_page.h"

namespace lv {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kDosSigns = "<>|&%^\";";
constexpr std::string_view kOperators = "&|<>^";
constexpr std::string_view kBatchSigns = "&|<>^()";       // also in double quotes, which a batch may take off
constexpr std::string_view kParameterSeparators = ",;=";  // of a batch, beside the blanks

bool IsOneOf(char c, std::string_view signs) {
    return signs.find(c) != std::string_view::npos;
}

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

/// Whether the sign ends the word, or the command, where it stands.
bool EndsWord(char c, bool quoted, bool isBatch) {
    if (c == '%' || (isBatch && IsOneOf(c, kBatchSigns))) {
        return true;
    }
    return !quoted && (IsOneOf(c, kBlanks) || IsOneOf(c, kOperators) || (isBatch && IsOneOf(c, kParameterSeparators)));
}

bool WindowsReadsAsOneWord(std::string_view text, bool isBatch) {
    bool quoted = false;
    for (const char c : text) {
        if (c == '"') {
            quoted = !quoted;
        } else if (EndsWord(c, quoted, isBatch)) {
            return false;
        }
    }
    return !quoted;
}

}  // namespace

bool ReadsAsOneWord(std::string_view text, LineReader reader) {
    if (std::any_of(text.begin(), text.end(), IsControl)) {
        return false;
    }
    switch (reader) {
        case LineReader::kNobody:
            return true;
        case LineReader::kDosShell:
            return text.find_first_of(kDosSigns) == std::string_view::npos &&
                   text.find_first_of(kBlanks) == std::string_view::npos;
        case LineReader::kCommandProcessor:
            return WindowsReadsAsOneWord(text, false);
        case LineReader::kBatch:
            return WindowsReadsAsOneWord(text, true);
    }
    return false;
}

bool IsBatchName(std::string_view name) {
    while (name.ends_with('.') || name.ends_with(' ')) {
        name.remove_suffix(1);
    }
    const std::string_view ending = name.size() > 4 ? name.substr(name.size() - 4) : std::string_view();
    return SameText(ending, ".bat") || SameText(ending, ".cmd");
}

}  // namespace lv
