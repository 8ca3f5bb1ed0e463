#include "foundation/desktop_entry_text.h"

namespace lv {

namespace {

constexpr TextView kEscapedInQuotes = "\"`$\\";

Text EscapeOf(char letter) {
    switch (letter) {
        case '\n':
            return "\\n";
        case '\r':
            return "\\r";
        case '\t':
            return "\\t";
        case '\\':
            return "\\\\";
        default:
            return {letter};
    }
}

}  // namespace

Text DesktopEntryValue(TextView text) {
    Text value;
    if (text.starts_with(' ')) {
        value = "\\s";
        text.remove_prefix(1);
    }
    for (const char letter : text) {
        value += EscapeOf(letter);
    }
    return value;
}

Text QuoteForExec(TextView argument) {
    Text quoted = "\"";
    for (const char letter : argument) {
        if (letter == '%') {
            quoted += '%';
        } else if (kEscapedInQuotes.find(letter) != TextView::npos) {
            quoted += '\\';
        }
        quoted += letter;
    }
    return DesktopEntryValue(quoted + '"');
}

}  // namespace lv
