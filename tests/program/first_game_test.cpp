// A first start in a home with a game and an engine of the system's: four presses, nothing typed, and the engine has
// run the player's script and that of the launch.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "sample/small_quake.h"
#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;

constexpr const char* kPlayersScript = "echo PLAYERS_SCRIPT_HAS_RUN\n";

void MakeGame(const fs::path& tree) {
    MakeSmallQuake(tree);
    std::ofstream(tree / "id1/autoexec.cfg") << kPlayersScript;
}

/// Counts what the user does.
class Hand {
  public:
    void Press(const std::string& key) {
        PressKey(key);
        ++presses_;
    }
    [[nodiscard]] int Presses() const { return presses_; }

  private:
    int presses_ = 0;
};

void GoThroughTheSetup(ProgramRun& program, Hand& hand, const std::string& picture) {
    ASSERT_NE(program.WaitForDialog(kChipsetTitle), "");
    hand.Press("Return");  // "&Accept These Settings"
    ASSERT_NE(program.WaitForDialog("^Verify Setup Information$"), "");
    hand.Press("Return");  // "&Accept"
    ASSERT_TRUE(WaitUntil([&] { return ShownWindowsOf(program.Id(), "^Verify Setup Information$").empty(); }));
    ASSERT_NE(program.WaitForDialog(kChipsetTitle), "");
    KeepScreenshot(picture + "_found");
    hand.Press("Return");  // "&OK"
}

/// From the first window to the game; counts the presses.
int PlayAtOnce(ProgramRun& program, const std::string& picture) {
    Hand hand;
    GoThroughTheSetup(program, hand, picture);
    const std::string window = ::testing::Test::HasFatalFailure() ? std::string() : program.WaitForWindow();
    if (!window.empty()) {
        EXPECT_TRUE(Activate(window));
        KeepScreenshot(picture + "_ready");
        hand.Press("F2");
    }
    return hand.Presses();
}

/// Whether the engine has said that it has run the launch's script, and the player's own before.
void ExpectScriptsOfTheGame(const ProgramHome& home) {
    const fs::path output = home.Root / "state/lorvane3d/last_game_output.txt";
    EXPECT_TRUE(WaitUntil([&] { return ReadBytes(output).find("execing lv_666.qs") != std::string::npos; }, 30000));
    EXPECT_THAT(ReadBytes(output), HasSubstr("PLAYERS_SCRIPT_HAS_RUN"));
    EXPECT_THAT(ReadBytes(output), Not(HasSubstr("couldn't exec lv_666.qs")));
}

std::vector<std::string> NamesIn(const fs::path& directory) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(directory)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

/// The directories below the one for trees of links.
std::vector<fs::path> LinkedTreesOf(const ProgramHome& home) {
    std::vector<fs::path> trees;
    std::error_code failed;
    for (const auto& entry : fs::directory_iterator(home.Root / "data/lorvane3d/drive_c/lorvane3d", failed)) {
        trees.push_back(entry.path());
    }
    return trees;
}

}  // namespace

TEST(FirstGame, IsFourPressesAway) {
    ProgramHome home("first_game");
    const fs::path tree = home.Root / "games/quake";
    MakeGame(tree);
    ProgramRun program(home);
    EXPECT_EQ(PlayAtOnce(program, "first_game"), 4);
    ExpectScriptsOfTheGame(home);
    EXPECT_THAT(home.Get("Options", "Executables"), StartsWith("QuakeSpasm;"));
    EXPECT_FALSE(fs::exists(tree / "quakespasm"));
    EXPECT_TRUE(fs::exists(tree / "lv_666.bat"));
    EXPECT_THAT(LinkedTreesOf(home), IsEmpty());
}

// The game lies where Debian puts it, on a file system that nobody may write to, whoever runs the test.
TEST(FirstGame, IsFourPressesAwayWhereTheGameCannotBeWritten) {
    const fs::path shared = "/usr/share/games/quake";
    ASSERT_TRUE(fs::is_directory(shared)) << "this test needs Debian's package quakespasm, which makes " << shared;
    ProgramHome home("first_game_read_only");
    ExpectMountsOfOnesOwn(home);
    const fs::path tree = home.Root / "disk";
    MakeGame(tree);
    ProgramRun program(home, "mount --bind '" + tree.string() + "' " + shared.string() + "\nmount -o remount,ro,bind " +
                                 shared.string() + "\n");
    EXPECT_EQ(PlayAtOnce(program, "first_game_read_only"), 4);
    ExpectScriptsOfTheGame(home);
    EXPECT_THAT(home.Get("Options", "Executables"), StartsWith("QuakeSpasm;c:\\lorvane3d\\quake-"));
    const std::vector<fs::path> links = LinkedTreesOf(home);
    ASSERT_EQ(links.size(), 1U);
    EXPECT_EQ(fs::read_symlink(links[0] / "id1/pak0.pak"), shared / "id1/pak0.pak");
    EXPECT_EQ(ReadBytes(links[0] / "id1/autoexec.cfg"), kPlayersScript);
    EXPECT_TRUE(fs::is_regular_file(links[0] / "id1/lv_666.qs"));
    EXPECT_TRUE(fs::is_regular_file(links[0] / "lv_666.bat"));
    EXPECT_FALSE(fs::exists(links[0] / "quakespasm"));
    EXPECT_THAT(NamesIn(tree), ElementsAre("id1"));
    EXPECT_THAT(NamesIn(tree / "id1"), UnorderedElementsAre("autoexec.cfg", "pak0.pak", "pak1.pak"));
}

}  // namespace lv
