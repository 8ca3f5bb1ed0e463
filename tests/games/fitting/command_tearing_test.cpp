#include "games/fitting/command_tearing.h"

#include <gtest/gtest.h>

#include "tests/games/fitting/fitted.h"

namespace lv {
namespace {

CommandPart PartOf(TextView command) {
    return PartsOfCommand(command, {}).at(0);
}

/// With a last word that is given.
CommandPart PartWithGiven(TextView command, TextView given) {
    CommandPart part = PartOf(command);
    part.Words.push_back({Text(given), Text(given), {}, true});
    return part;
}

Engine EngineThatEnds(CommandEnd at) {
    Engine engine;
    engine.Ends = at;
    engine.KeepsQuotes = true;
    return engine;
}

constexpr CommandEnd kEnds[] = {CommandEnd::AnySign,  CommandEnd::AnyPlus,      CommandEnd::AfterBlank,
                                CommandEnd::Argument, CommandEnd::ArgumentWord, CommandEnd::ArgumentPlus,
                                CommandEnd::Never};

struct EndCase {
    const char* Argument;
    const char* Ends;  // a letter for each of kEnds: x if the engine takes the command to end there
};

// clang-format off
constexpr EndCase kEndCases[] = {
    // argument    sign, plus, blank, argument, word, plus, never
    {"dm3",        "......."},
    {"a-b",        "x......"},
    {"a+b",        "xx....."},
    {"-1",         "xxxx..."},
    {"+1",         "xxxx.x."},
    {"-x",         "xxxxx.."},
    {"+x",         "xxxxxx."},
    {"a -b",       "xxx...."},
    {"a +b",       "xxx...."},
    {"a - b",      "xxx...."},
    {"-",          "xxxxx.."},
};
// clang-format on

TEST(WhyTorn, IsThatTheEngineTakesAnArgumentForTheCommandsEnd) {
    for (const EndCase& row : kEndCases) {
        for (std::size_t i = 0; i < std::size(kEnds); ++i) {
            const auto why = WhyTorn(EngineThatEnds(kEnds[i]), PartWithGiven("+echo", row.Argument));
            EXPECT_EQ(why.has_value(), row.Ends[i] == 'x') << row.Argument << " " << i;
        }
    }
    EXPECT_EQ(WhyTorn(EngineThatEnds(CommandEnd::AnySign), PartOf("+exec my-file.cfg")),
              "it would take \"my-file.cfg\" for the end of the command");
}

TEST(WhyTorn, IsASignInTheCommandsOwnNameOnlyWhereSignsCountAnywhere) {
    EXPECT_EQ(WhyTorn(EngineThatEnds(CommandEnd::AnySign), PartOf("+my-alias")),
              "it would take \"my-alias\" for the end of the command");
    EXPECT_EQ(WhyTorn(EngineThatEnds(CommandEnd::AnyPlus), PartOf("+my-alias")), std::nullopt);
    EXPECT_EQ(WhyTorn(EngineThatEnds(CommandEnd::AnyPlus), PartOf("++attack")),
              "it would take \"+attack\" for the end of the command");
    EXPECT_EQ(WhyTorn(EngineThatEnds(CommandEnd::Argument), PartOf("++attack")), std::nullopt);
}

TEST(WhyTorn, IsTheLossOfDoubleQuotes) {
    Engine engine = EngineThatEnds(CommandEnd::Argument);
    EXPECT_EQ(WhyTorn(engine, PartOf("+name \"a b\"")), std::nullopt);
    engine.KeepsQuotes = false;
    EXPECT_EQ(WhyTorn(engine, PartOf("+name \"a b\"")), "it would lose the double quotes around \"a b\"");
    EXPECT_EQ(WhyTorn(engine, PartOf("+name \"\"")), "it would lose the double quotes around \"\"");
    EXPECT_EQ(WhyTorn(engine, PartOf("+name \"ab\"")), std::nullopt);
}

TEST(SetsEarly, IsASetOfThreeWordsWhereTheEngineReadsThoseAhead) {
    Engine engine = EngineThatEnds(CommandEnd::AnySign);
    for (const SetCommand set : {SetCommand::No, SetCommand::Yes}) {
        engine.Set = set;
        EXPECT_FALSE(SetsEarly(engine, PartOf("+set game a+b")));
        EXPECT_NE(WhyTorn(engine, PartOf("+set game a+b")), std::nullopt);
    }
    engine.Set = SetCommand::Early;
    EXPECT_TRUE(SetsEarly(engine, PartOf("+SET game a+b")));
    EXPECT_EQ(WhyTorn(engine, PartOf("+set game a+b")), std::nullopt);
    EXPECT_FALSE(SetsEarly(engine, PartOf("+set game")));
    EXPECT_FALSE(SetsEarly(engine, PartOf("+set game a b")));
    EXPECT_FALSE(SetsEarly(engine, PartOf("+seta game a")));
}

struct HoldCase {
    const char* Argument;
    const char* Holds;  // as in kEndCases
};

constexpr HoldCase kHoldCases[] = {
    {"ctf", "......."}, {"a-b", "......."}, {"-b", "......."},
    {"a+b", "xx....."}, {"+b", "xxxxxx."},  {"a +b", "xxx...."},
};

TEST(HoldsCommand, IsAPlusWhereTheEngineLooksForOne) {
    for (const HoldCase& row : kHoldCases) {
        for (std::size_t i = 0; i < std::size(kEnds); ++i) {
            EXPECT_EQ(HoldsCommand(EngineThatEnds(kEnds[i]), PartWithGiven("-game", row.Argument)), row.Holds[i] == 'x')
                << row.Argument << " " << i;
        }
    }
}

TEST(AsScriptLine, IsTheCommandWithoutItsSign) {
    EXPECT_EQ(AsScriptLine(PartOf("+map dm3")), "map dm3");
    EXPECT_EQ(AsScriptLine(PartOf("++attack")), "+attack");
}

TEST(AsScriptLine, LeavesWhatTheUserHasTypedAsItIs) {
    EXPECT_EQ(AsScriptLine(PartOf("+name \"a b\" x;y \"\"")), "name \"a b\" x;y \"\"");
}

TEST(AsScriptLine, QuotesTypedTextThatAScriptWouldTakeForAComment) {
    EXPECT_EQ(AsScriptLine(PartOf("+connect a//b")), "connect \"a//b\"");
    EXPECT_EQ(AsScriptLine(PartOf("+connect \"a//b\"")), "connect \"a//b\"");
}

TEST(AsScriptLine, QuotesGivenWordsThatAScriptReadsAsMore) {
    EXPECT_EQ(AsScriptLine(PartWithGiven("+map", "dm3")), "map dm3");
    for (const char* const given : {"a b", "a;quit", "a{", "a}", "(a", "a)", "a'b", "a//b", ""}) {
        EXPECT_EQ(AsScriptLine(PartWithGiven("+map", given)), Join("map \"", given, "\"")) << given;
    }
}

TEST(AsScriptLine, IsNothingWhereNoScriptCanSayIt) {
    EXPECT_EQ(AsScriptLine(PartWithGiven("+map", "a\"b")), std::nullopt);
    EXPECT_EQ(AsScriptLine(PartWithGiven("+map", "a\nquit")), std::nullopt);
    EXPECT_EQ(AsScriptLine(PartOf("+map \"a\tb\"")), std::nullopt);
}

TEST(AsScriptLine, KeepsTheFirstSignOfWhatStoodBehindALineBreak) {
    CommandPart part = PartOf("+attack");
    part.BehindLineBreak = true;
    EXPECT_EQ(AsScriptLine(part), "+attack");
}

}  // namespace
}  // namespace lv
