#include "launch/switch_rules.h"

#include <gtest/gtest.h>

#include "tests/support/launch_input.h"

namespace lv {
namespace {

Text CommandWithMod(LaunchInput input, TextView mod) {
    input.Selected.Ticked.Set(Option::Game_Chk);
    input.Selected.Game = mod;
    return input.Compose().GameCommand;
}

TEST(ModRule, AQuakeModOfId1AddsNothing) {
    EXPECT_EQ(CommandWithMod(QuakeLaunch(), "-game id1"), "GLQUAKE.EXE -zone 512 ");
    EXPECT_EQ(CommandWithMod(QuakeLaunch(), "-game ID1"), "GLQUAKE.EXE -zone 512 ");
}

TEST(ModRule, AHexen2ModOfData1AddsNothing) {
    EXPECT_EQ(CommandWithMod(Hexen2Launch(), "-game data1"), "GLH2.EXE -zone 512 ");
}

TEST(ModRule, AQuake2ModOfBaseq2AddsNothing) {
    EXPECT_EQ(CommandWithMod(Quake2Launch(), "-game baseq2"), "QUAKE2.EXE -zone 512 ");
}

TEST(ModRule, ASinOrHeretic2ModOfBaseAddsNothing) {
    EXPECT_EQ(CommandWithMod(SinLaunch(), "-game base"), "SIN.EXE -zone 512 ");
    EXPECT_EQ(CommandWithMod(Heretic2Launch(), "-game base"), "HERETIC2.EXE -zone 512 ");
}

TEST(ModRule, AHalfLifeModOfValveAddsNothing) {
    EXPECT_EQ(CommandWithMod(HalfLifeLaunch(), "-game valve"), "HL.EXE -console -zone 512 ");
}

TEST(ModRule, TheBaseDirectoryOfAnotherGameIsAMod) {
    EXPECT_EQ(CommandWithMod(Quake2Launch(), "-game id1"), "QUAKE2.EXE -zone 512 +set game id1 ");
    EXPECT_EQ(CommandWithMod(Quake2Launch(), "-game base"), "QUAKE2.EXE -zone 512 +set game base ");
    EXPECT_EQ(CommandWithMod(HalfLifeLaunch(), "-game base"), "HL.EXE -console -zone 512 +set game base ");
    EXPECT_EQ(CommandWithMod(QuakeLaunch(), "-game data1"), "GLQUAKE.EXE -zone 512 -game data1 ");
    EXPECT_EQ(CommandWithMod(Hexen2Launch(), "-game id1"), "GLH2.EXE -zone 512 -game id1 ");
}

TEST(ModRule, AModIsLowerCaseAndAVariableInTheQuake2Family) {
    EXPECT_EQ(CommandWithMod(QuakeLaunch(), "-game CTF"), "GLQUAKE.EXE -zone 512 -game ctf ");
    EXPECT_EQ(CommandWithMod(Quake2Launch(), "-game CTF"), "QUAKE2.EXE -zone 512 +set game ctf ");
}

TEST(ModRule, ForUnrealAModGoesToTheUnusedCommand) {
    LaunchInput input = UnrealLaunch();
    input.Selected.Ticked.Set(Option::Game_Chk);
    input.Selected.Game = "-game x";
    const LaunchTexts texts = input.Compose();
    EXPECT_EQ(texts.GameCommand, "UNREAL.EXE -game x ");
    EXPECT_EQ(texts.UnrealCommand, "UNREAL.EXE ");
}

Text CommandWithMemory(LaunchInput input, TextView memory) {
    input.Selected.Ticked.Set(Option::Memory_Chk);
    input.Selected.Memory = memory;
    return input.Compose().GameCommand;
}

TEST(MemoryRule, GlquakeAndWinquakeTakeKilobytes) {
    EXPECT_EQ(CommandWithMemory(QuakeLaunch("GLQUAKE.EXE"), "-winmem 16"), "GLQUAKE.EXE -zone 512 -heapsize 16384 ");
    EXPECT_EQ(CommandWithMemory(QuakeLaunch("winquake.exe"), "-winmem 16"), "WINQUAKE.EXE -zone 512 -heapsize 16384 ");
}

TEST(MemoryRule, AnExecutableWithAnotherBeginningTakesTheItemUnchanged) {
    EXPECT_EQ(CommandWithMemory(Hexen2Launch("H2.EXE"), "-winmem 16"), "H2.EXE -zone 512 -winmem 16 ");
    EXPECT_EQ(CommandWithMemory(QuakeLaunch("QUAKE.EXE"), "-winmem 8"), "QUAKE.EXE -zone 512 -winmem 8 ");
}

TEST(MemoryRule, TheWrapperHidesTheBeginning) {
    LaunchInput input = QuakeLaunch("QUAKE.EXE");
    input.Selected.Ticked.Set(Option::Server_Chk);
    EXPECT_EQ(CommandWithMemory(input, "-winmem 8"),
              "qlaunch quakeudp.dll QUAKE.EXE -noipx -noserial -mpath -zone 512 -winmem 8 ");
}

TEST(MemoryRule, MemoryHasNoEffectWhileGameSpyIsConfigured) {
    LaunchInput input = QuakeLaunch();
    input.Selected.Ticked.Set(Option::LaunchQspy_Chk);
    EXPECT_EQ(CommandWithMemory(input, "-winmem 16"), "GLQUAKE.EXE -zone 512 ");
}

TEST(MemoryRule, AnyNumberOfMegabytesIsMultiplied) {
    EXPECT_EQ(CommandWithMemory(QuakeLaunch(), "-winmem 4000000"), "GLQUAKE.EXE -zone 512 -heapsize 4096000000 ");
    EXPECT_EQ(CommandWithMemory(QuakeLaunch(), "-winmem"), "GLQUAKE.EXE -zone 512 -heapsize 0 ");
}

LaunchTexts WithScript(LaunchInput input, TextView path) {
    input.Selected.Ticked.Set(Option::Script_Chk);
    input.Selected.Script = path;
    return input.Compose();
}

TEST(ScriptRule, ABlankInTheFileNameQuotesItInBothExecLines) {
    const LaunchTexts texts = WithScript(QuakeLaunch(), "C:\\QUAKE\\ID1\\my own.cfg");
    EXPECT_EQ(texts.QuakeScript, "exec \"my own.cfg\"\r\n");
    EXPECT_EQ(texts.Quake2Script, "exec \"my own.cfg\"\r\n");
}

TEST(ScriptRule, ABlankInTheDirectoryDoesNotMatter) {
    EXPECT_EQ(WithScript(QuakeLaunch(), "C:\\MY QUAKE\\ID1\\my.cfg").QuakeScript, "exec my.cfg\r\n");
}

TEST(ScriptRule, UnrealGetsItAsAnIniAndNoExecLine) {
    const LaunchTexts texts = WithScript(UnrealLaunch(), "C:\\Unreal\\System\\unreal.ini");
    EXPECT_EQ(texts.UnrealCommand, "UNREAL.EXE INI=unreal.ini ");
    EXPECT_EQ(texts.QuakeScript, "");
    EXPECT_EQ(texts.Quake2Script, "");
}

TEST(ScriptRule, UnrealGetsANameWithABlankInQuotes) {
    EXPECT_EQ(WithScript(UnrealLaunch(), "C:\\Unreal\\my own.ini").UnrealCommand, "UNREAL.EXE INI=\"my own.ini\" ");
}

TEST(ScriptRule, HalfLifesScriptGoesToTheRegistryByItsWholePath) {
    LaunchInput input = HalfLifeLaunch();
    Text written;
    input.Hooks.ScriptToRegistry = [&](TextView path) {
        written = path;
        return Error();
    };
    EXPECT_EQ(WithScript(input, "C:\\HL\\VALVE\\my.cfg").Quake2Script, "exec my.cfg\r\n");
    EXPECT_EQ(written, "C:\\HL\\VALVE\\my.cfg");
}

TEST(ScriptRule, NoOtherGamesScriptGoesToTheRegistry) {
    LaunchInput input = Quake2Launch();
    input.Hooks.ScriptToRegistry = [](TextView) { return MakeError(error::kInvalidCall); };
    EXPECT_FALSE(WithScript(input, "C:\\Q2\\BASEQ2\\my.cfg").Stop);
}

TEST(ScriptRule, AFailureOnTheWayToTheRegistryStopsAtItsStep) {
    LaunchInput input = HalfLifeLaunch();
    input.Hooks.ScriptToRegistry = [](TextView) { return MakeError(error::kPermissionDenied); };
    const LaunchTexts texts = WithScript(input, "C:\\HL\\VALVE\\my.cfg");
    EXPECT_EQ(texts.Stop.Kind, StopKind::Error);
    EXPECT_EQ(texts.Stop.Fault.Number, 70);
    EXPECT_EQ(texts.LaunchStep, LaunchStep::PlayerScript);
    EXPECT_EQ(texts.Quake2Script, "");
}

LaunchTexts Dedicated(LaunchInput input) {
    input.Selected.Ticked.Set(Option::Dedicated_Chk);
    return input.Compose();
}

TEST(DedicatedRule, GlquakeIsRefused) {
    const LaunchTexts texts = Dedicated(QuakeLaunch("GLQUAKE.EXE"));
    EXPECT_EQ(texts.Stop.Kind, StopKind::Message);
    EXPECT_EQ(texts.Stop.Message,
              "The '-dedicated' parameter causes a fat GPF when used with glqauke.exe.\r\n\r\n"
              "Besides, there is no reason for a dedicated server to run GL. Please use quake.exe, or winquake.exe.");
    EXPECT_EQ(texts.LaunchStep, LaunchStep::DedicatedServer);
    EXPECT_EQ(texts.GameCommand, "GLQUAKE.EXE -zone 512 ");
}

TEST(DedicatedRule, TheQuakeWorldClientIsRefused) {
    for (const TextView executable : {"qwcl.exe", "glqwcl.exe"}) {
        const LaunchTexts texts = Dedicated(QuakeLaunch(executable));
        EXPECT_EQ(texts.Stop.Kind, StopKind::Message);
        EXPECT_EQ(texts.Stop.Message, "Dedicated QuakeWorld servers are started with qwsv.exe.");
    }
}

TEST(DedicatedRule, HalfLifeIsRefused) {
    const LaunchTexts texts = Dedicated(HalfLifeLaunch());
    EXPECT_EQ(texts.Stop.Kind, StopKind::Message);
    EXPECT_EQ(texts.Stop.Message, "Dedicated Half-Life servers are started with hlds.exe.");
}

TEST(DedicatedRule, QuakeAndHexen2GetTheSwitch) {
    EXPECT_EQ(Dedicated(QuakeLaunch("QUAKE.EXE")).GameCommand, "QUAKE.EXE -zone 512 -dedicated ");
    EXPECT_EQ(Dedicated(Hexen2Launch()).GameCommand, "GLH2.EXE -zone 512 -dedicated ");
}

TEST(DedicatedRule, UnrealGetsServer) {
    const LaunchTexts texts = Dedicated(UnrealLaunch());
    EXPECT_EQ(texts.UnrealCommand, "UNREAL.EXE -server ");
    EXPECT_EQ(texts.GameCommand, "UNREAL.EXE ");
}

TEST(DedicatedRule, TheQuake2FamilyGetsTwoVariables) {
    EXPECT_EQ(Dedicated(Quake2Launch()).GameCommand, "QUAKE2.EXE -zone 512 +set deathmatch 1 +set dedicated 1 ");
    EXPECT_EQ(Dedicated(SinLaunch()).GameCommand, "SIN.EXE -zone 512 +set deathmatch 1 +set dedicated 1 ");
    EXPECT_EQ(Dedicated(Heretic2Launch()).GameCommand, "HERETIC2.EXE -zone 512 +set deathmatch 1 +set dedicated 1 ");
}

TEST(DedicatedRule, NothingIsAddedBehindAStop) {
    LaunchInput input = QuakeLaunch("GLQUAKE.EXE");
    input.Selected.Ticked.Set(Option::Listen_Chk);
    input.Selected.Ticked.Set(Option::Map_Chk);
    input.Selected.Map = "start";
    const LaunchTexts texts = Dedicated(input);
    EXPECT_EQ(texts.GameCommand, "GLQUAKE.EXE -zone 512 ");
    EXPECT_EQ(texts.QuakeScript, "");
}

LaunchTexts ConnectedTo(LaunchInput input, TextView record) {
    input.Selected.Ticked.Set(Option::Server_Chk);
    input.Selected.Server = record;
    return input.Compose();
}

TEST(ServerRule, AServerWithoutAPortHasNoColon) {
    EXPECT_EQ(ConnectedTo(QuakeLaunch(), "frag.example;;0;").QuakeScript, "connect frag.example\r\n");
}

TEST(ServerRule, FieldsAreTrimmed) {
    EXPECT_EQ(ConnectedTo(QuakeLaunch(), " frag.example ; 26000 ;0; pw ").QuakeScript,
              "password pw\r\nconnect frag.example:26000\r\n\r\n");
}

TEST(ServerRule, ARecordCutShortHasNeitherPortNorPassword) {
    EXPECT_EQ(ConnectedTo(QuakeLaunch(), "frag.example").QuakeScript, "connect frag.example\r\n");
    EXPECT_EQ(ConnectedTo(QuakeLaunch(), "frag.example;26000;0").QuakeScript, "connect frag.example:26000\r\n");
}

TEST(ServerRule, APasswordComesFirstAndABlankLineEndsTheConnect) {
    const LaunchTexts texts = ConnectedTo(Quake2Launch(), "frag.example;27910;3;secret");
    EXPECT_EQ(texts.Quake2Script, "password secret\r\nconnect frag.example:27910\r\n\r\n");
    EXPECT_EQ(texts.QuakeScript, "password secret\r\nconnect frag.example:27910\r\n\r\n");
    EXPECT_EQ(texts.GameCommand, "QUAKE2.EXE -zone 512 ");
}

TEST(ServerRule, HalfLifeConnectsByItsCommandLine) {
    const LaunchTexts texts = ConnectedTo(HalfLifeLaunch(), "frag.example;27015;9;");
    EXPECT_EQ(texts.GameCommand, "HL.EXE -console -zone 512 +connect frag.example:27015 ");
    EXPECT_EQ(texts.QuakeScript, "connect frag.example:27015\r\n");
    EXPECT_EQ(texts.Quake2Script, "");
}

TEST(ServerRule, HalfLifesPasswordBreaksTheLineInsideTheCommand) {
    EXPECT_EQ(ConnectedTo(HalfLifeLaunch(), "frag.example;27015;9;secret").GameCommand,
              "HL.EXE -console -zone 512 +password secret\r\nconnect frag.example:27015\r\n ");
}

TEST(ServerRule, UnrealGetsTheServerRightBehindItsExecutable) {
    LaunchInput input = UnrealLaunch();
    input.Selected.Ticked.Set(Option::Map_Chk);
    input.Selected.Map = "DmDeck16";
    input.Selected.Ticked.Set(Option::UnrealDisableMMXSupport_Chk);
    const LaunchTexts texts = ConnectedTo(input, "frag.example;7777;4;secret");
    EXPECT_EQ(texts.UnrealCommand, "UNREAL.EXE frag.example:7777 dmdeck16.unr -nommx ");
    EXPECT_EQ(texts.QuakeScript, "");
    EXPECT_EQ(texts.Quake2Script, "");
}

TEST(ServerRule, UnrealGetsAServerWithoutAPort) {
    EXPECT_EQ(ConnectedTo(UnrealLaunch(), "frag.example;;4;").UnrealCommand, "UNREAL.EXE frag.example ");
}

TEST(ServerRule, AnExecutableOfAnotherEndingIsCutBehindItsName) {
    LaunchInput input = UnrealLaunch();
    input.Selected.ExecutablePath = "C:\\Unreal\\System\\unreal-bin";
    input.Selected.Ticked.Set(Option::Script_Chk);
    input.Selected.Script = "C:\\Unreal\\System\\my.EXE.ini";
    EXPECT_EQ(ConnectedTo(input, "frag.example;7777;4;").UnrealCommand, "UNREAL-BIN frag.example:7777 INI=my.EXE.ini ");
}

TEST(ServerRule, TheListsServerStandsBeforeGameSpys) {
    LaunchInput input = QuakeLaunch();
    input.Selected.Ticked.Set(Option::QSpy_Chk);
    input.Hooks.GameSpyFetch = [] { return std::optional<Text>("10.0.0.2:27500"); };
    EXPECT_EQ(ConnectedTo(input, "10.0.0.1;26000;0;").QuakeScript,
              "connect 10.0.0.1:26000\r\nconnect 10.0.0.2:27500\r\n");
}

TEST(ServerRule, TheDemoLineStandsBeforeTheServer) {
    LaunchInput input = QuakeLaunch();
    input.Selected.Ticked.Set(Option::Demo_Chk);
    input.Selected.Demo = "playdemo demo1.dem";
    EXPECT_EQ(ConnectedTo(input, "10.0.0.1;26000;0;").QuakeScript, "playdemo demo1.dem\r\nconnect 10.0.0.1:26000\r\n");
}

TEST(ServerRule, TheBenchmarkCancelsBothServersButNotTheDemo) {
    LaunchInput input = QuakeLaunch();
    input.Selected.Ticked.Set(Option::Bench_Chk);
    input.Selected.Ticked.Set(Option::QSpy_Chk);
    input.Selected.Ticked.Set(Option::Demo_Chk);
    input.Selected.Demo = "playdemo demo1.dem";
    bool fetched = false;
    input.Hooks.GameSpyFetch = [&] {
        fetched = true;
        return std::optional<Text>("10.0.0.2:27500");
    };
    EXPECT_EQ(ConnectedTo(input, "10.0.0.1;26000;0;").QuakeScript, "playdemo demo1.dem\r\n");
    EXPECT_FALSE(fetched);
}

LaunchTexts Fetched(LaunchInput input, std::optional<Text> answer) {
    input.Selected.Ticked.Set(Option::QSpy_Chk);
    input.Hooks.GameSpyFetch = [=] { return answer; };
    return input.Compose();
}

TEST(GameSpyServerRule, NoAnswerStopsWithoutAWord) {
    for (const auto& answer : {std::optional<Text>(), std::optional<Text>("")}) {
        const LaunchTexts texts = Fetched(QuakeLaunch(), answer);
        EXPECT_EQ(texts.Stop.Kind, StopKind::Silent);
        EXPECT_EQ(texts.Stop.Message, "");
        EXPECT_EQ(texts.LaunchStep, LaunchStep::GameSpyServer);
        EXPECT_EQ(texts.GameCommand, "GLQUAKE.EXE -zone 512 ");
    }
}

TEST(GameSpyServerRule, HalfLifeConnectsByItsCommandLine) {
    const LaunchTexts texts = Fetched(HalfLifeLaunch(), "10.0.0.2:27015");
    EXPECT_EQ(texts.GameCommand, "HL.EXE -console -zone 512 +connect 10.0.0.2:27015 ");
    EXPECT_EQ(texts.Quake2Script, "");
}

TEST(GameSpyServerRule, UnrealGetsTheServerRightBehindItsExecutable) {
    EXPECT_EQ(Fetched(UnrealLaunch(), "10.0.0.2:7777").UnrealCommand, "UNREAL.EXE 10.0.0.2:7777 ");
}

TEST(GameSpyServerRule, WithoutAHookThereIsNoServer) {
    LaunchInput input = QuakeLaunch();
    input.Selected.Ticked.Set(Option::QSpy_Chk);
    const LaunchTexts texts = input.Compose();
    EXPECT_FALSE(texts.Stop);
    EXPECT_EQ(texts.QuakeScript, "");
}

TEST(UnrealIniRule, RunsOnceForUnrealOnly) {
    int runs = 0;
    for (LaunchInput input : {UnrealLaunch(), QuakeLaunch(), Quake2Launch(), HalfLifeLaunch()}) {
        input.Hooks.RewriteUnrealIni = [&] {
            ++runs;
            return Error();
        };
        EXPECT_FALSE(input.Compose().Stop);
    }
    EXPECT_EQ(runs, 1);
}

TEST(UnrealIniRule, AFailureStopsAtItsStepBehindTheSwitches) {
    LaunchInput input = UnrealLaunch();
    input.Selected.Ticked.Set(Option::UnrealNoDirectSound_Chk);
    input.Selected.Ticked.Set(Option::Listen_Chk);
    input.Hooks.RewriteUnrealIni = [] { return MakeError(error::kFileNotFound); };
    const LaunchTexts texts = input.Compose();
    EXPECT_EQ(texts.Stop.Kind, StopKind::Error);
    EXPECT_EQ(texts.Stop.Fault.Number, 53);
    EXPECT_EQ(texts.Stop.Fault.Text, "File not found");
    EXPECT_EQ(texts.LaunchStep, LaunchStep::Switches);
    EXPECT_EQ(texts.UnrealCommand, "UNREAL.EXE -nodsound ");
    EXPECT_EQ(texts.GameCommand, "UNREAL.EXE ");
}

}  // namespace
}  // namespace lv
