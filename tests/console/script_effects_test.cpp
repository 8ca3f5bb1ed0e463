#include "console/script_effects.h"

#include <gtest/gtest.h>

#include "tests/console/listed_effects.h"

namespace lv {

TEST(EffectsOf, AreReadAsTheConsoleReadsThem) {
    const ScriptEffects ini = EffectsOf("[Engine.Input]\nSpace=Jump", Console::Unreal);
    EXPECT_EQ(Listed(ini.Binds), "Space=Jump");
    EXPECT_EQ(ini.Of, Console::Unreal);
    const ScriptEffects script = EffectsOf("bind space +jump", Console::Sin);
    EXPECT_EQ(Listed(script.Binds), "space=+jump");
    EXPECT_EQ(script.Of, Console::Sin);
}

TEST(EffectTable, KeepsTheLastEffectInThePlaceOfTheFirst) {
    EffectTable table;
    table.Put("a", {.Name = "a", .Value = "1"});
    table.Put("b", {.Name = "b", .Value = "2"});
    table.Put("a", {.Name = "A", .Value = "3"});
    EXPECT_EQ(Listed(table), "A=3, b=2");
    EXPECT_EQ(table.IdentityAt(0), "a");
    EXPECT_EQ(table.Find("b")->Value, "2");
    EXPECT_EQ(table.Find("c"), nullptr);
    table.Clear();
    EXPECT_TRUE(table.All().empty());
    EXPECT_EQ(table.Find("a"), nullptr);
}

}  // namespace lv
