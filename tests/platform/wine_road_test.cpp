#include "platform/linux/wine_road.h"

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

TEST(WineRoad, RunsTheBatchItselfWhereTheDrivesAgree) {
    WineYard yard("wine_same_drive");
    yard.MapWineDrive("c", yard.Drive);
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE -a"});
    const HostCommand plan = yard.Plan();
    EXPECT_THAT(plan.Arguments, ElementsAre("cmd", "/c", "lv_666.bat"));
    EXPECT_EQ(plan.Directory, (yard.Drive / "quake").string());
    EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache));
}

TEST(WineRoad, RunsACopyWhereTheyDoNot) {
    WineYard yard("wine_other_drive");
    yard.AddBatch("quake", {"SET A=1", "C:", "cd C:\\QUAKE", "QUAKE.EXE -a"});
    const HostCommand plan = yard.Plan();
    ASSERT_EQ(plan.Arguments.size(), 3u);
    EXPECT_THAT(plan.Arguments[2], StartsWith("Z:\\"));
    EXPECT_THAT(plan.Arguments[2], EndsWith(".bat"));
    EXPECT_EQ(yard.OnlyCopy(), "SET A=1\r\nQUAKE.EXE -a");
    EXPECT_EQ(plan.Directory, (yard.Drive / "quake").string());
    EXPECT_EQ(ReadBytes(yard.Drive / "quake/lv_666.bat"), "SET A=1\r\nC:\r\ncd C:\\QUAKE\r\nQUAKE.EXE -a");
}

TEST(WineRoad, RunsACopyForTextBeyondAscii) {
    WineYard yard("wine_accents");
    yard.MapWineDrive("c", yard.Drive);
    yard.MapWineDrive("z", "/");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE \xE9"});
    EXPECT_THAT(yard.Plan().Environment, Contains("LV_666_1=QUAKE.EXE é"));
    EXPECT_EQ(yard.OnlyCopy(), "%LV_666_1%");
}

TEST(WineRoad, RunsACopyWithoutAMissingWrapper) {
    WineYard yard("wine_wrapper");
    yard.MapWineDrive("c", yard.Drive);
    yard.MapWineDrive("z", "/");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "qlaunch quakeudp.dll QUAKE.EXE -noipx"});
    yard.Plan();
    EXPECT_EQ(yard.OnlyCopy(), "QUAKE.EXE -noipx");
}

TEST(WineRoad, NamesAProgramOfFullPathAsWineHasIt) {
    WineYard yard("wine_full_path");
    yard.MapWineDrive("g", yard.Drive);
    yard.MapWineDrive("z", "/");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "C:\\QUAKE\\QUAKE.EXE -a \"b c\""});
    yard.Plan();
    EXPECT_EQ(yard.OnlyCopy(), "\"G:\\quake\\quake.exe\" -a \"b c\"");
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
