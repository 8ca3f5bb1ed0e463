// What FillCommandTable gives each kind of game.

#include <gtest/gtest.h>

#include "console/checks/script_check.h"
#include "foundry/document/script_document.h"
#include "foundry/document/written_commands.h"
#include "tests/foundry/kinds.h"

namespace lv {
namespace {

ScriptDocument Filled(Game kind) {
    ScriptDocument document;
    FillCommandTable(document, kind);
    return document;
}

Text CommandOf(SlotNumber slot, Game kind) {
    return Filled(kind).SlotCommand[slot];
}

Text CaptionOf(SlotNumber slot, Game kind) {
    return Filled(kind).Bound_Lbl[slot].Caption;
}

bool Shown(SlotNumber slot, Game kind) {
    const ScriptDocument document = Filled(kind);
    EXPECT_EQ(document.Bound_Lbl[slot].Visible, document.Setting_Lbl[slot].Visible) << slot;
    return document.Bound_Lbl[slot].Visible;
}

TEST(FillCommandTable, CrouchesOnTheJumpRowInQuake2AndSin) {
    for (const Game kind : kKinds) {
        const bool crouches = kind == Game::Quake2 || kind == Game::Sin;
        EXPECT_EQ(CommandOf(112, kind), crouches               ? "+crouch"
                                        : kind == Game::Unreal ? "Jump"
                                                               : "+jump")
            << NumberOf(kind);
    }
}

TEST(FillCommandTable, MovesUpAndDownByJumpAndDuckInHalfLife) {
    EXPECT_EQ(CommandOf(109, Game::HalfLife), "+jump");
    EXPECT_EQ(CommandOf(110, Game::HalfLife), "+duck");
    EXPECT_EQ(CommandOf(109, Game::Quake2), "+moveup");
    EXPECT_EQ(CommandOf(110, Game::Quake2), "+movedown");
}

TEST(FillCommandTable, CaptionsUpAndDownByTheFamily) {
    for (const Game kind : Kinds{Game::Quake2, Game::Sin, Game::Heretic2, Game::HalfLife}) {
        EXPECT_EQ(CaptionOf(109, kind), " Jump / Up") << NumberOf(kind);
        EXPECT_EQ(CaptionOf(110, kind), " Crouch / Dn") << NumberOf(kind);
        EXPECT_FALSE(Shown(112, kind)) << NumberOf(kind);
    }
    EXPECT_EQ(CaptionOf(109, Game::Unreal), " View Up");
    EXPECT_EQ(CaptionOf(110, Game::Unreal), " View Down");
    EXPECT_EQ(CaptionOf(109, Game::Quake), " Swim Up");
    EXPECT_EQ(CaptionOf(110, Game::Hexen2), " Swim Down");
    EXPECT_TRUE(Shown(112, Game::Quake));
}

TEST(FillCommandTable, KeepsTheLeadingBlankOfFiveUnrealCommands) {
    EXPECT_EQ(CommandOf(408, Game::Unreal), " Quit");
    EXPECT_EQ(CommandOf(410, Game::Unreal), " Shot");
    EXPECT_EQ(CommandOf(411, Game::Unreal), " Cancel");
    EXPECT_EQ(CommandOf(412, Game::Unreal), " Brightness");
    EXPECT_EQ(CommandOf(413, Game::Unreal), " EndFullscreen");
    EXPECT_EQ(CommandOf(409, Game::Unreal), "");
}

TEST(FillCommandTable, KeepsTheDoubledWordOfZoomOut) {
    for (const Game kind : Kinds{Game::Quake2, Game::Sin, Game::Heretic2}) {
        EXPECT_EQ(CommandOf(411, kind), "play gunner/gunidle1;fov 60;fov fov 90;") << NumberOf(kind);
        EXPECT_EQ(CommandOf(409, kind), "play gunner/gunatck1;fov 80;fov 60;fov 40;fov 20;") << NumberOf(kind);
    }
    EXPECT_EQ(CommandOf(409, Game::HalfLife), "");
    EXPECT_EQ(CommandOf(411, Game::HalfLife), "");
    EXPECT_EQ(CommandOf(409, Game::Quake), "zoom_in");
    EXPECT_EQ(CommandOf(411, Game::Quake), "");
}

TEST(FillCommandTable, ShowsTheScoresInFiveWays) {
    EXPECT_EQ(CommandOf(306, Game::Quake), "+showscores");
    EXPECT_EQ(CommandOf(306, Game::Hexen2), "+showdm");
    EXPECT_EQ(CommandOf(306, Game::Quake2), "cmd showscores");
    EXPECT_EQ(CommandOf(306, Game::Sin), "cmd showscores");
    EXPECT_EQ(CommandOf(306, Game::Heretic2), "score");
    EXPECT_EQ(CommandOf(306, Game::HalfLife), "+showscores");
    EXPECT_EQ(CommandOf(306, Game::Unreal), "ShowScores");
}

TEST(FillCommandTable, QuitsByAMenuInSinAndHeretic2) {
    EXPECT_EQ(CommandOf(408, Game::Quake), "quit");
    EXPECT_EQ(CommandOf(408, Game::Quake2), "quit");
    EXPECT_EQ(CommandOf(408, Game::HalfLife), "quit");
    EXPECT_EQ(CommandOf(408, Game::Sin), "menu_quit");
    EXPECT_EQ(CommandOf(408, Game::Heretic2), "menu_quit");
}

TEST(FillCommandTable, StepsThroughTheWeaponsOnTheLastTwoRowsOfTen) {
    EXPECT_EQ(CommandOf(209, Game::Quake), "impulse 12");
    EXPECT_EQ(CommandOf(210, Game::Quake), "impulse 10");
    EXPECT_EQ(CaptionOf(209, Game::Quake), " Back");
    EXPECT_EQ(CaptionOf(210, Game::Quake), " Forward");
    EXPECT_EQ(CaptionOf(211, Game::Quake2), " Back");
    EXPECT_EQ(CaptionOf(212, Game::Quake2), " Forward");
}

TEST(FillCommandTable, KeepsTheMisspellingsOfTheCaptions) {
    EXPECT_EQ(CaptionOf(204, Game::Heretic2), " Magis Missile");
    EXPECT_EQ(CaptionOf(206, Game::Heretic2), " Shere of Annihilation");
    EXPECT_EQ(CaptionOf(207, Game::Heretic2), " Pheonix Bow");
    EXPECT_EQ(CaptionOf(210, Game::Heretic2), " ");
    EXPECT_EQ(CaptionOf(923, Game::Heretic2), " Put up a Meteor Barrior");
    EXPECT_EQ(CaptionOf(902, Game::HalfLife), " Invertory Previous");
    EXPECT_EQ(CaptionOf(906, Game::HalfLife), " Graphitti");
    EXPECT_EQ(CaptionOf(206, Game::Sin), " Spider Rifle");
    EXPECT_EQ(CaptionOf(1121, Game::Unreal), " Taunt Victory");
    EXPECT_EQ(CaptionOf(1122, Game::Unreal), " Taunt Wave");
}

TEST(FillCommandTable, NamesFiveWeaponSlotsOfHalfLife) {
    EXPECT_EQ(CommandOf(205, Game::HalfLife), "slot5");
    EXPECT_EQ(CaptionOf(205, Game::HalfLife), " Weapon Slot 5");
    for (SlotNumber slot = 206; slot <= 210; ++slot) {
        EXPECT_EQ(CommandOf(slot, Game::HalfLife), "") << slot;
        EXPECT_EQ(CaptionOf(slot, Game::HalfLife), " <N/A>") << slot;
    }
    EXPECT_TRUE(Shown(208, Game::HalfLife));
    EXPECT_FALSE(Shown(209, Game::HalfLife));
}

TEST(FillCommandTable, KeepsTheCaseOfOneHalfLifeWeapon) {
    EXPECT_EQ(CommandOf(911, Game::HalfLife), "use weapon_9mmAR");
    EXPECT_EQ(CommandOf(912, Game::HalfLife), "use weapon_9mmhandgun");
}

TEST(FillCommandTable, HidesWhatTheKindHasNot) {
    EXPECT_FALSE(Shown(211, Game::Quake));
    EXPECT_TRUE(Shown(211, Game::Quake2));
    EXPECT_FALSE(Shown(412, Game::Quake));
    EXPECT_TRUE(Shown(412, Game::Unreal));
    EXPECT_FALSE(Shown(114, Game::Unreal));
    EXPECT_FALSE(Shown(913, Game::Heretic2));
    EXPECT_FALSE(Shown(909, Game::HalfLife));
    EXPECT_FALSE(Shown(901, Game::Quake));
    EXPECT_FALSE(Shown(1110, Game::HalfLife));
    EXPECT_FALSE(Shown(1123, Game::Unreal));
}

TEST(FillCommandTable, HidesRowsThatHaveACommand) {
    EXPECT_EQ(CommandOf(1105, Game::Sin), "invdrop");
    EXPECT_FALSE(Shown(1105, Game::Sin));
    EXPECT_TRUE(Shown(1105, Game::Quake2));
    EXPECT_EQ(CommandOf(1114, Game::Unreal), "use power shield");
    EXPECT_EQ(CommandOf(1115, Game::Unreal), "use quad damage");
    EXPECT_EQ(CommandOf(1116, Game::Unreal), "use silencer");
    for (SlotNumber slot = 1114; slot <= 1116; ++slot) {
        EXPECT_FALSE(Shown(slot, Game::Unreal)) << slot;
        EXPECT_TRUE(Shown(slot, Game::Quake2)) << slot;
    }
    EXPECT_EQ(CommandOf(205, Game::Hexen2), "impulse 5");
    EXPECT_FALSE(Shown(205, Game::Hexen2));
    EXPECT_TRUE(Shown(204, Game::Hexen2));
    EXPECT_EQ(CommandOf(1120, Game::Sin), "wave 0");
    EXPECT_FALSE(Shown(1120, Game::Sin));
    EXPECT_TRUE(Shown(1112, Game::Sin));
    EXPECT_FALSE(Shown(211, Game::Unreal));
}

TEST(FillCommandTable, RenamesTheFirstUnrealMenus) {
    EXPECT_EQ(CaptionOf(402, Game::Unreal), " Activate Translator");
    EXPECT_EQ(CommandOf(402, Game::Unreal), "ActivateTranslator | FunctionKey 2");
    EXPECT_EQ(CaptionOf(401, Game::Unreal), " Help");
    EXPECT_EQ(CommandOf(401, Game::Unreal), "Help | FunctionKey 1");
    EXPECT_EQ(CaptionOf(411, Game::Unreal), " Cancel");
    EXPECT_EQ(CaptionOf(411, Game::Quake2), " Zoom Out");
}

TEST(FillCommandTable, GivesTheFlagCommandsToEveryKind) {
    for (const Game kind : kKinds) {
        EXPECT_EQ(CommandOf(1001, kind), "impulse 20") << NumberOf(kind);
        EXPECT_EQ(CommandOf(1004, kind), "impulse 23") << NumberOf(kind);
        EXPECT_EQ(CommandOf(1005, kind), "impulse 69") << NumberOf(kind);
        EXPECT_EQ(CaptionOf(1005, kind), " Last Weapon") << NumberOf(kind);
    }
}

TEST(FillCommandTable, CaptionsTheHeadingsByTheKind) {
    EXPECT_EQ(CaptionOf(100, Game::Quake), " Movement / Action");
    EXPECT_EQ(CaptionOf(67, Game::Quake), " Stuff You Say");
    EXPECT_EQ(CaptionOf(900, Game::Hexen2), " Hexen ][ Actions");
    EXPECT_EQ(CaptionOf(900, Game::Heretic2), " Heretic ][ Actions");
    EXPECT_EQ(CaptionOf(900, Game::HalfLife), " Half-Life Actions");
    EXPECT_EQ(CaptionOf(950, Game::Hexen2), " Hexen ][ Magic --------------------------->");
    EXPECT_EQ(CaptionOf(950, Game::Heretic2), " Heretic ][ Magic");
    EXPECT_EQ(CaptionOf(950, Game::HalfLife), " Half-Life Weapons");
    EXPECT_EQ(CaptionOf(1100, Game::Quake2), " Quake ][ Inventory Control");
    EXPECT_EQ(CaptionOf(1100, Game::Sin), " Sin Inventory Control");
    EXPECT_EQ(CaptionOf(1100, Game::HalfLife), " Camera Tricks!");
    EXPECT_EQ(CaptionOf(1100, Game::Unreal), " Unreal Inventory Control");
    EXPECT_EQ(CaptionOf(1198, Game::Quake2), " Quake ][ Inventory Direct Bindings");
    EXPECT_EQ(CaptionOf(1198, Game::Sin), " Sin Stuff");
    EXPECT_EQ(CaptionOf(1198, Game::Unreal), " Unreal Actions");
    EXPECT_EQ(CaptionOf(1199, Game::Quake2), " Quake ][ Hand Signals");
    EXPECT_EQ(CaptionOf(1199, Game::Unreal), " Unreal Hand Signals");
}

TEST(FillCommandTable, BeginsEveryCaptionOfARowWithABlank) {
    for (const Game kind : kKinds) {
        const ScriptDocument document = Filled(kind);
        for (const SlotNumber slot : SlotNumbers()) {
            const Text& caption = document.Bound_Lbl[slot].Caption;
            EXPECT_TRUE(caption.empty() || caption.front() == ' ') << NumberOf(kind) << ' ' << slot;
            const bool shown = document.Bound_Lbl[slot].Visible && !document.SlotCommand[slot].empty();
            EXPECT_FALSE(shown && caption.empty()) << NumberOf(kind) << ' ' << slot;
        }
    }
}

TEST(FillCommandTable, LeavesTheFreeSlotsEmpty) {
    for (const Game kind : kKinds) {
        const ScriptDocument document = Filled(kind);
        for (const SlotBlock& block : {kExtras, kBoundAliases, kBoundScripts, kMessages}) {
            for (SlotNumber slot = block.First; slot <= block.Last; ++slot) {
                EXPECT_EQ(document.SlotCommand[slot], "") << slot;
                EXPECT_EQ(document.Bound_Lbl[slot].Caption, "") << slot;
                EXPECT_TRUE(document.Bound_Lbl[slot].Visible) << slot;
            }
        }
    }
}

TEST(FillCommandTable, TakesAKindThatIsNoneForQuake) {
    const ScriptDocument quake = Filled(Game::Quake);
    for (const Game kind : Kinds{Game::None, Game{7}, Game{8}, Game{-1}, Game{100}}) {
        const ScriptDocument document = Filled(kind);
        for (const SlotNumber slot : SlotNumbers()) {
            EXPECT_EQ(document.SlotCommand[slot], quake.SlotCommand[slot]) << NumberOf(kind) << ' ' << slot;
            EXPECT_EQ(document.Bound_Lbl[slot].Caption, quake.Bound_Lbl[slot].Caption) << NumberOf(kind) << ' ' << slot;
        }
    }
}

TEST(FillCommandTable, LeavesNothingBehindOfAnotherKind) {
    ScriptDocument document = Filled(Game::HalfLife);
    FillCommandTable(document, Game::Quake);
    const ScriptDocument quake = Filled(Game::Quake);
    for (const SlotNumber slot : SlotNumbers()) {
        EXPECT_EQ(document.SlotCommand[slot], quake.SlotCommand[slot]) << slot;
        EXPECT_EQ(document.Bound_Lbl[slot].Caption, quake.Bound_Lbl[slot].Caption) << slot;
        EXPECT_EQ(document.Bound_Lbl[slot].Visible, quake.Bound_Lbl[slot].Visible) << slot;
    }
    EXPECT_EQ(document.Bound_Lbl[900].Caption, quake.Bound_Lbl[900].Caption);
}

TEST(FillCommandTable, WritesNoCommandThatTheCheckOfScriptsDoesNotKnow) {
    for (const Game kind : {Game::Quake, Game::Hexen2, Game::Quake2, Game::Sin, Game::Heretic2, Game::HalfLife}) {
        const ScriptDocument document = Filled(kind);
        Text script;
        for (const SlotNumber slot : SlotNumbers()) {
            if (!document.SlotCommand[slot].empty()) {
                script += Join("bind x \"", document.SlotCommand[slot], "\"\n");
            }
        }
        for (const Finding& each : CheckScript({"my.cfg", script, ConsoleOf(kind, false), nullptr, {}})) {
            EXPECT_NE(each.Kind, FindingKind::UnknownWord) << FindingLine(each);
        }
    }
}

}  // namespace
}  // namespace lv
