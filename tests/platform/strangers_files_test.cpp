// What a stranger packed into an archive, unpacked into a game's directory by the system's own tar, and the program's
// own code at work on it: lists, launches and saves on real files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <fstream>

#include "catalogs/map_scan.h"
#include "catalogs/scripts.h"
#include "foundation/settings.h"
#include "foundry/editor/setup_foundry.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/linux_clock.h"
#include "platform/memory/memory_platform.h"
#include "tests/platform/scratch_directory.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

namespace fs = std::filesystem;
using ::testing::EndsWith;
using ::testing::StartsWith;

void Run_(const std::string& command) {
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
}

std::string Quoted(const fs::path& path) {
    return "'" + path.string() + "'";
}

unsigned ModeOf(const fs::path& file) {
    struct stat info {};
    return stat(file.c_str(), &info) == 0 ? info.st_mode & 07777u : 0u;
}

long PeakKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

// The address sanitizer keeps what was given back, which counts; the plain build holds the figure.
void ExpectGrownBelow(long before, long kilobytes) {
#ifndef __SANITIZE_ADDRESS__
    EXPECT_LT(PeakKilobytes() - before, kilobytes);
#else
    static_cast<void>(before);
    static_cast<void>(kilobytes);
#endif
}

/// A home with Quake and Unreal in it, and an archive that a test fills and unpacks over them.
class StrangersFiles : public ::testing::Test {
  protected:
    StrangersFiles() {
        setenv("HOME", (scratch / "me").c_str(), 1);
        fs::create_directories(scratch / "me");
        fs::create_directories(scratch / "packed");
        fs::create_directories(quake / "ID1");
        fs::create_directories(c / "UNREAL/SYSTEM");
        WriteBytes(scratch / "me/.bashrc", "mine");
        WriteBytes(quake / "QUAKE.EXE", "MZ");
        WriteBytes(quake / "ID1/my.cfg", "bind w +forward\r\n");
        WriteBytes(c / "UNREAL/SYSTEM/UNREAL.EXE", "MZ");
        WriteBytes(c / "UNREAL/SYSTEM/unreal.ini", "[WinDrv.WindowsClient]\r\nBrightness=0.5\r\n");
        Save(run, kStuff, "FirstTime", 0);
        Save(run, kOptions, "Executables", "Quake;C:\\QUAKE\\QUAKE.EXE;Unreal;C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
        Save(run, kOptions, "UseGames", 0);
    }
    ~StrangersFiles() override { setenv("HOME", before.c_str(), 1); }

    void UnpackInto(const fs::path& directory) {
        const std::string archive = Quoted(scratch / "from a stranger.tar");
        Run_("tar -C " + Quoted(scratch / "packed") + " -cSf " + archive + " .");
        ASSERT_LT(fs::file_size(scratch / "from a stranger.tar"), 65536u);
        Run_("tar -C " + Quoted(directory) + " -xf " + archive);
    }
    void PackSparse(const std::string& name, std::string_view bytes, std::uint64_t size) {
        fs::create_directories((scratch / "packed" / name).parent_path());
        WriteBytes(scratch / "packed" / name, bytes);
        fs::resize_file(scratch / "packed" / name, size);
    }
    void Pick(int row) {
        ASSERT_TRUE(LV_Frm_Load(launcher));
        launcher.Window.Exe_Cbo.ListIndex = row;
        Exe_Cbo_Click(launcher);
    }

    const std::string before = getenv("HOME") == nullptr ? "/" : getenv("HOME");
    ScratchDirectory scratch;
    LinuxFiles disk{{scratch / "data/drives", scratch / "wine", scratch / "program"}};
    fs::path c = scratch / "data/drive_c";
    fs::path quake = c / "QUAKE";
    MemoryPlatform memory;
    LinuxClock clock;
    Platform services{memory.Settings, memory.Registry, disk, memory.Programs, memory.Clip, clock, nullptr, nullptr};
    ScriptedUser user;
    lv::Run run{services, user};
    Launcher launcher{run};
};

TEST_F(StrangersFiles, LinksAtTheNamesOfTheLaunchFilesCostNobodyAFile) {
    fs::create_directories(scratch / "packed/ID1");
    for (const char* const name : {"lv_666.bat", "lv_666.pif", "ID1/lv_666.qs"}) {
        fs::create_symlink(scratch / "me/.bashrc", scratch / "packed" / name);
    }
    UnpackInto(quake);
    ASSERT_TRUE(fs::is_symlink(quake / "lv_666.bat"));
    Pick(0);
    launcher.Window.Box(Option::Script_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(BytesOf(scratch / "me/.bashrc"), "mine");
    EXPECT_THAT(BytesOf(quake / "lv_666.bat"), EndsWith("+exec lv_666.qs"));
    EXPECT_THAT(BytesOf(quake / "ID1/lv_666.qs"), StartsWith("exec my.cfg\r\n"));
    EXPECT_EQ(memory.Programs.Started.size(), 1u);
}

TEST_F(StrangersFiles, LaunchFilesAreReadByTheirOwnerAloneWhateverTheArchiveHad) {
    fs::create_directories(scratch / "packed/ID1");
    for (const char* const name : {"lv_666.bat", "ID1/lv_666.qs"}) {
        WriteBytes(scratch / "packed" / name, "open to all");
        fs::permissions(scratch / "packed" / name, fs::perms::all);
    }
    UnpackInto(quake);
    Pick(0);
    launcher.Window.Box(Option::Script_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(ModeOf(quake / "lv_666.bat"), 0600u);
    EXPECT_EQ(ModeOf(quake / "ID1/lv_666.qs"), 0600u);
}

TEST_F(StrangersFiles, AnArchiveOfFourKilobytesThatClaimsFourGigabytesHoldsNothingUp) {
    const std::string header("PACK\x0C\0\0\0\xF0\xFF\xFF\xFF", 12);
    PackSparse("ID1/pak0.pak", header, 4ULL << 30U);
    PackSparse("ID1/pak1.pak", header, 4ULL << 30U);
    UnpackInto(quake);
    ASSERT_EQ(fs::file_size(quake / "ID1/pak0.pak"), 4ULL << 30U);
    const long peak = PeakKilobytes();
    Pick(0);
    ExpectGrownBelow(peak, 2 * 32 * 1024);
    EXPECT_TRUE(launcher.Window.Map_Cbo.Items.empty());
}

TEST_F(StrangersFiles, AnIniOfATerabyteIsRefusedInWords) {
    PackSparse("unreal.ini", "[WinDrv.WindowsClient]\r\n", 1ULL << 40U);
    UnpackInto(c / "UNREAL/SYSTEM");
    Pick(1);
    user.Expect(
        {"Lorvane 3D", "Error Number = 7\r\nError Code = EC00040\r\nError String = The file is larger than 64 MB: "});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(memory.Programs.Started.empty());
    EXPECT_EQ(fs::file_size(c / "UNREAL/SYSTEM/unreal.ini"), 1ULL << 40U);
}

TEST_F(StrangersFiles, AScriptOfATerabyteIsRefusedInWords) {
    PackSparse("ID1/my.cfg", "bind w +forward\r\n", 1ULL << 40U);
    UnpackInto(quake);
    Pick(0);
    SetupFoundry foundry{launcher};
    user.Expect({"Script Not Opened",
                 "Error opening specified script file.\r\n\r\nError Number = 7\r\nError String = The file is larger "
                 "than 256 MB: "});
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(fs::exists(quake / "ID1/my.SetupFoundry_Config_Backup"));
}

TEST_F(StrangersFiles, PipesAndDevicesAreNoScriptsAndNoArchivesAndNobodyWaitsForThem) {
    fs::create_directories(scratch / "packed/ID1/maps");
    for (const char* const name : {"ID1/pipe.cfg", "ID1/pak0.pak", "ID1/maps/pipe.bsp", "ID1/demo.dem"}) {
        ASSERT_EQ(mkfifo((scratch / "packed" / name).c_str(), 0666), 0);
    }
    fs::create_symlink("/dev/zero", scratch / "packed/ID1/zero.cfg");
    fs::create_symlink("/dev/zero", scratch / "packed/ID1/zero.pak");
    UnpackInto(quake);
    Pick(0);
    ASSERT_EQ(launcher.Window.Script_Cbo.Items.size(), 1u);
    EXPECT_TRUE(launcher.Window.Script_Cbo.Items[0].ends_with("my.cfg"));
    EXPECT_TRUE(launcher.Window.Map_Cbo.Items.empty());
    EXPECT_FALSE(disk.FileExists("C:\\QUAKE\\ID1\\demo.dem"));
}

TEST_F(StrangersFiles, AnIniThatIsALinkOutOfHomeAndGameIsAskedAbout) {
    fs::create_directories(scratch / "else");
    WriteBytes(scratch / "else/their.ini", "[WinDrv.WindowsClient]\r\nBrightness=0.5\r\n");
    fs::create_symlink(scratch / "else/their.ini", scratch / "packed/unreal.ini");
    UnpackInto(c / "UNREAL/SYSTEM");
    Pick(1);
    user.Expect({.Title = "Link To Another Place", .Text_ = (scratch / "else/their.ini").string(), .Answer = 0});
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(BytesOf(scratch / "else/their.ini"), "[WinDrv.WindowsClient]\r\nBrightness=0.5\r\n");
}

TEST_F(StrangersFiles, AnIniThatIsALinkIntoTheHomeStaysOne) {
    WriteBytes(scratch / "me/my.ini", "[WinDrv.WindowsClient]\r\nStartupFullScreen=No\r\n");
    fs::create_symlink(scratch / "me/my.ini", scratch / "packed/unreal.ini");
    UnpackInto(c / "UNREAL/SYSTEM");
    Pick(1);
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_TRUE(fs::is_symlink(c / "UNREAL/SYSTEM/unreal.ini"));
    EXPECT_EQ(BytesOf(scratch / "me/my.ini"), "[WinDrv.WindowsClient]\r\nStartupFullScreen=True\r\n");
}

TEST_F(StrangersFiles, WhatAKilledLaunchHasLeftGoesAtTheNextOne) {
    WriteBytes(quake / ".lv_666_2147483600_0", "half a batch with a password");
    WriteBytes(quake / "ID1/.lv_666_2147483600_0", "half a script");
    Pick(0);
    launcher.Window.Box(Option::Script_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_FALSE(fs::exists(quake / ".lv_666_2147483600_0"));
    EXPECT_FALSE(fs::exists(quake / "ID1/.lv_666_2147483600_0"));
}

TEST_F(StrangersFiles, AnotherSpellingOfALaunchFileIsNeitherWrittenNorLeftBeside) {
    fs::create_directories(scratch / "packed/ID1");
    WriteBytes(scratch / "packed/ID1/LV_666.QS", "quit");
    fs::create_symlink(scratch / "me/.bashrc", scratch / "packed/LV_666.BAT");
    UnpackInto(quake);
    Pick(0);
    launcher.Window.Box(Option::Script_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(BytesOf(scratch / "me/.bashrc"), "mine");
    EXPECT_THAT(BytesOf(quake / "ID1/lv_666.qs"), StartsWith("exec my.cfg\r\n"));
    EXPECT_FALSE(fs::exists(quake / "ID1/LV_666.QS"));
    EXPECT_THAT(BytesOf(quake / "lv_666.bat"), EndsWith("+exec lv_666.qs"));
    EXPECT_FALSE(fs::is_symlink(quake / "LV_666.BAT"));
}

TEST_F(StrangersFiles, PipesAtTheNamesOfTheLaunchFilesHoldNoLaunchUp) {
    fs::create_directories(scratch / "packed/ID1");
    for (const char* const name : {"lv_666.bat", "lv_666.pif", "ID1/lv_666.qs"}) {
        ASSERT_EQ(mkfifo((scratch / "packed" / name).c_str(), 0666), 0);
    }
    UnpackInto(quake);
    Pick(0);
    launcher.Window.Box(Option::Script_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_THAT(BytesOf(quake / "ID1/lv_666.qs"), StartsWith("exec my.cfg\r\n"));
    EXPECT_THAT(BytesOf(quake / "lv_666.bat"), EndsWith("+exec lv_666.qs"));
    EXPECT_EQ(memory.Programs.Started.size(), 1u);
}

TEST_F(StrangersFiles, ADirectoryAtTheNameOfALaunchFileIsNamed) {
    fs::create_directories(scratch / "packed/ID1/LV_666.QS");
    UnpackInto(quake);
    Pick(0);
    launcher.Window.Box(Option::Script_Chk).Value = 1;
    user.Expect({"Lorvane 3D",
                 "Error String = Path/File access error: c:\\quake\\ID1\\lv_666.qs is a directory. Rename it, or "
                 "remove it.\r\n"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(memory.Programs.Started.empty());
}

TEST_F(StrangersFiles, APipeAtTheNameOfTheIniIsNamed) {
    ASSERT_EQ(mkfifo((scratch / "packed/unreal.ini").c_str(), 0666), 0);
    UnpackInto(c / "UNREAL/SYSTEM");
    Pick(1);
    user.Expect({"Lorvane 3D", "Error String = Path/File access error: c:\\unreal\\system\\unreal.ini\r\n"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(memory.Programs.Started.empty());
}

TEST_F(StrangersFiles, ADataDirectoryThatIsALinkOutOfHomeAndGameIsAskedAbout) {
    fs::create_directories(scratch / "else");
    WriteBytes(scratch / "else/their.cfg", "");
    WriteBytes(scratch / "else/lv_666.qs", "theirs");
    fs::remove_all(quake / "ID1");
    fs::create_directory_symlink(scratch / "else", scratch / "packed/ID1");
    UnpackInto(quake);
    Pick(0);
    launcher.Window.Box(Option::Script_Chk).Value = 1;
    user.Expect({.Title = "Link To Another Place", .Text_ = (scratch / "else").string(), .Answer = 0});
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(BytesOf(scratch / "else/lv_666.qs"), "theirs");
    EXPECT_FALSE(fs::exists(quake / "lv_666.bat"));
}

TEST_F(StrangersFiles, AScriptOfHolesCostsNoMemory) {
    PackSparse("ID1/my.cfg", "bind w +forward", 200'000'000);
    UnpackInto(quake);
    Pick(0);
    SetupFoundry foundry{launcher};
    user.Expect({.Title = "A Large Script", .Text_ = "has 190 MB.", .Answer = 1});
    user.Expect({.Title = "SetupFoundry Information", .Text_ = "A backup copy has been stored"});
    user.In<Fig_Frm>([](Fig_Frm& form) { EXPECT_EQ(form.Document.Sections.at(0).Text, ""); });
    const long peak = PeakKilobytes();
    SetupFoundry_Bar_Click(foundry);
    ExpectGrownBelow(peak, 32 * 1024);
}

}  // namespace
}  // namespace lv
