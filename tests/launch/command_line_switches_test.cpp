#include "launch/command_line_switches.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "tests/support/launch_input.h"

namespace lv {
namespace {

using Change = std::function<void(LaunchInput&)>;
using In = LaunchInput;

struct RowCase {
    const char* Name;
    LaunchInput (*Game)();
    Change Set;
    const char* GameCommand;
    const char* UnrealCommand;
    const char* QuakeScript;
    const char* Quake2Script;
};

void PrintTo(const RowCase& row, std::ostream* out) {
    *out << row.Name;
}

LaunchInput Quake() {
    return QuakeLaunch("WINQUAKE.EXE");
}
LaunchInput PlainQuake() {
    return QuakeLaunch("quake.exe");
}

/// An item chosen for a tunable.
Change Used(TextView stem, TextView content, Index setting = 0) {
    return [=](In& in) { Use(in.Profile, stem, content, setting); };
}

/// The same, for an executable that draws without the card.
Change UsedInSoftware(TextView stem, TextView content) {
    return [=](In& in) {
        Use(in.Profile, stem, content);
        in.Game.UsesAccelerator = false;
    };
}

Change Resolution(Index position) {
    return [=](In& in) {
        in.Profile.UseRez = 1;
        in.Profile.ResolutionsPos = position;
        in.Profile.ResolutionsPos_Content = Padded("640x480", "-width 640");
        in.Profile.Q2_ResolutionsPos = position;
    };
}

Change Driver(Index driver) {
    return [=](In& in) {
        in.Profile.UseGraphicsDriver = 1;
        in.Profile.GraphicsDriver = driver;
    };
}

template <Option Box>
void Tick(In& in) {
    in.Selected.Ticked.Set(Box);
}

void PickMap(In& in) {
    in.Selected.Ticked.Set(Option::Map_Chk);
    in.Selected.Map = "DmDeck16";
}

void PickDemo(In& in) {
    in.Selected.Ticked.Set(Option::Demo_Chk);
    in.Selected.Demo = "playdemo demo1.dem";
}

void PickServer(In& in) {
    in.Selected.Ticked.Set(Option::Server_Chk);
    in.Selected.Server = "10.0.0.1;26000;0;";
}

void FetchServer(In& in) {
    in.Selected.Ticked.Set(Option::QSpy_Chk);
    in.Hooks.GameSpyFetch = [] { return std::optional<Text>("10.0.0.2:27500"); };
}

void PickScript(In& in) {
    in.Selected.Ticked.Set(Option::Script_Chk);
    in.Selected.Script = "C:\\QUAKE\\ID1\\my.cfg";
}

void PickMod(In& in) {
    in.Selected.Ticked.Set(Option::Game_Chk);
    in.Selected.Game = "-game CTF";
}

void PickMemory(In& in) {
    in.Selected.Ticked.Set(Option::Memory_Chk);
    in.Selected.Memory = "-winmem 16";
}

void NoCard(In& in) {
    in.Game.VidCard = 0;
}
void WindowedProfile(In& in) {
    in.Profile.Windowed = 1;
}

constexpr const char* kQuake = "WINQUAKE.EXE -zone 512 ";
constexpr const char* kQuakeOnly = "WINQUAKE.EXE ";
constexpr const char* kQ2 = "QUAKE2.EXE -zone 512 ";
constexpr const char* kQ2Only = "QUAKE2.EXE ";
constexpr const char* kUnrealOnly = "UNREAL.EXE ";

// clang-format off
const RowCase kRowCases[] = {
    {"QuakeUdp_Server", PlainQuake, PickServer, "qlaunch quakeudp.dll QUAKE.EXE -noipx -noserial -mpath -zone 512 ",
     "QUAKE.EXE ", "connect 10.0.0.1:26000\r\n", "connect 10.0.0.1:26000\r\n"},
    {"QuakeUdp_GameSpy", PlainQuake, FetchServer, "qlaunch quakeudp.dll QUAKE.EXE -noipx -noserial -mpath -zone 512 ",
     "QUAKE.EXE ", "connect 10.0.0.2:27500\r\n", "connect 10.0.0.2:27500\r\n"},
    {"QuakeUdp_NotWithoutAServer", PlainQuake, {}, "QUAKE.EXE -zone 512 ", "QUAKE.EXE ", "", ""},
    {"QuakeUdp_NotForAnotherExecutable", Quake, PickServer, kQuake, kQuakeOnly, "connect 10.0.0.1:26000\r\n",
     "connect 10.0.0.1:26000\r\n"},
    {"UnrealMap", UnrealLaunch, PickMap, kUnrealOnly, "UNREAL.EXE dmdeck16.unr ", "", ""},
    {"UnrealMap_NotWhenNotTicked", UnrealLaunch, [](In& in) { in.Selected.Map = "X"; }, kUnrealOnly, kUnrealOnly, "", ""},
    {"UnrealMap_NotWithoutAMap", UnrealLaunch, Tick<Option::Map_Chk>, kUnrealOnly, kUnrealOnly, "", ""},
    {"NoDirectSound", UnrealLaunch, Tick<Option::UnrealNoDirectSound_Chk>, kUnrealOnly, "UNREAL.EXE -nodsound ", "", ""},
    {"FirstRun", UnrealLaunch, Tick<Option::UnrealSimulateFirstRun_Chk>, kUnrealOnly, "UNREAL.EXE -firstrun ", "", ""},
    {"NoLogWindow", UnrealLaunch, Tick<Option::UnrealDisableLogWindow_Chk>, kUnrealOnly, "UNREAL.EXE -nologwin ", "", ""},
    {"NoK6", UnrealLaunch, Tick<Option::UnrealDisableK6Support_Chk>, kUnrealOnly, "UNREAL.EXE -nok6 ", "", ""},
    {"NoMmx", UnrealLaunch, Tick<Option::UnrealDisableMMXSupport_Chk>, kUnrealOnly, "UNREAL.EXE -nommx ", "", ""},
    {"NoHard", UnrealLaunch, NoCard, kUnrealOnly, "UNREAL.EXE -nohard ", "", ""},
    {"NoHard_AnyGame", Quake, NoCard, kQuake, "WINQUAKE.EXE -nohard ", "", ""},
    {"Console", HalfLifeLaunch, {}, "HL.EXE -console -zone 512 ", "HL.EXE ", "", ""},
    {"Zone", Quake, {}, kQuake, kQuakeOnly, "", ""},
    {"Zone_Quake2", Quake2Launch, {}, kQ2, kQ2Only, "", ""},
    {"Zone_NotUnreal", UnrealLaunch, {}, kUnrealOnly, kUnrealOnly, "", ""},
    {"Modification", Quake, PickMod, "WINQUAKE.EXE -zone 512 -game ctf ", kQuakeOnly, "", ""},
    {"Modification_Quake2", Quake2Launch, PickMod, "QUAKE2.EXE -zone 512 +set game ctf ", kQ2Only, "", ""},
    {"Memory", Quake, PickMemory, "WINQUAKE.EXE -zone 512 -heapsize 16384 ", kQuakeOnly, "", ""},
    {"Memory_NotForTheQuake2Family", Quake2Launch, PickMemory, kQ2, kQ2Only, "", ""},
    {"Memory_NotForUnreal", UnrealLaunch, PickMemory, kUnrealOnly, kUnrealOnly, "", ""},
    {"Memory_NotWithoutASize", Quake, Tick<Option::Memory_Chk>, kQuake, kQuakeOnly, "", ""},
    {"Resolution", Quake, Resolution(4), "WINQUAKE.EXE -zone 512 -width 640 ", kQuakeOnly, "", ""},
    {"Resolution_FirstResolution", Quake, Resolution(0), "WINQUAKE.EXE -zone 512 -width 640 ", kQuakeOnly, "", ""},
    {"Resolution_NotWithoutAPosition", Quake, Resolution(-1), kQuake, kQuakeOnly, "", ""},
    {"Resolution_NotForUnreal", UnrealLaunch, Resolution(4), kUnrealOnly, kUnrealOnly, "", ""},
    {"BitDepth_IsNeverAskedFor", Quake, [](In& in) {
         in.Profile.UseBits = 1;
         in.Profile.BitsPos = 1;
         in.Profile.BitsPos_Content = Padded("16 bit color", "-bpp 16");
     }, kQuake, kQuakeOnly, "", ""},
    {"Window", Quake, WindowedProfile, "WINQUAKE.EXE -zone 512 -window ", kQuakeOnly,
     "_windowed_mouse 1\r\n", "set _windowed_mouse 1\r\n"},
    {"Window_NotForUnreal", UnrealLaunch, WindowedProfile, kUnrealOnly, kUnrealOnly, "", ""},
    {"NoLan", Quake, Tick<Option::NOLAN_Chk>, "WINQUAKE.EXE -zone 512 -nolan ", kQuakeOnly, "", ""},
    {"NoUdp", Quake, Tick<Option::NOUDP_Chk>, "WINQUAKE.EXE -zone 512 -noudp ", kQuakeOnly, "", ""},
    {"Script", Quake, PickScript, kQuake, kQuakeOnly, "exec my.cfg\r\n", "exec my.cfg\r\n"},
    {"Script_NotWithGameSpy", Quake, [](In& in) {
         PickScript(in);
         in.Selected.Ticked.Set(Option::LaunchQspy_Chk);
     }, kQuake, kQuakeOnly, "", ""},
    {"NoCdAudio", Quake, Tick<Option::NOCDAUDIO_Chk>, "WINQUAKE.EXE -zone 512 -nocdaudio ", kQuakeOnly, "", ""},
    {"NoCdAudio_Quake2", Quake2Launch, Tick<Option::NOCDAUDIO_Chk>, kQ2, kQ2Only, "", "set cd_nocd 1\r\n"},
    {"RoundDown", Quake, Used("GL_ROUND_DOWN", "1", 1), "WINQUAKE.EXE -zone 512 +GL_ROUND_DOWN 1 ", kQuakeOnly, "", ""},
    {"RoundDown_Quake2", Quake2Launch, Used("GL_ROUND_DOWN", "0"), "QUAKE2.EXE -zone 512 +gl_round_down 0 ", kQ2Only,
     "", ""},
    {"RoundDown_NotInSoftware", Quake, UsedInSoftware("GL_ROUND_DOWN", "1"), kQuake, kQuakeOnly, "", ""},
    {"RoundDown_NotWithoutAnItem", Quake, Used("GL_ROUND_DOWN", "1", -1), kQuake, kQuakeOnly, "", ""},
    {"Dedicated", Quake, Tick<Option::Dedicated_Chk>, "WINQUAKE.EXE -zone 512 -dedicated ", kQuakeOnly, "", ""},
    {"Shadows", Quake, Used("Shadows", "1", 1), kQuake, kQuakeOnly, "r_shadows 1\r\n", ""},
    {"Shadows_Quake2", Quake2Launch, Used("Shadows", "1", 1), "QUAKE2.EXE -zone 512 +set gl_shadows 1 ", kQ2Only,
     "", ""},
    {"Mirrors", Quake, Used("Mirrors", ".5", 5), kQuake, kQuakeOnly, "r_mirroralpha .5\r\n", ""},
    {"Mirrors_Quake2", Quake2Launch, Used("Mirrors", ".5", 5), kQ2, kQ2Only, "r_mirroralpha .5\r\n", ""},
    {"WaterAlpha", Quake, Used("WaterAlpha", ".6", 6), kQuake, kQuakeOnly, "r_wateralpha .6\r\n", ""},
    {"ZTrick", Quake, Used("gl_ztrick", "0"), kQuake, kQuakeOnly, "gl_ztrick 0\r\n", "set gl_ztrick 0\r\n"},
    {"KeepTJunctions", Quake, Used("gl_keeptjunctions", "1", 1), kQuake, kQuakeOnly, "gl_keeptjunctions 1\r\n",
     "set gl_keeptjunctions 1\r\n"},
    {"PolyBlend", Quake, Used("gl_polyblend", "0"), kQuake, kQuakeOnly, "gl_polyblend 0\r\n", "set gl_polyblend 0\r\n"},
    {"TextureMode", Quake, Used("GL_TEXTUREMODE", "GL_NEAREST"), kQuake, kQuakeOnly, "GL_TEXTUREMODE GL_NEAREST\r\n",
     "set GL_TEXTUREMODE GL_NEAREST\r\n"},
    {"Finish", Quake, Used("GL_FINISH", "0"), kQuake, kQuakeOnly, "gl_finish 0\r\n", "set gl_finish 0\r\n"},
    {"FlashBlend", Quake, Used("GL_FLASHBLEND", "1", 1), kQuake, kQuakeOnly, "gl_flashblend 1\r\n",
     "set gl_flashblend 1\r\n"},
    {"PlayerMip", Quake, Used("GL_PLAYERMIP", "3", 3), kQuake, kQuakeOnly, "gl_playermip 3\r\n",
     "set gl_playermip 3\r\n"},
    {"PicMip", Quake, Used("GL_PICMIP", "2", 2), kQuake, kQuakeOnly, "gl_picmip 2\r\n", "set gl_picmip 2\r\n"},
    {"ZTrick_NotInSoftware", Quake, UsedInSoftware("gl_ztrick", "0"), kQuake, kQuakeOnly, "", ""},
    {"ZTrick_NotWithoutACard", Quake, [](In& in) {
         Use(in.Profile, "gl_ztrick", "0");
         in.Game.CardClass = 0;
     }, kQuake, kQuakeOnly, "", ""},
    {"ZTrick_WithAnotherCard", Quake, [](In& in) {
         Use(in.Profile, "gl_ztrick", "0");
         in.Game.CardClass = 100;
     }, kQuake, kQuakeOnly, "gl_ztrick 0\r\n", "set gl_ztrick 0\r\n"},
    {"ZTrick_NotForUnreal", UnrealLaunch, Used("gl_ztrick", "0"), kUnrealOnly, kUnrealOnly, "", ""},
    {"MipCap_Software", Quake, UsedInSoftware("D_MipCap", "2"), kQuake, kQuakeOnly, "d_mipcap 2\r\n",
     "set d_mipcap 2\r\n"},
    {"MipCap_NoCard", Quake2Launch, [](In& in) {
         Use(in.Profile, "D_MipCap", "2");
         in.Game.CardClass = 0;
     }, kQ2, kQ2Only, "d_mipcap 2\r\n", "set d_mipcap 2\r\n"},
    {"MipCap_NotWithACard", Quake, Used("D_MipCap", "2"), kQuake, kQuakeOnly, "", ""},
    {"MipCap_NotForAnotherFamilyWithoutACard", Quake, [](In& in) {
         Use(in.Profile, "D_MipCap", "2");
         in.Game.CardClass = 0;
         in.Game.ScriptFamily = Dialect::None;
     }, kQuake, kQuakeOnly, "", ""},
    {"Demo", Quake, PickDemo, kQuake, kQuakeOnly, "playdemo demo1.dem\r\n", "playdemo demo1.dem\r\n"},
    {"Demo_NotWithoutADemo", Quake, Tick<Option::Demo_Chk>, kQuake, kQuakeOnly, "", ""},
    {"Demo_NotForUnreal", UnrealLaunch, PickDemo, kUnrealOnly, kUnrealOnly, "", ""},
    {"Quake2Mode", Quake2Launch, Resolution(3), kQ2, kQ2Only, "", "set sw_mode \"3\"\r\nset gl_mode \"3\"\r\n"},
    {"Quake2Mode_FirstMode", Quake2Launch, Resolution(0), kQ2, kQ2Only, "",
     "set sw_mode \"0\"\r\nset gl_mode \"0\"\r\n"},
    {"Quake2Mode_NotWithoutAPosition", Quake2Launch, Resolution(-1), kQ2, kQ2Only, "", ""},
    {"NoSound", Quake, Tick<Option::nosound_chk>, kQuake, kQuakeOnly, "nosound 1\r\n", ""},
    {"NoSound_Quake2", Quake2Launch, Tick<Option::nosound_chk>, "QUAKE2.EXE -zone 512 +set s_initsound 0 ", kQ2Only,
     "", ""},
    {"NoSound_HasNoEffectForUnreal", UnrealLaunch, Tick<Option::nosound_chk>, kUnrealOnly, kUnrealOnly, "", ""},
    {"GraphicsDriver0", Quake2Launch, Driver(0), kQ2, kQ2Only, "",
     "set vid_ref \"soft\"\r\nset vid_fullscreen \"0\"\r\nset vid_xpos \"50\"\r\nset vid_ypos \"50\"\r\n"},
    {"GraphicsDriver1", Quake2Launch, Driver(1), kQ2, kQ2Only, "",
     "set vid_ref \"soft\"\r\nset vid_fullscreen \"1\"\r\n"},
    {"GraphicsDriver2", Quake2Launch, Driver(2), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"3dfxgl\"\r\n"},
    {"GraphicsDriver2_Heretic2", Heretic2Launch, Driver(2), "HERETIC2.EXE -zone 512 ", "HERETIC2.EXE ", "",
     "set vid_ref \"gl\"\r\nset gl_driver \"3dfxgl_ht2\"\r\n"},
    {"GraphicsDriver3", Quake2Launch, Driver(3), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"ref_gl\"\r\n"},
    {"GraphicsDriver3_Heretic2", Heretic2Launch, Driver(3), "HERETIC2.EXE -zone 512 ", "HERETIC2.EXE ", "",
     "set vid_ref \"gl\"\r\nset gl_driver \"ref_gl\"\r\n"},
    {"GraphicsDriver4", Quake2Launch, Driver(4), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"pvrgl\"\r\n"},
    {"GraphicsDriver5", Quake2Launch, Driver(5), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"opengl32\"\r\n"},
    {"GraphicsDriver6", Quake2Launch, Driver(6), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"veritegl\"\r\n"},
    {"GraphicsDriver7", Quake2Launch, Driver(7), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"ragegl\"\r\n"},
    {"GraphicsDriver_NotBeyond7", Quake2Launch, Driver(8), kQ2, kQ2Only, "", ""},
    {"GraphicsDriver_NotWithoutADriver", Quake2Launch, Driver(-1), kQ2, kQ2Only, "", ""},
    {"GraphicsDriver_NotForTheQuakeFamily", Quake, Driver(1), kQuake, kQuakeOnly, "", ""},
    {"Listen", Quake, Tick<Option::Listen_Chk>, "WINQUAKE.EXE -zone 512 -listen ", kQuakeOnly, "", ""},
    {"Listen_Quake2", Quake2Launch, Tick<Option::Listen_Chk>, kQ2, kQ2Only, "", "set deathmatch 1\r\n"},
    {"Listen_UnrealOnlyInTheUnusedCommand", UnrealLaunch, Tick<Option::Listen_Chk>, "UNREAL.EXE -listen ", kUnrealOnly,
     "", ""},
    {"Server", Quake, PickServer, kQuake, kQuakeOnly, "connect 10.0.0.1:26000\r\n", "connect 10.0.0.1:26000\r\n"},
    {"Server_NotWithoutAServer", Quake, Tick<Option::Server_Chk>, kQuake, kQuakeOnly, "", ""},
    {"GameSpyServer", Quake, FetchServer, kQuake, kQuakeOnly, "connect 10.0.0.2:27500\r\n", "connect 10.0.0.2:27500\r\n"},
    {"Map", Quake, PickMap, kQuake, kQuakeOnly, "map dmdeck16\r\n", "map dmdeck16\r\n"},
    {"Benchmark", Quake, Tick<Option::Bench_Chk>, kQuake, kQuakeOnly,
     "clear\r\nsizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup\r\nvid_mode 0\r\n"
     "timedemo demo2\r\n",
     "viewsize 120\r\ntimedemo 1\r\ndemomap demo1.dm2\r\n"},
    {"Benchmark_NotWithGameSpysServer", Quake, [](In& in) {
         in.Selected.Ticked.Set(Option::Bench_Chk);
         in.Selected.Ticked.Set(Option::QSpy_Chk);
     }, kQuake, kQuakeOnly, "", ""},
    {"Benchmark_NotWithGameSpy", Quake, [](In& in) {
         in.Selected.Ticked.Set(Option::Bench_Chk);
         in.Selected.Ticked.Set(Option::LaunchQspy_Chk);
     }, kQuake, kQuakeOnly, "", ""},
    {"Benchmark_NeverForUnreal", UnrealLaunch, Tick<Option::Bench_Chk>, kUnrealOnly, kUnrealOnly, "", ""},
    {"Modification_NotWithoutAMod", Quake, Tick<Option::Game_Chk>, kQuake, kQuakeOnly, "", ""},
    {"Modification_NotWhenNotTicked", Quake, [](In& in) { in.Selected.Game = "-game ctf"; }, kQuake, kQuakeOnly, "", ""},
    {"Memory_NotWhenNotTicked", Quake, [](In& in) { in.Selected.Memory = "-winmem 16"; }, kQuake, kQuakeOnly, "", ""},
    {"Script_NotWithoutAScript", Quake, Tick<Option::Script_Chk>, kQuake, kQuakeOnly, "", ""},
    {"Script_NotWhenNotTicked", Quake, [](In& in) { in.Selected.Script = "C:\\QUAKE\\ID1\\my.cfg"; }, kQuake, kQuakeOnly, "", ""},
    {"Demo_NotWhenNotTicked", Quake, [](In& in) { in.Selected.Demo = "playdemo demo1.dem"; }, kQuake, kQuakeOnly, "", ""},
    {"Server_NotWhenNotTicked", Quake, [](In& in) { in.Selected.Server = "10.0.0.1;26000;0;"; }, kQuake, kQuakeOnly, "", ""},
    {"Map_NotWithoutAMap", Quake, Tick<Option::Map_Chk>, kQuake, kQuakeOnly, "", ""},
    {"Map_NotWhenNotTicked", Quake, [](In& in) { in.Selected.Map = "START"; }, kQuake, kQuakeOnly, "", ""},
    {"Console_ByTheExecutablesNameForAnyGame", [] { return QuakeLaunch("MYHL.EXE"); }, {},
     "MYHL.EXE -console -zone 512 ", "MYHL.EXE ", "", ""},
    {"Console_NotForHalfLifesOtherExecutables", HalfLifeLaunch,
     [](In& in) { in.Selected.ExecutablePath = "C:\\HL\\HLDM.EXE"; }, "HLDM.EXE -zone 512 ", "HLDM.EXE ", "", ""},
    {"Resolution_NotWhenNotUsed", Quake, [](In& in) {
         Resolution(4)(in);
         in.Profile.UseRez = 0;
     }, kQuake, kQuakeOnly, "", ""},
    {"Quake2Mode_NotWhenNotUsed", Quake2Launch, [](In& in) {
         Resolution(3)(in);
         in.Profile.UseRez = 0;
     }, kQ2, kQ2Only, "", ""},
    {"GraphicsDriver_NotWhenNotUsed", Quake2Launch, [](In& in) {
         Driver(1)(in);
         in.Profile.UseGraphicsDriver = 0;
     }, kQ2, kQ2Only, "", ""},
    {"Window_OnlyForOne", Quake, [](In& in) { in.Profile.Windowed = 2; }, kQuake, kQuakeOnly, "", ""},
    {"Benchmark_BehindTheMap", Quake, [](In& in) {
         PickMap(in);
         in.Selected.Ticked.Set(Option::Bench_Chk);
     }, kQuake, kQuakeOnly,
     "map dmdeck16\r\nclear\r\nsizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup\r\nvid_mode 0\r\n"
     "timedemo demo2\r\n",
     "map dmdeck16\r\nviewsize 120\r\ntimedemo 1\r\ndemomap demo1.dm2\r\n"},
};
// clang-format on

class EachRow : public testing::TestWithParam<RowCase> {};

TEST_P(EachRow, AddsWhatItSays) {
    const RowCase& expected = GetParam();
    LaunchInput input = expected.Game();
    if (expected.Set) {
        expected.Set(input);
    }
    const LaunchTexts texts = input.Compose();
    EXPECT_EQ(texts.GameCommand, expected.GameCommand);
    EXPECT_EQ(texts.UnrealCommand, expected.UnrealCommand);
    EXPECT_EQ(texts.QuakeScript, expected.QuakeScript);
    EXPECT_EQ(texts.Quake2Script, expected.Quake2Script);
    EXPECT_FALSE(texts.Stop);
    EXPECT_EQ(texts.LaunchStep, LaunchStep::StartMap);
}

INSTANTIATE_TEST_SUITE_P(Composition, EachRow, testing::ValuesIn(kRowCases),
                         [](const auto& info) { return Text(info.param.Name); });

struct StepCase {
    LaunchStep Step;
    int Rows;
};

constexpr StepCase kSteps[] = {
    {LaunchStep::Executable, 1},      {LaunchStep::Switches, 11},    {LaunchStep::Memory, 1},
    {LaunchStep::Resolution, 1},      {LaunchStep::BitDepth, 1},     {LaunchStep::PlayerScript, 6},
    {LaunchStep::DedicatedServer, 1}, {LaunchStep::Mouse, 1},        {LaunchStep::Drawing, 13},
    {LaunchStep::GraphicsDriver, 3},  {LaunchStep::Server, 2},       {LaunchStep::GameSpyServer, 1},
    {LaunchStep::StartMap, 2},        {LaunchStep::LaunchScript, 2},
};

TEST(CompositionRows, StandInTheOrderOfTheirSteps) {
    std::vector<LaunchStep> expected;
    for (const StepCase& step : kSteps) {
        expected.insert(expected.end(), static_cast<std::size_t>(step.Rows), step.Step);
    }
    std::vector<LaunchStep> steps;
    for (const CompositionRow& row : CompositionRows()) {
        steps.push_back(row.Step);
    }
    EXPECT_EQ(steps, expected);
}

TEST(CompositionRows, FromTheMouseToTheGraphicsDriverAreNotForUnreal) {
    for (const CompositionRow& row : CompositionRows()) {
        EXPECT_EQ(row.Games == CompositionScope::NotUnreal,
                  row.Step >= LaunchStep::Mouse && row.Step <= LaunchStep::GraphicsDriver)
            << ShownStep(row.Step);
    }
}

TEST(CompositionRows, TakeTheUsersLineBeforeTheScriptIsWrittenAndRunTheScriptOnceItHasBeen) {
    std::vector<CompositionTime> ofTheScript;
    for (const CompositionRow& row : CompositionRows()) {
        if (row.Step == LaunchStep::LaunchScript) {
            ofTheScript.push_back(row.Time);
        } else {
            EXPECT_EQ(row.Time, CompositionTime::Composition) << ShownStep(row.Step);
        }
    }
    EXPECT_EQ(ofTheScript, (std::vector{CompositionTime::BeforeScript, CompositionTime::ScriptWritten}));
}

TEST(CompositionRows, AskOnlyForTunablesThatThereAre) {
    for (const CompositionRow& row : CompositionRows()) {
        EXPECT_TRUE(row.Tunable == nullptr || FindTunable(row.Tunable) != nullptr) << row.Tunable;
    }
}

}  // namespace
}  // namespace lv
