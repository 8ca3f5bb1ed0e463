#include "games/fitting/switch_fitting.h"

#include <gtest/gtest.h>

#include "tests/games/fitting/way.h"
#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

TEST(SwitchFitting, LeavesOutASwitchWithItsValueAndNoMore) {
    const FittedCommand fitted = Fit("ezQuake", "EZQUAKE -zone 512 -nolan -listen 8 -noudp more +exec lv_666.qs ");
    EXPECT_EQ(fitted.Command, "EZQUAKE more +exec lv_666.qs ");
    EXPECT_EQ(NotesOf(fitted),
              (Lines{"-zone 512: left out, manages its own memory", "-nolan: left out, does not read it",
                     "-listen 8: left out, does not read it", "-noudp: left out, does not read it"}));
}

TEST(SwitchFitting, WritesSwitchesAsTheEngineKnowsThem) {
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

TEST(SwitchFitting, WritesMissionPacksAsSwitchesWhereTheEngineWantsThat) {
    for (const Text pack : {"hipnotic", "rogue", "quoth"}) {
        EXPECT_EQ(Fit("TyrQuake", Join("TYR-QUAKE -game ", pack, " +exec lv_666.qs ")).Command,
                  Join("TYR-QUAKE -", pack, " +exec lv_666.qs "));
    }
    EXPECT_EQ(Fit("TyrQuake", "TYR-QUAKE -game ctf ").Command, "TYR-QUAKE -game ctf ");
}

TEST(SwitchFitting, WritesSetAsAVariableWhereItIsUnknown) {
    EXPECT_EQ(Fit("QuakeSpasm", "QUAKESPASM +set r_shadows 1 ").Command, "QUAKESPASM +r_shadows 1 ");
    EXPECT_EQ(Fit("vkQuake", "VKQUAKE +set r_shadows 1 ").Command, "VKQUAKE +set r_shadows 1 ");
}

TEST(SwitchFitting, MakesACommandOfWhatStandsBehindALineBreak) {
    const FittedCommand fitted = Fit("Xash3D", "XASH3D +password x\r\nconnect h:27015\r\n +exec lv_666.qs ");
    EXPECT_EQ(fitted.Command, "XASH3D +password x +connect h:27015 +exec lv_666.qs ");
    EXPECT_EQ(fitted.Notes.at(0).Part, "connect h:27015");
}

TEST(SwitchFitting, TellsAnEngineOfManyGamesWhichOne) {
    ComposedCommand composed;
    composed.Command = "FTEQW +exec lv_666.qs ";
    composed.Played = Game::Hexen2;
    EXPECT_EQ(FitCommandLine(ShippedEngine("FTEQW"), composed).Command, "FTEQW -hexen2 +exec lv_666.qs ");
    composed.Played = Game::Quake;
    EXPECT_EQ(FitCommandLine(ShippedEngine("FTEQW"), composed).Command, composed.Command);
}

TEST(SwitchFitting, TellsTheDirectoryAsTheEngineWantsIt) {
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

TEST(SwitchFitting, SaysWhichOptionMayBeTakenForACommand) {
    ComposedCommand composed;
    composed.Command = "QUAKESPASM -game x+quit +exec lv_666.qs ";
    composed.Given = {GivenAt(composed.Command, "x+quit")};
    const FittedCommand fitted = FitCommandLine(ShippedEngine("QuakeSpasm"), composed);
    EXPECT_EQ(fitted.Command, composed.Command);
    EXPECT_EQ(NotesOf(fitted),
              Lines{"-game x+quit: left as it is, it may take what stands behind \"+\" for a command"});
    EXPECT_EQ(NotesOf(FitCommandLine(ShippedEngine("DarkPlaces"), composed)), Lines());
}

TEST(SwitchFitting, LeavesTheWordBehindASwitchThatTakesNoValue) {
    for (const Text name :
         {"-window", "-fullscreen", "-nolan", "-noudp", "-nosound", "-nocdaudio", "-minmemory", "-console"}) {
        Way way(Join("-a b ", name, " word more"));
        way.Its.Refused = {{name, "no"}};
        LeaveOutRefused(way.At);
        EXPECT_EQ(way.Left(), (Lines{"-a b", "word", "more"})) << name;
        EXPECT_EQ(NotesOf(way.At.Fitted), Lines{Join(name, ": left out, no")});
    }
}

TEST(SwitchFitting, LeavesOutANumberBehindASwitchThatMayHaveOne) {
    for (const Text name : {"-listen", "-dedicated"}) {
        Way number(Join(name, " 8 more"));
        number.Its.Refused = {{name, "no"}};
        LeaveOutRefused(number.At);
        EXPECT_EQ(number.Left(), Lines{"more"}) << name;
        Way word(Join(name, " 8x more"));
        word.Its.Refused = {{name, "no"}};
        LeaveOutRefused(word.At);
        EXPECT_EQ(word.Left(), (Lines{"8x", "more"})) << name;
    }
}

TEST(SwitchFitting, LeavesOutEveryOptionWithAllItsWordsAndNoCommand) {
    Way way("-zone 512 x +map dm3 -game ctf start");
    way.Its.Refused = {{"-zone", "has its own"}, {"-*", "reads none"}};
    LeaveOutRefused(way.At);
    EXPECT_EQ(way.Left(), (Lines{"x", "+map dm3"}));
    EXPECT_EQ(NotesOf(way.At.Fitted),
              (Lines{"-zone 512: left out, has its own", "-game ctf start: left out, reads none"}));
}

TEST(SwitchFitting, LeavesOutACommandByItsNameWithAllItsWords) {
    Way way("+Crash a b +map dm3");
    way.Its.Refused = {{"+crash", "ends at it"}};
    LeaveOutRefused(way.At);
    EXPECT_EQ(way.Left(), Lines{"+map dm3"});
}

TEST(SwitchFitting, PutsTheValueWhereTheOtherNameWantsIt) {
    Way way("-WIDTH 640 more -window");
    way.Its.Otherwise = {{{"-width", "%"}, "+set r_mode -1 +set r_width %"}, {{"-window"}, "-windowed"}};
    WriteOtherwise(way.At);
    EXPECT_EQ(way.Left(), (Lines{"+set r_mode -1", "+set r_width 640", "more", "-windowed"}));
    EXPECT_EQ(NotesOf(way.At.Fitted).at(0),
              "-WIDTH 640 more: written in another way, it knows it as +set r_mode -1 +set r_width %");
}

TEST(SwitchFitting, KnowsACommandOtherwiseOnlyWithAsManyWords) {
    Way way("+set game ctf +set game ctf more +set game");
    way.Its.Otherwise = {{{"+set", "game", "%"}, "-game %"}};
    WriteOtherwise(way.At);
    EXPECT_EQ(way.Left(), (Lines{"-game ctf", "+set game ctf more", "+set game"}));
}

TEST(SwitchFitting, KeepsAGivenValueGivenUnderTheOtherName) {
    const Text command = "-game my -mod ";
    Way way(command, {GivenAt(command, "my -mod")});
    way.Its.Otherwise = {{{"-game", "%"}, "+game %"}};
    WriteOtherwise(way.At);
    ASSERT_EQ(way.Left(), Lines{"+game my -mod"});
    EXPECT_TRUE(way.At.Parts[0].Words[1].IsGiven);
}

TEST(SwitchFitting, WritesASetOfAVariableAndAValueAlone) {
    Way way("+set name \"a b\" +set x +SET y 1 2 -set z 1");
    way.Its.Set = SetCommand::No;
    WriteSetsPlain(way.At);
    EXPECT_EQ(way.Left(), (Lines{"+name \"a b\"", "+set x", "+y 1 2", "-set z 1"}));
}

TEST(SwitchFitting, SignsAGivenWordBehindALineBreakAheadOfIt) {
    const Text command = "+a b\r\nmy -map";
    Way way(command, {GivenAt(command, "my -map")});
    SplitLines(way.At);
    EXPECT_EQ(way.Left(), (Lines{"+a b", "+my -map"}));
    EXPECT_EQ(way.At.Parts[1].Words[0].Option, "+");
    EXPECT_EQ(way.At.Parts[1].Words[0].Argument, "my -map");
}

TEST(SwitchFitting, AddsAWantedSwitchOnceAndAheadOfTheOthers) {
    Way way("-nolan");
    way.Its.Wanted = {{engine_game::kHexen2, "-hexen2"}, {engine_game::kQuake2, "-quake2"}};
    way.Composed.Played = Game::Hexen2;
    AddWanted(way.At);
    EXPECT_EQ(way.Left(), (Lines{"-hexen2", "-nolan"}));
    EXPECT_EQ(NotesOf(way.At.Fitted), Lines{"-hexen2: added, it plays another game without it"});
    Way there("-nolan -HEXEN2");
    there.Its.Wanted = way.Its.Wanted;
    there.Composed.Played = Game::Hexen2;
    AddWanted(there.At);
    EXPECT_EQ(there.Left(), (Lines{"-nolan", "-HEXEN2"}));
}

TEST(SwitchFitting, TellsADirectoryWithoutTheBackslashAtItsEnd) {
    struct Case {
        const char* Directory;
        const char* Told;
    };
    constexpr Case kCases[] = {{"C:\\QUAKE\\", "-basedir C:\\QUAKE"},
                               {"C:\\", "-basedir C:\\"},
                               {"C:\\MY GAMES\\", "-basedir \"C:\\MY GAMES\""}};
    for (const Case& row : kCases) {
        Way way("-nolan");
        way.Its.DataWays = {{DataWay::Sort::Option, "-basedir"}};
        way.Composed.DataDirectory = row.Directory;
        TellDataDirectory(way.At);
        EXPECT_EQ(way.Left(), (Lines{row.Told, "-nolan"}));
        EXPECT_EQ(NotesOf(way.At.Fitted), Lines{Join(row.Told, ": added, that is how it finds the game")});
    }
}

TEST(SwitchFitting, TellsNobodyWhoNeedsNotBeTold) {
    Way way("-nolan");
    TellDataDirectory(way.At);
    EXPECT_EQ(way.Left(), Lines{"-nolan"});
    EXPECT_FALSE(way.At.Fitted.StartInDataDirectory);
}

}  // namespace
}  // namespace lv
