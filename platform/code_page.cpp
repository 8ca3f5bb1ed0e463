#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lv {

namespace {

// Code points of the bytes 80 to 9F; all others are their own.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void AppendUtf8(std::string& out, char32_t point) {
    if (point < 0x80) {
        out += static_cast<char>(point);
    } else if (point < 0x800) {
        out += static_cast<char>(0xC0 | (point >> 6));
        out += static_cast<char>(0x80 | (point & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (point >> 12));
        out += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (point & 0x3F));
    }
}

struct Decoded {
    char32_t Point = 0;
    std::size_t Length = 0;  // 0: not well-formed
};

Decoded DecodeOne(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0 && lead < 0xF5   ? 4
                               : lead >= 0xE0 && lead < 0xF0 ? 3
                               : lead >= 0xC2 && lead < 0xE0 ? 2
                                                             : 0;
    if (length == 0 || at + length > text.size()) {
        return {};
    }
    char32_t point = length == 2 ? lead & 0x1Fu : length == 3 ? lead & 0x0Fu : lead & 0x07u;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80) {
            return {};
        }
        point = (point << 6) | (byte(at + i) & 0x3Fu);
    }
    const bool overlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    if (overlong || surrogate || point > 0x10FFFF) {
        return {};
    }
    return {point, length};
}

}  // namespace

char32_t CodePointOf(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kHigh[byte - 0x80u] : byte;
}

std::optional<unsigned char> ByteOf(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<unsigned char>(codePoint);
    }
    const auto found = std::find(kHigh.begin(), kHigh.end(), codePoint);
    if (found == kHigh.end()) {
        return std::nullopt;
    }
    return static_cast<unsigned char>(0x80 + (found - kHigh.begin()));
}

std::string ToUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        AppendUtf8(out, CodePointOf(static_cast<unsigned char>(c)));
    }
    return out;
}

std::optional<std::string> FromUtf8(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const Decoded one = DecodeOne(utf8, at);
        const auto byte = one.Length == 0 ? std::nullopt : ByteOf(one.Point);
        if (!byte) {
            return std::nullopt;
        }
        out += static_cast<char>(*byte);
        at += one.Length;
    }
    return out;
}

std::string FromUtf8Lossy(std::string_view utf8) {
    std::string out;
    for (std::size_t at = 0; at < utf8.size();) {
        const Decoded one = DecodeOne(utf8, at);
        const auto byte = one.Length == 0 ? std::nullopt : ByteOf(one.Point);
        out += byte ? static_cast<char>(*byte) : '?';
        at += std::max<std::size_t>(one.Length, 1);
    }
    return out;
}

char UpperCase(char character) {
    const auto c = static_cast<unsigned char>(character);
    if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) {
        return static_cast<char>(c - 0x20);
    }
    if (c == 0x9A || c == 0x9C || c == 0x9E) {
        return static_cast<char>(c - 0x10);
    }
    return c == 0xFF ? static_cast<char>(0x9F) : character;
}

namespace {

constexpr char LowerCaseOf(char character) {
    const auto c = static_cast<unsigned char>(character);
    if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) {
        return static_cast<char>(c + 0x20);
    }
    if (c == 0x8A || c == 0x8C || c == 0x8E) {
        return static_cast<char>(c + 0x10);
    }
    return c == 0x9F ? static_cast<char>(0xFF) : character;
}

// Looked up, for scripts are compared byte by byte.
constexpr std::array<char, 256> kLowerCase = [] {
    std::array<char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = LowerCaseOf(static_cast<char>(i));
    }
    return table;
}();

}  // namespace

char LowerCase(char character) {
    return kLowerCase[static_cast<unsigned char>(character)];
}

std::string UpperCase(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        c = UpperCase(c);
    }
    return out;
}

std::string LowerCase(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        c = LowerCase(c);
    }
    return out;
}

bool SameText(std::string_view a, std::string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

bool StartsWithText(std::string_view text, std::string_view start) {
    return SameText(text.substr(0, start.size()), start);
}

}  // namespace lv
