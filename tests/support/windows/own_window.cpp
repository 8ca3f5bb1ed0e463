#include "tests/support/windows/own_window.h"

#include <gtest/gtest.h>

namespace lv {

bool WaitUntil(const std::function<bool()>& holds, int milliseconds) {
    for (int tries = 0; tries < milliseconds / 50; ++tries) {
        if (holds()) {
            return true;
        }
        Sleep(50);
    }
    return holds();
}

OwnWindow::OwnWindow(const std::wstring& className, const std::wstring& title) : class_(className), title_(title) {
    HANDLE made = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    thread_ = std::thread([this, made] {
        WNDCLASSW shape{};
        shape.lpfnWndProc = Answer;
        shape.hInstance = GetModuleHandleW(nullptr);
        shape.lpszClassName = class_.c_str();
        RegisterClassW(&shape);
        window_ = CreateWindowExW(0, class_.c_str(), title_.c_str(), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 300,
                                  200, nullptr, nullptr, shape.hInstance, nullptr);
        if (window_ != nullptr) {
            SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        }
        SetEvent(made);
        Serve();
        UnregisterClassW(class_.c_str(), shape.hInstance);
    });
    WaitForSingleObject(made, INFINITE);
    CloseHandle(made);
    EXPECT_NE(window_, nullptr) << "no window; is there a display?";
}

OwnWindow::~OwnWindow() {
    PostMessageW(window_, WM_CLOSE, 0, 0);
    thread_.join();
}

std::wstring OwnWindow::Typed() {
    const std::lock_guard guard(mutex_);
    return typed_;
}

void OwnWindow::Serve() {
    MSG message{};
    while (window_ != nullptr && GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

LRESULT CALLBACK OwnWindow::Answer(HWND window, UINT message, WPARAM first, LPARAM second) {
    auto* self = reinterpret_cast<OwnWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self != nullptr && (message == WM_CHAR || message == WM_SYSCHAR)) {
        const std::lock_guard guard(self->mutex_);
        self->typed_ += message == WM_SYSCHAR ? L"%" : L"";
        self->typed_ += static_cast<wchar_t>(first);
        return 0;
    }
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
    }
    return DefWindowProcW(window, message, first, second);
}

}  // namespace lv
