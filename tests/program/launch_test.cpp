#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;
using ::testing::UnorderedElementsAre;

namespace fs = std::filesystem;

/// Children of that process which have ended and which nobody has asked about.
std::vector<std::string> ZombiesOf(int parent) {
    std::vector<std::string> zombies;
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator("/proc", ignored)) {
        const std::string name = entry.path().filename().string();
        if (name.find_first_not_of("0123456789") != std::string::npos) {
            continue;
        }
        const std::string stat = ReadBytes(entry.path() / "stat");
        const std::size_t state = stat.rfind(") ");  // the name before it may hold anything
        if (state != std::string::npos && stat.substr(state + 2).starts_with("Z " + std::to_string(parent) + " ")) {
            zombies.push_back(stat);
        }
    }
    return zombies;
}

void PrepareLaunch(ProgramHome& home, const std::string& additions) {
    home.Prepare();
    home.Set("Options", "UseCustomCommandLine", "1");
    home.Set("Options", "CustomCommandLineText", additions);
}

TEST(Launch, StartsTheGameInItsDirectoryWithArgumentsAndEnvironment) {
    ProgramHome home("launch");
    PrepareLaunch(home, "-wait 1 +skill 3");
    home.Set("Options", "VidCard", "2");
    fs::rename(home.Quake / "QUAKE.EXE", home.Quake / "GLQUAKE.EXE");
    home.Set("Options", "Executables", "Quake;c:\\quake\\glquake.exe");
    ProgramRun program(home);
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey("F2");
    const std::vector<std::string> lines = WaitForOutput(home.Quake / "output.txt");
    EXPECT_THAT(LinesAfter(lines, "DIRECTORY="), ElementsAre(home.Quake.string()));
    EXPECT_THAT(LinesAfter(lines, "PROGRAM="), ElementsAre((home.Quake / "GLQUAKE.EXE").string()));
    EXPECT_THAT(LinesAfter(lines, "ARGUMENT="),
                ElementsAre("-zone", "512", "-heapsize", "16384", "-wait", "1", "+skill", "3", "+exec", "lv_666.qs"));
    EXPECT_THAT(lines, Contains("SSTV2_GRXCLK=90"));
    EXPECT_THAT(LinesAfter(lines, "GDK_GL="), IsEmpty());
    EXPECT_TRUE(WaitUntil([&] { return home.Get("LV-Stuff", "LaunchCount") == "1"; }));
    EXPECT_THAT(ZombiesOf(program.Id()), IsEmpty());
}

TEST(Launch, AndAStartAndAChangeOfGameBringNoComplaintOfTheToolkit) {
    ProgramHome home("quiet");
    PrepareLaunch(home, "-wait 1");
    fs::copy(home.Quake / "QUAKE.EXE", home.Quake / "GLQUAKE.EXE");
    home.Set("Options", "Executables", "Quake;c:\\quake\\quake.exe;GL Quake;c:\\quake\\glquake.exe");
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    const Rectangle place = PlaceOf(window);
    Click(place.Left + 200, place.Top + 120, 1);  // the list of games
    PressKey("Down");
    PressKey("Return");
    EXPECT_TRUE(WaitUntil([&] { return home.Get("Options", "ExecutablesPos") == "1"; }));
    PressKey("F2");
    EXPECT_THAT(LinesAfter(WaitForOutput(home.Quake / "output.txt"), "PROGRAM="),
                ElementsAre((home.Quake / "GLQUAKE.EXE").string()));
    const std::string said = ReadBytes(home.Root / "said.txt");
    EXPECT_THAT(said, Not(HasSubstr("-CRITICAL")));
    EXPECT_THAT(said, Not(HasSubstr("-WARNING")));
}

TEST(Launch, PutsTheWindowIntoTheTaskBarWithoutATray) {
    ProgramHome home("launch_task_bar");
    home.Prepare();
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("F2");
    EXPECT_TRUE(WaitUntil([&] { return StateOf(window) == "Iconic"; }));
    EXPECT_TRUE(program.IsRunning());
}

TEST(Launch, HidesTheWindowWithATray) {
    ProgramHome home("launch_tray");
    home.Prepare();
    const OwnProcess tray(home, kTrayHost);
    ASSERT_TRUE(WaitForTrayHost());
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("F2");
    EXPECT_TRUE(WaitUntil([&] { return StateOf(window) == "Withdrawn"; }));
    EXPECT_TRUE(program.IsRunning());
}

TEST(Launch, OfAGameThatFailsAtOnceBringsTheWindowBackWithItsLastLines) {
    ProgramHome home("launch_fails");
    home.Prepare();
    std::ofstream(home.Quake / "QUAKE.EXE", std::ios::binary | std::ios::trunc)
        << "#!/bin/sh\necho \"Error: no gfx.wad\"\nsleep 1\nexit 1\n";
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("F2");
    ASSERT_TRUE(WaitUntil([&] { return StateOf(window) == "Iconic"; }));
    const std::string box = program.WaitForDialog("^The Game Has Ended$");
    KeepScreenshot("game_end");
    EXPECT_EQ(StateOf(window), "Normal");
    EXPECT_THAT(program.TextOfBox(box), HasSubstr("Error: no gfx.wad"));
    PressKey("Escape");
    EXPECT_TRUE(WaitUntil([&] { return ShownWindowsOf(program.Id(), "^The Game Has Ended$").empty(); }));
    EXPECT_EQ(ReadBytes(home.Root / "state/lorvane3d/last_game_output.txt"), "Error: no gfx.wad\n");
    EXPECT_THAT(home.Get("Played", "c:\\quake\\quake.exe"), MatchesRegex("[0-9-]+ [0-9:]+;[1-9][0-9]*;1"));
    EXPECT_THAT(ZombiesOf(program.Id()), IsEmpty());
}

TEST(Launch, LeavesTheGameRunningWhenTheProgramEnds) {
    ProgramHome home("launch_outlives_f12");
    PrepareLaunch(home, "-wait 4000");
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("F2");
    ASSERT_TRUE(WaitUntil([&] { return StateOf(window) == "Iconic"; }));
    ASSERT_TRUE(Activate(window));
    EXPECT_EQ(program.EndByF12(), 0);
    ASSERT_FALSE(fs::exists(home.Quake / "output.txt")) << "the game was over before the program";
    EXPECT_THAT(WaitForOutput(home.Quake / "output.txt"), Contains("ARGUMENT=4000"));
}

TEST(Launch, LeavesTheGameRunningWhenTheProgramIsKilled) {
    ProgramHome home("launch_outlives_kill");
    PrepareLaunch(home, "-wait 2000");
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("F2");
    ASSERT_TRUE(WaitUntil([&] { return StateOf(window) == "Iconic"; }));
    program.Kill();
    ASSERT_FALSE(fs::exists(home.Quake / "output.txt")) << "the game was over before the program";
    EXPECT_THAT(WaitForOutput(home.Quake / "output.txt"), Contains("ARGUMENT=2000"));
}

TEST(Launch, OfUnrealSetsTheVideoProfileInItsIniFirst) {
    ProgramHome home("launch_unreal");
    home.Prepare();
    const fs::path unreal = home.Quake.parent_path() / "Unreal/System";
    fs::create_directories(unreal);
    fs::rename(home.Quake / "QUAKE.EXE", unreal / "Unreal.exe");
    std::ofstream(unreal / "Unreal.ini", std::ios::binary)
        << "[WinDrv.WindowsClient]\r\nViewportX=320\r\nViewportY=240\r\nMouse=True\r\n[URL]\r\nBrightness=0.1\r\n";
    std::ofstream(unreal / "temp666_.ini", std::ios::binary) << "left behind";
    home.Set("Options", "Executables", "Unreal;c:\\unreal\\system\\unreal.exe");
    home.Set("Options", "UseRez", "1");
    home.Set("Options", "ResolutionsPos", "5");
    home.Set("Options", "ResolutionsPos_Content", "800x600" + std::string(93, ' ') + "-width 800");
    home.Set("Options", "UnrealBrightness", "1");
    home.Set("Options", "UnrealBrightnessSetting_Content", "0.8");
    ProgramRun program(home);
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey("F2");
    const std::vector<std::string> lines = WaitForOutput(unreal / "output.txt");
    EXPECT_THAT(LinesAfter(lines, "ARGUMENT="), ElementsAre("-nohard"));
    EXPECT_EQ(ReadBytes(unreal / "Unreal.ini"),
              "[WinDrv.WindowsClient]\r\nViewPortX=800\r\nViewPortY=600\r\nMouse=True\r\n"
              "Brightness=0.8\r\nStartupFullScreen=True\r\n[URL]\r\nBrightness=0.1\r\n");
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(unreal)) {
        names.push_back(entry.path().filename().string());
    }
    EXPECT_THAT(names, UnorderedElementsAre("Unreal.exe", "Unreal.ini", "lv_666.bat", "lv_666.pif", "output.txt"));
}

TEST(Launch, EndsTheProgramWithExitOnLaunch) {
    ProgramHome home("launch_exit");
    home.Prepare();
    home.Set("Options", "EndOnLaunch", "1");
    ProgramRun program(home);
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey("F2");
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_FALSE(WaitForOutput(home.Quake / "output.txt").empty());
}

}  // namespace

}  // namespace lv
