// Windows programs through a real Wine. tests/platform/wine_road_test.cpp has what is decided before it starts.

#include "platform/linux/starting/wine_road.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/linux_processes.h"
#include "tests/engines/engine_run.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using testing::ElementsAre;
using testing::EndsWith;

using Strings = std::vector<std::string>;

Strings StartAndRead(GameYard& yard, const std::string& directory, const std::string& hostDirectory) {
    yard.Places.WinePrefix = TestWinePrefix();
    const Error fault = LinuxProcesses(yard.Disk, yard.Places).StartBatch(directory, "lv_666.bat");
    EXPECT_FALSE(fault) << fault.Text;
    return WaitForOutput(yard.Drive / hostDirectory / "output.txt");
}

}  // namespace

TEST(WineRoad, BringsEnvironmentArgumentsAndDirectoryThrough) {
    GameYard yard("engines/wine");
    yard.AddGame("show_windows.exe", "quake/glquake.exe");
    yard.AddBatch("quake", {"SET FX_GLIDE_SWAPINTERVAL=0", "SET SST_RGAMMA=1.7", "SET LV_TEST_A=\"a & b\" ; = c",
                            "SET LV_TEST_B=1", "SET LV_TEST_B=2", "C:", "cd C:\\QUAKE",
                            "GLQUAKE.EXE -zone 512 \"a b\" +exec lv_666.qs"});
    const Strings output = StartAndRead(yard, "C:\\QUAKE", "quake");
    ASSERT_FALSE(output.empty());
    EXPECT_THAT(LinesAfter(output, "DIRECTORY="), ElementsAre(EndsWith("\\engines\\wine\\drive\\quake")));
    EXPECT_THAT(LinesAfter(output, "ARGUMENT="), ElementsAre("-zone", "512", "a b", "+exec", "lv_666.qs"));
    EXPECT_THAT(LinesAfter(output, "FX_GLIDE_SWAPINTERVAL="), ElementsAre("0"));
    EXPECT_THAT(LinesAfter(output, "SST_RGAMMA="), ElementsAre("1.7"));
    EXPECT_THAT(LinesAfter(output, "LV_TEST_A="), ElementsAre("\"a & b\" ; = c"));
    EXPECT_THAT(LinesAfter(output, "LV_TEST_B="), ElementsAre("2"));
}

TEST(WineRoad, StartsInALongDirectoryWithBlanksAndAccents) {
    GameYard yard("engines/wine_long");
    const std::string name = "Spiele für Ängstliche & Mutige (100%)/A long directory name";
    yard.AddGame("show_windows.exe", name + "/My Gamé.exe");
    yard.AddBatch(name, {"SET LV_TEST_A=caf\xE9 \x80",
                         "C:", "cd \"C:\\SPIELE F\xDCR \xC4NGSTLICHE & MUTIGE (100%)\\A LONG DIRECTORY NAME\"",
                         "\"MY GAM\xC9.EXE\" +name \"J\xF6rg \x80\""});
    const Strings output =
        StartAndRead(yard, "C:\\SPIELE F\xDCR \xC4NGSTLICHE & MUTIGE (100%)\\A LONG DIRECTORY NAME", name);
    ASSERT_FALSE(output.empty());
    EXPECT_THAT(LinesAfter(output, "DIRECTORY="),
                ElementsAre(EndsWith("\\drive\\Spiele für Ängstliche & Mutige (100%)\\A long directory name")));
    EXPECT_THAT(LinesAfter(output, "ARGUMENT="), ElementsAre("+name", "Jörg €"));
    EXPECT_THAT(LinesAfter(output, "LV_TEST_A="), ElementsAre("café €"));
}

TEST(WineRoad, RunsTheBatchItselfOnWinesOwnDrive) {
    GameYard yard("engines/wine_own_drive");
    // A game on Wine's C:, and a drive C: of ours that is the same directory.
    ASSERT_EQ(RunTool({"wine", "cmd", "/c", "ver"}), 0);
    const auto drive = TestWinePrefix() / "drive_c";
    std::filesystem::create_directories(drive / "Quake");
    std::filesystem::copy_file(yard.AddGame("show_windows.exe", "q.exe"), drive / "Quake/quake.exe");
    yard.AddBatch("here", {"SET LV_TEST_A=1", "C:", "cd C:\\QUAKE", "QUAKE.EXE -a"});
    std::filesystem::copy_file(yard.Drive / "here/lv_666.bat", drive / "Quake/lv_666.bat");
    yard.Disk.AddDrive('C', drive);
    yard.Places.WinePrefix = TestWinePrefix();
    ASSERT_FALSE(LinuxProcesses(yard.Disk, yard.Places).StartBatch("C:\\QUAKE", "lv_666.bat"));
    const Strings output = WaitForOutput(drive / "Quake/output.txt");
    EXPECT_THAT(LinesAfter(output, "DIRECTORY="), ElementsAre(testing::StrCaseEq("C:\\Quake")));
    EXPECT_THAT(LinesAfter(output, "ARGUMENT="), ElementsAre("-a"));
    EXPECT_THAT(LinesAfter(output, "LV_TEST_A="), ElementsAre("1"));
    EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache));
}

TEST(WineRoad, RunsABatchOfTheUsersOwn) {
    GameYard yard("engines/wine_batch");
    yard.AddGame("show_windows.exe", "quake/quake.exe");
    yard.AddFile("quake/go.bat", "@SET LV_TEST_OWN=yes\r\n@quake.exe -own %1\r\n");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "GO.BAT more"});
    const Strings output = StartAndRead(yard, "C:\\QUAKE", "quake");
    EXPECT_THAT(LinesAfter(output, "ARGUMENT="), ElementsAre("-own", "more"));
    EXPECT_THAT(LinesAfter(output, "LV_TEST_OWN="), ElementsAre("yes"));
    EXPECT_TRUE(WaitUntilEmpty(yard.Places.Cache)) << "a launch's copy of the batch may hold a password";
}

TEST(WineRoad, WaitsForAKeyAfterShowingTheEnvironment) {
    GameYard yard("engines/wine_pause");
    yard.AddGame("show_windows.exe", "quake/quake.exe");
    yard.AddBatch("quake", {"SET LV_TEST_A=1", "SET", "PAUSE", "C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    yard.Places.WinePrefix = TestWinePrefix();
    ASSERT_FALSE(LinuxProcesses(yard.Disk, yard.Places).StartBatch("C:\\QUAKE", "lv_666.bat"));
    std::this_thread::sleep_for(kLongEnoughForAGameThatDoesNotWait);
    ASSERT_FALSE(std::filesystem::exists(yard.Drive / "quake/output.txt"));
    ASSERT_TRUE(PressKeysUntil("xterm", yard.Drive / "quake/output.txt"));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "quake/output.txt"), "LV_TEST_A="), ElementsAre("1"));
}

TEST(StartProgram, RunsAWindowsProgram) {
    GameYard yard("engines/wine_program");
    yard.AddGame("show_windows.exe", "spy/gamespy.exe");
    yard.Places.WinePrefix = TestWinePrefix();
    ASSERT_FALSE(LinuxProcesses(yard.Disk, yard.Places).StartProgram("C:\\SPY\\GAMESPY.EXE", {"a b", "\xE9\"q"}));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "output.txt"), "ARGUMENT="), ElementsAre("a b", "é\"q"));
}

}  // namespace lv
