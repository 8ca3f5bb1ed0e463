#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <thread>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using std::chrono::steady_clock;

constexpr int kPoints = 10;

/// Values that no start and no launch changes.
std::map<std::string, std::string> StoreValues(ProgramHome& home) {
    std::map<std::string, std::string> stored;
    for (int i = 0; i < 40; ++i) {
        const std::string key = "Value" + std::to_string(i);
        home.Set("Kept", key, std::string(400, static_cast<char>('a' + i % 26)));
        stored["Kept/" + key] = std::string(400, static_cast<char>('a' + i % 26));
    }
    return stored;
}

void ExpectAllKept(const ProgramHome& home, const std::map<std::string, std::string>& stored) {
    const std::map<std::string, std::string> rows = RowsOf(home.Settings);
    for (const auto& [name, value] : stored) {
        const auto found = rows.find(name);
        ASSERT_NE(found, rows.end()) << name;
        EXPECT_EQ(found->second, value) << name;
    }
    const auto games = rows.find("Options/Executables");
    ASSERT_NE(games, rows.end());
    EXPECT_EQ(games->second, "Quake;c:\\quake\\quake.exe");
}

void SleepUntilPoint(steady_clock::time_point start, steady_clock::duration whole, int point) {
    std::this_thread::sleep_until(start + whole * (2 * point + 1) / (2 * kPoints));
}

TEST(Killed, AtAnyMomentOfTheStartLosesNothing) {
    ProgramHome home("killed_at_start");
    home.Prepare();
    const auto stored = StoreValues(home);
    const auto start = steady_clock::now();
    {
        ProgramRun program(home);
        ASSERT_NE(program.WaitForWindow(), "");
    }
    const auto whole = steady_clock::now() - start;
    for (int point = 0; point < kPoints; ++point) {
        SCOPED_TRACE(point);
        {
            const auto begin = steady_clock::now();
            ProgramRun program(home);
            SleepUntilPoint(begin, whole, point);
            program.Kill();
        }
        ExpectAllKept(home, stored);
        ExpectAStartThatWorks(home);
    }
}

// The start pauses for a second behind its splash: most of its writes lie in the first quarter of a second.
TEST(Killed, WhileTheFirstStartWritesLeavesAStoreThatOpens) {
    for (int point = 0; point < kPoints; ++point) {
        SCOPED_TRACE(point);
        ProgramHome home("killed_while_writing");
        home.Prepare();
        home.Set("LV-Stuff", "VP_Version", "0");
        const auto stored = StoreValues(home);
        {
            const auto begin = steady_clock::now();
            ProgramRun program(home);
            SleepUntilPoint(begin, std::chrono::milliseconds(250), point);
            program.Kill();
        }
        ExpectAllKept(home, stored);
        ExpectAStartThatWorks(home);
    }
}

struct LaunchFiles {
    std::string Batch;
    std::string Script;
    bool operator==(const LaunchFiles&) const = default;
};

LaunchFiles ReadLaunchFiles(const ProgramHome& home) {
    return {ReadBytes(home.Quake / "lv_666.bat"), ReadBytes(home.Quake / "ID1/lv_666.qs")};
}

/// Launches and ends; how long it took from the key to the game's output.
steady_clock::duration Launch(const ProgramHome& home) {
    ProgramRun program(home);
    EXPECT_TRUE(Activate(program.WaitForWindow()));
    std::filesystem::remove(home.Quake / "output.txt");
    const auto start = steady_clock::now();
    PressKey("F2");
    EXPECT_FALSE(WaitForOutput(home.Quake / "output.txt").empty());
    return steady_clock::now() - start;
}

TEST(Killed, AtAnyMomentOfALaunchLeavesEachFileWholeOldOrWholeNew) {
    ProgramHome home("killed_at_launch");
    home.Prepare();
    const auto stored = StoreValues(home);
    home.Set("Options", "UseCustomCommandLine", "1");
    home.Set("Options", "CustomCommandLineText", "+new");
    home.Set("Options", "NoCDAudio", "1");
    Launch(home);
    const LaunchFiles after = ReadLaunchFiles(home);
    home.Set("Options", "CustomCommandLineText", "+old");
    home.Set("Options", "NoCDAudio", "0");
    home.Set("Options", "VideoProfilesPos", "1");
    const auto whole = Launch(home);
    const LaunchFiles before = ReadLaunchFiles(home);
    ASSERT_NE(before.Batch, after.Batch);
    ASSERT_NE(before.Batch, "");

    home.Set("Options", "CustomCommandLineText", "+new");
    home.Set("Options", "NoCDAudio", "1");
    for (int point = 0; point < kPoints; ++point) {
        SCOPED_TRACE(point);
        {
            ProgramRun program(home);
            ASSERT_TRUE(Activate(program.WaitForWindow()));
            const auto begin = steady_clock::now();
            const OwnProcess key(home, {"xdotool", "key", "F2"});
            SleepUntilPoint(begin, whole, point);
            program.Kill();
        }
        const LaunchFiles now = ReadLaunchFiles(home);
        EXPECT_TRUE(now.Batch == before.Batch || now.Batch == after.Batch) << now.Batch;
        EXPECT_TRUE(now.Script == before.Script || now.Script == after.Script) << now.Script;
        ExpectAllKept(home, stored);
        ExpectAStartThatWorks(home);
    }
    Launch(home);
    EXPECT_EQ(ReadLaunchFiles(home).Batch, after.Batch);
}

}  // namespace

}  // namespace lv
