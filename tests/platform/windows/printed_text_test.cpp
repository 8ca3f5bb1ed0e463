#include "platform/windows/printed_text.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/windows/system.h"

namespace lv {

TEST(PrintedText, GoesToTheFileThatWasGivenAsUtf8WithWindowsLineEnds) {
    wchar_t directory[MAX_PATH];
    GetTempPathW(MAX_PATH, directory);
    const std::wstring path = std::wstring(directory) + L"lv_printed.txt";
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, &inherited, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    HANDLE before = GetStdHandle(STD_OUTPUT_HANDLE);
    SetStdHandle(STD_OUTPUT_HANDLE, file);
    const Error lost = Print(PrintedTo::Output, "\xE9t\xE9\ntwo\n");
    SetStdHandle(STD_OUTPUT_HANDLE, before);
    CloseHandle(file);
    HANDLE written = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    char bytes[64] = {};
    DWORD count = 0;
    ReadFile(written, bytes, sizeof bytes, &count, nullptr);
    CloseHandle(written);
    DeleteFileW(path.c_str());
    EXPECT_FALSE(lost);
    EXPECT_EQ(std::string(bytes, count), "\xC3\xA9t\xC3\xA9\r\ntwo\r\n");
}

TEST(PrintedText, AFileThatTakesNothingIsAnError) {
    HANDLE file = CreateFileW(L"NUL", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    HANDLE before = GetStdHandle(STD_OUTPUT_HANDLE);
    SetStdHandle(STD_OUTPUT_HANDLE, file);
    const Error lost = Print(PrintedTo::Output, "two\n");
    const Error nothing = Print(PrintedTo::Output, "");
    SetStdHandle(STD_OUTPUT_HANDLE, before);
    CloseHandle(file);
    EXPECT_EQ(lost.Number, error::kDeviceFault);
    EXPECT_FALSE(nothing);
}

TEST(PrintedText, TheWordsAreTheOnesOfThisProcess) {
    int count = 0;
    LocalFree(CommandLineToArgvW(GetCommandLineW(), &count));
    EXPECT_EQ(WordsOfCommandLine().size(), static_cast<std::size_t>(count - 1));
}

}  // namespace lv
