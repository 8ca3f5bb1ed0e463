#include "launch/launch_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/launch_input.h"

namespace lv {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr LineReader kReaders[] = {LineReader::kNobody, LineReader::kDosShell, LineReader::kCommandProcessor,
                                   LineReader::kBatch};

/// "directory", "executable" and so on, with what stands for it and where.
std::vector<Text> Shown(const LaunchInput& input) {
    static constexpr const char* kKinds[] = {"executable", "directory", "mod",    "map",
                                             "script",     "demo",      "server", "password"};
    std::vector<Text> shown;
    for (const LaunchName& name : NamesOf(input.Selected, input.Game)) {
        shown.push_back(Join(kKinds[static_cast<int>(name.Kind)], "=", name.Value, "|", name.Written,
                             name.InCommand ? "|command" : "", name.InScript ? "|script" : ""));
    }
    return shown;
}

std::optional<Text> Misread(const LaunchInput& input, LineReader reader) {
    return MisreadName(NamesOf(input.Selected, input.Game), reader);
}

void TickAll(LaunchInput& input) {
    input.Selected.Ticked.Set(Option::Game_Chk);
    input.Selected.Ticked.Set(Option::Map_Chk);
    input.Selected.Ticked.Set(Option::Script_Chk);
    input.Selected.Ticked.Set(Option::Demo_Chk);
    input.Selected.Ticked.Set(Option::Server_Chk);
    input.Selected.Game = "-game CTF";
    input.Selected.Map = "START";
    input.Selected.Script = "C:\\QUAKE\\ID1\\my own.cfg";
    input.Selected.Demo = "playdemo demo1.dem";
    input.Selected.Server = "10.0.0.1;27500;0;secret";
}

TEST(NamesOf, ListsWhatIsPickedForQuake) {
    LaunchInput input = QuakeLaunch();
    TickAll(input);
    EXPECT_THAT(Shown(input),
                ElementsAre("directory=C:\\QUAKE|C:\\QUAKE", "executable=GLQUAKE.EXE|GLQUAKE.EXE|command",
                            "mod=ctf|ctf|command", "map=start|start|script", "script=my own.cfg|\"my own.cfg\"|script",
                            "password=secret|secret", "server=10.0.0.1:27500|10.0.0.1:27500|script",
                            "demo=demo1.dem|demo1.dem|script"));
}

TEST(NamesOf, ListsWhatIsPickedForHalfLifeWithTheServerInItsCommand) {
    LaunchInput input = HalfLifeLaunch();
    TickAll(input);
    input.Selected.Server = "10.0.0.1;27015;9;\"my secret\"";
    EXPECT_THAT(Shown(input),
                ElementsAre("directory=C:\\SIERRA\\HALF-LIFE|C:\\SIERRA\\HALF-LIFE", "executable=HL.EXE|HL.EXE|command",
                            "mod=ctf|ctf|command", "map=start|start|script", "script=my own.cfg|\"my own.cfg\"|script",
                            "password=my secret|\"my secret\"|command",
                            "server=10.0.0.1:27015|10.0.0.1:27015|command|script", "demo=demo1.dem|demo1.dem|script"));
}

TEST(NamesOf, ListsWhatIsPickedForUnrealInTheOrderOfItsCommand) {
    LaunchInput input = UnrealLaunch();
    TickAll(input);
    input.Selected.Server = "10.0.0.1;;4;";
    input.Selected.Script = "C:\\Unreal\\System\\my own.ini";
    EXPECT_THAT(
        Shown(input),
        ElementsAre("directory=C:\\Unreal\\System|C:\\Unreal\\System", "executable=UNREAL.EXE|UNREAL.EXE|command",
                    "server=10.0.0.1|10.0.0.1|command", "mod=ctf|ctf", "map=start.unr|start.unr|command",
                    "script=my own.ini|\"my own.ini\"|command", "demo=demo1.dem|demo1.dem"));
}

TEST(NamesOf, LeavesOutWhatIsNotTicked) {
    LaunchInput input = QuakeLaunch();
    TickAll(input);
    input.Selected.Ticked.Set(Option::Game_Chk, false);
    input.Selected.Ticked.Set(Option::Map_Chk, false);
    input.Selected.Ticked.Set(Option::Script_Chk, false);
    input.Selected.Ticked.Set(Option::Demo_Chk, false);
    input.Selected.Ticked.Set(Option::Server_Chk, false);
    EXPECT_THAT(Shown(input),
                ElementsAre("directory=C:\\QUAKE|C:\\QUAKE", "executable=GLQUAKE.EXE|GLQUAKE.EXE|command"));
}

TEST(NamesOf, LeavesOutAnOptionThatTheUserHasTyped) {
    LaunchInput input = QuakeLaunch();
    input.Selected.Ticked.Set(Option::Game_Chk);
    input.Selected.Game = "-hipnotic -game x & y";
    EXPECT_THAT(Shown(input),
                ElementsAre("directory=C:\\QUAKE|C:\\QUAKE", "executable=GLQUAKE.EXE|GLQUAKE.EXE|command"));
}

TEST(MisreadName, FindsNothingInWhatALaunchUsuallyHolds) {
    for (LaunchInput input : {QuakeLaunch(), Hexen2Launch(), Quake2Launch(), UnrealLaunch(), SinLaunch(),
                              Heretic2Launch(), HalfLifeLaunch()}) {
        TickAll(input);
        for (const LineReader reader : {LineReader::kNobody, LineReader::kCommandProcessor, LineReader::kBatch}) {
            EXPECT_EQ(Misread(input, reader), std::nullopt) << input.Selected.ExecutablePath;
        }
    }
}

TEST(MisreadName, SaysWhatIsMisreadWhereItComesFromAndWhatHelps) {
    LaunchInput input = QuakeLaunch();
    TickAll(input);
    input.Selected.Game = "-game m&echo mod>modpwn.txt&";
    EXPECT_EQ(Misread(input, LineReader::kCommandProcessor),
              "Nothing was written, and nothing was started.\r\n\r\n"
              "The modification \"m&echo mod>modpwn.txt&\" comes from the directories of the game.\r\n"
              "The command processor would not read it as one word of text.\r\n\r\n"
              "Rename its directory, or pick another modification.");
}

TEST(MisreadName, NamesTheSourceOfEachKind) {
    struct Row {
        void (*Spoil)(LaunchInput&);
        const char* Says;
    };
    static constexpr Row kRows[] = {
        {[](LaunchInput& i) { i.Selected.ExecutablePath = "C:\\QUAKE\\A&B.EXE"; },
         "The executable \"A&B.EXE\" comes from the list of executables."},
        {[](LaunchInput& i) { i.Selected.ExecutablePath = "C:\\QUAKE\\MY GAME.EXE"; },
         "The executable \"MY GAME.EXE\" comes from the list of executables."},
        {[](LaunchInput& i) { i.Game.DefaultGameDirectory = "C:\\A&CALC"; },
         "The game directory \"C:\\A&CALC\" comes from the path of the executable."},
        {[](LaunchInput& i) { i.Selected.Game = "-game x +connect evil.example"; },
         "The modification \"x +connect evil.example\" comes from the directories of the game."},
        {[](LaunchInput& i) { i.Selected.Map = "X&ECHO PWNED>PWNED1.TXT&"; },
         "The map \"x&echo pwned>pwned1.txt&\" comes from the maps and archives of the game."},
        {[](LaunchInput& i) { i.Selected.Script = "C:\\QUAKE\\ID1\\my&evil&.cfg"; },
         "The player script \"my&evil&.cfg\" comes from the list of player scripts."},
        {[](LaunchInput& i) { i.Selected.Demo = "playdemo d|calc"; },
         "The demo \"d|calc\" comes from the list of demos."},
        {[](LaunchInput& i) { i.Selected.Server = "10.0&echo srv>srvpwn.txt&.0.1;27500;0;"; },
         "The server \"10.0&echo srv>srvpwn.txt&.0.1:27500\" comes from the list of servers."},
        {[](LaunchInput& i) { i.Selected.Server = "10.0.0.1;27500;0;%COMSPEC%"; },
         "The password \"%COMSPEC%\" comes from the list of servers."},
    };
    for (const Row& row : kRows) {
        LaunchInput input = QuakeLaunch();
        TickAll(input);
        row.Spoil(input);
        for (const LineReader reader : {LineReader::kCommandProcessor, LineReader::kBatch}) {
            EXPECT_THAT(Misread(input, reader).value_or("nothing"), HasSubstr(row.Says));
        }
        EXPECT_EQ(Misread(input, LineReader::kNobody), std::nullopt) << row.Says;
    }
}

TEST(MisreadName, LeavesADirectoryInQuotesAlone) {
    LaunchInput input = QuakeLaunch();
    input.Game.DefaultGameDirectory = "C:\\My & (own) games 100%";
    EXPECT_EQ(Misread(input, LineReader::kCommandProcessor), std::nullopt);
}

TEST(MisreadName, DosLooksAtTheCommandAlone) {
    LaunchInput input = QuakeLaunch();
    TickAll(input);
    input.Selected.Map = "X&Y";
    input.Selected.Server = "10.0&x;27500;0;a b";
    EXPECT_EQ(Misread(input, LineReader::kDosShell), std::nullopt);
    input.Selected.Game = "-game d>quake.exe";
    EXPECT_THAT(Misread(input, LineReader::kDosShell).value_or("nothing"),
                HasSubstr("The modification \"d>quake.exe\" comes from the directories of the game.\r\n"
                          "DOS's shell would not read it as one word of text."));
}

TEST(MisreadName, NoReaderTakesALineEnd) {
    for (const LineReader reader : kReaders) {
        LaunchInput input = Quake2Launch();
        TickAll(input);
        input.Selected.Demo = "demomap x\nquit";
        EXPECT_THAT(Misread(input, reader).value_or("nothing"),
                    HasSubstr("The demo \"x?quit\" comes from the list of demos.\r\nA command line would"));
    }
}

TEST(MisreadName, NoScriptTakesWhatPartsTheConsolesCommands) {
    for (const LineReader reader : {LineReader::kNobody, LineReader::kDosShell}) {
        for (const char* const map : {"X;QUIT", "X\"Y"}) {
            LaunchInput input = QuakeLaunch();
            TickAll(input);
            input.Selected.Map = map;
            EXPECT_THAT(Misread(input, reader).value_or("nothing"),
                        HasSubstr("\" comes from the maps and archives of the game.\r\nThe game's console would not"));
        }
    }
}

TEST(MisreadName, UnrealsIniIsReadBehindItsOption) {
    LaunchInput input = UnrealLaunch();
    TickAll(input);
    input.Selected.Script = "C:\\Unreal\\System\\my own.ini";
    EXPECT_EQ(Misread(input, LineReader::kCommandProcessor), std::nullopt);
    EXPECT_EQ(Misread(input, LineReader::kBatch), std::nullopt);
    input.Selected.Script = "C:\\Unreal\\System\\my&evil&.ini";
    EXPECT_THAT(Misread(input, LineReader::kCommandProcessor).value_or("nothing"),
                HasSubstr("The player script \"my&evil&.ini\" comes"));
}

TEST(MisreadName, NoReaderTakesALineEndInTheFirstWordOfADemo) {
    for (const LineReader reader : kReaders) {
        for (const char* const demo :
             {"demomap\nquit x", "demomap\x01 x", "demomap;quit x", "demomap\"quit x", "quit\ny"}) {
            LaunchInput input = Quake2Launch();
            input.Selected.Ticked.Set(Option::Demo_Chk);
            input.Selected.Demo = demo;
            EXPECT_THAT(Misread(input, reader).value_or("nothing"), HasSubstr(" comes from the list of demos.\r\n"))
                << demo;
        }
    }
    LaunchInput input = Quake2Launch();
    input.Selected.Ticked.Set(Option::Demo_Chk);
    input.Selected.Demo = "demomap\nquit x";
    EXPECT_THAT(Misread(input, LineReader::kNobody).value_or("nothing"),
                HasSubstr("The demo \"demomap?quit x\" comes from the list of demos.\r\nA command line would"));
}

TEST(MisreadName, DosTakesNoDirectoryThatCannotBeQuoted) {
    LaunchInput input = QuakeLaunch();
    input.Game.DefaultGameDirectory = "C:\\MY\"GAMES\\QUAKE";
    EXPECT_THAT(Misread(input, LineReader::kDosShell).value_or("nothing"),
                HasSubstr("The game directory \"C:\\MY\"GAMES\\QUAKE\" comes from the path of the executable.\r\n"
                          "DOS's shell would not read it as one word of text.\r\n\r\n"
                          "Rename the directory, and enter the executable anew."));
    EXPECT_EQ(Misread(input, LineReader::kNobody), std::nullopt);
    input.Game.DefaultGameDirectory = "C:\\MY GAMES & MORE; 100%";
    EXPECT_EQ(Misread(input, LineReader::kDosShell), std::nullopt);
}

TEST(CommandQuestion, NamesTheFirstNameThatAGamesConsoleMightCarryOut) {
    LaunchInput input = QuakeLaunch();
    TickAll(input);
    EXPECT_EQ(CommandQuestion(NamesOf(input.Selected, input.Game)), std::nullopt);
    input.Selected.Game = "-game M+QUIT";
    EXPECT_EQ(CommandQuestion(NamesOf(input.Selected, input.Game)),
              "The modification \"m+quit\" comes from the directories of the game.\r\n"
              "Many games carry out what stands behind a \"+\" as a command of their own.\r\n\r\n"
              "Start it only if that may happen.");
}

TEST(CommandQuestion, LooksAtWhatTheConsoleFindsInTheCommandAlone) {
    LaunchInput quake = QuakeLaunch();
    TickAll(quake);
    quake.Selected.Map = "a+b";
    quake.Selected.Server = "a+b;27500;0;c+d";
    quake.Selected.Script = "C:\\QUAKE\\ID1\\a+b.cfg";
    EXPECT_EQ(CommandQuestion(NamesOf(quake.Selected, quake.Game)), std::nullopt);
    LaunchInput halfLife = HalfLifeLaunch();
    TickAll(halfLife);
    halfLife.Selected.Server = "10.0.0.1 +exec evil;27015;9;";
    EXPECT_THAT(CommandQuestion(NamesOf(halfLife.Selected, halfLife.Game)).value_or("nothing"),
                StartsWith("The server \"10.0.0.1 +exec evil:27015\" comes from the list of servers."));
    halfLife.Selected.Server = "10.0.0.1;27015;9;a+b";
    EXPECT_THAT(CommandQuestion(NamesOf(halfLife.Selected, halfLife.Game)).value_or("nothing"),
                StartsWith("The password \"a+b\" comes from the list of servers."));
    LaunchInput unreal = UnrealLaunch();
    TickAll(unreal);
    unreal.Selected.Map = "a+b";
    unreal.Selected.Game = "-game a+b";
    EXPECT_EQ(CommandQuestion(NamesOf(unreal.Selected, unreal.Game)), std::nullopt);
}

TEST(CommandQuestion, NamesWhatAGameMightTakeForAnOption) {
    LaunchInput quake = QuakeLaunch();
    TickAll(quake);
    quake.Selected.Game = "-game -CONDEBUG";
    EXPECT_EQ(CommandQuestion(NamesOf(quake.Selected, quake.Game)),
              "The modification \"-condebug\" comes from the directories of the game.\r\n"
              "Many games take what begins with a \"-\" for an option of their own.\r\n\r\n"
              "Start it only if that may happen.");
    LaunchInput unreal = UnrealLaunch();
    TickAll(unreal);
    unreal.Selected.Map = "-exec=foo";
    EXPECT_THAT(CommandQuestion(NamesOf(unreal.Selected, unreal.Game)).value_or("nothing"),
                StartsWith("The map \"-exec=foo.unr\" comes from"));
    LaunchInput halfLife = HalfLifeLaunch();
    TickAll(halfLife);
    halfLife.Selected.Server = "-dedicated;27015;9;";
    EXPECT_THAT(CommandQuestion(NamesOf(halfLife.Selected, halfLife.Game)).value_or("nothing"),
                StartsWith("The server \"-dedicated:27015\" comes from"));
}

TEST(MisreadName, CutsALongName) {
    LaunchInput input = QuakeLaunch();
    input.Selected.Ticked.Set(Option::Map_Chk);
    input.Selected.Map = Text(5000, 'x') + "&";
    const Text said = Misread(input, LineReader::kCommandProcessor).value_or("");
    EXPECT_THAT(said, HasSubstr("The map \"" + Text(200, 'x') + "...\" comes"));
    EXPECT_LT(said.size(), 500u);
}

TEST(ConnectPrograms, AreLookedForWhereACommandProcessorReadsAPasswordOfHalfLife) {
    LaunchInput input = HalfLifeLaunch();
    TickAll(input);
    const auto names = NamesOf(input.Selected, input.Game);
    EXPECT_THAT(ConnectPrograms(names, LineReader::kCommandProcessor),
                ElementsAre("connect.com", "connect.exe", "connect.bat", "connect.cmd", "connect.vbs", "connect.vbe",
                            "connect.js", "connect.jse", "connect.wsf", "connect.wsh", "connect.msc"));
    EXPECT_THAT(ConnectPrograms(names, LineReader::kNobody), IsEmpty());
    input.Selected.Server = "10.0.0.1;27015;9;";
    EXPECT_THAT(ConnectPrograms(NamesOf(input.Selected, input.Game), LineReader::kCommandProcessor), IsEmpty());
    LaunchInput quake = QuakeLaunch();
    TickAll(quake);
    EXPECT_THAT(ConnectPrograms(NamesOf(quake.Selected, quake.Game), LineReader::kCommandProcessor), IsEmpty());
}

TEST(ConnectProgramText, NamesTheFile) {
    EXPECT_THAT(
        ConnectProgramText("C:\\HL\\connect.bat"),
        StartsWith("Nothing was written, and nothing was started.\r\n\r\nThe file \"C:\\HL\\connect.bat\" lies"));
}

}  // namespace
}  // namespace lv
