// tests/foundry/listing_page_lists.h
//
// What the lists of the player's and Unreal's pages offer.

#pragma once

#include <span>

namespace lv::listing {

// clang-format off
constexpr const char* kCrosshairsOfQuake[] = {"0", "1", "2"};
constexpr const char* kCrosshairsOfQuake2[] = {"0 (none)", "1 (white cross)", "2 (red dot)", "3 (red angle)"};
constexpr const char* kCrosshairsOfHalfLife[] = {"0 (none)", "1 (crosshair on)"};
constexpr const char* kHands[] = {"0 (right)", "1 (left)", "2 (none)"};
constexpr const char* kPlayerClasses[] = {"Paladin", "Crusader", "Necromancer", "Assassin"};
constexpr const char* kPlayerClassesOfMissionPack[] = {"Paladin", "Crusader", "Necromancer", "Assassin", "Demoness"};
constexpr const char* kCrosshairColors[] = {
    "000 -Brown", "001", "002", "003", "004", "005", "006", "007 -Grey", "008", "009", "010", "011", "012",
    "013", "014", "015 -White", "016", "017", "018", "019", "020", "021", "022", "023 -Tan", "024", "025",
    "026", "027", "028", "029", "030", "031 -Yellow", "032", "033", "034", "035", "036", "037", "038",
    "039 -Lt. Blue", "040", "041", "042", "043", "044", "045", "046", "047 -Brt. Blue", "048", "049", "050",
    "051", "052", "053", "054", "055 -Olive", "056", "057", "058", "059", "060", "061", "062",
    "063 -Yuck Green", "064", "065", "066", "067", "068", "069", "070", "071 -Deep Red", "072", "073", "074",
    "075", "076", "077", "078", "079 -Red", "080", "081", "082", "083", "084", "085", "086", "087 -Tan", "088",
    "089", "090", "091", "092", "093", "094", "095 -Lt. Orange", "096", "097", "098", "099", "100", "101",
    "102", "103 -Pink", "104", "105", "106", "107", "108", "109", "110", "111", "112", "113", "114", "115",
    "116", "117", "118", "119 -Flesh", "120", "121", "122", "123", "124", "125", "126", "127 -White",
    "128 -Blue White", "129", "130", "131", "132", "133", "134 -Purple White", "135", "136", "137", "138",
    "139", "140", "141", "142", "143", "144 -Lt. Purple", "145", "146", "147", "148", "149", "150",
    "151 -Purple", "152", "153", "154", "155", "156", "157", "158", "159", "160", "161", "162", "163", "164",
    "165", "166", "167", "168", "169", "170", "171", "172", "173", "174", "175", "176 -Aqua", "177", "178",
    "179", "180", "181", "182", "183 -Dk. Aqua", "184", "185", "186", "187", "188", "189", "190", "191",
    "192 -Bright Yellow", "193", "194", "195", "196", "197", "198", "199 -Med. Yellow", "200", "201", "202",
    "203", "204", "205", "206", "207", "208 -Bright Blue", "209", "210", "211", "212", "213", "214",
    "215 -Lt. Blue", "216", "217", "218", "219", "220", "221", "222", "223", "224 -Burgandy", "225", "226",
    "227", "228", "229", "230", "231 -Yellow White", "232", "233", "234", "235", "236", "237", "238", "239",
    "240 -Pale", "241", "242", "243", "244", "245", "246", "247 -Red", "248", "249", "250", "251", "252", "253",
    "254", "255 -Brown",
};
constexpr const char* kYesNo[] = {"True", "False"};
constexpr const char* kLatency[] = {"0", "10", "20", "30", "40", "50", "60", "70", "80", "90", "100"};
constexpr const char* kOutputRate[] = {"11025Hz", "22050Hz", "44100Hz"};
constexpr const char* kDopplerSpeed[] = {"4500.000000", "5500.000000", "6500.000000", "7500.000000", "8500.000000"};
constexpr const char* kVolume[] = {
    "0.000000", "0.100000", "0.200000", "0.300000", "0.400000", "0.500000", "0.600000", "0.700000", "0.800000",
    "0.900000", "1.000000",
};
constexpr const char* kDodgeClickTime[] = {
    "0.000000", "0.125000", "0.250000", "0.375000", "0.500000", "0.675000", "0.750000", "0.875000", "1.000000",
};
constexpr const char* kBob[] = {
    "0.000000", "0.004000", "0.008000", "0.012000", "0.016000", "0.020000", "0.024000", "0.028000", "0.032000",
    "0.036000", "0.040000",
};
constexpr const char* kAutoAim[] = {
    "0.000000", "0.100000", "0.200000", "0.300000", "0.400000", "0.500000", "0.600000", "0.700000", "0.800000",
    "0.850000", "0.860000", "0.870000", "0.880000", "0.890000", "0.900000", "0.910000", "0.920000", "0.930000",
    "0.940000", "0.950000", "0.960000", "0.970000", "0.980000", "0.990000", "1.000000",
};
constexpr const char* kHandedness[] = {"-1.000000", "1.000000"};
constexpr const char* kMouseSensitivity[] = {
    "0.000000", "0.500000", "1.000000", "1.500000", "2.000000", "2.500000", "3.000000", "3.500000", "4.000000",
    "4.500000", "5.000000", "5.500000", "6.000000", "6.500000", "7.000000", "7.500000", "8.000000", "8.500000",
    "9.000000", "9.500000", "10.000000",
};
constexpr const char* kNetSpeed[] = {"1300", "1950", "2600", "3250", "3900", "4550", "5200"};
constexpr const char* kMinDelta[] = {"0.000000", "0.025000", "0.050000", "0.075000", "0.100000"};
constexpr const char* kMouseAxisSpeed[] = {
    "1.0", "2.0", "3.0", "4.0", "5.0", "6.0", "7.0", "8.0", "9.0", "10.0", "11.0", "12.0", "13.0", "14.0",
    "15.0",
};
constexpr const char* kWeapons[] = {
    "ASMD", "AutoMag", "DispersionPistol", "DispersionPower1", "DispersionPower2", "DispersionPower3",
    "DispersionPower4", "DispersionPower5", "Eightball", "FlakCannon", "GESBioRifle", "Minigun", "Razorjack",
    "Rifle", "Stinger",
};

/// By the number of UnrealAudio_Cbo. 13, the effects' channels, is whatever the ini says.
constexpr std::span<const char* const> kUnrealAudio[] = {
    kYesNo, kYesNo, kYesNo, kYesNo, kYesNo, kYesNo, kYesNo, kYesNo, kYesNo, kYesNo, kYesNo,
    kLatency, kOutputRate, {}, kDopplerSpeed, kVolume, kVolume, kVolume,
};

/// By the number of PlayerPawn_Cbo.
constexpr std::span<const char* const> kPlayerPawn[] = {
    kDodgeClickTime, kBob, kAutoAim, kHandedness, kYesNo, kYesNo, kYesNo, kYesNo, kYesNo,
    kMouseSensitivity, kNetSpeed, kMinDelta, kMinDelta,
};
// clang-format on

}  // namespace lv::listing
