#include "platform/windows/windows_desktop.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/code_page.h"
#include "platform/key_strokes.h"
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

INPUT Move(WORD key, bool down) {
    INPUT move{};
    move.type = INPUT_KEYBOARD;
    move.ki.wVk = key;
    move.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    move.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    return move;
}

// The keys of a stroke in the order in which they go down.
std::vector<WORD> KeysOf(const KeyStroke& stroke) {
    std::vector<WORD> keys;
    if (stroke.Alt) {
        keys.push_back(VK_MENU);
    }
    if (stroke.Control) {
        keys.push_back(VK_CONTROL);
    }
    if (stroke.Shift) {
        keys.push_back(VK_SHIFT);
    }
    keys.push_back(static_cast<WORD>(UpperCase(stroke.Key)));
    return keys;
}

std::vector<INPUT> InputsOf(const std::vector<KeyStroke>& strokes) {
    std::vector<INPUT> inputs;
    for (const KeyStroke& stroke : strokes) {
        const std::vector<WORD> keys = KeysOf(stroke);
        std::for_each(keys.begin(), keys.end(), [&](WORD key) { inputs.push_back(Move(key, true)); });
        std::for_each(keys.rbegin(), keys.rend(), [&](WORD key) { inputs.push_back(Move(key, false)); });
    }
    return inputs;
}

// An answer to a message comes before the keys behind it are looked at: when there was one answer more than there are
// keys, all were taken.
void WaitUntilTaken(std::size_t keys) {
    for (std::size_t answer = 0; answer <= keys; ++answer) {
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
    const auto strokes = KeyStrokesOf(keys);
    if (!strokes) {
        return MakeError(error::kInvalidCall);
    }
    if (strokes->empty()) {
        return {};
    }
    std::vector<INPUT> inputs = InputsOf(*strokes);
    const auto count = static_cast<UINT>(inputs.size());
    if (SendInput(count, inputs.data(), sizeof(INPUT)) != count) {
        return MakeError(error::kPermissionDenied);
    }
    WaitUntilTaken(inputs.size());
    return {};
}

}  // namespace lv
