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
    {"Row1_Server", PlainQuake, PickServer, "qlaunch quakeudp.dll QUAKE.EXE -noipx -noserial -mpath -zone 512 ",
     "QUAKE.EXE ", "connect 10.0.0.1:26000\r\n", "connect 10.0.0.1:26000\r\n"},
    {"Row1_GameSpy", PlainQuake, FetchServer, "qlaunch quakeudp.dll QUAKE.EXE -noipx -noserial -mpath -zone 512 ",
     "QUAKE.EXE ", "connect 10.0.0.2:27500\r\n", "connect 10.0.0.2:27500\r\n"},
    {"Row1_NotWithoutAServer", PlainQuake, {}, "QUAKE.EXE -zone 512 ", "QUAKE.EXE ", "", ""},
    {"Row1_NotForAnotherExecutable", Quake, PickServer, kQuake, kQuakeOnly, "connect 10.0.0.1:26000\r\n",
     "connect 10.0.0.1:26000\r\n"},
    {"Row2_Unreal", UnrealLaunch, PickMap, kUnrealOnly, "UNREAL.EXE dmdeck16.unr ", "", ""},
    {"Row2_NotWhenNotTicked", UnrealLaunch, [](In& in) { in.Selected.Map = "X"; }, kUnrealOnly, kUnrealOnly, "", ""},
    {"Row2_NotWithoutAMap", UnrealLaunch, Tick<Option::Map_Chk>, kUnrealOnly, kUnrealOnly, "", ""},
    {"Row3", UnrealLaunch, Tick<Option::UnrealNoDirectSound_Chk>, kUnrealOnly, "UNREAL.EXE -nodsound ", "", ""},
    {"Row4", UnrealLaunch, Tick<Option::UnrealSimulateFirstRun_Chk>, kUnrealOnly, "UNREAL.EXE -firstrun ", "", ""},
    {"Row5", UnrealLaunch, Tick<Option::UnrealDisableLogWindow_Chk>, kUnrealOnly, "UNREAL.EXE -nologwin ", "", ""},
    {"Row6", UnrealLaunch, Tick<Option::UnrealDisableK6Support_Chk>, kUnrealOnly, "UNREAL.EXE -nok6 ", "", ""},
    {"Row7", UnrealLaunch, Tick<Option::UnrealDisableMMXSupport_Chk>, kUnrealOnly, "UNREAL.EXE -nommx ", "", ""},
    {"Row8", UnrealLaunch, NoCard, kUnrealOnly, "UNREAL.EXE -nohard ", "", ""},
    {"Row8_AnyGame", Quake, NoCard, kQuake, "WINQUAKE.EXE -nohard ", "", ""},
    {"Row10", HalfLifeLaunch, {}, "HL.EXE -console -zone 512 ", "HL.EXE ", "", ""},
    {"Row11", Quake, {}, kQuake, kQuakeOnly, "", ""},
    {"Row11_Quake2", Quake2Launch, {}, kQ2, kQ2Only, "", ""},
    {"Row11_NotUnreal", UnrealLaunch, {}, kUnrealOnly, kUnrealOnly, "", ""},
    {"Row12", Quake, PickMod, "WINQUAKE.EXE -zone 512 -game ctf ", kQuakeOnly, "", ""},
    {"Row12_Quake2", Quake2Launch, PickMod, "QUAKE2.EXE -zone 512 +set game ctf ", kQ2Only, "", ""},
    {"Row13", Quake, PickMemory, "WINQUAKE.EXE -zone 512 -heapsize 16384 ", kQuakeOnly, "", ""},
    {"Row13_NotForTheQuake2Family", Quake2Launch, PickMemory, kQ2, kQ2Only, "", ""},
    {"Row13_NotForUnreal", UnrealLaunch, PickMemory, kUnrealOnly, kUnrealOnly, "", ""},
    {"Row13_NotWithoutASize", Quake, Tick<Option::Memory_Chk>, kQuake, kQuakeOnly, "", ""},
    {"Row14", Quake, Resolution(4), "WINQUAKE.EXE -zone 512 -width 640 ", kQuakeOnly, "", ""},
    {"Row14_FirstResolution", Quake, Resolution(0), "WINQUAKE.EXE -zone 512 -width 640 ", kQuakeOnly, "", ""},
    {"Row14_NotWithoutAPosition", Quake, Resolution(-1), kQuake, kQuakeOnly, "", ""},
    {"Row14_NotForUnreal", UnrealLaunch, Resolution(4), kUnrealOnly, kUnrealOnly, "", ""},
    {"Row15_NeverAsksForABitDepth", Quake, [](In& in) {
         in.Profile.UseBits = 1;
         in.Profile.BitsPos = 1;
         in.Profile.BitsPos_Content = Padded("16 bit color", "-bpp 16");
     }, kQuake, kQuakeOnly, "", ""},
    {"Row16_Row23_Quake", Quake, WindowedProfile, "WINQUAKE.EXE -zone 512 -window ", kQuakeOnly,
     "_windowed_mouse 1\r\n", "set _windowed_mouse 1\r\n"},
    {"Row16_Row23_NotForUnreal", UnrealLaunch, WindowedProfile, kUnrealOnly, kUnrealOnly, "", ""},
    {"Row17", Quake, Tick<Option::NOLAN_Chk>, "WINQUAKE.EXE -zone 512 -nolan ", kQuakeOnly, "", ""},
    {"Row18", Quake, Tick<Option::NOUDP_Chk>, "WINQUAKE.EXE -zone 512 -noudp ", kQuakeOnly, "", ""},
    {"Row19", Quake, PickScript, kQuake, kQuakeOnly, "exec my.cfg\r\n", "exec my.cfg\r\n"},
    {"Row19_NotWithGameSpy", Quake, [](In& in) {
         PickScript(in);
         in.Selected.Ticked.Set(Option::LaunchQspy_Chk);
     }, kQuake, kQuakeOnly, "", ""},
    {"Row20", Quake, Tick<Option::NOCDAUDIO_Chk>, "WINQUAKE.EXE -zone 512 -nocdaudio ", kQuakeOnly, "", ""},
    {"Row20_Quake2", Quake2Launch, Tick<Option::NOCDAUDIO_Chk>, kQ2, kQ2Only, "", "set cd_nocd 1\r\n"},
    {"Row21", Quake, Used("GL_ROUND_DOWN", "1", 1), "WINQUAKE.EXE -zone 512 +GL_ROUND_DOWN 1 ", kQuakeOnly, "", ""},
    {"Row21_Quake2", Quake2Launch, Used("GL_ROUND_DOWN", "0"), "QUAKE2.EXE -zone 512 +gl_round_down 0 ", kQ2Only,
     "", ""},
    {"Row21_NotInSoftware", Quake, UsedInSoftware("GL_ROUND_DOWN", "1"), kQuake, kQuakeOnly, "", ""},
    {"Row21_NotWithoutAnItem", Quake, Used("GL_ROUND_DOWN", "1", -1), kQuake, kQuakeOnly, "", ""},
    {"Row22", Quake, Tick<Option::Dedicated_Chk>, "WINQUAKE.EXE -zone 512 -dedicated ", kQuakeOnly, "", ""},
    {"Row24", Quake, Used("Shadows", "1", 1), kQuake, kQuakeOnly, "r_shadows 1\r\n", ""},
    {"Row24_Quake2", Quake2Launch, Used("Shadows", "1", 1), "QUAKE2.EXE -zone 512 +set gl_shadows 1 ", kQ2Only,
     "", ""},
    {"Row25", Quake, Used("Mirrors", ".5", 5), kQuake, kQuakeOnly, "r_mirroralpha .5\r\n", ""},
    {"Row25_Quake2", Quake2Launch, Used("Mirrors", ".5", 5), kQ2, kQ2Only, "r_mirroralpha .5\r\n", ""},
    {"Row26", Quake, Used("WaterAlpha", ".6", 6), kQuake, kQuakeOnly, "r_wateralpha .6\r\n", ""},
    {"Row27", Quake, Used("gl_ztrick", "0"), kQuake, kQuakeOnly, "gl_ztrick 0\r\n", "set gl_ztrick 0\r\n"},
    {"Row28", Quake, Used("gl_keeptjunctions", "1", 1), kQuake, kQuakeOnly, "gl_keeptjunctions 1\r\n",
     "set gl_keeptjunctions 1\r\n"},
    {"Row29", Quake, Used("gl_polyblend", "0"), kQuake, kQuakeOnly, "gl_polyblend 0\r\n", "set gl_polyblend 0\r\n"},
    {"Row30", Quake, Used("GL_TEXTUREMODE", "GL_NEAREST"), kQuake, kQuakeOnly, "GL_TEXTUREMODE GL_NEAREST\r\n",
     "set GL_TEXTUREMODE GL_NEAREST\r\n"},
    {"Row31", Quake, Used("GL_FINISH", "0"), kQuake, kQuakeOnly, "gl_finish 0\r\n", "set gl_finish 0\r\n"},
    {"Row32", Quake, Used("GL_FLASHBLEND", "1", 1), kQuake, kQuakeOnly, "gl_flashblend 1\r\n",
     "set gl_flashblend 1\r\n"},
    {"Row33", Quake, Used("GL_PLAYERMIP", "3", 3), kQuake, kQuakeOnly, "gl_playermip 3\r\n",
     "set gl_playermip 3\r\n"},
    {"Row34", Quake, Used("GL_PICMIP", "2", 2), kQuake, kQuakeOnly, "gl_picmip 2\r\n", "set gl_picmip 2\r\n"},
    {"Row27_NotInSoftware", Quake, UsedInSoftware("gl_ztrick", "0"), kQuake, kQuakeOnly, "", ""},
    {"Row27_NotWithoutACard", Quake, [](In& in) {
         Use(in.Profile, "gl_ztrick", "0");
         in.Game.CardClass = 0;
     }, kQuake, kQuakeOnly, "", ""},
    {"Row27_WithAnotherCard", Quake, [](In& in) {
         Use(in.Profile, "gl_ztrick", "0");
         in.Game.CardClass = 100;
     }, kQuake, kQuakeOnly, "gl_ztrick 0\r\n", "set gl_ztrick 0\r\n"},
    {"Row27_NotForUnreal", UnrealLaunch, Used("gl_ztrick", "0"), kUnrealOnly, kUnrealOnly, "", ""},
    {"Row35_Software", Quake, UsedInSoftware("D_MipCap", "2"), kQuake, kQuakeOnly, "d_mipcap 2\r\n",
     "set d_mipcap 2\r\n"},
    {"Row35_NoCard", Quake2Launch, [](In& in) {
         Use(in.Profile, "D_MipCap", "2");
         in.Game.CardClass = 0;
     }, kQ2, kQ2Only, "d_mipcap 2\r\n", "set d_mipcap 2\r\n"},
    {"Row35_NotWithACard", Quake, Used("D_MipCap", "2"), kQuake, kQuakeOnly, "", ""},
    {"Row35_NotForAnotherFamilyWithoutACard", Quake, [](In& in) {
         Use(in.Profile, "D_MipCap", "2");
         in.Game.CardClass = 0;
         in.Game.ScriptFamily = Dialect::None;
     }, kQuake, kQuakeOnly, "", ""},
    {"Row36", Quake, PickDemo, kQuake, kQuakeOnly, "playdemo demo1.dem\r\n", "playdemo demo1.dem\r\n"},
    {"Row36_NotWithoutADemo", Quake, Tick<Option::Demo_Chk>, kQuake, kQuakeOnly, "", ""},
    {"Row36_NotForUnreal", UnrealLaunch, PickDemo, kUnrealOnly, kUnrealOnly, "", ""},
    {"Row37", Quake2Launch, Resolution(3), kQ2, kQ2Only, "", "set sw_mode \"3\"\r\nset gl_mode \"3\"\r\n"},
    {"Row37_FirstMode", Quake2Launch, Resolution(0), kQ2, kQ2Only, "",
     "set sw_mode \"0\"\r\nset gl_mode \"0\"\r\n"},
    {"Row37_NotWithoutAPosition", Quake2Launch, Resolution(-1), kQ2, kQ2Only, "", ""},
    {"Row38", Quake, Tick<Option::nosound_chk>, kQuake, kQuakeOnly, "nosound 1\r\n", ""},
    {"Row38_Quake2", Quake2Launch, Tick<Option::nosound_chk>, "QUAKE2.EXE -zone 512 +set s_initsound 0 ", kQ2Only,
     "", ""},
    {"Row38_HasNoEffectForUnreal", UnrealLaunch, Tick<Option::nosound_chk>, kUnrealOnly, kUnrealOnly, "", ""},
    {"Row39_Driver0", Quake2Launch, Driver(0), kQ2, kQ2Only, "",
     "set vid_ref \"soft\"\r\nset vid_fullscreen \"0\"\r\nset vid_xpos \"50\"\r\nset vid_ypos \"50\"\r\n"},
    {"Row39_Driver1", Quake2Launch, Driver(1), kQ2, kQ2Only, "",
     "set vid_ref \"soft\"\r\nset vid_fullscreen \"1\"\r\n"},
    {"Row39_Driver2", Quake2Launch, Driver(2), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"3dfxgl\"\r\n"},
    {"Row39_Driver2_Heretic2", Heretic2Launch, Driver(2), "HERETIC2.EXE -zone 512 ", "HERETIC2.EXE ", "",
     "set vid_ref \"gl\"\r\nset gl_driver \"3dfxgl_ht2\"\r\n"},
    {"Row39_Driver3", Quake2Launch, Driver(3), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"ref_gl\"\r\n"},
    {"Row39_Driver3_Heretic2", Heretic2Launch, Driver(3), "HERETIC2.EXE -zone 512 ", "HERETIC2.EXE ", "",
     "set vid_ref \"gl\"\r\nset gl_driver \"ref_gl\"\r\n"},
    {"Row39_Driver4", Quake2Launch, Driver(4), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"pvrgl\"\r\n"},
    {"Row39_Driver5", Quake2Launch, Driver(5), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"opengl32\"\r\n"},
    {"Row39_Driver6", Quake2Launch, Driver(6), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"veritegl\"\r\n"},
    {"Row39_Driver7", Quake2Launch, Driver(7), kQ2, kQ2Only, "",
     "set vid_ref \"gl\"\r\nset gl_driver \"ragegl\"\r\n"},
    {"Row39_NotBeyond7", Quake2Launch, Driver(8), kQ2, kQ2Only, "", ""},
    {"Row39_NotWithoutADriver", Quake2Launch, Driver(-1), kQ2, kQ2Only, "", ""},
    {"Row39_NotForTheQuakeFamily", Quake, Driver(1), kQuake, kQuakeOnly, "", ""},
    {"Row40", Quake, Tick<Option::Listen_Chk>, "WINQUAKE.EXE -zone 512 -listen ", kQuakeOnly, "", ""},
    {"Row40_Quake2", Quake2Launch, Tick<Option::Listen_Chk>, kQ2, kQ2Only, "", "set deathmatch 1\r\n"},
    {"Row40_UnrealOnlyInTheUnusedCommand", UnrealLaunch, Tick<Option::Listen_Chk>, "UNREAL.EXE -listen ", kUnrealOnly,
     "", ""},
    {"Row41", Quake, PickServer, kQuake, kQuakeOnly, "connect 10.0.0.1:26000\r\n", "connect 10.0.0.1:26000\r\n"},
    {"Row41_NotWithoutAServer", Quake, Tick<Option::Server_Chk>, kQuake, kQuakeOnly, "", ""},
    {"Row42", Quake, FetchServer, kQuake, kQuakeOnly, "connect 10.0.0.2:27500\r\n", "connect 10.0.0.2:27500\r\n"},
    {"Row43", Quake, PickMap, kQuake, kQuakeOnly, "map dmdeck16\r\n", "map dmdeck16\r\n"},
    {"Row44", Quake, Tick<Option::Bench_Chk>, kQuake, kQuakeOnly,
     "clear\r\nsizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup\r\nvid_mode 0\r\n"
     "timedemo demo2\r\n",
     "viewsize 120\r\ntimedemo 1\r\ndemomap demo1.dm2\r\n"},
    {"Row44_NotWithGameSpysServer", Quake, [](In& in) {
         in.Selected.Ticked.Set(Option::Bench_Chk);
         in.Selected.Ticked.Set(Option::QSpy_Chk);
     }, kQuake, kQuakeOnly, "", ""},
    {"Row44_NotWithGameSpy", Quake, [](In& in) {
         in.Selected.Ticked.Set(Option::Bench_Chk);
         in.Selected.Ticked.Set(Option::LaunchQspy_Chk);
     }, kQuake, kQuakeOnly, "", ""},
    {"Row44_NeverForUnreal", UnrealLaunch, Tick<Option::Bench_Chk>, kUnrealOnly, kUnrealOnly, "", ""},
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

/// Row 1 is the first of the table.
int NumberOf(const CompositionRow& row) {
    return static_cast<int>(&row - CompositionRows().data()) + 1;
}

TEST(CompositionRows, StandInTheOrderOfTheirSteps) {
    int step = 0;
    for (const CompositionRow& row : CompositionRows()) {
        EXPECT_GE(static_cast<int>(row.Step), step) << NumberOf(row);
        step = static_cast<int>(row.Step);
    }
    EXPECT_EQ(CompositionRows().size(), 46u);
}

TEST(CompositionRows, HaveTheirSteps) {
    const std::vector<int> expected = {20,  40,  40,  40,  40,  40,  40,  40,  40,  40,  40,  40,  50,  60,  70,  80,
                                       80,  80,  80,  80,  80,  90,  100, 110, 110, 110, 110, 110, 110, 110, 110, 110,
                                       110, 110, 110, 110, 120, 120, 120, 130, 130, 140, 190, 190, 205, 205};
    std::vector<int> steps;
    for (const CompositionRow& row : CompositionRows()) {
        steps.push_back(static_cast<int>(row.Step));
    }
    EXPECT_EQ(steps, expected);
}

TEST(CompositionRows, From23To39AreNotForUnreal) {
    for (const CompositionRow& row : CompositionRows()) {
        const int number = NumberOf(row);
        EXPECT_EQ(row.Games == CompositionScope::NotUnreal, number >= 23 && number <= 39) << number;
    }
}

TEST(CompositionRows, RunOneBeforeTheScriptIsWrittenAndTheLastOnceItHasBeen) {
    for (const CompositionRow& row : CompositionRows()) {
        const int number = NumberOf(row);
        const CompositionTime expected = number == 45   ? CompositionTime::BeforeScript
                                         : number == 46 ? CompositionTime::ScriptWritten
                                                        : CompositionTime::Composition;
        EXPECT_EQ(row.Time, expected) << number;
    }
}

TEST(CompositionRows, AskOnlyForTunablesThatThereAre) {
    for (const CompositionRow& row : CompositionRows()) {
        EXPECT_TRUE(row.Tunable == nullptr || FindTunable(row.Tunable) != nullptr) << NumberOf(row);
    }
}

}  // namespace
}  // namespace lv
