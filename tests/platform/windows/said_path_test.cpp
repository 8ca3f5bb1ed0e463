#include "platform/windows/said_path.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "tests/support/windows/test_drive.h"

namespace lv {

namespace {

using ::testing::MatchesRegex;

// "games", and "day".
constexpr const wchar_t* kRussian = L"T:\\\u0438\u0433\u0440\u044B";
constexpr const wchar_t* kJapanese = L"\\Quake \u00E9t\u00E9\\\u65E5";

// As a disk that keeps none.
std::wstring NoShortName(const std::wstring&) {
    return {};
}

class SaidPath : public ::testing::Test {
  protected:
    void SetUp() override {
        std::wstring path = kRussian;
        CreateDirectoryW(path.c_str(), nullptr);
        path += L"\\Quake \u00E9t\u00E9";
        CreateDirectoryW(path.c_str(), nullptr);
        WriteBytes(path + L"\\\u65E5", "here");
    }

    TestDrive drive_;
    std::wstring file_ = std::wstring(kRussian) + kJapanese;
};

}  // namespace

TEST_F(SaidPath, IsThePathItselfWithinTheCodePage) {
    EXPECT_EQ(PathInCodePage(L"T:\\\u20AC\\new"), "T:\\\x80\\new");
    EXPECT_EQ(PathInCodePage(L"\\\\server\\games\\x"), "\\\\server\\games\\x");
    EXPECT_EQ(PathInCodePage(L"T:\\"), "T:\\");
    EXPECT_EQ(PathInCodePage(L""), "");
}

TEST_F(SaidPath, HasShortNamesForWhatHasNoForm) {
    const auto said = PathInCodePage(file_);
    ASSERT_TRUE(said);
    EXPECT_THAT(*said, MatchesRegex("T:\\\\.+~.+\\\\Quake \xE9t\xE9\\\\.+~.+"));
    EXPECT_EQ(BytesOf(ToWide(*said)), "here");
}

TEST_F(SaidPath, IsNothingWithoutShortNames) {
    EXPECT_EQ(PathInCodePage(file_, NoShortName), std::nullopt);
    EXPECT_EQ(PathInCodePage(L"T:\\\u65E5\\none"), std::nullopt);
    EXPECT_EQ(PathInCodePage(L"T:\\\u0438*"), std::nullopt);
}

TEST_F(SaidPath, IsShownWithSignsInPlaceOfWhatHasNoForm) {
    EXPECT_EQ(SayPath(L"C:\\\u20AC"), "C:\\\x80");
    EXPECT_EQ(SayPath(file_, NoShortName), "T:\\????\\Quake \xE9t\xE9\\?");
}

TEST_F(SaidPath, ThatThereIsNotIsToldWithWhatHelps) {
    EXPECT_EQ(
        WhyNotSaid(file_, NoShortName).Text,
        "These games can't read the letters that stand as ? here: T:\\????\\Quake \xE9t\xE9\\?. Drive T: keeps no "
        "short name, like GAMES~1, to stand for them. Rename the file or the directory; or let the drive keep "
        "short names (as an administrator: fsutil 8dot3name set T: 0), and then rename it to something else and "
        "back.");
    EXPECT_EQ(WhyNotSaid(L"T:\\\u65E5.cfg").Text,
              "These games can't read the letters that stand as ? here: T:\\?.cfg. Choose a name without them.");
}

TEST_F(SaidPath, OfANetworkHasNoDriveToTellOf) {
    wchar_t share[MAX_PATH] = L"";
    ASSERT_NE(GetEnvironmentVariableW(L"LV_TEST_SHARE", share, MAX_PATH), 0u) << "no share is known here";
    const std::wstring shared = std::wstring(share) + std::wstring(kRussian).substr(2);
    const std::string shown = FromWideLossy(shared);
    EXPECT_EQ(
        WhyNotSaid(shared, NoShortName).Text,
        "These games can't read the letters that stand as ? here: " + shown +
            ". That disk keeps no short name, like GAMES~1, to stand for them. Rename the file or the directory.");
    EXPECT_TRUE(PathInCodePage(shared));
}

TEST_F(SaidPath, TakesNoPatternForAName) {
    EXPECT_NE(ShortName(kRussian), L"");
    EXPECT_EQ(ShortName(L"T:\\\u0438*"), L"");
    EXPECT_EQ(ShortName(L"T:\\none"), L"");
}

}  // namespace lv
