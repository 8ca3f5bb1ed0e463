#include "platform/linux/starting/last_game.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <thread>

#include "platform/linux/files/file_descriptor.h"
#include "platform/linux/starting/game_record.h"
#include "tests/platform/scratch_directory.h"
#include "tests/support/game_yard.h"
#include "tests/support/output_to.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::StartsWith;

struct LastGameTest : testing::Test {
    LastGameTest() {
        Places.State = Scratch / "state";
        Places.WatchHelper = fs::path(TestBinaryDir()) / "lorvane3d-watch";
    }
    /// A game that does what the shell is told. What it prints is passed on to nobody.
    Error Start(const std::string& script) {
        const FileDescriptor nobody(open("/dev/null", O_WRONLY | O_CLOEXEC));
        const OutputTo redirected(nobody.Number());
        return Game.Start({.Program = "/bin/sh",
                           .Arguments = {"-c", script},
                           .Environment = OwnEnvironment(),
                           .Directory = Scratch.Path().string()},
                          Places);
    }
    GameEnd WaitForEnd() {
        const auto latest = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        std::optional<GameEnd> end;
        while (!(end = Game.TakeEnd(Places)) && std::chrono::steady_clock::now() < latest) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        EXPECT_TRUE(end);
        return end.value_or(GameEnd{.Code = -1});
    }
    void WriteHelper(const std::string& bytes) {
        Places.WatchHelper = Scratch / "helper";
        WriteBytes(Places.WatchHelper, bytes);
        fs::permissions(Places.WatchHelper, fs::perms::owner_all);
    }

    ScratchDirectory Scratch;
    HostPlaces Places;
    LastGame Game;
};

}  // namespace

TEST_F(LastGameTest, IsNoneBeforeTheFirst) {
    EXPECT_FALSE(Game.IsWatched());
    EXPECT_FALSE(Game.TakeEnd(Places));
    EXPECT_FALSE(OutputOfLastGame(Places));
}

TEST_F(LastGameTest, HasItsEndToldOnce) {
    ASSERT_FALSE(Start("printf 'a\\nb\\n'; exit 3"));
    EXPECT_TRUE(Game.IsWatched());
    const GameEnd end = WaitForEnd();
    EXPECT_EQ(end.Code, 3);
    EXPECT_EQ(end.LastLines, "a\r\nb\r\n");
    EXPECT_FALSE(Game.IsWatched());
    EXPECT_FALSE(Game.TakeEnd(Places));
    EXPECT_EQ(OutputOfLastGame(Places), "a\r\nb\r\n");
}

TEST_F(LastGameTest, HasItsLastSixteenKilobytesToldWithItsEnd) {
    ASSERT_FALSE(Start("yes 0123456 | head -c 40000"));
    const GameEnd end = WaitForEnd();
    EXPECT_LE(end.LastLines.size(), 16384u);
    EXPECT_GT(end.LastLines.size(), 16000u);
    EXPECT_TRUE(end.LastLines.starts_with("0123456\r\n"));
    EXPECT_EQ(OutputOfLastGame(Places).value_or("").size(), 45000u);
}

TEST_F(LastGameTest, HasItsOutputKeptForTheNextRunButNotItsEnd) {
    ASSERT_FALSE(Start("echo of this run"));
    WaitForEnd();
    LastGame ofNextRun;
    EXPECT_FALSE(ofNextRun.IsWatched());
    EXPECT_FALSE(ofNextRun.TakeEnd(Places));
    EXPECT_EQ(OutputOfLastGame(Places), "of this run\r\n");
}

TEST_F(LastGameTest, StartsAsEverWithoutTheHelper) {
    ASSERT_FALSE(Start("echo of the game before"));
    WaitForEnd();
    Places.WatchHelper = Scratch / "missing";
    ASSERT_FALSE(Start("echo end > started.txt"));
    EXPECT_THAT(WaitForOutput(Scratch / "started.txt"), ElementsAre("end"));
    EXPECT_FALSE(Game.IsWatched());
    EXPECT_FALSE(OutputOfLastGame(Places));
    EXPECT_FALSE(Game.TakeEnd(Places));
}

TEST_F(LastGameTest, StartsAsEverWithAHelperThatIsNoProgram) {
    WriteHelper(
        "\x7F"
        "ELF");
    ASSERT_FALSE(Start("echo end > started.txt"));
    EXPECT_THAT(WaitForOutput(Scratch / "started.txt"), ElementsAre("end"));
    EXPECT_FALSE(Game.IsWatched());
}

TEST_F(LastGameTest, StartsAllTheSameWhereNothingCanBeKept) {
    WriteBytes(Places.State, "no directory");
    ASSERT_FALSE(Start("echo said; echo end > started.txt"));
    EXPECT_THAT(WaitForOutput(Scratch / "started.txt"), ElementsAre("end"));
    EXPECT_FALSE(Game.IsWatched());
    EXPECT_FALSE(OutputOfLastGame(Places));
}

TEST_F(LastGameTest, IsAnErrorAsEverWhereItCannotBeStarted) {
    ASSERT_FALSE(Start("echo of the game before"));
    WaitForEnd();
    const fs::path game = Scratch / "game";
    WriteBytes(game, "#!/no/such/shell\n");
    fs::permissions(game, fs::perms::owner_all);
    const Error fault =
        Game.Start({.Program = game.string(), .Arguments = {}, .Environment = {}, .Directory = {}}, Places);
    EXPECT_EQ(fault.Number, 53);
    EXPECT_THAT(fault.Text, StartsWith("File not found: " + game.string()));
    EXPECT_FALSE(Game.IsWatched());
    EXPECT_FALSE(OutputOfLastGame(Places)) << "the output of the game before, taken for this one's";
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(LastGameTest, HasReplacedTheOutputOfTheOneBefore) {
    ASSERT_FALSE(Start("echo of the first; exit 1"));
    WaitForEnd();
    ASSERT_FALSE(Start("echo of the second; exit 2"));
    EXPECT_EQ(WaitForEnd().Code, 2);
    EXPECT_EQ(OutputOfLastGame(Places), "of the second\r\n");
}

TEST_F(LastGameTest, IsToldOfAndNotTheOneThatItFollowed) {
    ASSERT_FALSE(Start("until [ -e go ]; do sleep 0.05; done; echo of the first; exit 1"));
    ASSERT_FALSE(Start("echo of the second; sleep 1; exit 2"));
    WriteBytes(Scratch / "go", "x");
    EXPECT_EQ(WaitForEnd().Code, 2);
    EXPECT_EQ(OutputOfLastGame(Places), "of the second\r\n");
}

TEST_F(LastGameTest, ARecordOfAnotherStartIsNotItsEnd) {
    ASSERT_FALSE(Start("until [ -e go ]; do sleep 0.05; done; exit 5"));
    WriteBytes(GameFilesIn(Places.State).End, "another code 1 10\n");
    EXPECT_FALSE(Game.TakeEnd(Places));
    EXPECT_TRUE(Game.IsWatched());
    WriteBytes(Scratch / "go", "x");
    EXPECT_EQ(WaitForEnd().Code, 5);
}

}  // namespace lv
