#include "platform/windows/windows_instance.h"

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr DWORD kLongestWaitMs = 10000;
constexpr DWORD kLookMs = 50;

HWND FindOther(const std::wstring& caption) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, nullptr, caption.c_str())) != nullptr) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process != GetCurrentProcessId()) {
            return window;
        }
    }
    return nullptr;
}

void BringForward(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    AllowSetForegroundWindow(process);
    if (IsIconic(window) != 0) {
        OpenIcon(window);
    }
    ShowWindow(window, SW_SHOWNORMAL);
    BringWindowToTop(window);
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    SetForegroundWindow(window);
}

}  // namespace

WindowsInstance::WindowsInstance(std::string_view caption) : caption_(ToWide(caption)) {}

WindowsInstance::~WindowsInstance() {
    if (mutex_ != nullptr) {
        ReleaseMutex(mutex_);
        CloseHandle(mutex_);
    }
}

bool WindowsInstance::Claim() {
    if (mutex_ != nullptr) {
        return true;
    }
    const std::wstring name = L"Local\\lorvane3d:" + caption_;
    HANDLE mutex = CreateMutexW(nullptr, FALSE, name.c_str());
    for (DWORD waited = 0; waited < kLongestWaitMs; waited += kLookMs) {
        if (HWND other = FindOther(caption_)) {
            BringForward(other);
            break;
        }
        // Without the mutex, which somebody else's rights may forbid, the window alone decides.
        const DWORD held = mutex != nullptr ? WaitForSingleObject(mutex, kLookMs) : WAIT_OBJECT_0;
        if (held == WAIT_OBJECT_0 || held == WAIT_ABANDONED) {
            mutex_ = mutex;
            return true;
        }
    }
    if (mutex != nullptr) {
        CloseHandle(mutex);
    }
    return false;
}

}  // namespace lv
