#include "foundry/writing/banners.h"

#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

TEST(AddBanner, IsFiveLines) {
    Text script;
    AddBanner(script, "//* Free Form       *//");
    EXPECT_EQ(script, Crlf("//*/////////////////*//\n"
                           "//*                 *//\n"
                           "//* Free Form       *//\n"
                           "//*                 *//\n"
                           "//*/////////////////*//\n"));
}

TEST(AddEchoLines, AreFiveLines) {
    Text script;
    AddEchoLines(script);
    EXPECT_EQ(script, Crlf("echo |========================|\n"
                           "echo |........................|\n"
                           "echo |..Setup Foundry ROCKS!..|\n"
                           "echo |........................|\n"
                           "echo |========================|\n"));
}

TEST(ScriptDate, HasTwoDigitsForMonthAndDay) {
    EXPECT_EQ(ScriptDate({2004, 3, 7, 0, 0, 0}), "03/07/2004");
    EXPECT_EQ(ScriptDate({1999, 11, 21, 23, 59, 59}), "11/21/1999");
}

TEST(AddDateLine, KeepsTheBannersWidth) {
    Text script;
    AddDateLine(script, {1999, 1, 2, 0, 0, 0});
    EXPECT_EQ(script, "//* 01/02/1999      *//\r\n");
}

TEST(AddBindLine, FillsFifteenCharactersWithTheQuotedKey) {
    Text script;
    AddBindLine(script, "w", "+forward");
    AddBindLine(script, "kp_home", "+attack", "key pad 7");
    EXPECT_EQ(script,
              "bind \"w\"             \"+forward\"\r\n"
              "bind \"kp_home\"       \"+attack\"  //* key pad 7\r\n");
}

TEST(AddBindLine, JustFitsTheLongestKey) {
    Text script;
    AddBindLine(script, "kp_rightarrow", "x");
    EXPECT_EQ(script, "bind \"kp_rightarrow\" \"x\"\r\n");
}

TEST(AddBindLine, CutsALongerKey) {
    Text script;
    AddBindLine(script, "kp_rightarrows", "x");
    EXPECT_EQ(script, "bind \"kp_rightarrows \"x\"\r\n");
}

}  // namespace
}  // namespace lv
