#include "platform/windows/wide_text.h"

#include "platform/code_page.h"
#include "platform/windows/system.h"

namespace lv {

namespace {

bool IsSecondHalf(wchar_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

}  // namespace

std::wstring ToWide(std::string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (const char c : text) {
        wide += static_cast<wchar_t>(CodePointOf(static_cast<unsigned char>(c)));
    }
    return wide;
}

std::optional<std::string> FromWide(std::wstring_view wide) {
    std::string text;
    text.reserve(wide.size());
    for (const wchar_t unit : wide) {
        const auto byte = ByteOf(unit);
        if (!byte) {
            return std::nullopt;
        }
        text += static_cast<char>(*byte);
    }
    return text;
}

std::string FromWideLossy(std::wstring_view wide) {
    std::string text;
    for (const wchar_t unit : wide) {
        const auto byte = ByteOf(unit);
        if (byte || !IsSecondHalf(unit)) {
            text += byte ? static_cast<char>(*byte) : '?';
        }
    }
    return text;
}

std::optional<std::wstring> WideFromUtf8(std::string_view utf8) {
    std::wstring wide(utf8.size(), L'\0');
    if (utf8.empty()) {
        return wide;
    }
    const int length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), static_cast<int>(utf8.size()),
                                           wide.data(), static_cast<int>(wide.size()));
    if (length <= 0) {
        return std::nullopt;
    }
    wide.resize(static_cast<std::size_t>(length));
    return wide;
}

std::optional<std::string> Utf8FromWide(std::wstring_view wide) {
    std::string utf8(wide.size() * 3, '\0');
    if (wide.empty()) {
        return utf8;
    }
    const int length = WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, wide.data(), static_cast<int>(wide.size()),
                                           utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr);
    if (length <= 0) {
        return std::nullopt;
    }
    utf8.resize(static_cast<std::size_t>(length));
    return utf8;
}

}  // namespace lv
