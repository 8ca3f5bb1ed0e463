// foundry/editor/addable_command_rows.h
//
// The commands that an alias can be made of, in the order in which they are offered.

#pragma once

#include "foundry/tables/kind_set.h"
#include "foundry/tables/slots.h"

namespace lv {

constexpr KindSet kInQuake = Only(Game::Quake);
constexpr KindSet kInHexen2 = Only(Game::Hexen2);
constexpr KindSet kInQuake2 = Only(Game::Quake2);
constexpr KindSet kInSin = Only(Game::Sin);
constexpr KindSet kInHeretic2 = Only(Game::Heretic2);
constexpr KindSet kInHalfLife = Only(Game::HalfLife);
constexpr KindSet kInOlder = kInQuake | kInHexen2;
constexpr KindSet kInAll = kInOlder | kInQuake2 | kInSin | kInHeretic2 | kInHalfLife;
constexpr KindSet kNotInHalfLife = kInAll & ~kInHalfLife;

struct AddableRow {
    KindSet Kinds;
    TextView Command;
    TextView Description;
};

// clang-format off

/// Before the kind's weapons.
constexpr AddableRow kCommandsBeforeWeapons[] = {
    {kInAll, "+attack;", "(start attacking)"},
    {kInAll, "-attack;", "(stop attacking)"},
    {kInHalfLife, "+attack2;", "(start the alternate attack)"},
    {kInHalfLife, "-attack2;", "(stop the alternate attack)"},
    {kInAll, "+back;", "(start moving backward)"},
    {kInAll, "-back;", "(stop moving backward)"},
    {kInAll, "+forward;", "(start moving forward)"},
    {kInAll, "-forward;", "(stop moving forward)"},
    {kNotInHalfLife, "+jump;", "(start jumping)"},
    {kNotInHalfLife, "-jump;", "(stop jumping)"},
    {kInAll, "+klook;", "(start keyboard looking)"},
    {kInAll, "-klook;", "(stop keyboard looking)"},
    {kInAll, "+left;", "(start turning left)"},
    {kInAll, "-left;", "(stop turning left)"},
    {kInAll, "+lookdown;", "(start looking down)"},
    {kInAll, "-lookdown;", "(stop looking down)"},
    {kInAll, "+mlook;", "(start mouse looking)"},
    {kInAll, "-mlook;", "(stop mouse looking)"},
    {kInHalfLife, "+duck;", "(start crouching)"},
    {kInHalfLife, "-duck;", "(stop crouching)"},
    {kNotInHalfLife, "+movedown;", "(start crouching/swimming/moving down)"},
    {kNotInHalfLife, "-movedown;", "(stop crouching/swimming/moving down)"},
    {kInHalfLife, "+movedown;", "(start swimming/moving down)"},
    {kInHalfLife, "-movedown;", "(stop swimming/moving down)"},
    {kInAll, "+moveleft;", "(start moving left)"},
    {kInAll, "-moveleft;", "(stop moving left)"},
    {kInAll, "+moveright;", "(start moving right)"},
    {kInAll, "-moveright;", "(stop moving right)"},
    {kInAll, "+moveup;", "(start jumping/swimming/moving up)"},
    {kInAll, "-moveup;", "(stop jumping/swimming/moving up)"},
    {kInAll, "+right;", "(start turning right)"},
    {kInAll, "-right;", "(stop turning right)"},
    {kInAll, "+showscores;", "(start showing the scores)"},
    {kInAll, "-showscores;", "(stop showing the scores)"},
    {kInAll, "+speed;", "(start running)"},
    {kInAll, "-speed;", "(stop running)"},
    {kInAll, "+strafe;", "(start strafing)"},
    {kInAll, "-strafe;", "(stop strafing)"},
    {kInAll, "alias xxx yyy;", "(aliases xxx as yyy)"},
    {kInAll, "bf;", "(flashes the screen)"},
    {kInAll, "bind x yyy;", "(binds key x to command yyy)"},
    {kInAll, "centerview;", "(looks straight ahead)"},
    {kInAll, "cl_backspeed x;", "(sets the backward speed to x)"},
    {kInAll, "cl_forwardspeed x;", "(sets the forward speed to x)"},
    {kInAll, "cl_pitchspeed x;", "(sets the speed of looking up and down to x)"},
    {kInAll, "cl_upspeed x;", "(sets the speed of moving up and down to x)"},
    {kInAll, "cl_yawspeed x;", "(sets the turning speed to x)"},
    {kInOlder, "color x;", "(sets shirt and pants to color x)"},
    {kInOlder, "color x y;", "(sets the shirt to color x and the pants to color y)"},
    {kInQuake, "exec x;", "(quake will execute the script file x in the ID1 directory)"},
    {kInHexen2, "exec x;", "(hexen2 will execute the script file x in the DATA1 directory)"},
    {kInQuake2, "exec x;", "(quake2 will execute the script file x in the BASEQ2 directory)"},
    {kInSin, "exec x;", "(sin will execute the script file x in the BASE directory)"},
    {kInHeretic2, "exec x;", "(heretic2 will execute the script file x in the BASE directory)"},
    {kInHalfLife, "exec x;", "(half-life will execute the script file x in the VALVE directory)"},
    {kInAll, "fov x;", "(sets the field of view to x degrees)"},
    {kInAll, "echo x;", "(shows x on the console)"},
};

/// The slots of a kind's weapons that are switched to by their names, and what stands before the name.
struct NamedWeapons {
    Game Kind;
    SlotBlock Slots;
    TextView Prefix;
};

constexpr NamedWeapons kNamedWeapons[] = {
    {Game::Quake2, {201, 210}, "use "},
    {Game::Sin, {201, 210}, "use "},
    {Game::Heretic2, {201, 210}, "use "},
    {Game::HalfLife, {910, 923}, "use weapon_"},
};

/// Behind the weapons that have names.
constexpr AddableRow kCommandsBehindWeapons[] = {
    {kInOlder, "impulse x;", "(switches to weapon x (1-8))"},
    {kInOlder, "impulse 10;", "(switches to the next weapon)"},
    {kInOlder, "impulse 12;", "(switches to the previous weapon)"},
    {kInHalfLife, "invnext;", "(selects the next inventory item)"},
    {kInHalfLife, "invprev;", "(selects the previous inventory item)"},
    {kInHalfLife, "lastinv;", "(selects the last inventory item)"},
    {kInHalfLife, "+reload;", "(start reloading)"},
    {kInHalfLife, "-reload;", "(stop reloading)"},
    {kInHalfLife, "impulse 201;", "(sprays the graffiti)"},
    {kInHalfLife, "impulse 100;", "(switches the flashlight)"},
    {kInHalfLife, "+use;", "(start using an object)"},
    {kInHalfLife, "-use;", "(stop using an object)"},
    {kInAll, "kill;", "(kills the player)"},
    {kInAll, "lookspring x;", "(1 looks ahead again when looking stops, 0 does not)"},
    {kInAll, "lookstrafe x;", "(1 strafes with the mouse while looking, 0 turns)"},
    {kInAll, "m_forward x;", "(sets the mouse's forward speed to x)"},
    {kInAll, "m_pitch x;", "(sets the mouse's speed of looking up and down to x)"},
    {kInAll, "m_side x;", "(sets the mouse's strafing speed to x)"},
    {kInAll, "m_yaw", "(sets the mouse's turning speed)"},
    {kInAll, "name xxx;", "(sets the player's name to xxx)"},
    {kInAll, "say xxx;", "(says xxx to everyone)"},
    {kInAll, "say_team xxx;", "(says xxx to the own team)"},
    {kNotInHalfLife, "screenshot;", "(takes a screen shot)"},
    {kInHalfLife, "snapshot;", "(takes a screen shot)"},
    {kInAll, "sensitivity x;", "(sets the mouse's sensitivity to x)"},
    {kInAll, "viewsize x;", "(sets the size of the view to x)"},
    {kInQuake2, "wave 0;", "(obvious)"},
    {kInQuake2, "wave 1;", "(obvious)"},
    {kInQuake2, "wave 2;", "(obvious)"},
    {kInQuake2, "wave 3;", "(obvious)"},
    {kInQuake2, "wave 4;", "(obvious)"},
    {kInQuake2, "use rebreather;", "(obvious)"},
    {kInQuake2, "use environment suit;", "(obvious)"},
    {kInQuake2, "use grenades;", "(obvious)"},
    {kInQuake2, "use invulnerability;", "(obvious)"},
    {kInQuake2, "use power shield;", "(obvious)"},
    {kInQuake2, "use quad damage;", "(obvious)"},
    {kInQuake2, "use silencer;", "(obvious)"},
};

constexpr TextView kUnrealDescription = "()";

constexpr TextView kUnrealCommands[] = {
    "SwitchWeapon 1", "SwitchWeapon 2", "SwitchWeapon 3", "SwitchWeapon 4", "SwitchWeapon 5", "SwitchWeapon 6",
    "SwitchWeapon 7", "SwitchWeapon 8", "SwitchWeapon 9", "SwitchWeapon 10",
    "NextWeapon", "PrevWeapon", "ThrowWeapon", "Fire", "AltFire", "Jump", "Strafe", "StrafeLeft", "StrafeRight",
    "Walking", "MoveForward", "MoveBackward", "TurnRight", "TurnLeft", "Duck", "Grab", "Feigndeath", "Talk", "Type",
    "Taunt wave", "Taunt Taunt1", "Taunt Victory1", "Look", "LookDown", "LookToggle", "ViewUp", "ViewDown",
    "CenterView", "ShowScores", "ChangeHud", "Shot", "InventoryPrevious", "InventoryActivate", "InventoryNext",
    "Cancel", "Brightness", "EndFullscreen", "Pause", "ShowMenu", "QuickSave", "QuickLoad",
    "Help | FunctionKey 1", "ActivateTranslator | FunctionKey 2", "ActivateHint | FunctionKey 3", "FunctionKey 8",
    "Axis aUp Speed=+300.0", "Axis aMouseX Speed=6.0", "Axis aMouseY Speed=6.0", "Axis astrafe speed=2",
    "Axis aBaseY speed=2", "Axis aturn speed=5.9", "Axis aLookUp speed=-3", "bExtra0",
};

// clang-format on

}  // namespace lv
