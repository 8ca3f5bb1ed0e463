#include "commands/command_place.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

TEST(CommandPlace, APathIsPrintedAsTheHostHasItWhereThatIsAskedFor) {
    MemoryPlatform system;
    CommandPlace place{system.Services};
    EXPECT_EQ(PrintedPath(place, "C:\\QUAKE"), "C:\\QUAKE");
    place.PrintsHostPaths = true;
    EXPECT_EQ(PrintedPath(place, "C:\\QUAKE\\ID1"), "/c:/quake/id1");
}

TEST(CommandPlace, AFaultNamesItsPathAsTheHostHasIt) {
    MemoryPlatform system;
    CommandPlace place{system.Services};
    place.PrintsHostPaths = true;
    const Error fault{error::kPermissionDenied, "Permission denied: C:\\Q\\a.cfg"};
    EXPECT_EQ(PrintedFault(place, fault, "C:\\Q\\a.cfg"), "Permission denied: /c:/q/a.cfg");
    EXPECT_EQ(PrintedFault(place, fault, "C:\\OTHER"), "Permission denied: C:\\Q\\a.cfg");
    EXPECT_EQ(PrintedFault(place, fault, ""), "Permission denied: C:\\Q\\a.cfg");
}

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
