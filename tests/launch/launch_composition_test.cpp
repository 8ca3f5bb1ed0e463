#include "launch/launch_composition.h"

#include <gtest/gtest.h>

#include "tests/support/launch_input.h"

namespace lv {
namespace {

/// A script, 16 megabytes, 640 across, Voodoo, gl_polyblend off.
void SetUpExample(LaunchInput& input, TextView scriptPath) {
    input.Selected.Ticked.Set(Option::Script_Chk);
    input.Selected.Script = scriptPath;
    input.Selected.Ticked.Set(Option::Memory_Chk);
    input.Selected.Memory = "-winmem 16";
    input.Profile.UseRez = 1;
    input.Profile.ResolutionsPos = 4;
    input.Profile.ResolutionsPos_Content = Padded("640x480", "-width 640");
    Use(input.Profile, "gl_polyblend", "0");
}

TEST(ComposeLaunch, QuakeWithScriptMemoryAndResolution) {
    LaunchInput input = QuakeLaunch("GLQUAKE.EXE");
    SetUpExample(input, "C:\\QUAKE\\ID1\\my.cfg");
    LaunchTexts texts = input.Compose();
    AddCommandLineAdditions(input.Selected, texts);
    AddScriptExec(texts);
    EXPECT_EQ(texts.GameCommand, "GLQUAKE.EXE -zone 512 -heapsize 16384 -width 640 +exec lv_666.qs ");
    EXPECT_EQ(texts.QuakeScript, "exec my.cfg\r\ngl_polyblend 0\r\n");
}

TEST(ComposeLaunch, Quake2WithTheSameAModAndAServer) {
    LaunchInput input = Quake2Launch();
    SetUpExample(input, "C:\\QUAKE2\\BASEQ2\\my.cfg");
    input.Selected.Ticked.Set(Option::Game_Chk);
    input.Selected.Game = "-game ctf";
    input.Selected.Ticked.Set(Option::Server_Chk);
    input.Selected.Server = "10.0.0.1;27910;3;";
    LaunchTexts texts = input.Compose();
    AddScriptExec(texts);
    EXPECT_EQ(texts.GameCommand, "QUAKE2.EXE -zone 512 +set game ctf +exec lv_666.qs ");
    EXPECT_EQ(texts.Quake2Script,
              "exec my.cfg\r\n"
              "set gl_polyblend 0\r\n"
              "set sw_mode \"3\"\r\n"
              "set gl_mode \"3\"\r\n"
              "connect 10.0.0.1:27910\r\n");
}

TEST(ComposeLaunch, HalfLifeOpensItsConsole) {
    LaunchInput input = HalfLifeLaunch();
    SetUpExample(input, "C:\\HL\\VALVE\\my.cfg");
    const LaunchTexts texts = input.Compose();
    EXPECT_EQ(texts.GameCommand, "HL.EXE -console -zone 512 ");
    EXPECT_EQ(texts.Quake2Script, "exec my.cfg\r\nset gl_polyblend 0\r\nset sw_mode \"3\"\r\nset gl_mode \"3\"\r\n");
}

TEST(ComposeLaunch, UnrealWithMapSwitchesAndIni) {
    LaunchInput input = UnrealLaunch();
    SetUpExample(input, "C:\\Unreal\\System\\my.ini");
    input.Selected.Ticked.Set(Option::Map_Chk);
    input.Selected.Map = "DmDeck16";
    input.Selected.Ticked.Set(Option::UnrealNoDirectSound_Chk);
    input.Selected.Ticked.Set(Option::UnrealSimulateFirstRun_Chk);
    input.Selected.Ticked.Set(Option::UnrealDisableLogWindow_Chk);
    input.Selected.Ticked.Set(Option::UnrealDisableK6Support_Chk);
    input.Selected.Ticked.Set(Option::UnrealDisableMMXSupport_Chk);
    input.Game.VidCard = 0;
    const LaunchTexts texts = input.Compose();
    EXPECT_EQ(texts.UnrealCommand,
              "UNREAL.EXE dmdeck16.unr -nodsound -firstrun -nologwin -nok6 -nommx -nohard INI=my.ini ");
    EXPECT_EQ(texts.QuakeScript, "");
    EXPECT_EQ(texts.Quake2Script, "");
}

TEST(ComposeLaunch, EverythingAtOnceStandsInTheOrderOfTheRows) {
    LaunchInput input = QuakeLaunch("WINQUAKE.EXE");
    SetUpExample(input, "C:\\QUAKE\\ID1\\my.cfg");
    input.Selected.Ticked.Set(Option::Game_Chk);
    input.Selected.Game = "-game ctf";
    input.Selected.Ticked.Set(Option::NOLAN_Chk);
    input.Selected.Ticked.Set(Option::NOUDP_Chk);
    input.Selected.Ticked.Set(Option::NOCDAUDIO_Chk);
    input.Selected.Ticked.Set(Option::Dedicated_Chk);
    input.Selected.Ticked.Set(Option::Listen_Chk);
    input.Selected.Ticked.Set(Option::nosound_chk);
    input.Selected.Ticked.Set(Option::Map_Chk);
    input.Selected.Map = "START";
    input.Profile.Windowed = 1;
    Use(input.Profile, "GL_ROUND_DOWN", "1");
    Use(input.Profile, "WaterAlpha", ".6");
    const LaunchTexts texts = input.Compose();
    EXPECT_EQ(texts.GameCommand,
              "WINQUAKE.EXE -zone 512 -game ctf -heapsize 16384 -width 640 -window -nolan -noudp -nocdaudio "
              "+GL_ROUND_DOWN 1 -dedicated -listen ");
    EXPECT_EQ(texts.QuakeScript,
              "exec my.cfg\r\n_windowed_mouse 1\r\nr_wateralpha .6\r\ngl_polyblend 0\r\nnosound 1\r\nmap start\r\n");
}

TEST(ComposeLaunch, TheCommandOpensWithTheUpperCaseFileName) {
    LaunchInput input = QuakeLaunch();
    input.Selected.ExecutablePath = "C:\\My Games\\glquake.exe ";
    EXPECT_EQ(input.Compose().GameCommand, "GLQUAKE.EXE -zone 512 ");
    EXPECT_EQ(input.Compose().UnrealCommand, "GLQUAKE.EXE ");
}

TEST(ComposeLaunch, ThePrefixIsTheExecutableAndItsBlank) {
    EXPECT_EQ(QuakeLaunch("GLQUAKE.EXE").Compose().PrefixLength, 12u);
}

TEST(ComposeLaunch, ThePrefixHoldsTheWrapper) {
    LaunchInput input = QuakeLaunch("QUAKE.EXE");
    input.Selected.Ticked.Set(Option::Server_Chk);
    const LaunchTexts texts = input.Compose();
    EXPECT_EQ(texts.GameCommand.substr(0, texts.PrefixLength),
              "qlaunch quakeudp.dll QUAKE.EXE -noipx -noserial -mpath ");
}

TEST(ComposeLaunch, EndsAtTheStepOfTheStartMap) {
    EXPECT_EQ(QuakeLaunch().Compose().LaunchStep, LaunchStep::StartMap);
    EXPECT_EQ(UnrealLaunch().Compose().LaunchStep, LaunchStep::StartMap);
}

TEST(AddCommandLineAdditions, StandTrimmedAtTheEndAndRightBehindUnrealsExecutable) {
    LaunchInput input = UnrealLaunch();
    input.Selected.Ticked.Set(Option::UnrealDisableMMXSupport_Chk);
    input.Selected.Ticked.Set(Option::CommandLineAdditions_Chk);
    input.Selected.CommandLineAdditions_Txt = "  -log now ";
    LaunchTexts texts = input.Compose();
    AddCommandLineAdditions(input.Selected, texts);
    EXPECT_EQ(texts.UnrealCommand, "UNREAL.EXE -log now -nommx ");
    EXPECT_EQ(texts.GameCommand, "UNREAL.EXE -log now ");
    EXPECT_EQ(texts.LaunchStep, LaunchStep::LaunchScript);
}

TEST(AddCommandLineAdditions, StandBeforeTheServerOfUnreal) {
    LaunchInput input = UnrealLaunch();
    input.Selected.Ticked.Set(Option::Server_Chk);
    input.Selected.Server = "frag.example;7777;4;";
    input.Selected.Ticked.Set(Option::CommandLineAdditions_Chk);
    input.Selected.CommandLineAdditions_Txt = "-log";
    LaunchTexts texts = input.Compose();
    AddCommandLineAdditions(input.Selected, texts);
    EXPECT_EQ(texts.UnrealCommand, "UNREAL.EXE -log frag.example:7777 ");
}

TEST(AddCommandLineAdditions, StandBehindTheNameOfAnExecutableOfAnotherEnding) {
    LaunchInput input = UnrealLaunch();
    input.Selected.ExecutablePath = "C:\\Unreal\\System\\unreal-bin";
    input.Selected.Ticked.Set(Option::UnrealDisableMMXSupport_Chk);
    input.Selected.Ticked.Set(Option::CommandLineAdditions_Chk);
    input.Selected.CommandLineAdditions_Txt = "-log";
    LaunchTexts texts = input.Compose();
    AddCommandLineAdditions(input.Selected, texts);
    EXPECT_EQ(texts.UnrealCommand, "UNREAL-BIN -log -nommx ");
}

TEST(AddCommandLineAdditions, AreLeftOutWhenNotTicked) {
    LaunchInput input = QuakeLaunch();
    input.Selected.CommandLineAdditions_Txt = "-log";
    LaunchTexts texts = input.Compose();
    AddCommandLineAdditions(input.Selected, texts);
    EXPECT_EQ(texts.GameCommand, "GLQUAKE.EXE -zone 512 ");
    EXPECT_EQ(texts.UnrealCommand, "GLQUAKE.EXE ");
    EXPECT_EQ(texts.LaunchStep, LaunchStep::LaunchScript);
}

TEST(AddScriptExec, StandsAtTheEndOfTheGamesCommandOnly) {
    LaunchTexts texts = QuakeLaunch().Compose();
    AddScriptExec(texts);
    EXPECT_EQ(texts.GameCommand, "GLQUAKE.EXE -zone 512 +exec lv_666.qs ");
    EXPECT_EQ(texts.UnrealCommand, "GLQUAKE.EXE ");
}

TEST(ExeDriveOf, IsTheLetterAndItsColon) {
    EXPECT_EQ(ExeDriveOf(QuakeLaunch().Selected), "C:");
    EXPECT_EQ(ExeDriveOf({}), "");
}

TEST(ComposeLaunch, EverythingAtOnceStandsInTheOrderOfTheRowsForQuake2Too) {
    LaunchInput input = Quake2Launch();
    for (const Option option : {Option::Script_Chk, Option::NOCDAUDIO_Chk, Option::Demo_Chk, Option::nosound_chk,
                                Option::Listen_Chk, Option::Server_Chk, Option::QSpy_Chk, Option::Map_Chk}) {
        input.Selected.Ticked.Set(option);
    }
    input.Selected.Script = "C:\\QUAKE2\\BASEQ2\\my.cfg";
    input.Selected.Demo = "playdemo demo1.dem";
    input.Selected.Server = "10.0.0.1;27910;3;";
    input.Hooks.GameSpyFetch = [] { return std::optional<Text>("10.0.0.2:27910"); };
    input.Selected.Map = "DM1";
    input.Profile.Windowed = 1;
    input.Profile.UseRez = 1;
    input.Profile.Q2_ResolutionsPos = 3;
    input.Profile.UseGraphicsDriver = 1;
    input.Profile.GraphicsDriver = 1;
    for (const TextView stem :
         {"GL_PICMIP", "GL_PLAYERMIP", "GL_FLASHBLEND", "GL_FINISH", "GL_TEXTUREMODE", "gl_polyblend",
          "gl_keeptjunctions", "gl_ztrick", "WaterAlpha", "Mirrors", "Shadows", "GL_ROUND_DOWN"}) {
        Use(input.Profile, stem, "1");
    }
    const LaunchTexts texts = input.Compose();
    EXPECT_EQ(texts.GameCommand, "QUAKE2.EXE -zone 512 -window +gl_round_down 1 +set gl_shadows 1 +set s_initsound 0 ");
    EXPECT_EQ(
        texts.Quake2Script,
        "exec my.cfg\r\nset cd_nocd 1\r\nset _windowed_mouse 1\r\nset gl_ztrick 1\r\nset gl_keeptjunctions 1\r\n"
        "set gl_polyblend 1\r\nset GL_TEXTUREMODE 1\r\nset gl_finish 1\r\nset gl_flashblend 1\r\n"
        "set gl_playermip 1\r\nset gl_picmip 1\r\nplaydemo demo1.dem\r\nset sw_mode \"3\"\r\nset gl_mode \"3\"\r\n"
        "set vid_ref \"soft\"\r\nset vid_fullscreen \"1\"\r\nset deathmatch 1\r\nconnect 10.0.0.1:27910\r\n"
        "connect 10.0.0.2:27910\r\nmap dm1\r\n");
    EXPECT_EQ(texts.QuakeScript,
              "exec my.cfg\r\n_windowed_mouse 1\r\nr_mirroralpha 1\r\nr_wateralpha 1\r\ngl_ztrick 1\r\n"
              "gl_keeptjunctions 1\r\ngl_polyblend 1\r\nGL_TEXTUREMODE 1\r\ngl_finish 1\r\ngl_flashblend 1\r\n"
              "gl_playermip 1\r\ngl_picmip 1\r\nplaydemo demo1.dem\r\nconnect 10.0.0.1:27910\r\n"
              "connect 10.0.0.2:27910\r\nmap dm1\r\n");
}

}  // namespace
}  // namespace lv
