#include <gtest/gtest.h>

#include <fstream>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

constexpr const char* kQuestion = "^Dropped File$";
constexpr const char* kJoin = "^Join Server$";

/// The program with a word, started in that directory.
std::vector<std::string> StartIn(const std::filesystem::path& directory, const std::string& word) {
    return {"/bin/sh", "-c",
            "cd '" + directory.string() + "' && exec '" + TestBinaryDir() + "/lorvane3d' '" + word + "'"};
}

std::string ShownDialog(const OwnProcess& program, const char* title) {
    std::string dialog;
    EXPECT_TRUE(WaitUntil([&] {
        const auto shown = ShownWindowsOf(program.Id(), title);
        dialog = shown.empty() ? "" : shown.front();
        return !dialog.empty();
    })) << title;
    return dialog;
}

void MakeMap(const ProgramHome& home) {
    std::filesystem::create_directories(home.Root / "downloads");
    std::ofstream(home.Root / "downloads" / "dm3.bsp", std::ios::binary).write("\x1D\0\0\0", 4);
}

}  // namespace

TEST(OfferedWord, OfAFirstStartComesUpOverTheWindow) {
    ProgramHome home("offered_first");
    home.Prepare();
    MakeMap(home);
    OwnProcess program(home, StartIn(home.Root / "downloads", "dm3.bsp"));
    const std::string question = ShownDialog(program, kQuestion);
    ASSERT_NE(question, "");
    ASSERT_TRUE(Activate(question));
    KeepScreenshot("offered_map");
    PressKey("Return");
    EXPECT_TRUE(WaitUntil([&] { return ReadBytes(home.Quake / "ID1" / "maps" / "dm3.bsp").size() == 4; }));
    EXPECT_TRUE(std::filesystem::exists(home.Root / "downloads" / "dm3.bsp"));
}

TEST(OfferedWord, OfASecondStartIsOfferedByTheRunningWindow) {
    ProgramHome home("offered_second");
    home.Prepare();
    MakeMap(home);
    ProgramRun first(home);
    ASSERT_NE(first.WaitForWindow(), "");
    OwnProcess second(home, StartIn(home.Root / "downloads", "dm3.bsp"));
    EXPECT_EQ(second.WaitForEnd(), 0) << "it does not wait for the answer";
    const std::string question = ShownDialog(first, kQuestion);
    ASSERT_TRUE(Activate(question));
    PressKey("Escape");
    EXPECT_TRUE(WaitUntil([&] { return !IsShown(question); }));
    EXPECT_FALSE(std::filesystem::exists(home.Quake / "ID1" / "maps"));
    EXPECT_EQ(first.EndByF12(), 0);
}

TEST(OfferedWord, AnAddressIsShownAndJoinsNothingUnasked) {
    ProgramHome home("offered_address");
    home.Prepare();
    ProgramRun first(home);
    ASSERT_NE(first.WaitForWindow(), "");
    OwnProcess second(home, StartIn(home.Root, "quake://host.example:26000"));
    EXPECT_EQ(second.WaitForEnd(), 0);
    const std::string dialog = ShownDialog(first, kJoin);
    ASSERT_TRUE(Activate(dialog));
    KeepScreenshot("offered_address");
    PressKey("Return");
    EXPECT_TRUE(WaitUntil([&] { return !IsShown(dialog); }));
    EXPECT_FALSE(std::filesystem::exists(home.Quake / "output.txt"));
    EXPECT_FALSE(std::filesystem::exists(home.Quake / "lv_666.bat"));
    EXPECT_EQ(first.EndByF12(), 0);
}

TEST(OfferedWord, RightBehindALaunchIsOfferedAtOnce) {
    ProgramHome home("offered_launched");
    home.Prepare();
    std::ofstream(home.Quake / "QUAKE.EXE", std::ios::binary | std::ios::trunc) << "#!/bin/sh\nsleep 30\n";
    ProgramRun first(home);
    ASSERT_NE(first.WaitForWindow(), "");
    OwnProcess launch(home, StartIn(home.Root, "--launch=Quake"));
    ASSERT_EQ(launch.WaitForEnd(), 0);
    OwnProcess second(home, StartIn(home.Root, "quake://host.example:26000"));
    EXPECT_EQ(second.WaitForEnd(), 0);
    EXPECT_TRUE(WaitUntil([&] { return !ShownWindowsOf(first.Id(), kJoin).empty(); }, 4000))
        << "not behind the ten seconds in which the game's end is looked for";
}

}  // namespace lv
