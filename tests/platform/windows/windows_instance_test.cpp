#include "platform/windows/windows_instance.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

constexpr const char* kCaption = "   Lorvane 3D of a test";
constexpr const wchar_t* kWideCaption = L"   Lorvane 3D of a test";
/// programs/other_instance.cpp in a role of its own.
class OtherProcess {
  public:
    explicit OtherProcess(const std::wstring& role) {
        wchar_t here[MAX_PATH];
        GetModuleFileNameW(nullptr, here, MAX_PATH);
        const std::wstring program = std::wstring(here).substr(0, std::wstring(here).rfind(L'\\') + 1);
        std::wstring line = L"\"" + program + L"lv_other_instance.exe\" \"" + kWideCaption + L"\" " + role;
        STARTUPINFOW how{};
        how.cb = sizeof how;
        const BOOL started =
            CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &process_);
        EXPECT_NE(started, 0);
    }
    ~OtherProcess() {
        Kill();
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    void Kill() {
        TerminateProcess(process_.hProcess, 9);
        WaitForSingleObject(process_.hProcess, 10000);
    }

  private:
    PROCESS_INFORMATION process_{};
};

HWND OtherWindow() {
    return FindWindowW(nullptr, kWideCaption);
}

bool OtherIsReady() {
    return WaitUntil([] { return OtherWindow() != nullptr && GetPropW(OtherWindow(), L"ready") != nullptr; });
}

}  // namespace

TEST(WindowsInstance, IsAloneWithoutAnother) {
    WindowsInstance instance(kCaption);
    EXPECT_TRUE(instance.Claim());
    EXPECT_TRUE(instance.Claim());
}

TEST(WindowsInstance, TakesNoWindowOfItsOwnForAnother) {
    const OwnWindow own(L"Any class", kWideCaption);
    WindowsInstance instance(kCaption);
    EXPECT_TRUE(instance.Claim());
}

TEST(WindowsInstance, BringsTheOtherOutOfItsIcon) {
    OtherProcess other(L"minimised");
    ASSERT_TRUE(OtherIsReady());
    ASSERT_NE(IsIconic(OtherWindow()), 0);
    EXPECT_FALSE(WindowsInstance(kCaption).Claim());
    EXPECT_TRUE(WaitUntil([] { return IsIconic(OtherWindow()) == 0; }));
    EXPECT_TRUE(WaitUntil([] { return GetForegroundWindow() == OtherWindow(); }));
}

TEST(WindowsInstance, ShowsTheOtherThatIsHidden) {
    OtherProcess other(L"hidden");
    ASSERT_TRUE(OtherIsReady());
    ASSERT_EQ(IsWindowVisible(OtherWindow()), 0);
    EXPECT_FALSE(WindowsInstance(kCaption).Claim());
    EXPECT_TRUE(WaitUntil([] { return IsWindowVisible(OtherWindow()) != 0; }));
}

TEST(WindowsInstance, WaitsForTheWindowOfOneThatIsStillStarting) {
    OtherProcess other(L"starting");
    // The other one has claimed when nobody else can any more.
    ASSERT_TRUE(WaitUntil([] {
        HANDLE mutex = OpenMutexW(SYNCHRONIZE, FALSE, L"Local\\lorvane3d:   Lorvane 3D of a test");
        if (mutex == nullptr) {
            return false;
        }
        const bool held = WaitForSingleObject(mutex, 0) == WAIT_TIMEOUT;
        if (!held) {
            ReleaseMutex(mutex);
        }
        CloseHandle(mutex);
        return held;
    }));
    ASSERT_EQ(OtherWindow(), nullptr);
    EXPECT_FALSE(WindowsInstance(kCaption).Claim());
    EXPECT_NE(OtherWindow(), nullptr);
}

TEST(WindowsInstance, FindsNothingOfOneThatWasKilled) {
    OtherProcess other(L"shown");
    ASSERT_TRUE(OtherIsReady());
    other.Kill();
    EXPECT_TRUE(WindowsInstance(kCaption).Claim());
}

TEST(WindowsInstance, AnswersWhatAnotherStartAsks) {
    OtherProcess other(L"shown");
    ASSERT_TRUE(OtherIsReady());
    WindowsInstance second(kCaption);
    EXPECT_EQ(second.Ask("--launch", kPatienceMs).Answer, "<--launch>");
    const std::string longest(kLongestRequest, 'x');
    EXPECT_EQ(second.Ask(std::string("a\0b", 3), kPatienceMs).Answer, "<" + std::string("a\0b", 3) + ">");
    EXPECT_EQ(second.Ask(longest + "x", kPatienceMs).Answer, std::nullopt);
}

TEST(WindowsInstance, WithoutAnotherNobodyAnswers) {
    EXPECT_EQ(WindowsInstance("   Lorvane 3D that never runs").Ask("--launch", kPatienceMs).Answer, std::nullopt);
}

}  // namespace lv
