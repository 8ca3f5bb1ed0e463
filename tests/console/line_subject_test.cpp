#include "console/line_subject.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

struct SubjectCase {
    TextView Line;
    TextView Name;
    bool IsWhole;
    TextView Rest;
};

constexpr SubjectCase kCases[] = {
    {"bind x \"+jump\"", "bind x", true, "+jump"},
    {"  BIND \"X\" +jump", "bind x", true, "+jump"},
    {"unbind x", "bind x", true, ""},
    {"bind = \"sizeup\"", "bind =", true, "sizeup"},
    {"alias \"+zoom\" \"fov 30\"", "alias +zoom", true, "fov 30"},
    {"unalias zoom", "alias zoom", true, ""},
    {"setinfo \"b_sw\" \"8\"", "setinfo b_sw", true, "8"},
    {"set Fov 90", "fov", true, "90"},
    {"fov \"90\"", "fov", true, "90"},
    {"seta cl_foo 2", "cl_foo", true, "2"},
    {"color 4 4", "color", true, "4 4"},
    {"F1=Fire", "f1", true, "Fire"},
    {"[Engine.Input]", "[engine.input]", true, ""},
    {"; bind x y", "bind x", true, "y"},
    {"//; bind x \"say http://a\"", "bind x", true, "say http://a"},
    {"// movement keys", "//", false, "movement keys"},
    {"say \"hello there\"", "say", false, "hello there"},
    {"exec a.cfg", "exec", false, "a.cfg"},
    {"+mlook", "+mlook", false, ""},
    {"impulse 8;impulse 7", "impulse", false, "8;impulse 7"},
    {"", "", false, ""},
    {" \t", "", false, ""},
    {"bind", "bind ", true, ""},
};

std::size_t Likeness(TextView a, TextView b) {
    return LikenessOf(SubjectOf(a), SubjectOf(b));
}

}  // namespace

TEST(SubjectOf, IsWhatStandsAheadOfTheValue) {
    for (const SubjectCase& each : kCases) {
        const LineSubject subject = SubjectOf(each.Line);
        EXPECT_EQ(subject.Name, each.Name) << each.Line;
        EXPECT_EQ(subject.IsWhole, each.IsWhole) << each.Line;
        EXPECT_EQ(subject.Rest, each.Rest) << each.Line;
    }
}

TEST(LikenessOf, IsNoneForTwoThings) {
    EXPECT_EQ(Likeness("bind x a", "bind y a"), 0U);
    EXPECT_EQ(Likeness("alias x a", "bind x a"), 0U);
    EXPECT_EQ(Likeness("say hello", "echo hello"), 0U);
    EXPECT_EQ(Likeness("", ""), 0U);
    EXPECT_EQ(Likeness("say \"need health\"", "say \"my page is http:"), 0U);
    EXPECT_EQ(Likeness("exec rj.cfg", "exec missing.cfg"), 0U);
    EXPECT_EQ(Likeness("//", "// movement"), 0U);
}

TEST(LikenessOf, CountsWhatTwoLinesOfOneThingShare) {
    EXPECT_EQ(Likeness("bind x ab", "bind X \"zz\""), 1U);
    EXPECT_EQ(Likeness("bind x ab", "bind x ac"), 2U);
    EXPECT_EQ(Likeness("say hello there", "say hello here"), 11U);
    EXPECT_EQ(Likeness("+mlook", "+mlook // on"), 1U);
}

TEST(LikenessOf, KnowsALineThatWasCutOff) {
    EXPECT_EQ(Likeness("say \"my page is http://x.y/z\"", "say \"my page is http:"), 17U);
    EXPECT_GT(Likeness("echo done // finished; and more of this", "echo done"), 0U);
}

}  // namespace lv
