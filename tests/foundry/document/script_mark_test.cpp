#include "foundry/document/script_mark.h"

#include <gtest/gtest.h>

namespace lv {

TEST(ScriptMark, IsTheHashOfThePathInLowerCase) {
    EXPECT_EQ(ScriptMark(""), "cbf29ce484222325");
    EXPECT_EQ(ScriptMark("a"), "af63dc4c8601ec8c");
    EXPECT_EQ(ScriptMark("foobar"), "85944171f73967e8");
}

TEST(ScriptMark, IsTheSameInAnyLetterCase) {
    EXPECT_EQ(ScriptMark("C:\\QUAKE\\ID1\\My.cfg"), ScriptMark("c:\\quake\\id1\\MY.CFG"));
    EXPECT_NE(ScriptMark("C:\\QUAKE\\ID1\\My.cfg"), ScriptMark("C:\\QUAKE\\ID1\\My2.cfg"));
}

}  // namespace lv
