#include "console/console_script.h"

#include <gtest/gtest.h>

#include "tests/console/listed_effects.h"

namespace lv {
namespace {

Text BindsOf(TextView script, Console console) {
    return Listed(ConsoleEffects(script, console).Binds);
}

Text AliasesOf(TextView script, Console console) {
    return Listed(ConsoleEffects(script, console).Aliases);
}

Text SettingsOf(TextView script, Console console) {
    return Listed(ConsoleEffects(script, console).Settings);
}

}  // namespace

TEST(ConsoleEffects, KeepTheLastOfEachName) {
    const ScriptEffects effects =
        ConsoleEffects("bind a 1\nfov 90\nalias x y\nBind \"a\" 2\nfov 100\nalias x z\n", Console::Quake);
    EXPECT_EQ(Listed(effects.Binds), "a=2");
    EXPECT_EQ(effects.Binds.All().at(0).Line, 4U);
    EXPECT_EQ(effects.Binds.All().at(0).Source, "Bind \"a\" 2");
    EXPECT_EQ(Listed(effects.Settings), "fov=100");
    EXPECT_EQ(Listed(effects.Aliases), "x=z");
}

TEST(ConsoleEffects, RefuseAKeyThatTheConsoleLacks) {
    EXPECT_EQ(BindsOf("bind KP_HOME x\nbind NOKEY y\nbind a z", Console::Quake), "a=z");
    EXPECT_EQ(BindsOf("bind KP_HOME x", Console::Quake2), "KP_HOME=x");
}

TEST(ConsoleEffects, TakeOneWordForABindingOrJoinThem) {
    EXPECT_EQ(BindsOf("bind a impulse 7", Console::Quake), "");
    EXPECT_EQ(BindsOf("bind a impulse   7", Console::Quake2), "a=impulse 7");
    EXPECT_EQ(BindsOf("bind a \"impulse   7\"", Console::Quake2), "a=impulse   7");
    EXPECT_EQ(BindsOf("bind a", Console::Quake2), "");
}

TEST(ConsoleEffects, FreeKeys) {
    EXPECT_EQ(BindsOf("bind a x\nunbind a\nbind b \"\"", Console::Quake), "a-, b-");
    const ScriptEffects effects = ConsoleEffects("bind a x\nunbindall\nbind b y", Console::Quake);
    EXPECT_EQ(Listed(effects.Binds), "b=y");
    EXPECT_TRUE(effects.UnbindsAll);
    EXPECT_EQ(effects.Unbindall.Line, 2U);
}

TEST(ConsoleEffects, JoinTheWordsOfAnAlias) {
    EXPECT_EQ(AliasesOf("alias x say  hi \"there  you\"", Console::Quake), "x=say hi there  you");
    EXPECT_EQ(AliasesOf("alias x", Console::Quake), "x=");
    EXPECT_EQ(AliasesOf("alias x", Console::EzQuake), "");
    EXPECT_EQ(AliasesOf(Join("alias ", Text(32, 'x'), " y"), Console::Quake), "");
    EXPECT_EQ(AliasesOf(Join("alias ", Text(31, 'x'), " y"), Console::Quake), Join(Text(31, 'x'), "=y"));
}

TEST(ConsoleEffects, RunOneOfTheAliasesThatDifferInLetterCase) {
    const TextView script = "alias zoom 1\nalias Zoom 2\nalias zoom 3";
    EXPECT_EQ(AliasesOf(script, Console::Quake), "Zoom=2");
    EXPECT_EQ(AliasesOf("alias Zoom 1\nalias zoom 2", Console::Quake), "zoom=2");
    EXPECT_EQ(AliasesOf("alias Zoom 1\nalias zoom 2", Console::DarkPlaces), "Zoom=1");
    EXPECT_EQ(AliasesOf("alias Zoom 1\nalias zoom 2\nunalias Zoom", Console::DarkPlaces), "zoom=2");
    EXPECT_EQ(AliasesOf(script, Console::EzQuake), "zoom=3");
}

TEST(ConsoleEffects, TakeNoSettingThatTheConsoleLacks) {
    EXPECT_EQ(SettingsOf("joystick 1", Console::DarkPlaces), "");
    EXPECT_EQ(SettingsOf("set joystick 1\njoystick 0", Console::DarkPlaces), "joystick=0");
}

TEST(ConsoleEffects, RemoveAliasesWhereTheConsoleCan) {
    EXPECT_EQ(AliasesOf("alias x y\nunalias x", Console::DarkPlaces), "x-");
    EXPECT_EQ(AliasesOf("alias x y\nunaliasall\nalias z w", Console::QuakeSpasm), "z=w");
    EXPECT_EQ(AliasesOf("alias x y\nunaliasall\nalias z w", Console::DarkPlaces), "x=y, z=w");
    EXPECT_EQ(AliasesOf("alias x y\nunalias x", Console::Quake), "x=y");
}

TEST(ConsoleEffects, SetByTheCommandsThatTheConsoleHas) {
    EXPECT_EQ(SettingsOf("set fov 90\nset x \"a b\" u\nset y\nset a b c d", Console::Quake2), "fov=90, x=a b");
    EXPECT_EQ(SettingsOf("set fov 90", Console::Quake), "");
    EXPECT_EQ(SettingsOf("seta fov 90", Console::Q2Pro), "fov=90");
    EXPECT_EQ(SettingsOf("seta fov 90", Console::Quake2), "");
    EXPECT_EQ(SettingsOf("gl_x 1\nsensitivity 3 4\nloadout a b", Console::Quake), "gl_x=1, sensitivity=3");
}

TEST(ConsoleEffects, TakeThePlayersNameAndColoursByEitherName) {
    EXPECT_EQ(SettingsOf("_cl_name Joe\nName Big Joe", Console::Quake), "name=Big Joe");
    EXPECT_EQ(SettingsOf("color 4 11\n_cl_color 75", Console::Quake), "_cl_color=4 11");
    EXPECT_EQ(SettingsOf("color 4", Console::Quake), "color=4 4");
    EXPECT_EQ(SettingsOf("color 4 15", Console::QuakeWorld), "topcolor=4, bottomcolor=13");
    EXPECT_EQ(SettingsOf("playerclass 2\n_cl_playerclass 3", Console::Hexen2), "_cl_playerclass=3");
    EXPECT_EQ(SettingsOf("set name Joe\nset color 4", Console::DarkPlaces), "");
    EXPECT_EQ(SettingsOf("setinfo pmodel 33", Console::QuakeWorld), "setinfo pmodel=33");
}

TEST(ConsoleEffects, KeepAllElseInItsOrder) {
    const ScriptEffects effects = ConsoleEffects("exec a.cfg\n+mlook\necho  hi \"x y\"\nset fov 90", Console::Quake);
    EXPECT_EQ(Listed(effects.Actions), "exec a.cfg, +mlook, echo hi x y, set fov 90");
    EXPECT_EQ(effects.Actions.at(1).Turn, 1U);
}

TEST(ConsoleEffects, KeepWhatIsSaidToTheLetter) {
    EXPECT_EQ(Listed(ConsoleEffects("say see  http://x\n\"say\" a", Console::Quake).Actions),
              "say see  http://x, say a");
}

TEST(ConsoleEffects, RunTheAliasesThatAreCalled) {
    const ScriptEffects effects = ConsoleEffects(
        "alias a \"bind x 1; fov 90; b; echo no action\"\nalias b \"bind y 2\"\nbind x 3\nA\n", Console::Quake);
    EXPECT_EQ(Listed(effects.Binds), "x=1, y=2");
    EXPECT_EQ(Listed(effects.Settings), "fov=90");
    EXPECT_EQ(Listed(effects.Actions), "A");
    EXPECT_FALSE(effects.Binds.All().at(0).IsOwn);
    EXPECT_EQ(effects.Binds.All().at(0).Line, 4U);
    EXPECT_EQ(effects.Binds.All().at(0).Source, "A");
}

TEST(ConsoleEffects, TakeACommandAheadOfAnAlias) {
    EXPECT_EQ(BindsOf("alias bind \"unbindall\"\nbind x y", Console::Quake), "x=y");
}

TEST(ConsoleEffects, EndAnAliasThatCallsItself) {
    EXPECT_EQ(BindsOf("alias a \"a; a; a; a\"\na\nbind x y", Console::Quake), "x=y");
    EXPECT_EQ(BindsOf("alias a \"b;b\"\nalias b \"a;a\"\na\nbind x y", Console::DarkPlaces), "x=y");
}

TEST(ConsoleEffects, TellAScriptThatTheBufferDoesNotHold) {
    EXPECT_FALSE(ConsoleEffects(Text(8192, '\n'), Console::Quake).TooLong);
    EXPECT_TRUE(ConsoleEffects(Text(8193, '\n'), Console::Quake).TooLong);
    EXPECT_FALSE(ConsoleEffects(Text(9000, '\n'), Console::EzQuake).TooLong);
}

}  // namespace lv
