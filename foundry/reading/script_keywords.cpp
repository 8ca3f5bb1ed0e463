#include "foundry/reading/script_keywords.h"

#include <algorithm>
#include <array>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/numbers.h"

namespace lv {

namespace {

using Settings = ScriptSettings;
constexpr auto kUnderstood = LineUse::kUnderstood;
constexpr auto kFreeForm = LineUse::kFreeForm;

/// The echo lines of the banner that the writer puts into each script.
constexpr std::array<TextView, 4> kBannerEchoes = {"|========================|", "|==setup", "|..setup",
                                                   "|........................|"};

constexpr int kListedVideoModes = 11;

bool IsKind(const KeywordContext& context, std::initializer_list<Game> kinds) {
    return std::ranges::find(kinds, context.Document.Dialect.GameKind) != kinds.end();
}

bool IsNewFamily(const KeywordContext& context) {
    return context.Document.Dialect.ScriptFamily == Dialect::Quake2;
}

LineUse SetCheck(CheckBox& check, bool on) {
    check.Value = on ? 1 : 0;
    return kUnderstood;
}

LineUse TakeWeapon(KeywordContext& context, const ScriptLine& line, const KeywordRow&) {
    if (line.Value.empty() || SameText(line.Value, "none")) {
        return kUnderstood;
    }
    auto& weapons = context.Document.WeaponPriority;
    if (line.Index < 0 || line.Index >= static_cast<int>(weapons.size()) ||
        !context.Lists.Add(context.Document.WeaponsAvailable_Lst, line.Value)) {
        return kFreeForm;
    }
    weapons[static_cast<std::size_t>(line.Index)] = line.Value;
    return kUnderstood;
}

LineUse SelectValue(KeywordContext& context, ListBox& list, TextView value) {
    if (!value.empty()) {
        context.Lists.Select(list, value);
    }
    return kUnderstood;
}

LineUse Select(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    return SelectValue(context, context.Document.*row.List, line.Value);
}

LineUse SelectAudio(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    return SelectValue(context, context.Document.UnrealAudio_Cbo[row.Place], line.Value);
}

LineUse SelectPawn(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    return SelectValue(context, context.Document.PlayerPawn_Cbo[row.Place], line.Value);
}

LineUse SelectMouse(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    return SelectValue(context, context.Document.MouseBind_Cbo[row.Place], line.Value);
}

Text ShortestForm(const KeywordContext& context, TextView value) {
    return ReplaceSameLength(NumberText(ToNumber(value)), ".", TextView(&context.Document.Dialect.DecimalSeparator, 1));
}

LineUse SelectNumber(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    if (line.Value.empty()) {
        return kUnderstood;
    }
    return SelectValue(context, context.Document.*row.List, ShortestForm(context, line.Value));
}

/// The whole number as the list's index, if the list has it; -1 is no row, as a script of this program says it.
LineUse RowNumber(KeywordContext& context, ListBox& list, TextView value) {
    const std::int32_t index = ToLong(value);
    if (value.empty() || index < -1 || index >= static_cast<std::int32_t>(list.Items.size())) {
        return SelectValue(context, list, value);
    }
    list.ListIndex = index;
    return kUnderstood;
}

LineUse SelectRow(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    return RowNumber(context, context.Document.*row.List, line.Value);
}

LineUse SelectRowInNewGames(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    const bool byRow = IsKind(context, {Game::Quake2, Game::Sin});
    return byRow ? SelectRow(context, line, row) : Select(context, line, row);
}

/// Heretic II's values are found in the list, but a hand that was not chosen is written as the row -1.
LineUse SelectHand(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    if (IsKind(context, {Game::Heretic2}) && line.Value == "-1") {
        return SelectRow(context, line, row);
    }
    return SelectRowInNewGames(context, line, row);
}

LineUse SelectClass(KeywordContext& context, const ScriptLine& line, const KeywordRow&) {
    if (!IsKind(context, {Game::Hexen2})) {
        return kFreeForm;
    }
    // The game numbers its classes, and so does the list; a name would take part in no comparison of numbers.
    return line.Value.empty() ? kUnderstood
                              : RowNumber(context, context.Document.PlayerClass_Cbo, ShortestForm(context, line.Value));
}

LineUse PutText(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    if (!line.Value.empty()) {
        (context.Document.*row.Box).Text = line.Value;
    }
    return kUnderstood;
}

LineUse PutName(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    if (IsKind(context, {Game::Unreal})) {
        return kFreeForm;
    }
    if (line.Value.empty()) {
        return kUnderstood;
    }
    PutText(context, line, row);
    std::ranges::replace(context.Document.Name_Txt.Text, '\xFF', '\x9F');
    return kUnderstood;
}

LineUse PutRate(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    return context.Document.Dialect.IsQuakeWorld || IsNewFamily(context) ? PutText(context, line, row) : kFreeForm;
}

LineUse KeepSkin(KeywordContext& context, const ScriptLine& line, const KeywordRow&) {
    if (!context.Document.Dialect.IsQuakeWorld && !IsNewFamily(context)) {
        return kFreeForm;
    }
    if (!line.Value.empty()) {
        context.Skin = Text(line.Value);
    }
    return kUnderstood;
}

void SetColor(KeywordContext& context, std::size_t place, std::int32_t number) {
    ColorLabel& label = context.Document.PlayerColor_Lbl[place];
    label.Tag = number;
    if (number >= 0 && static_cast<std::size_t>(number) < ColorTable.size()) {
        label.BackColor = ColorTable[static_cast<std::size_t>(number)];
    }
}

LineUse PutBothColors(KeywordContext& context, const ScriptLine& line, const KeywordRow&) {
    if (!line.Value.empty()) {
        const std::int32_t colors = ToLong(line.Value);
        SetColor(context, 0, colors / 16);
        SetColor(context, 1, colors % 16);
    }
    return kUnderstood;
}

LineUse PutColors(KeywordContext& context, const ScriptLine& line, const KeywordRow&) {
    if (!line.Value.empty()) {
        SetColor(context, 0, ToLong(line.Value));
        SetColor(context, 1, ToLong(line.Value2.empty() ? line.Value : line.Value2));
    }
    return kUnderstood;
}

LineUse TurnOffColors(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    const bool off = SameText(line.Value, "specifycolors") && line.Value2 == "0";
    return off ? SetCheck(context.Document.*row.Check, true) : kUnderstood;
}

LineUse TurnOn(KeywordContext& context, const ScriptLine&, const KeywordRow& row) {
    return SetCheck(context.Document.*row.Check, true);
}

LineUse OnIfOne(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    return line.Value.empty() ? kUnderstood : SetCheck(context.Document.*row.Check, line.Value == "1");
}

LineUse OnIfOneAndEnabled(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    return (context.Document.*row.Check).Enabled ? OnIfOne(context, line, row) : kUnderstood;
}

LineUse OffIfOneAndEnabled(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    CheckBox& check = context.Document.*row.Check;
    return line.Value.empty() || !check.Enabled ? kUnderstood : SetCheck(check, line.Value != "1");
}

LineUse OnIfNumberOne(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    return line.Value.empty() ? kUnderstood : SetCheck(context.Document.*row.Check, ToNumber(line.Value) == 1);
}

LineUse ZeroOrOne(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    const bool tells = line.Value == "0" || line.Value == "1";
    return tells ? SetCheck(context.Document.*row.Check, line.Value == "1") : kUnderstood;
}

LineUse SelectPitch(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    if (line.Value.empty()) {
        return kUnderstood;
    }
    const TextView value = TrimmedView(line.Value);
    const bool negative = value.starts_with('-') && ToNumber(value) < 0;
    SetCheck(context.Document.InvertMouse_Chk, negative);
    return SelectValue(context, context.Document.*row.List, negative ? value.substr(1) : line.Value);
}

LineUse SelectVideoMode(KeywordContext& context, const ScriptLine& line, const KeywordRow& row) {
    if (line.Value.empty()) {
        return kUnderstood;
    }
    ListBox& list = context.Document.*row.List;
    const std::int32_t mode = ToLong(line.Value);
    if (mode >= -1 && mode < kListedVideoModes) {
        list.ListIndex = mode;
        return kUnderstood;
    }
    if (list.Items.size() >= kListedVideoModes + kMostAddedRows) {
        list.Items.pop_back();
    }
    list.Items.push_back(Join(std::to_string(mode), ") Custom VESA Mode"));
    list.ListIndex = static_cast<int>(list.Items.size()) - 1;
    return kUnderstood;
}

LineUse PassOverAlias(KeywordContext& context, const ScriptLine&, const KeywordRow&) {
    return context.Lines.Number() < context.FirstLineWithoutAlias ? kUnderstood : kFreeForm;
}

LineUse BindToSlot(KeywordContext& context, const ScriptLine& line, const KeywordRow&) {
    if (line.Value.empty() || line.Value2.empty()) {
        return kUnderstood;
    }
    const bool unreal = IsKind(context, {Game::Unreal});
    if (unreal && (SameText(line.Value, "escape") || SameText(line.Value, "capslock"))) {
        return kUnderstood;
    }
    const Text key(line.Value);
    Text command(line.Value2);
    context.Lines.Release();
    context.PendingFreeForm = BindLine(context.Document, context.View, key, std::move(command), context.Aliases);
    return kUnderstood;
}

LineUse DropBanner(KeywordContext&, const ScriptLine& line, const KeywordRow&) {
    const bool banner = std::ranges::any_of(kBannerEchoes, [&](TextView echo) { return SameText(line.Value, echo); });
    return banner ? kUnderstood : kFreeForm;
}

// clang-format off
constexpr KeywordRow kKeywords[] = {
    {"weaponpriority",     TakeWeapon},
    {"usedirectsound",     SelectAudio, 0},
    {"usefilter",          SelectAudio, 1},
    {"usesurround",        SelectAudio, 2},
    {"usestereo",          SelectAudio, 3},
    {"usecdmusic",         SelectAudio, 4},
    {"usedigitalmusic",    SelectAudio, 5},
    {"usespatial",         SelectAudio, 6},
    {"usereverb",          SelectAudio, 7},
    {"use3dhardware",      SelectAudio, 8},
    {"lowsoundquality",    SelectAudio, 9},
    {"reversestereo",      SelectAudio, 10},
    {"latency",            SelectAudio, 11},
    {"outputrate",         SelectAudio, 12},
    {"effectschannels",    SelectAudio, 13},
    {"dopplerspeed",       SelectAudio, 14},
    {"musicvolume",        SelectAudio, 15},
    {"soundvolume",        SelectAudio, 16},
    {"ambientfactor",      SelectAudio, 17},
    {"playername",         PutText, &Settings::Name_Txt},
    {"teamname",           PutText, &Settings::UnrealTeamName_Txt},
    {"password",           PutText, &Settings::UnrealPassword_Txt},
    {"dodgeclicktime",     SelectPawn, 0},
    {"bob",                SelectPawn, 1},
    {"myautoaim",          SelectPawn, 2},
    {"handedness",         SelectPawn, 3},
    {"blookupstairs",      SelectPawn, 4},
    {"bsnaptolevel",       SelectPawn, 5},
    {"balwaysmouselook",   SelectPawn, 6},
    {"bkeyboardlook",      SelectPawn, 7},
    {"binvertmouse",       SelectPawn, 8},
    {"mousesensitivity",   SelectPawn, 9},
    {"netspeed",           SelectPawn, 10},
    {"clientnetmindelta",  SelectPawn, 11},
    {"servernetmindelta",  SelectPawn, 12},
    {"mousex",             SelectMouse, 0},
    {"mousey",             SelectMouse, 1},
    {"_cl_color",          PutBothColors},
    {"_cl_name",           PutText, &Settings::Name_Txt},
    {"_cl_playerclass",    SelectClass},
    {"cl_run",             OnIfOne, &Settings::Speed_Chk},
    {"_snd_mixahead",      Select, &Settings::snd_mixahead_Cbo},
    {"s_mixahead",         Select, &Settings::snd_mixahead_Cbo},
    {"+mlook",             TurnOn, &Settings::MLook_Chk},
    {"+speed",             TurnOn, &Settings::Speed_Chk},
    {"alias",              PassOverAlias},
    {"bgmvolume",          Select, &Settings::bgmvolume_Cbo},
    {"bind",               BindToSlot},
    {"cd_nocd",            OffIfOneAndEnabled, &Settings::Q2_EnableCD_Chk},
    {"cl_backspeed",       SelectNumber, &Settings::cl_backspeed_Cbo},
    {"cl_bob",             SelectNumber, &Settings::cl_bob_Cbo},
    {"cl_bobcycle",        SelectNumber, &Settings::cl_bobcycle_Cbo},
    {"cl_bobup",           SelectNumber, &Settings::cl_bobup_Cbo},
    {"cl_forwardspeed",    SelectNumber, &Settings::cl_forwardspeed_Cbo},
    {"cl_pitchspeed",      SelectNumber, &Settings::cl_pitchspeed_Cbo},
    {"cl_rollangle",       SelectNumber, &Settings::cl_rollangle_Cbo},
    {"cl_rollspeed",       SelectNumber, &Settings::cl_rollspeed_Cbo},
    {"cl_sidespeed",       SelectNumber, &Settings::cl_sidespeed_Cbo},
    {"cl_yawspeed",        SelectNumber, &Settings::cl_yawspeed_Cbo},
    {"color",              PutColors},
    {"crosshaircolor",     SelectRow, &Settings::CrossHairColor_Cbo},
    {"crosshair",          SelectRowInNewGames, &Settings::Crosshair_Cbo},
    {"echo",               DropBanner},
    {"fov",                Select, &Settings::fov_Cbo},
    {"freelook",           ZeroOrOne, &Settings::MLook_Chk},
    {"joystick",           ZeroOrOne, &Settings::JoyStick_Chk},
    {"lookspring",         ZeroOrOne, &Settings::LookSpring_Chk},
    {"lookstrafe",         ZeroOrOne, &Settings::LookStrafe_Chk},
    {"noaim",              ZeroOrOne, &Settings::NoAim_Chk},
    {"showpause",          ZeroOrOne, &Settings::ShowPause_Chk},
    {"showram",            ZeroOrOne, &Settings::ShowRAM_Chk},
    {"showturtle",         ZeroOrOne, &Settings::ShowTurtle_Chk},
    {"gamma",              Select, &Settings::gamma_Cbo},
    {"hand",               SelectHand, &Settings::Handed_Cbo},
    {"m_forward",          Select, &Settings::m_forward_Cbo},
    {"m_side",             Select, &Settings::m_side_Cbo},
    {"m_yaw",              Select, &Settings::m_yaw_Cbo},
    {"m_filter",           Select, &Settings::m_filter_Cbo},
    {"sensitivity",        Select, &Settings::MouseSensitivity_Cbo},
    {"m_pitch",            SelectPitch, &Settings::m_pitch_Cbo},
    {"name",               PutName, &Settings::Name_Txt},
    {"rate",               PutRate, &Settings::Rate_Txt},
    {"s_volume",           Select, &Settings::volume_Cbo},
    {"volume",             Select, &Settings::volume_Cbo},
    {"s_wavonly",          OnIfOneAndEnabled, &Settings::Q2_WaveOnly_Chk},
    {"scr_centerspeed",    Select, &Settings::scr_centerspeed_Cbo},
    {"scr_conspeed",       Select, &Settings::scr_conspeed_Cbo},
    {"v_kickpitch",        Select, &Settings::v_kickpitch_Cbo},
    {"v_kickroll",         Select, &Settings::v_kickroll_Cbo},
    {"v_kicktime",         Select, &Settings::v_kicktime_Cbo},
    {"viewsize",           Select, &Settings::viewsize_Cbo},
    {"setupfoundry_info",  TurnOffColors, &Settings::NoColors_Chk},
    {"skin",               KeepSkin},
    {"sv_aim",             OnIfNumberOne, &Settings::NoAim_Chk},
    {"unbindall",          TurnOn, &Settings::Unbindall_Chk},
    {"vid_mode",           SelectVideoMode, &Settings::vidmode_Cbo},
};
// clang-format on

static_assert(std::size(kKeywords) == 96, "the tests list every keyword: put the new one there too");

constexpr auto kByKeyword = [] {
    std::array<const KeywordRow*, std::size(kKeywords)> rows{};
    std::ranges::transform(kKeywords, rows.begin(), [](const KeywordRow& row) { return &row; });
    std::ranges::sort(rows, {}, &KeywordRow::Keyword);
    return rows;
}();

}  // namespace

const KeywordRow* FindKeyword(TextView keyword) {
    const auto* const found = std::ranges::lower_bound(kByKeyword, keyword, {}, &KeywordRow::Keyword);
    return found == kByKeyword.end() || (*found)->Keyword != keyword ? nullptr : *found;
}

}  // namespace lv
