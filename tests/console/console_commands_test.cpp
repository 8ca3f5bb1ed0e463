#include "console/console_commands.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

/// Each command as "line:column word|word", joined by " & ".
Text CommandsOf(TextView script, Console console) {
    CommandReader reader(script, RulesOf(console));
    ConsoleCommand command;
    Text all;
    while (reader.Next(command)) {
        all += Join(all.empty() ? "" : " & ", std::to_string(command.Line), ":", std::to_string(command.Column));
        for (std::size_t i = 0; i < command.Words.size(); ++i) {
            all += Join(i == 0 ? " " : "|", command.Words[i]);
        }
    }
    return all;
}

Text WordsOf(TextView line, Console console) {
    return CommandsOf(line, console);
}

}  // namespace

TEST(CommandReader, PartsCommandsAtSemicolonsAndLineEnds) {
    EXPECT_EQ(CommandsOf("bind a \"+attack\"\r\n  fov 90; echo \"x;y\" z\n\n;;wait", Console::Quake),
              "1:1 bind|a|+attack & 2:3 fov|90 & 2:11 echo|x;y|z & 4:3 wait");
}

TEST(CommandReader, EndsAQuoteWithItsLine) {
    EXPECT_EQ(CommandsOf("bind a \"+attack\nfov 90", Console::Quake), "1:1 bind|a|+attack & 2:1 fov|90");
    EXPECT_EQ(CommandsOf("bind a \"+attack\r\nfov 90", Console::Quake), "1:1 bind|a|+attack & 2:1 fov|90");
}

TEST(CommandReader, DropsACommandWithAnOddQuoteWhereTheConsoleDoes) {
    EXPECT_EQ(CommandsOf("bind a \"+attack\nfov 90", Console::Quake2), "2:1 fov|90");
}

TEST(CommandReader, TakesACommentWhereAWordWouldBegin) {
    EXPECT_EQ(WordsOf("echo a//b \"http://x\" // no more", Console::Quake), "1:1 echo|a//b|http://x");
    EXPECT_EQ(WordsOf("// echo a", Console::Quake), "");
}

TEST(CommandReader, RunsWhatFollowsASemicolonInACommentWhereTheConsoleDoes) {
    const TextView script = "fov 90 // wide; echo x";
    EXPECT_EQ(CommandsOf(script, Console::Quake), "1:1 fov|90 & 1:17 echo|x");
    EXPECT_EQ(CommandsOf(script, Console::Quake2), "1:1 fov|90 & 1:17 echo|x");
    EXPECT_EQ(CommandsOf(script, Console::EzQuake), "1:1 fov|90");
    EXPECT_EQ(CommandsOf(script, Console::QuakeSpasm), "1:1 fov|90 & 1:17 echo|x");
    EXPECT_EQ(CommandsOf(script, Console::Ironwail), "1:1 fov|90");
    EXPECT_EQ(CommandsOf(script, Console::DarkPlaces), "1:1 fov|90");
    EXPECT_EQ(CommandsOf(script, Console::HalfLife), "1:1 fov|90");
}

TEST(CommandReader, TakesTwoSlashesWithinAWordAsTheConsoleDoes) {
    const TextView script = "name a//b; fov 90";
    EXPECT_EQ(CommandsOf(script, Console::DarkPlaces), "1:1 name|a//b & 1:12 fov|90");
    EXPECT_EQ(CommandsOf(script, Console::Ironwail), "1:1 name|a//b;|fov|90");
    EXPECT_EQ(CommandsOf("name \"a//b\"; fov 90", Console::Ironwail), "1:1 name|a//b|;|fov|90");
    EXPECT_EQ(CommandsOf("name \"a//b\"; fov 90", Console::EzQuake), "1:1 name|a//b & 1:14 fov|90");
}

TEST(CommandReader, TakesBracketsAndColonsForWordsInTheFirstGameAlone) {
    EXPECT_EQ(WordsOf("connect 1.2.3.4:27500", Console::Quake), "1:1 connect|1.2.3.4|:|27500");
    EXPECT_EQ(WordsOf("connect 1.2.3.4:27500", Console::QuakeWorld), "1:1 connect|1.2.3.4:27500");
    EXPECT_EQ(WordsOf("echo \"(x)\" {}", Console::Quake), "1:1 echo|(x)|{|}");
}

TEST(CommandReader, TakesHighBytesOutsideQuotesForBlanksWhereTheConsoleDoes) {
    EXPECT_EQ(WordsOf("name a\xE4"
                      "b \"a\xE4"
                      "b\"",
                      Console::Quake),
              "1:1 name|a|b|a\xE4"
              "b");
    EXPECT_EQ(WordsOf("name a\xE4"
                      "b",
                      Console::Ironwail),
              "1:1 name|a\xE4"
              "b");
}

TEST(CommandReader, TakesAnEscapedQuoteWhereTheConsoleHasIt) {
    EXPECT_EQ(WordsOf("echo \"a \\\"b; c\\\" d\"; wait", Console::DarkPlaces), "1:1 echo|a \"b; c\" d & 1:22 wait");
    EXPECT_EQ(WordsOf("echo \"a\\\"", Console::Quake), "1:1 echo|a\\");
}

TEST(CommandReader, KeepsAQuoteWithinAWord) {
    EXPECT_EQ(WordsOf("say a\"b c\"d", Console::Quake), "1:1 say|a\"b|c\"d");
    EXPECT_EQ(WordsOf("say \"a\"b", Console::Quake), "1:1 say|a|b");
}

TEST(CommandReader, EndsALineAtACarriageReturnWhereTheConsoleDoes) {
    EXPECT_EQ(CommandsOf("fov 90\rwait", Console::DarkPlaces), "1:1 fov|90 & 2:1 wait");
    EXPECT_EQ(CommandsOf("fov 90\rwait", Console::Quake), "1:1 fov|90|wait");
    EXPECT_EQ(CommandsOf("fov 90\r\nwait", Console::DarkPlaces), "1:1 fov|90 & 2:1 wait");
}

TEST(CommandReader, EndsAtAByteZero) {
    EXPECT_EQ(CommandsOf(TextView("fov 90\0wait", 11), Console::Quake), "1:1 fov|90");
}

TEST(CommandReader, HoldsTheLimitsOfTheConsole) {
    Text many = "echo";
    for (int i = 0; i < 100; ++i) {
        many += " x";
    }
    CommandReader reader(many, RulesOf(Console::Quake2));
    ConsoleCommand command;
    ASSERT_TRUE(reader.Next(command));
    EXPECT_EQ(command.Words.size(), 80U);

    const Text word = Join("say \"", Text(200, 'x'), "\"");
    CommandReader longWord(word, RulesOf(Console::Quake2));
    ASSERT_TRUE(longWord.Next(command));
    EXPECT_EQ(command.Words.at(1).size(), 127U);

    const Text line = Join("say ", Text(5000, 'x'), "\nwait");
    EXPECT_EQ(CommandsOf(line, Console::HalfLife), "2:1 wait");
    CommandReader cut(line, RulesOf(Console::EzQuake));
    ASSERT_TRUE(cut.Next(command));
    EXPECT_EQ(command.Words.at(1).size(), 1019U);
}

TEST(CommandReader, GivesTheCommandAsItIsWritten) {
    const Text script = "  bind \"a\"   \"+attack\"   // fire";
    CommandReader reader(script, RulesOf(Console::Quake));
    ConsoleCommand command;
    ASSERT_TRUE(reader.Next(command));
    EXPECT_EQ(command.Whole, "bind \"a\"   \"+attack\"");
    EXPECT_EQ(command.Raw, "bind \"a\"   \"+attack\"   // fire");
    EXPECT_FALSE(reader.Next(command));
}

TEST(CommandReader, SaysWhatIsOddAboutACommand) {
    CommandReader reader("a // b; c\nd \"e\n \tf", RulesOf(Console::Quake));
    ConsoleCommand command;
    ASSERT_TRUE(reader.Next(command));
    EXPECT_FALSE(command.IsBehindComment);
    EXPECT_EQ(command.Length, 6U);
    ASSERT_TRUE(reader.Next(command));
    EXPECT_TRUE(command.IsBehindComment);
    EXPECT_FALSE(command.HasOddQuote);
    ASSERT_TRUE(reader.Next(command));
    EXPECT_FALSE(command.IsBehindComment);
    EXPECT_TRUE(command.HasOddQuote);
    ASSERT_TRUE(reader.Next(command));
    EXPECT_FALSE(command.HasOddQuote);
    EXPECT_EQ(command.Length, 3U);
}

TEST(CommandReader, TakesTheEmptyCommentThatALineBeginsWithForNone) {
    CommandReader reader("//; a; b // c; d\n  //;e\nf; //; g\n//x; h\n", RulesOf(Console::Quake));
    Text behind;
    for (ConsoleCommand command; reader.Next(command);) {
        behind += Join(command.Words.front(), command.IsBehindComment ? "+ " : " ");
    }
    EXPECT_EQ(behind, "a b d+ e f g+ h+ ");
}

TEST(CommandReader, TellsAQuoteOfACommentFromOneOfTheCommand) {
    CommandReader reader("a \"b // c\nd // \"e\nf // \"g\"\n", RulesOf(Console::Quake));
    ConsoleCommand command;
    ASSERT_TRUE(reader.Next(command));
    EXPECT_TRUE(command.HasOddQuote);
    EXPECT_FALSE(command.IsQuoteInComment);
    ASSERT_TRUE(reader.Next(command));
    EXPECT_TRUE(command.HasOddQuote);
    EXPECT_TRUE(command.IsQuoteInComment);
    ASSERT_TRUE(reader.Next(command));
    EXPECT_FALSE(command.HasOddQuote);
    EXPECT_FALSE(command.IsQuoteInComment);
}

TEST(CommandReader, GivesTheRestOfItsLine) {
    CommandReader reader("a; b\nc\nd", RulesOf(Console::Quake));
    ConsoleCommand command;
    ASSERT_TRUE(reader.Next(command));
    EXPECT_EQ(reader.TakeLine(), " b\n");
    ASSERT_TRUE(reader.Next(command));
    EXPECT_EQ(command.Whole, "c");
    EXPECT_EQ(command.Line, 2U);
    EXPECT_FALSE(reader.IsAtEnd());
    EXPECT_EQ(reader.TakeLine(), "d");
    EXPECT_TRUE(reader.IsAtEnd());
    EXPECT_EQ(reader.TakeLine(), "");
}

TEST(UnendedCommand, IsWhatNothingEnds) {
    const auto unended = [](TextView text) { return UnendedCommand(text, RulesOf(Console::Quake)); };
    EXPECT_EQ(unended("a\nb\n"), "");
    EXPECT_EQ(unended("a\nb c"), "b c");
    EXPECT_EQ(unended("a\nb; c \"d; e\"; f // g"), " f // g");
    EXPECT_EQ(unended("a;"), "");
    EXPECT_EQ(unended(Text("a\nb\0c\n", 6)), "b");
    EXPECT_EQ(unended(""), "");
    EXPECT_EQ(UnendedCommand("a // b; c", RulesOf(Console::EzQuake)), "a // b; c");
}

}  // namespace lv
