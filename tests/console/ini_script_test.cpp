#include "console/ini_script.h"

#include <gtest/gtest.h>

#include "tests/console/listed_effects.h"

namespace lv {

TEST(IniEffects, TakeKeysAndAliasesOfTheInputSection) {
    const ScriptEffects effects = IniEffects(
        "[Engine.Input]\r\nAliases[0]=(Command=\"Fire | Jump\",Alias=Both)\r\n"
        "Aliases[1]=(Command=\"\",Alias=None)\r\nSpace=Jump\r\nF1=\r\nMouseX=Axis aMouseX Speed=6.0\r\n"
        "[engine.pawn]\r\nSpace=Jump\r\n");
    EXPECT_EQ(Listed(effects.Aliases), "Both=Fire | Jump");
    EXPECT_EQ(Listed(effects.Binds), "Space=Jump, F1-, MouseX=Axis aMouseX Speed=6.0");
    EXPECT_EQ(effects.Binds.All().at(0).Line, 4U);
    EXPECT_EQ(effects.Binds.All().at(0).Source, "Space=Jump");
}

TEST(IniEffects, TakeTheRestAsSettingsWithTheirSections) {
    const ScriptEffects effects =
        IniEffects("[Core.System]\nPaths=a\n; Paths=c\nPaths=b\nno value\n[Engine.Engine]\nLanguage=int");
    EXPECT_EQ(Listed(effects.Settings), "[core.system] paths=b, [engine.engine] language=int");
    EXPECT_EQ(Listed(effects.Actions), "[core.system] paths=a, [core.system] paths=b");
}

TEST(IniEffects, TakeTheWeaponsInTheirOrder) {
    EXPECT_EQ(Listed(IniEffects("[Engine.PlayerPawn]\nWeaponPriority[3]=ASMD\nWeaponPriority[0]=Stinger\n"
                                "WeaponPriority[4]=None\nBob=0.1")
                         .Settings),
              "[engine.playerpawn] bob=0.1, [engine.playerpawn] weaponpriority=Stinger, ASMD");
}

TEST(IniEffects, OfNothingAreNone) {
    EXPECT_TRUE(IniEffects("").Settings.All().empty());
    EXPECT_TRUE(IniEffects("=\n[\n\r\r\n").Binds.All().empty());
}

}  // namespace lv
