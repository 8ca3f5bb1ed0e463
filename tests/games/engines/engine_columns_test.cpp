#include "games/engines/engine_columns.h"

#include <gtest/gtest.h>

#include <map>

namespace lv {
namespace {

using Lines = std::vector<Text>;

/// What the column says of the cell: nothing, or what is wrong with it.
std::optional<Text> Take(TextView column, TextView cell, Engine& engine) {
    const EngineColumn* const found = EngineColumnOf(column);
    return found == nullptr ? std::optional<Text>("no such column") : found->Take(cell, engine);
}

Engine Taken(TextView column, TextView cell) {
    Engine engine;
    EXPECT_EQ(Take(column, cell, engine), std::nullopt) << column << " " << cell;
    return engine;
}

TEST(EngineColumnOf, KnowsTheColumnsByTheirNames) {
    for (const char* const name :
         {"name",    "programs", "games",     "role",   "data", "shareware", "wants", "refused",
          "written", "limit",    "ends",      "quotes", "set",  "scripts",   "home",  "root",
          "starts",  "nodata",   "rerelease", "debian", "page", "known"}) {
        ASSERT_NE(EngineColumnOf(name), nullptr) << name;
        EXPECT_EQ(EngineColumnOf(name)->Name, name);
    }
    ASSERT_NE(EngineColumnOf("ENDS"), nullptr);
    EXPECT_EQ(EngineColumnOf("ENDS")->Name, "ends");
    EXPECT_EQ(EngineColumnOf("colour"), nullptr);
    EXPECT_EQ(EngineColumnOf(""), nullptr);
}

TEST(IsNeededColumn, IsOneOfThreeInAnyLetterCase) {
    EXPECT_TRUE(IsNeededColumn("name"));
    EXPECT_TRUE(IsNeededColumn("Programs"));
    EXPECT_TRUE(IsNeededColumn("GAMES"));
    EXPECT_FALSE(IsNeededColumn("data"));
    EXPECT_FALSE(IsNeededColumn(""));
}

struct FaultCase {
    const char* Column;
    const char* Cell;
    const char* Fault;
};

constexpr FaultCase kFaults[] = {
    {"programs", "x *", "a program name that fits anything: *"},
    {"programs", "*.*", "a program name that fits anything: *.*"},
    {"programs", "/usr/games/x", "a program is a file name without its directory: /usr/games/x"},
    {"programs", "C:x", "a program is a file name without its directory: C:x"},
    {"games", "qake", "no such game: qake"},
    {"role", "player", "no such role: player"},
    {"data", "basedir", "no way to tell a directory: basedir"},
    {"data", "-", "no way to tell a directory: -"},
    {"data", "-base dir", "no way to tell a directory: -base dir"},
    {"data", "env:", "no way to tell a directory: env:"},
    {"data", "+set ", "no way to tell a directory: +set"},
    {"shareware", "none", "no such way of shareware: none"},
    {"wants", "-hexen2", "a game, \":\" and its switches are wanted: -hexen2"},
    {"refused", "-zone", "a reason, \":\" and switches are wanted: -zone"},
    {"written", "-window", "a switch, \"=\" and how it is written are wanted: -window"},
    {"limit", "255", "two numbers are wanted, characters and arguments: 255"},
    {"limit", "1 2 3", "two numbers are wanted, characters and arguments: 1 2 3"},
    {"limit", "255 many", "no number: many"},
    {"limit", "255 -1", "no number: -1"},
    {"limit", "5x 1", "no number: 5x"},
    {"ends", "somewhere", "no such end of a command: somewhere"},
    {"quotes", "eaten", "no such way of quotes: eaten"},
    {"set", "maybe", "no such way of +set: maybe"},
    {"scripts", "cfg", "any, or an ending that begins with a point, is wanted: cfg"},
    {"home", "here", "no such way to a home: here"},
    {"root", "maybe", "no such way with root: maybe"},
    {"starts", "/usr/games/x", "two programs are wanted, its own and the one in its place: /usr/games/x"},
    {"starts", "a b c", "two programs are wanted, its own and the one in its place: a b c"},
    {"rerelease", "maybe", "no such way with a rerelease: maybe"},
};

TEST(EngineColumns, SayWhatIsWrongWithACell) {
    for (const FaultCase& row : kFaults) {
        Engine engine;
        EXPECT_EQ(Take(row.Column, row.Cell, engine), row.Fault) << row.Column;
    }
}

TEST(EngineColumns, TakeProgramsInLowerCase) {
    EXPECT_EQ(Taken("programs", "QuakeSpasm x-*.EXE").Programs, (Lines{"quakespasm", "x-*.exe"}));
}

TEST(EngineColumns, TakeTheWaysToTellADirectoryInTheirOrder) {
    const Engine engine = Taken("data", "CWD; -basedir; +set basedir; env:XASH3D_BASEDIR");
    using Sort = DataWay::Sort;
    ASSERT_EQ(engine.DataWays.size(), 4U);
    EXPECT_EQ(engine.DataWays[0].How, Sort::WorkingDirectory);
    EXPECT_EQ(engine.DataWays[0].Word, "");
    EXPECT_EQ(engine.DataWays[1].How, Sort::Option);
    EXPECT_EQ(engine.DataWays[1].Word, "-basedir");
    EXPECT_EQ(engine.DataWays[2].How, Sort::Variable);
    EXPECT_EQ(engine.DataWays[2].Word, "basedir");
    EXPECT_EQ(engine.DataWays[3].How, Sort::Environment);
    EXPECT_EQ(engine.DataWays[3].Word, "XASH3D_BASEDIR");
}

TEST(EngineColumns, TakeEachEndOfACommandByItsWord) {
    const std::map<Text, CommandEnd> words = {{"any-sign", CommandEnd::AnySign},
                                              {"any-plus", CommandEnd::AnyPlus},
                                              {"after-blank", CommandEnd::AfterBlank},
                                              {"argument", CommandEnd::Argument},
                                              {"argument-word", CommandEnd::ArgumentWord},
                                              {"argument-plus", CommandEnd::ArgumentPlus},
                                              {"never", CommandEnd::Never}};
    for (const auto& [word, end] : words) {
        EXPECT_EQ(Taken("ends", word).Ends, end) << word;
    }
}

TEST(EngineColumns, TakeEachRoleByItsWord) {
    EXPECT_EQ(Taken("role", "client").Role, EngineRole::Client);
    EXPECT_EQ(Taken("role", "server").Role, EngineRole::Server);
    EXPECT_EQ(Taken("role", "both").Role, EngineRole::Both);
}

TEST(EngineColumns, TakeEachWayOfSetByItsWord) {
    EXPECT_EQ(Taken("set", "no").Set, SetCommand::No);
    EXPECT_EQ(Taken("set", "yes").Set, SetCommand::Yes);
    EXPECT_EQ(Taken("set", "early").Set, SetCommand::Early);
}

struct WordCase {
    const char* Column;
    const char* Word;
    bool Engine::*Flag;
    bool IsSet;
};

constexpr WordCase kWords[] = {
    {"shareware", "all", &Engine::SharewareNeedsAutoexec, false},
    {"shareware", "autoexec", &Engine::SharewareNeedsAutoexec, true},
    {"quotes", "lost", &Engine::KeepsQuotes, false},
    {"quotes", "kept", &Engine::KeepsQuotes, true},
    {"home", "environment", &Engine::HomeOfAccount, false},
    {"home", "account", &Engine::HomeOfAccount, true},
    {"home", "none", &Engine::HomeOfAccount, false},
    {"root", "runs", &Engine::RefusesRoot, false},
    {"root", "refuses", &Engine::RefusesRoot, true},
    {"rerelease", "plays", &Engine::RefusesRerelease, false},
    {"rerelease", "refuses", &Engine::RefusesRerelease, true},
};

TEST(EngineColumns, TakeEachOfTwoWays) {
    for (const WordCase& row : kWords) {
        Engine engine;
        engine.*row.Flag = !row.IsSet;
        EXPECT_EQ(Take(row.Column, row.Word, engine), std::nullopt) << row.Column << " " << row.Word;
        EXPECT_EQ(engine.*row.Flag, row.IsSet) << row.Column << " " << row.Word;
    }
}

TEST(EngineColumns, TakeTheLimitOfCharactersAndOfArguments) {
    const Engine engine = Taken("limit", "255  50");
    EXPECT_EQ(engine.LongestLine, 255U);
    EXPECT_EQ(engine.MostArguments, 50U);
}

TEST(EngineColumns, TakeAnEndingOfScriptsOrAny) {
    EXPECT_EQ(Taken("scripts", ".INI").ScriptEnding, ".ini");
    EXPECT_EQ(Taken("scripts", "Any").ScriptEnding, "");
}

TEST(EngineColumns, TakeTheProgramAndTheOneInItsPlace) {
    const Engine engine = Taken("starts", "/usr/games/X /usr/lib/games/x");
    EXPECT_EQ(engine.StartedAs, "/usr/games/X");
    EXPECT_EQ(engine.StartInstead, "/usr/lib/games/x");
}

TEST(EngineColumns, TakeTextsAsTheyAre) {
    EXPECT_EQ(Taken("name", "Hammer of Thyrion").Name, "Hammer of Thyrion");
    EXPECT_EQ(Taken("nodata", "ends with exit code 1").WithoutData, "ends with exit code 1");
    EXPECT_EQ(Taken("debian", "quakespasm").DebianPackage, "quakespasm");
    EXPECT_EQ(Taken("debian", "quakespasm").DebianPart, "");
    EXPECT_EQ(Taken("debian", "contrib/yamagi-quake2").DebianPackage, "yamagi-quake2");
    EXPECT_EQ(Taken("debian", "contrib/yamagi-quake2").DebianPart, "contrib");
    EXPECT_EQ(Taken("page", "https://example.org").HomePage, "https://example.org");
    EXPECT_EQ(Taken("known", "tried").Known, "tried");
}

}  // namespace
}  // namespace lv
