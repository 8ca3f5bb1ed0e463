#include "platform/windows/toolkit/access_keys.h"

#include <string>

#include "platform/windows/system.h"

namespace lv {

namespace {

struct Search {
    wchar_t Key;
    bool Found = false;
};

wchar_t Folded(wchar_t character) {
    CharUpperBuffW(&character, 1);
    return character;
}

bool Carries(const std::wstring& caption, wchar_t key) {
    for (std::size_t at = caption.find(L'&'); at != std::wstring::npos && at + 1 < caption.size();
         at = caption.find(L'&', at + 2)) {
        if (caption[at + 1] != L'&') {
            return Folded(caption[at + 1]) == key;
        }
    }
    return false;
}

BOOL CALLBACK Look(HWND control, LPARAM into) {
    auto& search = *reinterpret_cast<Search*>(into);
    constexpr int kLongest = 256;  // characters of a caption
    wchar_t caption[kLongest] = L"";
    if (IsWindowVisible(control) != 0 && IsWindowEnabled(control) != 0 &&
        (SendMessageW(control, WM_GETDLGCODE, 0, 0) & (DLGC_WANTCHARS | DLGC_HASSETSEL)) == 0) {
        GetWindowTextW(control, caption, kLongest);
        search.Found = Carries(caption, search.Key);
    }
    return search.Found ? FALSE : TRUE;
}

bool Has(HWND window, wchar_t key) {
    Search search{key};
    EnumChildWindows(window, Look, reinterpret_cast<LPARAM>(&search));
    return search.Found;
}

// The window to which a key pressed in `focus` is to go.
HWND Addressee(HWND focus, wchar_t key) {
    HWND whole = GetAncestor(focus, GA_ROOT);
    for (HWND panel = GetAncestor(focus, GA_PARENT); panel != nullptr && panel != whole;
         panel = GetAncestor(panel, GA_PARENT)) {
        if (Has(panel, key)) {
            return focus;
        }
    }
    return whole != nullptr && Has(whole, key) ? whole : focus;
}

LRESULT CALLBACK Watch(int code, WPARAM removed, LPARAM said) {
    if (code == HC_ACTION && removed == PM_REMOVE) {
        MSG& message = *reinterpret_cast<MSG*>(said);
        if (message.message == WM_SYSCHAR && message.hwnd != nullptr) {
            message.hwnd = Addressee(message.hwnd, Folded(static_cast<wchar_t>(message.wParam)));
        }
    }
    return CallNextHookEx(nullptr, code, removed, said);
}

}  // namespace

AccessKeys::AccessKeys() : hook_(SetWindowsHookExW(WH_GETMESSAGE, Watch, nullptr, GetCurrentThreadId())) {}

AccessKeys::~AccessKeys() {
    if (hook_ != nullptr) {
        UnhookWindowsHookEx(static_cast<HHOOK>(hook_));
    }
}

}  // namespace lv
