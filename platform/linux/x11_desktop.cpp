#include "platform/linux/x11_desktop.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

#include "platform/code_page.h"
#include "platform/key_strokes.h"
#include "platform/linux/x11_display.h"

namespace lv {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 1500ms;  // with a window manager that does not do what it was asked
constexpr auto kLook = 10ms;
constexpr auto kKeyTaken = 150ms;  // until a program has seen a key; nothing tells

constexpr std::uint32_t kIconicState = 3;  // of WM_STATE
constexpr std::uint32_t kFromUser = 2;     // the window manager need not guard the user's own window

// The left ones.
constexpr std::uint32_t kShiftSymbol = 0xFFE1;
constexpr std::uint32_t kControlSymbol = 0xFFE3;
constexpr std::uint32_t kAltSymbol = 0xFFE9;

xcb_window_t WindowOf(WindowHandle window) {
    return static_cast<xcb_window_t>(window);
}

std::string TitleOf(X11Display& display, xcb_window_t window) {
    std::string title = display.Bytes(window, "_NET_WM_NAME");
    if (title.empty()) {
        title = display.BytesOfType(window, "WM_NAME", "UTF8_STRING");
    }
    return title.empty() ? display.BytesOfType(window, "WM_NAME", "STRING") : FromUtf8Lossy(title);
}

/// WM_CLASS: the instance's name and the class, each ended by a NUL.
TopWindow WithClass(TopWindow window, const std::string& names) {
    const std::size_t end = std::min(names.find('\0'), names.size());
    const std::string instance = LowerCase(names.substr(0, end));
    const std::string own = names.substr(std::min(end + 1, names.size()));
    window.Class = CutToBuffer(own.substr(0, own.find('\0')));
    window.ClassKnown = !instance.ends_with(".exe") && !LowerCase(window.Class).ends_with(".exe");
    return window;
}

/// The keys of a stroke in the order in which they go down; 0 for one that the keyboard does not have.
std::vector<xcb_keycode_t> KeysOf(X11Display& display, const KeyStroke& stroke) {
    std::vector<xcb_keycode_t> keys;
    if (stroke.Alt) {
        keys.push_back(display.KeyOf(kAltSymbol));
    }
    if (stroke.Control) {
        keys.push_back(display.KeyOf(kControlSymbol));
    }
    if (stroke.Shift) {
        keys.push_back(display.KeyOf(kShiftSymbol));
    }
    keys.push_back(display.KeyOf(static_cast<unsigned char>(stroke.Key)));
    return keys;
}

Error Press(X11Display& display, const KeyStroke& stroke) {
    const std::vector<xcb_keycode_t> keys = KeysOf(display, stroke);
    if (std::ranges::find(keys, 0) != keys.end()) {
        return MakeError(error::kInvalidCall);
    }
    for (const xcb_keycode_t key : keys) {
        display.PressKey(key);
    }
    std::for_each(keys.rbegin(), keys.rend(), [&](xcb_keycode_t key) { display.ReleaseKey(key); });
    std::this_thread::sleep_for(kKeyTaken);
    return {};
}

}  // namespace

X11Desktop::X11Desktop(std::string display) : name_(std::move(display)) {}

X11Desktop::~X11Desktop() = default;

X11Display* X11Desktop::Connected() {
    if (!display_ || !display_->IsAlive()) {
        display_ = X11Display::Open(name_);
    }
    return display_.get();
}

bool X11Desktop::WaitUntil(const std::function<bool()>& holds) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!holds()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(kLook);
    }
    return true;
}

std::vector<TopWindow> X11Desktop::EnumWindows() {
    X11Display* const display = Connected();
    std::vector<TopWindow> found;
    if (display == nullptr) {
        return found;
    }
    for (const xcb_window_t window : display->TopWindows()) {
        found.push_back(
            WithClass({window, CutToBuffer(TitleOf(*display, window)), {}, true}, display->Bytes(window, "WM_CLASS")));
    }
    return found;
}

std::string X11Desktop::WindowTitle(WindowHandle window) {
    X11Display* const display = Connected();
    return display == nullptr ? std::string() : TitleOf(*display, WindowOf(window));
}

bool X11Desktop::IsIconic(WindowHandle window) {
    X11Display* const display = Connected();
    if (display == nullptr) {
        return false;
    }
    const std::vector<std::uint32_t> state = display->Numbers(WindowOf(window), "WM_STATE");
    return !state.empty() && state.front() == kIconicState;
}

void X11Desktop::OpenIcon(WindowHandle window) {
    if (X11Display* const display = Connected()) {
        display->Map(WindowOf(window));
        WaitUntil([&] { return !IsIconic(window); });  // so is one that has gone
    }
}

bool X11Desktop::SetForegroundWindow(WindowHandle window) {
    X11Display* const display = Connected();
    if (display == nullptr || !display->Exists(WindowOf(window))) {
        return false;
    }
    if (display->HasManager()) {
        display->AskManager(WindowOf(window), "_NET_ACTIVE_WINDOW", {kFromUser, 0, 0});
    } else {
        display->TakeFocus(WindowOf(window));
    }
    return WaitUntil([&] { return display->ActiveWindow() == WindowOf(window); });
}

void X11Desktop::CloseWindow(WindowHandle window) {
    if (X11Display* const display = Connected()) {
        display->AskManager(WindowOf(window), "WM_CHANGE_STATE", {kIconicState});
        WaitUntil([&] { return IsIconic(window) || !display->Exists(WindowOf(window)); });
    }
}

Error X11Desktop::SendKeys(std::string_view keys) {
    X11Display* const display = Connected();
    const auto strokes = KeyStrokesOf(keys);
    if (!strokes) {
        return MakeError(error::kInvalidCall);
    }
    if (display == nullptr || !display->MayPressKeys()) {
        return MakeError(error::kPermissionDenied);
    }
    for (const KeyStroke& stroke : *strokes) {
        if (Error failed = Press(*display, stroke)) {
            return failed;
        }
    }
    return {};
}

}  // namespace lv
