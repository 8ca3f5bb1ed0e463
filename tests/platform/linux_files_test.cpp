#include "platform/linux/files/linux_files.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "tests/platform/linux_home.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

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

TEST(LinuxFiles, CountsDirectoriesThatHaveNoNameHere) {
    Home home;
    for (const char* const name : {"\xD0\x9A\xD0\xB2", "\xD0\xB0", ".\xD0\xB0", "plain"}) {
        fs::create_directories(home.C / "games" / name);
    }
    WriteBytes(home.C / "games" / "\xD0\xB2", "a file");
    const auto listed = home.Disk.ListForWalk("C:\\games");
    EXPECT_EQ(listed.Value.Nameless, 2u);
    EXPECT_EQ(home.Disk.ListForWalk("C:\\games\\plain").Value.Nameless, 0u);
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

TEST(LinuxFiles, AreWalkedAsTheyAreSpelledAndOtherwise) {
    Home home;
    fs::create_directories(home.C / "Games/Quake");
    ASSERT_TRUE(home.Disk.ListForWalk("C:\\").Ok());
    const auto spelled = home.Disk.ListForWalk("C:\\Games\\Quake");
    ASSERT_TRUE(spelled.Ok());
    EXPECT_EQ(home.Disk.ListForWalk("c:\\GAMES\\quake").Value.Identity, spelled.Value.Identity);
    EXPECT_EQ(home.Disk.ListForWalk("C:\\Games\\x\\..\\Quake").Value.Identity, spelled.Value.Identity);
    EXPECT_EQ(home.Disk.ListForWalk("C:\\Games\\none").Fault.Number, 76);
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

TEST(LinuxFiles, TellAPlainFileFromWhatOnlyReadsLikeOne) {
    Home home;
    WriteBytes(home.C / "File", "x");
    fs::create_symlink(home.C / "File", home.C / "link");
    fs::create_symlink(home.C / "none", home.C / "broken");
    ASSERT_EQ(mkfifo((home.C / "pipe").c_str(), 0600), 0);
    EXPECT_TRUE(home.Disk.IsPlainFile("C:\\FILE"));
    for (const char* const path :
         {"C:\\File\\", "C:\\link", "C:\\broken", "C:\\pipe", "C:\\", "C:\\none", "X:\\File"}) {
        EXPECT_FALSE(home.Disk.IsPlainFile(path)) << path;
    }
}

TEST(LinuxFiles, KnowALinkOfTheirOwnWhoseFileIsGone) {
    Home home;
    fs::create_directories(home.C / "tree/ID1");
    WriteBytes(home.C / "tree/ID1/PAK0.PAK", "PACK");
    EXPECT_EQ(home.Disk.Link("C:\\TREE\\id1\\pak0.pak", "C:\\pak0.pak").Number, 0);
    EXPECT_TRUE(fs::is_symlink(home.C / "pak0.pak"));
    EXPECT_EQ(home.Disk.LeadsInto("C:\\pak0.pak", "C:\\tree"), "ID1\\PAK0.PAK");
    fs::remove(home.C / "tree/ID1/PAK0.PAK");
    EXPECT_FALSE(home.Disk.FileExists("C:\\pak0.pak"));
    EXPECT_EQ(home.Disk.LeadsInto("C:\\pak0.pak", "C:\\tree"), "ID1\\PAK0.PAK");
    EXPECT_EQ(home.Disk.LeadsInto("C:\\pak0.pak", "C:\\tre"), "");
    EXPECT_EQ(home.Disk.Link("C:\\tree", "C:\\pak0.pak").Number, 75);
    EXPECT_EQ(home.Disk.Delete("C:\\pak0.pak").Number, 0);
    EXPECT_FALSE(fs::is_symlink(home.C / "pak0.pak"));
}

TEST(LinuxFiles, KnowATreeInTheSecondOfTwoDirectoriesOfOneName) {
    Home home;
    fs::create_directories(home.C / "games/doom");
    fs::create_directories(home.C / "Games/quake/id1");
    WriteBytes(home.C / "Games/quake/id1/pak0.pak", "PACK");
    EXPECT_TRUE(home.Disk.DirectoryExists("c:\\games\\quake"));
    EXPECT_EQ(home.Disk.Read("c:\\games\\quake\\id1\\pak0.pak").Value, "PACK");
    EXPECT_EQ(home.Disk.ToHost("c:\\games\\quake"), (home.C / "Games/quake").string());
    EXPECT_EQ(home.Disk.ChangeDirectory("c:\\games\\quake").Number, 0);
    EXPECT_EQ(home.Disk.CurrentDirectory(), "C:\\Games\\quake");
    EXPECT_EQ(home.Disk.ReplaceOwn("c:\\games\\quake\\lv_666.bat", "new").Number, 0);
    EXPECT_EQ(BytesOf(home.C / "Games/quake/lv_666.bat"), "new");
    EXPECT_EQ(home.Disk.MakeDirectory("c:\\games\\quake\\mod").Number, 0);
    EXPECT_TRUE(fs::is_directory(home.C / "Games/quake/mod"));
}

TEST(LinuxFiles, DeleteNoFileOfTheOtherOfTwoTrees) {
    Home home;
    fs::create_directories(home.C / "games/quake");
    fs::create_directories(home.C / "Games/quake");
    WriteBytes(home.C / "Games/quake/lv_666.bat", "other");
    EXPECT_EQ(home.Disk.Delete("c:\\games\\quake\\lv_666.bat").Number, 53);
    EXPECT_TRUE(fs::exists(home.C / "Games/quake/lv_666.bat"));
}

TEST(LinuxFiles, ListLinksWithWhereTheyLead) {
    Home home;
    fs::create_directories(home.C / "tree/ID1");
    fs::create_directories(home.C / "own/sub");
    fs::create_directories(home.C / "elsewhere");
    WriteBytes(home.C / "tree/ID1/PAK0.PAK", "PACK");
    WriteBytes(home.C / "tree/ID1/gone.pak", "PACK");
    WriteBytes(home.C / "own/mine.cfg", "mine");
    fs::create_symlink("../elsewhere", home.C / "own/away");
    fs::create_symlink("../tree/ID1/PAK0.PAK", home.C / "own/users.pak");
    ASSERT_EQ(home.Disk.Link("C:\\tree\\id1\\pak0.pak", "C:\\own\\pak0.pak").Number, 0);
    ASSERT_EQ(home.Disk.Link("C:\\tree\\id1\\gone.pak", "C:\\own\\gone.pak").Number, 0);
    fs::remove(home.C / "tree/ID1/gone.pak");
    const std::vector<std::string> expected = {"away: directory, elsewhere",
                                               "gone.pak: ID1\\gone.pak, elsewhere, gone",
                                               "mine.cfg: ",
                                               "pak0.pak: ID1\\PAK0.PAK, elsewhere",
                                               "sub: directory",
                                               "users.pak: , elsewhere"};
    const std::vector<std::string> byPathsAlone = {"away: directory, elsewhere",
                                                   "gone.pak: ID1\\gone.pak, gone",
                                                   "mine.cfg: ",
                                                   "pak0.pak: ID1\\PAK0.PAK",
                                                   "sub: directory",
                                                   "users.pak: "};
    const auto told = [](const Result<std::vector<LinkedEntry>>& listed) {
        std::vector<std::string> lines;
        for (const LinkedEntry& entry : listed.Value) {
            lines.push_back(entry.Name + ": " + (entry.IsDirectory ? "directory" : entry.LeadsInto) +
                            (entry.IsElsewhere ? ", elsewhere" : "") + (entry.IsGone ? ", gone" : ""));
        }
        std::ranges::sort(lines);
        return lines;
    };
    EXPECT_EQ(told(home.Disk.ListLinks("C:\\own", "C:\\tree")), expected);
    EXPECT_EQ(told(home.Disk.Files::ListLinks("C:\\own", "C:\\tree")), byPathsAlone);
    EXPECT_EQ(home.Disk.ListLinks("C:\\none", "C:\\tree").Fault.Number, 76);
}

TEST(LinuxFiles, TakeNoLinkOfTheUsersForTheirOwn) {
    Home home;
    fs::create_directories(home.C / "tree");
    WriteBytes(home.C / "tree/a.pak", "PACK");
    fs::create_symlink("tree/a.pak", home.C / "short.pak");
    fs::create_symlink(home.C / "tree/../tree/a.pak", home.C / "round.pak");
    EXPECT_FALSE(home.Disk.IsLinkTo("C:\\short.pak", "C:\\tree\\a.pak"));
    EXPECT_EQ(home.Disk.LeadsInto("C:\\short.pak", "C:\\tree"), "");
    EXPECT_FALSE(home.Disk.IsLinkTo("C:\\round.pak", "C:\\tree\\a.pak"));
}

TEST(LinuxFiles, CannotWriteWhereTheUserMayNot) {
    Home home;
    fs::create_directories(home.C / "tree");
    fs::permissions(home.C / "tree", fs::perms::owner_read | fs::perms::owner_exec);
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && seteuid(65534) != 0) {
            _exit(2);
        }
        _exit(home.Disk.CanWrite("C:\\tree") ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    fs::permissions(home.C / "tree", fs::perms::owner_all);
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

TEST(LinuxFiles, StartAProgramThatLiesElsewhereUnderItsStandInsPath) {
    Home home;
    fs::create_directories(home.C / "quake");
    fs::create_directories(home.Scratch / "bin");
    WriteBytes(home.Scratch / "bin/engine", "#!");
    EXPECT_TRUE(home.Disk.StandIn("c:\\quake\\engine", OnZ(home.Scratch / "bin/engine")));
    ASSERT_TRUE(home.Disk.FileExists("C:\\QUAKE\\ENGINE"));
    EXPECT_EQ(home.Disk.Open("C:\\quake\\engine").Value->Read(0, 2).Value, "#!");
    EXPECT_EQ(home.Disk.ToHost("C:\\QUAKE\\ENGINE"), (home.Scratch / "bin/engine").string());
    EXPECT_EQ(home.Disk.Delete("C:\\quake\\engine").Number, 53);
    EXPECT_TRUE(fs::exists(home.Scratch / "bin/engine"));
    fs::create_directories(home.C / "quake/engine");  // some make one where they play
    EXPECT_EQ(home.Disk.Open("C:\\quake\\engine").Value->Read(0, 2).Value, "#!");
    fs::remove(home.C / "quake/engine");
    WriteBytes(home.C / "quake/Engine", "own");
    EXPECT_EQ(home.Disk.Open("C:\\quake\\engine").Value->Read(0, 3).Value, "own");
}

}  // namespace lv
