// foundry/tables/read_command_rows.h
//
// The commands that a script may spell for a fixed slot, in the order in which a binding is compared with them.

#pragma once

#include <array>

#include "foundry/tables/kind_set.h"
#include "foundry/tables/slots.h"

namespace lv {

constexpr KindSet kAll = Not();
constexpr KindSet kActions = Only(Game::Hexen2, Game::Heretic2, Game::HalfLife);

/// One slot has several rows where its spellings hold for different kinds.
struct CommandRow {
    SlotNumber Slot;
    KindSet Kinds;
    std::array<const char*, 6> Spellings;  // in lower case; the rest null
};

// clang-format off
constexpr CommandRow kCommandRows[] = {
    {101, kAll, {"+forward", "moveforward"}},
    {102, kAll, {"+back", "movebackward"}},
    {103, kAll, {"+left", "turnleft"}},
    {104, kAll, {"+right", "turnright"}},
    {105, kAll, {"+moveleft", "strafeleft"}},
    {106, kAll, {"+moveright", "straferight"}},
    {107, kAll, {"+lookup", "lookup"}},
    {108, kAll, {"+lookdown", "lookdown"}},
    {109, kAll, {"+moveup", "viewup"}},
    {109, Only(Game::HalfLife), {"+jump", "jump"}},
    {110, kAll, {"+movedown", "viewdown", "+duck"}},
    {111, kAll, {"+attack", "fire"}},
    {112, Not(Game::HalfLife), {"+jump", "jump"}},
    {113, kAll, {"+strafe", "strafe"}},
    {114, Not(Game::Heretic2), {"+speed"}},
    {115, kAll, {"+mlook"}},  // kept on purpose: Unreal's "Look" is written, and never recognised
    {116, kAll, {"+klook"}},
    {201, kAll, {"impulse 1", "use blaster", "switchweapon 1", "use fists", "use sword-staff", "slot1"}},
    {202, kAll, {"impulse 2", "switchweapon 2", "use magnum", "use flying-fist", "slot2"}},
    {202, Only(Game::Quake2), {"use shotgun"}},
    {203, kAll, {"impulse 3", "use super shotgun", "switchweapon 3", "use hell-staff", "slot3"}},
    {203, Only(Game::Sin), {"use shotgun"}},
    {204, kAll, {"impulse 4", "use machinegun", "switchweapon 4", "use assaultrifle", "use magic-missile", "slot4"}},
    {205, Not(Game::Hexen2), {"impulse 5", "use chaingun", "switchweapon 5", "use red-rain-bow", "slot5"}},
    {206, Not(Game::Hexen2),
        {"impulse 6", "use grenade launcher", "switchweapon 6", "use sphere-of-annihilation", "use spidermine"}},
    {207, Not(Game::Hexen2),
        {"impulse 7", "use rocket launcher", "switchweapon 7", "use rocketlauncher", "use phoenix-bow"}},
    {208, Not(Game::Hexen2),
        {"impulse 8", "use hyperblaster", "switchweapon 8", "use mace-balls", "use pulserifle"}},
    {209, kAll, {"impulse 12", "use railgun", "switchweapon 9", "use firewall", "use quantumdestabilizer"}},
    {210, kAll, {"impulse 10", "use bfg10k", "switchweapon 10", "use sniperrifle"}},
    {211, kAll, {"weaplast", "prevweapon", "weapprev"}},
    {212, kAll, {"weapnext", "nextweapon"}},
    {1001, Only(Game::Quake), {"impulse 20"}},
    {1002, Only(Game::Quake), {"impulse 21"}},
    {1003, Only(Game::Quake), {"impulse 22"}},
    {1004, Only(Game::Quake), {"impulse 23"}},
    {1005, Only(Game::Quake), {"impulse 69"}},
    {901, Only(Game::Hexen2, Game::Heretic2), {"+crouch", "+creep"}},
    {901, Only(Game::HalfLife), {"invnext", "inventorynext"}},
    {902, Only(Game::Hexen2, Game::Heretic2), {"impulse 13", "+action"}},
    {902, Only(Game::HalfLife), {"invprev", "inventoryprevious"}},
    {903, kActions, {"invleft", "+defend", "lastinv"}},
    {904, kActions, {"invright", "defprev", "+reload"}},
    {905, kActions, {"invuse", "inventoryactivate", "defnext", "+attack2"}},
    {906, kActions, {"impulse 44", "+lookaround", "impulse 201"}},
    {907, Only(Game::Hexen2, Game::Heretic2), {"+showinfo", "+quickturn"}},
    {907, Only(Game::HalfLife), {"impulse 100", "+autoaim"}},
    {908, Only(Game::Hexen2), {"toggle_dm"}},
    {908, Only(Game::Heretic2), {"+speed"}},
    {908, Only(Game::HalfLife), {"use rebreather", "throwweapon", "+use"}},
    {909, Only(Game::Hexen2, Game::Heretic2), {"impulse 100", "+autoaim"}},
    {910, kActions, {"impulse 101", "freezeworld", "use weapon_357", "weapon_357"}},
    {911, kActions, {"impulse 102",
                     "set cl_camera_dampfactor 0.2 ; set cl_camera_viewmax 200 ; echo camera normal",
                     "set cl_camera_dampfactor 0.08 ; set cl_camera_viewmax 200 ; echo camera normal",
                     "use weapon_9mmar", "weapon_9mmar"}},
    {912, kActions, {"impulse 103",
                     "set cl_camera_dampfactor 0.0 ; set cl_camera_viewmax 1000 ; echo camera locked",
                     "use weapon_9mmhandgun", "weapon_9mmhandgun"}},
    {913, Only(Game::Hexen2, Game::HalfLife), {"impulse 104", "use weapon_crossbow", "weapon_crossbow"}},
    {914, Only(Game::Hexen2, Game::HalfLife), {"impulse 105", "use weapon_crowbar", "weapon_crowbar"}},
    {915, Only(Game::Hexen2, Game::HalfLife), {"impulse 106", "use weapon_egon", "weapon_egon"}},
    {916, Only(Game::Hexen2, Game::HalfLife), {"impulse 107", "use weapon_gauss", "weapon_gauss"}},
    {917, kActions, {"impulse 108", "use tome-of-power", "use weapon_handgrenade", "weapon_handgrenade"}},
    {918, kActions, {"impulse 109", "use shield", "use weapon_hornetgun", "weapon_hornetgun"}},
    {919, kActions, {"impulse 110", "use armor", "use weapon_rpg", "weapon_rpg"}},
    {920, kActions, {"impulse 111", "use polymorph", "use weapon_satchel", "weapon_satchel"}},
    {921, kActions, {"impulse 112", "use teleport", "use weapon_shotgun", "weapon_shotgun"}},
    {922, kActions, {"impulse 113", "use ring-of-repulsion", "use weapon_snark", "weapon_snark"}},
    {923, kActions, {"impulse 114", "use meteor-barrier", "use weapon_tripmine", "weapon_tripmine"}},
    {301, kAll, {"sizeup"}},
    {302, kAll, {"sizedown"}},
    {303, kAll, {"centerview"}},
    {304, kAll, {"toggleconsole"}},
    {305, kAll, {"togglemenu", "showmenu"}},
    {306, kAll, {"+showdm", "showscores", "cmd showscores", "score", "+showscores"}},
    {307, kAll, {"messagemode", "talk"}},
    {308, kAll, {"messagemode2"}},
    {401, kAll, {"help", "cmd help", "help | functionkey 1"}},
    {402, kAll, {"menu_save", "menu_savegame", "activatetranslator | functionkey 2"}},
    {403, kAll, {"menu_load", "menu_loadgame", "activatehint | functionkey 3"}},
    {404, kAll, {"menu_options", "menu_keys", "changehud"}},
    {405, kAll, {"menu_multiplayer", "menu_startserver", "functionkey 8"}},
    {406, kAll, {"quicksave", "echo quicksaving...; wait; save quick", "echo quick saving...; wait; save quick",
                 "save quick"}},
    {407, kAll, {"quickload", "echo quickloading...; wait; load quick", "echo quick loading...; wait; load quick",
                 "load quick"}},
    {408, kAll, {"quit", "menu_quit"}},
    {409, kAll, {"zoom_in", "play gunner/gunatck1;fov 80;fov 60;fov 40;fov 20;", "fov 80;fov 60;fov 40;fov 20;"}},
    {411, kAll, {"play gunner/gunidle1;fov 60;fov fov 90;", "fov 60;fov fov 90;", "cancel"}},
    {410, kAll, {"screenshot", "shot", "snapshot"}},
    {412, kAll, {"brightness"}},
    {413, kAll, {"endfullscreen"}},
    {1101, kAll, {"inven", "invshow", "firstperson"}},
    {1102, kAll, {"thirdperson"}},
    {1102, Not(Game::HalfLife), {"invnext", "inventorynext"}},
    {1103, kAll, {"+camdistance"}},
    {1103, Not(Game::HalfLife), {"invprev", "inventoryprevious"}},
    {1104, kAll, {"+cammousemove"}},
    {1104, Only(Game::Quake2, Game::Unreal, Game::Sin),
        {"invuse", "inventoryactivate", "defnext", "+attack2"}},
    {1105, kAll, {"+camin", "invdrop"}},
    {1110, Not(Game::HalfLife), {"use rebreather", "throwweapon", "+use"}},
    {1111, kAll, {"use environment suit", "duck", "cmd showmission"}},
    {1112, kAll, {"use grenades", "altfire", "toggleviewmode"}},
    {1113, kAll, {"use invulnerability", "feigndeath"}},
    {1114, kAll, {"use power shield"}},
    {1115, kAll, {"use quad damage"}},
    {1116, kAll, {"use silencer"}},
    {1120, kAll, {"+camout", "wave 0", "taunt taunt1"}},
    {1121, kAll, {"+campitchdown", "wave 1", "taunt victory1"}},
    {1122, kAll, {"+campitchup", "wave 2", "taunt wave"}},
    {1123, kAll, {"+camyawleft", "wave 3"}},
    {1124, kAll, {"+camyawright", "wave 4"}},
};
// clang-format on

}  // namespace lv
