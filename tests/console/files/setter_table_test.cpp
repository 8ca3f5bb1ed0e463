#include "console/files/setter_table.h"

#include <gtest/gtest.h>

namespace lv {

TEST(SetterTable, KeepsAllInTheirOrder) {
    SetterTable table;
    table.Put(EffectKind::Bind, "F1", "f1", {.Script = 0, .Line = 1, .Value = "a"});
    table.Put(EffectKind::Setting, "F1", "F1", {.Script = 0, .Line = 2, .Value = "b"});
    table.Put(EffectKind::Bind, "F1", "F1", {.Script = 1, .Line = 3, .Value = "c"});
    ASSERT_EQ(table.All().size(), 2U);
    const SetThing& key = table.All()[0];
    EXPECT_EQ(key.Name, "F1");
    ASSERT_EQ(key.Setters.size(), 2U);
    EXPECT_EQ(key.Setters[0].Value, "a");
    EXPECT_EQ(key.Setters[1].Line, 3U);
    EXPECT_EQ(table.Find(EffectKind::Bind, "F1"), &key);
    EXPECT_EQ(table.Find(EffectKind::Alias, "F1"), nullptr);
    EXPECT_EQ(table.SetterCount(), 3U);
}

TEST(SetterTable, FreesWhatIsSet) {
    SetterTable table;
    table.Put(EffectKind::Bind, "a", "a", {.Line = 1, .Value = "x"});
    table.Put(EffectKind::Bind, "b", "b", {.Line = 2, .IsSet = false});
    table.Put(EffectKind::Alias, "c", "c", {.Line = 3, .Value = "y"});
    table.FreeAll(EffectKind::Bind, {.Line = 4});
    table.FreeAll(EffectKind::Bind, {.Line = 5});
    EXPECT_EQ(table.All()[0].Setters.size(), 2U);
    EXPECT_FALSE(table.All()[0].Setters[1].IsSet);
    EXPECT_EQ(table.All()[0].Setters[1].Line, 4U);
    EXPECT_EQ(table.All()[1].Setters.size(), 1U);
    EXPECT_TRUE(table.All()[2].Setters.back().IsSet);
    EXPECT_EQ(table.SetterCount(), 4U);
}

}  // namespace lv
