#include "foundry/tables/setting_lists.h"

#include <array>
#include <iterator>

namespace lv {

namespace {

/// Values from First to Last, both ends included, all in units of the list's last decimal.
struct Steps {
    int First;
    int Last;
    int Step;
};

struct ListRule {
    ListBox ScriptSettings::*List;
    int Decimals;
    std::array<Steps, 4> Runs;  // a step of 0: not in use
};

using S = ScriptSettings;

// clang-format off
constexpr ListRule kRules[] = {
    {&S::snd_mixahead_Cbo,     2, {{{5, 100, 5}}}},
    {&S::bgmvolume_Cbo,        1, {{{0, 11, 1}}}},
    {&S::volume_Cbo,           1, {{{0, 11, 1}}}},
    {&S::cl_backspeed_Cbo,     0, {{{50, 400, 25}}}},
    {&S::cl_forwardspeed_Cbo,  0, {{{50, 400, 25}}}},
    {&S::cl_sidespeed_Cbo,     0, {{{50, 400, 25}}}},
    {&S::cl_bob_Cbo,           2, {{{0, 8, 1}}}},
    {&S::cl_bobcycle_Cbo,      1, {{{1, 20, 1}}}},
    {&S::gamma_Cbo,            1, {{{1, 20, 1}}}},
    {&S::cl_bobup_Cbo,         1, {{{0, 10, 1}}}},
    {&S::cl_pitchspeed_Cbo,    0, {{{50, 700, 50}}}},
    {&S::cl_rollangle_Cbo,     0, {{{0, 10, 2}}}},
    {&S::cl_rollspeed_Cbo,     0, {{{0, 400, 50}}}},
    {&S::cl_yawspeed_Cbo,      0, {{{50, 200, 10}, {300, 1000, 100}}}},
    {&S::fov_Cbo,              0, {{{15, 360, 5}}}},
    {&S::m_forward_Cbo,        0, {{{0, 5, 1}}}},
    {&S::m_pitch_Cbo,          3, {{{5, 10, 5}, {22, 22, 1}, {30, 100, 10}}}},
    {&S::m_yaw_Cbo,            3, {{{5, 10, 5}, {22, 22, 1}, {30, 100, 10}}}},
    {&S::m_side_Cbo,           1, {{{1, 10, 1}, {20, 100, 10}}}},
    {&S::scr_centerspeed_Cbo,  0, {{{0, 30, 1}}}},
    {&S::scr_conspeed_Cbo,     0, {{{100, 500, 100}, {1000, 2000, 1000}, {10000, 10000, 1}}}},
    {&S::MouseSensitivity_Cbo, 1, {{{500, 0, -5}}}},
    {&S::v_kickpitch_Cbo,      1, {{{0, 30, 1}}}},
    {&S::v_kickroll_Cbo,       1, {{{0, 30, 1}}}},
    {&S::v_kicktime_Cbo,       1, {{{0, 30, 1}}}},
    {&S::viewsize_Cbo,         0, {{{20, 130, 10}}}},
};
// clang-format on

constexpr TextView kVidModes[] = {"0) 320x200", "1) 320x200", "2) 360x200", "3) 320x240", "4) 360x240", "5) 320x350",
                                  "6) 360x350", "7) 320x400", "8) 360x400", "9) 320x480", "10) 360x480"};

/// 22 with 3 decimals is "0.022".
Text FormatUnits(int units, int decimals, char separator) {
    Text digits = std::to_string(units);
    const auto width = static_cast<std::size_t>(decimals);
    if (width == 0) {
        return digits;
    }
    if (digits.size() <= width) {
        digits.insert(0, width + 1 - digits.size(), '0');
    }
    digits.insert(digits.size() - width, 1, separator);
    return digits;
}

void Fill(ListBox& list, const ListRule& rule, char separator) {
    list.Clear();
    for (const Steps& run : rule.Runs) {
        if (run.Step == 0) {
            continue;
        }
        const int count = (run.Last - run.First) / run.Step + 1;
        for (int i = 0; i < count; ++i) {
            list.Items.push_back(FormatUnits(run.First + i * run.Step, rule.Decimals, separator));
        }
    }
}

}  // namespace

void FillSettingLists(ScriptSettings& settings, char decimalSeparator) {
    for (const ListRule& rule : kRules) {
        Fill(settings.*rule.List, rule, decimalSeparator);
    }
    settings.vidmode_Cbo.Clear();
    settings.vidmode_Cbo.Items.assign(std::begin(kVidModes), std::end(kVidModes));
}

}  // namespace lv
