#include "foundry/editor/settings_pages.h"

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundry/editor/player_page.h"
#include "foundry/reading/list_finder.h"

namespace lv {

namespace {

using F = Fig_Frm;
using S = ScriptSettings;

// clang-format off
constexpr SettingRow kSettingRows[] = {
    {"Crosshair_Cbo",        &S::Crosshair_Cbo,        &F::Other_Pic,  "Crosshair",           "",                  "Puts a targeting cross on your screen."},
    {"CrossHairColor_Cbo",   &S::CrossHairColor_Cbo,   &F::Other_Pic,  "Crosshair Color (2)", "",                  "The color of crosshair 2, by its place in the game's palette."},
    {"Handed_Cbo",           &S::Handed_Cbo,           &F::Other_Pic,  "Handedness",          "",                  " Pick right of left handed. (Quake2 only)"},

    {"viewsize_Cbo",         &S::viewsize_Cbo,         &F::Screen_Pic, "View Size",           "(default 100)",     "How much of the screen the view fills; above 100 the status bar goes."},
    {"vidmode_Cbo",          &S::vidmode_Cbo,          &F::Screen_Pic, "Vid Mode (non-GL)",   "(default 320x200)", "The screen's resolution, without an accelerator."},
    {"gamma_Cbo",            &S::gamma_Cbo,            &F::Screen_Pic, "Gamma",               "(default 1)",       "The brightness of the screen; less is brighter."},
    {"fov_Cbo",              &S::fov_Cbo,              &F::Screen_Pic, "Field Of View",       "(default 90)",      "How wide you see, in degrees."},

    {"cl_forwardspeed_Cbo",  &S::cl_forwardspeed_Cbo,  &F::Speeds_Pic, "Forward Speed",       "(default 200)",     "How fast you move forward."},
    {"cl_backspeed_Cbo",     &S::cl_backspeed_Cbo,     &F::Speeds_Pic, "Backward Speed",      "(default 160)",     "How fast you move backward."},
    {"cl_sidespeed_Cbo",     &S::cl_sidespeed_Cbo,     &F::Speeds_Pic, "Strafe Speed",        "(default 350)",     "How fast you move to the sides."},
    {"cl_pitchspeed_Cbo",    &S::cl_pitchspeed_Cbo,    &F::Speeds_Pic, "Pitch Speed (Keyb)",  "(default 100)",     "How fast the keys look up and down."},
    {"cl_yawspeed_Cbo",      &S::cl_yawspeed_Cbo,      &F::Speeds_Pic, "Yaw Speed",           "(default 140)",     "How fast the keys turn you."},
    {"scr_conspeed_Cbo",     &S::scr_conspeed_Cbo,     &F::Speeds_Pic, "Console Speed",       "(default 300)",     "How fast the console comes down."},
    {"scr_centerspeed_Cbo",  &S::scr_centerspeed_Cbo,  &F::Speeds_Pic, "Message Speed",       "(default 8)",       "How fast the letters of messages in mid-screen appear."},

    {"MouseSensitivity_Cbo", &S::MouseSensitivity_Cbo, &F::Mouse_Pic,  "Overall Master",      "(default 3)",       "How strongly you answer to the mouse, in all directions."},
    {"m_forward_Cbo",        &S::m_forward_Cbo,        &F::Mouse_Pic,  "Forward & Backward",  "(default 1)",       "How fast the mouse moves you forward and backward."},
    {"m_pitch_Cbo",          &S::m_pitch_Cbo,          &F::Mouse_Pic,  "Look Up & Down",      "0.022",             "How fast the mouse looks up and down."},
    {"m_yaw_Cbo",            &S::m_yaw_Cbo,            &F::Mouse_Pic,  "Turning Speed (yaw)", "0.022",             "How fast the mouse turns you."},
    {"m_side_Cbo",           &S::m_side_Cbo,           &F::Mouse_Pic,  "Lookstrafe Speed",    "0.8",               "How fast the mouse moves you to the sides."},
    {"m_filter_Cbo",         &S::m_filter_Cbo,         &F::Mouse_Pic,  "Mouse Filter",        "(default 0)",       "1 smooths the motions of the mouse."},

    {"cl_rollangle_Cbo",     &S::cl_rollangle_Cbo,     &F::Angle_Pic,  "Roll Angle",          "(default 2)",       "How far the view leans when you strafe."},
    {"cl_rollspeed_Cbo",     &S::cl_rollspeed_Cbo,     &F::Angle_Pic,  "Roll Speed",          "(default 200)",     "How fast you must strafe for the full angle."},
    {"v_kickpitch_Cbo",      &S::v_kickpitch_Cbo,      &F::Angle_Pic,  "Kick Pitch",          "0.6",               "How far a hit kicks the view up."},
    {"v_kickroll_Cbo",       &S::v_kickroll_Cbo,       &F::Angle_Pic,  "Kick Roll",           "0.6",               "How far a hit leans the view."},
    {"v_kicktime_Cbo",       &S::v_kicktime_Cbo,       &F::Angle_Pic,  "Kick Time",           "0.5",               "How long the view suffers from a hit, in seconds."},

    {"cl_bob_Cbo",           &S::cl_bob_Cbo,           &F::Bob_Pic,    "Weapon Bob",          "0.02",              "How far your weapon bobs as you run."},
    {"cl_bobcycle_Cbo",      &S::cl_bobcycle_Cbo,      &F::Bob_Pic,    "Bob Speed",           "0.6",               "How long one bob takes, in seconds."},
    {"cl_bobup_Cbo",         &S::cl_bobup_Cbo,         &F::Bob_Pic,    "Bob Cycle Height",    "0.5",               "How much of a bob goes up."},

    {"bgmvolume_Cbo",        &S::bgmvolume_Cbo,        &F::Sound_Pic,  "CD Volume",           "(default 1)",       "How loud the music from the CD is."},
    {"volume_Cbo",           &S::volume_Cbo,           &F::Sound_Pic,  "Sound Volume",        "(default 1)",       "How loud the sounds of the game are."},
    {"snd_mixahead_Cbo",     &S::snd_mixahead_Cbo,     &F::Sound_Pic,  "Sound Mixahead",      "0.1",               "How far ahead sounds are mixed, in seconds; more if they stutter."},
};

constexpr CheckRow kCheckRows[] = {
    {"NoAim_Chk",       &S::NoAim_Chk,       &F::Checkables_Pic, "No Auto Aiming",        "Turn off auto aiming (on the y axis)"},
    {"ShowPause_Chk",   &S::ShowPause_Chk,   &F::Checkables_Pic, "Show Pause Icon",       "An Icon pops up if the games is paused."},
    {"ShowRAM_Chk",     &S::ShowRAM_Chk,     &F::Checkables_Pic, "Show RAM Icon",         "An Icon pops up if your RAM is low."},
    {"ShowTurtle_Chk",  &S::ShowTurtle_Chk,  &F::Checkables_Pic, "Show Turtle Icon",      "An Icon pops up if your Frames Per Second drops below 10."},
    {"Speed_Chk",       &S::Speed_Chk,       &F::Checkables_Pic, "Always Run !",          "Your speed is always at max."},
    {"JoyStick_Chk",    &S::JoyStick_Chk,    &F::Checkables_Pic, "Joystick",              "Says that you are using a joystick."},
    {"LookStrafe_Chk",  &S::LookStrafe_Chk,  &F::Checkables_Pic, "Look Strafe",           "When MLook is on, the mouses right and left motions strafe."},
    {"LookSpring_Chk",  &S::LookSpring_Chk,  &F::Checkables_Pic, "Look Spring",           "When use release the MLook key your view centers automatically."},
    {"MLook_Chk",       &S::MLook_Chk,       &F::Checkables_Pic, "Mouse Look (Mlook)",    " If selected, your mouse\x92s forward and backward movement translate to looking up and down"},
    {"InvertMouse_Chk", &S::InvertMouse_Chk, &F::Checkables_Pic, "Invert Mouse",          "Switches the forward/backward directions for mouse look."},
    {"NoColors_Chk",    &S::NoColors_Chk,    &F::Other_Pic,      "Don't Specify Colors",  "Sometimes, you do not want your script to set your colors"},
    {"Q2_EnableCD_Chk", &S::Q2_EnableCD_Chk, &F::Sound_Pic,      "Enable CD Music",       "Allow the game to play music from the CD-ROM"},
    {"Q2_WaveOnly_Chk", &S::Q2_WaveOnly_Chk, &F::Sound_Pic,      "Allow Wave Sound Only", "Only allow wave sounds"},
};

constexpr TextView kUnrealAudio[] = {
    "Use Direct Sound",
    "Use Filter",
    "Use Surround",
    "Use Stereo",
    "Use CD Music",
    "Use Digital Music",
    "Use Spatial",
    "Use Reverb",
    "Use 3D Hardware",
    "Low Sound Quality",
    "Reverse Stereo",
    "Latency",
    "Output Rate",
    "Effects Channels",
    "Doppler Speed",
    "Music Volume",
    "Sound Volume",
    "Ambient Factor",
};

constexpr TextView kPlayerPawn[] = {
    "Dodge Click Time",
    "Bob",
    "My Auto Aim",
    "Handedness",
    "Look Up Stairs",
    "Snap To Level",
    "Always Mouse Look",
    "Keyboard Look",
    "Invert Mouse",
    "Mouse Sensitivity",
    "Net Speed",
    "Client Net Min Delta",
    "Server Net Min Delta",
};

constexpr TextView kMouseBinds[] = {"Mouse X-Axis Speed", "Mouse Y-Axis Speed"};

struct HeadingText {
    Panel Fig_Frm::*Group;
    TextView Heading;
};

constexpr HeadingText kHeadings[] = {
    {&F::Checkables_Pic,     "Switches"},
    {&F::Other_Pic,          "Looks"},
    {&F::Screen_Pic,         "Screen"},
    {&F::Speeds_Pic,         "Speeds"},
    {&F::Mouse_Pic,          "Mouse"},
    {&F::Angle_Pic,          "Angles"},
    {&F::Bob_Pic,            "Bob"},
    {&F::Sound_Pic,          "Sound"},
    {&F::UnrealAudio_Pic,    "Audio"},
    {&F::PlayerPawn_Pic,     "Player"},
    {&F::WeaponPriority_Pic, "Weapon Preference"},
};
// clang-format on

bool IsQuake2OrSin(const Fig_Frm& form) {
    return form.GameKind() == Game::Quake2 || form.GameKind() == Game::Sin;
}

TextView DefaultOf(const Fig_Frm& form, const SettingRow& row) {
    if (IsQuake2OrSin(form) && row.List == &S::snd_mixahead_Cbo) {
        return "0.2";
    }
    if (IsQuake2OrSin(form) && row.List == &S::vidmode_Cbo) {
        return "";
    }
    return row.Hint;
}

/// The row for a text that is none of the game's own: the one of the last such text if it is still the last.
int TypedRow(Fig_Frm& form, ListBox& list, const Text& text) {
    const int last = static_cast<int>(list.Items.size()) - 1;
    const auto typed = form.TypedRows.find(&list);
    if (typed != form.TypedRows.end() && typed->second == last && last >= 0) {
        list.Items.back() = text;
        return last;
    }
    list.Items.push_back(text);
    form.TypedRows[&list] = last + 1;
    return last + 1;
}

}  // namespace

std::span<const SettingRow> SettingRows() {
    return kSettingRows;
}

std::span<const CheckRow> CheckRows() {
    return kCheckRows;
}

std::span<const TextView> UnrealAudioCaptions() {
    return kUnrealAudio;
}

std::span<const TextView> PlayerPawnCaptions() {
    return kPlayerPawn;
}

std::span<const TextView> MouseBindCaptions() {
    return kMouseBinds;
}

void PaintLabels(Fig_Frm& form) {
    for (const HeadingText& row : kHeadings) {
        (form.*row.Group).Caption = row.Heading;
    }
}

Text HintOf(const Fig_Frm& form, const SettingRow& row) {
    const TextView value = DefaultOf(form, row);
    if (value.empty() || value.starts_with('(')) {
        return Text(value);
    }
    const char separator = form.Document.Dialect.DecimalSeparator;
    return Join("(default ", ReplaceSameLength(value, ".", TextView(&separator, 1)), ")");
}

void Setting_Change(Fig_Frm& form) {
    Edited(form);
}

void TypeIntoList(Fig_Frm& form, ListBox& list, TextView text) {
    const Text given(text);  // may be a row's own
    const Text before = list.Selected();
    const bool hadSelection = list.HasSelection();
    if (given.empty()) {
        list.ListIndex = -1;
    } else {
        const int row = RowOf(list, given);
        list.ListIndex = row >= 0 ? row : TypedRow(form, list, given);
    }
    if (list.HasSelection() == hadSelection && list.Selected() == before) {
        return;
    }
    if (&list == &form.Document.Crosshair_Cbo) {
        Crosshair_Cbo_Click(form);
    }
    Edited(form);
}

void Options_Tab_Click(Fig_Frm& form, int page) {
    TabSet& tabs = form.Document.Options_Tab;
    if (page >= 0 && static_cast<std::size_t>(page) < tabs.Pages.size() &&
        tabs[static_cast<std::size_t>(page)].Enabled) {
        tabs.Tab = page;
    }
}

}  // namespace lv
