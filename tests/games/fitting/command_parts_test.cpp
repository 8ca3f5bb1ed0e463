#include "games/fitting/command_parts.h"

#include <gtest/gtest.h>

#include "tests/games/fitting/fitted.h"

namespace lv {
namespace {

/// "option: -width 640", a row a part; a bar parts its words.
Lines Listed(const std::vector<CommandPart>& parts) {
    constexpr const char* kKinds[] = {"option: ", "command: ", "word: "};
    Lines rows;
    for (const CommandPart& part : parts) {
        Text row = kKinds[static_cast<std::size_t>(part.Kind)];
        for (const CommandWord& word : part.Words) {
            row += (&word == &part.Words.front() ? "" : "|") + word.Written;
        }
        rows.push_back(row);
    }
    return rows;
}

TEST(PartsOfCommand, TakeTheWordsBehindASwitchAlong) {
    EXPECT_EQ(Listed(PartsOfCommand("start.unr -width 640 -nolan +connect h:27500 +exec lv_666.qs ", {})),
              (Lines{"word: start.unr", "option: -width|640", "option: -nolan", "command: +connect|h:27500",
                     "command: +exec|lv_666.qs"}));
}

TEST(PartsOfCommand, AreNoneOfBlanks) {
    EXPECT_EQ(Listed(PartsOfCommand("", {})), Lines());
    EXPECT_EQ(Listed(PartsOfCommand(" \t\r\n ", {})), Lines());
}

TEST(PartsOfCommand, TakeNumbersAndSingleSignsForValues) {
    EXPECT_EQ(Listed(PartsOfCommand("+sensitivity -3 +5 - + -x", {})),
              (Lines{"command: +sensitivity|-3|+5|-|+", "option: -x"}));
}

TEST(PartsOfCommand, AreNotPartedWithinDoubleQuotes) {
    const auto parts = PartsOfCommand("+name \"a +b\" \"-c\"d \"e", {});
    EXPECT_EQ(Listed(parts), Lines{"command: +name|\"a +b\"|\"-c\"d|\"e"});
    EXPECT_EQ(parts[0].Words[1].Argument, "a +b");
    EXPECT_EQ(parts[0].Words[2].Argument, "-cd");
    EXPECT_EQ(parts[0].Words[3].Argument, "e");
}

TEST(PartsOfCommand, BeginAnewBehindALineBreak) {
    const auto parts = PartsOfCommand("+password x\r\nconnect h +map m\n\n-nolan\nmore", {});
    EXPECT_EQ(Listed(parts), (Lines{"command: +password|x", "command: connect|h", "command: +map|m", "option: -nolan",
                                    "command: more"}));
    EXPECT_FALSE(parts[0].BehindLineBreak);
    EXPECT_TRUE(parts[1].BehindLineBreak);
    EXPECT_FALSE(parts[3].BehindLineBreak);
    EXPECT_TRUE(parts[4].BehindLineBreak);
}

TEST(PartsOfCommand, AreAWordEachWhereTheEngineHasNoCommands) {
    EXPECT_EQ(Listed(PartsOfCommand("start.unr -nohard more +x y", {}, true)),
              (Lines{"word: start.unr", "option: -nohard", "word: more", "command: +x", "word: y"}));
}

TEST(PartsOfCommand, KeepAGivenWordWholeWhateverItHolds) {
    const Text command = "-game my -mod +map a b ";
    const auto parts = PartsOfCommand(command, {GivenAt(command, "my -mod"), GivenAt(command, "a b")});
    EXPECT_EQ(Listed(parts), (Lines{"option: -game|my -mod", "command: +map|a b"}));
    EXPECT_TRUE(parts[0].Words[1].IsGiven);
    EXPECT_FALSE(parts[0].Words[0].IsGiven);
}

TEST(PartsOfCommand, HaveTheOptionOfAGivenWordAheadOfIt) {
    const Text command = "start.unr INI=my own.ini -nohard ";
    const auto parts = PartsOfCommand(command, {{10, "my own.ini", "my own.ini", "INI="}}, true);
    EXPECT_EQ(Listed(parts), (Lines{"word: start.unr", "word: my own.ini", "option: -nohard"}));
    EXPECT_EQ(parts[1].Written(), "INI=my own.ini");
    EXPECT_EQ(parts[1].Words[0].Whole(), "INI=my own.ini");
}

TEST(PartsOfCommand, PassOverGivenWordsThatDoNotStandThere) {
    const Text command = "-game ctf +map dm3 ";
    EXPECT_EQ(Listed(PartsOfCommand(command, {{6, "arena", "arena"}, {14, "dm3", "dm3"}, {500, "far", "far"}})),
              (Lines{"option: -game|ctf", "command: +map|dm3"}));
    EXPECT_FALSE(PartsOfCommand(command, {{6, "", ""}})[0].Words[1].IsGiven);
}

TEST(CommandPart, IsItsFirstWordInAnyLetterCase) {
    const auto parts = PartsOfCommand("-ListEn 8", {});
    EXPECT_TRUE(parts[0].Is("-listen"));
    EXPECT_FALSE(parts[0].Is("-liste"));
    EXPECT_FALSE(parts[0].Is("8"));
}

TEST(AppendParts, WriteABlankBehindEachWordAndTellWhereTheGivenOnesCame) {
    const Text command = "-game my -mod   INI=x.ini\t+map dm3";
    const auto parts =
        PartsOfCommand(command, {GivenAt(command, "my -mod"), {16, "x.ini", "x.ini", "INI="}, GivenAt(command, "dm3")});
    Text written = "QUAKE ";
    std::vector<GivenWord> given;
    AppendParts(parts, written, given);
    EXPECT_EQ(written, "QUAKE -game my -mod INI=x.ini +map dm3 ");
    ASSERT_EQ(given.size(), 3U);
    EXPECT_EQ(given[0].At, 12U);
    EXPECT_EQ(given[0].Written, "my -mod");
    EXPECT_EQ(given[1].At, 20U);
    EXPECT_EQ(given[1].Option, "INI=");
    EXPECT_EQ(given[2].At, 35U);
    EXPECT_EQ(given[2].Argument, "dm3");
}

}  // namespace
}  // namespace lv
