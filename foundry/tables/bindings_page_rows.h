// foundry/tables/bindings_page_rows.h
//
// The fixed slots, a row a slot: the command that each kind of game writes, and the caption. An empty command: the
// kind has no such slot. These spellings are the games' own; what looks mistaken is meant so.

#pragma once

#include "foundation/game.h"
#include "foundry/tables/slots.h"

namespace lv {

// clang-format off

struct MovementRow {
    SlotNumber Slot;
    TextView Caption;
    TextView Console;
    TextView HalfLife;
    TextView Unreal;
};

constexpr MovementRow kMovementRows[] = {
    {101, " Forward", "+forward", "+forward", "MoveForward"},
    {102, " Backward", "+back", "+back", "MoveBackward"},
    {103, " Turn Left", "+left", "+left", "TurnLeft"},
    {104, " Turn Right", "+right", "+right", "TurnRight"},
    {105, " Move Left", "+moveleft", "+moveleft", "StrafeLeft"},
    {106, " Move Right", "+moveright", "+moveright", "StrafeRight"},
    {107, " Look Up", "+lookup", "+lookup", "LookUp"},
    {108, " Look Down", "+lookdown", "+lookdown", "LookDown"},
    {109, " Swim Up", "+moveup", "+jump", "ViewUp"},
    {110, " Swim Down", "+movedown", "+duck", "ViewDown"},
    {111, " Attack", "+attack", "+attack", "Fire"},
    {112, " Jump", "+jump", "+jump", "Jump"},
    {113, " Strafe On", "+strafe", "+strafe", "Strafe"},
    {114, " Run On", "+speed", "+speed", ""},
    {115, " Mouse Look", "+mlook", "+mlook", "Look"},
    {116, " KeyB. Look", "+klook", "+klook", ""},
};

struct WeaponRow {
    SlotNumber Slot;
    TextView Quake;  // and Hexen II
    TextView Quake2;
    TextView Sin;
    TextView Heretic2;
    TextView HalfLife;
    TextView Unreal;
};

constexpr WeaponRow kWeaponRows[] = {
    {201, "impulse 1", "use Blaster", "use Fists", "use Sword-staff", "slot1", "SwitchWeapon 1"},
    {202, "impulse 2", "use Shotgun", "use Magnum", "use Flying-fist", "slot2", "SwitchWeapon 2"},
    {203, "impulse 3", "use Super Shotgun", "use Shotgun", "use Hell-staff", "slot3", "SwitchWeapon 3"},
    {204, "impulse 4", "use Machinegun", "use AssaultRifle", "use Magic-missile", "slot4", "SwitchWeapon 4"},
    {205, "impulse 5", "use Chaingun", "use Chaingun", "use Red-Rain-Bow", "slot5", "SwitchWeapon 5"},
    {206, "impulse 6", "use Grenade Launcher", "use SpiderMine", "use Sphere-of-annihilation", "", "SwitchWeapon 6"},
    {207, "impulse 7", "use Rocket Launcher", "use RocketLauncher", "use Phoenix-Bow", "", "SwitchWeapon 7"},
    {208, "impulse 8", "use HyperBlaster", "use PulseRifle", "use Mace-Balls", "", "SwitchWeapon 8"},
    {209, "impulse 12", "use Railgun", "use QuantumDestabilizer", "use Firewall", "", "SwitchWeapon 9"},
    {210, "impulse 10", "use BFG10K", "use SniperRifle", "", "", "SwitchWeapon 10"},
    {211, "", "weaplast", "weaplast", "weapprev", "", "PrevWeapon"},
    {212, "", "weapnext", "weapnext", "weapnext", "", "NextWeapon"},
};

constexpr WeaponRow kWeaponCaptionRows[] = {
    {201, " Axe !", " Blaster", " Fists", " Sword Staff", " Weapon Slot 1", " Dispersion Pistol"},
    {202, " Shotgun", " Shotgun", " Magnum", " Flying Fist", " Weapon Slot 2", " Auto Mag"},
    {203, " S. Shotgun", " S. Shotgun", " Shotgun", " Hell Staff", " Weapon Slot 3", " Stinger"},
    {204, " Nailgun", " Machinegun", " Assault Rifle", " Magis Missile", " Weapon Slot 4", " ASMD"},
    {205, " S. Nailgun", " Chaingun", " Chaingun", " Red Rain Bow", " Weapon Slot 5", " Eight Ball"},
    {206, " Grenades", " Grenades", " Spider Rifle", " Shere of Annihilation", " <N/A>", " Flak Cannon"},
    {207, " Rockets", " Rockets", " Rocket Launcher", " Pheonix Bow", " <N/A>", " Razorjack"},
    {208, " Thunderbolt", " HyperBlaster", " Pulse Rifle", " Mace Balls", " <N/A>", " GES BioRifle"},
    {209, " Back", " Railgun", " Quantum Destabilizer", " Firewall", " <N/A>", " Rifle"},
    {210, " Forward", " BFG 10,000", " Sniper Rifle", " ", " <N/A>", " Minigun"},
    {211, " Back", " Back", " Back", " Back", " Back", " Back"},
    {212, " Forward", " Forward", " Forward", " Forward", " Forward", " Forward"},
};

struct SystemRow {
    SlotNumber Slot;
    TextView Caption;
    TextView OldConsole;  // Quake and Hexen II
    TextView NewConsole;
    TextView Unreal;
    TextView UnrealCaption;
};

constexpr SystemRow kSystemRows[] = {
    {301, " Size Up", "sizeup", "sizeup", "", " Size Up"},
    {302, " Size Down", "sizedown", "sizedown", "", " Size Down"},
    {303, " CenterView", "centerview", "centerview", "CenterView", " CenterView"},
    {304, " Console", "toggleconsole", "toggleconsole", "", " Console"},
    {305, " Menu", "togglemenu", "togglemenu", "ShowMenu", " Menu"},
    {306, " Scores", "+showscores", "cmd showscores", "ShowScores", " Scores"},
    {307, " Message", "messagemode", "messagemode", "Talk", " Message"},
    {308, " Message2", "messagemode2", "messagemode2", "", " Message2"},
    {401, " Help", "help", "cmd help", "Help | FunctionKey 1", " Help"},
    {402, " Save Menu", "menu_save", "menu_savegame", "ActivateTranslator | FunctionKey 2", " Activate Translator"},
    {403, " Load Menu", "menu_load", "menu_loadgame", "ActivateHint | FunctionKey 3", " Activate Hint"},
    {404, " Options", "menu_options", "menu_keys", "ChangeHud", " Change Hud"},
    {405, " Multi-Player", "menu_multiplayer", "menu_startserver", "FunctionKey 8", " FunctionKey 8"},
    {406, " Quick Save", "echo quicksaving...; wait; save quick", "echo quick saving...; wait; save quick", "QuickSave", " Quick Save"},
    {407, " Quick Load", "echo quickloading...; wait; load quick", "echo quick loading...; wait; load quick", "QuickLoad", " Quick Load"},
    {408, " Quit", "quit", "quit", " Quit", " Quit"},
    {409, " Zoom In", "zoom_in", "play gunner/gunatck1;fov 80;fov 60;fov 40;fov 20;", "", " Zoom In"},
    {410, " Screen Shot", "screenshot", "screenshot", " Shot", " Screen Shot"},
    {411, " Zoom Out", "", "play gunner/gunidle1;fov 60;fov fov 90;", " Cancel", " Cancel"},
    {412, " Brightness", "", "", " Brightness", " Brightness"},
    {413, " End Full Screen", "", "", " EndFullscreen", " End Full Screen"},
};

struct ActionRow {
    SlotNumber Slot;
    TextView Hexen2, Hexen2Caption;
    TextView Heretic2, Heretic2Caption;
    TextView HalfLife, HalfLifeCaption;
};

constexpr ActionRow kActionRows[] = {
    {901, "+crouch", " Crouch", "+creep", " Creep", "invnext", " Inventory Next"},
    {902, "impulse 13", " Lift Object", "+action", " Do Action", "invprev", " Invertory Previous"},
    {903, "invleft", " Inventory Left", "+defend", " Defend", "lastinv", " Last Inventory"},
    {904, "invright", " Inventory Right", "defprev", " Next Defense", "+reload", " Reload Weapon"},
    {905, "invuse", " Use Inventory Item", "defnext", " Previous Defense", "+attack2", " Alternate Attack"},
    {906, "impulse 44", " Drop Inventory Item", "+lookaround", " Look Around", "impulse 201", " Graphitti"},
    {907, "+showinfo", " Show Information", "+quickturn", " Quick Turn", "impulse 100", " Flashlight"},
    {908, "toggle_dm", " Toggle Frags", "+speed", " Speed On", "+use", " Use Object"},
    {909, "impulse 100", " Use the Torch", "+autoaim", " Autoaim On", "", ""},
    {910, "impulse 101", " Consume a Quartz Flask", "freezeworld", " FreezeWorld", "use weapon_357", " 357 Magnum"},
    {911, "impulse 102", " Use a Mystic Urn", "set cl_camera_dampfactor 0.2 ; set cl_camera_viewmax 200 ; echo Camera Normal", " Camera Normal", "use weapon_9mmAR", " 9mm AR   ---(bullets/grenades combo)"},
    {912, "impulse 103", " Use a Krater of Might", "set cl_camera_dampfactor 0.0 ; set cl_camera_viewmax 1000 ; echo Camera Locked", " Camera Locked", "use weapon_9mmhandgun", " 9mm Handgun"},
    {913, "impulse 104", " Use a Chaos Device", "", "", "use weapon_crossbow", " Cross Bow"},
    {914, "impulse 105", " Read a Tome of Power", "", "", "use weapon_crowbar", " Crow Bar"},
    {915, "impulse 106", " Activate a Summoning Stone", "", "", "use weapon_egon", " Egon   ---(spiral/rail gun)"},
    {916, "impulse 107", " Consume an Invisibility Sphere", "", "", "use weapon_gauss", " Gauss   ---(laser gun)"},
    {917, "impulse 108", " Use a Glyph of The Ancients", "use Tome-of-Power", " Read a Tome of Power", "use weapon_handgrenade", " Hand Grenades"},
    {918, "impulse 109", " Wear the Boots of Speed", "use shield", " Wield a Shield", "use weapon_hornetgun", " Hornet Gun   ---(squid gun)"},
    {919, "impulse 110", " Use a Disk of Repulsion", "use Armor", " Wear Armor", "use weapon_rpg", " RPG   ---(rocket launcher)"},
    {920, "impulse 111", " Unleash the Seal of the Ovinmancer", "use Polymorph", " Use a Polymorph", "use weapon_satchel", " Satchel   ---(remote control mines)"},
    {921, "impulse 112", " Wear the Ring of Flight", "use Teleport", " Step Into a Teleport", "use weapon_shotgun", " Shotgun"},
    {922, "impulse 113", " Utilize the Force Cube", "use Ring-of-Repulsion", " Wear the Ring of Repulsion", "use weapon_snark", " Snark   ---(those little alien bugs)"},
    {923, "impulse 114", " Click on the Icon of the Defender", "use Meteor-Barrier", " Put up a Meteor Barrior", "use weapon_tripmine", " Trip Mine"},
};

struct ItemRow {
    SlotNumber Slot;
    TextView Caption, Console;
    TextView Sin, SinCaption;
    TextView HalfLife, HalfLifeCaption;
    TextView Unreal, UnrealCaption;
};

constexpr ItemRow kItemRows[] = {
    {1001, " Drop Back Pack", "impulse 20", "impulse 20", " Drop Back Pack", "impulse 20", " Drop Back Pack", "impulse 20", " Drop Back Pack"},
    {1002, " Drop Current Weapon", "impulse 21", "impulse 21", " Drop Current Weapon", "impulse 21", " Drop Current Weapon", "impulse 21", " Drop Current Weapon"},
    {1003, " Select Grapple Hook", "impulse 22", "impulse 22", " Select Grapple Hook", "impulse 22", " Select Grapple Hook", "impulse 22", " Select Grapple Hook"},
    {1004, " Flag Status Report", "impulse 23", "impulse 23", " Flag Status Report", "impulse 23", " Flag Status Report", "impulse 23", " Flag Status Report"},
    {1005, " Last Weapon", "impulse 69", "impulse 69", " Last Weapon", "impulse 69", " Last Weapon", "impulse 69", " Last Weapon"},
    {1101, " Show Inventory", "inven", "invshow", " Show Inventory", "firstperson", " First Person View", "", " Show Inventory"},
    {1102, " Next Item", "invnext", "invnext", " Next Item", "thirdperson", " Third Person View", "InventoryNext", " Inventory Next"},
    {1103, " Previous Item", "invprev", "invprev", " Previous Item", "+camdistance", " Camera Distance", "InventoryPrevious", " Inventory Previous"},
    {1104, " Use Inventory Item", "invuse", "invuse", " Use Inventory Item", "+cammousemove", " Camera Mouse Move", "InventoryActivate", " Inventory Activate"},
    {1105, " Drop Inventory Item", "invdrop", "invdrop", " Drop Inventory Item", "+camin", " Move Camera In", "", " Drop Inventory Item"},
    {1110, " Use the Rebreather", "use rebreather", "+use", " Use Interactive Object", "", " Use the Rebreather", "ThrowWeapon", " Throw Weapon"},
    {1111, " Wear an Environment Suit", "use environment suit", "cmd showmission", " Show Mission Objectives", "", " Wear an Environment Suit", "Duck", " Duck"},
    {1112, " Toss a Hand Grenade", "use grenades", "toggleviewmode", " Toggle View Mode", "", " Toss a Hand Grenade", "AltFire", " Alt Fire"},
    {1113, " Become Invulnerable !", "use invulnerability", "use invulnerability", " Become Invulnerable !", "", " Become Invulnerable !", "Feigndeath", " Feign Death"},
    {1114, " Wield the Power Shield", "use power shield", "use power shield", " Wield the Power Shield", "", " Wield the Power Shield", "use power shield", " Wield the Power Shield"},
    {1115, " Deal a Quad Damage !", "use quad damage", "use quad damage", " Deal a Quad Damage !", "", " Deal a Quad Damage !", "use quad damage", " Deal a Quad Damage !"},
    {1116, " Attach a Silencer (shhh!)", "use silencer", "use silencer", " Attach a Silencer (shhh!)", "", " Attach a Silencer (shhh!)", "use silencer", " Attach a Silencer (shhh!)"},
    {1120, " Wave 0  { Flip-Off }", "wave 0", "wave 0", " Wave 0  { Flip-Off }", "+camout", " Move Camera Out", "Taunt Taunt1", " Taunt Taunt1"},
    {1121, " Wave 1  { Salute }", "wave 1", "wave 1", " Wave 1  { Salute }", "+campitchdown", " Camera Pitch Down", "Taunt Victory1", " Taunt Victory"},
    {1122, " Wave 2  { Taunt }", "wave 2", "wave 2", " Wave 2  { Taunt }", "+campitchup", " Camera Pitch Up", "Taunt wave", " Taunt Wave"},
    {1123, " Wave 3  { Wave Over }", "wave 3", "wave 3", " Wave 3  { Wave Over }", "+camyawleft", " Camera Yaw Left", "", " Wave 3  { Wave Over }"},
    {1124, " Wave 4  { Point }", "wave 4", "wave 4", " Wave 4  { Point }", "+camyawright", " Camera Yaw Right", "", " Wave 4  { Point }"},
};

/// Where a kind differs from its column.
struct KindText {
    SlotNumber Slot;
    Game Kind;
    TextView Text;
};

constexpr KindText kOtherCommands[] = {
    {112, Game::Quake2, "+crouch"},
    {112, Game::Sin, "+crouch"},
    {306, Game::Hexen2, "+showdm"},
    {306, Game::Heretic2, "score"},
    {306, Game::HalfLife, "+showscores"},
    {408, Game::Sin, "menu_quit"},
    {408, Game::Heretic2, "menu_quit"},
    {409, Game::HalfLife, ""},
    {411, Game::HalfLife, ""},
};

constexpr KindText kOtherCaptions[] = {
    {109, Game::Quake2, " Jump / Up"},
    {109, Game::Sin, " Jump / Up"},
    {109, Game::Heretic2, " Jump / Up"},
    {109, Game::HalfLife, " Jump / Up"},
    {110, Game::Quake2, " Crouch / Dn"},
    {110, Game::Sin, " Crouch / Dn"},
    {110, Game::Heretic2, " Crouch / Dn"},
    {110, Game::HalfLife, " Crouch / Dn"},
    {109, Game::Unreal, " View Up"},
    {110, Game::Unreal, " View Down"},
};

struct KindSlot {
    SlotNumber Slot;
    Game Kind;
};

/// Hidden, though they have a command.
constexpr KindSlot kHiddenSlots[] = {
    {112, Game::Quake2},
    {112, Game::Sin},
    {112, Game::Heretic2},
    {112, Game::HalfLife},
    {205, Game::Hexen2},
    {206, Game::Hexen2},
    {207, Game::Hexen2},
    {208, Game::Hexen2},
    {211, Game::Unreal},
    {212, Game::Unreal},
    {1105, Game::Sin},
    {1113, Game::Sin},
    {1114, Game::Sin},
    {1115, Game::Sin},
    {1116, Game::Sin},
    {1120, Game::Sin},
    {1121, Game::Sin},
    {1122, Game::Sin},
    {1123, Game::Sin},
    {1124, Game::Sin},
    {1114, Game::Unreal},
    {1115, Game::Unreal},
    {1116, Game::Unreal},
};

/// Shown, though they have none.
constexpr KindSlot kShownSlots[] = {
    {206, Game::HalfLife},
    {207, Game::HalfLife},
    {208, Game::HalfLife},
};

struct HeadingRow {
    SlotNumber Number;
    TextView Caption;
};

constexpr HeadingRow kHeadingRows[] = {
    {100, " Movement / Action"},
    {200, " Weaponry"},
    {300, " Screen / Communication"},
    {400, " System Items"},
    {500, " Extras"},
    {67, " Stuff You Say"},
    {700, " Bound Aliases"},
    {800, " Bound Scripts"},
    {900, " Hexen ][ Actions"},
    {950, " Hexen ][ Magic --------------------------->"},
    {1000, "CTF Commands"},
    {1100, " Quake ][ Inventory Control"},
    {1198, " Quake ][ Inventory Direct Bindings"},
    {1199, " Quake ][ Hand Signals"},
};

constexpr KindText kOtherHeadings[] = {
    {900, Game::Heretic2, " Heretic ][ Actions"},
    {900, Game::HalfLife, " Half-Life Actions"},
    {950, Game::Heretic2, " Heretic ][ Magic"},
    {950, Game::HalfLife, " Half-Life Weapons"},
    {1100, Game::Sin, " Sin Inventory Control"},
    {1100, Game::HalfLife, " Camera Tricks!"},
    {1100, Game::Unreal, " Unreal Inventory Control"},
    {1198, Game::Sin, " Sin Stuff"},
    {1198, Game::Unreal, " Unreal Actions"},
    {1199, Game::Unreal, " Unreal Hand Signals"},
};

// clang-format on

}  // namespace lv
