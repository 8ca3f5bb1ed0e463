#include "console/files/command_buffer.h"

#include <gtest/gtest.h>

#include <map>

namespace lv {
namespace {

/// Runs the lines; "x" inserts script 1, "y" script 2, and "z" is an alias. "0:1 echo a" is a command of script 0's
/// first line.
Text Commands(TextView lines, const std::map<Text, Text>& inserted, bool endsScripts = false) {
    CommandBuffer buffer(RulesOf(Console::Quake), endsScripts);
    buffer.Append(lines, 0);
    BufferedCommand command;
    Text all;
    for (int i = 0; i < 100 && buffer.Next(command); ++i) {
        const Text word(command.Command.Words.front());
        const auto found = inserted.find(word);
        all += Join(all.empty() ? "" : ", ", std::to_string(command.Script), ":", std::to_string(command.Line), " ",
                    command.Command.Whole, command.Alias.empty() ? "" : " by ", command.Alias);
        if (found != inserted.end() && word == "z") {
            buffer.InsertAlias(word, found->second, command);
        } else if (found != inserted.end()) {
            buffer.InsertScript(found->second, word == "x" ? 1 : 2);
        }
    }
    return all;
}

}  // namespace

TEST(CommandBuffer, RunsWhatIsInsertedAheadOfTheRest) {
    EXPECT_EQ(Commands("a; x; b\nc\n", {{"x", "d\ny\ne\n"}, {"y", "f\n"}}),
              "0:1 a, 0:1 x, 1:1 d, 1:2 y, 2:1 f, 1:3 e, 0:1 b, 0:2 c");
}

TEST(CommandBuffer, CountsAnAliasAsTheLineThatCallsIt) {
    EXPECT_EQ(Commands("\nz; b\n", {{"z", "c; x; d"}, {"x", "\ne\n"}}),
              "0:2 z, 0:2 c by z, 0:2 x by z, 1:2 e, 0:2 d by z, 0:2 b");
}

TEST(CommandBuffer, JoinsAnOpenEndWithTheRestOfTheLine) {
    EXPECT_EQ(Commands("x\nb c\nd\n", {{"x", "e\nf g"}}), "0:1 x, 1:1 e, 1:2 f gb c, 0:3 d");
    EXPECT_EQ(Commands("x; b; c\nd\n", {{"x", "f"}}), "0:1 x, 1:1 f b, 1:1 c, 0:2 d");
    EXPECT_EQ(Commands("z\nd\n", {{"z", "x"}, {"x", "f "}}), "0:1 z, 0:1 x by z, 1:1 f d");
    EXPECT_EQ(Commands("x\nb\n", {{"x", "f; "}}), "0:1 x, 1:1 f, 0:2 b");
    EXPECT_EQ(Commands("x\nb\n", {{"x", "f"}}, true), "0:1 x, 1:1 f, 0:2 b");
}

TEST(CommandBuffer, JoinsOpenEndsOfSeveral) {
    EXPECT_EQ(Commands("x\nb\n", {{"x", "y"}, {"y", "c"}}), "0:1 x, 1:1 yb");
    EXPECT_EQ(Commands("x\nb\nc\n", {{"x", "y\nd "}, {"y", "e "}}), "0:1 x, 1:1 y, 2:1 e d b, 0:3 c");
}

TEST(CommandBuffer, EndsWhatIsOpenAtLast) {
    CommandBuffer buffer(RulesOf(Console::Quake), false);
    BufferedCommand command;
    buffer.InsertScript("a\nb", 3);
    EXPECT_TRUE(buffer.Next(command));
    EXPECT_FALSE(buffer.Next(command));
    buffer.Append(" c\nd\n", 4);
    EXPECT_TRUE(buffer.Next(command));
    EXPECT_EQ(command.Command.Whole, "b c");
    EXPECT_EQ(command.Script, 3U);
    EXPECT_EQ(command.Line, 2U);
    EXPECT_TRUE(buffer.Next(command));
    buffer.InsertScript("e", 5);
    EXPECT_FALSE(buffer.Next(command));
    buffer.EndLine();
    EXPECT_TRUE(buffer.Next(command));
    EXPECT_EQ(command.Command.Whole, "e");
    EXPECT_FALSE(buffer.Next(command));
}

}  // namespace lv
