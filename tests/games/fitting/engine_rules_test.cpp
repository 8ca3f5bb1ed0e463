#include "games/fitting/engine_rules.h"

#include <gtest/gtest.h>

#include <random>

#include "foundation/field_strings.h"
#include "tests/games/fitting/fitted.h"
#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

TEST(FitCommandLine, GivesBackWhatNeedsNothing) {
    const FittedCommand fitted = Fit("QuakeSpasm", "QUAKESPASM -width 640 -nolan +exec lv_666.qs ");
    EXPECT_EQ(fitted.Command, "QUAKESPASM -width 640 -nolan +exec lv_666.qs ");
    EXPECT_EQ(NotesOf(fitted), Lines());
    EXPECT_EQ(fitted.ScriptHead + fitted.ScriptTail + fitted.AutoexecTail, "");
}

TEST(FitCommandLine, KeepsGivenWordsInOnePieceAndTellsTheirPlaces) {
    ComposedCommand composed;
    composed.Command = "DARKPLACES -zone 512 -game my -mod +exec lv_666.qs ";
    composed.Given = {GivenAt(composed.Command, "my -mod")};
    const FittedCommand fitted = FitCommandLine(ShippedEngine("DarkPlaces"), composed);
    EXPECT_EQ(fitted.Command, "DARKPLACES -game my -mod +exec lv_666.qs ");
    ASSERT_EQ(fitted.Given.size(), 1U);
    EXPECT_EQ(fitted.Given[0].At, 17U);
    EXPECT_EQ(fitted.Given[0].Written, "my -mod");
}

TEST(FitCommandLine, LeavesUnrealsWordsAsTheyAre) {
    const Text command = "UNREALLINUX.BIN 10.0.0.1:7777 start.unr -nodsound -nohard INI=my.ini ";
    EXPECT_EQ(Fit("OldUnreal 227", command).Command, command);
    EXPECT_EQ(NotesOf(Fit("OldUnreal 227", command)), Lines());
}

TEST(FitCommandLine, SaysThatTheScriptsEndingIsNotTaken) {
    Engine engine = ShippedEngine("DarkPlaces");
    engine.ScriptEnding = ".cfg";
    ComposedCommand composed;
    composed.Command = "X +exec lv_666.qs ";
    EXPECT_EQ(NotesOf(FitCommandLine(engine, composed)),
              Lines{"+exec lv_666.qs: left as it is, it executes only scripts that end in .cfg"});
}

TEST(FitCommandLine, TakesAProgramNameWithBlanks) {
    ComposedCommand composed;
    composed.Command = "MY ENGINE -zone 512 +exec lv_666.qs ";
    composed.PrefixLength = 10;
    EXPECT_EQ(FitCommandLine(ShippedEngine("vkQuake"), composed).Command, "MY ENGINE +exec lv_666.qs ");
}

/// All that came of a command line, in one text.
Text AllOf(const FittedCommand& fitted) {
    Text all = Join(fitted.Command, "\n", fitted.ScriptHead, fitted.ScriptTail, fitted.AutoexecTail);
    for (const FitNote& note : fitted.Notes) {
        all += Join(note.Part, "\n");
    }
    return all;
}

/// As a program gets them: parted by blanks, and by none within double quotes, which are no part of them.
Lines ArgumentsOf(TextView command) {
    Lines arguments;
    bool quoted = false;
    bool within = false;
    for (const char c : command) {
        if (c == ' ' && !quoted) {
            within = false;
            continue;
        }
        if (!within) {
            arguments.emplace_back();
            within = true;
        }
        if (c == '"') {
            quoted = !quoted;
        } else {
            arguments.back() += c;
        }
    }
    return arguments;
}

/// With a blank between each two, to where the last one with a "+" ends.
std::size_t LengthToLastCommand(const Lines& arguments) {
    std::size_t length = 0;
    std::size_t behindLast = 0;
    for (const Text& argument : arguments) {
        length += argument.size() + (length == 0 ? 0 : 1);
        if (argument.starts_with('+')) {
            behindLast = length;
        }
    }
    return behindLast;
}

TEST(FitCommandLine, NeverPassesTheLimitAndNeverLosesAWord) {
    std::mt19937 random(16);
    const std::vector<Text> heads = {"-zone",   "-game", "-width", "+set",  "+exec", "+map",  "-listen",
                                     "-window", "+echo", "-x",     "+name", "word",  "-noudp"};
    const std::vector<Text> tails = {"512", "a-b",       "d+e",    "\"x y\"",     "-1",   "lv_666.qs",
                                     "a;b", "dir/x.cfg", "\"-q\"", Text(60, 'l'), "\"\"", "a//b"};
    const auto pick = [&](const std::vector<Text>& from) { return from[random() % from.size()]; };
    for (int round = 0; round < 3'000; ++round) {
        const auto& engines = ShippedEngines().Engines;
        const Engine& engine = engines[random() % engines.size()];
        ComposedCommand composed;
        composed.Command = "ENGINE ";
        composed.IsShareware = random() % 3 == 0;
        std::vector<Text> words;
        for (auto count = random() % 40; count > 0; --count) {
            words.push_back(random() % 2 == 0 ? pick(heads) : pick(tails));
            composed.Command += Join(words.back(), Blank);
        }
        const FittedCommand fitted = FitCommandLine(engine, composed);
        if (engine.LongestLine != 0) {
            const Lines arguments = ArgumentsOf(fitted.Command);
            ASSERT_LE(LengthToLastCommand(arguments), engine.LongestLine) << composed.Command;
            ASSERT_LE(arguments.size(), engine.MostArguments) << composed.Command;
        }
        const Text all = AllOf(fitted);
        for (const Text& word : words) {
            const Text bare = word.front() == '+' ? DropLeft(word, 1) : word;
            ASSERT_TRUE(Holds(all, bare)) << engine.Name << "\n" << composed.Command << "\n" << word << "\n" << all;
        }
    }
}

}  // namespace
}  // namespace lv
