#include "launch/composition_rows.h"

#include <iterator>

#include "foundation/field_strings.h"
#include "launch/switch_rules.h"

namespace lv {

namespace {

using S = LaunchSelection;

bool Always(const Composition&) {
    return true;
}
bool Never(const Composition&) {
    return false;
}

template <bool S::*Box>
bool Ticked(const Composition& c) {
    return c.Selected.*Box;
}

/// Ticked, and a row of its list selected.
template <bool S::*Box, std::optional<Text> S::*Row>
bool Chosen(const Composition& c) {
    return c.Selected.*Box && (c.Selected.*Row).has_value();
}

bool IsUnreal(const Composition& c) {
    return c.Game.GameKind == Game::Unreal;
}
bool IsNotUnreal(const Composition& c) {
    return !IsUnreal(c);
}
bool IsQuake2Family(const Composition& c) {
    return c.Game.ScriptFamily == Dialect::Quake2;
}
bool IsNeitherFamily(const Composition& c) {
    return !IsQuake2Family(c) && c.Game.ScriptFamily != Dialect::Unreal;
}

bool PlainQuakeOnline(const Composition& c) {
    return (c.Selected.QSpy_Chk || c.Selected.Server_Chk) && Trim(c.Texts.GameCommand) == "QUAKE.EXE";
}

constexpr auto MapIsChosen = Chosen<&S::Map_Chk, &S::Map>;
bool UnrealMap(const Composition& c) {
    return MapIsChosen(c) && IsUnreal(c);
}
bool OtherMap(const Composition& c) {
    return MapIsChosen(c) && IsNotUnreal(c);
}

bool No3dCard(const Composition& c) {
    return c.Game.VidCard == 0;
}
bool IsHlExe(const Composition& c) {
    return Holds(c.Texts.GameCommand, "HL.EXE");
}

bool MemoryIsChosen(const Composition& c) {
    return IsNeitherFamily(c) && Chosen<&S::Memory_Chk, &S::Memory>(c) && !c.Selected.LaunchQspy_Chk;
}

bool UsesResolution(const Composition& c) {
    return c.Profile.UseRez == 1 && c.Profile.ResolutionsPos > -1 && IsNeitherFamily(c);
}

bool UsesQ2Resolution(const Composition& c) {
    return c.Profile.UseRez == 1 && IsQuake2Family(c) && c.Profile.Q2_ResolutionsPos >= 0;
}

bool Windowed(const Composition& c) {
    return c.Profile.Windowed == 1;
}
bool WindowedNotUnreal(const Composition& c) {
    return Windowed(c) && IsNotUnreal(c);
}

bool ScriptIsChosen(const Composition& c) {
    return Chosen<&S::Script_Chk, &S::Script>(c) && !c.Selected.LaunchQspy_Chk;
}

/// A 3D card, and an executable that uses it.
bool GlCard(const Composition& c) {
    return c.Game.UsesAccelerator && c.Game.CardClass >= 1;
}

/// Drawn without a 3D card.
bool Software(const Composition& c) {
    const bool knowsMipCap = c.Game.ScriptFamily == Dialect::Quake || IsQuake2Family(c);
    return !c.Game.UsesAccelerator || (c.Game.CardClass == 0 && knowsMipCap);
}

bool UsesGraphicsDriver(const Composition& c) {
    const Index driver = c.Profile.GraphicsDriver;
    return c.Profile.UseGraphicsDriver == 1 && IsQuake2Family(c) && driver >= 0 && driver <= 7;
}

bool ServerIsChosen(const Composition& c) {
    return !c.Selected.Bench_Chk && Chosen<&S::Server_Chk, &S::Server>(c);
}

bool ServerFromGameSpy(const Composition& c) {
    return !c.Selected.Bench_Chk && c.Selected.QSpy_Chk;
}

bool Benchmark(const Composition& c) {
    return c.Selected.Bench_Chk && !c.Selected.QSpy_Chk && !c.Selected.LaunchQspy_Chk && IsNotUnreal(c);
}

Text MapName(const Composition& c) {
    return LowerCase(*c.Selected.Map);
}
Text DemoCommand(const Composition& c) {
    return *c.Selected.Demo;
}
Text ResolutionPayload(const Composition& c) {
    return Trim(DropLeft(c.Profile.ResolutionsPos_Content, NameFieldWidth));
}
Text Q2Mode(const Composition& c) {
    return std::to_string(c.Profile.Q2_ResolutionsPos);
}

constexpr CompositionScope Every = CompositionScope::Every;
constexpr CompositionScope Not4 = CompositionScope::NotUnreal;
constexpr const char* None = nullptr;
constexpr CompositionCell No;

/// A cell for the Quake II family alone, and one for all others.
constexpr CompositionCell In3(const char* text) {
    return {text, nullptr};
}
constexpr CompositionCell Not3(const char* text) {
    return {nullptr, text};
}

// clang-format off
constexpr CompositionRow kRows[] = {
    // row, step, games, condition, tunable, GameCommand, UnrealCommand, script of Quake, script of Quake II, special
    {1,   20, Every, PlainQuakeOnline,                   None, No, No, No, No, WrapQuake},
    {2,   40, Every, UnrealMap,                          None, No, No, No, No, UnrealMapRule},
    {3,   40, Every, Ticked<&S::UnrealNoDirectSound_Chk>,     None, No, "-nodsound ",  No, No, {}},
    {4,   40, Every, Ticked<&S::UnrealSimulateFirstRun_Chk>,  None, No, "-firstrun ",  No, No, {}},
    {5,   40, Every, Ticked<&S::UnrealDisableLogWindow_Chk>,  None, No, "-nologwin ",  No, No, {}},
    {6,   40, Every, Ticked<&S::UnrealDisableK6Support_Chk>,  None, No, "-nok6 ",      No, No, {}},
    {7,   40, Every, Ticked<&S::UnrealDisableMMXSupport_Chk>, None, No, "-nommx ",     No, No, {}},
    {8,   40, Every, No3dCard,                           None, No, "-nohard ",    No, No, {}},
    {9,   40, Every, IsUnreal,                           None, No, No, No, No, UnrealIniRule},
    {10,  40, Every, IsHlExe,                            None, "-console ",       No, No, No, {}},
    {11,  40, Every, IsNotUnreal,                        None, "-zone 512 ",      No, No, No, {}},
    {12,  40, Every, Chosen<&S::Game_Chk, &S::Game>,     None, No, No, No, No, ModRule},
    {13,  50, Every, MemoryIsChosen,                     None, No, No, No, No, MemoryRule},
    {14,  60, Every, UsesResolution,                     None, "% ",              No, No, No, ResolutionPayload},
    // Kept out on purpose: a profile holds its bit depth, but no launch ever asks a game for one.
    {15,  70, Every, Never,                              None, No, No, No, No, {}},
    {16,  80, Every, WindowedNotUnreal,                  None, "-window ",        No, No, No, {}},
    {17,  80, Every, Ticked<&S::NOLAN_Chk>,              None, "-nolan ",         No, No, No, {}},
    {18,  80, Every, Ticked<&S::NOUDP_Chk>,              None, "-noudp ",         No, No, No, {}},
    {19,  80, Every, ScriptIsChosen,                     None, No, No, No, No, ScriptRule},
    {20,  80, Every, Ticked<&S::NOCDAUDIO_Chk>,          None, Not3("-nocdaudio "), No, No, In3("set cd_nocd 1"), {}},
    {21,  80, Every, GlCard, "GL_ROUND_DOWN", {"+gl_round_down % ", "+GL_ROUND_DOWN % "}, No, No, No, {}},
    {22,  90, Every, Ticked<&S::Dedicated_Chk>,          None, No, No, No, No, DedicatedRule},

    {23, 100, Not4, Windowed, None,                No, No, "_windowed_mouse 1",   "set _windowed_mouse 1",   {}},
    {24, 110, Not4, GlCard,   "Shadows",           In3("+set gl_shadows % "), No, Not3("r_shadows %"), No,   {}},
    {25, 110, Not4, GlCard,   "Mirrors",           No, No, "r_mirroralpha %",     No,                        {}},
    {26, 110, Not4, GlCard,   "WaterAlpha",        No, No, "r_wateralpha %",      No,                        {}},
    {27, 110, Not4, GlCard,   "gl_ztrick",         No, No, "gl_ztrick %",         "set gl_ztrick %",         {}},
    {28, 110, Not4, GlCard,   "gl_keeptjunctions", No, No, "gl_keeptjunctions %", "set gl_keeptjunctions %", {}},
    {29, 110, Not4, GlCard,   "gl_polyblend",      No, No, "gl_polyblend %",      "set gl_polyblend %",      {}},
    {30, 110, Not4, GlCard,   "GL_TEXTUREMODE",    No, No, "GL_TEXTUREMODE %",    "set GL_TEXTUREMODE %",    {}},
    {31, 110, Not4, GlCard,   "GL_FINISH",         No, No, "gl_finish %",         "set gl_finish %",         {}},
    {32, 110, Not4, GlCard,   "GL_FLASHBLEND",     No, No, "gl_flashblend %",     "set gl_flashblend %",     {}},
    {33, 110, Not4, GlCard,   "GL_PLAYERMIP",      No, No, "gl_playermip %",      "set gl_playermip %",      {}},
    {34, 110, Not4, GlCard,   "GL_PICMIP",         No, No, "gl_picmip %",         "set gl_picmip %",         {}},
    {35, 110, Not4, Software, "D_MipCap",          No, No, "d_mipcap %",          "set d_mipcap %",          {}},
    {36, 110, Not4, Chosen<&S::Demo_Chk, &S::Demo>, None, No, No, "%", "%", DemoCommand},
    {37, 120, Not4, UsesQ2Resolution, None, No, No, No, "set sw_mode \"%\"\r\nset gl_mode \"%\"", Q2Mode},
    {38, 120, Not4, Ticked<&S::nosound_chk>, None, In3("+set s_initsound 0 "), No, Not3("nosound 1"), No, {}},
    {39, 120, Not4, UsesGraphicsDriver, None, No, No, No, No, GraphicsDriverRule},

    {40, 130, Every, Ticked<&S::Listen_Chk>, None, Not3("-listen "), No, No, In3("set deathmatch 1"), {}},
    {41, 130, Every, ServerIsChosen,         None, No, No, No, No, ServerRule},
    {42, 140, Every, ServerFromGameSpy,      None, No, No, No, No, GameSpyServerRule},
    {43, 190, Every, OtherMap,               None, No, No, "map %", "map %", MapName},
    {44, 190, Every, Benchmark,              None, No, No,
        "clear\r\n"
        "sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup\r\n"
        "vid_mode 0\r\n"
        "timedemo demo2",
        "viewsize 120\r\n"
        "timedemo 1\r\n"
        "demomap demo1.dm2", {}},
    {45, 205, Every, Ticked<&S::CommandLineAdditions_Chk>, None, No, No, No, No, AdditionsRule},
    {46, 205, Every, Always,                 None, "+exec lv_666.qs ", No, No, No, {}},
};
// clang-format on

static_assert(std::size(kRows) == kCompositionRows);

}  // namespace

std::span<const CompositionRow> CompositionRows() {
    return kRows;
}

}  // namespace lv
