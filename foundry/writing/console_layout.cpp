#include "foundry/writing/console_layout.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/numbers.h"
#include "foundry/tables/skin_files.h"
#include "foundry/writing/banners.h"
#include "foundry/writing/value_text.h"

namespace lv {

namespace {

constexpr std::size_t kRoomForTheEnd = 256;  // what stands behind the free form

struct ListLine {
    TextView Name;
    ListBox ScriptSettings::*List;
};

struct CheckLine {
    TextView Name;
    CheckBox ScriptSettings::*Box;
};

constexpr CheckLine kInputChecks[] = {
    {"joystick", &ScriptSettings::JoyStick_Chk},
    {"lookstrafe", &ScriptSettings::LookStrafe_Chk},
    {"lookspring", &ScriptSettings::LookSpring_Chk},
};

constexpr CheckLine kIconChecks[] = {
    {"showturtle", &ScriptSettings::ShowTurtle_Chk},
    {"showram", &ScriptSettings::ShowRAM_Chk},
    {"showpause", &ScriptSettings::ShowPause_Chk},
};

constexpr ListLine kSpeedLists[] = {
    {"cl_forwardspeed", &ScriptSettings::cl_forwardspeed_Cbo},
    {"cl_backspeed", &ScriptSettings::cl_backspeed_Cbo},
    {"cl_sidespeed", &ScriptSettings::cl_sidespeed_Cbo},
    {"cl_pitchspeed", &ScriptSettings::cl_pitchspeed_Cbo},
    {"cl_yawspeed", &ScriptSettings::cl_yawspeed_Cbo},
    {"scr_conspeed", &ScriptSettings::scr_conspeed_Cbo},
    {"scr_centerspeed", &ScriptSettings::scr_centerspeed_Cbo},
    {"sensitivity", &ScriptSettings::MouseSensitivity_Cbo},
    {"m_forward", &ScriptSettings::m_forward_Cbo},
};

constexpr ListLine kMouseLists[] = {
    {"m_side", &ScriptSettings::m_side_Cbo},
    {"m_yaw", &ScriptSettings::m_yaw_Cbo},
    {"m_filter", &ScriptSettings::m_filter_Cbo},
};

constexpr ListLine kOldSoundLists[] = {
    {"bgmvolume", &ScriptSettings::bgmvolume_Cbo},
    {"volume", &ScriptSettings::volume_Cbo},
    {"_snd_mixahead", &ScriptSettings::snd_mixahead_Cbo},
};

constexpr ListLine kNewSoundLists[] = {
    {"bgmvolume", &ScriptSettings::bgmvolume_Cbo},
    {"s_volume", &ScriptSettings::volume_Cbo},
    {"s_mixahead", &ScriptSettings::snd_mixahead_Cbo},
};

constexpr ListLine kViewLists[] = {
    {"viewsize", &ScriptSettings::viewsize_Cbo},
    {"gamma", &ScriptSettings::gamma_Cbo},
    {"fov", &ScriptSettings::fov_Cbo},
    {"cl_rollangle", &ScriptSettings::cl_rollangle_Cbo},
    {"cl_rollspeed", &ScriptSettings::cl_rollspeed_Cbo},
    {"v_kickpitch", &ScriptSettings::v_kickpitch_Cbo},
    {"v_kickroll", &ScriptSettings::v_kickroll_Cbo},
    {"v_kicktime", &ScriptSettings::v_kicktime_Cbo},
    {"cl_bob", &ScriptSettings::cl_bob_Cbo},
    {"cl_bobcycle", &ScriptSettings::cl_bobcycle_Cbo},
    {"cl_bobup", &ScriptSettings::cl_bobup_Cbo},
};

// The keypad.
constexpr KeyIndex kFirstKeypadKey = 82;
constexpr KeyIndex kLastKeypadKey = 95;

constexpr int kFirstWholeColor = 256;
constexpr std::size_t kColorNumberLength = 3;  // "015 -White"

constexpr TextView kTwoSigns = "--";  // a pitch that was negative, inverted

/// One script on its way.
struct Writing {
    const ScriptDocument& Document;
    bool IsNew = false;  // of the newer family
    TextView Prefix;     // "set ", or nothing
    Text Script;
};

TextView Digit(const CheckBox& box) {
    return box.Value == 1 ? "1" : "0";
}

bool IsOn(const CheckBox& box) {
    return box.Value == 1;
}

template <std::size_t Count>
void AddChecks(Writing& w, const CheckLine (&rows)[Count]) {
    for (const CheckLine& row : rows) {
        AddLine(w.Script, w.Prefix, row.Name, Blank, Digit(w.Document.*row.Box));
    }
}

template <std::size_t Count>
void AddLists(Writing& w, const ListLine (&rows)[Count]) {
    for (const ListLine& row : rows) {
        const ListBox& list = w.Document.*row.List;
        if (list.HasSelection()) {
            AddLine(w.Script, w.Prefix, row.Name, Blank, ValueText(list, w.Document.Dialect));
        }
    }
}

void AddHeader(Writing& w, const LocalTime& date) {
    AddLine(w.Script);
    AddLine(w.Script, kBannerEdge);
    AddLine(w.Script, kBannerGap);
    AddLine(w.Script, kSetupFoundryLine);
    AddLine(w.Script, kBannerGap);
    AddDateLine(w.Script, date);
    AddLine(w.Script, kBannerGap);
    AddLine(w.Script, kBannerEdge);
    AddLine(w.Script);
    AddEchoLines(w.Script);
    AddLine(w.Script);
    AddBanner(w.Script, kSettingsLine);
    AddLine(w.Script);
}

void AddColors(Writing& w) {
    if (IsOn(w.Document.NoColors_Chk)) {
        AddLine(w.Script, "setupfoundry_info specifycolors 0");
        return;
    }
    const std::int64_t top = w.Document.PlayerColor_Lbl[0].Tag;  // any number that a script gave
    const std::int64_t bottom = w.Document.PlayerColor_Lbl[1].Tag;
    AddLine(w.Script, "color ", std::to_string(top), Blank, std::to_string(bottom));
    AddLine(w.Script, "_cl_color ", std::to_string(top * 16 + bottom));
}

void AddSkinFile(Writing& w) {
    const ListBox& files = w.Document.Skin_Fil;
    if (w.Document.Dialect.IsQuakeWorld && files.HasSelection()) {
        Text name = files.Selected();
        if (LowerCase(name).ends_with(kSkinEnding)) {
            name = DropRight(name, kSkinEnding.size());
        }
        AddLine(w.Script, "skin ", name);
    }
}

void AddPlayer(Writing& w) {
    const ScriptDocument& document = w.Document;
    // The first name is the format's own and always there; the second, which counts, is the player's.
    AddLine(w.Script, "name \"player\"");
    AddLine(w.Script, "name \"", Trim(document.Name_Txt.Text), DoubleQuote);
    if (w.IsNew) {
        AddLine(w.Script, "skin \"", document.Sex_Cbo.Selected(), "/", document.Skin_Cbo.Selected(), DoubleQuote);
        AddLine(w.Script, "hand \"", std::to_string(document.Handed_Cbo.ListIndex), DoubleQuote);
    } else {
        AddColors(w);
    }
    AddSkinFile(w);
    if (document.Dialect.GameKind == Game::Hexen2) {
        AddLine(w.Script, "_cl_playerclass \"", std::to_string(document.PlayerClass_Cbo.ListIndex), DoubleQuote);
    }
}

void AddLook(Writing& w) {
    const CheckBox& look = w.Document.MLook_Chk;
    if (w.IsNew && w.Document.Dialect.GameKind != Game::HalfLife) {
        AddLine(w.Script, w.Prefix, "freelook ", Digit(look));
    } else if (IsOn(look)) {
        AddLine(w.Script, "+mlook");
    }
}

void AddRun(Writing& w) {
    const CheckBox& speed = w.Document.Speed_Chk;
    if (!IsOn(speed)) {
        return;
    }
    if (w.IsNew) {
        AddLine(w.Script, w.Prefix, "cl_run ", Digit(speed));
    } else {
        AddLine(w.Script, "+speed");
    }
}

// The crosshair's colour belongs to the client of QuakeWorld; plain Quake knows none.
bool HasCrosshairColor(const ScriptDialect& dialect) {
    return dialect.GameKind != Game::Quake || dialect.IsQuakeWorld;
}

void AddCrosshair(Writing& w) {
    const ListBox& crosshair = w.Document.Crosshair_Cbo;
    const ListBox& color = w.Document.CrossHairColor_Cbo;
    if (crosshair.HasSelection()) {
        AddLine(w.Script, w.Prefix, "crosshair ", std::to_string(crosshair.ListIndex));
    }
    if (color.HasSelection() && HasCrosshairColor(w.Document.Dialect)) {
        // It is the crosshair's row that decides, kept on purpose: a row that far down was added from a script.
        const Text whole = color.Selected();
        AddLine(w.Script, w.Prefix, "crosshaircolor ",
                crosshair.ListIndex >= kFirstWholeColor ? whole : whole.substr(0, kColorNumberLength));
    }
}

void AddPitch(Writing& w) {
    const ListBox& list = w.Document.m_pitch_Cbo;
    const bool inverted = IsOn(w.Document.InvertMouse_Chk);
    if (!list.HasSelection() && !inverted) {
        return;
    }
    Text pitch = list.HasSelection() ? ValueText(list, w.Document.Dialect) : "0.022";
    if (inverted) {
        pitch = Join("-", pitch);
    }
    if (pitch.starts_with(kTwoSigns)) {
        pitch = DropLeft(pitch, kTwoSigns.size());
    }
    AddLine(w.Script, w.Prefix, "m_pitch ", pitch);
}

void AddSound(Writing& w) {
    if (!w.IsNew) {
        AddLists(w, kOldSoundLists);
        return;
    }
    AddLine(w.Script, w.Prefix, "cd_nocd ", IsOn(w.Document.Q2_EnableCD_Chk) ? "0" : "1");
    AddLine(w.Script, w.Prefix, "s_wavonly ", Digit(w.Document.Q2_WaveOnly_Chk));
    AddLists(w, kNewSoundLists);
}

void AddVideoMode(Writing& w) {
    const ListBox& mode = w.Document.vidmode_Cbo;
    if (mode.HasSelection()) {
        const Text entry = mode.Selected();
        AddLine(w.Script, w.Prefix, "vid_mode ", TextView(entry).substr(0, entry.find(')')));
    }
}

void AddRate(Writing& w) {
    if (!w.Document.Dialect.IsQuakeWorld && !w.IsNew) {
        return;
    }
    const Text rate = NumberText(ToNumber(w.Document.Rate_Txt.Text));
    if (rate > "0") {  // as text
        AddLine(w.Script, "rate ", rate);
    }
}

void AddSettings(Writing& w) {
    AddPlayer(w);
    AddLook(w);
    AddChecks(w, kInputChecks);
    AddRun(w);
    AddLine(w.Script, w.Prefix, w.IsNew ? "sv_aim " : "noaim ", Digit(w.Document.NoAim_Chk));
    AddChecks(w, kIconChecks);
    AddCrosshair(w);
    AddLists(w, kSpeedLists);
    AddPitch(w);
    AddLists(w, kMouseLists);
    AddSound(w);
    AddVideoMode(w);
    AddLists(w, kViewLists);
    AddRate(w);
}

void AddAliases(Writing& w) {
    const AliasList& aliases = w.Document.AliasTable;
    if (aliases.empty()) {
        return;
    }
    AddLine(w.Script);
    AddBanner(w.Script, kAliasesLine);
    AddLine(w.Script);
    for (std::size_t i = 0; i < aliases.AliasCount(); ++i) {
        AddLine(w.Script, "alias \"", aliases[i].Name, "\" \"", aliases[i].Body, DoubleQuote);
    }
}

void AddBindings(Writing& w) {
    AddLine(w.Script);
    AddBanner(w.Script, kBindingsLine);
    AddLine(w.Script);
    if (IsOn(w.Document.Unbindall_Chk)) {
        AddLine(w.Script, "unbindall  // removes all existing bindings before applying these...");
        AddLine(w.Script);
    }
    const KeyStyle style = StyleOfFamily(w.Document.Dialect.ScriptFamily);
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        const Text& command = w.Document.KeyBinding[static_cast<std::size_t>(key)];
        if (command.empty() || !IsWrittenKey(key, w.Document.Dialect.ScriptFamily)) {
            continue;
        }
        const WrittenKey name = KeyName(key, style);
        AddBindLine(w.Script, name.Name, command == kEmptyCommand ? TextView() : TextView(command), name.Comment);
    }
}

void AddFreeForm(Writing& w) {
    const auto& sections = w.Document.Sections;
    if (sections.empty() || sections.front().Text.empty()) {
        return;
    }
    AddLine(w.Script);
    AddBanner(w.Script, kFreeFormLine);
    AddLine(w.Script);
    w.Script.reserve(w.Script.size() + sections.front().Text.size() + kRoomForTheEnd);
    w.Script += sections.front().Text;
}

void AddEnd(Writing& w) {
    AddLine(w.Script);
    AddLine(w.Script);
    AddBanner(w.Script, kSetupFoundryLine);
    w.Script.resize(w.Script.size() - NewLine.size());
}

// The game tells the letter case of this one, and reading a script has lowered it.
void RaiseWeaponName(Text& script) {
    constexpr TextView kLowered = "weapon_9mmar";
    constexpr TextView kOwn = "weapon_9mmAR";
    for (std::size_t at = script.find(kLowered); at != Text::npos; at = script.find(kLowered, at)) {
        script.replace(at, kOwn.size(), kOwn);
    }
}

}  // namespace

bool IsWrittenKey(KeyIndex key, Dialect family) {
    return key < kFirstKeypadKey || key > kLastKeypadKey || family == Dialect::Quake2;
}

Text ConsoleScript(const ScriptDocument& document, const LocalTime& date) {
    const Game kind = document.Dialect.GameKind;
    Writing w = {document, document.Dialect.ScriptFamily == Dialect::Quake2, "", {}};
    if (kind == Game::Quake2 || kind == Game::Sin) {
        w.Prefix = "set ";
    }
    AddHeader(w, date);
    AddSettings(w);
    AddAliases(w);
    AddBindings(w);
    AddFreeForm(w);
    AddEnd(w);
    if (kind == Game::HalfLife) {
        RaiseWeaponName(w.Script);
    }
    return std::move(w.Script);
}

}  // namespace lv
