// tests/foundry/listing_slots_unreal.h
//
// The fixed slots as they are expected in kind 4.

#pragma once

#include "tests/foundry/listing_slot_rows.h"

namespace lv::listing {

// clang-format off
// Kind 4.
constexpr SlotRow kSlotsOfUnreal[] = {
    {101,  "MoveForward",                        " Forward"},
    {102,  "MoveBackward",                       " Backward"},
    {103,  "TurnLeft",                           " Turn Left"},
    {104,  "TurnRight",                          " Turn Right"},
    {105,  "StrafeLeft",                         " Move Left"},
    {106,  "StrafeRight",                        " Move Right"},
    {107,  "LookUp",                             " Look Up"},
    {108,  "LookDown",                           " Look Down"},
    {109,  "ViewUp",                             " View Up"},
    {110,  "ViewDown",                           " View Down"},
    {111,  "Fire",                               " Attack"},
    {112,  "Jump",                               " Jump"},
    {113,  "Strafe",                             " Strafe On"},
    {115,  "Look",                               " Mouse Look"},
    {201,  "SwitchWeapon 1",                     " Dispersion Pistol"},
    {202,  "SwitchWeapon 2",                     " Auto Mag"},
    {203,  "SwitchWeapon 3",                     " Stinger"},
    {204,  "SwitchWeapon 4",                     " ASMD"},
    {205,  "SwitchWeapon 5",                     " Eight Ball"},
    {206,  "SwitchWeapon 6",                     " Flak Cannon"},
    {207,  "SwitchWeapon 7",                     " Razorjack"},
    {208,  "SwitchWeapon 8",                     " GES BioRifle"},
    {209,  "SwitchWeapon 9",                     " Rifle"},
    {210,  "SwitchWeapon 10",                    " Minigun"},
    {211,  "PrevWeapon",                         kNotShown},
    {212,  "NextWeapon",                         kNotShown},
    {303,  "CenterView",                         " CenterView"},
    {305,  "ShowMenu",                           " Menu"},
    {306,  "ShowScores",                         " Scores"},
    {307,  "Talk",                               " Message"},
    {401,  "Help | FunctionKey 1",               " Help"},
    {402,  "ActivateTranslator | FunctionKey 2", " Activate Translator"},
    {403,  "ActivateHint | FunctionKey 3",       " Activate Hint"},
    {404,  "ChangeHud",                          " Change Hud"},
    {405,  "FunctionKey 8",                      " FunctionKey 8"},
    {406,  "QuickSave",                          " Quick Save"},
    {407,  "QuickLoad",                          " Quick Load"},
    {408,  " Quit",                              " Quit"},
    {410,  " Shot",                              " Screen Shot"},
    {411,  " Cancel",                            " Cancel"},
    {412,  " Brightness",                        " Brightness"},
    {413,  " EndFullscreen",                     " End Full Screen"},
    {1001, "impulse 20",                         " Drop Back Pack"},
    {1002, "impulse 21",                         " Drop Current Weapon"},
    {1003, "impulse 22",                         " Select Grapple Hook"},
    {1004, "impulse 23",                         " Flag Status Report"},
    {1005, "impulse 69",                         " Last Weapon"},
    {1102, "InventoryNext",                      " Inventory Next"},
    {1103, "InventoryPrevious",                  " Inventory Previous"},
    {1104, "InventoryActivate",                  " Inventory Activate"},
    {1110, "ThrowWeapon",                        " Throw Weapon"},
    {1111, "Duck",                               " Duck"},
    {1112, "AltFire",                            " Alt Fire"},
    {1113, "Feigndeath",                         " Feign Death"},
    {1114, "use power shield",                   kNotShown},
    {1115, "use quad damage",                    kNotShown},
    {1116, "use silencer",                       kNotShown},
    {1120, "Taunt Taunt1",                       " Taunt Taunt1"},
    {1121, "Taunt Victory1",                     " Taunt Victory"},
    {1122, "Taunt wave",                         " Taunt Wave"},
};
constexpr HeadingRow kHeadingsOfUnreal[] = {
    {1100, " Unreal Inventory Control"},
    {1198, " Unreal Actions"},
    {1199, " Unreal Hand Signals"},
};
constexpr int kHiddenInUnreal[] = {
    114, 116, 211, 212, 301, 302, 304, 308, 409, 1101, 1105, 1114, 1115, 1116, 1123, 1124,
};
// clang-format on

}  // namespace lv::listing
