// A first start in a home with a game and an engine of the system's: four presses, nothing typed, and the engine has
// run the script of the launch.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

/// "~/games/quake", as much of it as DarkPlaces wants to begin.
void MakeGame(const fs::path& tree) {
    fs::create_directories(tree / "id1");
    for (const char* const archive : {"pak0.pak", "pak1.pak"}) {
        std::ofstream(tree / "id1" / archive, std::ios::binary) << std::string("PACK\x0c\0\0\0\0\0\0\0", 12);
    }
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
    MakeGame(tree);
    ProgramRun program(home);
    Hand hand;
    GoThroughTheSetup(program, hand);
    const std::string window = program.WaitForWindow();
    ASSERT_NE(window, "");
    EXPECT_TRUE(Activate(window));
    KeepScreenshot("first_game_ready");
    hand.Press("F2");
    const fs::path output = home.Root / "state/lorvane3d/last_game_output.txt";
    EXPECT_TRUE(WaitUntil([&] { return ReadBytes(output).find("execing lv_666.qs") != std::string::npos; }))
        << ReadBytes(output);
    EXPECT_EQ(hand.Presses(), 4);
    EXPECT_THAT(home.Get("Options", "Executables"), HasSubstr("DarkPlaces;"));
    EXPECT_FALSE(fs::exists(tree / "darkplaces"));
    EXPECT_TRUE(fs::exists(tree / "lv_666.bat"));
}

}  // namespace lv
