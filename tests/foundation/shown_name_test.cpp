#include "foundation/shown_name.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(ShownName, ANameNeverCommandsATerminal) {
    EXPECT_EQ(Shown("a\x1B]0;b\x07\r\n\x7F"), "a?]0;b????");
    EXPECT_EQ(Shown("Caf\xE9 \"1\""), "Caf\xE9 \"1\"");
}

TEST(ShownName, ALongOneIsCut) {
    EXPECT_EQ(Shown(Text(200, 'x')), Text(200, 'x'));
    EXPECT_EQ(Shown(Text(300, 'x')), Text(200, 'x') + "...");
}

}  // namespace
}  // namespace lv
