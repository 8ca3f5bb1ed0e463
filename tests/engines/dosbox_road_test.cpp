// DOS programs in a real DOSBox. tests/platform/dosbox_road_test.cpp has what is decided before it starts.

#include "platform/linux/starting/dosbox_road.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/linux_processes.h"
#include "tests/engines/engine_run.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using testing::ElementsAre;

using Strings = std::vector<std::string>;

void Start(GameYard& yard, const std::string& directory) {
    const Error fault = LinuxProcesses(yard.Disk, yard.Places).StartBatch(directory, "lv_666.bat");
    EXPECT_FALSE(fault) << fault.Text;
}

}  // namespace

TEST(DosBoxRoad, BringsEnvironmentArgumentsAndDirectoryThrough) {
    GameYard yard("engines/dos");
    yard.AddGame("show_dos.exe", "games/quake/quake.exe");
    yard.AddBatch("games/quake", {"SET SST_RGAMMA=1.7", "SET LV_A=a \"b c\" 50% & ; = d", "SET LV_B=1", "SET LV_B=2",
                                  "C:", "cd C:\\GAMES\\QUAKE", "QUAKE.EXE -zone 512 \"a b\" 50% +exec lv_666.qs"});
    Start(yard, "C:\\GAMES\\QUAKE");
    const Strings output = WaitForOutput(yard.Drive / "games/quake/OUTPUT.TXT");
    EXPECT_THAT(LinesAfter(output, "DIRECTORY="), ElementsAre("C:\\GAMES\\QUAKE"));
    EXPECT_THAT(LinesAfter(output, "ARGUMENTS="), ElementsAre(" -zone 512 \"a b\" 50% +exec lv_666.qs"));
    EXPECT_THAT(LinesAfter(output, "SST_RGAMMA="), ElementsAre("1.7"));
    EXPECT_THAT(LinesAfter(output, "LV_A="), ElementsAre("a \"b c\" 50% & ; = d"));
    EXPECT_THAT(LinesAfter(output, "LV_B="), ElementsAre("2"));
}

TEST(DosBoxRoad, StartsInALongDirectoryWithBlanksAndAccents) {
    GameYard yard("engines/dos_long");
    const std::string name = "Spiele für Ängstliche & Mutige (100%)";
    yard.AddGame("show_dos.exe", name + "/quake.exe");
    yard.AddBatch(name, {"SET LV_A=1", "C:", "cd \"C:\\SPIELE F\xDCR \xC4NGSTLICHE & MUTIGE (100%)\"", "QUAKE.EXE -a"});
    Start(yard, "C:\\SPIELE F\xDCR \xC4NGSTLICHE & MUTIGE (100%)");
    const Strings output = WaitForOutput(yard.Drive / name / "OUTPUT.TXT");
    EXPECT_THAT(LinesAfter(output, "DIRECTORY="), ElementsAre("C:\\"));
    EXPECT_THAT(LinesAfter(output, "ARGUMENTS="), ElementsAre(" -a"));
    EXPECT_THAT(LinesAfter(output, "LV_A="), ElementsAre("1"));
}

TEST(DosBoxRoad, StartsAProgramWhoseNameReadsLikeConfiguration) {
    GameYard yard("engines/dos_signs");
    yard.AddGame("show_dos.exe", "quake/#q.exe");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "#Q.EXE -a"});
    Start(yard, "C:\\QUAKE");
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "quake/OUTPUT.TXT"), "ARGUMENTS="), ElementsAre(" -a"));
}

TEST(DosBoxRoad, LeavesNothingOfTheLaunchInTheCache) {
    GameYard yard("engines/dos_cache");
    yard.AddGame("show_dos.exe", "quake/quake.exe");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE +password secret"});
    Start(yard, "C:\\QUAKE");
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "quake/OUTPUT.TXT"), "ARGUMENTS="),
                ElementsAre(" +password secret"));
    EXPECT_TRUE(WaitUntilEmpty(yard.Places.Cache));
}

TEST(DosBoxRoad, WaitsForAKeyAfterShowingTheEnvironment) {
    GameYard yard("engines/dos_pause");
    yard.AddGame("show_dos.exe", "quake/quake.exe");
    yard.AddBatch("quake", {"SET LV_A=1", "SET", "PAUSE", "C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    Start(yard, "C:\\QUAKE");
    std::this_thread::sleep_for(kLongEnoughForAGameThatDoesNotWait);
    ASSERT_FALSE(std::filesystem::exists(yard.Drive / "quake/OUTPUT.TXT"));
    ASSERT_TRUE(PressKeysUntil("DOSBox", yard.Drive / "quake/OUTPUT.TXT"));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "quake/OUTPUT.TXT"), "LV_A="), ElementsAre("1"));
}

}  // namespace lv
