#include "launch/text_patterns.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(FillPattern, PutsTheValueAtEachMark) {
    EXPECT_EQ(FillPattern("a % b %", "1"), "a 1 b 1");
}

TEST(FillPattern, PutsTheResolutionAtItsMark) {
    EXPECT_EQ(FillPattern("R_#=%", "75", "640x480"), "R_640x480=75");
}

TEST(FillPattern, LeavesAPatternWithoutMarksAsItIs) {
    EXPECT_EQ(FillPattern("-nolan ", "1"), "-nolan ");
}

TEST(FillPattern, LeavesMarksInsideTheValuesAlone) {
    EXPECT_EQ(FillPattern("#=%", "5#", "5%"), "5%=5#");
}

}  // namespace
}  // namespace lv
