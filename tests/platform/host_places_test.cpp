#include "platform/linux/files/host_places.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include "tests/platform/linux_home.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

}  // namespace

TEST(HostPlace, SaysWhereAPathLiesWhetherOrNotItIsThere) {
    const Home home;
    const DriveDirectories directories{home.Scratch / "data/drives", home.Scratch / "wine", home.Scratch / "program"};
    fs::create_directories(home.C / "Quake");
    const auto place = FindPlace(directories, "QUAKE\\new.cfg", {'C', {}});
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(PutTogether(place->Path), "C:\\QUAKE\\new.cfg");
    EXPECT_EQ(place->Root, (home.Drives / "c:").string());
    EXPECT_EQ(place->Host, (home.Drives / "c:/Quake/new.cfg").string());
    EXPECT_FALSE(place->EndsInSeparator);
    EXPECT_TRUE(FindPlace(directories, "C:\\QUAKE\\", {'C', {}})->EndsInSeparator);
}

TEST(HostPlace, IsNoneOnADriveThatIsNotThere) {
    const Home home;
    const DriveDirectories directories{home.Scratch / "data/drives", home.Scratch / "wine", home.Scratch / "program"};
    EXPECT_FALSE(FindPlace(directories, "Q:\\QUAKE", {'C', {}}).has_value());
    EXPECT_FALSE(FindPlace(directories, "", {'C', {}}).has_value());
}

TEST(ToHost, FollowsTheDriveAndFindsTheNames) {
    Home home;
    fs::create_directories(home.C / "Quake/id1");
    EXPECT_EQ(home.Disk.ToHost("C:\\"), home.C);
    EXPECT_EQ(home.Disk.ToHost("c:\\QUAKE\\ID1"), home.C / "Quake/id1");
    EXPECT_EQ(home.Disk.ToHost("C:/QUAKE/ID1"), home.C / "Quake/id1");
    EXPECT_EQ(home.Disk.ToHost("Z:\\"), "/");
    EXPECT_EQ(home.Disk.ToHost("Z:\\DEV\\Null"), "/dev/null");
}

TEST(ToHost, KeepsTheSpellingOfWhatIsNotThereYet) {
    Home home;
    fs::create_directories(home.C / "Quake");
    EXPECT_EQ(home.Disk.ToHost("C:\\QUAKE\\New\\\xC9.cfg"), home.C / "Quake/New/\xC3\x89.cfg");
}

TEST(ToHost, HasNothingForADriveThatIsNotThere) {
    Home home;
    EXPECT_EQ(home.Disk.ToHost("Q:\\QUAKE"), "");
    EXPECT_EQ(home.Disk.ToHost("A:\\"), "");
    EXPECT_EQ(home.Disk.ToHost(""), "");
}

TEST(FromHost, TakesTheDriveThatLiesDeepest) {
    Home home;
    fs::create_directories(home.Scratch / "games/quake");
    fs::create_directory_symlink(home.Scratch / "games", home.Drives / "g:");
    fs::create_directory_symlink(home.Scratch / "games/quake", home.Drives / "q:");
    EXPECT_EQ(home.Disk.FromHost((home.Scratch / "games/quake/id1/pak0.pak").string()), "Q:\\id1\\pak0.pak");
    EXPECT_EQ(home.Disk.FromHost((home.Scratch / "games/quake2").string()), "G:\\quake2");
    EXPECT_EQ(home.Disk.FromHost((home.Scratch / "games").string()), "G:\\");
    EXPECT_EQ(home.Disk.FromHost("/dev/null"), "Z:\\dev\\null");
    EXPECT_EQ(home.Disk.FromHost("/"), "Z:\\");
}

TEST(FromHost, KnowsThePlainDirectoryAndTheLinkToIt) {
    Home home;
    fs::create_directories(home.C / "QUAKE");
    EXPECT_EQ(home.Disk.FromHost((home.C / "QUAKE").string()), "C:\\QUAKE");
    EXPECT_EQ(home.Disk.FromHost((home.Drives / "c:/QUAKE/").string()), "C:\\QUAKE");
    EXPECT_EQ(home.Disk.FromHost((home.C / "QUAKE/../QUAKE/./new.cfg").string()), "C:\\QUAKE\\new.cfg");
}

TEST(FromHost, FollowsALinkToADirectoryAndKeepsALinkToAFile) {
    Home home;
    fs::create_directories(home.C / "QUAKE");
    fs::create_directory_symlink(home.C / "QUAKE", home.Scratch / "link");
    fs::create_symlink("/bin/true", home.C / "QUAKE/engine");
    EXPECT_EQ(home.Disk.FromHost((home.Scratch / "link").string()), "C:\\QUAKE");
    EXPECT_EQ(home.Disk.FromHost((home.Scratch / "link/engine").string()), "C:\\QUAKE\\engine");
}

TEST(FromHost, HasNothingForWhatNoDriveCanSay) {
    Home home;
    EXPECT_EQ(home.Disk.FromHost((home.C / "\xE6\x97\xA5.cfg").string()), "");
    EXPECT_EQ(home.Disk.FromHost((home.C / "a\\b").string()), "");
    EXPECT_EQ(home.Disk.FromHost("relative"), "");
    EXPECT_EQ(home.Disk.FromHost(""), "");
    fs::remove(home.Drives / "z:");
    EXPECT_EQ(home.Disk.FromHost("/dev/null"), "");
}

// The test's own place lies outside of the user's home.
class LeadsAway : public testing::Test {
  protected:
    LeadsAway() {
        setenv("HOME", (home_.Scratch / "me").c_str(), 1);
        fs::create_directories(home_.Scratch / "me/dotfiles");
        fs::create_directories(home_.Scratch / "else");
        fs::create_directories(home_.C / "QUAKE/ID1");
    }
    ~LeadsAway() override { setenv("HOME", before_.c_str(), 1); }
    void Link(const std::string& name, const fs::path& target) {
        fs::create_symlink(target, home_.C / "QUAKE/ID1" / name);
    }
    std::string Of(const std::string& name) { return home_.Disk.LeadsAway("C:\\QUAKE\\ID1\\" + name, "C:\\QUAKE"); }

    const std::string before_ = getenv("HOME") == nullptr ? "/" : getenv("HOME");
    Home home_;
};

TEST_F(LeadsAway, IsNothingForPlainFilesAndLinksThatStay) {
    WriteBytes(home_.C / "QUAKE/ID1/plain.cfg", "x");
    Link("home.cfg", home_.Scratch / "me/dotfiles/quake.cfg");
    Link("tree.cfg", "../config.cfg");
    Link("circle.cfg", "circle.cfg");
    for (const char* const name : {"plain.cfg", "new.cfg", "home.cfg", "tree.cfg", "circle.cfg"}) {
        EXPECT_EQ(Of(name), "") << name;
    }
}

TEST_F(LeadsAway, IsTheEndOfALinkThatLeadsOut) {
    const std::string there = (home_.Scratch / "else").string();
    WriteBytes(home_.Scratch / "else/real", "x");
    Link("real.cfg", home_.Scratch / "else/real");
    Link("dangling.cfg", home_.Scratch / "else/new");
    Link("two.cfg", "real.cfg");
    EXPECT_EQ(Of("real.cfg"), there + "/real");
    EXPECT_EQ(Of("REAL.CFG"), there + "/real");
    EXPECT_EQ(Of("dangling.cfg"), there + "/new");
    EXPECT_EQ(Of("two.cfg"), there + "/real");
}

TEST_F(LeadsAway, IsAFileOfAnotherKindInTheHomeToo) {
    WriteBytes(home_.Scratch / "me/.bashrc", "x");
    Link("Unreal.ini", home_.Scratch / "me/.bashrc");
    Link("notes.cfg", home_.Scratch / "me/notes.txt");
    Link("same.CFG", home_.Scratch / "me/dotfiles/my.cfg");
    EXPECT_EQ(Of("Unreal.ini"), (home_.Scratch / "me/.bashrc").string());
    EXPECT_EQ(Of("notes.cfg"), (home_.Scratch / "me/notes.txt").string());
    EXPECT_EQ(Of("same.CFG"), "");
}

TEST_F(LeadsAway, IsWhereALinkedDirectoryLies) {
    fs::create_directory_symlink(home_.Scratch / "else", home_.C / "QUAKE/CTF");
    EXPECT_EQ(home_.Disk.LeadsAway("C:\\QUAKE\\CTF\\my.cfg", "C:\\QUAKE"), (home_.Scratch / "else/my.cfg").string());
    EXPECT_EQ(home_.Disk.LeadsAway("C:\\QUAKE\\CTF\\my.cfg", "C:\\QUAKE\\CTF"), "");
}

TEST_F(LeadsAway, IsAskedOfADirectoryToo) {
    fs::create_directory_symlink(home_.Scratch / "else", home_.C / "QUAKE/CTF");
    fs::create_directories(home_.Scratch / "me/my.mods");
    fs::create_directory_symlink(home_.Scratch / "me/my.mods", home_.C / "QUAKE/HOME");
    fs::create_directory_symlink("ID1", home_.C / "QUAKE/SAME");
    EXPECT_EQ(home_.Disk.LeadsAway("C:\\QUAKE\\CTF", "C:\\QUAKE"), (home_.Scratch / "else").string());
    for (const char* const name : {"HOME", "SAME", "ID1", "NONE"}) {
        EXPECT_EQ(home_.Disk.LeadsAway(std::string("C:\\QUAKE\\") + name, "C:\\QUAKE"), "") << name;
    }
}

TEST_F(LeadsAway, CountsADriveThatIsALinkAsNone) {
    fs::create_directory_symlink(home_.Scratch / "else", home_.Drives / "g:");
    fs::create_directories(home_.Scratch / "else/quake");
    EXPECT_EQ(home_.Disk.LeadsAway("G:\\quake\\my.cfg", "G:\\quake"), "");
    EXPECT_EQ(home_.Disk.LeadsAway("G:\\quake\\my.cfg", "C:\\QUAKE"), "");
}

TEST_F(LeadsAway, TakesNoRootForAHomeOrAGame) {
    WriteBytes(home_.Scratch / "else/real", "x");
    Link("real.cfg", home_.Scratch / "else/real");
    setenv("HOME", "/", 1);
    EXPECT_EQ(home_.Disk.LeadsAway("C:\\QUAKE\\ID1\\real.cfg", "Z:\\"), (home_.Scratch / "else/real").string());
}

}  // namespace lv
