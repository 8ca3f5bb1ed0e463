#include "launcher/window/game_end.h"

#include "launcher/menu/menu_table.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/window_life.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

constexpr const char* kTitle = "The Game Has Ended";
constexpr const char* kOutputTitle = "Output of the Last Game";

class GameEnds : public LauncherTest {
  protected:
    void Launch() {
        AddGames();
        Load();
        PickExe("C:\\QUAKE\\GLQUAKE.EXE");
        DoIt_Cmd_Click(launcher, 0);
        system.Programs.Watching = !system.Programs.Started.empty();
        ASSERT_FALSE(window.Visible);
    }
    void End(const GameEnd& end) { system.Programs.End = end; }

    /// One look of the program's clock.
    void Look() {
        if (GameEndIsDue(launcher)) {
            TellGameEnd(launcher);
        }
    }
    void ExpectTold(TextView text, int answer = 0) { user.Expect({kTitle, Text(text), answer}); }
};

struct EndRow {
    GameEnd End;
    bool IsTold;
    const char* Words;
};

// clang-format off
const EndRow kEnds[] = {
    {{.Code = 1, .Seconds = 2.9}, true, "ended after 2 seconds with code 1"},
    {{.Code = 1, .Seconds = 0.2}, true, "ended at once with code 1"},
    {{.Code = 255, .Seconds = 1}, true, "ended after 1 second with code 255"},
    {{.Code = 1, .Seconds = 4.999}, true, "ended after 4 seconds with code 1"},
    {{.Code = 1, .Seconds = 5}, false, "ended after 5 seconds with code 1"},
    {{.Code = 1, .Seconds = 1, .OthersRun = true}, true, "ended after 1 second with code 1"},
    {{.Code = 0, .Seconds = 0.2}, true, "ended at once, and in order"},
    {{.Code = 0, .Seconds = 4.999}, true, "ended after 4 seconds, and in order"},
    {{.Code = 0, .Seconds = 5}, false, "ended after 5 seconds, and in order"},
    {{.Code = 0, .Seconds = 0.2, .OthersRun = true}, false, "ended at once, and in order"},
    {{.Code = 0, .Seconds = 1, .OthersRun = true, .LastLines = "Error: no sound\r\n"}, true, "ended after 1 second with code 0"},
    {{.Code = 0, .Seconds = 3, .LastLines = "Quake Error: no pak0.pak\r\n"}, true, "ended after 3 seconds with code 0"},
    {{.Code = 0, .Seconds = 3, .LastLines = "a\r\n  ERROR: no sound\r\nbye\r\n"}, true, "ended after 3 seconds with code 0"},
    {{.Code = 0, .Seconds = 3, .LastLines = "sound: error: none\r\nNo errors.\r\n"}, true, "ended after 3 seconds, and in order"},
    {{.Code = 0, .Seconds = 60, .LastLines = "Error: too late\r\n"}, false, "ended after 1 minute with code 0"},
    {{.Signal = 4, .Seconds = 60}, true, "was ended after 1 minute by signal 4, a crash (illegal instruction)"},
    {{.Signal = 5, .Seconds = 60}, true, "was ended after 1 minute by signal 5, a crash (trap)"},
    {{.Signal = 6, .Seconds = 60}, true, "was ended after 1 minute by signal 6, as the game gave itself up (abort)"},
    {{.Signal = 7, .Seconds = 60}, true, "was ended after 1 minute by signal 7, a crash (bus error)"},
    {{.Signal = 8, .Seconds = 60}, true, "was ended after 1 minute by signal 8, a crash (arithmetic error)"},
    {{.Signal = 9, .Seconds = 7300}, true, "was ended after 2 hours by signal 9, as it was killed, by somebody or for want of memory"},
    {{.Signal = 11, .Seconds = 0}, true, "was ended at once by signal 11, a crash"},
    {{.Signal = 31, .Seconds = 150}, true, "was ended after 2 minutes by signal 31"},
    {{.Signal = 1, .Seconds = 1}, false, "was ended after 1 second by signal 1"},
    {{.Signal = 2, .Seconds = 1}, false, "was ended after 1 second by signal 2"},
    {{.Signal = 15, .Seconds = 1}, false, "was ended after 1 second by signal 15"},
    {{.Code = 139, .Seconds = 60}, true, "was ended after 1 minute by signal 11, a crash"},
    {{.Code = 134, .Seconds = 60}, true, "was ended after 1 minute by signal 6, as the game gave itself up (abort)"},
    {{.Code = 143, .Seconds = 60}, false, "ended after 1 minute with code 143"},
    {{.Code = 137, .Seconds = 60}, false, "ended after 1 minute with code 137"},
};
// clang-format on

}  // namespace

TEST(IsToldOf, IsAQuickEndAndASignalAtAnyTime) {
    for (const EndRow& row : kEnds) {
        EXPECT_EQ(IsToldOf(row.End), row.IsTold) << row.Words;
        EXPECT_EQ(EndInWords(row.End), row.Words);
    }
}

TEST(LastLinesOf, AreTheLastOnesThatSaySomething) {
    EXPECT_EQ(LastLinesOf("one\r\ntwo\r\n\r\n  \r\nthree", 2), "two\r\nthree");
    EXPECT_EQ(LastLinesOf("one", 2), "one");
    EXPECT_EQ(LastLinesOf("\r\n\r\n", 2), "");
}

TEST(GameEndText, SaysWhatHappenedWhatWasPrintedAndWhatToDo) {
    EXPECT_EQ(GameEndText("quakespasm", {.Code = 1, .Seconds = 2, .LastLines = "one\r\ntwo\r\n"}),
              "quakespasm ended after 2 seconds with code 1.\r\n\r\nIts last lines:\r\n\r\none\r\ntwo\r\n\r\n"
              "Mostly they name a file that is missing or an option that the game can't use: put that right and launch "
              "again. All of it is under Tools, Output of the Last Game.");
    EXPECT_EQ(GameEndText("quakespasm", {.Signal = 11, .Seconds = 0}),
              "quakespasm was ended at once by signal 11, a crash.\r\n\r\nIt printed nothing.\r\n\r\n"
              "Start it once in a terminal, or look at its options with View.");
}

TEST(GameEndText, SaysItCalmlyOfAnEndInOrder) {
    EXPECT_EQ(
        GameEndText("quakespasm", {.Code = 0, .Seconds = 2, .LastLines = "one\r\ntwo\r\n"}),
        "quakespasm ended after 2 seconds, and in order.\r\n\r\nIts last lines:\r\n\r\none\r\ntwo\r\n\r\n"
        "If you have left it yourself, all is well. If not, its last lines mostly say what it wanted; all that it "
        "printed is under Tools, Output of the Last Game.");
}

TEST(GameEndText, ShowsTwentyLines) {
    Text lines;
    for (int i = 1; i <= 30; ++i) {
        lines += Join("line ", std::to_string(i), ".", NewLine);
    }
    const Text told = GameEndText("quake", {.Code = 1, .LastLines = lines});
    EXPECT_EQ(told.find("line 10."), Text::npos);
    EXPECT_NE(told.find("Its last lines:\r\n\r\nline 11.\r\n"), Text::npos);
    EXPECT_NE(told.find("line 30.\r\n"), Text::npos);
}

TEST(ShownOutput, BreaksLinesOfAThousandCharacters) {
    EXPECT_EQ(ShownOutput("one\r\n\r\ntwo\r\n"), "one\r\n\r\ntwo");
    EXPECT_EQ(ShownOutput(Text(1000, 'x')), Text(1000, 'x'));
    EXPECT_EQ(ShownOutput(Text(2001, 'x') + "\r\ny"), Text(1000, 'x') + "\r\n" + Text(1000, 'x') + "\r\nx\r\ny");
}

TEST(ShownOutput, LeavesOutTheFirstOfVeryManyLinesAndSaysSo) {
    Text output;
    for (int i = 1; i <= 5002; ++i) {
        output += Join("line ", std::to_string(i), ".", NewLine);
    }
    const Text shown = ShownOutput(output);
    EXPECT_TRUE(shown.starts_with("... (2 lines before these; Copy takes all)\r\nline 3.\r\nline 4."))
        << shown.substr(0, 99);
    EXPECT_TRUE(shown.ends_with("\r\nline 5002."));
}

TEST_F(GameEnds, AQuickEndWithACodeBringsTheWindowBackAndIsTold) {
    Launch();
    End({.Code = 1, .Seconds = 2, .LastLines = "Error: no gfx.wad\r\n"});
    user.Expect(
        {kTitle,
         "GLQUAKE.EXE ended after 2 seconds with code 1.\r\n\r\nIts last lines:\r\n\r\nError: no gfx.wad\r\n\r\n", 0,
         false, false, "&Close,C&opy"});
    Look();
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(window.Bar(MenuItem::ShowLorvane_Bar).Caption, "&Hide Lorvane 3D");
    EXPECT_EQ(user.WindowCalls, (std::vector<Text>{"raise"}));
    EXPECT_EQ(system.Clip.Held, "");
    Look();
}

TEST_F(GameEnds, ASignalAfterAnHourIsTold) {
    Launch();
    End({.Signal = 11, .Seconds = 3600});
    ExpectTold("was ended after 1 hour by signal 11, a crash.");
    Look();
    EXPECT_TRUE(window.Visible);
}

TEST_F(GameEnds, AQuickEndInOrderBringsTheWindowBackToo) {
    Launch();
    End({.Code = 0, .Seconds = 1, .LastLines = "bye\r\n"});
    ExpectTold("GLQUAKE.EXE ended after 1 second, and in order.\r\n\r\nIts last lines:\r\n\r\nbye\r\n\r\n");
    Look();
    EXPECT_TRUE(window.Visible);
}

TEST_F(GameEnds, AWrapperThatHandsOverLeavesTheWindowHidden) {
    Launch();
    End({.Code = 0, .Seconds = 0.1, .OthersRun = true});
    Look();
    EXPECT_FALSE(window.Visible);
    EXPECT_FALSE(system.Programs.End);
}

TEST_F(GameEnds, AnOrderlyEndLeavesTheWindowHidden) {
    Launch();
    End({.Code = 0, .Seconds = 60, .LastLines = "bye\r\n"});
    Look();
    EXPECT_FALSE(window.Visible);
    EXPECT_FALSE(system.Programs.End);
    EXPECT_TRUE(user.WindowCalls.empty());
}

TEST_F(GameEnds, ACodeAfterFiveSecondsLeavesTheWindowHidden) {
    Launch();
    End({.Code = 1, .Seconds = 5});
    Look();
    EXPECT_FALSE(window.Visible);
}

TEST_F(GameEnds, CopyTakesTheTextToTheClipboard) {
    Launch();
    End({.Code = 1, .Seconds = 2, .LastLines = "Error: no gfx.wad\r\n"});
    ExpectTold("no gfx.wad", 1);
    Look();
    EXPECT_TRUE(system.Clip.Held.starts_with("GLQUAKE.EXE ended after 2 seconds with code 1.")) << system.Clip.Held;
    EXPECT_NE(system.Clip.Held.find("Error: no gfx.wad"), Text::npos);
}

TEST_F(GameEnds, AreToldWhenTheDialogThatIsUpHasGone) {
    Launch();
    End({.Code = 1, .Seconds = 2});
    {
        const TopmostSuspension dialog(run);
        Look();
        EXPECT_FALSE(window.Visible);
        EXPECT_TRUE(system.Programs.End);
    }
    ExpectTold("with code 1");
    Look();
    EXPECT_TRUE(window.Visible);
}

TEST_F(GameEnds, AreNotLookedForWhileALaunchIsUnderWay) {
    Launch();
    End({.Code = 1, .Seconds = 2});
    launcher.LaunchUnderWay = true;
    Look();
    EXPECT_TRUE(system.Programs.End);
}

TEST_F(GameEnds, AreNotToldByAProgramThatIsOver) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    window.Box(Option::EndOnLaunch_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 0);
    system.Programs.Watching = true;
    End({.Signal = 11, .Seconds = 2});
    ASSERT_TRUE(run.Ended);
    Look();
    EXPECT_TRUE(system.Programs.End);
}

TEST_F(GameEnds, TheTimeThatItRanIsKeptWhetherItsEndIsToldOrNot) {
    constexpr const char* kKept = "c:\\quake\\glquake.exe";
    Launch();
    EXPECT_EQ(Stored("Played", kKept), "1999-11-21 12:30:00;0;1");
    End({.Code = 0, .Seconds = 3600.4});
    Look();
    EXPECT_EQ(Stored("Played", kKept), "1999-11-21 12:30:00;3600;1");
    system.Programs.Watching = true;
    End({.Signal = 11, .Seconds = 60});
    ExpectTold("by signal 11");
    Look();
    EXPECT_EQ(Stored("Played", kKept), "1999-11-21 12:30:00;3660;1");
    system.Programs.Watching = true;
    End({.Code = 0, .Seconds = -5, .OthersRun = true});
    Look();
    EXPECT_FALSE(system.Programs.End);
    EXPECT_EQ(Stored("Played", kKept), "1999-11-21 12:30:00;3660;1");
}

TEST_F(GameEnds, OfAGameThatIsNotThisRunsOwnAreNotKept) {
    AddGames();
    Load();
    system.Programs.Watching = true;
    End({.Code = 0, .Seconds = 3600});
    const std::size_t writes = system.Settings.Log.size();
    Look();
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(GameEnds, WithoutAGameNobodyLooks) {
    AddGames();
    Load();
    Look();
    EXPECT_EQ(system.Programs.LooksForEnd, 0);
}

TEST_F(GameEnds, AreLookedForAtEachLookInTheFirstTenSecondsAndThenEachTwo) {
    Launch();
    const auto lookFor = [this](double seconds) {
        const int before = system.Programs.LooksForEnd;
        for (double at = 0; at < seconds; at += 0.25) {
            system.Time.Elapsed += 0.25;
            Look();
        }
        return system.Programs.LooksForEnd - before;
    };
    EXPECT_EQ(lookFor(9.75), 39);
    EXPECT_EQ(lookFor(20), 10);
}

TEST_F(GameEnds, TheOutputIsShownFromTheMenuAndCopiedWhole) {
    AddGames();
    Load();
    system.Programs.Output = "one\r\n" + Text(1500, 'x') + "\r\n";
    user.Expect({kOutputTitle, "one\r\n" + Text(1000, 'x') + "\r\n" + Text(500, 'x'), 1, false, true, "&Close,C&opy"});
    Menu_Click(launcher, MenuItem::GameOutput_Bar);
    EXPECT_EQ(system.Clip.Held, "one\r\n" + Text(1500, 'x') + "\r\n");
}

TEST_F(GameEnds, WithoutOutputTheMenuSaysSo) {
    AddGames();
    Load();
    user.Expect({kOutputTitle,
                 "There is no output of a game. It is kept from each launch on, where the system allows it.", 0, false,
                 true, "&OK"});
    Menu_Click(launcher, MenuItem::GameOutput_Bar);
    system.Programs.Output = "\r\n";
    user.Expect({kOutputTitle, "The last game has printed nothing.", 0, false, true, "&OK"});
    Menu_Click(launcher, MenuItem::GameOutput_Bar);
}

}  // namespace lv
