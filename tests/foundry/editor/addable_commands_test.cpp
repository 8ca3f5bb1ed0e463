#include "foundry/editor/addable_commands.h"

#include <gmock/gmock.h>

#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

using testing::ElementsAreArray;

std::vector<Text> Commands(const ScriptDialect& dialect) {
    std::vector<Text> commands;
    for (const AddableCommand& row : AddableCommands(MakeScriptDocument(dialect))) {
        commands.push_back(row.Command);
    }
    return commands;
}

Text DescriptionOf(const ScriptDialect& dialect, TextView command) {
    for (const AddableCommand& row : AddableCommands(MakeScriptDocument(dialect))) {
        if (row.Command == command) {
            return row.Description;
        }
    }
    return "(none)";
}

// clang-format off

const std::vector<Text> kMoves = {
    "+klook;", "-klook;", "+left;", "-left;", "+lookdown;", "-lookdown;", "+mlook;", "-mlook;",
};
const std::vector<Text> kMoreMoves = {
    "+movedown;", "-movedown;", "+moveleft;", "-moveleft;", "+moveright;", "-moveright;", "+moveup;", "-moveup;",
    "+right;", "-right;", "+showscores;", "-showscores;", "+speed;", "-speed;", "+strafe;", "-strafe;",
    "alias xxx yyy;", "bf;", "bind x yyy;", "centerview;", "cl_backspeed x;", "cl_forwardspeed x;", "cl_pitchspeed x;",
    "cl_upspeed x;", "cl_yawspeed x;",
};
const std::vector<Text> kColors = {"color x;", "color x y;"};
const std::vector<Text> kMisc = {"exec x;", "fov x;", "echo x;"};
const std::vector<Text> kImpulses = {"impulse x;", "impulse 10;", "impulse 12;"};
const std::vector<Text> kSettings = {
    "kill;", "lookspring x;", "lookstrafe x;", "m_forward x;", "m_pitch x;", "m_side x;", "m_yaw", "name xxx;",
    "say xxx;", "say_team xxx;",
};
const std::vector<Text> kEnd = {"sensitivity x;", "viewsize x;"};
const std::vector<Text> kOfAll = {"+attack;", "-attack;", "+back;", "-back;", "+forward;", "-forward;", "+jump;", "-jump;"};
const std::vector<Text> kOfHalfLife = {
    "+attack;", "-attack;", "+attack2;", "-attack2;", "+back;", "-back;", "+forward;", "-forward;",
};
const std::vector<Text> kHalfLifeWeapons = {
    "use weapon_357;", "use weapon_9mmAR;", "use weapon_9mmhandgun;", "use weapon_crossbow;", "use weapon_crowbar;",
    "use weapon_egon;", "use weapon_gauss;", "use weapon_handgrenade;", "use weapon_hornetgun;", "use weapon_rpg;",
    "use weapon_satchel;", "use weapon_shotgun;", "use weapon_snark;", "use weapon_tripmine;",
    "invnext;", "invprev;", "lastinv;", "+reload;", "-reload;", "impulse 201;", "impulse 100;", "+use;", "-use;",
};
const std::vector<Text> kQuake2Weapons = {
    "use Blaster;", "use Shotgun;", "use Super Shotgun;", "use Machinegun;", "use Chaingun;", "use Grenade Launcher;",
    "use Rocket Launcher;", "use HyperBlaster;", "use Railgun;", "use BFG10K;",
};
const std::vector<Text> kSinWeapons = {
    "use Fists;", "use Magnum;", "use Shotgun;", "use AssaultRifle;", "use Chaingun;", "use SpiderMine;",
    "use RocketLauncher;", "use PulseRifle;", "use QuantumDestabilizer;", "use SniperRifle;",
};
const std::vector<Text> kHeretic2Weapons = {
    "use Sword-staff;", "use Flying-fist;", "use Hell-staff;", "use Magic-missile;", "use Red-Rain-Bow;",
    "use Sphere-of-annihilation;", "use Phoenix-Bow;", "use Mace-Balls;", "use Firewall;",
};
const std::vector<Text> kQuake2Items = {
    "wave 0;", "wave 1;", "wave 2;", "wave 3;", "wave 4;", "use rebreather;", "use environment suit;", "use grenades;",
    "use invulnerability;", "use power shield;", "use quad damage;", "use silencer;",
};
const std::vector<Text> kUnreal = {
    "SwitchWeapon 1", "SwitchWeapon 2", "SwitchWeapon 3", "SwitchWeapon 4", "SwitchWeapon 5", "SwitchWeapon 6",
    "SwitchWeapon 7", "SwitchWeapon 8", "SwitchWeapon 9", "SwitchWeapon 10", "NextWeapon", "PrevWeapon", "ThrowWeapon",
    "Fire", "AltFire", "Jump", "Strafe", "StrafeLeft", "StrafeRight", "Walking", "MoveForward", "MoveBackward",
    "TurnRight", "TurnLeft", "Duck", "Grab", "Feigndeath", "Talk", "Type", "Taunt wave", "Taunt Taunt1",
    "Taunt Victory1", "Look", "LookDown", "LookToggle", "ViewUp", "ViewDown", "CenterView", "ShowScores", "ChangeHud",
    "Shot", "InventoryPrevious", "InventoryActivate", "InventoryNext", "Cancel", "Brightness", "EndFullscreen",
    "Pause", "ShowMenu", "QuickSave", "QuickLoad", "Help | FunctionKey 1", "ActivateTranslator | FunctionKey 2",
    "ActivateHint | FunctionKey 3", "FunctionKey 8", "Axis aUp Speed=+300.0", "Axis aMouseX Speed=6.0",
    "Axis aMouseY Speed=6.0", "Axis astrafe speed=2", "Axis aBaseY speed=2", "Axis aturn speed=5.9",
    "Axis aLookUp speed=-3", "bExtra0",
};

// clang-format on

std::vector<Text> Chain(std::initializer_list<std::vector<Text>> lists) {
    std::vector<Text> all;
    for (const auto& list : lists) {
        all.insert(all.end(), list.begin(), list.end());
    }
    return all;
}

const std::vector<Text> kScreenshot = {"screenshot;"};

TEST(AddableCommands, OfQuakeAndHexen2HaveColorsAndImpulses) {
    const auto expected = Chain({kOfAll, kMoves, kMoreMoves, kColors, kMisc, kImpulses, kSettings, kScreenshot, kEnd});
    EXPECT_THAT(Commands(kQuakeDialect), ElementsAreArray(expected));
    EXPECT_THAT(Commands(kHexen2Dialect), ElementsAreArray(expected));
}

TEST(AddableCommands, OfQuake2HaveItsWeaponsWavesAndItems) {
    EXPECT_THAT(Commands(kQuake2Dialect), ElementsAreArray(Chain({kOfAll, kMoves, kMoreMoves, kMisc, kQuake2Weapons,
                                                                  kSettings, kScreenshot, kEnd, kQuake2Items})));
}

TEST(AddableCommands, OfSinHaveItsWeapons) {
    EXPECT_THAT(
        Commands(kSinDialect),
        ElementsAreArray(Chain({kOfAll, kMoves, kMoreMoves, kMisc, kSinWeapons, kSettings, kScreenshot, kEnd})));
}

TEST(AddableCommands, OfHeretic2HaveItsWeapons) {
    EXPECT_THAT(
        Commands(kHeretic2Dialect),
        ElementsAreArray(Chain({kOfAll, kMoves, kMoreMoves, kMisc, kHeretic2Weapons, kSettings, kScreenshot, kEnd})));
}

TEST(AddableCommands, OfHalfLifeDuckBeforeTheyMoveDownAndDoNotJump) {
    const std::vector<Text> duck = {"+duck;", "-duck;"};
    const std::vector<Text> snapshot = {"snapshot;"};
    EXPECT_THAT(Commands(kHalfLifeDialect), ElementsAreArray(Chain({kOfHalfLife, kMoves, duck, kMoreMoves, kMisc,
                                                                    kHalfLifeWeapons, kSettings, snapshot, kEnd})));
}

TEST(AddableCommands, OfUnrealAreItsOwnWithoutADescription) {
    EXPECT_THAT(Commands(kUnrealDialect), ElementsAreArray(kUnreal));
    for (const AddableCommand& row : AddableCommands(MakeScriptDocument(kUnrealDialect))) {
        EXPECT_EQ(row.Description, "()") << row.Command;
    }
}

TEST(AddableCommands, OfAnUnknownKindAreQuakes) {
    EXPECT_EQ(Commands({.GameKind = Game{7}}), Commands(kQuakeDialect));
    EXPECT_EQ(Commands({.GameKind = Game{-1}}), Commands(kQuakeDialect));
}

TEST(AddableCommands, AreDescribed) {
    EXPECT_EQ(DescriptionOf(kQuakeDialect, "+attack;"), "(start attacking)");
    EXPECT_EQ(DescriptionOf(kQuakeDialect, "-attack;"), "(stop attacking)");
    EXPECT_EQ(DescriptionOf(kQuakeDialect, "+movedown;"), "(start crouching/swimming/moving down)");
    EXPECT_EQ(DescriptionOf(kHalfLifeDialect, "+duck;"), "(start crouching)");
    EXPECT_EQ(DescriptionOf(kQuakeDialect, "alias xxx yyy;"), "(aliases xxx as yyy)");
    EXPECT_EQ(DescriptionOf(kQuakeDialect, "bind x yyy;"), "(binds key x to command yyy)");
    EXPECT_EQ(DescriptionOf(kQuakeDialect, "impulse x;"), "(switches to weapon x (1-8))");
    EXPECT_EQ(DescriptionOf(kQuake2Dialect, "use Blaster;"), "(switches to the Blaster)");
    EXPECT_EQ(DescriptionOf(kHeretic2Dialect, "use Red-Rain-Bow;"), "(switches to the Red-Rain-Bow)");
    EXPECT_EQ(DescriptionOf(kHalfLifeDialect, "use weapon_crowbar;"), "(switches to the crowbar)");
    EXPECT_EQ(DescriptionOf(kQuake2Dialect, "wave 0;"), "(obvious)");
    EXPECT_EQ(DescriptionOf(kQuake2Dialect, "use rebreather;"), "(obvious)");
    EXPECT_EQ(DescriptionOf(kQuake2Dialect, "use silencer;"), "(obvious)");
}

TEST(AddableCommands, OfEachKindTellWhereItsScriptsLie) {
    EXPECT_EQ(DescriptionOf(kQuakeDialect, "exec x;"), "(quake will execute the script file x in the ID1 directory)");
    EXPECT_EQ(DescriptionOf(kHexen2Dialect, "exec x;"),
              "(hexen2 will execute the script file x in the DATA1 directory)");
    EXPECT_EQ(DescriptionOf(kQuake2Dialect, "exec x;"),
              "(quake2 will execute the script file x in the BASEQ2 directory)");
    EXPECT_EQ(DescriptionOf(kSinDialect, "exec x;"), "(sin will execute the script file x in the BASE directory)");
    EXPECT_EQ(DescriptionOf(kHeretic2Dialect, "exec x;"),
              "(heretic2 will execute the script file x in the BASE directory)");
    EXPECT_EQ(DescriptionOf(kHalfLifeDialect, "exec x;"),
              "(half-life will execute the script file x in the VALVE directory)");
}

TEST(AddableCommands, AreAllDescribed) {
    for (const ScriptDialect& dialect : {kQuakeDialect, kHexen2Dialect, kQuake2Dialect, kSinDialect, kHeretic2Dialect,
                                         kHalfLifeDialect, kUnrealDialect}) {
        for (const AddableCommand& row : AddableCommands(MakeScriptDocument(dialect))) {
            EXPECT_TRUE(row.Description.starts_with("(") && row.Description.ends_with(")")) << row.Command;
        }
    }
}

}  // namespace
}  // namespace lv
