// The ten ways in which today's engines break a launch; start_rules_test.cpp, beside the table of engines, has those
// that are no matter of the command line.

#include <gtest/gtest.h>

#include "foundation/field_strings.h"
#include "tests/games/fitting/fitted.h"
#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

TEST(TenWays, SharewareRunsTheScriptFromAutoexec) {
    const FittedCommand fitted = FitShareware("QuakeSpasm", "QUAKESPASM -nolan +GL_ROUND_DOWN 2 +exec lv_666.qs ");
    EXPECT_EQ(fitted.Command, "QUAKESPASM -nolan ");
    EXPECT_EQ(fitted.ScriptHead, "GL_ROUND_DOWN 2\r\n");
    EXPECT_EQ(fitted.AutoexecTail, "exec lv_666.qs\r\n");
    EXPECT_EQ(
        NotesOf(fitted),
        (Lines{"+GL_ROUND_DOWN 2: moved to the script, with shareware data it runs no command of its command line",
               "+exec lv_666.qs: moved to autoexec.cfg, with shareware data it runs no command of its command "
               "line"}));
}

TEST(TenWays, SharewareIsNoMatterToEnginesThatRunTheirCommandLine) {
    const FittedCommand fitted = FitShareware("DarkPlaces", "DARKPLACES +exec lv_666.qs ");
    EXPECT_EQ(fitted.Command, "DARKPLACES +exec lv_666.qs ");
    EXPECT_EQ(fitted.AutoexecTail, "");
}

TEST(TenWays, LinesOverTheLimitGoIntoTheScript) {
    const Text filler(230, 'x');
    const FittedCommand fitted = Fit("vkQuake", Join("VKQUAKE -nolan +echo ", filler, " +map start +exec lv_666.qs "));
    EXPECT_EQ(fitted.Command, "VKQUAKE -nolan +exec lv_666.qs ");
    EXPECT_EQ(fitted.ScriptHead, Join("echo ", filler, "\r\nmap start\r\n"));
    EXPECT_EQ(fitted.Notes.at(1).Why, "it reads no more than 255 characters of its command line");
}

TEST(TenWays, TheProgramsPathCountsForTheLimit) {
    ComposedCommand composed;
    composed.Command = "QUAKESPASM -nolan +map start +exec lv_666.qs ";
    composed.ProgramPath = Text(255 - 34, 'p');
    const FittedCommand whole = FitCommandLine(ShippedEngine("QuakeSpasm"), composed);
    EXPECT_EQ(whole.Command, composed.Command);
    EXPECT_EQ(whole.ScriptHead, "");
    composed.ProgramPath = Text(222, 'p');
    const FittedCommand shorter = FitCommandLine(ShippedEngine("QuakeSpasm"), composed);
    EXPECT_EQ(shorter.Command, "QUAKESPASM -nolan +exec lv_666.qs ");
    EXPECT_EQ(shorter.ScriptHead, "map start\r\n");
    composed.ProgramPath = Text(239, 'p');
    const FittedCommand scriptAhead = FitCommandLine(ShippedEngine("QuakeSpasm"), composed);
    EXPECT_EQ(scriptAhead.Command, "QUAKESPASM +exec lv_666.qs -nolan ");
    EXPECT_EQ(scriptAhead.AutoexecTail, "");
    EXPECT_EQ(NotesOf(scriptAhead).back(),
              "+exec lv_666.qs: written in another way, it reads no more than 255 characters of its command line, so "
              "it stands ahead of all else");
    composed.ProgramPath = Text(240, 'p');
    const FittedCommand shortest = FitCommandLine(ShippedEngine("QuakeSpasm"), composed);
    EXPECT_EQ(shortest.Command, "QUAKESPASM -nolan ");
    EXPECT_EQ(shortest.AutoexecTail, "exec lv_666.qs\r\n");
    EXPECT_FALSE(shortest.ForShareware);
}

TEST(TenWays, NoMoreThanFiftyArguments) {
    Text command = "QUAKESPASM";
    for (int i = 0; i < 25; ++i) {
        command += " +a 1";
    }
    const FittedCommand fitted = Fit("QuakeSpasm", command + " ");
    EXPECT_EQ(fitted.Command, "QUAKESPASM +exec lv_666.qs ");
    EXPECT_EQ(fitted.Notes.front().Why, "it reads no more than 49 arguments");
    EXPECT_EQ(Fit("DarkPlaces", command + " ").ScriptHead, "");
}

TEST(TenWays, OptionsBeyondTheFiftyGoBeforeTheScriptDoes) {
    Text command = "QUAKESPASM";
    for (int i = 10; i < 60; ++i) {
        command += Join(" -a", std::to_string(i));
    }
    const FittedCommand fitted = Fit("QuakeSpasm", command + " +exec lv_666.qs ");
    EXPECT_TRUE(fitted.Command.starts_with("QUAKESPASM +exec lv_666.qs -a10 -a11 ")) << fitted.Command;
    EXPECT_TRUE(fitted.Command.ends_with(" -a56 ")) << fitted.Command;
    EXPECT_EQ(fitted.AutoexecTail, "");
    EXPECT_EQ(NotesOf(fitted).back(), "-a57: left out, it reads no more than 49 arguments");
}

TEST(TenWays, OptionsAreSeenHoweverLongTheLineIs) {
    const Text command = Join("QUAKESPASM -game ", Text(250, 'x'), " ");
    EXPECT_EQ(Fit("QuakeSpasm", command).Command, command);
    EXPECT_EQ(NotesOf(Fit("QuakeSpasm", command)), Lines());
}

TEST(TenWays, AWordAheadOfTheOptionsIsMadeNoArgumentOfTheScript) {
    const FittedCommand fitted = Fit("QuakeSpasm", Join("QUAKESPASM ", Text(250, 'x'), " +exec lv_666.qs "));
    EXPECT_EQ(fitted.Command, Join("QUAKESPASM ", Text(250, 'x'), " "));
    EXPECT_EQ(fitted.AutoexecTail, "exec lv_666.qs\r\n");
}

struct TornCase {
    const char* Engine;
    const char* Command;
    bool Moves;
};

constexpr TornCase kTorn[] = {
    {"QuakeSpasm", "+echo d+e", true},
    {"QuakeSpasm", "+echo a-b", false},
    {"QuakeSpasm", "+echo -1", true},
    {"DarkPlaces", "+echo d+e", false},
    {"DarkPlaces", "+echo -1", false},
    {"DarkPlaces", "+echo \"-x\"", true},
    {"DarkPlaces", "+name \"a b\"", false},
    {"FTEQW", "+echo \"+x\"", true},
    {"ezQuake", "+exec my-file.cfg", false},
    {"ezQuake", "+echo \"a -b\"", true},
    {"ezQuake", "+set x a+b", false},
    {"mvdsv", "+exec my-file.cfg", true},
    {"TyrQuake", "+exec my-file.cfg", true},
    {"Hammer of Thyrion", "+exec my-file.cfg", false},
    {"Hammer of Thyrion", "+echo -1", true},
    {"Yamagi Quake II", "+exec a+b.cfg", true},
    {"Yamagi Quake II", "+set game a+b", false},
    {"Yamagi Quake II", "+exec a-b.cfg", false},
    {"Q2PRO", "+exec a+b-c.cfg", false},
    {"Q2PRO", "+echo -1", false},
    {"Q2PRO", "+echo \"+x\"", true},
    {"Xash3D", "+exec a+b-c.cfg", false},
    {"Heretic2R", "+exec a-b.cfg", true},
    {"QuakeSpasm", "+name \"a b\"", true},
};

TEST(TenWays, NamesWithSignsGoIntoTheScriptWhereTheyWouldEndTheCommand) {
    for (const TornCase& row : kTorn) {
        const FittedCommand fitted = Fit(row.Engine, Join("X ", row.Command, " +exec lv_666.qs "));
        const Text line = Join(row.Command + 1, "\r\n");
        EXPECT_EQ(fitted.ScriptHead, row.Moves ? line : "") << row.Engine << " " << row.Command;
        EXPECT_EQ(Holds(fitted.Command, row.Command), !row.Moves) << row.Engine << " " << row.Command;
    }
}

TEST(TenWays, SharewareOpensNoScriptInADirectoryBelowAndPlaysNoModification) {
    const FittedCommand fitted = FitShareware("Ironwail", "IRONWAIL -game ctf +exec dir/x.cfg +exec lv_666.qs ");
    EXPECT_EQ(fitted.Command, "IRONWAIL ");
    EXPECT_EQ(fitted.ScriptHead, "");
    EXPECT_EQ(NotesOf(fitted).at(0), "-game ctf: left out, with shareware data it plays no modification");
    EXPECT_EQ(NotesOf(fitted).at(1),
              "+exec dir/x.cfg: left out, with shareware data it opens no file in a directory below");
}

TEST(TenWays, NoEngineOfQuakesGetsASizeOfMemory) {
    for (const Engine& engine : ShippedEngines().Engines) {
        if (engine.Games == engine_game::kUnreal) {
            continue;
        }
        for (const Text memory : {"-heapsize 16384", "-winmem 16", "-mem 16", "-minmemory"}) {
            const FittedCommand fitted = Fit(engine.Name, Join("X ", memory, " +exec lv_666.qs "));
            EXPECT_EQ(fitted.Command, "X +exec lv_666.qs ") << engine.Name;
            EXPECT_EQ(NotesOf(fitted), Lines{Join(memory, ": left out, manages its own memory")}) << engine.Name;
        }
    }
}

TEST(TenWays, EnginesWithoutOptionsGetTheirDirectoryByAVariable) {
    ComposedCommand composed;
    composed.Command = "Q2PRO -zone 512 -nolan +set game ctf +exec lv_666.qs ";
    composed.DataDirectory = "/srv/my games/quake2";
    for (const char* const engine : {"Q2PRO", "Quake II RTX"}) {
        const FittedCommand fitted = FitCommandLine(ShippedEngine(engine), composed);
        EXPECT_EQ(fitted.Command, "Q2PRO +set basedir \"/srv/my games/quake2\" +set game ctf +exec lv_666.qs ");
        ASSERT_EQ(fitted.Given.size(), 1U);
        EXPECT_EQ(fitted.Given[0].At, 19U);
        EXPECT_EQ(fitted.Given[0].Argument, "/srv/my games/quake2");
        EXPECT_EQ(NotesOf(fitted).at(1), "-nolan: left out, takes it for text of its console");
    }
}

TEST(TenWays, SomeEnginesFindTheirHomeInThePasswordDatabase) {
    EXPECT_TRUE(ShippedEngine("QuakeSpasm").HomeOfAccount);
    EXPECT_FALSE(ShippedEngine("DarkPlaces").HomeOfAccount);
}

}  // namespace
}  // namespace lv
