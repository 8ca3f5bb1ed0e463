#include "platform/windows/new_file.h"

#include <gtest/gtest.h>

#include "tests/support/windows/test_drive.h"

namespace lv {

namespace {

bool IsThere(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::wstring NameOf(DWORD process, const wchar_t* number) {
    return L"T:\\.lv_666_" + std::to_wstring(process) + L"_" + number;
}

constexpr DWORD kGone = 4294967280;  // no process has such a number

}  // namespace

TEST(NewFile, IsCalledByItsProcessAndTheFirstNumberThatIsFree) {
    const TestDrive drive;
    WriteBytes(NameOf(GetCurrentProcessId(), L"0"), "");
    const NewFile made(L"T:\\");
    ASSERT_TRUE(made.IsOpen());
    EXPECT_EQ(made.Path(), NameOf(GetCurrentProcessId(), L"1"));
}

TEST(NewFile, IsNobodyElsesWhileItIsOpen) {
    const TestDrive drive;
    const NewFile made(L"T:\\");
    EXPECT_EQ(BytesOf(made.Path()), "(none)");
    EXPECT_EQ(DeleteFileW(made.Path().c_str()), 0);
}

TEST(NewFile, GoesWithItsObject) {
    const TestDrive drive;
    std::wstring path;
    {
        const NewFile made(L"T:\\");
        path = made.Path();
        EXPECT_TRUE(IsThere(path));
    }
    EXPECT_FALSE(IsThere(path));
}

TEST(NewFile, StaysOnceItHasMovedInPlaceOfWhatWasThere) {
    const TestDrive drive;
    WriteBytes(L"T:\\a.cfg", "old");
    {
        NewFile made(L"T:\\");
        DWORD written = 0;
        WriteFile(made.Get(), "new", 3, &written, nullptr);
        EXPECT_TRUE(made.Close());
        EXPECT_EQ(made.MoveTo(L"T:\\a.cfg"), static_cast<DWORD>(ERROR_SUCCESS));
    }
    EXPECT_EQ(BytesOf(L"T:\\a.cfg"), "new");
}

TEST(NewFile, LeavesNothingWhereItCannotMove) {
    const TestDrive drive;
    CreateDirectoryW(L"T:\\a.cfg", nullptr);
    {
        NewFile made(L"T:\\");
        made.Close();
        EXPECT_NE(made.MoveTo(L"T:\\a.cfg"), static_cast<DWORD>(ERROR_SUCCESS));
        EXPECT_NE(made.MoveTo(L"T:\\none\\a.cfg"), static_cast<DWORD>(ERROR_SUCCESS));
    }
    EXPECT_FALSE(IsThere(NameOf(GetCurrentProcessId(), L"0")));
}

TEST(NewFile, SaysWhyItCouldNotBeMade) {
    const TestDrive drive;
    const NewFile made(L"T:\\none\\");
    EXPECT_FALSE(made.IsOpen());
    EXPECT_EQ(made.Failed(), static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
}

TEST(RemoveLeftovers, RemovesThoseOfProcessesThatAreGone) {
    const TestDrive drive;
    WriteBytes(NameOf(kGone, L"0"), "half");
    WriteBytes(NameOf(kGone, L"17"), "half");
    WriteBytes(NameOf(GetCurrentProcessId(), L"0"), "of an older process with this number");
    RemoveLeftovers(L"T:\\");
    EXPECT_FALSE(IsThere(NameOf(kGone, L"0")));
    EXPECT_FALSE(IsThere(NameOf(kGone, L"17")));
    EXPECT_FALSE(IsThere(NameOf(GetCurrentProcessId(), L"0")));
}

TEST(RemoveLeftovers, LeavesTheFileThatIsBeingMade) {
    const TestDrive drive;
    const NewFile made(L"T:\\");
    RemoveLeftovers(L"T:\\");
    EXPECT_TRUE(IsThere(made.Path()));
}

TEST(RemoveLeftovers, LeavesWhatIsCalledOtherwiseAndDirectories) {
    const TestDrive drive;
    const std::wstring names[] = {NameOf(kGone, L"x"), NameOf(kGone, L""), L"T:\\.lv_666_4294967280", L"T:\\.lv_666__0",
                                  L"T:\\.lv_666_12345678901_0"};
    for (const std::wstring& name : names) {
        WriteBytes(name, "mine");
    }
    CreateDirectoryW(NameOf(kGone, L"1").c_str(), nullptr);
    RemoveLeftovers(L"T:\\");
    for (const std::wstring& name : names) {
        EXPECT_EQ(BytesOf(name), "mine") << &name - names;
    }
    EXPECT_TRUE(IsThere(NameOf(kGone, L"1")));
}

TEST(RemoveLeftovers, OfADirectoryThatIsNotThereDoesNothing) {
    const TestDrive drive;
    RemoveLeftovers(L"T:\\none\\");
    EXPECT_FALSE(IsThere(L"T:\\none"));
}

}  // namespace lv
