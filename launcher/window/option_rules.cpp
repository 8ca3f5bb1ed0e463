#include "launcher/window/option_rules.h"

#include "foundation/game.h"

namespace lv {

namespace {

using Box = CheckBox LV_Frm::*;

struct ExclusionRow {
    Box Set;
    std::vector<Box> Cleared;
};

const std::vector<ExclusionRow>& Exclusions() {
    // clang-format off
    static const std::vector<ExclusionRow> rows = {
        {&LV_Frm::Server_Chk, {&LV_Frm::Dedicated_Chk, &LV_Frm::Listen_Chk, &LV_Frm::QSpy_Chk, &LV_Frm::LaunchQspy_Chk, &LV_Frm::Demo_Chk, &LV_Frm::Bench_Chk, &LV_Frm::Map_Chk}},
        {&LV_Frm::QSpy_Chk, {&LV_Frm::Server_Chk, &LV_Frm::Dedicated_Chk, &LV_Frm::Listen_Chk, &LV_Frm::LaunchQspy_Chk, &LV_Frm::Demo_Chk, &LV_Frm::Bench_Chk, &LV_Frm::Map_Chk}},
        {&LV_Frm::Dedicated_Chk, {&LV_Frm::Server_Chk, &LV_Frm::Listen_Chk, &LV_Frm::QSpy_Chk, &LV_Frm::LaunchQspy_Chk, &LV_Frm::Demo_Chk, &LV_Frm::Bench_Chk}},
        {&LV_Frm::Listen_Chk, {&LV_Frm::Server_Chk, &LV_Frm::Dedicated_Chk, &LV_Frm::QSpy_Chk, &LV_Frm::LaunchQspy_Chk, &LV_Frm::Demo_Chk, &LV_Frm::Bench_Chk}},
        {&LV_Frm::Demo_Chk, {&LV_Frm::Server_Chk, &LV_Frm::Dedicated_Chk, &LV_Frm::Listen_Chk, &LV_Frm::QSpy_Chk, &LV_Frm::LaunchQspy_Chk, &LV_Frm::Bench_Chk}},
        {&LV_Frm::LaunchQspy_Chk, {&LV_Frm::Server_Chk, &LV_Frm::Dedicated_Chk, &LV_Frm::Listen_Chk, &LV_Frm::QSpy_Chk, &LV_Frm::Demo_Chk, &LV_Frm::Bench_Chk, &LV_Frm::Game_Chk, &LV_Frm::Map_Chk}},
        {&LV_Frm::Map_Chk, {&LV_Frm::Server_Chk, &LV_Frm::QSpy_Chk, &LV_Frm::LaunchQspy_Chk, &LV_Frm::Bench_Chk}},
    };
    // clang-format on
    return rows;
}

constexpr Box kUnrealBoxes[] = {
    &LV_Frm::UnrealSimulateFirstRun_Chk,  &LV_Frm::UnrealDisableLogWindow_Chk, &LV_Frm::UnrealDisableK6Support_Chk,
    &LV_Frm::UnrealDisableMMXSupport_Chk, &LV_Frm::UnrealNoDirectSound_Chk,    &LV_Frm::UnrealNoCDNeeded_Chk,
};

constexpr Box kNotForUnreal[] = {&LV_Frm::NOCDAUDIO_Chk, &LV_Frm::NOUDP_Chk, &LV_Frm::NOLAN_Chk, &LV_Frm::Bench_Chk};

constexpr Box kGreyedByUnreal[] = {&LV_Frm::Memory_Chk, &LV_Frm::Game_Chk, &LV_Frm::Demo_Chk};

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
    for (const Box box :
         {&LV_Frm::Listen_Chk, &LV_Frm::Dedicated_Chk, &LV_Frm::Bench_Chk, &LV_Frm::Game_Chk, &LV_Frm::Map_Chk}) {
        (window.*box).Enabled = !worldClient;
    }
    if (worldClient) {
        window.Demo_Chk.Value = 0;
        ClearAndDisable(window.Bench_Chk);
        ClearAndDisable(window.Game_Chk);
        ClearAndDisable(window.Map_Chk);
    }
}

void ApplyUnreal(LV_Frm& window) {
    Place(window, kUnrealColumn);
    for (const Box box : kGreyedByUnreal) {
        Grey(window.*box);
    }
    window.Memory_Pan.Enabled = window.Mod_Pan.Enabled = window.Demo_Pan.Enabled = false;
    window.Bar(MenuItem::Mem_Bar).Enabled = false;
    for (const Box box : kNotForUnreal) {
        (window.*box).Value = 0;
        (window.*box).Visible = false;
    }
    window.Listen_Chk.Enabled = false;
    for (const Box box : kUnrealBoxes) {
        (window.*box).Visible = true;
    }
}

// Modifications and demos are there for a world client too: what ApplyWorldClient has taken of them comes back here.
void ApplyOtherGame(LV_Frm& window, const PanelGame& game) {
    Place(window, kOtherColumn);
    window.Memory_Pan.Enabled = window.Mod_Pan.Enabled = window.Demo_Pan.Enabled = true;
    window.Bar(MenuItem::Mem_Bar).Enabled = true;
    window.Game_Chk.Enabled = true;
    for (const Box box : kGreyedByUnreal) {
        Ungrey(window.*box);
    }
    for (const Box box : kNotForUnreal) {
        (window.*box).Visible = true;
    }
    window.Listen_Chk.Enabled = !game.IsQuakeWorld;
    for (const Box box : kUnrealBoxes) {
        (window.*box).Visible = false;
    }
}

void ApplyFamily(LV_Frm& window, const PanelGame& game) {
    if (game.ScriptFamily == Dialect::Quake2) {
        ClearAndDisable(window.NOLAN_Chk);
        ClearAndDisable(window.NOUDP_Chk);
        Grey(window.Memory_Chk);
        window.Memory_Pan.Enabled = false;
        window.Bar(MenuItem::Mem_Bar).Enabled = false;
        return;
    }
    for (const Box box : {&LV_Frm::NOLAN_Chk, &LV_Frm::NOUDP_Chk, &LV_Frm::NOCDAUDIO_Chk, &LV_Frm::nosound_chk}) {
        (window.*box).Enabled = true;
    }
    window.Memory_Pan.Enabled = true;
    window.Bar(MenuItem::Mem_Bar).Enabled = true;
    Ungrey(window.Memory_Chk);
}

}  // namespace

const std::vector<CheckBox LV_Frm::*>& ExcludedBy(CheckBox LV_Frm::*box) {
    static const std::vector<Box> none;
    for (const ExclusionRow& row : Exclusions()) {
        if (row.Set == box) {
            return row.Cleared;
        }
    }
    return none;
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

void ApplyGameSpyRule(LV_Frm& window) {
    window.DoIt_Cmd[1].Enabled = window.DoIt_Cmd[2].Enabled = window.LaunchQspy_Chk.Value != 1;
}

}  // namespace lv
