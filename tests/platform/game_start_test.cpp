#include "platform/linux/starting/game_start.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

GameStart StartOf(const std::string& program, const std::string& arguments) {
    GameStart start;
    start.Plan.command = program + " " + arguments;
    start.Game.Program.Arguments = arguments;
    return start;
}

/// A directory for SearchPath with programs of these names.
struct Tools {
    explicit Tools(std::initializer_list<const char*> names) {
        for (const char* const name : names) {
            std::filesystem::copy_file("/bin/true", Scratch / name);
        }
        Places.SearchPath = Scratch.Path().string();
        Places.PauseHelper = Scratch / "pause";
    }
    [[nodiscard]] std::string Path(const std::string& name) const { return (Scratch / name).string(); }

    ScratchDirectory Scratch;
    HostPlaces Places;
};

HostCommand Game() {
    return {.Program = "/games/quake", .Arguments = {"-zone", "512"}, .Environment = {"A=1"}, .Directory = "/games"};
}

}  // namespace

TEST(HostArguments, AreTheWordsBehindTheProgramInUtf8) {
    EXPECT_THAT(HostArguments(StartOf("QUAKE.EXE", "-a \"b c\" \xE9")), ElementsAre("-a", "b c", "\xC3\xA9"));
    EXPECT_THAT(HostArguments(StartOf("QUAKE.EXE", "")), IsEmpty());
}

TEST(HostArguments, KeepAGivenWordWhole) {
    GameStart start = StartOf("QUAKE.EXE", "-game x +connect evil");
    start.Plan.given = {{.At = 16, .Written = "x +connect evil", .Argument = "x +connect evil"}};
    EXPECT_THAT(HostArguments(start), ElementsAre("-game", "x +connect evil"));
}

TEST(HostArguments, LeaveOutTheProgramsOwnGivenName) {
    GameStart start = StartOf("MY QUAKE.EXE", "-a b");
    start.Plan.given = {{.At = 0, .Written = "MY QUAKE.EXE", .Argument = "MY QUAKE.EXE"}};
    EXPECT_THAT(HostArguments(start), ElementsAre("-a", "b"));
}

TEST(BatchEnvironment, IsThisProgramsWithTheBatchsOverIt) {
    GameStart start;
    start.Environment = {"KEPT=1", "GONE=1", "OLD=1"};
    start.Plan.environment = {{"OLD", "2"}, {"GONE", ""}, {"NEW", "\xE9"}, {"OLD", "3"}};
    EXPECT_THAT(BatchEnvironment(start), testing::UnorderedElementsAre("KEPT=1", "OLD=3", "NEW=\xC3\xA9"));
}

TEST(AfterShowing, LeavesACommandAloneWhoseBatchShowsNothing) {
    const Result<HostCommand> command = AfterShowing(Game(), GameStart());
    ASSERT_TRUE(command.Ok());
    EXPECT_EQ(command.Value.Program, "/games/quake");
    EXPECT_THAT(command.Value.Arguments, ElementsAre("-zone", "512"));
}

TEST(AfterShowing, PutsTheGameBehindTheProgramThatWaitsInATerminal) {
    const Tools tools({"xterm", "pause"});
    GameStart start;
    start.Plan.showsEnvironment = true;
    start.Places = tools.Places;
    const Result<HostCommand> command = AfterShowing(Game(), start);
    ASSERT_TRUE(command.Ok()) << command.Fault.Text;
    EXPECT_EQ(command.Value.Program, tools.Path("xterm"));
    EXPECT_THAT(command.Value.Arguments, ElementsAre("-e", tools.Path("pause"), "/games/quake", "-zone", "512"));
    EXPECT_THAT(command.Value.Environment, ElementsAre("A=1"));
    EXPECT_EQ(command.Value.Directory, "/games");
}

TEST(AfterShowing, NamesTheProgramThatIsNotThere) {
    const Tools tools({"xterm"});
    GameStart start;
    start.Plan.showsEnvironment = true;
    start.Places = tools.Places;
    const Result<HostCommand> command = AfterShowing(Game(), start);
    EXPECT_EQ(command.Fault.Number, 53);
    EXPECT_NE(command.Fault.Text.find(tools.Path("pause")), std::string::npos);
}

TEST(InTerminal, TakesXtermAheadOfAnyOther) {
    const Tools both({"x-terminal-emulator", "xterm"});
    EXPECT_EQ(InTerminal(Game(), both.Places).Value.Program, both.Path("xterm"));
    const Tools other({"x-terminal-emulator"});
    EXPECT_EQ(InTerminal(Game(), other.Places).Value.Program, other.Path("x-terminal-emulator"));
    EXPECT_THAT(InTerminal(Game(), other.Places).Value.Arguments, ElementsAre("-e", "/games/quake", "-zone", "512"));
}

TEST(InTerminal, SaysWhichPackageIsMissing) {
    const Error fault = InTerminal(Game(), Tools({}).Places).Fault;
    EXPECT_EQ(fault.Number, 53);
    EXPECT_EQ(fault.Text, "A terminal is needed to show the environment. Install the Debian package \"xterm\".");
}

TEST(CheckGiven, LetsPlainWordsPass) {
    for (const LineReader reader : {LineReader::kNobody, LineReader::kCommandProcessor, LineReader::kDosShell}) {
        EXPECT_FALSE(CheckGiven({{.At = 0, .Written = "ctf", .Argument = "ctf"}}, reader));
        EXPECT_FALSE(CheckGiven({}, reader));
    }
}

TEST(CheckGiven, NamesTheFirstWordThatItsReaderWouldMisread) {
    const Error fault = CheckGiven({{.At = 0, .Written = "ctf", .Argument = "ctf"},
                                    {.At = 4, .Written = "m&calc", .Argument = "m&calc"},
                                    {.At = 11, .Written = "n&calc", .Argument = "n&calc"}},
                                   LineReader::kCommandProcessor);
    EXPECT_EQ(fault.Number, 75);
    EXPECT_EQ(fault.Text,
              "The command processor would not read this as one word of text, and nothing was started: m&calc");
}

TEST(MisreadWord, NamesEachReader) {
    constexpr const char* kEnd = " would not read this as one word of text, and nothing was started: x";
    EXPECT_EQ(MisreadWord("x", LineReader::kNobody).Text, std::string("A command line") + kEnd);
    EXPECT_EQ(MisreadWord("x", LineReader::kDosShell).Text, std::string("DOS's shell") + kEnd);
    EXPECT_EQ(MisreadWord("x", LineReader::kCommandProcessor).Text, std::string("The command processor") + kEnd);
    EXPECT_EQ(MisreadWord("x", LineReader::kBatch).Text, std::string("The command processor") + kEnd);
}

}  // namespace lv
