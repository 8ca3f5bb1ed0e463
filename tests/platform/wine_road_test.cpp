#include "platform/linux/starting/wine_road.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/linux_processes.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::Not;
using testing::StartsWith;

using Pairs = std::vector<std::pair<std::string, std::string>>;

struct WineYard : GameYard {
    explicit WineYard(const std::string& name) : GameYard(name) {
        Places.SearchPath = (Root / "tools").string();
        std::filesystem::create_directories(Root / "tools");
        std::filesystem::copy_file("/bin/true", Root / "tools/wine");
        AddFile("quake/go.bat", "@echo off\r\n");
        AddFile("quake/quake.exe", "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0PE\0\0", 8));
    }
    void MapWineDrive(const std::string& letter, const std::filesystem::path& target) {
        std::filesystem::create_directories(Places.WinePrefix / "dosdevices");
        std::filesystem::create_directory_symlink(target, Places.WinePrefix / "dosdevices" / (letter + ":"));
    }
    HostCommand Plan() {
        const auto plan = LinuxProcesses(Disk, Places).PlanBatch("C:\\QUAKE", "lv_666.bat");
        EXPECT_TRUE(plan.Ok()) << plan.Fault.Text;
        return plan.Value;
    }
    std::string OnlyCopy() {
        std::string text;
        for (const auto& entry : std::filesystem::directory_iterator(Places.Cache)) {
            text += ReadBytes(entry.path());
        }
        return text;
    }
};

}  // namespace

TEST(CopyForWine, LeavesOutDriveAndDirectoryAndNothingElse) {
    EXPECT_EQ(CopyForWine("SET A= 1 %X% \r\nSET\r\nPAUSE\r\nC:\r\ncd C:\\QUAKE\r\nQUAKE.EXE  -a ", "").Text,
              "SET A= 1 %X% \r\nSET\r\nPAUSE\r\nQUAKE.EXE  -a ");
}

TEST(CopyForWine, KeepsALineBrokenOffTheCommand) {
    EXPECT_EQ(CopyForWine("C:\r\ncd C:\\HL\r\nHL.EXE\r\nconnect x", "").Text, "HL.EXE\r\nconnect x");
}

TEST(CopyForWine, CarriesLinesBeyondAsciiInVariables) {
    const WineCopy copy = CopyForWine("SET A=\xE9\r\nSET B=1\r\nC:\r\ncd C:\\\xC9\r\nQUAKE.EXE \x80", "");
    EXPECT_EQ(copy.Text, "%LV_666_1%\r\nSET B=1\r\n%LV_666_2%");
    EXPECT_EQ(copy.Variables, (Pairs{{"LV_666_1", "SET A=\xE9"}, {"LV_666_2", "QUAKE.EXE \x80"}}));
}

TEST(CopyForWine, TakesAnotherCommand) {
    EXPECT_EQ(CopyForWine("SET A=1\r\nC:\r\ncd C:\\Q\r\nqlaunch quakeudp.dll Q.EXE -a", "Q.EXE -a").Text,
              "SET A=1\r\nQ.EXE -a");
}

TEST(WinePathOf, TakesTheDriveThatLiesDeepestAbove) {
    WineYard yard("wine_path");
    yard.MapWineDrive("z", "/");
    yard.MapWineDrive("d", yard.Drive);
    EXPECT_EQ(WinePathOf(yard.Places.WinePrefix, yard.Drive / "quake/quake.exe"), "D:\\quake\\quake.exe");
    EXPECT_EQ(WinePathOf(yard.Places.WinePrefix, "/tmp/x/../a b"), "Z:\\tmp\\a b");
}

TEST(WinePathOf, FindsNoneWithoutADriveAbove) {
    WineYard yard("wine_no_path");
    yard.MapWineDrive("d", yard.Drive);
    EXPECT_EQ(WinePathOf(yard.Places.WinePrefix, "/tmp/x"), std::nullopt);
}

TEST(WinePathOf, KnowsTheDrivesOfAPrefixThatIsYetToBeMade) {
    WineYard yard("wine_fresh");
    EXPECT_EQ(WinePathOf(yard.Places.WinePrefix, "/tmp/x"), "Z:\\tmp\\x");
    EXPECT_EQ(WinePathOf(yard.Places.WinePrefix, yard.Places.WinePrefix / "drive_c/G/x"), "C:\\G\\x");
}

TEST(WineDriveIs, ComparesDirectoriesNotNames) {
    WineYard yard("wine_drive_is");
    yard.MapWineDrive("c", yard.Drive);
    yard.MapWineDrive("d", "/");
    EXPECT_TRUE(WineDriveIs(yard.Places.WinePrefix, 'C', yard.Drive));
    EXPECT_FALSE(WineDriveIs(yard.Places.WinePrefix, 'D', yard.Drive));
    EXPECT_FALSE(WineDriveIs(yard.Places.WinePrefix, 'E', yard.Drive));
    EXPECT_TRUE(WineDriveIs(yard.Places.WinePrefix, 'd', "/"));
}

TEST(WineRoad, StartsTheProgramWithItsArgumentsAndEnvironment) {
    WineYard yard("wine_program");
    yard.AddBatch("quake", {"SET LV_TEST_A= 1 %PATH% & ", "C:", "cd C:\\QUAKE", "QUAKE.EXE -a \"b c\" x&y %windir%"});
    const HostCommand plan = yard.Plan();
    EXPECT_EQ(plan.Program, yard.Places.SearchPath + "/wine");
    EXPECT_THAT(plan.Arguments, ElementsAre((yard.Drive / "quake/quake.exe").string(), "-a", "b c", "x&y", "%windir%"));
    EXPECT_THAT(plan.Environment, Contains("LV_TEST_A= 1 %PATH% & "));
    EXPECT_EQ(plan.Directory, (yard.Drive / "quake").string());
    EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache));
}

TEST(WineRoad, KeepsEachGivenWordOneArgument) {
    WineYard yard("wine_given");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE -game x +connect evil.example -a b"});
    const auto plan =
        LinuxProcesses(yard.Disk, yard.Places)
            .PlanBatch("C:\\QUAKE", "lv_666.bat",
                       {"QUAKE.EXE", {GivenIn(yard.Drive / "quake/lv_666.bat", "x +connect evil.example")}});
    EXPECT_THAT(plan.Value.Arguments,
                ElementsAre((yard.Drive / "quake/quake.exe").string(), "-game", "x +connect evil.example", "-a", "b"));
}

TEST(WineRoad, SaysTextBeyondAsciiInUtf8) {
    WineYard yard("wine_program_accents");
    yard.AddBatch("quake", {"SET LV_TEST_A=\x80", "C:", "cd C:\\QUAKE", "QUAKE.EXE \xE9"});
    const HostCommand plan = yard.Plan();
    EXPECT_THAT(plan.Arguments, ElementsAre((yard.Drive / "quake/quake.exe").string(), "é"));
    EXPECT_THAT(plan.Environment, Contains("LV_TEST_A=€"));
}

TEST(WineRoad, LeavesOutAMissingWrapper) {
    WineYard yard("wine_wrapper");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "qlaunch quakeudp.dll QUAKE.EXE -noipx"});
    EXPECT_THAT(yard.Plan().Arguments, ElementsAre((yard.Drive / "quake/quake.exe").string(), "-noipx"));
}

TEST(WineRoad, ShowsTheEnvironmentInATerminalFirst) {
    WineYard yard("wine_show");
    std::filesystem::copy_file("/bin/true", yard.Root / "tools/xterm");
    yard.AddBatch("quake", {"SET LV_TEST_A=1", "SET", "PAUSE", "C:", "cd C:\\QUAKE", "QUAKE.EXE -a"});
    const HostCommand plan = yard.Plan();
    EXPECT_EQ(plan.Program, yard.Places.SearchPath + "/xterm");
    EXPECT_THAT(plan.Arguments, ElementsAre("-e", yard.Places.PauseHelper.string(), yard.Places.SearchPath + "/wine",
                                            (yard.Drive / "quake/quake.exe").string(), "-a"));
}

TEST(WineBatchRoad, RunsTheBatchItselfWhereTheDrivesAgree) {
    WineYard yard("wine_same_drive");
    yard.MapWineDrive("c", yard.Drive);
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "GO.BAT -a"});
    const HostCommand plan = yard.Plan();
    EXPECT_THAT(plan.Arguments, ElementsAre("cmd", "/c", "lv_666.bat"));
    EXPECT_EQ(plan.Directory, (yard.Drive / "quake").string());
    EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache));
}

TEST(WineBatchRoad, RunsACopyWhereTheyDoNot) {
    WineYard yard("wine_other_drive");
    yard.AddBatch("quake", {"SET A=1", "C:", "cd C:\\QUAKE", "GO.BAT -a"});
    const HostCommand plan = yard.Plan();
    ASSERT_EQ(plan.Arguments.size(), 3u);
    EXPECT_THAT(plan.Arguments[2], StartsWith("Z:\\"));
    EXPECT_THAT(plan.Arguments[2], EndsWith(".bat"));
    EXPECT_EQ(yard.OnlyCopy(), "SET A=1\r\nGO.BAT -a");
    EXPECT_EQ(plan.Directory, (yard.Drive / "quake").string());
    EXPECT_EQ(ReadBytes(yard.Drive / "quake/lv_666.bat"), "SET A=1\r\nC:\r\ncd C:\\QUAKE\r\nGO.BAT -a");
}

TEST(WineBatchRoad, RunsACopyForTextBeyondAscii) {
    WineYard yard("wine_accents");
    yard.MapWineDrive("c", yard.Drive);
    yard.MapWineDrive("z", "/");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "GO.BAT \xE9"});
    EXPECT_THAT(yard.Plan().Environment, Contains("LV_666_1=GO.BAT é"));
    EXPECT_EQ(yard.OnlyCopy(), "%LV_666_1%");
}

TEST(WineBatchRoad, RunsACopyWithoutAMissingWrapper) {
    WineYard yard("wine_batch_wrapper");
    yard.MapWineDrive("c", yard.Drive);
    yard.MapWineDrive("z", "/");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "qlaunch quakeudp.dll GO.BAT -noipx"});
    yard.Plan();
    EXPECT_EQ(yard.OnlyCopy(), "GO.BAT -noipx");
}

TEST(WineBatchRoad, NamesABatchOfFullPathAsWineHasIt) {
    WineYard yard("wine_full_path");
    yard.MapWineDrive("g", yard.Drive);
    yard.MapWineDrive("z", "/");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "C:\\QUAKE\\GO.BAT -a \"b c\""});
    yard.Plan();
    EXPECT_EQ(yard.OnlyCopy(), "\"G:\\quake\\go.bat\" -a \"b c\"");
}

TEST(WineBatchRoad, RefusesAGivenWordThatABatchWouldMisread) {
    for (const char* const word : {"m&echo mod>modpwn.txt&", "%windir%", "a b", "a^b", "a)b", "a,b", "a\nb"}) {
        WineYard yard("wine_batch_given");
        yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", std::string("GO.BAT -game ") + word});
        const auto plan =
            LinuxProcesses(yard.Disk, yard.Places)
                .PlanBatch("C:\\QUAKE", "lv_666.bat", {"GO.BAT", {GivenIn(yard.Drive / "quake/lv_666.bat", word)}});
        EXPECT_EQ(plan.Fault.Number, 75) << word;
        EXPECT_EQ(plan.Fault.Text,
                  std::string("The command processor would not read this as one word of text, and nothing was "
                              "started: ") +
                      word);
        EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache)) << word;
    }
}

TEST(WineRoad, KeepsWineQuietUnlessTold) {
    WineYard yard("wine_debug");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    {
        const ScopedVariable unset("WINEDEBUG", nullptr);
        EXPECT_THAT(yard.Plan().Environment, Contains("WINEDEBUG=-all"));
    }
    const ScopedVariable set("WINEDEBUG", "+file");
    const HostCommand plan = yard.Plan();
    EXPECT_THAT(plan.Environment, Contains("WINEDEBUG=+file"));
    EXPECT_THAT(plan.Environment, Not(Contains("WINEDEBUG=-all")));
}

TEST(WineRoad, SpeaksUtf8ToWine) {
    WineYard yard("wine_locale");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    const ScopedVariable noCtype("LC_CTYPE", nullptr);
    {
        const ScopedVariable noAll("LC_ALL", nullptr);
        const ScopedVariable plain("LANG", "C");
        EXPECT_THAT(yard.Plan().Environment, Contains("LC_CTYPE=C.UTF-8"));
        const ScopedVariable german("LANG", "de_DE.UTF-8");
        EXPECT_THAT(yard.Plan().Environment, Not(Contains(StartsWith("LC_CTYPE="))));
    }
    const ScopedVariable all("LC_ALL", "POSIX");
    EXPECT_THAT(yard.Plan().Environment, Contains("LC_ALL=C.UTF-8"));
}

}  // namespace lv
