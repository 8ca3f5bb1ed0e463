#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <ostream>
#include <string>
#include <thread>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using std::chrono::steady_clock;
using ::testing::HasSubstr;

// In all of the three tests together, 510 with LV_WHOLE.
const int kPoints = std::getenv("LV_WHOLE") != nullptr ? 170 : 10;

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
    friend std::ostream& operator<<(std::ostream& out, const LaunchFiles& files) {
        return out << files.Batch << files.Script;
    }
};

LaunchFiles ReadLaunchFiles(const ProgramHome& home) {
    return {ReadBytes(home.Quake / "lv_666.bat"), ReadBytes(home.Quake / "ID1/lv_666.qs")};
}

void WriteLaunchFiles(const ProgramHome& home, const LaunchFiles& files) {
    std::ofstream(home.Quake / "lv_666.bat", std::ios::binary) << files.Batch;
    std::ofstream(home.Quake / "ID1/lv_666.qs", std::ios::binary) << files.Script;
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

void ChooseScript(ProgramHome& home, const std::string& name) {
    home.Set("DefaultScript", "c:\\quake\\ID1", "c:\\quake\\id1\\" + name + ".cfg");
    home.Set("Options", "CustomCommandLineText", "+" + name);
}

TEST(Killed, AtAnyMomentOfALaunchLeavesEachFileWholeOldOrWholeNew) {
    ProgramHome home("killed_at_launch");
    home.Prepare();
    const auto stored = StoreValues(home);
    home.Set("Options", "UseCustomCommandLine", "1");
    home.Set("Options", "UseScripts", "1");
    home.Set("Options", "UseDemos", "0");
    for (const char* const script : {"old.cfg", "new.cfg"}) {
        std::ofstream(home.Quake / "ID1" / script) << "echo A script.\r\n";
    }
    ChooseScript(home, "new");
    Launch(home);
    const LaunchFiles after = ReadLaunchFiles(home);
    ChooseScript(home, "old");
    const auto whole = Launch(home);
    const LaunchFiles before = ReadLaunchFiles(home);
    ASSERT_EQ(before.Script, "exec old.cfg\r\n");
    ASSERT_EQ(after.Script, "exec new.cfg\r\n");
    ASSERT_THAT(before.Batch, HasSubstr("+old"));
    ASSERT_THAT(after.Batch, HasSubstr("+new"));

    ChooseScript(home, "new");
    int stillOld = 0;
    for (int point = 0; point < kPoints; ++point) {
        SCOPED_TRACE(point);
        WriteLaunchFiles(home, before);
        {
            ProgramRun program(home);
            ASSERT_TRUE(Activate(program.WaitForWindow()));
            const auto begin = steady_clock::now();
            OwnProcess key(home, {"xdotool", "key", "F2"});
            SleepUntilPoint(begin, whole, point);
            program.Kill();
            ASSERT_EQ(key.WaitForEnd(), 0);  // or the key would stay pressed
        }
        const LaunchFiles now = ReadLaunchFiles(home);
        stillOld += now == before ? 1 : 0;
        EXPECT_TRUE(now.Batch == before.Batch || now.Batch == after.Batch) << now.Batch;
        EXPECT_TRUE(now.Script == before.Script || now.Script == after.Script) << now.Script;
        ExpectAllKept(home, stored);
        ExpectAStartThatWorks(home);
    }
    EXPECT_GT(stillOld, 0) << "every kill came after the launch";
    EXPECT_LT(stillOld, kPoints) << "every kill came before the launch";
    Launch(home);
    EXPECT_EQ(ReadLaunchFiles(home), after);
}

}  // namespace

}  // namespace lv
