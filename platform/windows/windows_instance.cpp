#include "platform/windows/windows_instance.h"

#include <string>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr DWORD kLongestWaitMs = 10000;
constexpr DWORD kLookMs = 50;
constexpr DWORD kLongestUserName = 256;

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
    // Under a dialog it is disabled, and would only take the keyboard from that.
    const bool isFree = IsWindowEnabled(window) != 0;
    ShowWindow(window, isFree ? SW_SHOWNORMAL : SW_SHOWNA);
    const HWND front = isFree ? window : GetLastActivePopup(window);
    BringWindowToTop(front);
    SetWindowPos(front, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    SetForegroundWindow(front);
}

/// Of this user in this session: programs of others have pipes of their own.
std::wstring PipeName(const std::wstring& caption) {
    wchar_t user[kLongestUserName + 1] = {};
    DWORD length = kLongestUserName + 1;
    GetUserNameW(user, &length);
    DWORD session = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &session);
    return L"\\\\.\\pipe\\lorvane3d-" + std::to_wstring(session) + L"-" + user + L"-" + caption;
}

}  // namespace

WindowsInstance::WindowsInstance(std::string_view caption) : caption_(ToWide(caption)), pipe_(PipeName(caption_)) {}

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
            pipe_.Open();
            return true;
        }
    }
    if (mutex != nullptr) {
        CloseHandle(mutex);
    }
    return false;
}

Asked WindowsInstance::Ask(std::string_view request, int patienceMs) {
    return RequestPipe::Ask(PipeName(caption_), request, patienceMs);
}

}  // namespace lv
