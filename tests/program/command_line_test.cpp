#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

struct Said {
    int Code = -1;
    std::string Text;  // both streams
};

/// The program with words, without a display unless `display` is one, in that home. `output` is where that goes.
Said Say(const ProgramHome& home, const std::string& words, const std::string& display = "",
         const std::string& output = "") {
    const std::string said = (home.Root / "said.txt").string();
    const std::string program = TestBinaryDir() + "/lorvane3d";
    OwnProcess run(home, {"/bin/sh", "-c",
                          "unset DISPLAY WAYLAND_DISPLAY; " + display + " exec '" + program + "' " + words + " >'" +
                              said + "' 2>&1 " + output});
    const auto code = run.WaitForEnd();
    return {code ? *code : -1, ReadBytes(said)};
}

std::set<std::string> FilesBelow(const std::filesystem::path& directory) {
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
        files.insert(entry.path().string());
    }
    return files;
}

}  // namespace

TEST(CommandLine, WorksWithoutADisplay) {
    ProgramHome home("words");
    home.Prepare();
    EXPECT_EQ(Say(home, "--version").Text, "Lorvane 3D 1.06.0112 <Beta>\n");
    EXPECT_EQ(Say(home, "--help").Code, 0);
    const Said list = Say(home, "--list");
    EXPECT_EQ(list.Code, 0);
    EXPECT_NE(list.Text.find("\tQuake\t"), std::string::npos) << list.Text;
    const Said wrong = Say(home, "--lanch Quake");
    EXPECT_EQ(wrong.Code, 2);
    EXPECT_NE(wrong.Text.find("Did you mean \"--launch\"?"), std::string::npos) << wrong.Text;
}

TEST(CommandLine, WithoutADisplayTheWindowEndsWithASentence) {
    ProgramHome home("words_no_display");
    home.Prepare();
    for (const std::string words : {"", "''", "--", "-- Quake", "/h"}) {
        const Said said = Say(home, words);
        EXPECT_EQ(said.Code, 1) << words;
        EXPECT_TRUE(said.Text.starts_with("lorvane3d: There is no display for the window")) << said.Text;
        EXPECT_NE(said.Text.find("--launch work without one"), std::string::npos) << said.Text;
        EXPECT_EQ(said.Text.find("Gtk"), std::string::npos) << said.Text;
    }
    EXPECT_EQ(Say(home, "", "DISPLAY=:9876").Code, 1);
    EXPECT_EQ(Say(home, "", "WAYLAND_DISPLAY=nowhere").Code, 1);
}

TEST(CommandLine, WithoutADisplayARunningWindowComesForward) {
    ProgramHome home("words_forward");
    home.Prepare();
    ProgramRun running(home);
    const std::string window = running.WaitForWindow();
    for (const std::string words : {"", "''", "--"}) {
        OutputOf({"xdotool", "windowminimize", window});
        ASSERT_TRUE(WaitUntil([&] { return StateOf(window) == "Iconic"; }));
        const Said said = Say(home, words);
        EXPECT_EQ(said.Code, 0) << said.Text;
        EXPECT_EQ(said.Text, "");
        EXPECT_TRUE(WaitUntil([&] { return StateOf(window) == "Normal"; })) << words;
    }
}

TEST(CommandLine, OutputThatIsLostIsAFailure) {
    ProgramHome home("words_lost");
    home.Prepare();
    const std::string title = Say(home, "--list").Text;
    const std::string dry = "--dry-run --launch '" + title.substr(0, title.find('\t')) + "'";
    const auto before = RowsOf(home.Settings);
    for (const std::string& words : {std::string("--list"), std::string("--help"), dry}) {
        for (const std::string output : {">/dev/full", ">&-"}) {
            const Said said = Say(home, words, "", output);
            EXPECT_EQ(said.Code, 1) << words << output;
            EXPECT_TRUE(said.Text.starts_with("lorvane3d: What was to be printed is lost: ")) << said.Text;
        }
        EXPECT_EQ(Say(home, words, "", ">&- 2>&-").Code, 1) << words;
        EXPECT_EQ(Say(home, words, "", "<&- >/dev/null").Code, 0) << words;
    }
    EXPECT_EQ(RowsOf(home.Settings), before);
}

TEST(CommandLine, LaunchesWithoutADisplayAndStoresNoPick) {
    ProgramHome home("words_launch");
    home.Prepare();
    const auto before = RowsOf(home.Settings);
    const Said launch = Say(home, "--launch QUAKE.EXE --map DM4");
    EXPECT_EQ(launch.Code, 3) << launch.Text;
    const std::string title = Say(home, "--list").Text;
    const Said started = Say(home, "--launch '" + title.substr(0, title.find('\t')) + "'");
    EXPECT_EQ(started.Code, 0) << started.Text;
    EXPECT_FALSE(WaitForOutput(home.Quake / "output.txt").empty());
    auto after = RowsOf(home.Settings);
    after.erase("LV-Stuff/LaunchCount");
    EXPECT_EQ(std::erase_if(after, [](const auto& row) { return row.first.starts_with("Played/"); }), 1u);
    auto expected = before;
    expected.erase("LV-Stuff/LaunchCount");
    EXPECT_EQ(after, expected);
}

TEST(CommandLine, ADryRunTouchesNothing) {
    ProgramHome home("words_dry");
    home.Prepare();
    const auto before = RowsOf(home.Settings);
    const std::string title = Say(home, "--list").Text;
    const Said dry = Say(home, "--dry-run --launch '" + title.substr(0, title.find('\t')) + "'");
    EXPECT_EQ(dry.Code, 0) << dry.Text;
    EXPECT_NE(dry.Text.find("    " + (home.Quake / "lv_666.bat").string() + " ("), std::string::npos) << dry.Text;
    EXPECT_FALSE(std::filesystem::exists(home.Quake / "lv_666.bat"));
    EXPECT_EQ(RowsOf(home.Settings), before);
}

TEST(CommandLine, WhatOnlyReadsLeavesTheStoreItselfAlone) {
    ProgramHome home("words_read");
    home.Prepare();
    const std::string store = ReadBytes(home.Settings);
    const auto written = std::filesystem::last_write_time(home.Settings);
    const auto files = FilesBelow(home.Root);
    std::ofstream(home.Root / "my.cfg") << "bind x +jump\n";
    EXPECT_EQ(Say(home, "--list").Code, 0);
    EXPECT_EQ(Say(home, "--list maps").Code, 0);
    EXPECT_EQ(Say(home, "--dry-run --launch Quake").Code, 0);
    EXPECT_EQ(Say(home, "--check '" + (home.Root / "my.cfg").string() + "'").Code, 0);
    EXPECT_EQ(Say(home, "--export '" + (home.Root / "all.lv3d").string() + "'").Code, 0);
    EXPECT_EQ(ReadBytes(home.Settings), store);
    EXPECT_EQ(std::filesystem::last_write_time(home.Settings), written);
    for (const char* const made : {"my.cfg", "all.lv3d", "said.txt"}) {
        std::filesystem::remove(home.Root / made);
    }
    EXPECT_EQ(FilesBelow(home.Root), files);
}

TEST(CommandLine, WhatOnlyReadsMakesNothingInAnEmptyHome) {
    ProgramHome home("words_empty");
    std::ofstream(home.Root / "my.cfg") << "bind x +jump\n";
    const auto files = FilesBelow(home.Root);
    EXPECT_EQ(Say(home, "--list").Code, 0);
    const Said dry = Say(home, "--dry-run --launch Quake");
    EXPECT_EQ(dry.Code, 1);
    EXPECT_NE(dry.Text.find("No games are set up yet."), std::string::npos) << dry.Text;
    EXPECT_EQ(Say(home, "--check '" + (home.Root / "my.cfg").string() + "'").Code, 0);
    std::filesystem::remove(home.Root / "said.txt");
    EXPECT_EQ(FilesBelow(home.Root), files);
}

TEST(CommandLine, ARunningWindowLaunchesAndGoesOutOfTheWay) {
    ProgramHome home("words_running");
    home.Prepare();
    ProgramRun running(home);
    const std::string window = running.WaitForWindow();
    const std::string title = Say(home, "--list").Text;
    const Said started = Say(home, "--launch '" + title.substr(0, title.find('\t')) + "'");
    EXPECT_EQ(started.Code, 0) << started.Text;
    EXPECT_TRUE(started.Text.starts_with("Started ")) << started.Text;
    EXPECT_TRUE(WaitUntil([&] { return !IsShown(window) || StateOf(window) == "Iconic"; }));
}

}  // namespace lv
