// tests/foundry/full_script.h
//
// A player with something in every control, and the console scripts of all games for him, byte for byte.

#pragma once

#include "tests/foundry/script_fixture.h"

namespace lv {

inline ScriptDocument FullDocument(const ScriptDialect& dialect) {
    ScriptDocument d = EmptyDocument(dialect);
    d.Name_Txt.Text = "  Zo\xEB the 1st  ";
    d.PlayerColor_Lbl[0].Tag = 4;
    d.PlayerColor_Lbl[1].Tag = 13;
    Choose(d.Sex_Cbo, "female");
    Choose(d.Skin_Cbo, "athena");
    ChooseRow(d.Handed_Cbo, 2);
    Choose(d.Skin_Fil, "Base.PCX");
    ChooseRow(d.PlayerClass_Cbo, 3);
    d.Rate_Txt.Text = "02500.50";
    ChooseRow(d.Crosshair_Cbo, 2);
    Choose(d.CrossHairColor_Cbo, "079 -Red");
    for (CheckBox* const box : {&d.MLook_Chk, &d.LookStrafe_Chk, &d.Speed_Chk, &d.NoAim_Chk, &d.ShowRAM_Chk,
                                &d.InvertMouse_Chk, &d.Q2_EnableCD_Chk, &d.Unbindall_Chk}) {
        box->Value = 1;
    }
    Choose(d.cl_forwardspeed_Cbo, "400");
    Choose(d.cl_backspeed_Cbo, "375");
    Choose(d.cl_sidespeed_Cbo, "350");
    Choose(d.cl_pitchspeed_Cbo, "150");
    Choose(d.cl_yawspeed_Cbo, "140");
    Choose(d.scr_conspeed_Cbo, "2000");
    Choose(d.scr_centerspeed_Cbo, "8");
    Choose(d.MouseSensitivity_Cbo, "7.5");
    Choose(d.m_forward_Cbo, "1");
    Choose(d.m_pitch_Cbo, "0.030");
    Choose(d.m_side_Cbo, "0.8");
    Choose(d.m_yaw_Cbo, "0.022");
    Choose(d.m_filter_Cbo, "1");
    Choose(d.bgmvolume_Cbo, "0.9");
    Choose(d.volume_Cbo, "0.7");
    Choose(d.snd_mixahead_Cbo, "0.15");
    Choose(d.vidmode_Cbo, "3) 320x240");
    Choose(d.viewsize_Cbo, "110");
    Choose(d.gamma_Cbo, "0.6");
    Choose(d.fov_Cbo, "100");
    Choose(d.cl_rollangle_Cbo, "2");
    Choose(d.cl_rollspeed_Cbo, "200");
    Choose(d.v_kickpitch_Cbo, "0.6");
    Choose(d.v_kickroll_Cbo, "0.5");
    Choose(d.v_kicktime_Cbo, "0.4");
    Choose(d.cl_bob_Cbo, "0.02");
    Choose(d.cl_bobcycle_Cbo, "0.6");
    Choose(d.cl_bobup_Cbo, "0.5");
    d.AliasTable.Insert({false, "zoom_in", "fov 30;sensitivity 2"});
    d.AliasTable.Insert({true, "back", "+back"});
    Bind(d, 23, "+forward");          // w
    Bind(d, 29, "impulse 2");         // 2
    Bind(d, 77, "sizeup");            // +
    Bind(d, 79, "+attack");           // mouse1
    Bind(d, 84, "use weapon_9mmar");  // 7 on the keypad
    Bind(d, 135, "say hello there");
    d.Sections.front().Text = "// by hand\r\nr_drawviewmodel 0";
    return d;
}

constexpr TextView kHead = R"(
//*/////////////////*//
//*                 *//
//* Setup Foundry   *//
//*                 *//
//* 11/21/1999      *//
//*                 *//
//*/////////////////*//

echo |========================|
echo |........................|
echo |..Setup Foundry ROCKS!..|
echo |........................|
echo |========================|

//*/////////////////*//
//*                 *//
//* Settings        *//
//*                 *//
//*/////////////////*//

name "player"
)";

constexpr TextView kBindingsBanner = R"(
//*/////////////////*//
//*                 *//
//* Bindings        *//
//*                 *//
//*/////////////////*//

)";

constexpr TextView kEnd = R"(

//*/////////////////*//
//*                 *//
//* Setup Foundry   *//
//*                 *//
//*/////////////////*//)";

constexpr TextView kOldLooks = R"(+mlook
joystick 0
lookstrafe 1
lookspring 0
+speed
noaim 1
showturtle 0
showram 1
showpause 0
crosshair 2
)";

constexpr TextView kOldNumbers = R"(cl_forwardspeed 400
cl_backspeed 375
cl_sidespeed 350
cl_pitchspeed 150
cl_yawspeed 140
scr_conspeed 2000
scr_centerspeed 8
sensitivity 7.5
m_forward 1
m_pitch -0.030
m_side 0.8
m_yaw 0.022
m_filter 1
bgmvolume 0.9
volume 0.7
_snd_mixahead 0.15
vid_mode 3
viewsize 110
gamma 0.6
fov 100
cl_rollangle 2
cl_rollspeed 200
v_kickpitch 0.6
v_kickroll 0.5
v_kicktime 0.4
cl_bob 0.02
cl_bobcycle 0.6
cl_bobup 0.5
)";

/// The newer family from the checks on; "P " becomes the prefix.
constexpr TextView kNewNumbers = R"(P joystick 0
P lookstrafe 1
P lookspring 0
P cl_run 1
P sv_aim 1
P showturtle 0
P showram 1
P showpause 0
P crosshair 2
P crosshaircolor 079
P cl_forwardspeed 400
P cl_backspeed 375
P cl_sidespeed 350
P cl_pitchspeed 150
P cl_yawspeed 140
P scr_conspeed 2000
P scr_centerspeed 8
P sensitivity 7.5
P m_forward 1
P m_pitch -0.030
P m_side 0.8
P m_yaw 0.022
P m_filter 1
P cd_nocd 0
P s_wavonly 0
P bgmvolume 0.9
P s_volume 0.7
P s_mixahead 0.15
P vid_mode 3
P viewsize 110
P gamma 0.6
P fov 100
P cl_rollangle 2
P cl_rollspeed 200
P v_kickpitch 0.6
P v_kickroll 0.5
P v_kicktime 0.4
P cl_bob 0.02
P cl_bobcycle 0.6
P cl_bobup 0.5
rate 2500.5
)";

constexpr TextView kFullAliases = R"(
//*/////////////////*//
//*                 *//
//* Aliases         *//
//*                 *//
//*/////////////////*//

alias "back" "+back"
alias "zoom_in" "fov 30;sensitivity 2"
)";

constexpr TextView kOldBinds = R"(unbindall  // removes all existing bindings before applying these...

bind "w"             "+forward"
bind "2"             "impulse 2"
bind "+"             "sizeup"
bind "mouse1"        "+attack"
bind "aux32"         "say hello there"
)";

constexpr TextView kNewBinds = R"(unbindall  // removes all existing bindings before applying these...

bind "w"             "+forward"
bind "2"             "impulse 2"
bind "kp_plus"       "sizeup"
bind "mouse1"        "+attack"
bind "kp_home"       "use weapon_9mmar"  //* key pad 7
bind "aux32"         "say hello there"
)";

constexpr TextView kFullFreeForm = R"(
//*/////////////////*//
//*                 *//
//* Free Form       *//
//*                 *//
//*/////////////////*//

// by hand
r_drawviewmodel 0)";

/// The older family's script: the lines that only some of its games have come in from outside.
inline Text OldScript(TextView behindColors, TextView behindCrosshair, TextView behindNumbers) {
    return Crlf(Join(kHead, "name \"Zo\xEB the 1st\"\ncolor 4 13\n_cl_color 77\n", behindColors, kOldLooks,
                     behindCrosshair, kOldNumbers, behindNumbers, kFullAliases, kBindingsBanner, kOldBinds,
                     kFullFreeForm, kEnd));
}

/// The newer family's.
inline Text NewScript(TextView look, TextView prefix) {
    Text numbers(kNewNumbers);
    for (std::size_t at = 0; (at = numbers.find("P ", at)) != Text::npos; at += prefix.size()) {
        numbers.replace(at, 2, prefix);
    }
    return Crlf(Join(kHead, "name \"Zo\xEB the 1st\"\nskin \"female/athena\"\nhand \"2\"\n", look, numbers,
                     kFullAliases, kBindingsBanner, kNewBinds, kFullFreeForm, kEnd));
}

}  // namespace lv
