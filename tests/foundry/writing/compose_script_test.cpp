// Which layout a script has; golden_scripts_test has each kind's whole.

#include "foundry/writing/compose_script.h"

#include "foundation/field_strings.h"
#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

Text Composed(const ScriptDialect& dialect) {
    ScriptDocument document = EmptyDocument(dialect);
    document.Name_Txt.Text = "Joe";
    return ComposeScript(document, kScriptDay);
}

int CountOf(const Text& script, TextView part) {
    int count = 0;
    for (std::size_t at = script.find(part); at != Text::npos; at = script.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

TEST(ComposeScript, WritesUnrealsSettingsAsAnIni) {
    const Text ini = Composed(kUnrealDialect);
    EXPECT_TRUE(Holds(ini, "[Lorvane 3D]\r\n"));
    EXPECT_FALSE(Holds(ini, "name \"Joe\""));
}

TEST(ComposeScript, WritesAllOthersForTheConsole) {
    for (const ScriptDialect& dialect :
         {kQuakeDialect, kHexen2Dialect, kQuake2Dialect, kSinDialect, kHeretic2Dialect, kHalfLifeDialect}) {
        const Text script = Composed(dialect);
        EXPECT_TRUE(Holds(script, "name \"Joe\"\r\n"));
        EXPECT_FALSE(Holds(script, "[Lorvane 3D]"));
    }
}

TEST(ComposeScript, EndsItsLinesInCrLfAlone) {
    for (const ScriptDialect& dialect : {kQuakeDialect, kUnrealDialect}) {
        const Text script = Composed(dialect);
        const auto ends = CountOf(script, "\r\n");
        EXPECT_GT(ends, 0);
        EXPECT_EQ(CountOf(script, "\r"), ends);
        EXPECT_EQ(CountOf(script, "\n"), ends);
    }
}

}  // namespace
}  // namespace lv
