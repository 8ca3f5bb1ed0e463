#include "platform/windows/command_line.h"

namespace lv {

std::wstring QuotedWord(std::wstring_view word) {
    if (!word.empty() && word.find_first_of(L" \t\n\v\"") == std::wstring_view::npos) {
        return std::wstring(word);
    }
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'\\') {
            ++backslashes;
            continue;
        }
        // Before a quote each backslash counts for half of one.
        quoted.append(c == L'"' ? backslashes * 2 + 1 : backslashes, L'\\');
        backslashes = 0;
        quoted += c;
    }
    quoted.append(backslashes * 2, L'\\');
    return quoted + L"\"";
}

std::wstring QuotedWords(const std::vector<std::wstring>& words) {
    std::wstring line;
    for (const std::wstring& word : words) {
        line += (line.empty() ? L"" : L" ") + QuotedWord(word);
    }
    return line;
}

}  // namespace lv
