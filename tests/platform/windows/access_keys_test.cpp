#include "platform/windows/toolkit/access_keys.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/windows/system.h"

namespace lv {

namespace {

HWND MakeControl(const wchar_t* className, const wchar_t* caption, HWND parent) {
    HWND made = CreateWindowExW(0, className, caption, WS_CHILD | WS_VISIBLE, 0, 0, 80, 20, parent, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
    EXPECT_NE(made, nullptr);
    return made;
}

/// A window with two panels: one with a field, which has the focus, and "&Near", another with "&Go".
class PanelWindow : public testing::Test {
  protected:
    PanelWindow()
        : Whole(CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 300, 200, nullptr,
                                nullptr, GetModuleHandleW(nullptr), nullptr)) {
        EXPECT_NE(Whole, nullptr) << "no window; is there a display?";
        HWND here = MakeControl(L"STATIC", L"", Whole);
        Field = MakeControl(L"EDIT", L"&Typed", here);
        MakeControl(L"BUTTON", L"&Near", here);
        Go = MakeControl(L"BUTTON", L"Let && &Go", MakeControl(L"STATIC", L"", Whole));
    }
    ~PanelWindow() override { DestroyWindow(Whole); }

    /// The window that the key, pressed with Alt in the field, comes to.
    HWND AddresseeOf(wchar_t key) const {
        PostMessageW(Field, WM_SYSCHAR, key, 0);
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            if (message.message == WM_SYSCHAR) {
                return message.hwnd;
            }
            DispatchMessageW(&message);
        }
        ADD_FAILURE() << "the key is lost";
        return nullptr;
    }

    HWND Whole;
    HWND Field = nullptr;
    HWND Go = nullptr;
};

}  // namespace

TEST_F(PanelWindow, GetsAKeyThatAnotherPanelHasInAnyLetterCase) {
    const AccessKeys keys;
    EXPECT_EQ(AddresseeOf(L'g'), Whole);
    EXPECT_EQ(AddresseeOf(L'G'), Whole);
}

TEST_F(PanelWindow, LeavesAKeyOfThePanelAroundTheFocusToIt) {
    const AccessKeys keys;
    EXPECT_EQ(AddresseeOf(L'n'), Field);
}

TEST_F(PanelWindow, LeavesAKeyThatNobodyHasWhereItWasPressed) {
    const AccessKeys keys;
    EXPECT_EQ(AddresseeOf(L'x'), Field);
    EXPECT_EQ(AddresseeOf(L'&'), Field);
    EXPECT_EQ(AddresseeOf(L'l'), Field);
}

TEST_F(PanelWindow, TakesTheTextOfAFieldForNoCaption) {
    const AccessKeys keys;
    EXPECT_EQ(AddresseeOf(L't'), Field);
}

TEST_F(PanelWindow, PassesOverWhatIsHiddenOrDisabled) {
    const AccessKeys keys;
    EnableWindow(Go, FALSE);
    EXPECT_EQ(AddresseeOf(L'g'), Field);
    EnableWindow(Go, TRUE);
    ShowWindow(Go, SW_HIDE);
    EXPECT_EQ(AddresseeOf(L'g'), Field);
    ShowWindow(Go, SW_SHOW);
    EXPECT_EQ(AddresseeOf(L'g'), Whole);
}

TEST_F(PanelWindow, IsAsTheSystemHasItOnceTheyAreGone) {
    std::optional<AccessKeys> keys(std::in_place);
    EXPECT_EQ(AddresseeOf(L'g'), Whole);
    keys.reset();
    EXPECT_EQ(AddresseeOf(L'g'), Field);
}

}  // namespace lv
