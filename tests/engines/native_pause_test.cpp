// A native game whose environment is shown first, in a real terminal.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/linux_processes.h"
#include "tests/engines/engine_run.h"
#include "tests/support/game_yard.h"

namespace lv {

TEST(NativeRoad, WaitsForAKeyAfterShowingTheEnvironment) {
    GameYard yard("engines/native_pause");
    yard.AddGame("show_native", "quake/my quake");
    yard.AddBatch("quake",
                  {"SET LV_TEST_A=a \"b\" $HOME", "SET", "PAUSE", "C:", "cd C:\\QUAKE", "MY QUAKE -a \"b c\" ;"});
    ASSERT_FALSE(LinuxProcesses(yard.Disk, yard.Places).StartBatch("C:\\QUAKE", "lv_666.bat"));
    std::this_thread::sleep_for(kLongEnoughForAGameThatDoesNotWait);
    ASSERT_FALSE(std::filesystem::exists(yard.Drive / "quake/output.txt"));
    ASSERT_TRUE(PressKeysUntil("xterm", yard.Drive / "quake/output.txt"));
    const std::vector<std::string> output = WaitForOutput(yard.Drive / "quake/output.txt");
    EXPECT_THAT(LinesAfter(output, "LV_TEST_A="), testing::ElementsAre("a \"b\" $HOME"));
    EXPECT_THAT(LinesAfter(output, "ARGUMENT="), testing::ElementsAre("-a", "b c", ";"));
    EXPECT_THAT(LinesAfter(output, "DIRECTORY="), testing::ElementsAre((yard.Drive / "quake").string()));
}

}  // namespace lv
