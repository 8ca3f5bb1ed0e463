#include "platform/windows/full_path.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

std::string Whole(std::string_view path, std::string_view current = "C:\\QUAKE") {
    const auto here = TakeApart(current, {"C:", {}});
    const auto taken = TakeApart(path, *here);
    return taken ? PutTogether(*taken) : "(none)";
}

std::wstring System(std::string_view path) {
    return SystemPath(*TakeApart(path, {"C:", {}}));
}

}  // namespace

TEST(FullPath, IsTakenFromTheCurrentDirectoryWithoutADrive) {
    EXPECT_EQ(Whole("ID1"), "C:\\QUAKE\\ID1");
    EXPECT_EQ(Whole("."), "C:\\QUAKE");
    EXPECT_EQ(Whole(".."), "C:\\");
    EXPECT_EQ(Whole("..\\..\\..\\X"), "C:\\X");
    EXPECT_EQ(Whole("\\GAMES"), "C:\\GAMES");
}

TEST(FullPath, IsTakenFromTheRootBehindADrive) {
    EXPECT_EQ(Whole("d:"), "D:\\");
    EXPECT_EQ(Whole("d:\\"), "D:\\");
    EXPECT_EQ(Whole("d:x"), "D:\\x");
    EXPECT_EQ(Whole("c:/a//b/./c\\"), "C:\\a\\b\\c");
}

TEST(FullPath, KeepsTheServerAndTheShare) {
    EXPECT_EQ(Whole("\\\\server\\games\\QUAKE\\..\\ID1"), "\\\\server\\games\\ID1");
    EXPECT_EQ(Whole("//server/games"), "\\\\server\\games");
    EXPECT_EQ(Whole("\\\\server\\games\\..\\.."), "\\\\server\\games");
    EXPECT_EQ(Whole("ID1", "\\\\server\\games\\QUAKE"), "\\\\server\\games\\QUAKE\\ID1");
    EXPECT_EQ(Whole("\\ID1", "\\\\server\\games\\QUAKE"), "\\\\server\\games\\ID1");
}

TEST(FullPath, IsNoneWithoutAShareOrWithACharacter0) {
    EXPECT_EQ(Whole(""), "(none)");
    EXPECT_EQ(Whole("\\\\server"), "(none)");
    EXPECT_EQ(Whole("\\\\server\\"), "(none)");
    EXPECT_EQ(Whole("\\\\\\x"), "(none)");
    EXPECT_EQ(Whole(std::string_view("a\0b", 3)), "(none)");
}

TEST(SystemPath, IsThePathAsItStands) {
    EXPECT_EQ(System("C:\\QUAKE\\\xE9"), L"C:\\QUAKE\\\u00E9");
    EXPECT_EQ(System("C:"), L"C:\\");
    EXPECT_EQ(System("\\\\server\\games"), L"\\\\server\\games\\");
    EXPECT_EQ(System("\\\\?\\unix\\home\\x"), L"\\\\?\\unix\\home\\x");
}

TEST(SystemPath, GoesRoundTheLimitOfLength) {
    const std::string name(300, 'x');
    EXPECT_EQ(System("C:\\" + name), L"\\\\?\\C:\\" + std::wstring(300, L'x'));
    EXPECT_EQ(System("\\\\server\\games\\" + name), L"\\\\?\\UNC\\server\\games\\" + std::wstring(300, L'x'));
    EXPECT_EQ(System("\\\\?\\unix\\" + name), L"\\\\?\\unix\\" + std::wstring(300, L'x'));
}

TEST(SystemPath, KeepsRoomForAShortNameBehindADirectory) {
    EXPECT_EQ(System("C:\\" + std::string(243, 'x')), L"C:\\" + std::wstring(243, L'x'));
    EXPECT_EQ(System("C:\\" + std::string(244, 'x')), L"\\\\?\\C:\\" + std::wstring(244, L'x'));
}

}  // namespace lv
