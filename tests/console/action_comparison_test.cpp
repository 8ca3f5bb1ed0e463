#include "console/action_comparison.h"

#include <gtest/gtest.h>

#include "tests/console/listed_effects.h"

namespace lv {
namespace {

Text ActionsOf(TextView before, TextView after) {
    return Listed(CompareActions(EffectsOf(before, Console::Quake), EffectsOf(after, Console::Quake)));
}

Text MovesOf(TextView before, TextView after) {
    return Listed(MovedScripts(EffectsOf(before, Console::Quake), EffectsOf(after, Console::Quake)));
}

}  // namespace

TEST(CompareActions, CountsThem) {
    EXPECT_EQ(ActionsOf("echo a\necho a\nwait", "echo a\nwait\nwait"),
              "lost action echo: echo a>; added action wait: >wait");
    EXPECT_EQ(ActionsOf("+mlook\n+mlook", "+mlook"), "");
    EXPECT_EQ(ActionsOf("ECHO a\n+MLOOK", "echo  a\n+mlook"), "");
    EXPECT_EQ(ActionsOf("echo A", "echo a"), "lost action echo: echo A>; added action echo: >echo a");
}

TEST(CompareActions, TakeThoseForLostThatAreOutOfOrder) {
    const std::vector<ScriptDifference> lost = CompareActions(EffectsOf("echo a\necho b\necho a", Console::Quake),
                                                              EffectsOf("echo b\necho a", Console::Quake));
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].Before.Line, 1U);
}

TEST(MovedScripts, RanAheadOfLinesThatTheyNowFollow) {
    EXPECT_EQ(MovesOf("exec a.cfg\nbind x y", "bind x y\nexec a.cfg"), "moved action exec: exec a.cfg>exec a.cfg");
    EXPECT_EQ(MovesOf("fov 90\nexec a.cfg", "exec a.cfg\nfov 90"), "moved action exec: exec a.cfg>exec a.cfg");
    EXPECT_EQ(MovesOf("fov 90\nexec a.cfg\nalias x y", "fov 90\nexec a.cfg\nalias x y"), "");
}

TEST(MovedScripts, AreToldOnceEach) {
    EXPECT_EQ(MovesOf("exec a.cfg\nexec b.cfg\nbind x y\nfov 90", "bind x y\nfov 90\nexec a.cfg\nexec b.cfg"),
              "moved action exec: exec a.cfg>exec a.cfg; moved action exec: exec b.cfg>exec b.cfg");
}

TEST(MovedScripts, AreNoOtherCommands) {
    EXPECT_EQ(MovesOf("echo a\nbind x y", "bind x y\necho a"), "");
}

}  // namespace lv
