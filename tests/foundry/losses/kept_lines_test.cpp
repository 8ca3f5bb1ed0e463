#include "foundry/losses/kept_lines.h"

#include <gtest/gtest.h>

#include "tests/foundry/losses/save_rounds.h"

namespace lv {
namespace {

Text CommandsOf(TextView file, Console console) {
    const Text written = WrittenOf(kQuakeDialect, file);
    const SaveTexts texts{file, written};
    Text all;
    for (const KeptLine& line : KeptLines(ReportSave(texts, {}, kQuakeDialect, console), texts, console)) {
        all += Join(all.empty() ? "" : "\n", line.Command);
    }
    return all;
}

}  // namespace

TEST(KeptLines, AreTheCommandsOfTheFile) {
    EXPECT_EQ(CommandsOf("alias  Hi \"say Hello\" // why\nbind ESCAPE \"togglemenu\"", Console::Quake),
              "alias  Hi \"say Hello\"\nbind ESCAPE \"togglemenu\"");
}

TEST(KeptLines, SayByThemselvesWhatAnAliasDid) {
    EXPECT_EQ(CommandsOf("alias a \"bind ESCAPE q\"; a", Console::Quake),
              "alias a \"bind ESCAPE q\"\na\nbind \"ESCAPE\" \"q\"");
}

TEST(KeptLines, CloseAQuoteThatHoldsTheBlanksAtALinesEnd) {
    EXPECT_EQ(CommandsOf("bind ESCAPE \"say a ", Console::Quake), "bind ESCAPE \"say a \"");
    EXPECT_EQ(CommandsOf("bind ESCAPE \"say \\\"a ", Console::DarkPlaces), "bind ESCAPE \"say \\\"a \"");
}

TEST(KeptLines, SayWhereTheFileHasThem) {
    const Text file = "echo a\nbind ESCAPE \"togglemenu\"";
    const Text written = WrittenOf(kQuakeDialect, file);
    const SaveTexts texts{file, written};
    const SaveReport report = ReportSave(texts, {}, kQuakeDialect, Console::Quake);
    const std::vector<KeptLine> lines = KeptLines(report, texts, Console::Quake);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].What, EffectKind::Bind);
    EXPECT_EQ(lines[0].Identity, "ESCAPE");
    ASSERT_TRUE(lines[0].Lasting);
    EXPECT_EQ(lines[0].Lasting->Line, "; bind ESCAPE \"togglemenu\"");
    EXPECT_EQ(lines[0].FileLine, 2U);
    EXPECT_EQ(lines[0].Section, "");
}

}  // namespace lv
