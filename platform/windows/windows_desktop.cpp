#include "platform/windows/windows_desktop.h"

#include <array>
#include <optional>

#include "platform/code_page.h"
#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr UINT kLongestTakeMs = 1000;

HWND Native(WindowHandle window) {
    return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(window));  // NOLINT: that is what the number was
}

using Buffer = std::array<wchar_t, kWindowTextBuffer>;

std::string Cut(const Buffer& buffer, int length) {
    return FromWideLossy({buffer.data(), static_cast<std::size_t>(length)});
}

BOOL CALLBACK KeepWindow(HWND window, LPARAM list) {
    TopWindow found;
    Buffer text{};
    found.Handle = reinterpret_cast<std::uintptr_t>(window);
    found.Title = Cut(text, GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
    found.Class = Cut(text, GetClassNameW(window, text.data(), static_cast<int>(text.size())));
    reinterpret_cast<std::vector<TopWindow>*>(list)->push_back(std::move(found));
    return TRUE;
}

bool IsPlainKey(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

INPUT Stroke(WORD key, bool down) {
    INPUT stroke{};
    stroke.type = INPUT_KEYBOARD;
    stroke.ki.wVk = key;
    stroke.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    stroke.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    return stroke;
}

// All strokes of the notation; nothing if it holds anything else.
std::optional<std::vector<INPUT>> StrokesOf(std::string_view keys) {
    std::vector<INPUT> strokes;
    for (std::size_t at = 0; at < keys.size(); ++at) {
        const bool alt = keys[at] == '%';
        at += alt ? 1 : 0;
        if (at == keys.size() || !IsPlainKey(keys[at])) {
            return std::nullopt;
        }
        const auto key = static_cast<WORD>(UpperCase(keys[at]));
        if (alt) {
            strokes.push_back(Stroke(VK_MENU, true));
        }
        strokes.push_back(Stroke(key, true));
        strokes.push_back(Stroke(key, false));
        if (alt) {
            strokes.push_back(Stroke(VK_MENU, false));
        }
    }
    return strokes;
}

// An answer to a message comes before the keys behind it are looked at: when there was one answer more than there are
// keys, all were taken.
void WaitUntilTaken(std::size_t strokes) {
    for (std::size_t answer = 0; answer <= strokes; ++answer) {
        DWORD_PTR ignored = 0;
        if (SendMessageTimeoutW(GetForegroundWindow(), WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kLongestTakeMs, &ignored) ==
            0) {
            return;
        }
        Sleep(1);
    }
}

}  // namespace

std::vector<TopWindow> WindowsDesktop::EnumWindows() {
    std::vector<TopWindow> windows;
    ::EnumWindows(KeepWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::string WindowsDesktop::WindowTitle(WindowHandle window) {
    std::wstring title(static_cast<std::size_t>(GetWindowTextLengthW(Native(window))) + 1, L'\0');
    const int length = GetWindowTextW(Native(window), title.data(), static_cast<int>(title.size()));
    title.resize(static_cast<std::size_t>(length));
    return FromWideLossy(title);
}

bool WindowsDesktop::IsIconic(WindowHandle window) {
    return ::IsIconic(Native(window)) != 0;
}

void WindowsDesktop::OpenIcon(WindowHandle window) {
    ::OpenIcon(Native(window));
}

bool WindowsDesktop::SetForegroundWindow(WindowHandle window) {
    return ::SetForegroundWindow(Native(window)) != 0;
}

void WindowsDesktop::CloseWindow(WindowHandle window) {
    ::CloseWindow(Native(window));
}

Error WindowsDesktop::SendKeys(std::string_view keys) {
    auto strokes = StrokesOf(keys);
    if (!strokes) {
        return MakeError(error::kInvalidCall);
    }
    if (strokes->empty()) {
        return {};
    }
    const auto count = static_cast<UINT>(strokes->size());
    if (SendInput(count, strokes->data(), sizeof(INPUT)) != count) {
        return MakeError(error::kPermissionDenied);
    }
    WaitUntilTaken(strokes->size());
    return {};
}

}  // namespace lv
