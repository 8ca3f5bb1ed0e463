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
