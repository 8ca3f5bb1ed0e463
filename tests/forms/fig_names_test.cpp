// Every control of the editor is there under its name, in the window of each kind of game, and tells what it is for.

#include <wx/cshelp.h>

#include <algorithm>
#include <map>

#include "tests/forms/fig_form_fixture.h"

namespace lv {
namespace {

// clang-format off
constexpr const char* kOfAllKinds[] = {
    "Main_Tab", "Bindings_Tab", "Options_Tab", "Keyboard_Fra", "Joy_Fra", "JoyToggle_Cmd(0)", "JoyToggle_Cmd(1)",
    "Device_Cbo", "Device_Pic", "Unbindall_Chk", "Label7", "Some_Lbl", "PlayerClass_Cbo",
    "AddMessage_Cmd", "EditMessage_Cmd", "DeleteMessage_Cmd", "AddExtraBinding_Cmd", "EditExtraBinding_Cmd",
    "DeleteExtraBinding_Cmd", "AddBoundScript_Cmd", "EditoundScript_Cmd", "DeleteBoundScript_Cmd",
    "Alias_Lst", "AddCustomAlias_Cmd", "EditAlias_Cmd", "DeleteAlias_Cmd", "AddStandardAlias_Cmd", "StdAliases_Cbo",
    "Section_Cbo", "FreeForm_Txt(0)",
    "AutoSaveEnable_Chk", "Minutes_Cbo", "Label2", "AutoSaveWarning_Chk", "View_Cmd(6)", "View_Cmd(7)",
    "ExitOnSave_Chk", "UnloadSF_Cmd", "Label3",
    "Name_Txt", "Name_Pic", "Label6", "ViewCustomLetters_Cmd",
    "Find_Txt", "FindNext_Cmd", "Find_Lbl", "Undo_Cmd", "Redo_Cmd", "Hint_Lbl",
    "Checkables_Pic", "Other_Pic", "Screen_Pic", "PlayerColor_Lbl(0)", "PlayerColor_Lbl(1)", "NoColors_Chk",
    "Sex_Lbl", "Sex_Cbo", "Skin_Lbl", "Skin_Cbo",
    "NoAim_Chk", "ShowPause_Chk", "ShowRAM_Chk", "ShowTurtle_Chk", "Speed_Chk", "JoyStick_Chk", "LookStrafe_Chk",
    "LookSpring_Chk", "MLook_Chk", "InvertMouse_Chk",
    "viewsize_Cbo", "vidmode_Cbo", "gamma_Cbo", "fov_Cbo", "Crosshair_Cbo", "CrossHairColor_Cbo", "Handed_Cbo",
};

constexpr const char* kOfConsoleKinds[] = {
    "Speeds_Pic", "Mouse_Pic", "Angle_Pic", "Bob_Pic", "Sound_Pic", "Skin_Fil", "SelectNoSkin_Cmd", "Label8", "Label4",
    "Rate_Txt",
    "cl_forwardspeed_Cbo", "cl_backspeed_Cbo", "cl_sidespeed_Cbo", "cl_pitchspeed_Cbo", "cl_yawspeed_Cbo",
    "scr_conspeed_Cbo", "scr_centerspeed_Cbo", "MouseSensitivity_Cbo", "m_forward_Cbo", "m_pitch_Cbo", "m_yaw_Cbo",
    "m_side_Cbo", "m_filter_Cbo", "cl_rollangle_Cbo", "cl_rollspeed_Cbo", "v_kickpitch_Cbo", "v_kickroll_Cbo",
    "v_kicktime_Cbo", "cl_bob_Cbo", "cl_bobcycle_Cbo", "cl_bobup_Cbo", "bgmvolume_Cbo", "volume_Cbo",
    "Q2_EnableCD_Chk", "Q2_WaveOnly_Chk", "snd_mixahead_Cbo",
};

constexpr const char* kOfUnreal[] = {
    "UnrealAudio_Pic", "PlayerPawn_Pic", "WeaponPriority_Pic", "UnrealTeamName_Txt", "UnrealPassword_Txt",
    "WeaponsAvailable_Lst", "WeaponsPriority_Lst", "SelectWeapon_Cmd(0)", "SelectWeapon_Cmd(1)", "WeaponMove_Cmd(0)",
    "WeaponMove_Cmd(1)", "MouseBind_Cbo(0)", "MouseBind_Cbo(1)",
};

struct Family {
    const char* Name;
    int First;
    int Last;
};

constexpr Family kFamilies[] = {
    {"Key_Lbl", 0, 135}, {"Key_Lbl", 149, 151}, {"Key_Lbl", 200, 204}, {"ColorCode_Lbl", 0, 10},
    {"NamePosition_Lbl", 1, 15}, {"Say_Team_Chk", 801, 813},
    {"Bound_Lbl", 101, 116}, {"Bound_Lbl", 201, 212}, {"Bound_Lbl", 301, 308}, {"Bound_Lbl", 401, 413},
    {"Bound_Lbl", 501, 524}, {"Bound_Lbl", 601, 627}, {"Bound_Lbl", 701, 712}, {"Bound_Lbl", 801, 813},
    {"Bound_Lbl", 901, 923}, {"Bound_Lbl", 1001, 1005}, {"Bound_Lbl", 1101, 1105}, {"Bound_Lbl", 1110, 1116},
    {"Bound_Lbl", 1120, 1124},
    {"Setting_Lbl", 101, 116}, {"Setting_Lbl", 201, 212}, {"Setting_Lbl", 301, 308}, {"Setting_Lbl", 401, 413},
    {"Setting_Lbl", 501, 524}, {"Setting_Lbl", 601, 627}, {"Setting_Lbl", 701, 712}, {"Setting_Lbl", 801, 813},
    {"Setting_Lbl", 901, 923}, {"Setting_Lbl", 1001, 1005}, {"Setting_Lbl", 1101, 1105}, {"Setting_Lbl", 1110, 1116},
    {"Setting_Lbl", 1120, 1124},
};

constexpr int kHeadings[] = {67, 100, 200, 300, 400, 500, 700, 800, 900, 950, 1000, 1100, 1198, 1199};
// clang-format on

std::vector<std::string> NamesOf(bool unreal) {
    std::vector<std::string> names(std::begin(kOfAllKinds), std::end(kOfAllKinds));
    const auto indexed = [&](const std::string& name, int index) {
        names.push_back(name + "(" + std::to_string(index) + ")");
    };
    for (const Family& family : kFamilies) {
        for (int index = family.First; index <= family.Last; ++index) {
            indexed(family.Name, index);
        }
    }
    for (const int heading : kHeadings) {
        indexed("Bound_Lbl", heading);
    }
    if (!unreal) {
        names.insert(names.end(), std::begin(kOfConsoleKinds), std::end(kOfConsoleKinds));
        return names;
    }
    names.insert(names.end(), std::begin(kOfUnreal), std::end(kOfUnreal));
    for (int i = 0; i < 18; ++i) {
        indexed("UnrealAudio_Cbo", i);
    }
    for (int i = 0; i < 13; ++i) {
        indexed("PlayerPawn_Cbo", i);
    }
    return names;
}

void Collect(wxWindow* window, std::map<std::string, wxWindow*>& all) {
    all.emplace(window->GetName().utf8_string(), window);
    for (wxWindow* child : window->GetChildren()) {
        Collect(child, all);
    }
}

class FigNames : public FigForm_, public ::testing::WithParamInterface<KindOfGame> {};

INSTANTIATE_TEST_SUITE_P(Kinds, FigNames, ::testing::ValuesIn(kGames),
                         [](const auto& kind) { return std::string(kind.param.Name); });

TEST_P(FigNames, EveryControlIsThereAndTellsWhatItIsFor) {
    Use(GetParam(), "");
    Edit([this] {
        MakeAllPages();
        std::map<std::string, wxWindow*> all;
        Collect(form, all);
        for (const std::string& name : NamesOf(GetParam().Dialect.GameKind == Game::Unreal)) {
            const auto found = all.find(name);
            if (found == all.end()) {
                ADD_FAILURE() << "no " << name;
            } else {
                EXPECT_FALSE(found->second->GetHelpText().empty()) << name;
            }
        }
    });
}

}  // namespace
}  // namespace lv
