#include "console/console_rules.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

struct LimitRow {
    Console Id;
    const char* Name;
    std::size_t Line;
    std::size_t Words;
    std::size_t Word;
    std::size_t Buffer;
    std::size_t AliasName;
};

// The limits a second time.
constexpr LimitRow kLimits[] = {
    {Console::Quake, "Quake", 1024, 80, 1024, 8192, 31},
    {Console::QuakeWorld, "QuakeWorld", 1024, 80, 1024, 8192, 31},
    {Console::Hexen2, "Hexen II", 1023, 80, 1024, 8192, 31},
    {Console::Quake2, "Quake II", 1024, 80, 127, 8192, 31},
    {Console::Heretic2, "Heretic II", 1024, 80, 127, 8192, 31},
    {Console::Sin, "Sin", 1024, 80, 127, 8192, 31},
    {Console::EzQuake, "ezQuake", 1023, 80, 1023, 262144, 31},
    {Console::Ironwail, "Ironwail", 1023, 80, 1023, 262144, 31},
    {Console::QuakeSpasm, "QuakeSpasm", 1023, 80, 1023, 262144, 31},
    {Console::DarkPlaces, "DarkPlaces", 16383, 80, 16383, 655360, 31},
    {Console::Fte, "FTE", 0, 80, 0, 0, 31},
    {Console::Yamagi, "Yamagi", 1023, 80, 1023, 32768, 31},
    {Console::Q2Pro, "Q2PRO", 1023, 256, 1023, 0, 31},
    {Console::HalfLife, "Half-Life", 2046, 80, 32767, 32768, 31},
    {Console::Unreal, "Unreal", 0, 0, 0, 0, 0},
    {Console::HexenWorld, "HexenWorld", 1023, 80, 1024, 8192, 31},
};

struct CommandRow {
    Console Id;
    bool JoinsBinds;
    bool HasSet;
    bool HasSeta;
    bool HasUnalias;
    bool OldPlayer;
};

// And what the commands take.
constexpr CommandRow kCommands[] = {
    {Console::Quake, false, false, false, false, true},      {Console::QuakeWorld, false, false, false, false, false},
    {Console::Hexen2, false, false, false, true, true},      {Console::Quake2, true, true, false, false, false},
    {Console::Heretic2, true, true, false, false, false},    {Console::Sin, true, true, false, false, false},
    {Console::EzQuake, true, true, false, true, false},      {Console::Ironwail, false, false, false, true, true},
    {Console::DarkPlaces, false, true, true, true, true},    {Console::Fte, true, true, true, true, false},
    {Console::Yamagi, true, true, false, false, false},      {Console::Q2Pro, true, true, true, true, false},
    {Console::HalfLife, true, true, false, true, false},     {Console::QuakeSpasm, false, false, false, true, true},
    {Console::HexenWorld, false, false, false, true, false},
};

}  // namespace

TEST(ConsoleRules, HaveTheirLimits) {
    ASSERT_EQ(AllConsoles().size(), std::size(kLimits));
    for (const LimitRow& row : kLimits) {
        SCOPED_TRACE(row.Name);
        const ConsoleRules& rules = RulesOf(row.Id);
        EXPECT_EQ(rules.Id, row.Id);
        EXPECT_EQ(rules.Name, row.Name);
        EXPECT_EQ(rules.Line, row.Line);
        EXPECT_EQ(rules.Words, row.Words);
        EXPECT_EQ(rules.Word, row.Word);
        EXPECT_EQ(rules.Buffer, row.Buffer);
        EXPECT_EQ(rules.AliasName, row.AliasName);
    }
}

TEST(ConsoleRules, SayWhatTheirCommandsTake) {
    for (const CommandRow& row : kCommands) {
        const ConsoleRules& rules = RulesOf(row.Id);
        SCOPED_TRACE(rules.Name);
        EXPECT_EQ(rules.Bind == BindWords::Joined, row.JoinsBinds);
        EXPECT_EQ((rules.Has & has::kSet) != 0, row.HasSet);
        EXPECT_EQ((rules.Has & has::kSeta) != 0, row.HasSeta);
        EXPECT_EQ((rules.Has & has::kUnalias) != 0, row.HasUnalias);
        EXPECT_EQ(rules.OldPlayer, row.OldPlayer);
    }
}

TEST(ConsoleRules, TellWhereASemicolonInACommentSplits) {
    for (const Console console : {Console::Quake, Console::QuakeWorld, Console::Hexen2, Console::Quake2,
                                  Console::Yamagi, Console::Q2Pro, Console::QuakeSpasm, Console::HexenWorld}) {
        EXPECT_EQ(RulesOf(console).Comment, CommentRule::Splits) << RulesOf(console).Name;
    }
    EXPECT_EQ(RulesOf(Console::EzQuake).Comment, CommentRule::Unquoted);
    EXPECT_EQ(RulesOf(Console::Ironwail).Comment, CommentRule::Anywhere);
    EXPECT_EQ(RulesOf(Console::DarkPlaces).Comment, CommentRule::AfterBlank);
    EXPECT_EQ(RulesOf(Console::HalfLife).Comment, CommentRule::AfterBlank);
}

TEST(ConsoleOf, IsThatOfTheGameAsItWasSold) {
    EXPECT_EQ(ConsoleOf(Game::Quake, false), Console::Quake);
    EXPECT_EQ(ConsoleOf(Game::Quake, true), Console::QuakeWorld);
    EXPECT_EQ(ConsoleOf(Game::Hexen2, false), Console::Hexen2);
    EXPECT_EQ(ConsoleOf(Game::Quake2, false), Console::Quake2);
    EXPECT_EQ(ConsoleOf(Game::Unreal, false), Console::Unreal);
    EXPECT_EQ(ConsoleOf(Game::Sin, false), Console::Sin);
    EXPECT_EQ(ConsoleOf(Game::Heretic2, false), Console::Heretic2);
    EXPECT_EQ(ConsoleOf(Game::HalfLife, false), Console::HalfLife);
    EXPECT_EQ(ConsoleOf(Game::None, false), Console::Quake);
}

}  // namespace lv
