#include "console/alias_spellings.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

Effect Alias(TextView name, TextView body) {
    return {.Kind = EffectKind::Alias, .Name = Text(name), .Value = Text(body)};
}

Effect Removed(TextView name) {
    Effect effect = Alias(name, "");
    effect.IsSet = false;
    return effect;
}

}  // namespace

TEST(AliasSpellings, RunTheNewestWhereTheConsoleDoes) {
    AliasSpellings aliases(AliasCases::NewestRuns);
    EXPECT_EQ(aliases.Put(Alias("b", "1")).Value, "1");
    EXPECT_EQ(aliases.Put(Alias("B", "2")).Value, "2");
    EXPECT_EQ(aliases.Put(Alias("b", "3")).Value, "2") << "it is not new";
    EXPECT_EQ(aliases.Put(Removed("B")).Value, "3");
    EXPECT_FALSE(aliases.Put(Removed("b")).IsSet);
    EXPECT_EQ(aliases.Put(Alias("B", "4")).Value, "4");
}

TEST(AliasSpellings, RunTheFirstByItsBytesWhereTheConsoleDoes) {
    AliasSpellings aliases(AliasCases::FirstRuns);
    EXPECT_EQ(aliases.Put(Alias("b", "1")).Value, "1");
    EXPECT_EQ(aliases.Put(Alias("B", "2")).Value, "2");
    EXPECT_EQ(aliases.Put(Alias("b", "3")).Value, "2");
    EXPECT_EQ(aliases.Put(Alias("B", "4")).Value, "4");
    aliases.Clear();
    EXPECT_EQ(aliases.Put(Alias("b", "5")).Value, "5");
}

TEST(AliasSpellings, AreOneWhereTheConsoleMindsNoCase) {
    AliasSpellings aliases(AliasCases::AreOne);
    EXPECT_EQ(aliases.Put(Alias("b", "1")).Value, "1");
    EXPECT_EQ(aliases.Put(Alias("B", "2")).Value, "2");
    EXPECT_FALSE(aliases.Put(Removed("b")).IsSet);
}

TEST(AliasSpellings, EndHoweverManyThereAre) {
    AliasSpellings aliases(AliasCases::NewestRuns);
    for (unsigned i = 0; i < 100'000; ++i) {
        Text name = "abcdefghijklmnopq";
        for (std::size_t at = 0; at < name.size(); ++at) {
            name[at] = (i >> at & 1U) != 0 ? UpperCase(name[at]) : name[at];
        }
        EXPECT_EQ(aliases.Put(Alias(name, name)).Value, name);
    }
}

}  // namespace lv
