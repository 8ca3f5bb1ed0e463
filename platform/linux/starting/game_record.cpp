#include "platform/linux/starting/game_record.h"

#include <charconv>
#include <cmath>

#include "platform/code_page.h"

namespace lv {

namespace {

constexpr std::string_view kOthers = " others";
constexpr char kEscape = '\x1B';

// The next word of the record; empty at its end.
std::string_view TakeWord(std::string_view& record) {
    const std::string_view word = record.substr(0, record.find_first_of(" \n"));
    record.remove_prefix(std::min(word.size() + 1, record.size()));
    return word;
}

template <class Number>
bool Takes(std::string_view word, Number& number) {
    const auto [end, failed] = std::from_chars(word.data(), word.data() + word.size(), number);
    return failed == std::errc() && end == word.data() + word.size() && number >= 0;
}

bool IsControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F || byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
}

// Behind an escape sequence that moves or colors, "ESC [ 0 ; 31 m"; `at` itself where none stands.
std::size_t BehindEscape(std::string_view text, std::size_t at) {
    if (text[at] != kEscape || at + 1 >= text.size() || text[at + 1] != '[') {
        return at;
    }
    std::size_t end = at + 2;
    while (end < text.size() && text[end] >= 0x20 && text[end] <= 0x3F) {
        ++end;
    }
    return end < text.size() && text[end] >= 0x40 && text[end] <= 0x7E ? end + 1 : at;
}

}  // namespace

GameFiles GameFilesIn(const std::filesystem::path& directory) {
    return {(directory / "last_game_output.txt").string(), (directory / "last_game_end.txt").string()};
}

std::string GameEndRecord(std::string_view token, const GameEnd& end) {
    const bool bySignal = end.Signal != 0;
    return std::string(token) + (bySignal ? " signal " : " code ") + std::to_string(bySignal ? end.Signal : end.Code) +
           " " + std::to_string(std::llround(end.Seconds * 1000)) + std::string(end.OthersRun ? kOthers : "") + "\n";
}

std::optional<GameEnd> ReadGameEnd(std::string_view record, std::string_view token) {
    if (!record.ends_with('\n')) {
        return std::nullopt;
    }
    record.remove_suffix(1);
    GameEnd end;
    end.OthersRun = record.ends_with(kOthers);
    record.remove_suffix(end.OthersRun ? kOthers.size() : 0);
    if (TakeWord(record) != token) {
        return std::nullopt;
    }
    const std::string_view kind = TakeWord(record);
    long long milliseconds = 0;
    if ((kind != "code" && kind != "signal") || !Takes(TakeWord(record), kind == "code" ? end.Code : end.Signal) ||
        !Takes(TakeWord(record), milliseconds) || !record.empty()) {
        return std::nullopt;
    }
    end.Seconds = static_cast<double>(milliseconds) / 1000;
    return end;
}

std::string OutputText(std::string_view bytes) {
    const std::string text = FromUtf8Lossy(bytes);
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t behind = BehindEscape(text, at);
        if (behind > at) {
            at = behind;
            continue;
        }
        const char c = text[at];
        if (c == '\r' && at + 1 < text.size() && text[at + 1] == '\n') {
            ++at;
        }
        if (c == '\n' || c == '\r') {
            shown += "\r\n";
        } else {
            shown += IsControl(c) && c != '\t' ? '?' : c;
        }
        ++at;
    }
    return shown;
}

std::string EndOfText(std::string_view text, std::size_t most) {
    if (text.size() <= most) {
        return std::string(text);
    }
    const bool atLine = text[text.size() - most - 1] == '\n';
    text.remove_prefix(text.size() - most);
    const std::size_t line = text.find('\n');
    return std::string(atLine || line == std::string_view::npos || line + 1 == text.size() ? text
                                                                                           : text.substr(line + 1));
}

}  // namespace lv
