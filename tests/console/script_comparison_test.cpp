#include "console/script_comparison.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/console/listed_effects.h"

namespace lv {
namespace {

Text DifferencesOf(TextView before, TextView after, Console console = Console::Quake) {
    return Listed(CompareScripts(EffectsOf(before, console), EffectsOf(after, console)));
}

}  // namespace

TEST(CompareScripts, FindsWhatIsLostChangedAndAdded) {
    EXPECT_EQ(DifferencesOf("bind a 1\nbind b 2\nfov 90\nalias x y", "bind b 3\nbind c 4\nfov 100\nalias z w"),
              "lost bind a: 1>; changed bind b: 2>3; added bind c: >4; lost alias x: y>; added alias z: >w; "
              "changed setting fov: 90>100");
}

TEST(CompareScripts, IsBlindToWhatMeansTheSame) {
    EXPECT_EQ(DifferencesOf("bind F1 \" +Attack ;impulse 7\"\nfov 90.0\nalias Zoom say Hi",
                            "fov 90\nalias \"zoom\" \"say Hi\"\nbind \"f1\" \"+attack; impulse 7\""),
              "");
    EXPECT_EQ(DifferencesOf("bind a \"say Hi\"", "bind a \"say hi\""), "changed bind a: say Hi>say hi");
}

TEST(CompareScripts, TakesNamesForTexts) {
    EXPECT_EQ(DifferencesOf("name 1.0", "name 1"), "changed setting name: 1.0>1");
}

TEST(CompareScripts, TellsFreedKeysFromThoseNotSpokenOf) {
    EXPECT_EQ(DifferencesOf("unbind a", ""), "lost bind a: >");
    EXPECT_EQ(DifferencesOf("", "unbind a"), "added bind a: >");
    EXPECT_EQ(DifferencesOf("unbind a", "bind a \"\""), "");
    EXPECT_EQ(DifferencesOf("unbind a", "bind a x"), "changed bind a: >x");
    EXPECT_EQ(DifferencesOf("unbindall\nunbind a", "unbindall"), "");
    EXPECT_EQ(DifferencesOf("unbindall\nbind a x", "bind a x"), "lost bind unbindall: >");
    EXPECT_EQ(DifferencesOf("bind a x", "unbindall\nbind a x"), "added bind unbindall: >");
    EXPECT_EQ(DifferencesOf("bind a x\nunbind b", "unbindall\nbind a x"), "added bind unbindall: >");
    EXPECT_EQ(DifferencesOf("bind a x\nunbindall", "unbindall\nbind a x"), "changed bind a: >x");
    EXPECT_EQ(DifferencesOf("alias a x\nunaliasall", "unaliasall\nalias a x", Console::Hexen2), "changed alias a: >x");
}

TEST(CompareScripts, SaysWhichCommandFreedAKeyWithAllOthers) {
    const auto found = CompareScripts(EffectsOf("echo a\nunbindall", Console::Quake),
                                      EffectsOf("unbindall\nbind a x", Console::Quake));
    const auto key = std::ranges::find(found, "a", &ScriptDifference::Identity);
    ASSERT_NE(key, found.end());
    EXPECT_TRUE(key->Before.IsOfAll);
    EXPECT_FALSE(key->Before.IsSet);
    EXPECT_EQ(key->Before.Name, "a");
    EXPECT_EQ(key->Before.Line, 2U);
    EXPECT_EQ(key->Before.Source, "unbindall");
}

TEST(CompareScripts, ListsCommandsThatSetNothing) {
    EXPECT_EQ(DifferencesOf("echo a\nexec x.cfg", "exec x.cfg\necho b"),
              "lost action echo: echo a>; added action echo: >echo b");
}

TEST(CompareScripts, ReadsAnInisNumbersAndTruths) {
    EXPECT_EQ(DifferencesOf("[Engine.Input]\nMouseX=Axis aMouseX Speed=6.0\nSpace=jump\n[x]\nb=True\nc=1",
                            "[Engine.Input]\nMouseX=Axis aMouseX Speed=6\nSpace=Jump\nF1=\n[X]\nB=true\nC=2",
                            Console::Unreal),
              "added bind F1: >; changed setting [x] c: 1>2");
}

TEST(SameCommands, AreToldByTheConsole) {
    EXPECT_FALSE(SameCommands("say http://a", "say http:", Console::Quake));
    EXPECT_FALSE(SameCommands("use Blaster", "use blaster", Console::Quake2));
    EXPECT_TRUE(SameCommands(" USE Blaster", "use Blaster ", Console::Quake2));
    EXPECT_FALSE(SameCommands("+attack;", "+attack", Console::Quake2));
    EXPECT_FALSE(SameCommands("Fov 90", "fov 90", Console::Quake));
    EXPECT_FALSE(SameCommands("say a\"b", "say c\"b", Console::Quake2));
    EXPECT_FALSE(SameCommands("", "say c", Console::Quake2));
    EXPECT_FALSE(SameCommands("wait", "wait;wait", Console::Quake2));
}

}  // namespace lv
