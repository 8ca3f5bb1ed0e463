#include "launcher/window/option_rules.h"

#include <algorithm>
#include <iterator>

#include "foundation/game.h"

namespace lv {

namespace {

using enum Option;

struct ExclusionRow {
    Option Set;
    OptionSet Cleared;
};

// clang-format off
constexpr ExclusionRow kExclusions[] = {
    {Server_Chk, {Dedicated_Chk, Listen_Chk, QSpy_Chk, LaunchQspy_Chk, Demo_Chk, Bench_Chk, Map_Chk}},
    {QSpy_Chk, {Server_Chk, Dedicated_Chk, Listen_Chk, LaunchQspy_Chk, Demo_Chk, Bench_Chk, Map_Chk}},
    {Dedicated_Chk, {Server_Chk, Listen_Chk, QSpy_Chk, LaunchQspy_Chk, Demo_Chk, Bench_Chk}},
    {Listen_Chk, {Server_Chk, Dedicated_Chk, QSpy_Chk, LaunchQspy_Chk, Demo_Chk, Bench_Chk}},
    {Demo_Chk, {Server_Chk, Dedicated_Chk, Listen_Chk, QSpy_Chk, LaunchQspy_Chk, Bench_Chk}},
    {LaunchQspy_Chk, {Server_Chk, Dedicated_Chk, Listen_Chk, QSpy_Chk, Demo_Chk, Bench_Chk, Game_Chk, Map_Chk}},
    {Map_Chk, {Server_Chk, QSpy_Chk, LaunchQspy_Chk, Bench_Chk}},
};
// clang-format on

constexpr Option kGreyedByUnreal[] = {Memory_Chk, Game_Chk, Demo_Chk};

struct RightColumn {
    int ServerTop;
    int QSpyTop;
    int OtherOptsTop;
    int OtherOptsHeight;
};

// Twips. Unreal's own boxes need the room.
constexpr RightColumn kUnrealColumn = {0, 2340, 3360, 2535};
constexpr RightColumn kOtherColumn = {1320, 3660, 4680, 1215};

void ClearAndDisable(CheckBox& box) {
    box.Value = 0;
    box.Enabled = false;
}

void Grey(CheckBox& box) {
    box.Value = box.Value == 1 ? 2 : box.Value;
}

void Ungrey(CheckBox& box) {
    box.Value = box.Value == 2 ? 1 : box.Value;
}

void Place(LV_Frm& window, const RightColumn& column) {
    window.Server_Pan.Top = column.ServerTop;
    window.QSpy_Pan.Top = column.QSpyTop;
    window.OtherOpts_Pan.Top = column.OtherOptsTop;
    window.OtherOpts_Pan.Height = column.OtherOptsHeight;
}

void ApplyWorldClient(LV_Frm& window, bool worldClient) {
    window.Demo_Pan.Enabled = !worldClient;
    for (const Option option : {Listen_Chk, Dedicated_Chk, Bench_Chk, Game_Chk, Map_Chk}) {
        window.Box(option).Enabled = !worldClient;
    }
    if (worldClient) {
        window.Box(Demo_Chk).Value = 0;
        ClearAndDisable(window.Box(Bench_Chk));
        ClearAndDisable(window.Box(Game_Chk));
        ClearAndDisable(window.Box(Map_Chk));
    }
}

void ApplyUnreal(LV_Frm& window) {
    Place(window, kUnrealColumn);
    for (const Option option : kGreyedByUnreal) {
        Grey(window.Box(option));
    }
    window.Memory_Pan.Enabled = window.Mod_Pan.Enabled = window.Demo_Pan.Enabled = false;
    window.Bar(MenuItem::Mem_Bar).Enabled = false;
    for (const OptionBox& row : OptionBoxes()) {
        CheckBox& box = window.Box(row.Box);
        box.Visible = row.Games != OptionGames::NotUnreal;
        box.Value = box.Visible ? box.Value : 0;
    }
    window.Box(Listen_Chk).Enabled = false;
}

// Modifications and demos are there for a world client too: what ApplyWorldClient has taken of them comes back here.
void ApplyOtherGame(LV_Frm& window, const PanelGame& game) {
    Place(window, kOtherColumn);
    window.Memory_Pan.Enabled = window.Mod_Pan.Enabled = window.Demo_Pan.Enabled = true;
    window.Bar(MenuItem::Mem_Bar).Enabled = true;
    window.Box(Game_Chk).Enabled = true;
    for (const Option option : kGreyedByUnreal) {
        Ungrey(window.Box(option));
    }
    for (const OptionBox& row : OptionBoxes()) {
        window.Box(row.Box).Visible = row.Games != OptionGames::Unreal;
    }
    window.Box(Listen_Chk).Enabled = !game.IsQuakeWorld;
}

void ApplyFamily(LV_Frm& window, const PanelGame& game) {
    if (game.ScriptFamily == Dialect::Quake2) {
        ClearAndDisable(window.Box(NOLAN_Chk));
        ClearAndDisable(window.Box(NOUDP_Chk));
        Grey(window.Box(Memory_Chk));
        window.Memory_Pan.Enabled = false;
        window.Bar(MenuItem::Mem_Bar).Enabled = false;
        return;
    }
    for (const Option option : {NOLAN_Chk, NOUDP_Chk, NOCDAUDIO_Chk, nosound_chk}) {
        window.Box(option).Enabled = true;
    }
    window.Memory_Pan.Enabled = true;
    window.Bar(MenuItem::Mem_Bar).Enabled = true;
    Ungrey(window.Box(Memory_Chk));
}

}  // namespace

OptionSet ExcludedBy(Option option) {
    const auto* const row = std::ranges::find(kExclusions, option, &ExclusionRow::Set);
    return row == std::end(kExclusions) ? OptionSet() : row->Cleared;
}

void ApplyGamePanels(LV_Frm& window, const PanelGame& game) {
    ApplyWorldClient(window, game.IsQuakeWorld || game.IsHexenWorld);
    if (game.GameKind == Game::Unreal) {
        ApplyUnreal(window);
    } else {
        ApplyOtherGame(window, game);
    }
    ApplyFamily(window, game);
}

void ApplyEngine(LV_Frm& window, const Engine* engine) {
    CheckBox& box = window.Box(Memory_Chk);
    box.ToolTip = OptionBoxOf(Memory_Chk).ToolTip;
    window.Memory_Pan.ToolTip.clear();
    if (engine == nullptr) {
        return;
    }
    const auto row = std::ranges::find_if(engine->Refused, [](const RefusedSwitch& refused) {
        return refused.Switch == "-winmem" || refused.Switch == "-*";
    });
    if (row == engine->Refused.end()) {
        return;
    }
    box.ToolTip = Join(engine->Name, " ", row->Reason);
    window.Memory_Pan.ToolTip = box.ToolTip;
    window.Memory_Pan.Enabled = false;
    window.Bar(MenuItem::Mem_Bar).Enabled = false;
    Grey(box);
}

void ApplyGameSpyRule(LV_Frm& window) {
    window.DoIt_Cmd[1].Enabled = window.DoIt_Cmd[2].Enabled = window.Box(LaunchQspy_Chk).Value != 1;
}

}  // namespace lv
