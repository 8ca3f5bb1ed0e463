// tests/foundry/listing_reader_keywords.h
//
// What the reader makes of each keyword of a script: a line, the kinds in which it stands, and what it sets.

#pragma once

namespace lv::listing {

/// A line that keeps its place: it is kept in the free-form text of its section.
constexpr const char* kKept = "kept";
/// A line that neither sets anything nor is kept.
constexpr const char* kDropped = "dropped";

/// In a console script the line is the keyword, a blank and the value; in an ini the two around a "=".
struct KeywordRow {
    const char* Keyword;
    const char* Value;
    const char* Kinds;     // a digit each
    const char* Control;   // kKept and kDropped too
    const char* Expected;  // of the control: selected text, text, 0 or 1, the colour's number
};

constexpr const char* kAll = "1234569";
constexpr const char* kConsole = "123569";

// clang-format off
constexpr KeywordRow kKeywords[] = {
    // Unreal's sound
    {"UseDirectSound",    "True",            kAll, "UnrealAudio_Cbo(0)",  "True"},
    {"UseFilter",         "False",           kAll, "UnrealAudio_Cbo(1)",  "False"},
    {"UseSurround",       "True",            kAll, "UnrealAudio_Cbo(2)",  "True"},
    {"UseStereo",         "False",           kAll, "UnrealAudio_Cbo(3)",  "False"},
    {"UseCDMusic",        "True",            kAll, "UnrealAudio_Cbo(4)",  "True"},
    {"UseDigitalMusic",   "False",           kAll, "UnrealAudio_Cbo(5)",  "False"},
    {"UseSpatial",        "True",            kAll, "UnrealAudio_Cbo(6)",  "True"},
    {"UseReverb",         "False",           kAll, "UnrealAudio_Cbo(7)",  "False"},
    {"Use3dHardware",     "True",            kAll, "UnrealAudio_Cbo(8)",  "True"},
    {"LowSoundQuality",   "False",           kAll, "UnrealAudio_Cbo(9)",  "False"},
    {"ReverseStereo",     "True",            kAll, "UnrealAudio_Cbo(10)", "True"},
    {"Latency",           "40",              kAll, "UnrealAudio_Cbo(11)", "40"},
    {"OutputRate",        "22050Hz",         kAll, "UnrealAudio_Cbo(12)", "22050Hz"},
    {"EffectsChannels",   "16",              kAll, "UnrealAudio_Cbo(13)", "16"},
    {"DopplerSpeed",      "6500",            kAll, "UnrealAudio_Cbo(14)", "6500.000000"},
    {"MusicVolume",       "0.5",             kAll, "UnrealAudio_Cbo(15)", "0.500000"},
    {"SoundVolume",       "0.55",            kAll, "UnrealAudio_Cbo(16)", "0.55"},
    {"AmbientFactor",     "1.000000",        kAll, "UnrealAudio_Cbo(17)", "1.000000"},
    {"usedirectsound",    "false",           kAll, "UnrealAudio_Cbo(0)",  "False"},
    // Unreal's player
    {"PlayerName",        "Ranger",          kAll, "Name_Txt",            "Ranger"},
    {"TeamName",          "Reds",            kAll, "UnrealTeamName_Txt",  "Reds"},
    {"Password",          "SeCret",          kAll, "UnrealPassword_Txt",  "SeCret"},
    {"DodgeClickTime",    "0.675",           kAll, "PlayerPawn_Cbo(0)",   "0.675000"},
    {"Bob",               "0.016",           kAll, "PlayerPawn_Cbo(1)",   "0.016000"},
    {"MyAutoAim",         "0.85",            kAll, "PlayerPawn_Cbo(2)",   "0.850000"},
    {"Handedness",        "-1.000000",       kAll, "PlayerPawn_Cbo(3)",   "-1.000000"},
    {"bLookUpStairs",     "False",           kAll, "PlayerPawn_Cbo(4)",   "False"},
    {"bSnapToLevel",      "True",            kAll, "PlayerPawn_Cbo(5)",   "True"},
    {"bAlwaysMouseLook",  "False",           kAll, "PlayerPawn_Cbo(6)",   "False"},
    {"bKeyboardLook",     "True",            kAll, "PlayerPawn_Cbo(7)",   "True"},
    {"bInvertMouse",      "False",           kAll, "PlayerPawn_Cbo(8)",   "False"},
    {"MouseSensitivity",  "3.5",             kAll, "PlayerPawn_Cbo(9)",   "3.500000"},
    {"NetSpeed",          "2600",            kAll, "PlayerPawn_Cbo(10)",  "2600"},
    {"ClientNetMinDelta", "0.025",           kAll, "PlayerPawn_Cbo(11)",  "0.025000"},
    {"ServerNetMinDelta", "0.1",             kAll, "PlayerPawn_Cbo(12)",  "0.100000"},
    {"MouseX",            "4.0",             kAll, "MouseBind_Cbo(0)",    "4.0"},
    {"MouseY",            "15.0",            kAll, "MouseBind_Cbo(1)",    "15.0"},
    // player
    {"_cl_color",         "212",             kAll, "PlayerColor_Lbl(0)",  "13"},
    {"_cl_color",         "212",             kAll, "PlayerColor_Lbl(1)",  "4"},
    {"_cl_color",         "12",              kAll, "PlayerColor_Lbl(0)",  "0"},
    {"_cl_color",         "12",              kAll, "PlayerColor_Lbl(1)",  "12"},
    {"_cl_name",          "Ranger",          kAll, "Name_Txt",            "Ranger"},
    {"_cl_playerclass",   "2",               "134569", kKept,             ""},
    {"color",             "4 11",            kConsole, "PlayerColor_Lbl(0)", "4"},
    {"color",             "4 11",            kConsole, "PlayerColor_Lbl(1)", "11"},
    {"color",             "4",               kAll, "PlayerColor_Lbl(0)",  "4"},
    {"color",             "4",               kAll, "PlayerColor_Lbl(1)",  "4"},
    {"name",              "RanGer",          kConsole, "Name_Txt",        "RanGer"},
    {"name",              "\"Big Ranger\"",  kConsole, "Name_Txt",        "Big Ranger"},
    {"name",              "a\xff" "b\xff",   kConsole, "Name_Txt",        "a\x9f" "b\x9f"},
    {"Name",              "Ranger",          "4",  kKept,                 ""},
    {"rate",              "2500",            "3569", "Rate_Txt",          "2500"},
    {"rate",              "2500",            "124", kKept,                ""},
    {"skin",              "female/athena",   "3569", "Sex_Cbo",           "female"},
    {"skin",              "female/athena",   "3569", "Skin_Cbo",          "athena"},
    {"skin",              "base",            "124", kKept,                ""},
    {"setupfoundry_info", "specifycolors 0", kConsole, "NoColors_Chk",    "1"},
    {"setupfoundry_info", "specifycolors 1", kConsole, "NoColors_Chk",    "0"},
    {"setupfoundry_info", "other 0",         kConsole, "NoColors_Chk",    "0"},
    // boxes
    {"cl_run",            "1",               kAll, "Speed_Chk",           "1"},
    {"cl_run",            "0",               kAll, "Speed_Chk",           "0"},
    {"+speed",            "",                kAll, "Speed_Chk",           "1"},
    {"+mlook",            "",                kAll, "MLook_Chk",           "1"},
    {"freelook",          "1",               kAll, "MLook_Chk",           "1"},
    {"freelook",          "0",               kAll, "MLook_Chk",           "0"},
    {"joystick",          "1",               kAll, "JoyStick_Chk",        "1"},
    {"lookspring",        "1",               kAll, "LookSpring_Chk",      "1"},
    {"lookstrafe",        "1",               kAll, "LookStrafe_Chk",      "1"},
    {"noaim",             "1",               kAll, "NoAim_Chk",           "1"},
    {"showpause",         "1",               kAll, "ShowPause_Chk",       "1"},
    {"showram",           "1",               kAll, "ShowRAM_Chk",         "1"},
    {"showturtle",        "1",               kAll, "ShowTurtle_Chk",      "1"},
    {"sv_aim",            "1",               kAll, "NoAim_Chk",           "1"},
    {"sv_aim",            "1.0",             kAll, "NoAim_Chk",           "1"},
    {"sv_aim",            "0.93",            kAll, "NoAim_Chk",           "0"},
    {"cd_nocd",           "0",               kAll, "Q2_EnableCD_Chk",     "1"},
    {"cd_nocd",           "1",               kAll, "Q2_EnableCD_Chk",     "0"},
    {"s_wavonly",         "1",               kAll, "Q2_WaveOnly_Chk",     "1"},
    {"s_wavonly",         "0",               kAll, "Q2_WaveOnly_Chk",     "0"},
    {"unbindall",         "",                kAll, "Unbindall_Chk",       "1"},
    // lists of numbers
    {"_snd_mixahead",     "0.1",             kAll, "snd_mixahead_Cbo",    "0.10"},
    {"s_mixahead",        "0.2",             kAll, "snd_mixahead_Cbo",    "0.20"},
    {"bgmvolume",         "1",               kAll, "bgmvolume_Cbo",       "1.0"},
    {"volume",            "0.7",             kAll, "volume_Cbo",          "0.7"},
    {"s_volume",          ".7",              kAll, "volume_Cbo",          "0.7"},
    {"cl_backspeed",      "400",             kAll, "cl_backspeed_Cbo",    "400"},
    {"cl_forwardspeed",   "0400.0",          kAll, "cl_forwardspeed_Cbo", "400"},
    {"cl_sidespeed",      "410.50",          kAll, "cl_sidespeed_Cbo",    "410.5"},
    {"cl_bob",            "0.02",            kAll, "cl_bob_Cbo",          "0.02"},
    {"cl_bobcycle",       "0.60",            kAll, "cl_bobcycle_Cbo",     "0.6"},
    {"cl_bobup",          "0.5",             kAll, "cl_bobup_Cbo",        "0.5"},
    {"cl_pitchspeed",     "150",             kAll, "cl_pitchspeed_Cbo",   "150"},
    {"cl_rollangle",      "2.0",             kAll, "cl_rollangle_Cbo",    "2"},
    {"cl_rollspeed",      "200",             kAll, "cl_rollspeed_Cbo",    "200"},
    {"cl_yawspeed",       "140",             kAll, "cl_yawspeed_Cbo",     "140"},
    {"cl_yawspeed",       "fast",            kAll, "cl_yawspeed_Cbo",     "0"},
    {"fov",               "90",              kAll, "fov_Cbo",             "90"},
    {"fov",               "97",              kAll, "fov_Cbo",             "97"},
    {"gamma",             "0.5",             kAll, "gamma_Cbo",           "0.5"},
    {"m_forward",         "1",               kAll, "m_forward_Cbo",       "1"},
    {"m_side",            "0.8",             kAll, "m_side_Cbo",          "0.8"},
    {"m_side",            "2",               kAll, "m_side_Cbo",          "2.0"},
    {"m_yaw",             "0.022",           kAll, "m_yaw_Cbo",           "0.022"},
    {"m_filter",          "1",               kAll, "m_filter_Cbo",        "1"},
    {"m_pitch",           "0.022",           kAll, "m_pitch_Cbo",         "0.022"},
    {"m_pitch",           "0.022",           kAll, "InvertMouse_Chk",     "0"},
    {"m_pitch",           "-0.03",           kAll, "m_pitch_Cbo",         "0.030"},
    {"m_pitch",           "-0.03",           kAll, "InvertMouse_Chk",     "1"},
    {"sensitivity",       "3",               kAll, "MouseSensitivity_Cbo", "3.0"},
    {"sensitivity",       "2.25",            kAll, "MouseSensitivity_Cbo", "2.25"},
    {"scr_centerspeed",   "8",               kAll, "scr_centerspeed_Cbo", "8"},
    {"scr_conspeed",      "300",             kAll, "scr_conspeed_Cbo",    "300"},
    {"v_kickpitch",       "0.6",             kAll, "v_kickpitch_Cbo",     "0.6"},
    {"v_kickroll",        "0.7",             kAll, "v_kickroll_Cbo",      "0.7"},
    {"v_kicktime",        "0.5",             kAll, "v_kicktime_Cbo",      "0.5"},
    {"viewsize",          "100",             kAll, "viewsize_Cbo",        "100"},
    {"vid_mode",          "3",               kAll, "vidmode_Cbo",         "3) 320x240"},
    {"vid_mode",          "10",              kAll, "vidmode_Cbo",         "10) 360x480"},
    {"vid_mode",          "11",              kAll, "vidmode_Cbo",         "11) Custom VESA Mode"},
    {"vid_mode",          "15",              kAll, "vidmode_Cbo",         "15) Custom VESA Mode"},
    {"vid_mode",          "-1",              kAll, "vidmode_Cbo",         ""},
    {"vid_mode",          "-2",              kAll, "vidmode_Cbo",         "-2) Custom VESA Mode"},
    // crosshair and hand
    {"crosshair",         "1",               "12", "Crosshair_Cbo",       "1"},
    {"crosshair",         "2",               "35", "Crosshair_Cbo",       "2 (red dot)"},
    {"crosshair",         "2",               "6",  "Crosshair_Cbo",       "2 (red dot)"},
    {"crosshair",         "1",               "9",  "Crosshair_Cbo",       "1 (crosshair on)"},
    {"hand",              "2",               "356", "Handed_Cbo",         "2 (none)"},
    {"hand",              "-1",              "356", "Handed_Cbo",         ""},
    {"crosshaircolor",    "79",              "1",  "CrossHairColor_Cbo",  "079 -Red"},
    // console only: "set" shifts the words
    {"set",               "fov 100",         kConsole, "fov_Cbo",         "100"},
    {"SET",               "joystick 1",      kConsole, "JoyStick_Chk",    "1"},
    {"FOV",               "100",             kAll, "fov_Cbo",             "100"},
    {"\"fov\"",           "\"100\"",         kConsole, "fov_Cbo",         "100"},
    // neither set nor kept
    {"echo",              "|========================|",   kConsole, kDropped, ""},
    {"echo",              "|........................|",   kConsole, kDropped, ""},
    {"echo",              "|==Setup Foundry ROCKS!==|",   kConsole, kDropped, ""},
    {"echo",              "|..Setup Foundry ROCKS!..|",   kConsole, kDropped, ""},
    {"alias",             "foo \"+attack\"", kConsole, kDropped,          ""},
    {"gamma",             "",                kAll, kDropped,              ""},
    {"bind",              "a",               kConsole, kDropped,          ""},
    {"bind",              "nokey +attack",   kConsole, kDropped,          ""},
    {"//* a comment",     "of stars",        kConsole, kDropped,          ""},
    // free form
    {"echo",              "hello",           kConsole, kKept,             ""},
    {"god",               "",                kConsole, kKept,             ""},
    {"unbind",            "x",               kConsole, kKept,             ""},
    {"cl_nobob",          "1",               kAll, kKept,                 ""},
    {"// a comment",      "of mine",         kConsole, kKept,             ""},
    {"exec",              "other.cfg",       kConsole, kKept,             ""},
};
// clang-format on

}  // namespace lv::listing
