// What FillCommandTable gives each kind of game.

#include <gtest/gtest.h>

#include "foundry/document/script_document.h"
#include "foundry/document/written_commands.h"
#include "tests/foundry/kinds.h"

namespace lv {
namespace {

ScriptDocument Filled(Index kind) {
    ScriptDocument document;
    FillCommandTable(document, kind);
    return document;
}

Text CommandOf(SlotNumber slot, Index kind) {
    return Filled(kind).SlotCommand[slot];
}

Text CaptionOf(SlotNumber slot, Index kind) {
    return Filled(kind).Bound_Lbl[slot].Caption;
}

bool Shown(SlotNumber slot, Index kind) {
    const ScriptDocument document = Filled(kind);
    EXPECT_EQ(document.Bound_Lbl[slot].Visible, document.Setting_Lbl[slot].Visible) << slot;
    return document.Bound_Lbl[slot].Visible;
}

TEST(FillCommandTable, CrouchesOnTheJumpRowInQuake2AndSin) {
    for (const Index kind : kKinds) {
        const bool crouches = kind == 3 || kind == 5;
        EXPECT_EQ(CommandOf(112, kind), crouches ? "+crouch" : kind == 4 ? "Jump" : "+jump") << kind;
    }
}

TEST(FillCommandTable, MovesUpAndDownByJumpAndDuckInHalfLife) {
    EXPECT_EQ(CommandOf(109, 9), "+jump");
    EXPECT_EQ(CommandOf(110, 9), "+duck");
    EXPECT_EQ(CommandOf(109, 3), "+moveup");
    EXPECT_EQ(CommandOf(110, 3), "+movedown");
}

TEST(FillCommandTable, CaptionsUpAndDownByTheFamily) {
    for (const Index kind : Kinds{3, 5, 6, 9}) {
        EXPECT_EQ(CaptionOf(109, kind), " Jump / Up") << kind;
        EXPECT_EQ(CaptionOf(110, kind), " Crouch / Dn") << kind;
        EXPECT_FALSE(Shown(112, kind)) << kind;
    }
    EXPECT_EQ(CaptionOf(109, 4), " View Up");
    EXPECT_EQ(CaptionOf(110, 4), " View Down");
    EXPECT_EQ(CaptionOf(109, 1), " Swim Up");
    EXPECT_EQ(CaptionOf(110, 2), " Swim Down");
    EXPECT_TRUE(Shown(112, 1));
}

TEST(FillCommandTable, KeepsTheLeadingBlankOfFiveUnrealCommands) {
    EXPECT_EQ(CommandOf(408, 4), " Quit");
    EXPECT_EQ(CommandOf(410, 4), " Shot");
    EXPECT_EQ(CommandOf(411, 4), " Cancel");
    EXPECT_EQ(CommandOf(412, 4), " Brightness");
    EXPECT_EQ(CommandOf(413, 4), " EndFullscreen");
    EXPECT_EQ(CommandOf(409, 4), "");
}

TEST(FillCommandTable, KeepsTheDoubledWordOfZoomOut) {
    for (const Index kind : Kinds{3, 5, 6}) {
        EXPECT_EQ(CommandOf(411, kind), "play gunner/gunidle1;fov 60;fov fov 90;") << kind;
        EXPECT_EQ(CommandOf(409, kind), "play gunner/gunatck1;fov 80;fov 60;fov 40;fov 20;") << kind;
    }
    EXPECT_EQ(CommandOf(409, 9), "");
    EXPECT_EQ(CommandOf(411, 9), "");
    EXPECT_EQ(CommandOf(409, 1), "zoom_in");
    EXPECT_EQ(CommandOf(411, 1), "");
}

TEST(FillCommandTable, ShowsTheScoresInFiveWays) {
    EXPECT_EQ(CommandOf(306, 1), "+showscores");
    EXPECT_EQ(CommandOf(306, 2), "+showdm");
    EXPECT_EQ(CommandOf(306, 3), "cmd showscores");
    EXPECT_EQ(CommandOf(306, 5), "cmd showscores");
    EXPECT_EQ(CommandOf(306, 6), "score");
    EXPECT_EQ(CommandOf(306, 9), "+showscores");
    EXPECT_EQ(CommandOf(306, 4), "ShowScores");
}

TEST(FillCommandTable, QuitsByAMenuInSinAndHeretic2) {
    EXPECT_EQ(CommandOf(408, 1), "quit");
    EXPECT_EQ(CommandOf(408, 3), "quit");
    EXPECT_EQ(CommandOf(408, 9), "quit");
    EXPECT_EQ(CommandOf(408, 5), "menu_quit");
    EXPECT_EQ(CommandOf(408, 6), "menu_quit");
}

TEST(FillCommandTable, StepsThroughTheWeaponsOnTheLastTwoRowsOfTen) {
    EXPECT_EQ(CommandOf(209, 1), "impulse 12");
    EXPECT_EQ(CommandOf(210, 1), "impulse 10");
    EXPECT_EQ(CaptionOf(209, 1), " Back");
    EXPECT_EQ(CaptionOf(210, 1), " Forward");
    EXPECT_EQ(CaptionOf(211, 3), " Back");
    EXPECT_EQ(CaptionOf(212, 3), " Forward");
}

TEST(FillCommandTable, KeepsTheMisspellingsOfTheCaptions) {
    EXPECT_EQ(CaptionOf(204, 6), " Magis Missile");
    EXPECT_EQ(CaptionOf(206, 6), " Shere of Annihilation");
    EXPECT_EQ(CaptionOf(207, 6), " Pheonix Bow");
    EXPECT_EQ(CaptionOf(210, 6), " ");
    EXPECT_EQ(CaptionOf(923, 6), " Put up a Meteor Barrior");
    EXPECT_EQ(CaptionOf(902, 9), " Invertory Previous");
    EXPECT_EQ(CaptionOf(906, 9), " Graphitti");
    EXPECT_EQ(CaptionOf(206, 5), " Spider Rifle");
    EXPECT_EQ(CaptionOf(1121, 4), " Taunt Victory");
    EXPECT_EQ(CaptionOf(1122, 4), " Taunt Wave");
}

TEST(FillCommandTable, NamesFiveWeaponSlotsOfHalfLife) {
    EXPECT_EQ(CommandOf(205, 9), "slot5");
    EXPECT_EQ(CaptionOf(205, 9), " Weapon Slot 5");
    for (SlotNumber slot = 206; slot <= 210; ++slot) {
        EXPECT_EQ(CommandOf(slot, 9), "") << slot;
        EXPECT_EQ(CaptionOf(slot, 9), " <N/A>") << slot;
    }
    EXPECT_TRUE(Shown(208, 9));
    EXPECT_FALSE(Shown(209, 9));
}

TEST(FillCommandTable, KeepsTheCaseOfOneHalfLifeWeapon) {
    EXPECT_EQ(CommandOf(911, 9), "use weapon_9mmAR");
    EXPECT_EQ(CommandOf(912, 9), "use weapon_9mmhandgun");
}

TEST(FillCommandTable, HidesWhatTheKindHasNot) {
    EXPECT_FALSE(Shown(211, 1));
    EXPECT_TRUE(Shown(211, 3));
    EXPECT_FALSE(Shown(412, 1));
    EXPECT_TRUE(Shown(412, 4));
    EXPECT_FALSE(Shown(114, 4));
    EXPECT_FALSE(Shown(913, 6));
    EXPECT_FALSE(Shown(909, 9));
    EXPECT_FALSE(Shown(901, 1));
    EXPECT_FALSE(Shown(1110, 9));
    EXPECT_FALSE(Shown(1123, 4));
}

TEST(FillCommandTable, HidesRowsThatHaveACommand) {
    EXPECT_EQ(CommandOf(1105, 5), "invdrop");
    EXPECT_FALSE(Shown(1105, 5));
    EXPECT_TRUE(Shown(1105, 3));
    EXPECT_EQ(CommandOf(1114, 4), "use power shield");
    EXPECT_EQ(CommandOf(1115, 4), "use quad damage");
    EXPECT_EQ(CommandOf(1116, 4), "use silencer");
    for (SlotNumber slot = 1114; slot <= 1116; ++slot) {
        EXPECT_FALSE(Shown(slot, 4)) << slot;
        EXPECT_TRUE(Shown(slot, 3)) << slot;
    }
    EXPECT_EQ(CommandOf(205, 2), "impulse 5");
    EXPECT_FALSE(Shown(205, 2));
    EXPECT_TRUE(Shown(204, 2));
    EXPECT_EQ(CommandOf(1120, 5), "wave 0");
    EXPECT_FALSE(Shown(1120, 5));
    EXPECT_TRUE(Shown(1112, 5));
    EXPECT_FALSE(Shown(211, 4));
}

TEST(FillCommandTable, RenamesTheFirstUnrealMenus) {
    EXPECT_EQ(CaptionOf(402, 4), " Activate Translator");
    EXPECT_EQ(CommandOf(402, 4), "ActivateTranslator | FunctionKey 2");
    EXPECT_EQ(CaptionOf(401, 4), " Help");
    EXPECT_EQ(CommandOf(401, 4), "Help | FunctionKey 1");
    EXPECT_EQ(CaptionOf(411, 4), " Cancel");
    EXPECT_EQ(CaptionOf(411, 3), " Zoom Out");
}

TEST(FillCommandTable, GivesTheFlagCommandsToEveryKind) {
    for (const Index kind : kKinds) {
        EXPECT_EQ(CommandOf(1001, kind), "impulse 20") << kind;
        EXPECT_EQ(CommandOf(1004, kind), "impulse 23") << kind;
        EXPECT_EQ(CommandOf(1005, kind), "impulse 69") << kind;
        EXPECT_EQ(CaptionOf(1005, kind), " Last Weapon") << kind;
    }
}

TEST(FillCommandTable, CaptionsTheHeadingsByTheKind) {
    EXPECT_EQ(CaptionOf(100, 1), " Movement / Action");
    EXPECT_EQ(CaptionOf(67, 1), " Stuff You Say");
    EXPECT_EQ(CaptionOf(900, 2), " Hexen ][ Actions");
    EXPECT_EQ(CaptionOf(900, 6), " Heretic ][ Actions");
    EXPECT_EQ(CaptionOf(900, 9), " Half-Life Actions");
    EXPECT_EQ(CaptionOf(950, 2), " Hexen ][ Magic --------------------------->");
    EXPECT_EQ(CaptionOf(950, 6), " Heretic ][ Magic");
    EXPECT_EQ(CaptionOf(950, 9), " Half-Life Weapons");
    EXPECT_EQ(CaptionOf(1100, 3), " Quake ][ Inventory Control");
    EXPECT_EQ(CaptionOf(1100, 5), " Sin Inventory Control");
    EXPECT_EQ(CaptionOf(1100, 9), " Camera Tricks!");
    EXPECT_EQ(CaptionOf(1100, 4), " Unreal Inventory Control");
    EXPECT_EQ(CaptionOf(1198, 3), " Quake ][ Inventory Direct Bindings");
    EXPECT_EQ(CaptionOf(1198, 5), " Sin Stuff");
    EXPECT_EQ(CaptionOf(1198, 4), " Unreal Actions");
    EXPECT_EQ(CaptionOf(1199, 3), " Quake ][ Hand Signals");
    EXPECT_EQ(CaptionOf(1199, 4), " Unreal Hand Signals");
}

TEST(FillCommandTable, BeginsEveryCaptionOfARowWithABlank) {
    for (const Index kind : kKinds) {
        const ScriptDocument document = Filled(kind);
        for (const SlotNumber slot : SlotNumbers()) {
            const Text& caption = document.Bound_Lbl[slot].Caption;
            EXPECT_TRUE(caption.empty() || caption.front() == ' ') << kind << ' ' << slot;
            const bool shown = document.Bound_Lbl[slot].Visible && !document.SlotCommand[slot].empty();
            EXPECT_FALSE(shown && caption.empty()) << kind << ' ' << slot;
        }
    }
}

TEST(FillCommandTable, LeavesTheFreeSlotsEmpty) {
    for (const Index kind : kKinds) {
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
    const ScriptDocument quake = Filled(1);
    for (const Index kind : Kinds{0, 7, 8, -1, 100}) {
        const ScriptDocument document = Filled(kind);
        for (const SlotNumber slot : SlotNumbers()) {
            EXPECT_EQ(document.SlotCommand[slot], quake.SlotCommand[slot]) << kind << ' ' << slot;
            EXPECT_EQ(document.Bound_Lbl[slot].Caption, quake.Bound_Lbl[slot].Caption) << kind << ' ' << slot;
        }
    }
}

TEST(FillCommandTable, LeavesNothingBehindOfAnotherKind) {
    ScriptDocument document = Filled(9);
    FillCommandTable(document, 1);
    const ScriptDocument quake = Filled(1);
    for (const SlotNumber slot : SlotNumbers()) {
        EXPECT_EQ(document.SlotCommand[slot], quake.SlotCommand[slot]) << slot;
        EXPECT_EQ(document.Bound_Lbl[slot].Caption, quake.Bound_Lbl[slot].Caption) << slot;
        EXPECT_EQ(document.Bound_Lbl[slot].Visible, quake.Bound_Lbl[slot].Visible) << slot;
    }
    EXPECT_EQ(document.Bound_Lbl[900].Caption, quake.Bound_Lbl[900].Caption);
}

}  // namespace
}  // namespace lv
