#include "platform/linux/reg_file.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "platform/code_page.h"

namespace lv {

namespace {

constexpr std::string_view kTitle = "Windows Registry Editor Version 5.00";
constexpr std::string_view kRoot = "HKEY_CURRENT_USER\\";
constexpr std::string_view kByteOrderMark = "\xFF\xFE";

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < 0x20;
}

bool HasControls(std::string_view text) {
    return std::any_of(text.begin(), text.end(), IsControl);
}

// UTF-16LE to code page 1252; an odd byte at the end is dropped, a pair of surrogates is one "?".
std::string FromUtf16(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() / 2);
    bool inPair = false;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto low = static_cast<unsigned char>(bytes[at]);
        const auto high = static_cast<unsigned char>(bytes[at + 1]);
        const auto unit = static_cast<char32_t>(high << 8 | low);
        const bool second = unit >= 0xDC00 && unit <= 0xDFFF;
        if (!(inPair && second)) {
            text += static_cast<char>(ByteOf(unit).value_or('?'));
        }
        inPair = unit >= 0xD800 && unit <= 0xDBFF;
    }
    return text;
}

std::string ToUtf16(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (const char c : text) {
        const char32_t unit = CodePointOf(static_cast<unsigned char>(c));
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

char Unescaped(char c) {
    switch (c) {
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case '0':
            return '\0';
        default:
            return c;
    }
}

// Takes a text in quotes off the front of `line`; nothing if it does not end.
std::optional<std::string> TakeQuoted(std::string_view& line) {
    if (!line.starts_with('"')) {
        return std::nullopt;
    }
    std::string text;
    for (std::size_t at = 1; at < line.size(); ++at) {
        if (line[at] == '"') {
            line.remove_prefix(at + 1);
            return text;
        }
        const bool escape = line[at] == '\\' && at + 1 < line.size();
        text += escape ? Unescaped(line[++at]) : line[at];
    }
    return std::nullopt;
}

std::optional<std::uint32_t> TakeHex(std::string_view& text) {
    std::uint32_t number = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    if (failed != std::errc()) {
        return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

std::optional<RegistryValue> ReadNumber(std::string_view data) {
    const auto number = TakeHex(data);
    if (!number || !data.empty()) {
        return std::nullopt;
    }
    return RegistryValue{kRegistryNumber, {}, *number};
}

// "00,41,..."
std::optional<std::string> ReadBytes(std::string_view data) {
    std::string bytes;
    while (!data.empty()) {
        const auto byte = TakeHex(data);
        if (!byte || *byte > 0xFF || (!data.empty() && data[0] != ',')) {
            return std::nullopt;
        }
        bytes += static_cast<char>(*byte);
        data.remove_prefix(std::min<std::size_t>(1, data.size()));
    }
    return bytes;
}

// "hex:00,..." is type 3; "hex(7):00,..." names the type.
std::optional<RegistryValue> ReadTyped(std::string_view data) {
    std::uint32_t type = 3;
    if (data.starts_with('(')) {
        data.remove_prefix(1);
        const auto named = TakeHex(data);
        if (!named || !data.starts_with(')')) {
            return std::nullopt;
        }
        type = *named;
        data.remove_prefix(1);
    }
    if (!data.starts_with(':')) {
        return std::nullopt;
    }
    const auto bytes = ReadBytes(data.substr(1));
    if (!bytes) {
        return std::nullopt;
    }
    RegistryValue value{type, {}, 0};
    if (type == kRegistryText) {
        value.Text = FromUtf16(*bytes);
        if (value.Text.ends_with('\0')) {
            value.Text.pop_back();
        }
    }
    if (type == kRegistryNumber) {
        for (std::size_t i = 0; i < 4 && i < bytes->size(); ++i) {
            value.Number |= static_cast<std::uint32_t>(static_cast<unsigned char>((*bytes)[i])) << (8 * i);
        }
    }
    return value;
}

std::optional<RegistryValue> ReadData(std::string_view data) {
    if (data.starts_with('"')) {
        const auto text = TakeQuoted(data);
        return text && data.empty() ? std::optional(RegistryValue{kRegistryText, *text, 0}) : std::nullopt;
    }
    if (data.starts_with("dword:")) {
        return ReadNumber(data.substr(6));
    }
    if (data.starts_with("hex")) {
        return ReadTyped(data.substr(3));
    }
    return std::nullopt;
}

void ReadValueLine(std::string_view line, RegistryKey& key) {
    std::string name;
    if (line.starts_with('@')) {
        line.remove_prefix(1);
    } else if (const auto quoted = TakeQuoted(line)) {
        name = *quoted;
    } else {
        return;
    }
    if (!line.starts_with('=')) {
        return;
    }
    if (const auto value = ReadData(line.substr(1))) {
        key[LowerCase(name)] = *value;
    }
}

// The lines without their ends; one that goes on behind a "\" is joined with the next, less its indent. A line that
// does not end is what is left of one.
std::vector<std::string> Lines(std::string_view text) {
    std::vector<std::string> lines;
    bool goesOn = false;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (goesOn) {
            line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
            lines.back().pop_back();
            lines.back() += line;
        } else {
            lines.emplace_back(line);
        }
        // A text in quotes ends in its quote, so this can only be data in hex.
        goesOn = line.ends_with('\\');
    }
    if (goesOn) {
        lines.pop_back();
    }
    return lines;
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '\\' || c == '"') {
            escaped += '\\';
        }
        escaped += c;
    }
    return escaped;
}

// Control characters have no safe form within quotes.
std::string TextData(std::string_view text) {
    if (!HasControls(text)) {
        return "\"" + Escaped(text) + "\"";
    }
    std::string data = "hex(1):";
    for (const char c : ToUtf16(text)) {
        char digits[8];
        std::snprintf(digits, sizeof digits, "%02x,", static_cast<unsigned>(static_cast<unsigned char>(c)));
        data += digits;
    }
    return data + "00,00";
}

bool IsWritable(const RegistryPlace& place, const RegistryValue& value) {
    const bool known = value.Type == kRegistryText || value.Type == kRegistryNumber;
    return known && !place.Path.empty() && !HasControls(place.Path) && !HasControls(place.Name);
}

std::string NumberData(std::uint32_t number) {
    char digits[24];
    std::snprintf(digits, sizeof digits, "dword:%08x", static_cast<unsigned>(number));
    return digits;
}

}  // namespace

std::optional<RegistryKey> ReadRegFile(std::string_view bytes, std::string_view path) {
    if (!bytes.starts_with(kByteOrderMark)) {
        return std::nullopt;
    }
    const std::string heading = "[" + std::string(kRoot) + std::string(path) + "]";
    std::optional<RegistryKey> key;
    bool inKey = false;
    for (const std::string& line : Lines(FromUtf16(bytes.substr(kByteOrderMark.size())))) {
        if (line.starts_with('[')) {
            inKey = SameText(line, heading);
            if (inKey && !key) {
                key.emplace();
            }
        } else if (inKey) {
            ReadValueLine(line, *key);
        }
    }
    return key;
}

std::optional<std::string> ComposeRegFile(std::string_view path, std::string_view name, const RegistryValue& value) {
    const RegistryEntry entry = {{std::string(path), std::string(name)}, value};
    return ComposeRegFile(std::span(&entry, 1));
}

std::optional<std::string> ComposeRegFile(std::span<const RegistryEntry> entries) {
    std::string text(kTitle);
    text += "\r\n";
    std::string_view inKey;
    for (const auto& [place, value] : entries) {
        if (!IsWritable(place, value)) {
            return std::nullopt;
        }
        if (place.Path != inKey) {
            text += "\r\n[" + std::string(kRoot) + place.Path + "]\r\n";
            inKey = place.Path;
        }
        text += place.Name.empty() ? "@" : "\"" + Escaped(place.Name) + "\"";
        text += "=" + (value.Type == kRegistryText ? TextData(value.Text) : NumberData(value.Number)) + "\r\n";
    }
    return std::string(kByteOrderMark) + ToUtf16(text + "\r\n");
}

}  // namespace lv
