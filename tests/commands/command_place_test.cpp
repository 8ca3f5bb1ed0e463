#include "commands/command_place.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(CommandPlace, TheCodesThatACommandEndsWith) {
    EXPECT_EQ(exit_code::kDone, 0);
    EXPECT_EQ(exit_code::kFailed, 1);
    EXPECT_EQ(exit_code::kNotUnderstood, 2);
    EXPECT_EQ(exit_code::kNothingCalledSo, 3);
    EXPECT_EQ(exit_code::kFinds, 4);
}

TEST(CommandPlace, PrintedTextHasLinesAndTabsAndNoOtherControls) {
    EXPECT_EQ(Printed(""), "");
    EXPECT_EQ(Printed("a\r\nb"), "a\nb\n");
    EXPECT_EQ(Printed("a\rb\n"), "a\nb\n");
    EXPECT_EQ(Printed("a\tb\x1B[2J\x7F\x07"), "a\tb?[2J??\n");
    EXPECT_EQ(Printed(TextView("a\0b", 3)), "a?b\n");
    EXPECT_EQ(Printed("\xE9"), "\xE9\n");
}

}  // namespace
}  // namespace lv
