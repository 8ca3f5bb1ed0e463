#include "platform/starting/batch_game.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

struct Disk : MemoryFiles {
    Disk() {
        AddFile("C:\\QUAKE\\QUAKE.EXE", "MZ");
        AddDirectory("C:\\QUAKE\\ID1");
    }
    Result<BatchGame> Reading(const std::string& batch, const BatchCommand& known = {}) {
        AddFile("C:\\QUAKE\\LV_666.BAT", batch);
        return ReadBatchGame(*this, "C:\\QUAKE", "LV_666.BAT", known);
    }
};

GivenWord Given(const std::string& written) {
    return {.At = 0, .Written = written, .Argument = written};
}

constexpr const char* kMisread = " would not read this as one word of text, and nothing was started: ";

}  // namespace

TEST(ReadBatchGame, GivesTheBatchItsPlanAndItsGame) {
    Disk disk;
    const auto read = disk.Reading("SET SST_RGAMMA=1.7\r\nC:\r\ncd C:\\QUAKE\r\nQUAKE.EXE -zone 512");
    ASSERT_TRUE(read.Ok()) << read.Fault.Text;
    EXPECT_EQ(read.Value.BatchText, "SET SST_RGAMMA=1.7\r\nC:\r\ncd C:\\QUAKE\r\nQUAKE.EXE -zone 512");
    EXPECT_EQ(read.Value.BatchPath, "C:\\QUAKE\\LV_666.BAT");
    EXPECT_EQ(read.Value.Plan.environment, (std::vector<std::pair<std::string, std::string>>{{"SST_RGAMMA", "1.7"}}));
    EXPECT_EQ(read.Value.Directory, "C:\\QUAKE");
    EXPECT_EQ(read.Value.Game.Program.Path, "C:\\QUAKE\\QUAKE.EXE");
    EXPECT_EQ(read.Value.Game.Program.Arguments, "-zone 512");
}

TEST(ReadBatchGame, TakesADirectoryFromTheCurrentOne) {
    Disk disk;
    disk.AddFile("C:\\QUAKE\\LV_666.BAT", "QUAKE.EXE");
    const auto read = ReadBatchGame(disk, "QUAKE", "LV_666.BAT");
    EXPECT_EQ(read.Value.BatchPath, "C:\\QUAKE\\LV_666.BAT");
    EXPECT_EQ(read.Value.Directory, "C:\\QUAKE");
    EXPECT_EQ(read.Value.Game.Program.Path, "C:\\QUAKE\\QUAKE.EXE");
}

TEST(ReadBatchGame, StaysBesideABatchThatGoesNowhere) {
    Disk disk;
    EXPECT_EQ(disk.Reading("QUAKE.EXE").Value.Directory, "C:\\QUAKE");
}

TEST(ReadBatchGame, GoesToADirectoryOnTheBatchesDrive) {
    Disk disk;
    disk.AddFile("D:\\GAMES\\Q2.EXE", "MZ");
    EXPECT_EQ(disk.Reading("D:\r\ncd \\GAMES\r\nQ2.EXE").Value.Directory, "D:\\GAMES");
    EXPECT_EQ(disk.Reading("D:\r\ncd GAMES\r\nQ2.EXE").Value.Directory, "D:\\GAMES");
    EXPECT_EQ(disk.Reading("D:\r\ncd \\GAMES\r\nQ2.EXE").Value.Game.Program.Path, "D:\\GAMES\\Q2.EXE");
}

TEST(ReadBatchGame, GoesBelowTheBatchWithoutADrive) {
    Disk disk;
    disk.AddFile("C:\\QUAKE\\GL\\GLQUAKE.EXE", "MZ");
    EXPECT_EQ(disk.Reading("cd GL\r\nGLQUAKE.EXE").Value.Directory, "C:\\QUAKE\\GL");
}

TEST(ReadBatchGame, GoesToANetworksPath) {
    Disk disk;
    disk.AddFile("\\\\SERVER\\GAMES\\Q2.EXE", "MZ");
    const auto read = disk.Reading("\\\\\r\ncd \\\\SERVER\\GAMES\r\nQ2.EXE -a");
    ASSERT_TRUE(read.Ok()) << read.Fault.Text;
    EXPECT_EQ(read.Value.Directory, "\\\\SERVER\\GAMES");
    EXPECT_EQ(read.Value.Game.Program.Path, "\\\\SERVER\\GAMES\\Q2.EXE");
    EXPECT_EQ(read.Value.Game.Program.Arguments, "-a");
}

TEST(ReadBatchGame, KeepsTheGivenWordsOfTheCommand) {
    Disk disk;
    const std::string batch = "cd C:\\QUAKE\r\nQUAKE.EXE +map a&b";
    const GivenWord map = {.At = batch.find("a&b"), .Written = "a&b", .Argument = "a&b"};
    const auto read = disk.Reading(batch, {.Program = "QUAKE.EXE", .Given = {map}});
    ASSERT_EQ(read.Value.Plan.given.size(), 1U);
    EXPECT_EQ(read.Value.Plan.given[0].At, 15U);
    EXPECT_EQ(read.Value.Plan.given[0].Written, "a&b");
}

TEST(ReadBatchGame, TakesNoOtherProgramForTheOneThatIsKnown) {
    Disk disk;
    disk.AddFile("C:\\QUAKE\\MY.EXE", "MZ");
    const auto read = disk.Reading("MY GAME.EXE", {.Program = "MY GAME.EXE", .Given = {}});
    EXPECT_EQ(read.Fault.Number, 53);
    EXPECT_EQ(read.Fault.Text, "File not found: C:\\QUAKE\\MY GAME.EXE");
}

TEST(ReadBatchGame, OfAMissingBatchGivesTheFilesOwnError) {
    Disk disk;
    const auto missing = ReadBatchGame(disk, "C:\\QUAKE", "LV_666.BAT");
    EXPECT_EQ(missing.Fault.Number, 53);
    EXPECT_EQ(missing.Fault.Text, "File not found: C:\\QUAKE\\LV_666.BAT");
    const auto nowhere = ReadBatchGame(disk, "C:\\GONE", "LV_666.BAT");
    EXPECT_EQ(nowhere.Fault.Number, 76);
    EXPECT_EQ(nowhere.Fault.Text, "Path not found: C:\\GONE\\LV_666.BAT");
    const auto directory = ReadBatchGame(disk, "C:\\QUAKE", "ID1");
    EXPECT_EQ(directory.Fault.Number, 75);
}

TEST(ReadBatchGame, WithoutACommandIsError5) {
    Disk disk;
    for (const char* const batch : {"", "\r\n \r\n", "SET A=B\r\nC:\r\ncd C:\\QUAKE\r\n"}) {
        const auto read = disk.Reading(batch);
        EXPECT_EQ(read.Fault.Number, 5) << batch;
        EXPECT_EQ(read.Fault.Text, "There is no command in C:\\QUAKE\\LV_666.BAT") << batch;
    }
}

TEST(ReadBatchGame, WithoutItsDirectoryIsError76) {
    Disk disk;
    const auto read = disk.Reading("C:\r\ncd C:\\GONE\r\nQUAKE.EXE");
    EXPECT_EQ(read.Fault.Number, 76);
    EXPECT_EQ(read.Fault.Text, "Path not found: C:\\GONE");
    EXPECT_EQ(disk.Reading("cd C:\\QUAKE\\QUAKE.EXE\r\nQUAKE.EXE").Fault.Number, 76);
}

TEST(ReadBatchGame, WithoutItsProgramIsError53) {
    Disk disk;
    const auto read = disk.Reading("cd C:\\QUAKE\\ID1\r\nQUAKE.EXE -zone 512");
    EXPECT_EQ(read.Fault.Number, 53);
    EXPECT_EQ(read.Fault.Text, "File not found: C:\\QUAKE\\ID1\\QUAKE.EXE");
}

TEST(CheckGiven, PassesWordsThatReadAsThemselves) {
    for (const LineReader reader :
         {LineReader::kNobody, LineReader::kDosShell, LineReader::kCommandProcessor, LineReader::kBatch}) {
        EXPECT_FALSE(CheckGiven({}, reader));
        EXPECT_FALSE(CheckGiven({Given("e1m1"), Given("10.0.0.1:26000")}, reader));
    }
    EXPECT_FALSE(CheckGiven({Given("a&b %PATH%")}, LineReader::kNobody));
}

TEST(CheckGiven, RefusesTheFirstWordThatIsMoreThanOne) {
    const std::vector<GivenWord> given = {Given("e1m1"), Given("a&b"), Given("%PATH%")};
    const Error processor = CheckGiven(given, LineReader::kCommandProcessor);
    EXPECT_EQ(processor.Number, 75);
    EXPECT_EQ(processor.Text, std::string("The command processor") + kMisread + "a&b");
    const Error batch = CheckGiven(given, LineReader::kBatch);
    EXPECT_EQ(batch.Number, 75);
    EXPECT_EQ(batch.Text, std::string("The command processor") + kMisread + "a&b");
    const Error shell = CheckGiven(given, LineReader::kDosShell);
    EXPECT_EQ(shell.Number, 75);
    EXPECT_EQ(shell.Text, std::string("DOS's shell") + kMisread + "a&b");
}

TEST(CheckGiven, RefusesControlCharactersForEveryReader) {
    const Error refused = CheckGiven({Given("a\nb")}, LineReader::kNobody);
    EXPECT_EQ(refused.Number, 75);
    EXPECT_EQ(refused.Text, std::string("A command line") + kMisread + "a\nb");
}

TEST(CheckGiven, LooksAtTheWordAsItStandsInTheBatch) {
    const GivenWord quoted = {.At = 0, .Written = "\"my map\"", .Argument = "my map"};
    EXPECT_FALSE(CheckGiven({quoted}, LineReader::kCommandProcessor));
    EXPECT_EQ(CheckGiven({Given("my map")}, LineReader::kCommandProcessor).Number, 75);
}

}  // namespace lv
