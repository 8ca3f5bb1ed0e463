// Names of strangers on the real roads: unpacked from a real archive, found by the program's own scans, started by its
// own launch through Wine, in DOSBox and directly. tests/program/windows/commands_test.cpp has the same for Windows.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "foundation/settings.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/linux_processes.h"
#include "platform/memory/memory_platform.h"
#include "tests/engines/engine_run.h"
#include "tests/support/game_yard.h"
#include "tests/support/quiet_start.h"
#include "tests/support/scripted_user.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Strings = std::vector<std::string>;

/// A drive C: of this system's own kind, with a launcher on it.
struct StrangersYard {
    explicit StrangersYard(const std::string& name)
        : Root(fs::path(TestBinaryDir()) / "yards/engines" / name),
          Disk((fs::remove_all(Root), DriveDirectories{Root / "data/drives", Root / "wine", Root / "program"})),
          Programs(Disk, {"", Root / "cache", TestWinePrefix(), fs::path(TestBinaryDir()) / "lorvane3d-pause",
                          Root / "state"}) {
        PrepareQuietStart(run);
    }

    void AddGame(const std::string& standIn, const std::string& file) const {
        fs::create_directories((C / file).parent_path());
        fs::copy_file(fs::path(TestBinaryDir()) / "standins" / standIn, C / file);
    }
    void AddFile(const std::string& file, const std::string& bytes) const {
        fs::create_directories((C / file).parent_path());
        std::ofstream(C / file, std::ios::binary) << bytes;
    }

    /// Packs files of these names into an archive, and unpacks that in the directory below the drive.
    void Unpack(const Strings& names, const std::string& directory) const {
        const fs::path packed = Root / "packed";
        for (const std::string& name : names) {
            fs::create_directories((packed / name).parent_path());
            std::ofstream(packed / name) << "echo pwned>pwned-by-file.txt\r\n";
        }
        const std::string archive = Root / "stranger.tar";
        fs::create_directories(C / directory);
        ASSERT_EQ(RunTool({"tar", "-C", packed.c_str(), "-cf", archive.c_str(), "."}), 0);
        ASSERT_EQ(RunTool({"tar", "-C", (C / directory).c_str(), "-xf", archive.c_str()}), 0);
    }

    void Load(const std::string& executable) {
        Save(run, kOptions, "Executables", TextView("Game;" + executable));
        ASSERT_TRUE(LV_Frm_Load(launcher));
        ASSERT_TRUE(window.Exe_Cbo.HasSelection());
    }

    /// Picks the row that ends so, and ticks its box.
    void Pick(ListBox LV_Frm::*list, Option option, TextView ending, void (*click)(Launcher&)) {
        const auto& items = (window.*list).Items;
        const auto row = std::ranges::find_if(items, [&](const Text& item) { return item.ends_with(ending); });
        ASSERT_NE(row, items.end()) << "the scan has not found " << ending;
        (window.*list).ListIndex = static_cast<int>(row - items.begin());
        window.Box(option).Value = 1;
        if (click != nullptr) {
            click(launcher);
        }
    }
    /// A name with a "+" is asked about, and started all the same.
    void ExpectQuestionAbout(const std::string& name) {
        if (name.find('+') != std::string::npos) {
            user.Expect({"A Command In A Name", "\"" + name + "\" comes from", 1});
        }
    }
    void PickModification(TextView name) { Pick(&LV_Frm::Game_Cbo, Option::Game_Chk, name, Game_Cbo_Click); }

    /// All files below the drive and beside it that a command of the names above would have made.
    [[nodiscard]] Strings Pwned() const {
        Strings found;
        for (const auto& entry : fs::recursive_directory_iterator(Root)) {
            const std::string name = entry.path().filename().string();
            if (name.ends_with("pwn.txt") || (name.starts_with("pwned") && name.ends_with(".txt"))) {
                found.push_back(name);
            }
        }
        return found;
    }

    fs::path Root;
    fs::path C = Root / "data/drive_c";
    LinuxFiles Disk;
    LinuxProcesses Programs;
    MemoryPlatform memory;
    Platform services{memory.Settings, memory.Registry, Disk, Programs, memory.Clip, memory.Time, nullptr, nullptr};
    ScriptedUser user;
    Run run{services, user};
    Launcher launcher{run};
    LV_Frm& window = launcher.Window;
};

Strings ArgumentsIn(const fs::path& output) {
    return LinesAfter(WaitForOutput(output), "ARGUMENT=");
}

// Time for a command behind the game, if there were one.
void LetTheRestRun() {
    std::this_thread::sleep_for(kLongEnoughForAGameThatDoesNotWait);
}

}  // namespace

TEST(CommandsOnTheWineRoad, NoMapScriptOrServerOfUnrealIsOne) {
    StrangersYard yard("commands_unreal");
    yard.AddGame("show_windows.exe", "Unreal/System/Unreal.exe");
    yard.AddFile("Unreal/System/Unreal.ini", "[URL]\r\n");
    yard.Unpack({"Maps/x&echo pwned>pwned1.txt&.unr", "System/my&evil&.ini", "System/evil.bat"}, "Unreal");
    Save(yard.run, kOptions, "NetServers", "Bad;10.0&echo srv>srvpwn.txt&.0.1;7777;4;");
    yard.Load("C:\\Unreal\\System\\Unreal.exe");
    yard.Pick(&LV_Frm::Map_Cbo, Option::Map_Chk, "X&ECHO PWNED>PWNED1.TXT&", nullptr);
    yard.Pick(&LV_Frm::Script_Cbo, Option::Script_Chk, "my&evil&.ini", Script_Cbo_Click);
    yard.Pick(&LV_Frm::Server_Cbo, Option::Server_Chk, "10.0&echo srv>srvpwn.txt&.0.1;7777;4;", nullptr);
    DoIt_Cmd_Click(yard.launcher, 0);
    const fs::path system = yard.C / "Unreal/System";
    EXPECT_THAT(ArgumentsIn(system / "output.txt"),
                ElementsAre("10.0&echo srv>srvpwn.txt&.0.1:7777", "x&echo pwned>pwned1.txt&.unr", "INI=my&evil&.ini"));
    EXPECT_EQ(ReadBytes(system / "lv_666.bat"),
              "C:\r\ncd c:\\unreal\\system\r\nUNREAL.EXE 10.0&echo srv>srvpwn.txt&.0.1:7777 "
              "x&echo pwned>pwned1.txt&.unr INI=my&evil&.ini ");
    LetTheRestRun();
    EXPECT_THAT(yard.Pwned(), IsEmpty());
}

TEST(CommandsOnTheWineRoad, NoModificationIsOne) {
    for (const std::string name :
         {"m&echo mod>modpwn.txt&", "%windir%", "m|n^o", "x +connect evil.example", "a\" +b \"", "512 -game"}) {
        StrangersYard yard("commands_wine_mod");
        yard.AddGame("show_windows.exe", "Quake/GLQUAKE.EXE");
        fs::create_directories(yard.C / "Quake/id1");
        yard.Unpack({name + "/maps/x.bsp"}, "Quake");
        yard.Load("C:\\Quake\\GLQUAKE.EXE");
        yard.PickModification("-game " + name);
        yard.ExpectQuestionAbout(name);
        DoIt_Cmd_Click(yard.launcher, 0);
        EXPECT_THAT(ArgumentsIn(yard.C / "Quake/output.txt"), ElementsAre("-zone", "512", "-game", name));
        EXPECT_EQ(ReadBytes(yard.C / "Quake/lv_666.bat"), "C:\r\ncd c:\\quake\r\nGLQUAKE.EXE -zone 512 -game " + name);
        EXPECT_THAT(yard.Pwned(), IsEmpty());
    }
}

TEST(CommandsOnTheWineRoad, AHalfLifeServerAndItsPasswordAreOneArgumentEach) {
    StrangersYard yard("commands_half_life");
    yard.AddGame("show_windows.exe", "HL/hl.exe");
    yard.Unpack({"connect.bat"}, "HL");
    fs::create_directories(yard.C / "HL/valve");
    Save(yard.run, kOptions, "NetServers", "Bad;10.0.0.1 +exec evil;27015;9;a&echo pwned>pwned2.txt& b");
    yard.Load("C:\\HL\\hl.exe");
    yard.Pick(&LV_Frm::Server_Cbo, Option::Server_Chk, "b", nullptr);
    yard.ExpectQuestionAbout("10.0.0.1 +exec evil:27015");
    DoIt_Cmd_Click(yard.launcher, 0);
    EXPECT_THAT(ArgumentsIn(yard.C / "HL/output.txt"),
                ElementsAre("-console", "-zone", "512", "+password", "a&echo pwned>pwned2.txt& b", "connect",
                            "10.0.0.1 +exec evil:27015"));
    LetTheRestRun();
    EXPECT_THAT(yard.Pwned(), IsEmpty());
}

TEST(CommandsOnTheWineRoad, TheUsersOwnAdditionsAreTakenApart) {
    StrangersYard yard("commands_additions");
    yard.AddGame("show_windows.exe", "Quake/GLQUAKE.EXE");
    fs::create_directories(yard.C / "Quake/id1");
    yard.Load("C:\\Quake\\GLQUAKE.EXE");
    yard.window.Box(Option::CommandLineAdditions_Chk).Value = 1;
    yard.window.CommandLineAdditions_Txt.Text = "+name \"my self\" +connect 10.0.0.1";
    DoIt_Cmd_Click(yard.launcher, 0);
    EXPECT_THAT(ArgumentsIn(yard.C / "Quake/output.txt"),
                ElementsAre("-zone", "512", "+name", "my self", "+connect", "10.0.0.1"));
}

TEST(CommandsOnTheWineRoad, ABatchOfTheUsersOwnGetsNoNameThatItWouldMisread) {
    StrangersYard yard("commands_own_batch");
    yard.AddGame("show_windows.exe", "Quake/GLQUAKE.EXE");
    yard.AddFile("Quake/go.bat", "@GLQUAKE.EXE %*\r\n");
    fs::create_directories(yard.C / "Quake/id1");
    yard.Unpack({"m&echo mod>modpwn.txt&/maps/x.bsp", "ctf/maps/y.bsp"}, "Quake");
    yard.Load("C:\\Quake\\go.bat");
    yard.PickModification("-game m&echo mod>modpwn.txt&");
    yard.user.Expect({"Lorvane 3D",
                      "The modification \"m&echo mod>modpwn.txt&\" comes from the directories of the game.\r\n"
                      "The command processor would not read it as one word of text."});
    DoIt_Cmd_Click(yard.launcher, 0);
    EXPECT_FALSE(fs::exists(yard.C / "Quake/lv_666.bat"));
    yard.PickModification("-game ctf");
    DoIt_Cmd_Click(yard.launcher, 0);
    EXPECT_THAT(ArgumentsIn(yard.C / "Quake/output.txt"), ElementsAre("-zone", "512", "-game", "ctf"));
    EXPECT_THAT(yard.Pwned(), IsEmpty());
}

TEST(CommandsOnTheNativeRoad, NoModificationOrServerIsMoreThanOneArgument) {
    for (const std::string name :
         {"x +connect evil.example", "m&touch modpwn.txt&", "$(touch modpwn.txt)", "a\" +b \"", "512 +set game"}) {
        StrangersYard yard("commands_native");
        yard.AddGame("show_native", "HL/hl.exe");
        fs::create_directories(yard.C / "HL/valve");
        yard.Unpack({name + "/maps/x.bsp"}, "HL");
        Save(yard.run, kOptions, "NetServers", "Bad;10.0.0.1 +exec evil;27015;9;");
        yard.Load("C:\\HL\\hl.exe");
        yard.PickModification("-game " + name);
        yard.Pick(&LV_Frm::Server_Cbo, Option::Server_Chk, "27015;9;", nullptr);
        yard.ExpectQuestionAbout(name.find('+') != std::string::npos ? name : "10.0.0.1 +exec evil:27015");
        DoIt_Cmd_Click(yard.launcher, 0);
        EXPECT_THAT(ArgumentsIn(yard.C / "HL/output.txt"), ElementsAre("-console", "-zone", "512", "+set", "game", name,
                                                                       "+connect", "10.0.0.1 +exec evil:27015"));
        EXPECT_THAT(yard.Pwned(), IsEmpty());
    }
}

TEST(CommandsOnTheDosBoxRoad, ANameThatDosWouldMisreadIsToldBeforeAnythingIsWritten) {
    StrangersYard yard("commands_dos");
    yard.AddGame("show_dos.exe", "Quake/quake.exe");
    fs::create_directories(yard.C / "Quake/id1");
    const Strings names = {"d>quake.exe", "d<quake.exe", "d|quake.exe", "d&e", "d%e", "d^e", "d\"e", "d e"};
    for (const std::string& name : names) {
        yard.Unpack({name + "/maps/x.bsp"}, "Quake");
    }
    yard.Unpack({"ctf/maps/y.bsp"}, "Quake");
    const std::string game = ReadBytes(yard.C / "Quake/quake.exe");
    yard.Load("C:\\Quake\\quake.exe");
    for (const std::string& name : names) {
        yard.PickModification("-game " + name);
        yard.user.Expect({"Lorvane 3D", "The modification \"" + name +
                                            "\" comes from the directories of the game.\r\n"
                                            "DOS's shell would not read it as one word of text."});
        DoIt_Cmd_Click(yard.launcher, 0);
    }
    EXPECT_FALSE(fs::exists(yard.C / "Quake/lv_666.bat"));
    EXPECT_FALSE(fs::exists(yard.C / "Quake/lv_666.pif"));
    EXPECT_FALSE(fs::exists(yard.Root / "cache"));
    yard.PickModification("-game ctf");
    DoIt_Cmd_Click(yard.launcher, 0);
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.C / "Quake/OUTPUT.TXT"), "ARGUMENTS="),
                ElementsAre(" -zone 512 -game ctf"));
    EXPECT_EQ(ReadBytes(yard.C / "Quake/quake.exe"), game);
}

}  // namespace lv
