#include "launch/missing_executable.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

// "possiblities" is how the message has always been spelled.
TEST(MissingExecutable, IsToldWithItsPathAndFourPossibilities) {
    EXPECT_EQ(MissingExecutableText("C:\\QUAKE\\GLQUAKE.EXE", "4) It is on another disk."),
              "The executable game file -->\r\n\r\n\t\"C:\\QUAKE\\GLQUAKE.EXE\"\r\n\r\n"
              "could not be found. The following possiblities exist.\r\n\r\n"
              "1) The game has been moved.\r\n2) The game has been removed.\r\n3) The game is corrupted.\r\n"
              "4) It is on another disk.\r\n");
}

TEST(MissingExecutable, WithoutAPathIsToldInOneSentence) {
    EXPECT_EQ(kEmptyExecutable, "Executable defined as an empty string.");
}

}  // namespace
}  // namespace lv
