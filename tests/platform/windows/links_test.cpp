#include "platform/windows/links.h"

#include <gtest/gtest.h>

#include "platform/windows/system.h"
#include "tests/support/windows/test_drive.h"

namespace lv {

namespace {

/// Whether this system makes the link: that of Wine 8 makes none, and Windows' own refuses them to most users.
bool MakeLink(const wchar_t* path, const wchar_t* target, DWORD kind) {
    constexpr DWORD kByAnyUser = 2;  // SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE, where developers allow it
    CreateSymbolicLinkW(path, target, kind | kByAnyUser);
    return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

struct Links : testing::Test {
    Links() {
        CreateDirectoryW(L"T:\\Quake", nullptr);
        WriteBytes(L"T:\\Quake\\a.cfg", "mine");
    }
    TestDrive Drive;
};

}  // namespace

TEST_F(Links, FollowAllSpellsAPathAsTheSystemDoes) {
    EXPECT_EQ(FollowAll(L"T:\\QUAKE\\A.CFG"), L"\\\\?\\T:\\Quake\\a.cfg");
    EXPECT_EQ(FollowAll(L"T:\\QUAKE\\..\\QUAKE"), L"\\\\?\\T:\\Quake");
}

TEST_F(Links, FollowAllIsNothingForNothing) {
    EXPECT_EQ(FollowAll(L"T:\\Quake\\none"), std::nullopt);
    EXPECT_EQ(FollowAll(L"T:\\none\\a.cfg"), std::nullopt);
    EXPECT_EQ(FollowAll(L""), std::nullopt);
}

TEST_F(Links, AreFollowedAndSeenWhereTheSystemMakesThem) {
    const bool file = MakeLink(L"T:\\link.cfg", L"T:\\Quake\\a.cfg", 0);
    EXPECT_EQ(HasLinkOnTheWay(L"T:\\link.cfg"), file);
    EXPECT_EQ(FollowAll(L"T:\\link.cfg").has_value(), file);
    const bool directory = MakeLink(L"T:\\link", L"T:\\Quake", SYMBOLIC_LINK_FLAG_DIRECTORY);
    EXPECT_EQ(HasLinkOnTheWay(L"T:\\link\\a.cfg"), directory);
    EXPECT_EQ(HasLinkOnTheWay(L"\\\\?\\T:\\link\\none"), directory);
    EXPECT_EQ(FollowAll(L"T:\\link\\a.cfg"),
              directory ? std::optional<std::wstring>(L"\\\\?\\T:\\Quake\\a.cfg") : std::nullopt);
    DeleteFileW(L"T:\\link.cfg");
    RemoveDirectoryW(L"T:\\link");
}

TEST_F(Links, AreNotPlainFilesAndDirectories) {
    EXPECT_FALSE(HasLinkOnTheWay(L"T:\\Quake\\a.cfg"));
    EXPECT_FALSE(HasLinkOnTheWay(L"\\\\?\\T:\\Quake\\a.cfg"));
    EXPECT_FALSE(HasLinkOnTheWay(L"T:\\Quake\\none\\a.cfg"));
    EXPECT_FALSE(HasLinkOnTheWay(L"T:\\"));
    EXPECT_FALSE(HasLinkOnTheWay(L""));
}

struct WithinCase {
    const wchar_t* Path;
    const wchar_t* Directory;
    bool Lies;
};

constexpr WithinCase kWithin[] = {
    {L"\\\\?\\T:\\Quake", L"\\\\?\\T:\\Quake", true},
    {L"\\\\?\\T:\\Quake\\id1\\a.cfg", L"\\\\?\\T:\\Quake", true},
    {L"\\\\?\\T:\\QUAKE\\ID1", L"\\\\?\\t:\\quake", true},
    {L"\\\\?\\T:\\\u00C9t\u00E9\\a", L"\\\\?\\T:\\\u00E9T\u00C9", true},
    {L"\\\\?\\T:\\Quake2", L"\\\\?\\T:\\Quake", false},
    {L"\\\\?\\T:\\Quake", L"\\\\?\\T:\\Quake\\id1", false},
    {L"\\\\?\\U:\\Quake\\id1", L"\\\\?\\T:\\Quake", false},
    {L"\\\\?\\T:\\Quake", L"\\\\?\\T:\\", false},
    {L"\\\\?\\T:\\Quake", L"", false},
    {L"", L"", false},
};

TEST(LiesWithin, IsBelowInAnyLetterCaseAndNothingIsBelowARoot) {
    for (const WithinCase& row : kWithin) {
        EXPECT_EQ(LiesWithin(row.Path, row.Directory), row.Lies) << &row - kWithin;
    }
}

TEST(HomeDirectory, IsWhatTheEnvironmentSays) {
    const std::wstring before = HomeDirectory();
    SetEnvironmentVariableW(L"USERPROFILE", L"T:\\me");
    EXPECT_EQ(HomeDirectory(), L"T:\\me");
    SetEnvironmentVariableW(L"USERPROFILE", nullptr);
    EXPECT_EQ(HomeDirectory(), L"");
    SetEnvironmentVariableW(L"USERPROFILE", before.empty() ? nullptr : before.c_str());
}

}  // namespace lv
