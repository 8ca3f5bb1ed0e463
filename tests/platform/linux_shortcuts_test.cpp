#include "platform/linux/linux_shortcuts.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/platform/scratch_directory.h"

namespace lv {
namespace {

namespace fs = std::filesystem;
using enum ShortcutPlace;

class LinuxShortcutsTest : public testing::Test {
  protected:
    LinuxShortcutsTest() {
        fs::create_directory(Desk);
        Duel.Name = "Duel";
        Duel.PictureName = "quake";
        Duel.Pictures = {{16, "small"}, {96, "large"}};
        Duel.EntryName = "duel.desktop";
        Duel.EntryMark = "X-Mark=duel";
        Duel.Entry = [](const std::string& program, const std::string& picture) {
            return "[Desktop Entry]\nExec=" + program + "\nIcon=" + picture + "\nX-Mark=duel\n";
        };
    }
    static unsigned ModeOf(const fs::path& file) {
        struct stat there {};
        return lstat(file.c_str(), &there) == 0 ? there.st_mode & 07777U : 0;
    }

    ScratchDirectory Scratch;
    fs::path Menu_ = Scratch / "data/applications";
    fs::path Desk = Scratch / "desk";
    fs::path Pictures = Scratch / "data/lorvane3d/launchers";
    LinuxShortcuts System{{Menu_, Desk, Pictures, "/opt/lorvane3d"}};
    Shortcut Duel;
};

TEST_F(LinuxShortcutsTest, AreDesktopEntriesAndThoseOfTheDesktopCanBeRun) {
    EXPECT_FALSE(System.Make(Menu, Duel));
    EXPECT_FALSE(System.Make(Desktop, Duel));
    const std::string picture = (Pictures / "quake.png").string();
    const std::string entry = "[Desktop Entry]\nExec=/opt/lorvane3d\nIcon=" + picture + "\nX-Mark=duel\n";
    EXPECT_EQ(BytesOf(Menu_ / "duel.desktop"), entry);
    EXPECT_EQ(BytesOf(Desk / "duel.desktop"), entry);
    EXPECT_EQ(BytesOf(picture), "large");
    EXPECT_EQ(ModeOf(Menu_ / "duel.desktop"), 0644U);
    EXPECT_EQ(ModeOf(Desk / "duel.desktop"), 0755U);
    EXPECT_TRUE(System.IsThere(Menu, Duel));
    EXPECT_EQ(System.PathOf(Desktop, Duel), (Desk / "duel.desktop").string());
}

TEST_F(LinuxShortcutsTest, AreReplacedWhereTheyAreTheSame) {
    WriteBytes(Desk / "duel.desktop", "[Desktop Entry]\nX-Mark=duel\nold\n");
    EXPECT_TRUE(System.IsThere(Desktop, Duel));
    EXPECT_FALSE(System.Make(Desktop, Duel));
    EXPECT_EQ(BytesOf(Desk / "duel.desktop").find("old"), std::string::npos);
}

TEST_F(LinuxShortcutsTest, LeaveAnothersFileAsItIs) {
    const fs::path file = Desk / "duel.desktop";
    for (const std::string theirs : {"X-Mark=duel2\n", "#X-Mark=duel\n", "", "mine"}) {
        WriteBytes(file, theirs);
        EXPECT_FALSE(System.IsThere(Desktop, Duel)) << theirs;
        EXPECT_EQ(System.Make(Desktop, Duel).Number, error::kAlreadyOpen) << theirs;
        EXPECT_FALSE(System.Remove(Desktop, Duel));
        EXPECT_EQ(BytesOf(file), theirs);
    }
}

TEST_F(LinuxShortcutsTest, FollowNoLinkAndOpenNoPipe) {
    const fs::path file = Desk / "duel.desktop";
    WriteBytes(Scratch / "elsewhere", "X-Mark=duel\n");
    fs::create_symlink(Scratch / "elsewhere", file);
    EXPECT_EQ(System.Make(Desktop, Duel).Number, error::kAlreadyOpen);
    EXPECT_FALSE(System.Remove(Desktop, Duel));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(BytesOf(Scratch / "elsewhere"), "X-Mark=duel\n");
    fs::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(System.Make(Desktop, Duel).Number, error::kAlreadyOpen);
    fs::remove(file);
    fs::create_directory(file);
    EXPECT_EQ(System.Make(Desktop, Duel).Number, error::kAlreadyOpen);
}

TEST_F(LinuxShortcutsTest, ReadNoFileThatIsTooLargeForOne) {
    WriteBytes(Desk / "duel.desktop", "X-Mark=duel\n" + std::string(70'000, 'x'));
    EXPECT_FALSE(System.IsThere(Desktop, Duel));
}

TEST_F(LinuxShortcutsTest, AreTakenAway) {
    ASSERT_FALSE(System.Make(Desktop, Duel));
    EXPECT_FALSE(System.Remove(Desktop, Duel));
    EXPECT_FALSE(fs::exists(Desk / "duel.desktop"));
    EXPECT_FALSE(System.Remove(Desktop, Duel));
}

TEST_F(LinuxShortcutsTest, MakeNoDesktop) {
    fs::remove(Desk);
    EXPECT_FALSE(System.HasPlace(Desktop));
    EXPECT_TRUE(System.HasPlace(Menu));
    EXPECT_EQ(System.Make(Desktop, Duel).Number, error::kPathNotFound);
    EXPECT_FALSE(fs::exists(Desk));
    LinuxShortcuts without({Menu_, {}, Pictures, "/opt/lorvane3d"});
    EXPECT_FALSE(without.HasPlace(Desktop));
}

TEST_F(LinuxShortcutsTest, TellWhereTheirDirectoryCannotBeMade) {
    WriteBytes(Scratch / "data", "a file");
    EXPECT_TRUE(System.Make(Menu, Duel));
    Duel.Pictures.clear();
    EXPECT_TRUE(System.Make(Menu, Duel));
    EXPECT_FALSE(System.Make(Desktop, Duel));
    EXPECT_NE(BytesOf(Desk / "duel.desktop").find("\nIcon=\n"), std::string::npos);
}

TEST_F(LinuxShortcutsTest, HaveTheNamesOfTheirPlaces) {
    EXPECT_EQ(System.CaptionOf(Menu), "Applications &Menu");
    EXPECT_EQ(System.CaptionOf(Desktop), "&Desktop");
}

}  // namespace
}  // namespace lv
