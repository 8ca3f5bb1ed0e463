#include "foundry/losses/loss_words.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

/// The words of all differences, one a line.
Text AllWords(TextView before, TextView after) {
    Text all;
    for (const ScriptDifference& each :
         CompareScripts(EffectsOf(before, Console::DarkPlaces), EffectsOf(after, Console::DarkPlaces))) {
        all += Join(all.empty() ? "" : "\n", WordsOf(each));
    }
    return all;
}

}  // namespace

TEST(LossWords, SayWhatBecomesOfAKey) {
    EXPECT_EQ(AllWords("bind F1 x", ""), "The key F1 loses \"x\".");
    EXPECT_EQ(AllWords("bind F1 x", "bind f1 y"), "The key F1 gets \"y\" and was \"x\".");
    EXPECT_EQ(AllWords("", "bind F1 x"), "The key F1 gets \"x\", and the file leaves it alone.");
    EXPECT_EQ(AllWords("unbind F1", ""), "The key F1 is no longer free.");
    EXPECT_EQ(AllWords("unbind F1", "bind F1 x"), "The key F1 gets \"x\" and was free.");
    EXPECT_EQ(AllWords("", "unbind F1"), "The key F1 is free, and the file leaves it alone.");
    EXPECT_EQ(AllWords("unbindall", ""), "\"unbindall\" is lost.");
    EXPECT_EQ(AllWords("", "unbindall"), "\"unbindall\" is run.");
}

TEST(LossWords, SayWhatBecomesOfAnAlias) {
    EXPECT_EQ(AllWords("alias x y", ""), "The alias x is lost: \"y\".");
    EXPECT_EQ(AllWords("alias x y", "alias x z"), "The alias x gets \"z\" and was \"y\".");
    EXPECT_EQ(AllWords("unalias x", ""), "The alias x is no longer removed.");
    EXPECT_EQ(AllWords("unaliasall", ""), "\"unaliasall\" is lost.");
}

TEST(LossWords, SayWhatBecomesOfASetting) {
    EXPECT_EQ(AllWords("fov 90", ""), "The setting fov is lost: \"90\".");
    EXPECT_EQ(AllWords("fov 90", "fov 100"), "The setting fov gets \"100\" and was \"90\".");
    EXPECT_EQ(AllWords("", "fov 90"), "The setting fov gets \"90\", and the file leaves it alone.");
}

TEST(LossWords, SayWhatBecomesOfOtherCommands) {
    EXPECT_EQ(AllWords("echo a", ""), "\"echo a\" is lost.");
    EXPECT_EQ(AllWords("", "echo a"), "\"echo a\" is run, and the file does not run it.");
    EXPECT_EQ(AllWords("", "alias x \"y\";\""),
              "The alias x gets \"y\", and the file leaves it alone.\n"
              "An empty command is run, and the file does not run it.");
    EXPECT_EQ(AllWords("\"\"", ""), "An empty command is lost.");
    EXPECT_EQ(AllWords("exec a\nfov 90", "fov 90\nexec a"),
              "\"exec a\" runs in another place: what it sets and what the script sets override each other the other "
              "way round.");
}

TEST(OverriddenWordsOf, SayWhatTheGameHasAndWhatThePageSays) {
    const auto words = [](EffectKind kind, TextView before, TextView after) {
        ScriptDifference difference;
        difference.What = kind;
        difference.Name = "x";
        difference.Before.Value = before;
        difference.Before.Line = before.empty() ? 0 : 1;
        difference.After.Value = after;
        difference.After.Line = after.empty() ? 0 : 9;
        return OverriddenWordsOf(difference);
    };
    EXPECT_EQ(words(EffectKind::Bind, "a", "b"), "The key x keeps \"b\", and the page says \"a\".");
    EXPECT_EQ(words(EffectKind::Bind, "", "b"), "The key x keeps \"b\", and on the page it is free.");
    EXPECT_EQ(words(EffectKind::Bind, "a", ""), "The key x stays free, and the page says \"a\".");
    EXPECT_EQ(words(EffectKind::Alias, "", "b"), "The alias x keeps \"b\", and on the page it is removed.");
    EXPECT_EQ(words(EffectKind::Setting, "", "b"), "The setting x keeps \"b\", and the page does not set it.");
}

}  // namespace lv
