// foundry/tables/script_settings.h
//
// The settings of a script as the controls of the editor's pages: there is no second copy of a value.

#pragma once

#include <array>

#include "foundation/controls.h"
#include "foundry/tables/slots.h"

namespace lv {

/// A list of the files in a directory.
struct FileListBox : ListBox {
    Text Path;
    Text Pattern;  // "*.pcx"
};

struct ColorLabel : Label {
    Color BackColor = kWhite;
    int Tag = 0;  // the colour's number in the game
};

/// The 14 colours of a Quake shirt or pants value.
constexpr std::array<Color, 14> ColorTable = {0xffffff, 0x008080, 0xa88677, 0x008000, 0x000080, 0x5a8779, 0x4d6ba6,
                                              0x4989cf, 0x753572, 0xb779b4, 0x697b83, 0x6b7c3f, 0x00ffff, 0xc00000};

struct ScriptSettings {
    // Player
    TextBox Name_Txt;
    std::array<ColorLabel, 2> PlayerColor_Lbl;  // shirt, pants
    CheckBox NoColors_Chk;
    ListBox Sex_Cbo;
    ListBox Skin_Cbo;
    FileListBox Skin_Fil;
    TextBox Rate_Txt;
    ListBox PlayerClass_Cbo;
    ListBox Handed_Cbo;
    ListBox Crosshair_Cbo;
    ListBox CrossHairColor_Cbo;

    // Checks
    CheckBox MLook_Chk;
    CheckBox JoyStick_Chk;
    CheckBox LookStrafe_Chk;
    CheckBox LookSpring_Chk;
    CheckBox Speed_Chk;
    CheckBox NoAim_Chk;
    CheckBox ShowTurtle_Chk;
    CheckBox ShowRAM_Chk;
    CheckBox ShowPause_Chk;
    CheckBox InvertMouse_Chk;
    CheckBox Q2_EnableCD_Chk;
    CheckBox Q2_WaveOnly_Chk;
    CheckBox Unbindall_Chk;

    // Numbers, in the locale's form
    ListBox snd_mixahead_Cbo;
    ListBox bgmvolume_Cbo;
    ListBox volume_Cbo;
    ListBox cl_backspeed_Cbo;
    ListBox cl_forwardspeed_Cbo;
    ListBox cl_sidespeed_Cbo;
    ListBox cl_bob_Cbo;
    ListBox cl_bobcycle_Cbo;
    ListBox gamma_Cbo;
    ListBox cl_bobup_Cbo;
    ListBox cl_pitchspeed_Cbo;
    ListBox cl_rollangle_Cbo;
    ListBox cl_rollspeed_Cbo;
    ListBox cl_yawspeed_Cbo;
    ListBox fov_Cbo;
    ListBox m_filter_Cbo;
    ListBox m_forward_Cbo;
    ListBox m_pitch_Cbo;
    ListBox m_yaw_Cbo;
    ListBox m_side_Cbo;
    ListBox scr_centerspeed_Cbo;
    ListBox scr_conspeed_Cbo;
    ListBox MouseSensitivity_Cbo;
    ListBox v_kickpitch_Cbo;
    ListBox v_kickroll_Cbo;
    ListBox v_kicktime_Cbo;
    ListBox viewsize_Cbo;
    ListBox vidmode_Cbo;

    // Unreal
    TextBox UnrealTeamName_Txt;
    TextBox UnrealPassword_Txt;
    std::array<ListBox, 18> UnrealAudio_Cbo;
    std::array<ListBox, 13> PlayerPawn_Cbo;
    std::array<ListBox, 2> MouseBind_Cbo;  // MouseX, MouseY
    ListBox WeaponsAvailable_Lst;
    ListBox WeaponsPriority_Lst;
};

}  // namespace lv
