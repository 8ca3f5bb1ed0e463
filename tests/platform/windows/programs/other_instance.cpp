// The other instance of the tests: lv_other_instance CAPTION shown|hidden|minimised|starting
// Claims, answers what it is asked in "<>", opens a window of the caption as told ("starting" only after a second and a
// half), and stays for half a minute at most. Ends with 1 if the claim was refused.

#include <string>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_instance.h"

int main(int count, char** arguments) {
    if (count != 3) {
        return 2;
    }
    const std::string role = arguments[2];
    lv::WindowsInstance instance(arguments[1]);
    if (!instance.Claim()) {
        return 1;
    }
    if (role == "starting") {
        Sleep(1500);
    }
    HWND window = CreateWindowExW(0, L"STATIC", lv::ToWide(arguments[1]).c_str(), WS_OVERLAPPEDWINDOW, 50, 50, 300, 100,
                                  nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    ShowWindow(window, role == "hidden" ? SW_HIDE : role == "minimised" ? SW_MINIMIZE : SW_SHOWNORMAL);
    SetPropW(window, L"ready", window);
    instance.OnRequest = [](std::string_view request) { return "<" + std::string(request) + ">"; };
    SetTimer(window, 1, 50, nullptr);
    const DWORD start = GetTickCount();
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0 && GetTickCount() - start < 30000) {
        instance.Serve();
        DispatchMessageW(&message);
    }
    return 0;
}
