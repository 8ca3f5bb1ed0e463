#include "platform/toolkit/spoken_name.h"

#include <gtest/gtest.h>

#include "tests/support/windows/own_window.h"

// Behind windows.h, whose types they need.
#include <initguid.h>
#include <oleacc.h>

namespace lv {

namespace {

// Windows has had this service since XP; that of Wine 8 refuses.
bool SystemKeepsNames(HWND control) {
    (void)CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    IAccPropServices* names = nullptr;
    HRESULT kept = CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                                    reinterpret_cast<void**>(&names));
    if (names != nullptr) {
        kept = names->SetHwndPropStr(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME, L"x");
        names->Release();
    }
    CoUninitialize();
    return SUCCEEDED(kept);
}

}  // namespace

TEST(SpokenName, IsWhatTheControlWasGivenWhereTheSystemKeepsNames) {
    const OwnWindow own(L"QW Class", L"");
    HWND control = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, own.Handle(), nullptr,
                                   GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(control, nullptr);
    const bool kept = SystemKeepsNames(control);
    SetSpokenName(control, "Zo\xC3\xAB's port");
    EXPECT_EQ(SpokenName(control), kept ? "Zo\xC3\xAB's port" : "");
    DestroyWindow(control);
}

TEST(SpokenName, IsNothingForNoControl) {
    SetSpokenName(nullptr, "x");
    EXPECT_EQ(SpokenName(nullptr), "");
}

}  // namespace lv
