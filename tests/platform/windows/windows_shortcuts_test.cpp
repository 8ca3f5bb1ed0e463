#include "platform/windows/windows_shortcuts.h"

#include <gtest/gtest.h>

#include "platform/windows/shell_link.h"
#include "platform/windows/system.h"
#include "tests/support/windows/test_drive.h"

namespace lv {
namespace {

using enum ShortcutPlace;

class WindowsShortcutsTest : public testing::Test {
  protected:
    WindowsShortcutsTest() {
        CreateDirectoryW(L"T:\\menu", nullptr);
        CreateDirectoryW(L"T:\\desk", nullptr);
        Duel.Name = "Duel: 1/2";
        Duel.Comment = "Quake";
        Duel.Words = {"--setup=Duel: 1/2", "--tell"};
        Duel.PictureName = "quake";
        Duel.Pictures = {{16, "abc"}};
    }
    static constexpr const wchar_t* kFile = L"T:\\desk\\Duel_ 1_2.lnk";

    TestDrive Drive;
    WindowsShortcuts System{{L"T:\\menu", L"T:\\desk", L"T:\\data\\launchers", L"T:\\\u00E4\\lorvane3d.exe"}};
    Shortcut Duel;
};

TEST(LinkName, IsOneOfAFile) {
    EXPECT_EQ(LinkNameOf("Duel"), L"Duel.lnk");
    EXPECT_EQ(LinkNameOf("..\\x"), L".._x.lnk");
    EXPECT_EQ(LinkNameOf("a<>:\"/\\|?*\n\tb"), L"a___________b.lnk");
    EXPECT_EQ(LinkNameOf("\x80 \xE9"), L"\u20AC \u00E9.lnk");
    EXPECT_EQ(LinkNameOf("dots. . "), L"dots.lnk");
    EXPECT_EQ(LinkNameOf(".."), L"_.lnk");
    EXPECT_EQ(LinkNameOf(""), L"_.lnk");
    EXPECT_EQ(LinkNameOf(std::string(300, 'a')), std::wstring(100, L'a') + L".lnk");
}

TEST(LinkName, IsNoDevices) {
    EXPECT_EQ(LinkNameOf("nul"), L"_nul.lnk");
    EXPECT_EQ(LinkNameOf("COM1.x"), L"_COM1.x.lnk");
    EXPECT_EQ(LinkNameOf("Lpt9"), L"_Lpt9.lnk");
    EXPECT_EQ(LinkNameOf("CONTROL"), L"CONTROL.lnk");
    EXPECT_EQ(LinkNameOf("COM"), L"COM.lnk");
}

TEST_F(WindowsShortcutsTest, AreLinksThatSayProgramWordsAndIcon) {
    ASSERT_FALSE(System.Make(Desktop, Duel));
    const auto link = ReadShellLink(kFile);
    ASSERT_TRUE(link);
    EXPECT_EQ(link->Program, L"T:\\\u00E4\\lorvane3d.exe");
    EXPECT_EQ(link->Arguments, L"\"--setup=Duel: 1/2\" --tell");
    EXPECT_EQ(link->Description, L"Quake");
    EXPECT_EQ(link->Icon, L"T:\\data\\launchers\\quake.ico");
    EXPECT_EQ(BytesOf(L"T:\\data\\launchers\\quake.ico").substr(22), "abc");
    EXPECT_TRUE(System.IsThere(Desktop, Duel));
    EXPECT_FALSE(System.IsThere(Menu, Duel));
    EXPECT_EQ(System.PathOf(Desktop, Duel), "T:\\desk\\Duel_ 1_2.lnk");
}

TEST_F(WindowsShortcutsTest, AreReplacedWhereTheyAreTheSame) {
    ASSERT_FALSE(System.Make(Desktop, Duel));
    Duel.Words = {"--setup=DUEL: 1/2", "--tell"};
    Duel.Comment = "Quake, CTF";
    EXPECT_FALSE(System.Make(Desktop, Duel));
    EXPECT_EQ(ReadShellLink(kFile).value_or(LinkFacts{}).Description, L"Quake, CTF");
}

TEST_F(WindowsShortcutsTest, OfAnotherDirectoryOfTheProgramAreTheSame) {
    WindowsShortcuts before({L"T:\\menu", L"T:\\desk", L"T:\\data\\launchers", L"T:\\old\\LORVANE3D.EXE"});
    ASSERT_FALSE(before.Make(Desktop, Duel));
    EXPECT_TRUE(System.IsThere(Desktop, Duel));
}

TEST_F(WindowsShortcutsTest, LeaveAnothersFileAsItIs) {
    WriteBytes(kFile, "mine");
    EXPECT_EQ(System.Make(Desktop, Duel).Number, error::kAlreadyOpen);
    EXPECT_FALSE(System.Remove(Desktop, Duel));
    EXPECT_EQ(BytesOf(kFile), "mine");
    for (const LinkFacts& another : {LinkFacts{L"T:\\game.exe", L"\"--setup=Duel: 1/2\" --tell", L"", L""},
                                     LinkFacts{L"T:\\lorvane3d.exe", L"--setup=Else --tell", L"", L""},
                                     LinkFacts{L"T:\\lorvane3d.exe", L"", L"", L""}}) {
        const std::string bytes = BytesOfShellLink(another).Value;
        WriteBytes(kFile, bytes);
        EXPECT_EQ(System.Make(Desktop, Duel).Number, error::kAlreadyOpen);
        EXPECT_FALSE(System.Remove(Desktop, Duel));
        EXPECT_EQ(BytesOf(kFile), bytes);
    }
}

TEST_F(WindowsShortcutsTest, AreTakenAway) {
    ASSERT_FALSE(System.Make(Menu, Duel));
    EXPECT_FALSE(System.Remove(Menu, Duel));
    EXPECT_EQ(BytesOf(L"T:\\menu\\Duel_ 1_2.lnk"), "(none)");
    EXPECT_FALSE(System.Remove(Menu, Duel));
}

TEST_F(WindowsShortcutsTest, WithoutAPlaceAreNotMade) {
    WindowsShortcuts nowhere({L"T:\\none", L"", L"", L"T:\\lorvane3d.exe"});
    EXPECT_FALSE(nowhere.HasPlace(Menu));
    EXPECT_FALSE(nowhere.HasPlace(Desktop));
    EXPECT_EQ(nowhere.Make(Menu, Duel).Number, error::kPathNotFound);
    EXPECT_EQ(nowhere.CaptionOf(Menu), "Start &Menu");
    EXPECT_EQ(nowhere.CaptionOf(Desktop), "&Desktop");
}

TEST_F(WindowsShortcutsTest, WithoutADirectoryForPicturesShowTheProgramsOwn) {
    WindowsShortcuts plain({L"T:\\menu", L"T:\\desk", L"", L"T:\\lorvane3d.exe"});
    ASSERT_FALSE(plain.Make(Desktop, Duel));
    EXPECT_EQ(ReadShellLink(kFile).value_or(LinkFacts{}).Icon, L"T:\\lorvane3d.exe");
}

TEST(OwnShortcutDirectories, AreThoseOfTheUser) {
    const ShortcutDirectories own = OwnShortcutDirectories();
    EXPECT_NE(GetFileAttributesW(own.Menu.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_NE(GetFileAttributesW(own.Desktop.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_NE(GetFileAttributesW(own.Program.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(own.Pictures.ends_with(L"\\lorvane3d\\launchers"));
}

}  // namespace
}  // namespace lv
