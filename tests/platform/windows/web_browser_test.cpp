#include "platform/web_browser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "platform/windows/wide_text.h"
#include "tests/support/windows/own_pages.h"
#include "tests/support/windows/own_window.h"
#include "this_system.h"

namespace lv {

namespace {

using ::testing::HasSubstr;

class StandingIn {
  public:
    explicit StandingIn(const wchar_t* directory) {
        GetCurrentDirectoryW(static_cast<DWORD>(before_.size()), before_.data());
        SetCurrentDirectoryW(directory);
    }
    ~StandingIn() { SetCurrentDirectoryW(before_.data()); }
    StandingIn(const StandingIn&) = delete;
    StandingIn& operator=(const StandingIn&) = delete;

  private:
    std::array<wchar_t, MAX_PATH + 1> before_{};
};

bool TemporaryPageIsThere() {
    std::array<wchar_t, MAX_PATH + 1> directory{};
    GetTempPathW(static_cast<DWORD>(directory.size()), directory.data());
    return GetFileAttributesW((std::wstring(directory.data()) + L"temphtm.HTM").c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

TEST(WebBrowser, IsTheProgramForPages) {
    OwnPages own;
    SystemDisk made;
    const std::wstring standIn = ToWide(made.Disk.ProgramDirectory() + "\\..\\standins\\show_windows.exe");
    ASSERT_NE(CopyFileW(standIn.c_str(), L"T:\\BROWSER.EXE", FALSE), 0) << GetLastError();
    own.OpenWith(L"T:\\BROWSER.EXE");
    const StandingIn drive(L"T:\\");  // where the stand-in says what it was given
    EXPECT_EQ(OpenInBrowser("https://lorvane3d.example/").Number, 0);
    EXPECT_TRUE(WaitUntil([] { return BytesOf(L"T:\\output.txt").ends_with("end\n"); }));
    EXPECT_THAT(BytesOf(L"T:\\output.txt"), HasSubstr("ARGUMENT=https://lorvane3d.example/\n"));
    EXPECT_FALSE(TemporaryPageIsThere());
}

TEST(WebBrowser, IsMissingWithoutAProgramForPages) {
    const OwnPages own;
    EXPECT_EQ(OpenInBrowser("https://lorvane3d.example/").Number, 53);
    EXPECT_FALSE(TemporaryPageIsThere());
}

TEST(WebBrowser, FailsWhenThatProgramCannotBeStarted) {
    OwnPages own;
    const TestDrive drive;
    WriteBytes(L"T:\\BROWSER.EXE", "no program at all");
    own.OpenWith(L"T:\\BROWSER.EXE");
    EXPECT_EQ(OpenInBrowser("https://lorvane3d.example/").Number, 57);
}

}  // namespace lv
