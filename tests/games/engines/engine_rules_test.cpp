#include "games/engines/engine_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "foundation/field_strings.h"
#include "games/engines/command_parts.h"
#include "tests/games/engines/shipped_engines.h"

namespace lv {
namespace {

FittedCommand Fit(TextView engine, TextView command) {
    ComposedCommand composed;
    composed.Command = command;
    return FitCommandLine(ShippedEngine(engine), composed);
}

FittedCommand FitShareware(TextView engine, TextView command) {
    ComposedCommand composed;
    composed.Command = command;
    composed.IsShareware = true;
    return FitCommandLine(ShippedEngine(engine), composed);
}

/// "game" as it stands in a composed command.
GivenWord GivenAt(const Text& command, const Text& written) {
    return {command.find(written), written, written, {}};
}

std::vector<Text> NotesOf(const FittedCommand& fitted) {
    std::vector<Text> notes;
    for (const FitNote& note : fitted.Notes) {
        notes.push_back(NoteText(note));
    }
    return notes;
}

using Lines = std::vector<Text>;

TEST(FitCommandLine, GivesBackWhatNeedsNothing) {
    const FittedCommand fitted = Fit("QuakeSpasm", "QUAKESPASM -width 640 -nolan +exec lv_666.qs ");
    EXPECT_EQ(fitted.Command, "QUAKESPASM -width 640 -nolan +exec lv_666.qs ");
    EXPECT_EQ(NotesOf(fitted), Lines());
    EXPECT_EQ(fitted.ScriptHead + fitted.ScriptTail + fitted.AutoexecTail, "");
}

// The ten ways in which today's engines break a launch.

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
    composed.ProgramPath = Text(210, 'p');
    const FittedCommand whole = FitCommandLine(ShippedEngine("QuakeSpasm"), composed);
    EXPECT_EQ(whole.ScriptHead, "");
    EXPECT_EQ(SizeOfLine(whole, composed).Characters, 210U + 34U);
    composed.ProgramPath = Text(222, 'p');
    const FittedCommand shorter = FitCommandLine(ShippedEngine("QuakeSpasm"), composed);
    EXPECT_EQ(shorter.Command, "QUAKESPASM -nolan +exec lv_666.qs ");
    EXPECT_EQ(shorter.ScriptHead, "map start\r\n");
    composed.ProgramPath = Text(245, 'p');
    const FittedCommand shortest = FitCommandLine(ShippedEngine("QuakeSpasm"), composed);
    EXPECT_EQ(shortest.Command, "QUAKESPASM -nolan ");
    EXPECT_EQ(shortest.AutoexecTail, "exec lv_666.qs\r\n");
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

// What else the table says.

TEST(FitCommandLine, LeavesOutASwitchWithItsValueAndNoMore) {
    const FittedCommand fitted = Fit("ezQuake", "EZQUAKE -zone 512 -nolan -listen 8 -noudp more +exec lv_666.qs ");
    EXPECT_EQ(fitted.Command, "EZQUAKE more +exec lv_666.qs ");
    EXPECT_EQ(NotesOf(fitted),
              (Lines{"-zone 512: left out, manages its own memory", "-nolan: left out, does not read it",
                     "-listen 8: left out, does not read it", "-noudp: left out, does not read it"}));
}

TEST(FitCommandLine, WritesSwitchesAsTheEngineKnowsThem) {
    EXPECT_EQ(Fit("DarkPlaces", "DARKPLACES -width 640 -window ").Command,
              "DARKPLACES +vid_width 640 +vid_fullscreen 0 ");
    EXPECT_EQ(Fit("vkQuake", "VKQUAKE -noudp ").Command, "VKQUAKE -noudp4 -noudp6 ");
    EXPECT_EQ(Fit("Yamagi Quake II", "QUAKE2 -width 640 ").Command, "QUAKE2 +set r_mode -1 +set r_customwidth 640 ");
    EXPECT_EQ(Fit("Q2PRO", "Q2PRO +set s_initsound 0 ").Command, "Q2PRO +set s_enable 0 ");
    EXPECT_EQ(Fit("Xash3D", "XASH3D -window +set game gearbox +set s_initsound 0 ").Command,
              "XASH3D -windowed -game gearbox -nosound ");
    EXPECT_EQ(NotesOf(Fit("DarkPlaces", "DARKPLACES -width 640 ")),
              Lines{"-width 640: written in another way, it knows it as +vid_width %"});
}

TEST(FitCommandLine, WritesSetAsAVariableWhereItIsUnknown) {
    EXPECT_EQ(Fit("QuakeSpasm", "QUAKESPASM +set r_shadows 1 ").Command, "QUAKESPASM +r_shadows 1 ");
    EXPECT_EQ(Fit("vkQuake", "VKQUAKE +set r_shadows 1 ").Command, "VKQUAKE +set r_shadows 1 ");
}

TEST(FitCommandLine, KeepsTheOrderOfCommandsThatMove) {
    const FittedCommand fitted = Fit("QuakeSpasm", "Q +a 1 +b x+y +c 3 +exec lv_666.qs +d u+v +e 5 ");
    EXPECT_EQ(fitted.Command, "Q +a 1 +exec lv_666.qs ");
    EXPECT_EQ(fitted.ScriptHead, "b x+y\r\nc 3\r\n");
    EXPECT_EQ(fitted.ScriptTail, "d u+v\r\ne 5\r\n");
}

TEST(FitCommandLine, RunsTheScriptThatLinesHaveComeTo) {
    const FittedCommand fitted = Fit("mvdsv", "MVDSV +map dm-6 ");
    EXPECT_EQ(fitted.Command, "MVDSV +exec lv_666.qs ");
    EXPECT_EQ(fitted.ScriptHead, "map dm-6\r\n");
    EXPECT_EQ(NotesOf(fitted).at(1), "+exec lv_666.qs: added, lines have come to the script");
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

TEST(FitCommandLine, SaysWhichOptionMayBeTakenForACommand) {
    ComposedCommand composed;
    composed.Command = "QUAKESPASM -game x+quit +exec lv_666.qs ";
    composed.Given = {GivenAt(composed.Command, "x+quit")};
    const FittedCommand fitted = FitCommandLine(ShippedEngine("QuakeSpasm"), composed);
    EXPECT_EQ(fitted.Command, composed.Command);
    EXPECT_EQ(NotesOf(fitted),
              Lines{"-game x+quit: left as it is, it may take what stands behind \"+\" for a command"});
    EXPECT_EQ(NotesOf(FitCommandLine(ShippedEngine("DarkPlaces"), composed)), Lines());
}

TEST(FitCommandLine, QuotesGivenWordsInTheScript) {
    ComposedCommand composed;
    composed.Command = "MVDSV +map a-b;quit +exec lv_666.qs ";
    composed.Given = {GivenAt(composed.Command, "a-b;quit")};
    EXPECT_EQ(FitCommandLine(ShippedEngine("mvdsv"), composed).ScriptHead, "map \"a-b;quit\"\r\n");
}

TEST(FitCommandLine, LeavesOutWhatNoScriptCanHold) {
    ComposedCommand composed;
    composed.Command = "MVDSV +map a-\"b +exec lv_666.qs ";
    composed.Given = {GivenAt(composed.Command, "a-\"b")};
    const FittedCommand fitted = FitCommandLine(ShippedEngine("mvdsv"), composed);
    EXPECT_EQ(fitted.ScriptHead, "");
    EXPECT_EQ(fitted.Notes.at(0).Kind, FitKind::LeftOut);
    EXPECT_EQ(fitted.Notes.at(0).Part, "+map a-\"b");
}

TEST(FitCommandLine, MakesACommandOfWhatStandsBehindALineBreak) {
    const FittedCommand fitted = Fit("Xash3D", "XASH3D +password x\r\nconnect h:27015\r\n +exec lv_666.qs ");
    EXPECT_EQ(fitted.Command, "XASH3D +password x +connect h:27015 +exec lv_666.qs ");
    EXPECT_EQ(fitted.Notes.at(0).Part, "connect h:27015");
}

TEST(FitCommandLine, TellsTheDirectoryAsTheEngineWantsIt) {
    ComposedCommand composed;
    composed.Command = "X +exec lv_666.qs ";
    composed.DataDirectory = "/srv/quake";
    EXPECT_TRUE(FitCommandLine(ShippedEngine("QuakeSpasm"), composed).StartInDataDirectory);
    EXPECT_EQ(FitCommandLine(ShippedEngine("QuakeSpasm"), composed).Command, composed.Command);
    EXPECT_EQ(FitCommandLine(ShippedEngine("ezQuake"), composed).Command, "X -basedir /srv/quake +exec lv_666.qs ");
    EXPECT_EQ(FitCommandLine(ShippedEngine("Yamagi Quake II"), composed).Command,
              "X -datadir /srv/quake +exec lv_666.qs ");
    const FittedCommand xash = FitCommandLine(ShippedEngine("Xash3D"), composed);
    EXPECT_EQ(xash.Command, composed.Command);
    EXPECT_EQ(xash.Environment, (std::vector<std::pair<Text, Text>>{{"XASH3D_BASEDIR", "/srv/quake"}}));
    composed.Command = "X -basedir /own +exec lv_666.qs ";
    EXPECT_EQ(FitCommandLine(ShippedEngine("ezQuake"), composed).Command, composed.Command);
}

TEST(FitCommandLine, TellsAnEngineOfManyGamesWhichOne) {
    ComposedCommand composed;
    composed.Command = "FTEQW +exec lv_666.qs ";
    composed.Played = Game::Hexen2;
    EXPECT_EQ(FitCommandLine(ShippedEngine("FTEQW"), composed).Command, "FTEQW -hexen2 +exec lv_666.qs ");
    composed.Played = Game::Quake;
    EXPECT_EQ(FitCommandLine(ShippedEngine("FTEQW"), composed).Command, composed.Command);
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
        const LineSize size = SizeOfLine(fitted, composed);
        if (engine.LongestLine != 0) {
            ASSERT_LE(size.Characters, engine.LongestLine) << composed.Command;
            ASSERT_LE(size.Arguments, engine.MostArguments) << composed.Command;
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
