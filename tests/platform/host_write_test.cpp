#include "platform/linux/files/host_write.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/platform/linux_home.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

}  // namespace

TEST(PutHostFile, RefusesARootAndAPathThatSaysDirectory) {
    const Home home;
    const FileFiller none = [](int) { return 0; };
    const HostPlace root{{'C', {}}, home.C.string(), home.C.string(), false};
    const HostPlace directory{{'C', {"new"}}, home.C.string(), (home.C / "new").string(), true};
    for (const Whose whose : {Whose::kUsers, Whose::kOurs}) {
        EXPECT_EQ(PutHostFile(root, whose, 0666, none).Number, 75);
        EXPECT_EQ(PutHostFile(directory, whose, 0666, none).Number, 75);
    }
    EXPECT_FALSE(fs::exists(home.C / "new"));
}

TEST(LinuxFiles, CopyTheRightToRun) {
    Home home;
    WriteBytes(home.C / "run.sh", "x");
    chmod((home.C / "run.sh").c_str(), 0555);
    EXPECT_EQ(home.Disk.Copy("C:\\run.sh", "C:\\copy.sh").Number, 0);
    struct stat info {};
    ASSERT_EQ(stat((home.C / "copy.sh").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0700u, 0700u);
}

TEST(LinuxFiles, ReplaceALinkByTheProgramsOwnFile) {
    Home home;
    WriteBytes(home.Scratch / ".bashrc", "mine");
    fs::create_directory(home.C / "QUAKE");
    fs::create_symlink(home.Scratch / ".bashrc", home.C / "QUAKE/lv_666.bat");
    EXPECT_EQ(home.Disk.ReplaceOwn("C:\\QUAKE\\LV_666.BAT", "new").Number, 0);
    EXPECT_EQ(home.Disk.Read("C:\\QUAKE\\lv_666.bat").Value, "new");
    fs::create_symlink(home.Scratch / ".bashrc", home.C / "QUAKE/lv_666.pif");
    EXPECT_EQ(home.Disk.CopyOwn("C:\\QUAKE\\LV_666.BAT", "C:\\QUAKE\\lv_666.pif").Number, 0);
    EXPECT_EQ(home.Disk.Read("C:\\QUAKE\\lv_666.pif").Value, "new");
    EXPECT_EQ(BytesOf(home.Scratch / ".bashrc"), "mine");
    struct stat info {};
    EXPECT_FALSE(fs::exists(fs::symlink_status(home.C / "QUAKE/lv_666.bat")));
    ASSERT_EQ(stat((home.C / "QUAKE/LV_666.BAT").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777u, 0600u);
}

TEST(LinuxFiles, SpellTheProgramsOwnFilesAsTheProgramDoes) {
    Home home;
    WriteBytes(home.Scratch / ".bashrc", "mine");
    fs::create_directories(home.C / "QUAKE/Id1");
    WriteBytes(home.C / "QUAKE/Id1/LV_666.QS", "a stranger's");
    fs::create_symlink(home.Scratch / ".bashrc", home.C / "QUAKE/Id1/Lv_666.qs");
    EXPECT_EQ(home.Disk.ReplaceOwn("C:\\QUAKE\\ID1\\lv_666.qs", "ours").Number, 0);
    EXPECT_EQ(BytesOf(home.C / "QUAKE/Id1/lv_666.qs"), "ours");
    EXPECT_EQ(std::distance(fs::directory_iterator(home.C / "QUAKE/Id1"), fs::directory_iterator()), 1);
    EXPECT_EQ(BytesOf(home.Scratch / ".bashrc"), "mine");
    fs::create_directory(home.C / "QUAKE/LV_666.BAT");
    EXPECT_EQ(home.Disk.ReplaceOwn("C:\\QUAKE\\lv_666.bat", "ours").Number, 75);
    EXPECT_FALSE(fs::exists(home.C / "QUAKE/lv_666.bat"));
}

TEST(LinuxFiles, CopyAFileOfHolesAsOne) {
    Home home;
    WriteBytes(home.C / "holes.cfg", "bind a +attack\n");
    fs::resize_file(home.C / "holes.cfg", 100'000'001);
    EXPECT_EQ(home.Disk.Copy("C:\\holes.cfg", "C:\\copy.cfg").Number, 0);
    EXPECT_EQ(fs::file_size(home.C / "copy.cfg"), 100'000'001u);
    const auto copied = home.Disk.Open("C:\\copy.cfg");
    EXPECT_EQ(copied.Value->Read(0, 17).Value, std::string("bind a +attack\n\0\0", 17));
    EXPECT_EQ(copied.Value->Read(99'999'999, 10).Value, std::string(2, '\0'));
    struct stat info {};
    ASSERT_EQ(stat((home.C / "copy.cfg").c_str(), &info), 0);
    EXPECT_LT(info.st_blocks * 512, 10'000'000);
}

}  // namespace lv
