#include "platform/linux/linux_files.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

// A home whose "C:" is the directory `C` of the host.
struct Home {
    ScratchDirectory Scratch;
    LinuxFiles Disk{{Scratch / "data/drives", Scratch / "wine", Scratch / "program"}};
    fs::path C = Scratch / "data/drive_c";
    fs::path Drives = Scratch / "data/drives";
};

Names NamesOf(const std::vector<DirectoryEntry>& entries) {
    Names names;
    for (const DirectoryEntry& entry : entries) {
        names.push_back(entry.Name + (entry.IsDirectory ? "\\" : ""));
    }
    return names;
}

// A host path on the drive that holds everything: "/a/b" is "Z:\a\b".
std::string OnZ(const fs::path& host) {
    std::string path = "Z:" + host.string();
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

}  // namespace

TEST(LinuxFiles, StartWithCAndZ) {
    Home home;
    EXPECT_EQ(home.Disk.DrivesFault().Number, 0);
    EXPECT_EQ(home.Disk.Drives(), (Names{"C:", "Z:"}));
    EXPECT_EQ(home.Disk.CurrentDirectory(), "C:\\");
    WriteBytes(home.C / "a.cfg", "x");
    EXPECT_EQ(home.Disk.Read("C:\\A.CFG").Value, "x");
    EXPECT_EQ(home.Disk.Read(OnZ(home.C / "a.cfg")).Value, "x");
}

TEST(LinuxFiles, TellWhatKeptTheDrivesFromBeingMade) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "data", "a file");
    LinuxFiles disk({scratch / "data/drives", scratch / "wine", scratch / "program"});
    EXPECT_EQ(disk.DrivesFault().Number, 76);
    EXPECT_EQ(disk.Drives(), Names());
    EXPECT_EQ(disk.ProbeDrive("C:").Number, 68);
    EXPECT_EQ(disk.Replace("C:\\A", "x").Number, 76);
}

TEST(LinuxFiles, UseTheDrivesOfTheWinePrefix) {
    Home home;
    fs::create_directories(home.Scratch / "wine/dosdevices/d:/GAMES");
    EXPECT_EQ(home.Disk.Drives(), (Names{"C:", "D:", "Z:"}));
    EXPECT_TRUE(home.Disk.DirectoryExists("D:\\games"));
    EXPECT_EQ(home.Disk.ChangeDrive("D:").Number, 0);
    EXPECT_EQ(home.Disk.CurrentDirectory(), "D:\\");
}

TEST(LinuxFiles, NeverTouchAAndB) {
    Home home;
    fs::create_directories(home.Drives / "a:");
    EXPECT_EQ(home.Disk.Drives(), (Names{"C:", "Z:"}));
    EXPECT_EQ(home.Disk.ProbeDrive("A:").Number, 68);
    EXPECT_FALSE(home.Disk.DirectoryExists("A:\\"));
    EXPECT_EQ(home.Disk.Replace("A:\\X", "x").Number, 76);
    EXPECT_TRUE(fs::is_empty(home.Drives / "a:"));
}

TEST(LinuxFiles, SayThatADriveWhoseDiskIsOutIsNotReady) {
    Home home;
    fs::create_symlink(home.Scratch / "no such disk", home.Drives / "e:");
    EXPECT_EQ(home.Disk.Drives(), (Names{"C:", "E:", "Z:"}));
    EXPECT_EQ(home.Disk.ProbeDrive("E:").Number, 71);
    EXPECT_EQ(home.Disk.List("E:\\").Fault.Number, 76);
}

TEST(LinuxFiles, LeaveNamesOutOfListingsThatCannotBeSaid) {
    Home home;
    for (const char* const name : {"a.pak", "\xE6\x97\xA5", "bad\xFF", "back\\slash", "\xC3\xA9"}) {
        WriteBytes(home.C / name, "");
    }
    Names names = NamesOf(home.Disk.List("C:\\").Value);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (Names{"..\\", ".\\", "a.pak", "\xE9"}));
}

TEST(LinuxFiles, ListInTheFileSystemsOrder) {
    Home home;
    Names expected = {".", ".."};
    for (int i = 0; i < 50; ++i) {
        WriteBytes(home.C / std::to_string(i * 7919 % 50), "");
    }
    for (const auto& entry : fs::directory_iterator(home.C)) {
        expected.push_back(entry.path().filename().string());
    }
    Names names;
    for (const auto& entry : home.Disk.List("C:\\").Value) {
        names.push_back(entry.Name);
    }
    EXPECT_EQ(names, expected);
}

TEST(LinuxFiles, KnowADirectoryAgainBehindALink) {
    Home home;
    fs::create_directory(home.C / "real");
    fs::create_directory_symlink(home.C / "real", home.C / "link");
    const auto real = home.Disk.ListForWalk("C:\\real");
    ASSERT_TRUE(real.Ok());
    EXPECT_EQ(home.Disk.ListForWalk("C:\\link").Value.Identity, real.Value.Identity);
    EXPECT_EQ(home.Disk.ListForWalk(OnZ(home.C / "real")).Value.Identity, real.Value.Identity);
}

TEST(LinuxFiles, AreNotWalkedInTheKernelsOwn) {
    Home home;
    for (const char* const path : {"Z:\\proc", "Z:\\sys", "Z:\\dev"}) {
        EXPECT_EQ(home.Disk.ListForWalk(path).Fault.Number, 75) << path;
        EXPECT_TRUE(home.Disk.List(path).Ok()) << path;
    }
}

TEST(LinuxFiles, FollowLinksToTellDirectories) {
    Home home;
    fs::create_directory(home.Scratch / "elsewhere");
    fs::create_directory_symlink(home.Scratch / "elsewhere", home.C / "id1");
    fs::create_symlink("nowhere", home.C / "gone");
    Names names = NamesOf(home.Disk.List("C:\\").Value);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (Names{"..\\", ".\\", "gone", "id1\\"}));
    EXPECT_FALSE(home.Disk.FileExists("C:\\gone"));
}

TEST(LinuxFiles, DoNotWaitForPipesOrDevices) {
    Home home;
    ASSERT_EQ(mkfifo((home.C / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(home.Disk.Read("C:\\pipe").Fault.Number, 75);
    EXPECT_EQ(home.Disk.Open("C:\\pipe").Fault.Number, 75);
    EXPECT_EQ(home.Disk.Copy("C:\\pipe", "C:\\copy").Number, 75);
    EXPECT_EQ(home.Disk.Read("Z:\\dev\\zero").Fault.Number, 75);
    EXPECT_FALSE(fs::exists(home.C / "copy"));
}

TEST(LinuxFiles, ReadAFileWhoseSizeTheSystemDoesNotTell) {
    Home home;
    EXPECT_NE(home.Disk.Read("Z:\\proc\\self\\status").Value.find("Name:"), std::string::npos);
}

TEST(LinuxFiles, RefuseLinksInACircle) {
    Home home;
    fs::create_symlink("b", home.C / "a");
    fs::create_symlink("a", home.C / "b");
    EXPECT_EQ(home.Disk.Read("C:\\a").Fault.Number, 76);
    EXPECT_EQ(home.Disk.Replace("C:\\a", "x").Number, 76);
}

TEST(LinuxFiles, TakeAFileForADirectoryNowhere) {
    Home home;
    WriteBytes(home.C / "file", "x");
    EXPECT_EQ(home.Disk.Read("C:\\file\\a").Fault.Number, 76);
    EXPECT_EQ(home.Disk.Replace("C:\\file\\a", "x").Number, 76);
    EXPECT_EQ(home.Disk.MakeDirectory("C:\\file\\a").Number, 76);
    EXPECT_EQ(home.Disk.Replace("C:\\new\\", "x").Number, 75);
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

TEST(LinuxFiles, DeleteALinkAndNotWhatItLeadsTo) {
    Home home;
    WriteBytes(home.C / "real.cfg", "x");
    fs::create_symlink("real.cfg", home.C / "link.cfg");
    fs::create_symlink("nowhere", home.C / "gone.cfg");
    EXPECT_EQ(home.Disk.Delete("C:\\LINK.CFG").Number, 0);
    EXPECT_EQ(home.Disk.Delete("C:\\GONE.CFG").Number, 0);
    EXPECT_EQ(BytesOf(home.C / "real.cfg"), "x");
    EXPECT_FALSE(fs::is_symlink(home.C / "link.cfg"));
    EXPECT_FALSE(fs::is_symlink(home.C / "gone.cfg"));
}

TEST(LinuxFiles, RefuseWhatTheUserMayNotTouch) {
    Home home;
    fs::permissions(home.Scratch.Path(), fs::perms::all);
    WriteBytes(home.C / "secret", "x");
    chmod((home.C / "secret").c_str(), 0000);
    WriteBytes(home.C / "readonly", "x");
    chmod((home.C / "readonly").c_str(), 0444);
    fs::create_directory(home.C / "closed");
    chmod((home.C / "closed").c_str(), 0000);
    chmod(home.C.c_str(), 0777);
    const fs::path data = home.Scratch / "data";
    chmod(data.c_str(), 0755);
    chmod(home.Drives.c_str(), 0755);
    // Everything is allowed to root: the question is asked as somebody who is not.
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && setresuid(65534, 65534, 65534) != 0) {
            _exit(90);
        }
        const bool asPromised =
            home.Disk.Read("C:\\secret").Fault.Number == 70 && home.Disk.Delete("C:\\readonly").Number == 75 &&
            home.Disk.Replace("C:\\readonly", "y").Number == 75 && home.Disk.List("C:\\closed").Fault.Number == 75;
        _exit(asPromised ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(BytesOf(home.C / "readonly"), "x");
}

TEST(LinuxFiles, LeaveTheProcesssOwnDirectoryAlone) {
    Home home;
    const fs::path before = fs::current_path();
    fs::create_directory(home.C / "quake");
    EXPECT_EQ(home.Disk.ChangeDirectory("C:\\QUAKE").Number, 0);
    EXPECT_EQ(home.Disk.CurrentDirectory(), "C:\\quake");
    EXPECT_EQ(fs::current_path(), before);
}

TEST(LinuxFiles, RemoveNoDriveAndNoLink) {
    Home home;
    fs::create_directory(home.Scratch / "elsewhere");
    fs::create_directory_symlink(home.Scratch / "elsewhere", home.C / "id1");
    EXPECT_EQ(home.Disk.RemoveDirectory("C:\\").Number, 75);
    EXPECT_EQ(home.Disk.RemoveDirectory("C:\\id1").Number, 75);
    EXPECT_TRUE(fs::is_symlink(home.C / "id1"));
    EXPECT_TRUE(fs::is_symlink(home.Drives / "c:"));
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

TEST(FromTyped, TakesTheHostsOwnPathsAsThoseOfTheDrives) {
    const std::string before = getenv("HOME") != nullptr ? getenv("HOME") : "";
    Home home;
    setenv("HOME", (home.Scratch / "me").c_str(), 1);
    fs::create_directories(home.Scratch / "me/games");
    EXPECT_EQ(home.Disk.UserHome(), OnZ(home.Scratch / "me"));
    EXPECT_EQ(home.Disk.FromTyped("~"), OnZ(home.Scratch / "me"));
    EXPECT_EQ(home.Disk.FromTyped("~/games/new"), OnZ(home.Scratch / "me/games/new"));
    EXPECT_EQ(home.Disk.FromTyped((home.C / "QUAKE/").string()), "C:\\QUAKE");
    EXPECT_EQ(home.Disk.FromTyped("/srv/\xE9"), "Z:\\srv\\\xE9");
    setenv("HOME", before.c_str(), 1);
}

TEST(FromTyped, LeavesEverythingElseAsItIs) {
    Home home;
    for (const char* typed : {"C:\\QUAKE", "c:/quake", "\\QUAKE", "id1", "~me/quake", "", "PROGRA~1"}) {
        EXPECT_EQ(home.Disk.FromTyped(typed), typed);
    }
    fs::remove(home.Drives / "z:");
    EXPECT_EQ(home.Disk.FromTyped("/dev/null"), "/dev/null");
}

TEST(ProgramDirectory, IsAPathOnTheDrives) {
    Home home;
    fs::create_directory(home.Scratch / "program");
    fs::create_directory_symlink(home.Scratch / "program", home.Drives / "p:");
    EXPECT_EQ(home.Disk.ProgramDirectory(), "P:\\");
}

TEST(LinuxFiles, ListPipesSocketsAndDevicesAsSuch) {
    Home home;
    ASSERT_EQ(mkfifo((home.C / "pipe.cfg").c_str(), 0600), 0);
    fs::create_symlink("pipe.cfg", home.C / "link to pipe.cfg");
    fs::create_symlink("/dev/zero", home.C / "zero.dem");
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{AF_UNIX, {}};
    const std::string name = (home.C / "socket.pak").string();
    ASSERT_LT(name.size(), sizeof address.sun_path);
    std::copy(name.begin(), name.end(), address.sun_path);
    ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    WriteBytes(home.C / "plain.cfg", "x");
    fs::create_symlink("plain.cfg", home.C / "link.cfg");
    fs::create_symlink("nowhere", home.C / "gone.cfg");
    Names devices;
    for (const DirectoryEntry& entry : home.Disk.List("C:\\").Value) {
        if (entry.IsDevice) {
            devices.push_back(entry.Name);
        }
    }
    close(listener);
    std::sort(devices.begin(), devices.end());
    EXPECT_EQ(devices, (Names{"link to pipe.cfg", "pipe.cfg", "socket.pak", "zero.dem"}));
    for (const std::string& device : devices) {
        EXPECT_FALSE(home.Disk.FileExists("C:\\" + device)) << device;
        EXPECT_FALSE(home.Disk.DirectoryExists("C:\\" + device)) << device;
        EXPECT_EQ(home.Disk.Open("C:\\" + device).Fault.Number, 75) << device;
    }
    EXPECT_TRUE(home.Disk.FileExists("C:\\link.cfg"));
}

TEST(LinuxFiles, ReadAndCopyNoFileOfATerabyte) {
    Home home;
    WriteBytes(home.C / "huge.ini", "[x]");
    fs::resize_file(home.C / "huge.ini", 1ULL << 40U);
    const Error read = home.Disk.Read("C:\\huge.ini").Fault;
    EXPECT_EQ(read.Number, 7);
    EXPECT_EQ(read.Text, "The file is larger than 256 MB");
    EXPECT_EQ(home.Disk.Copy("C:\\huge.ini", "C:\\copy.ini").Number, 7);
    EXPECT_EQ(home.Disk.CopyOwn("C:\\huge.ini", "C:\\copy.ini").Number, 7);
    EXPECT_FALSE(fs::exists(home.C / "copy.ini"));
}

// The address sanitizer maps an address space of its own, which no limit may cut; the plain build runs this.
#ifndef __SANITIZE_ADDRESS__
TEST(LinuxFiles, TellThatThereIsNoMemoryForAStretch) {
    Home home;
    WriteBytes(home.C / "huge.pak", "PACK");
    fs::resize_file(home.C / "huge.pak", 1ULL << 40U);
    const auto file = home.Disk.Open("C:\\huge.pak");
    ASSERT_TRUE(file.Ok());
    const pid_t child = fork();
    if (child == 0) {
        const rlimit most{1U << 30U, 1U << 30U};
        setrlimit(RLIMIT_AS, &most);
        _exit(file.Value->Read(0, 1ULL << 39U).Fault.Number);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_EQ(file.Value->Read(0, 4).Value, "PACK");
}
#endif

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
