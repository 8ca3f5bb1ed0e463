#include "foundation/percent_text.h"

namespace lv {

namespace {

constexpr TextView kHexDigits = "0123456789ABCDEF";
constexpr unsigned kHexBase = 16;

}  // namespace

Text PercentText(TextView text, bool (*isPlain)(char)) {
    Text escaped;
    escaped.reserve(text.size());
    for (const char letter : text) {
        if (letter != '%' && isPlain(letter)) {
            escaped += letter;
            continue;
        }
        const auto byte = static_cast<unsigned char>(letter);
        escaped += '%';
        escaped += kHexDigits[byte / kHexBase];
        escaped += kHexDigits[byte % kHexBase];
    }
    return escaped;
}

std::optional<Text> FromPercentText(TextView text) {
    Text bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            bytes += text[i];
            continue;
        }
        const std::size_t high = i + 1 < text.size() ? kHexDigits.find(text[i + 1]) : TextView::npos;
        const std::size_t low = i + 2 < text.size() ? kHexDigits.find(text[i + 2]) : TextView::npos;
        if (high == TextView::npos || low == TextView::npos) {
            return std::nullopt;
        }
        bytes += static_cast<char>(high * kHexBase + low);
        i += 2;
    }
    return bytes;
}

}  // namespace lv
