#include "foundry/document/alias_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace lv {
namespace {

AliasList ListOf(std::initializer_list<TextView> names) {
    AliasList list;
    for (const TextView name : names) {
        list.Insert({.Bound = false, .Name = Text(name), .Body = "body of " + Text(name)});
    }
    return list;
}

Text NamesOf(const AliasList& list) {
    Text names;
    for (std::size_t i = 0; i < list.AliasCount(); ++i) {
        names += list[i].Name + " ";
    }
    return names;
}

TEST(AliasList, KeepsItsOrderWhateverTheOrderOfInsertion) {
    EXPECT_EQ(NamesOf(ListOf({"m", "z", "a", "q"})), "a m q z ");
}

TEST(AliasList, ErasesOneAndClosesTheGap) {
    AliasList list = ListOf({"a", "b", "c"});
    list.Erase(1);
    EXPECT_EQ(NamesOf(list), "a c ");
    EXPECT_FALSE(list.Find("b").Found);
    EXPECT_TRUE(list.Insert({.Bound = true, .Name = "b", .Body = "new"}));
    EXPECT_EQ(NamesOf(list), "a b c ");
    EXPECT_EQ(list[1].Body, "new");
    EXPECT_TRUE(list[1].Bound);
}

TEST(AliasList, ReplacesAndMovesTheRecord) {
    AliasList list = ListOf({"a", "b", "c"});
    EXPECT_EQ(list.Replace(0, {.Bound = true, .Name = "x", .Body = "wait"}), 2U);
    EXPECT_EQ(NamesOf(list), "b c x ");
    EXPECT_EQ(list[2].Body, "wait");
    EXPECT_TRUE(list[2].Bound);
}

TEST(AliasList, ReplacesTheBodyUnderTheSameName) {
    AliasList list = ListOf({"a", "b", "c"});
    EXPECT_EQ(list.Replace(1, {.Bound = false, .Name = "B", .Body = "wait"}), 1U);
    EXPECT_EQ(NamesOf(list), "a B c ");
    EXPECT_EQ(list[1].Body, "wait");
}

TEST(AliasList, GivesNoRecordTheNameOfAnother) {
    AliasList list = ListOf({"a", "b"});
    EXPECT_EQ(list.Replace(0, {.Bound = false, .Name = "b", .Body = "wait"}), 0U);
    EXPECT_EQ(NamesOf(list), "a b ");
    EXPECT_EQ(list[0].Body, "body of a");
}

TEST(AliasList, ComparesAccentedLettersWithoutRegardToCase) {
    const AliasList list = ListOf({"\xC4pfel"});
    EXPECT_TRUE(list.Find("\xE4pfel").Found);
}

TEST(AliasList, IsEmptyWhenCleared) {
    AliasList list = ListOf({"a", "b"});
    list.Clear();
    EXPECT_TRUE(list.empty());
    EXPECT_FALSE(list.Find("a").Found);
    EXPECT_EQ(list.Find("a").Place, 0U);
}

TEST(AliasList, HoldsWhatASortedMapHoldsAfterThousandsOfOperations) {
    std::mt19937 random(3);
    AliasList list;
    std::map<Text, Text> expected;
    for (int round = 0; round < 5'000; ++round) {
        const Text name = "n" + std::to_string(random() % 300);
        const Text body = std::to_string(round);
        const AliasPlace place = list.Find(name);
        ASSERT_EQ(place.Found, expected.contains(name));
        if (place.Found && random() % 2 == 0) {
            list.Erase(place.Place);
            expected.erase(name);
        } else {
            EXPECT_EQ(list.Insert({.Bound = false, .Name = name, .Body = body}), expected.emplace(name, body).second);
        }
    }
    ASSERT_EQ(list.AliasCount(), expected.size());
    std::size_t place = 0;
    for (const auto& [name, body] : expected) {
        EXPECT_EQ(list[place].Name, name);
        EXPECT_EQ(list[place].Body, body);
        ++place;
    }
}

}  // namespace
}  // namespace lv
