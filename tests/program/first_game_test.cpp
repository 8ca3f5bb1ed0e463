// A first start in a home with a game of today: four presses, nothing typed, and the engine runs.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

/// "~/games/quake" with the data of the whole game, as far as the setup looks at them, and "~/bin/quakespasm", which is
/// the native stand-in.
void MakeGameOfToday(const ProgramHome& home, const fs::path& tree) {
    fs::create_directories(tree / "id1");
    for (const char* const archive : {"pak0.pak", "pak1.pak"}) {
        std::ofstream(tree / "id1" / archive, std::ios::binary) << std::string("PACK\x0c\0\0\0\0\0\0\0", 12);
    }
    fs::create_directories(home.Root / "bin");
    fs::copy_file(fs::path(TestBinaryDir()) / "standins/show_native", home.Root / "bin/quakespasm");
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

void GoThroughTheSetup(ProgramRun& program, Hand& hand) {
    ASSERT_NE(program.WaitForDialog(kChipsetTitle), "");
    hand.Press("Return");  // "&Accept These Settings"
    ASSERT_NE(program.WaitForDialog("^Verify Setup Information$"), "");
    hand.Press("Return");  // "&Accept"
    ASSERT_TRUE(WaitUntil([&] { return ShownWindowsOf(program.Id(), "^Verify Setup Information$").empty(); }));
    ASSERT_NE(program.WaitForDialog(kChipsetTitle), "");
    KeepScreenshot("first_game_found");
    hand.Press("Return");  // "&OK"
}

}  // namespace

TEST(FirstGame, IsFourPressesAway) {
    ProgramHome home("first_game");
    const fs::path tree = home.Root / "games/quake";
    MakeGameOfToday(home, tree);
    ProgramRun program(home);
    Hand hand;
    GoThroughTheSetup(program, hand);
    const std::string window = program.WaitForWindow();
    ASSERT_NE(window, "");
    EXPECT_TRUE(Activate(window));
    KeepScreenshot("first_game_ready");
    hand.Press("F2");
    const std::vector<std::string> output = WaitForOutput(tree / "output.txt");
    EXPECT_FALSE(output.empty());
    EXPECT_THAT(LinesAfter(output, "ARGUMENT="), Not(Contains("-heapsize")));
    EXPECT_EQ(hand.Presses(), 4);
    EXPECT_THAT(home.Get("Options", "Executables"), HasSubstr("\\games\\quake\\quakespasm"));
    EXPECT_FALSE(fs::exists(tree / "quakespasm"));
    EXPECT_FALSE(fs::exists(home.Root / "bin/lv_666.bat"));
}

}  // namespace lv
