#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

TEST(GameSpy, TheServerInItsWindowIsJoined) {
    ProgramHome home("game_spy");
    home.Prepare();
    fs::rename(home.Quake / "QUAKE.EXE", home.Quake / "GLQUAKE.EXE");
    home.Set("Options", "Executables", "Quake;c:\\quake\\glquake.exe");
    home.Set("Options", "UseDemos", "0");
    home.Set("Options", "Qspy", "1");
    const fs::path copied = home.Root / "copied.txt";
    std::ofstream(copied) << "43      10.0.0.1        27500 Home";
    const std::string spy = (fs::path(TestBinaryDir()) / "standins/game_spy.exe").string();
    const OwnProcess wine(home, {"env", "WINEDLLOVERRIDES=mscoree,mshtml=", "wine", spy, "GameSpy 3D 2.20", copied});
    const auto spyIsThere = [] {
        return !OutputOf({"xdotool", "search", "--onlyvisible", "--name", "^GameSpy 3D 2.20$"}).empty();
    };
    ASSERT_TRUE(WaitUntil(spyIsThere, 60000)) << "the stand-in did not come up";
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("F2");
    const std::vector<std::string> lines = WaitForOutput(home.Quake / "output.txt");
    EXPECT_THAT(LinesAfter(lines, "ARGUMENT="), testing::Contains("lv_666.qs"));
    EXPECT_EQ(ReadBytes(home.Quake / "ID1/lv_666.qs"), "connect 10.0.0.1:27500\r\n");
}

}  // namespace

}  // namespace lv
