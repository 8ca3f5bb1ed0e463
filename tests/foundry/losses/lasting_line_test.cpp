#include "foundry/losses/lasting_line.h"

#include <gtest/gtest.h>

#include "tests/foundry/losses/save_rounds.h"

namespace lv {
namespace {

Text LineOf(TextView command, TextView fileLine = "", Console console = Console::Quake) {
    const auto lasting = LastingLineOf(command, fileLine, console);
    return lasting ? lasting->Line : "(none)";
}

}  // namespace

TEST(LastingLine, IsTheCommandWhereTheReaderDoesNotKnowIt) {
    EXPECT_EQ(LineOf("exec a.cfg"), "exec a.cfg");
    EXPECT_EQ(LineOf("set my_own \"a b\""), "set my_own \"a b\"");
}

TEST(LastingLine, HidesWhatTheReaderTakesForItsOwn) {
    EXPECT_EQ(LineOf("bind x \"+attack\""), "; bind x \"+attack\"");
    EXPECT_EQ(LineOf("\"BIND\" x q"), "; \"BIND\" x q");
    EXPECT_EQ(LineOf("set fov 90"), "; set fov 90");
    EXPECT_EQ(LineOf("aliases x y"), "; aliases x y");
    EXPECT_EQ(LineOf("[x] y"), "; [x] y");
}

TEST(LastingLine, IsACommentThatTheConsoleEndsWhereTheReaderWouldCut) {
    EXPECT_EQ(LineOf("bind x \"say http://a\""), "//; bind x \"say http://a\"");
    EXPECT_EQ(LineOf("say \"http://a\"", "\tfov 9; say \"http://a\" // b "), "//; fov 9; say \"http://a\" // b");
    EXPECT_EQ(LineOf("echo \"a\xA0\""), "//; echo \"a\xA0\"");
    for (const ConsoleRules& rules : AllConsoles()) {
        const Text line = LineOf("echo \"a//b\"", "", rules.Id);
        const bool splits = rules.Comment == CommentRule::Splits;
        EXPECT_EQ(line, rules.Id == Console::Unreal ? "echo \"a//b\""
                        : splits                    ? "//; echo \"a//b\""
                                                    : "(none)")
            << rules.Name;
    }
}

TEST(LastingLine, StaysToTheLetterWhereTheScriptIsReadAndWritten) {
    for (const TextView command : {"bind x \"say http://a\"", "exec a.cfg", "alias \"Zoom\" \"fov 30\"", "[x] y",
                                   "name \"\"", "echo \"a\xA0 b\"", "aliases x y", "set _cl_name \"a//b\""}) {
        const Text line = LineOf(command);
        EXPECT_EQ(ReadScript(kQuakeDialect, line).Sections.at(0).Text, line);
        const Text written = WrittenOf(kQuakeDialect, Join("name P\n", line));
        EXPECT_EQ(WrittenOf(kQuakeDialect, written), written);
        EXPECT_EQ(CountLines(written, line), 1) << line;
    }
}

}  // namespace lv
