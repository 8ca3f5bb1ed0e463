#include "games/fitting/command_moving.h"

#include <gtest/gtest.h>

#include "tests/games/fitting/way.h"
#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

TEST(CommandMoving, KeepsTheOrderOfCommandsThatMove) {
    const FittedCommand fitted = Fit("QuakeSpasm", "Q +a 1 +b x+y +c 3 +exec lv_666.qs +d u+v +e 5 ");
    EXPECT_EQ(fitted.Command, "Q +a 1 +exec lv_666.qs ");
    EXPECT_EQ(fitted.ScriptHead, "b x+y\r\nc 3\r\n");
    EXPECT_EQ(fitted.ScriptTail, "d u+v\r\ne 5\r\n");
}

TEST(CommandMoving, RunsTheScriptThatLinesHaveComeTo) {
    const FittedCommand fitted = Fit("mvdsv", "MVDSV +map dm-6 ");
    EXPECT_EQ(fitted.Command, "MVDSV +exec lv_666.qs ");
    EXPECT_EQ(fitted.ScriptHead, "map dm-6\r\n");
    EXPECT_EQ(NotesOf(fitted).at(1), "+exec lv_666.qs: added, lines have come to the script");
}

TEST(CommandMoving, QuotesGivenWordsInTheScript) {
    ComposedCommand composed;
    composed.Command = "MVDSV +map a-b;quit +exec lv_666.qs ";
    composed.Given = {GivenAt(composed.Command, "a-b;quit")};
    EXPECT_EQ(FitCommandLine(ShippedEngine("mvdsv"), composed).ScriptHead, "map \"a-b;quit\"\r\n");
}

TEST(CommandMoving, LeavesOutWhatNoScriptCanHold) {
    ComposedCommand composed;
    composed.Command = "MVDSV +map a-\"b +exec lv_666.qs ";
    composed.Given = {GivenAt(composed.Command, "a-\"b")};
    const FittedCommand fitted = FitCommandLine(ShippedEngine("mvdsv"), composed);
    EXPECT_EQ(fitted.ScriptHead, "");
    EXPECT_EQ(fitted.Notes.at(0).Kind, FitKind::LeftOut);
    EXPECT_EQ(fitted.Notes.at(0).Part, "+map a-\"b");
}

TEST(ExecutesScript, IsAnExecOfTheLaunchsOwnScriptAndNothingMore) {
    const Way way("+exec lv_666.qs +EXEC LV_666.QS +exec other.cfg +exec lv_666.qs more -exec lv_666.qs +exec");
    std::vector<bool> executes;
    for (const CommandPart& part : way.At.Parts) {
        executes.push_back(ExecutesScript(way.At, part));
    }
    EXPECT_EQ(executes, (std::vector{true, true, false, false, false, false}));
}

TEST(IsMovable, IsACommandThatTheScriptCouldSay) {
    Way way("start.unr -nolan +map dm3 +exec lv_666.qs +set game ctf");
    std::vector<bool> movable;
    for (const SetCommand set : {SetCommand::Yes, SetCommand::Early}) {
        way.Its.Set = set;
        for (const CommandPart& part : way.At.Parts) {
            movable.push_back(IsMovable(way.At, part));
        }
    }
    EXPECT_EQ(movable, (std::vector{false, false, true, false, true, false, false, true, false, false}));
}

TEST(MoveTorn, MovesWhatFollowsUpToTheScriptAlone) {
    Way way("+a 1 +b -2 +c 3 +exec lv_666.qs +d 4");
    MoveTorn(way.At);
    EXPECT_EQ(way.Left(), (Lines{"+a 1", "+exec lv_666.qs", "+d 4"}));
    EXPECT_EQ(way.At.Fitted.ScriptHead, "b -2\r\nc 3\r\n");
    EXPECT_EQ(way.At.Fitted.ScriptTail, "");
    EXPECT_EQ(NotesOf(way.At.Fitted),
              (Lines{"+b -2: moved to the script, it would take \"-2\" for the end of the command",
                     "+c 3: moved to the script, it follows a command that runs in the script"}));
}

TEST(MoveTorn, LeavesOptionsAndEarlySetsWhereTheyStand) {
    Way way("+b -2 -game ctf +set x 1");
    way.Its.Set = SetCommand::Early;
    MoveTorn(way.At);
    EXPECT_EQ(way.Left(), (Lines{"-game ctf", "+set x 1"}));
}

TEST(MoveTorn, RunsTheScriptFromAutoexecWhereItsOwnNameWouldBeTorn) {
    const Text command = "+exec -my.qs +d 4";
    Way way(command, {GivenAt(command, "-my.qs")});
    way.Composed.Script = "-my.qs";
    MoveTorn(way.At);
    EXPECT_EQ(way.Left(), Lines{"+d 4"});
    EXPECT_EQ(way.At.Fitted.AutoexecTail, "exec -my.qs\r\n");
}

TEST(FitShareware, LeavesTheOptionsAndSaysTheCommandsInScripts) {
    Way way("-nolan +a 1 +exec lv_666.qs +b 2 -game ctf +exec dir\\x.cfg");
    FitShareware(way.At);
    EXPECT_EQ(way.Left(), Lines{"-nolan"});
    EXPECT_EQ(way.At.Fitted.ScriptHead, "a 1\r\n");
    EXPECT_EQ(way.At.Fitted.ScriptTail, "b 2\r\n");
    EXPECT_EQ(way.At.Fitted.AutoexecTail, "exec lv_666.qs\r\n");
    EXPECT_EQ(way.At.Fitted.Notes.back().Why, "with shareware data it opens no file in a directory below");
}

TEST(MoveAllCommands, PutsThemAheadOfThoseThatHaveMovedBefore) {
    Way way("+a 1 +exec lv_666.qs +d 4");
    way.At.Fitted.ScriptHead = "b\r\n";
    way.At.Fitted.ScriptTail = "e\r\n";
    MoveAllCommands(way.At, "why");
    EXPECT_EQ(way.Left(), Lines{"+exec lv_666.qs"});
    EXPECT_EQ(way.At.Fitted.ScriptHead, "a 1\r\nb\r\n");
    EXPECT_EQ(way.At.Fitted.ScriptTail, "d 4\r\ne\r\n");
}

TEST(MoveAllCommands, HasTheScriptExecutedThen) {
    Way way("-nolan +map dm3");
    MoveAllCommands(way.At, "why");
    EXPECT_EQ(way.Left(), (Lines{"-nolan", "+exec lv_666.qs"}));
}

TEST(ExecuteScript, DoesNothingForAScriptWithoutNewLines) {
    Way way("-nolan");
    ExecuteScript(way.At);
    EXPECT_EQ(way.Left(), Lines{"-nolan"});
}

TEST(ExecuteScript, DoesNothingWhereTheScriptIsRunAlready) {
    Way way("+exec lv_666.qs");
    way.At.Fitted.ScriptHead = "a\r\n";
    ExecuteScript(way.At);
    EXPECT_EQ(way.Left(), Lines{"+exec lv_666.qs"});
    Way byAutoexec("-nolan");
    byAutoexec.At.Fitted.ScriptHead = "a\r\n";
    byAutoexec.At.Fitted.AutoexecTail = "exec lv_666.qs\r\n";
    ExecuteScript(byAutoexec.At);
    EXPECT_EQ(byAutoexec.Left(), Lines{"-nolan"});
}

TEST(ExecuteScript, GoesByAutoexecWithSharewareAndWithATornName) {
    Way shareware("-nolan");
    shareware.Its.SharewareNeedsAutoexec = true;
    shareware.Composed.IsShareware = true;
    Way torn("-nolan");
    torn.Its.Ends = CommandEnd::AnySign;
    torn.Composed.Script = "a-b.qs";
    for (Way* const way : {&shareware, &torn}) {
        way->At.Fitted.ScriptTail = "a\r\n";
        ExecuteScript(way->At);
        EXPECT_EQ(way->Left(), Lines{"-nolan"});
        EXPECT_EQ(way->At.Fitted.AutoexecTail, Join("exec ", way->Composed.Script, "\r\n"));
    }
}

}  // namespace
}  // namespace lv
