// What the writer wrote, the reader reads: a script of ours that is opened and saved again is the same script.

#include <gtest/gtest.h>

#include "foundry/reading/script_reader.h"
#include "foundry/writing/compose_script.h"
#include "platform/memory/memory_platform.h"
#include "tests/foundry/golden_file.h"

namespace lv {
namespace {

constexpr TextView kScript = "C:\\GAME\\MY.CFG";

Text OpenedAndSaved(const Text& script, const ScriptDialect& dialect) {
    MemoryFiles files;
    files.AddFile(kScript, script);
    ScriptDocument document = MakeScriptDocument(dialect);
    ScriptView view;
    const auto file = files.Open(kScript);
    EXPECT_TRUE(file.Ok());
    const auto firstWithoutAlias = ReadAliases(*file.Value, document);
    ReadLines(*file.Value, document, view, firstWithoutAlias, [] {});
    return ComposeScript(document, {1999, 3, 9});
}

/// A line of the golden script and what stands there instead, with its line end; nothing if the line is gone.
struct Change {
    Text Line;
    Text Instead;
};

Text Changed(Text script, const std::vector<Change>& changes) {
    for (const Change& change : changes) {
        const Text line = change.Line + "\r\n";
        const std::size_t at = script.find(line);
        EXPECT_NE(at, Text::npos) << change.Line;
        script.replace(at, at == Text::npos ? 0 : line.size(), change.Instead);
    }
    return script;
}

void ExpectSaved(const Text& script, const ScriptDialect& dialect, const Text& expected) {
    ExpectScript(OpenedAndSaved(script, dialect), expected);
}

void ExpectSame(const Text& name, const ScriptDialect& dialect) {
    ExpectSaved(Golden(name), dialect, Golden(name));
}

TEST(GoldenRoundTrip, QuakeLosesOnlyTheBindingOfNothing) {
    const Text script = Golden("quake.cfg");
    ExpectSaved(script, {.GameKind = Game::Quake, .ScriptFamily = Dialect::Quake},
                Changed(script, {{"bind \"\\\"             \"\"", ""}}));
}

TEST(GoldenRoundTrip, Quake2) {
    ExpectSame("quake2.cfg", {.GameKind = Game::Quake2, .ScriptFamily = Dialect::Quake2});
}

TEST(GoldenRoundTrip, Sin) {
    ExpectSame("sin.cfg", {.GameKind = Game::Sin, .ScriptFamily = Dialect::Quake2});
}

TEST(GoldenRoundTrip, Heretic2) {
    ExpectSame("heretic2.cfg", {.GameKind = Game::Heretic2, .ScriptFamily = Dialect::Quake2});
}

TEST(GoldenRoundTrip, Hexen2) {
    ExpectSame("hexen2.cfg", {.GameKind = Game::Hexen2, .ScriptFamily = Dialect::Quake, .DecimalSeparator = ','});
}

TEST(GoldenRoundTrip, HalfLife) {
    ExpectSame("halflife.cfg", {.GameKind = Game::HalfLife, .ScriptFamily = Dialect::Quake2});
}

TEST(GoldenRoundTrip, UnrealWithBothAxes) {
    const Text script =
        Changed(Golden("unreal.ini"), {{"Minus=SwitchWeapon 4", "Minus=\r\n"},
                                       {"Enter=Feigndeath", "Enter=\r\n"},
                                       {"MouseY=JoyX=Axis aStrafe", "MouseY=Axis aMouseY Speed=7.0\r\n\r\n"}});
    ExpectSaved(script, {.GameKind = Game::Unreal, .ScriptFamily = Dialect::Unreal}, script);
}

TEST(GoldenRoundTrip, TheSecondEnterOfUnrealTakesThePlaceOfTheFirst) {
    const Text script =
        Changed(Golden("unreal.ini"), {{"Minus=SwitchWeapon 4", "Minus=\r\n"},
                                       {"MouseY=JoyX=Axis aStrafe", "MouseY=Axis aMouseY Speed=7.0\r\n\r\n"}});
    const Text expected = Changed(script, {{"Enter=InventoryActivate", "Enter=Feigndeath\r\n"}});
    const std::size_t second = expected.rfind("Enter=Feigndeath");
    ExpectSaved(script, {.GameKind = Game::Unreal, .ScriptFamily = Dialect::Unreal},
                Text(expected).erase(second + 6, 10));
}

}  // namespace
}  // namespace lv
