// The table of keywords a second time: for each a line, and what the document holds afterwards.

#include "foundry/reading/script_keywords.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/foundry/reading.h"

namespace lv {
namespace {

Text Chosen(const ListBox& list) {
    return list.HasSelection() ? list.Selected() : "-";
}

Text Row(const ListBox& list) {
    return std::to_string(list.ListIndex);
}

Text Mark(const CheckBox& check) {
    return check.Value == 1 ? "on" : "off";
}

using D = ScriptDocument;

/// Reads the lines below a head, in an ini, or as they are.
D Read(Game kind, TextView lines, bool quakeWorld = false) {
    return ReadScript(DialectOf(kind, quakeWorld), Join(kind == Game::Unreal ? "[Any]\r\n" : "", lines));
}

struct KeywordCase {
    Game Kind;
    const char* Line;
    Text (*Look)(const D&);
    const char* Expected;
};

class Keyword : public ::testing::TestWithParam<KeywordCase> {};

TEST_P(Keyword, IsUnderstood) {
    const KeywordCase& row = GetParam();
    const D document = Read(row.Kind, row.Line);
    EXPECT_EQ(row.Look(document), row.Expected) << row.Line;
    EXPECT_EQ(document.Sections.at(0).Text, "") << row.Line;
}

#define LOOK(expression) [](const D& d) -> Text { return expression; }

// clang-format off
constexpr KeywordCase kCases[] = {
    {Game::Quake2,   "crosshair 2\ncrosshair -1",         LOOK(Row(d.Crosshair_Cbo)),                           "-1"},
    {Game::Sin,      "crosshair 2\ncrosshair -1",         LOOK(Row(d.Crosshair_Cbo)),                           "-1"},
    {Game::Quake,    "crosshair -1",                      LOOK(Chosen(d.Crosshair_Cbo)),                        "-1"},
    {Game::Heretic2, "crosshair -1",                      LOOK(Chosen(d.Crosshair_Cbo)),                        "-1"},
    {Game::HalfLife, "crosshair -1",                      LOOK(Chosen(d.Crosshair_Cbo)),                        "-1"},
    {Game::Quake,    "crosshaircolor 79\ncrosshaircolor -1", LOOK(Row(d.CrossHairColor_Cbo)),                   "-1"},
    {Game::HalfLife, "hand 1",                            LOOK(Chosen(d.Handed_Cbo)),                           "1"},
    {Game::Quake,    "_cl_name \"Joe\xFF\"",              LOOK(d.Name_Txt.Text),                                "Joe\xFF"},
    {Game::Unreal,   "PlayerName=Joe\xFF",                LOOK(d.Name_Txt.Text),                                "Joe\xFF"},
    {Game::Quake,    "_cl_name \"Joe\xFF\"\nname",        LOOK(d.Name_Txt.Text),                                "Joe\xFF"},
    {Game::Unreal,   "bind=a",                            LOOK(d.Sections.at(0).Text),                          ""},
    {Game::Unreal,   "alias=a",                           LOOK(d.Sections.at(0).Text),                          ""},
    {Game::Unreal,   "WeaponPriority[3]=Quadshot",        LOOK(d.WeaponPriority[3]),                            "Quadshot"},
    {Game::Unreal,   "WEAPONPRIORITY[50]=ASMD",           LOOK(d.WeaponPriority[50]),                           "ASMD"},
    {Game::Unreal,   "WeaponPriority[3]=none",            LOOK(d.WeaponPriority[3]),                            ""},
    {Game::Unreal,   "UseDirectSound=True",               LOOK(Chosen(d.UnrealAudio_Cbo[0])),                   "True"},
    {Game::Unreal,   "UseFilter=False",                   LOOK(Chosen(d.UnrealAudio_Cbo[1])),                   "False"},
    {Game::Unreal,   "UseSurround=true",                  LOOK(Chosen(d.UnrealAudio_Cbo[2])),                   "True"},
    {Game::Unreal,   "UseStereo=FALSE",                   LOOK(Chosen(d.UnrealAudio_Cbo[3])),                   "False"},
    {Game::Unreal,   "UseCDMusic=True",                   LOOK(Chosen(d.UnrealAudio_Cbo[4])),                   "True"},
    {Game::Unreal,   "UseDigitalMusic=False",             LOOK(Chosen(d.UnrealAudio_Cbo[5])),                   "False"},
    {Game::Unreal,   "UseSpatial=False",                  LOOK(Chosen(d.UnrealAudio_Cbo[6])),                   "False"},
    {Game::Unreal,   "UseReverb=True",                    LOOK(Chosen(d.UnrealAudio_Cbo[7])),                   "True"},
    {Game::Unreal,   "Use3dHardware=False",               LOOK(Chosen(d.UnrealAudio_Cbo[8])),                   "False"},
    {Game::Unreal,   "LowSoundQuality=Maybe",             LOOK(Chosen(d.UnrealAudio_Cbo[9])),                   "Maybe"},
    {Game::Unreal,   "ReverseStereo=False",               LOOK(Chosen(d.UnrealAudio_Cbo[10])),                  "False"},
    {Game::Unreal,   "Latency=40",                        LOOK(Chosen(d.UnrealAudio_Cbo[11])),                  "40"},
    {Game::Unreal,   "OutputRate=22050Hz",                LOOK(Chosen(d.UnrealAudio_Cbo[12])),                  "22050Hz"},
    {Game::Unreal,   "EffectsChannels=16",                LOOK(Chosen(d.UnrealAudio_Cbo[13])),                  "16"},
    {Game::Unreal,   "DopplerSpeed=6500.000000",          LOOK(Chosen(d.UnrealAudio_Cbo[14])),                  "6500.000000"},
    {Game::Unreal,   "MusicVolume=0.123",                 LOOK(Chosen(d.UnrealAudio_Cbo[15])),                  "0.123"},
    {Game::Unreal,   "SoundVolume=77",                    LOOK(Chosen(d.UnrealAudio_Cbo[16])),                  "77"},
    {Game::Unreal,   "AmbientFactor=0.7",                 LOOK(Chosen(d.UnrealAudio_Cbo[17])),                  "0.700000"},
    {Game::Unreal,   "PlayerName=Joe \"X\" Doe",          LOOK(d.Name_Txt.Text),                                "Joe \"X\" Doe"},
    {Game::Quake,    "playername \"Joe Doe\"",            LOOK(d.Name_Txt.Text),                                "Joe Doe"},
    {Game::Unreal,   "TeamName=Reds",                     LOOK(d.UnrealTeamName_Txt.Text),                      "Reds"},
    {Game::Unreal,   "Password=Secret",                   LOOK(d.UnrealPassword_Txt.Text),                      "Secret"},
    {Game::Unreal,   "DodgeClickTime=0.250000",           LOOK(Chosen(d.PlayerPawn_Cbo[0])),                    "0.250000"},
    {Game::Unreal,   "Bob=0.016",                         LOOK(Chosen(d.PlayerPawn_Cbo[1])),                    "0.016000"},
    {Game::Unreal,   "MyAutoAim=0.85",                    LOOK(Chosen(d.PlayerPawn_Cbo[2])),                    "0.850000"},
    {Game::Unreal,   "Handedness=-1.000000",              LOOK(Chosen(d.PlayerPawn_Cbo[3])),                    "-1.000000"},
    {Game::Unreal,   "bLookUpStairs=False",               LOOK(Chosen(d.PlayerPawn_Cbo[4])),                    "False"},
    {Game::Unreal,   "bSnapToLevel=True",                 LOOK(Chosen(d.PlayerPawn_Cbo[5])),                    "True"},
    {Game::Unreal,   "bAlwaysMouseLook=False",            LOOK(Chosen(d.PlayerPawn_Cbo[6])),                    "False"},
    {Game::Unreal,   "bKeyboardLook=True",                LOOK(Chosen(d.PlayerPawn_Cbo[7])),                    "True"},
    {Game::Unreal,   "bInvertMouse=False",                LOOK(Chosen(d.PlayerPawn_Cbo[8])),                    "False"},
    {Game::Unreal,   "MouseSensitivity=3",                LOOK(Chosen(d.PlayerPawn_Cbo[9])),                    "3.000000"},
    {Game::Unreal,   "NetSpeed=2600",                     LOOK(Chosen(d.PlayerPawn_Cbo[10])),                   "2600"},
    {Game::Unreal,   "ClientNetMinDelta=0.05",            LOOK(Chosen(d.PlayerPawn_Cbo[11])),                   "0.050000"},
    {Game::Unreal,   "ServerNetMinDelta=0.06",            LOOK(Chosen(d.PlayerPawn_Cbo[12])),                   "0.06"},
    {Game::Unreal,   "MouseX=6.5",                        LOOK(Chosen(d.MouseBind_Cbo[0])),                     "6.5"},
    {Game::Unreal,   "MouseY=7.0",                        LOOK(Chosen(d.MouseBind_Cbo[1])),                     "7.0"},
    {Game::Quake,    "_cl_color 52",                      LOOK(std::to_string(d.PlayerColor_Lbl[0].Tag)),       "3"},
    {Game::Quake,    "_cl_color 52.0",                    LOOK(std::to_string(d.PlayerColor_Lbl[1].Tag)),       "4"},
    {Game::Quake,    "_cl_color 52",                      LOOK(std::to_string(d.PlayerColor_Lbl[0].BackColor)), "32768"},
    {Game::Quake,    "_cl_color 52",                      LOOK(std::to_string(d.PlayerColor_Lbl[1].BackColor)), "128"},
    {Game::Quake,    "_cl_name \"Joe Doe\"",              LOOK(d.Name_Txt.Text),                                "Joe Doe"},
    {Game::Hexen2,   "_cl_playerclass \"2\"",             LOOK(Row(d.PlayerClass_Cbo)),                         "2"},
    {Game::Hexen2,   "_cl_playerclass 3.0",               LOOK(Row(d.PlayerClass_Cbo)),                         "3"},
    {Game::Hexen2,   "_cl_playerclass 7.50",              LOOK(Chosen(d.PlayerClass_Cbo)),                      "7.5"},
    {Game::Quake2,   "set cl_run 1",                      LOOK(Mark(d.Speed_Chk)),                              "on"},
    {Game::Quake2,   "+speed\ncl_run 2",                  LOOK(Mark(d.Speed_Chk)),                              "off"},
    {Game::Quake,    "_snd_mixahead .1",                  LOOK(Chosen(d.snd_mixahead_Cbo)),                     "0.10"},
    {Game::Quake2,   "set s_mixahead 0.2",                LOOK(Chosen(d.snd_mixahead_Cbo)),                     "0.20"},
    {Game::Quake,    "+mlook",                            LOOK(Mark(d.MLook_Chk)),                              "on"},
    {Game::Quake,    "+SPEED",                            LOOK(Mark(d.Speed_Chk)),                              "on"},
    {Game::Quake,    "alias rj \"+jump\"",                LOOK(AliasesOf(d)),                                   "rj=+jump"},
    {Game::Quake,    "bgmvolume 1",                       LOOK(Chosen(d.bgmvolume_Cbo)),                        "1.0"},
    {Game::Quake,    "bind a +attack",                    LOOK(BindingOf(d, "a")),                              "+attack"},
    {Game::Quake2,   "cd_nocd 1",                         LOOK(Mark(d.Q2_EnableCD_Chk)),                        "off"},
    {Game::Quake2,   "cd_nocd 0",                         LOOK(Mark(d.Q2_EnableCD_Chk)),                        "on"},
    {Game::Quake2,   "cd_nocd x",                         LOOK(Mark(d.Q2_EnableCD_Chk)),                        "on"},
    {Game::Quake,    "cl_backspeed 400.000000",           LOOK(Chosen(d.cl_backspeed_Cbo)),                     "400"},
    {Game::Quake,    "cl_bob 0.010",                      LOOK(Chosen(d.cl_bob_Cbo)),                           "0.01"},
    {Game::Quake,    "cl_bobcycle 0.60",                  LOOK(Chosen(d.cl_bobcycle_Cbo)),                      "0.6"},
    {Game::Quake,    "cl_bobup .5",                       LOOK(Chosen(d.cl_bobup_Cbo)),                         "0.5"},
    {Game::Quake,    "cl_forwardspeed 333.30",            LOOK(Chosen(d.cl_forwardspeed_Cbo)),                  "333.3"},
    {Game::Quake,    "cl_pitchspeed 150",                 LOOK(Chosen(d.cl_pitchspeed_Cbo)),                    "150"},
    {Game::Quake,    "cl_rollangle 2.0",                  LOOK(Chosen(d.cl_rollangle_Cbo)),                     "2"},
    {Game::Quake,    "cl_rollspeed 200",                  LOOK(Chosen(d.cl_rollspeed_Cbo)),                     "200"},
    {Game::Quake,    "cl_sidespeed 350",                  LOOK(Chosen(d.cl_sidespeed_Cbo)),                     "350"},
    {Game::Quake,    "cl_yawspeed fast",                  LOOK(Chosen(d.cl_yawspeed_Cbo)),                      "0"},
    {Game::Quake,    "color 13 4",                        LOOK(std::to_string(d.PlayerColor_Lbl[0].Tag)),       "13"},
    {Game::Quake,    "color 13 4",                        LOOK(std::to_string(d.PlayerColor_Lbl[1].Tag)),       "4"},
    {Game::Quake,    "color 13 4",                        LOOK(std::to_string(d.PlayerColor_Lbl[0].BackColor)), "12582912"},
    {Game::Quake,    "color 12",                          LOOK(std::to_string(d.PlayerColor_Lbl[1].Tag)),       "12"},
    {Game::Quake,    "color 12",                          LOOK(std::to_string(d.PlayerColor_Lbl[1].BackColor)), "65535"},
    {Game::Quake,    "color 3\ncolor 14 -1",              LOOK(std::to_string(d.PlayerColor_Lbl[0].BackColor)), "32768"},
    {Game::Quake,    "color 14 -1",                       LOOK(std::to_string(d.PlayerColor_Lbl[1].Tag)),       "-1"},
    {Game::Quake,    "crosshaircolor 79",                 LOOK(Chosen(d.CrossHairColor_Cbo)),                   "079 -Red"},
    {Game::Quake,    "crosshaircolor 300",                LOOK(Chosen(d.CrossHairColor_Cbo)),                   "300"},
    {Game::Quake,    "crosshair 1",                       LOOK(Chosen(d.Crosshair_Cbo)),                        "1"},
    {Game::Quake,    "crosshair 2.0",                     LOOK(Chosen(d.Crosshair_Cbo)),                        "2"},
    {Game::Quake,    "crosshair +",                       LOOK(Chosen(d.Crosshair_Cbo)),                        "0"},
    {Game::Quake2,   "crosshair 3",                       LOOK(Chosen(d.Crosshair_Cbo)),                        "3 (red angle)"},
    {Game::Quake2,   "crosshair 4",                       LOOK(Chosen(d.Crosshair_Cbo)),                        "4"},
    {Game::Sin,      "crosshair 2",                       LOOK(Chosen(d.Crosshair_Cbo)),                        "2 (red dot)"},
    {Game::Heretic2, "crosshair 1",                       LOOK(Chosen(d.Crosshair_Cbo)),                        "1 (white cross)"},
    {Game::HalfLife, "crosshair 1.0",                     LOOK(Chosen(d.Crosshair_Cbo)),                        "1 (crosshair on)"},
    {Game::Quake,    "echo |========================|",   LOOK(d.Sections.at(0).Text),                          ""},
    {Game::Quake,    "echo |..Setup Foundry ROCKS!..|",   LOOK(d.Sections.at(0).Text),                          ""},
    {Game::Quake,    "echo |==setup",                     LOOK(d.Sections.at(0).Text),                          ""},
    {Game::Quake,    "echo |........................|",   LOOK(d.Sections.at(0).Text),                          ""},
    {Game::Quake,    "fov 90",                            LOOK(Chosen(d.fov_Cbo)),                              "90"},
    {Game::Quake2,   "set freelook 1",                    LOOK(Mark(d.MLook_Chk)),                              "on"},
    {Game::Quake,    "joystick 1",                        LOOK(Mark(d.JoyStick_Chk)),                           "on"},
    {Game::Quake,    "lookspring 1",                      LOOK(Mark(d.LookSpring_Chk)),                         "on"},
    {Game::Quake,    "lookstrafe 1",                      LOOK(Mark(d.LookStrafe_Chk)),                         "on"},
    {Game::Quake,    "noaim 1",                           LOOK(Mark(d.NoAim_Chk)),                              "on"},
    {Game::Quake,    "showpause \"1\"",                   LOOK(Mark(d.ShowPause_Chk)),                          "on"},
    {Game::Quake,    "showram 1\nshowram 0",              LOOK(Mark(d.ShowRAM_Chk)),                            "off"},
    {Game::Quake,    "showturtle 1\nshowturtle 2",        LOOK(Mark(d.ShowTurtle_Chk)),                         "on"},
    {Game::Quake,    "gamma 0.70",                        LOOK(Chosen(d.gamma_Cbo)),                            "0.7"},
    {Game::Quake2,   "hand 1",                            LOOK(Chosen(d.Handed_Cbo)),                           "1 (left)"},
    {Game::Heretic2, "hand 2",                            LOOK(Chosen(d.Handed_Cbo)),                           "2 (none)"},
    {Game::Quake,    "m_forward 1",                       LOOK(Chosen(d.m_forward_Cbo)),                        "1"},
    {Game::Quake,    "m_side 0.8",                        LOOK(Chosen(d.m_side_Cbo)),                           "0.8"},
    {Game::Quake,    "m_yaw 0.022",                       LOOK(Chosen(d.m_yaw_Cbo)),                            "0.022"},
    {Game::Quake,    "m_filter 1",                        LOOK(Chosen(d.m_filter_Cbo)),                         "1"},
    {Game::Quake,    "sensitivity 3",                     LOOK(Chosen(d.MouseSensitivity_Cbo)),                 "3.0"},
    {Game::Quake,    "m_pitch -0.022",                    LOOK(Chosen(d.m_pitch_Cbo)),                          "0.022"},
    {Game::Quake,    "m_pitch -0.022",                    LOOK(Mark(d.InvertMouse_Chk)),                        "on"},
    {Game::Quake,    "m_pitch 0.03",                      LOOK(Chosen(d.m_pitch_Cbo)),                          "0.030"},
    {Game::Quake,    "m_pitch 0.03",                      LOOK(Mark(d.InvertMouse_Chk)),                        "off"},
    {Game::Quake,    "m_pitch -0.03\nm_pitch 0.03",       LOOK(Mark(d.InvertMouse_Chk)),                        "off"},
    {Game::Quake,    "name \"Joe\xFF \xA8\"",             LOOK(d.Name_Txt.Text),                                "Joe\x9F \xA8"},
    {Game::Quake,    "name \"player\"\nname \"Joe\"",     LOOK(d.Name_Txt.Text),                                "Joe"},
    {Game::Quake2,   "rate 5000",                         LOOK(d.Rate_Txt.Text),                                "5000"},
    {Game::HalfLife, "rate 5000",                         LOOK(d.Rate_Txt.Text),                                "5000"},
    {Game::Quake2,   "s_volume 0.70",                     LOOK(Chosen(d.volume_Cbo)),                           "0.7"},
    {Game::Quake,    "volume 0.7",                        LOOK(Chosen(d.volume_Cbo)),                           "0.7"},
    {Game::Quake2,   "s_wavonly 1",                       LOOK(Mark(d.Q2_WaveOnly_Chk)),                        "on"},
    {Game::Quake2,   "s_wavonly 1\ns_wavonly 2",          LOOK(Mark(d.Q2_WaveOnly_Chk)),                        "off"},
    {Game::Quake,    "scr_centerspeed 8",                 LOOK(Chosen(d.scr_centerspeed_Cbo)),                  "8"},
    {Game::Quake,    "scr_conspeed 2000",                 LOOK(Chosen(d.scr_conspeed_Cbo)),                     "2000"},
    {Game::Quake,    "v_kickpitch 0.60",                  LOOK(Chosen(d.v_kickpitch_Cbo)),                      "0.6"},
    {Game::Quake,    "v_kickroll 3",                      LOOK(Chosen(d.v_kickroll_Cbo)),                       "3.0"},
    {Game::Quake,    "v_kicktime 0.5",                    LOOK(Chosen(d.v_kicktime_Cbo)),                       "0.5"},
    {Game::Quake,    "viewsize 100",                      LOOK(Chosen(d.viewsize_Cbo)),                         "100"},
    {Game::Quake,    "setupfoundry_info specifycolors 0", LOOK(Mark(d.NoColors_Chk)),                           "on"},
    {Game::Quake,    "setupfoundry_info SpecifyColors 1", LOOK(Mark(d.NoColors_Chk)),                           "off"},
    {Game::Quake,    "setupfoundry_info other 0",         LOOK(Mark(d.NoColors_Chk)),                           "off"},
    {Game::Quake2,   "skin male/grunt",                   LOOK(Chosen(d.Sex_Cbo)),                              "male"},
    {Game::Quake2,   "skin male/grunt/x",                 LOOK(Chosen(d.Skin_Cbo)),                             "grunt/x"},
    {Game::Quake2,   "set sv_aim 1.0",                    LOOK(Mark(d.NoAim_Chk)),                              "on"},
    {Game::Quake2,   "sv_aim 1\nsv_aim 0.5",              LOOK(Mark(d.NoAim_Chk)),                              "off"},
    {Game::Quake,    "unbindall",                         LOOK(Mark(d.Unbindall_Chk)),                          "on"},
    {Game::Quake,    "unbindall // removes all",          LOOK(Mark(d.Unbindall_Chk)),                          "on"},
    {Game::Quake,    "vid_mode 3",                        LOOK(Chosen(d.vidmode_Cbo)),                          "3) 320x240"},
    {Game::Quake,    "vid_mode 15",                       LOOK(Chosen(d.vidmode_Cbo)),                          "15) Custom VESA Mode"},
    {Game::Quake,    "vid_mode 11",                       LOOK(Chosen(d.vidmode_Cbo)),                          "11) Custom VESA Mode"},
    {Game::Quake,    "vid_mode 10",                       LOOK(Chosen(d.vidmode_Cbo)),                          "10) 360x480"},
    {Game::Quake,    "vid_mode -1",                       LOOK(Row(d.vidmode_Cbo)),                             "-1"},
    {Game::Quake,    "vid_mode -2",                       LOOK(Chosen(d.vidmode_Cbo)),                          "-2) Custom VESA Mode"},
    {Game::Quake,    "vid_mode x",                        LOOK(Chosen(d.vidmode_Cbo)),                          "0) 320x200"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Table, Keyword, ::testing::ValuesIn(kCases));

struct KeptCase {
    Game Kind;
    const char* Line;
};

class KeptLine : public ::testing::TestWithParam<KeptCase> {};

TEST_P(KeptLine, StaysInTheTextOfItsSection) {
    EXPECT_EQ(Read(GetParam().Kind, GetParam().Line).Sections.at(0).Text, GetParam().Line);
}

constexpr KeptCase kKept[] = {
    {Game::Quake, "_cl_playerclass 2"},
    {Game::Quake2, "_cl_playerclass"},
    {Game::Quake, "echo hello"},
    {Game::Quake, "echo"},
    {Game::Quake, "echo |=========================|"},
    {Game::Unreal, "Name=Player"},
    {Game::Unreal, "Name="},
    {Game::Quake, "rate 5000"},
    {Game::Hexen2, "rate"},
    {Game::Unreal, "Rate=5000"},
    {Game::Quake, "skin base"},
    {Game::Hexen2, "skin male/grunt"},
    {Game::Unreal, "Class=Botpack.TMale1"},
    {Game::Quake, "fovs 90"},
    {Game::Quake, "-mlook"},
    {Game::Quake, "\"fov \" 90"},
    {Game::Unreal, "Gamma =0.5"},
    {Game::Quake, "crosshairs 1"},
};

INSTANTIATE_TEST_SUITE_P(Table, KeptLine, ::testing::ValuesIn(kKept));

TEST(Keywords, AreThese) {
    // clang-format off
    constexpr const char* kAll[] = {
        "weaponpriority", "usedirectsound", "usefilter", "usesurround", "usestereo", "usecdmusic", "usedigitalmusic",
        "usespatial", "usereverb", "use3dhardware", "lowsoundquality", "reversestereo", "latency", "outputrate",
        "effectschannels", "dopplerspeed", "musicvolume", "soundvolume", "ambientfactor", "playername", "teamname",
        "password", "dodgeclicktime", "bob", "myautoaim", "handedness", "blookupstairs", "bsnaptolevel",
        "balwaysmouselook", "bkeyboardlook", "binvertmouse", "mousesensitivity", "netspeed", "clientnetmindelta",
        "servernetmindelta", "mousex", "mousey", "_cl_color", "_cl_name", "_cl_playerclass", "cl_run",
        "_snd_mixahead", "s_mixahead", "+mlook", "+speed", "alias", "bgmvolume", "bind", "cd_nocd", "cl_backspeed",
        "cl_bob", "cl_bobcycle", "cl_bobup", "cl_forwardspeed", "cl_pitchspeed", "cl_rollangle", "cl_rollspeed",
        "cl_sidespeed", "cl_yawspeed", "color", "crosshaircolor", "crosshair", "echo", "fov", "freelook", "joystick",
        "lookspring", "lookstrafe", "noaim", "showpause", "showram", "showturtle", "gamma", "hand", "m_forward",
        "m_side", "m_yaw", "m_filter", "sensitivity", "m_pitch", "name", "rate", "s_volume", "volume", "s_wavonly",
        "scr_centerspeed", "scr_conspeed", "v_kickpitch", "v_kickroll", "v_kicktime", "viewsize",
        "setupfoundry_info", "skin", "sv_aim", "unbindall", "vid_mode"
    };
    // clang-format on
    EXPECT_EQ(std::size(kAll), 96U);
    for (const char* keyword : kAll) {
        EXPECT_NE(FindKeyword(keyword), nullptr) << keyword;
    }
    EXPECT_EQ(FindKeyword(""), nullptr);
    EXPECT_EQ(FindKeyword("set"), nullptr);
}

TEST(Keywords, OfQuakeWorldTakeTheRate) {
    const D document = Read(Game::Quake, "rate 2500", true);
    EXPECT_EQ(document.Rate_Txt.Text, "2500");
    EXPECT_EQ(document.Sections.at(0).Text, "");
}

TEST(Keywords, LeaveABoxThatIsOffAsItIs) {
    ScriptView view;
    D document = MakeScriptDocument(DialectOf(Game::Quake2));
    document.Q2_EnableCD_Chk.Enabled = false;
    document.Q2_EnableCD_Chk.Value = 1;
    document.Q2_WaveOnly_Chk.Enabled = false;
    ReadInto(document, "cd_nocd 1\ns_wavonly 1", view);
    EXPECT_EQ(document.Q2_EnableCD_Chk.Value, 1);
    EXPECT_EQ(document.Q2_WaveOnly_Chk.Value, 0);
}

TEST(Keywords, AddVideoModesOnlyAsFarAsALongListGoes) {
    Text script;
    for (int mode = 11; mode < 3000; ++mode) {
        script += "vid_mode " + std::to_string(mode) + "\n";
    }
    const D document = Read(Game::Quake, script);
    EXPECT_EQ(document.vidmode_Cbo.Items.size(), 1011);
    EXPECT_EQ(document.vidmode_Cbo.Selected(), "2999) Custom VESA Mode");
}

TEST(Keywords, KeepAWeaponThatFindsNoRoom) {
    Text script;
    for (int weapon = 0; weapon < 1002; ++weapon) {
        script += "WeaponPriority[5]=w" + std::to_string(weapon) + "\n";
    }
    const D document = Read(Game::Unreal, script);
    EXPECT_EQ(document.Sections.at(0).Text, "WeaponPriority[5]=w1000\r\nWeaponPriority[5]=w1001");
    EXPECT_EQ(document.WeaponPriority[5], "w999");
}

}  // namespace
}  // namespace lv
