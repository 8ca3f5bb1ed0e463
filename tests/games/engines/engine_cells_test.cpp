#include "games/engines/engine_cells.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

using Lines = std::vector<Text>;
using namespace engine_game;

TEST(CellParts, StandBetweenTheMarksWithoutBlanksAtTheirEnds) {
    EXPECT_EQ(CellParts("cwd; -basedir ;+set basedir", ';'), (Lines{"cwd", "-basedir", "+set basedir"}));
    EXPECT_EQ(CellParts(" one  two ", ' '), (Lines{"one", "two"}));
    EXPECT_EQ(CellParts(";; ;x;", ';'), Lines{"x"});
    EXPECT_EQ(CellParts("", ';'), Lines());
}

TEST(CellParts, AreNoMoreThanSixtyFour) {
    Text cell;
    for (int i = 0; i < 70; ++i) {
        cell += std::to_string(i) + " ";
    }
    const Lines parts = CellParts(cell, ' ');
    ASSERT_EQ(parts.size(), 64U);
    EXPECT_EQ(parts.back(), "63");
}

TEST(TakeCellWord, FindsAWordInAnyLetterCase) {
    constexpr CellWord<int> kWords[] = {{"lost", 1}, {"kept", 2}};
    int taken = 0;
    EXPECT_EQ(TakeCellWord("KEPT", kWords, "way of quotes", taken), std::nullopt);
    EXPECT_EQ(taken, 2);
    EXPECT_EQ(TakeCellWord("keep", kWords, "way of quotes", taken), "no such way of quotes: keep");
    EXPECT_EQ(taken, 2);
}

struct GameCase {
    const char* Word;
    unsigned Game;
};

constexpr GameCase kGames[] = {
    {"quake", kQuake},       {"quakeworld", kQuakeWorld}, {"hexen2", kHexen2}, {"hexenworld", kHexenWorld},
    {"quake2", kQuake2},     {"unreal", kUnreal},         {"sin", kSin},       {"heretic2", kHeretic2},
    {"halflife", kHalfLife},
};

TEST(TakeGames, KnowsEachByItsWord) {
    for (const GameCase& row : kGames) {
        unsigned games = 0;
        EXPECT_EQ(TakeGames(row.Word, games), std::nullopt) << row.Word;
        EXPECT_EQ(games, row.Game) << row.Word;
    }
}

TEST(TakeGames, TakesSeveralInPlaceOfWhatWasThere) {
    unsigned games = kSin;
    EXPECT_EQ(TakeGames("Quake QUAKEWORLD", games), std::nullopt);
    EXPECT_EQ(games, kQuake | kQuakeWorld);
    EXPECT_EQ(TakeGames("quake qake", games), "no such game: qake");
}

TEST(TakeWantedSwitches, AreThoseOfEachGame) {
    Engine engine;
    EXPECT_EQ(TakeWantedSwitches("hexen2: -hexen2; quake2 sin: -quake2 +x ", engine), std::nullopt);
    ASSERT_EQ(engine.Wanted.size(), 2U);
    EXPECT_EQ(engine.Wanted[0].Games, kHexen2);
    EXPECT_EQ(engine.Wanted[0].Switch, "-hexen2");
    EXPECT_EQ(engine.Wanted[1].Games, kQuake2 | kSin);
    EXPECT_EQ(engine.Wanted[1].Switch, "-quake2 +x");
}

TEST(TakeWantedSwitches, WantAGameAndASwitch) {
    Engine engine;
    EXPECT_EQ(TakeWantedSwitches("-hexen2", engine), "a game, \":\" and its switches are wanted: -hexen2");
    EXPECT_EQ(TakeWantedSwitches("hexen2: ", engine), "a game, \":\" and its switches are wanted: hexen2:");
    EXPECT_EQ(TakeWantedSwitches("hexen3: -x", engine), "no such game: hexen3");
}

TEST(TakeRefusedSwitches, HaveTheReasonOfTheirGroup) {
    Engine engine;
    EXPECT_EQ(TakeRefusedSwitches("manages its own memory: -HeapSize -mem; see: this: +crash", engine), std::nullopt);
    ASSERT_EQ(engine.Refused.size(), 3U);
    EXPECT_EQ(engine.Refused[0].Switch, "-heapsize");
    EXPECT_EQ(engine.Refused[1].Switch, "-mem");
    EXPECT_EQ(engine.Refused[1].Reason, "manages its own memory");
    EXPECT_EQ(engine.Refused[2].Switch, "+crash");
    EXPECT_EQ(engine.Refused[2].Reason, "see: this");
}

TEST(TakeRefusedSwitches, WantAReasonAndSwitches) {
    Engine engine;
    EXPECT_EQ(TakeRefusedSwitches("-zone", engine), "a reason, \":\" and switches are wanted: -zone");
    EXPECT_EQ(TakeRefusedSwitches(" : -zone", engine), "a reason, \":\" and switches are wanted: : -zone");
    EXPECT_EQ(TakeRefusedSwitches("no: zone", engine), "a switch begins with \"-\" or \"+\": zone");
}

TEST(TakeWrittenOtherwise, AreTheWordsAndWhatIsWrittenForThem) {
    Engine engine;
    EXPECT_EQ(TakeWrittenOtherwise("-width % = +vid_width %; -window=+vid_fullscreen 0; -a = +b c=d", engine),
              std::nullopt);
    ASSERT_EQ(engine.Otherwise.size(), 3U);
    EXPECT_EQ(engine.Otherwise[0].From, (Lines{"-width", "%"}));
    EXPECT_EQ(engine.Otherwise[0].To, "+vid_width %");
    EXPECT_EQ(engine.Otherwise[1].From, Lines{"-window"});
    EXPECT_EQ(engine.Otherwise[1].To, "+vid_fullscreen 0");
    EXPECT_EQ(engine.Otherwise[2].To, "+b c=d");
}

TEST(TakeWrittenOtherwise, WantBothSidesAndOneValueAtMost) {
    Engine engine;
    EXPECT_EQ(TakeWrittenOtherwise("-window", engine), "a switch, \"=\" and how it is written are wanted: -window");
    EXPECT_EQ(TakeWrittenOtherwise("= -x", engine), "a switch, \"=\" and how it is written are wanted: = -x");
    EXPECT_EQ(TakeWrittenOtherwise("-w = +w %", engine), "one word, \"%\", on the left goes into the right: -w = +w %");
    EXPECT_EQ(TakeWrittenOtherwise("-w % % = +w %", engine),
              "one word, \"%\", on the left goes into the right: -w % % = +w %");
    EXPECT_EQ(TakeWrittenOtherwise("-w % = +w", engine), std::nullopt);
}

}  // namespace
}  // namespace lv
