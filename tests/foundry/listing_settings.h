// tests/foundry/listing_settings.h
//
// The values that the numeric settings offer.

#pragma once

#include <span>

namespace lv::listing {

/// The values of one list, from the first to the last, with a point for decimals.
struct SettingList {
    const char* Name;
    std::span<const char* const> Values;
};

// clang-format off
constexpr const char* kSndMixaheadValues[] = {  // snd_mixahead_Cbo
    "0.05", "0.10", "0.15", "0.20", "0.25", "0.30", "0.35", "0.40", "0.45", "0.50", "0.55", "0.60", "0.65",
    "0.70", "0.75", "0.80", "0.85", "0.90", "0.95", "1.00",
};
constexpr const char* kBgmvolumeValues[] = {  // bgmvolume_Cbo, volume_Cbo
    "0.0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0", "1.1",
};
constexpr const char* kClBackspeedValues[] = {  // cl_backspeed_Cbo, cl_forwardspeed_Cbo, cl_sidespeed_Cbo
    "50", "75", "100", "125", "150", "175", "200", "225", "250", "275", "300", "325", "350", "375", "400",
};
constexpr const char* kClBobValues[] = {  // cl_bob_Cbo
    "0.00", "0.01", "0.02", "0.03", "0.04", "0.05", "0.06", "0.07", "0.08",
};
constexpr const char* kClBobcycleValues[] = {  // cl_bobcycle_Cbo, gamma_Cbo
    "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0", "1.1", "1.2", "1.3", "1.4", "1.5",
    "1.6", "1.7", "1.8", "1.9", "2.0",
};
constexpr const char* kClBobupValues[] = {  // cl_bobup_Cbo
    "0.0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0",
};
constexpr const char* kClPitchspeedValues[] = {  // cl_pitchspeed_Cbo
    "50", "100", "150", "200", "250", "300", "350", "400", "450", "500", "550", "600", "650", "700",
};
constexpr const char* kClRollangleValues[] = {  // cl_rollangle_Cbo
    "0", "2", "4", "6", "8", "10",
};
constexpr const char* kClRollspeedValues[] = {  // cl_rollspeed_Cbo
    "0", "50", "100", "150", "200", "250", "300", "350", "400",
};
constexpr const char* kClYawspeedValues[] = {  // cl_yawspeed_Cbo
    "50", "60", "70", "80", "90", "100", "110", "120", "130", "140", "150", "160", "170", "180", "190", "200",
    "300", "400", "500", "600", "700", "800", "900", "1000",
};
constexpr const char* kFovValues[] = {  // fov_Cbo
    "15", "20", "25", "30", "35", "40", "45", "50", "55", "60", "65", "70", "75", "80", "85", "90", "95", "100",
    "105", "110", "115", "120", "125", "130", "135", "140", "145", "150", "155", "160", "165", "170", "175",
    "180", "185", "190", "195", "200", "205", "210", "215", "220", "225", "230", "235", "240", "245", "250",
    "255", "260", "265", "270", "275", "280", "285", "290", "295", "300", "305", "310", "315", "320", "325",
    "330", "335", "340", "345", "350", "355", "360",
};
constexpr const char* kMForwardValues[] = {  // m_forward_Cbo
    "0", "1", "2", "3", "4", "5",
};
constexpr const char* kMPitchValues[] = {  // m_pitch_Cbo, m_yaw_Cbo
    "0.005", "0.010", "0.022", "0.030", "0.040", "0.050", "0.060", "0.070", "0.080", "0.090", "0.100",
};
constexpr const char* kMSideValues[] = {  // m_side_Cbo
    "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0", "2.0", "3.0", "4.0", "5.0", "6.0",
    "7.0", "8.0", "9.0", "10.0",
};
constexpr const char* kScrCenterspeedValues[] = {  // scr_centerspeed_Cbo
    "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16", "17", "18",
    "19", "20", "21", "22", "23", "24", "25", "26", "27", "28", "29", "30",
};
constexpr const char* kScrConspeedValues[] = {  // scr_conspeed_Cbo
    "100", "200", "300", "400", "500", "1000", "2000", "10000",
};
constexpr const char* kMouseSensitivityValues[] = {  // MouseSensitivity_Cbo
    "50.0", "49.5", "49.0", "48.5", "48.0", "47.5", "47.0", "46.5", "46.0", "45.5", "45.0", "44.5", "44.0",
    "43.5", "43.0", "42.5", "42.0", "41.5", "41.0", "40.5", "40.0", "39.5", "39.0", "38.5", "38.0", "37.5",
    "37.0", "36.5", "36.0", "35.5", "35.0", "34.5", "34.0", "33.5", "33.0", "32.5", "32.0", "31.5", "31.0",
    "30.5", "30.0", "29.5", "29.0", "28.5", "28.0", "27.5", "27.0", "26.5", "26.0", "25.5", "25.0", "24.5",
    "24.0", "23.5", "23.0", "22.5", "22.0", "21.5", "21.0", "20.5", "20.0", "19.5", "19.0", "18.5", "18.0",
    "17.5", "17.0", "16.5", "16.0", "15.5", "15.0", "14.5", "14.0", "13.5", "13.0", "12.5", "12.0", "11.5",
    "11.0", "10.5", "10.0", "9.5", "9.0", "8.5", "8.0", "7.5", "7.0", "6.5", "6.0", "5.5", "5.0", "4.5", "4.0",
    "3.5", "3.0", "2.5", "2.0", "1.5", "1.0", "0.5", "0.0",
};
constexpr const char* kVKickpitchValues[] = {  // v_kickpitch_Cbo, v_kickroll_Cbo, v_kicktime_Cbo
    "0.0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0", "1.1", "1.2", "1.3", "1.4",
    "1.5", "1.6", "1.7", "1.8", "1.9", "2.0", "2.1", "2.2", "2.3", "2.4", "2.5", "2.6", "2.7", "2.8", "2.9",
    "3.0",
};
constexpr const char* kViewsizeValues[] = {  // viewsize_Cbo
    "20", "30", "40", "50", "60", "70", "80", "90", "100", "110", "120", "130",
};
constexpr const char* kVidmodeValues[] = {  // vidmode_Cbo
    "0) 320x200", "1) 320x200", "2) 360x200", "3) 320x240", "4) 360x240", "5) 320x350", "6) 360x350",
    "7) 320x400", "8) 360x400", "9) 320x480", "10) 360x480",
};

constexpr SettingList kSettingLists[] = {
    {"snd_mixahead_Cbo", kSndMixaheadValues},
    {"bgmvolume_Cbo", kBgmvolumeValues},
    {"volume_Cbo", kBgmvolumeValues},
    {"cl_backspeed_Cbo", kClBackspeedValues},
    {"cl_forwardspeed_Cbo", kClBackspeedValues},
    {"cl_sidespeed_Cbo", kClBackspeedValues},
    {"cl_bob_Cbo", kClBobValues},
    {"cl_bobcycle_Cbo", kClBobcycleValues},
    {"gamma_Cbo", kClBobcycleValues},
    {"cl_bobup_Cbo", kClBobupValues},
    {"cl_pitchspeed_Cbo", kClPitchspeedValues},
    {"cl_rollangle_Cbo", kClRollangleValues},
    {"cl_rollspeed_Cbo", kClRollspeedValues},
    {"cl_yawspeed_Cbo", kClYawspeedValues},
    {"fov_Cbo", kFovValues},
    {"m_forward_Cbo", kMForwardValues},
    {"m_pitch_Cbo", kMPitchValues},
    {"m_yaw_Cbo", kMPitchValues},
    {"m_side_Cbo", kMSideValues},
    {"scr_centerspeed_Cbo", kScrCenterspeedValues},
    {"scr_conspeed_Cbo", kScrConspeedValues},
    {"MouseSensitivity_Cbo", kMouseSensitivityValues},
    {"v_kickpitch_Cbo", kVKickpitchValues},
    {"v_kickroll_Cbo", kVKickpitchValues},
    {"v_kicktime_Cbo", kVKickpitchValues},
    {"viewsize_Cbo", kViewsizeValues},
    {"vidmode_Cbo", kVidmodeValues},
};
// clang-format on

}  // namespace lv::listing
