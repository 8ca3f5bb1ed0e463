#include "launch/command_line_switches.h"

#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "launch/launch_files.h"
#include "launch/switch_rules.h"

namespace lv {

namespace {

using S = LaunchSelection;
using Step = LaunchStep;
using Time = CompositionTime;

bool Always(const Composition&) {
    return true;
}
bool Never(const Composition&) {
    return false;
}

template <Option Box>
bool Ticked(const Composition& c) {
    return c.Selected.Ticked.Has(Box);
}

/// Ticked, and a row of its list selected.
template <Option Box, std::optional<Text> S::*Row>
bool Chosen(const Composition& c) {
    return c.Selected.Ticked.Has(Box) && (c.Selected.*Row).has_value();
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
    return (c.Selected.Ticked.Has(Option::QSpy_Chk) || c.Selected.Ticked.Has(Option::Server_Chk)) &&
           Trim(c.Texts.GameCommand) == "QUAKE.EXE";
}

constexpr auto MapIsChosen = Chosen<Option::Map_Chk, &S::Map>;
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
    return IsNeitherFamily(c) && Chosen<Option::Memory_Chk, &S::Memory>(c) &&
           !c.Selected.Ticked.Has(Option::LaunchQspy_Chk);
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
    return Chosen<Option::Script_Chk, &S::Script>(c) && !c.Selected.Ticked.Has(Option::LaunchQspy_Chk);
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
    return !c.Selected.Ticked.Has(Option::Bench_Chk) && Chosen<Option::Server_Chk, &S::Server>(c);
}

bool ServerFromGameSpy(const Composition& c) {
    return !c.Selected.Ticked.Has(Option::Bench_Chk) && c.Selected.Ticked.Has(Option::QSpy_Chk);
}

bool Benchmark(const Composition& c) {
    return c.Selected.Ticked.Has(Option::Bench_Chk) && !c.Selected.Ticked.Has(Option::QSpy_Chk) &&
           !c.Selected.Ticked.Has(Option::LaunchQspy_Chk) && IsNotUnreal(c);
}

Text MapName(const Composition& c) {
    return LowerCase(*c.Selected.Map);
}
Text DemoCommand(const Composition& c) {
    return *c.Selected.Demo;
}
Text ResolutionPayload(const Composition& c) {
    return ItemValue(c.Profile.ResolutionsPos_Content);
}
Text Q2Mode(const Composition& c) {
    return std::to_string(c.Profile.Q2_ResolutionsPos);
}
Text ScriptName(const Composition&) {
    return Text(kLaunchScriptFile);
}

constexpr CompositionScope Every = CompositionScope::Every;
constexpr CompositionScope NotUnreal = CompositionScope::NotUnreal;
constexpr const char* None = nullptr;
constexpr CompositionCell No;

/// A cell for the Quake II family alone, and one for all others.
constexpr CompositionCell ForQuake2(const char* text) {
    return {text, nullptr};
}
constexpr CompositionCell ForOthers(const char* text) {
    return {nullptr, text};
}

// clang-format off
constexpr CompositionRow kRows[] = {
    // step, games, condition, tunable, GameCommand, UnrealCommand, script of Quake, script of Quake II, special, time
    {Step::Executable,      Every, PlainQuakeOnline,                   None, No, No, No, No, WrapQuake},
    {Step::Switches,        Every, UnrealMap,                          None, No, No, No, No, UnrealMapRule},
    {Step::Switches,        Every, Ticked<Option::UnrealNoDirectSound_Chk>,     None, No, "-nodsound ",  No, No, {}},
    {Step::Switches,        Every, Ticked<Option::UnrealSimulateFirstRun_Chk>,  None, No, "-firstrun ",  No, No, {}},
    {Step::Switches,        Every, Ticked<Option::UnrealDisableLogWindow_Chk>,  None, No, "-nologwin ",  No, No, {}},
    {Step::Switches,        Every, Ticked<Option::UnrealDisableK6Support_Chk>,  None, No, "-nok6 ",      No, No, {}},
    {Step::Switches,        Every, Ticked<Option::UnrealDisableMMXSupport_Chk>, None, No, "-nommx ",     No, No, {}},
    {Step::Switches,        Every, No3dCard,                           None, No, "-nohard ",    No, No, {}},
    {Step::Switches,        Every, IsUnreal,                           None, No, No, No, No, UnrealIniRule},
    {Step::Switches,        Every, IsHlExe,                            None, "-console ",       No, No, No, {}},
    {Step::Switches,        Every, IsNotUnreal,                        None, "-zone 512 ",      No, No, No, {}},
    {Step::Switches,        Every, Chosen<Option::Game_Chk, &S::Game>,     None, No, No, No, No, ModRule},
    {Step::Memory,          Every, MemoryIsChosen,                     None, No, No, No, No, MemoryRule},
    {Step::Resolution,      Every, UsesResolution,                     None, "% ",              No, No, No, ResolutionPayload},
    // Kept out on purpose: a profile holds its bit depth, but no launch ever asks a game for one.
    {Step::BitDepth,        Every, Never,                              None, No, No, No, No, {}},
    {Step::PlayerScript,    Every, WindowedNotUnreal,                  None, "-window ",        No, No, No, {}},
    {Step::PlayerScript,    Every, Ticked<Option::NOLAN_Chk>,              None, "-nolan ",         No, No, No, {}},
    {Step::PlayerScript,    Every, Ticked<Option::NOUDP_Chk>,              None, "-noudp ",         No, No, No, {}},
    {Step::PlayerScript,    Every, ScriptIsChosen,                     None, No, No, No, No, ScriptRule},
    {Step::PlayerScript,    Every, Ticked<Option::NOCDAUDIO_Chk>,          None, ForOthers("-nocdaudio "), No, No, ForQuake2("set cd_nocd 1"), {}},
    {Step::PlayerScript,    Every, GlCard, "GL_ROUND_DOWN", {"+gl_round_down % ", "+GL_ROUND_DOWN % "}, No, No, No, {}},
    {Step::DedicatedServer, Every, Ticked<Option::Dedicated_Chk>,          None, No, No, No, No, DedicatedRule},

    {Step::Mouse,           NotUnreal, Windowed, None,                No, No, "_windowed_mouse 1",   "set _windowed_mouse 1",   {}},
    {Step::Drawing,         NotUnreal, GlCard,   "Shadows",           ForQuake2("+set gl_shadows % "), No, ForOthers("r_shadows %"), No,   {}},
    {Step::Drawing,         NotUnreal, GlCard,   "Mirrors",           No, No, "r_mirroralpha %",     No,                        {}},
    {Step::Drawing,         NotUnreal, GlCard,   "WaterAlpha",        No, No, "r_wateralpha %",      No,                        {}},
    {Step::Drawing,         NotUnreal, GlCard,   "gl_ztrick",         No, No, "gl_ztrick %",         "set gl_ztrick %",         {}},
    {Step::Drawing,         NotUnreal, GlCard,   "gl_keeptjunctions", No, No, "gl_keeptjunctions %", "set gl_keeptjunctions %", {}},
    {Step::Drawing,         NotUnreal, GlCard,   "gl_polyblend",      No, No, "gl_polyblend %",      "set gl_polyblend %",      {}},
    {Step::Drawing,         NotUnreal, GlCard,   "GL_TEXTUREMODE",    No, No, "GL_TEXTUREMODE %",    "set GL_TEXTUREMODE %",    {}},
    {Step::Drawing,         NotUnreal, GlCard,   "GL_FINISH",         No, No, "gl_finish %",         "set gl_finish %",         {}},
    {Step::Drawing,         NotUnreal, GlCard,   "GL_FLASHBLEND",     No, No, "gl_flashblend %",     "set gl_flashblend %",     {}},
    {Step::Drawing,         NotUnreal, GlCard,   "GL_PLAYERMIP",      No, No, "gl_playermip %",      "set gl_playermip %",      {}},
    {Step::Drawing,         NotUnreal, GlCard,   "GL_PICMIP",         No, No, "gl_picmip %",         "set gl_picmip %",         {}},
    {Step::Drawing,         NotUnreal, Software, "D_MipCap",          No, No, "d_mipcap %",          "set d_mipcap %",          {}},
    {Step::Drawing,         NotUnreal, Chosen<Option::Demo_Chk, &S::Demo>, None, No, No, "%", "%", DemoCommand},
    {Step::GraphicsDriver,  NotUnreal, UsesQ2Resolution, None, No, No, No, "set sw_mode \"%\"\r\nset gl_mode \"%\"", Q2Mode},
    {Step::GraphicsDriver,  NotUnreal, Ticked<Option::nosound_chk>, None, ForQuake2("+set s_initsound 0 "), No, ForOthers("nosound 1"), No, {}},
    {Step::GraphicsDriver,  NotUnreal, UsesGraphicsDriver, None, No, No, No, No, GraphicsDriverRule},

    {Step::Server,          Every, Ticked<Option::Listen_Chk>, None, ForOthers("-listen "), No, No, ForQuake2("set deathmatch 1"), {}},
    {Step::Server,          Every, ServerIsChosen,         None, No, No, No, No, ServerRule},
    {Step::GameSpyServer,   Every, ServerFromGameSpy,      None, No, No, No, No, GameSpyServerRule},
    {Step::StartMap,        Every, OtherMap,               None, No, No, "map %", "map %", MapName},
    {Step::StartMap,        Every, Benchmark,              None, No, No,
        "clear\r\n"
        "sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup;sizeup\r\n"
        "vid_mode 0\r\n"
        "timedemo demo2",
        "viewsize 120\r\n"
        "timedemo 1\r\n"
        "demomap demo1.dm2", {}},
    {Step::LaunchScript,    Every, Ticked<Option::CommandLineAdditions_Chk>, None, No, No, No, No, AdditionsRule, Time::BeforeScript},
    {Step::LaunchScript,    Every, Always,                 None, "+exec % ",         No, No, No, ScriptName, Time::ScriptWritten},
};
// clang-format on

}  // namespace

std::span<const CompositionRow> CompositionRows() {
    return kRows;
}

}  // namespace lv
