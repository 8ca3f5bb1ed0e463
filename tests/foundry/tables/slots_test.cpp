#include "foundry/tables/slots.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

#include "foundry/document/script_document.h"
#include "foundry/document/written_commands.h"
#include "foundry/tables/read_commands.h"
#include "tests/foundry/kinds.h"

namespace lv {
namespace {

SlotNumber SlotOf(TextView command, Game kind) {
    return SlotFromCommand(command, kind).Slot;
}

bool Dropped(TextView command, Game kind) {
    const SlotMatch match = SlotFromCommand(command, kind);
    return match.Known && match.Slot == kNoSlot;
}

TEST(SlotArray, AValueStaysWhereItIsWhenAnotherArrayIsAssigned) {
    SlotArray<Text> mine;
    const Text* place = &mine[503];
    SlotArray<Text> other;
    other[503] = "moved";
    mine = std::move(other);
    EXPECT_EQ(*place, "moved");
    other = mine;
    EXPECT_EQ(other[503], "moved");
    const SlotArray<Text> third = std::move(mine);
    EXPECT_EQ(third[503], "moved");
    EXPECT_EQ(place, &mine[503]);
}

TEST(SlotFromCommand, ReadsAnyKindsSpellingOfACommandOfAll) {
    EXPECT_EQ(SlotOf("use blaster", Game::Quake), 201);
    EXPECT_EQ(SlotOf("moveforward", Game::Quake2), 101);
    EXPECT_EQ(SlotOf("+forward", Game::Unreal), 101);
}

TEST(SlotFromCommand, KnowsNothingOfAForeignCommand) {
    EXPECT_FALSE(SlotFromCommand("impulse 99", Game::Quake).Known);
    EXPECT_FALSE(SlotFromCommand("+hook", Game::Quake).Known);
    EXPECT_FALSE(SlotFromCommand("", Game::Quake).Known);
    EXPECT_FALSE(SlotFromCommand("exec a.cfg", Game::Quake).Known);
}

TEST(SlotFromCommand, TakesTheFlagCommandsInQuakeAndDropsThemElsewhere) {
    EXPECT_EQ(SlotOf("impulse 20", Game::Quake), 1001);
    EXPECT_EQ(SlotOf("impulse 69", Game::Quake), 1005);
    EXPECT_TRUE(Dropped("impulse 20", Game::Quake2));
    EXPECT_TRUE(Dropped("impulse 69", Game::Hexen2));
    EXPECT_TRUE(Dropped("impulse 22", Game::HalfLife));
}

TEST(SlotFromCommand, DropsImpulse13InQuakeAndKeepsAnUnknownImpulse) {
    EXPECT_TRUE(Dropped("impulse 13", Game::Quake));
    EXPECT_FALSE(SlotFromCommand("impulse 14", Game::Quake).Known);
}

TEST(SlotFromCommand, ComparesLowerCaseOnly) {
    EXPECT_EQ(SlotOf("+attack", Game::Quake), 111);
    EXPECT_FALSE(SlotFromCommand("+ATTACK", Game::Quake).Known);
}

TEST(SlotFromCommand, NeverRecognisesUnrealsLook) {
    EXPECT_FALSE(SlotFromCommand("look", Game::Unreal).Known);
    EXPECT_FALSE(SlotFromCommand("Look", Game::Unreal).Known);
    EXPECT_EQ(SlotOf("+mlook", Game::Unreal), 115);
}

TEST(SlotFromCommand, JumpsUpwardsInHalfLife) {
    EXPECT_EQ(SlotOf("+jump", Game::HalfLife), 109);
    EXPECT_EQ(SlotOf("jump", Game::HalfLife), 109);
    EXPECT_EQ(SlotOf("+moveup", Game::HalfLife), 109);
    EXPECT_EQ(SlotOf("+jump", Game::Quake), 112);
    EXPECT_EQ(SlotOf("jump", Game::Unreal), 112);
}

TEST(SlotFromCommand, TakesDuckForSwimmingDownInEveryKind) {
    for (const Game kind : kKinds) {
        EXPECT_EQ(SlotOf("+duck", kind), 110) << NumberOf(kind);
    }
}

TEST(SlotFromCommand, TakesSpeedForItsOwnSlotInHeretic2) {
    EXPECT_EQ(SlotOf("+speed", Game::Heretic2), 908);
    EXPECT_EQ(SlotOf("+speed", Game::Quake), 114);
    EXPECT_EQ(SlotOf("+speed", Game::HalfLife), 114);
}

TEST(SlotFromCommand, TakesTheShotgunByTheKind) {
    EXPECT_EQ(SlotOf("use shotgun", Game::Quake2), 202);
    EXPECT_EQ(SlotOf("use shotgun", Game::Sin), 203);
    EXPECT_TRUE(Dropped("use shotgun", Game::Quake));
    EXPECT_TRUE(Dropped("use shotgun", Game::HalfLife));
}

TEST(SlotFromCommand, DropsTheFourMiddleWeaponsInHexen2) {
    for (const TextView command : {"impulse 5", "impulse 6", "impulse 7", "impulse 8", "use chaingun"}) {
        EXPECT_TRUE(Dropped(command, Game::Hexen2)) << command;
    }
    EXPECT_EQ(SlotOf("impulse 4", Game::Hexen2), 204);
    EXPECT_EQ(SlotOf("impulse 12", Game::Hexen2), 209);
    EXPECT_EQ(SlotOf("impulse 8", Game::Quake), 208);
}

TEST(SlotFromCommand, CrouchesInHexen2AndHeretic2Only) {
    EXPECT_EQ(SlotOf("+crouch", Game::Hexen2), 901);
    EXPECT_EQ(SlotOf("+creep", Game::Heretic2), 901);
    for (const Game kind : Kinds{Game::Quake, Game::Quake2, Game::Unreal, Game::Sin, Game::HalfLife}) {
        EXPECT_TRUE(Dropped("+crouch", kind)) << NumberOf(kind);
    }
}

TEST(SlotFromCommand, StepsThroughTheInventoryByTheKind) {
    EXPECT_EQ(SlotOf("invnext", Game::HalfLife), 901);
    EXPECT_EQ(SlotOf("inventorynext", Game::HalfLife), 901);
    EXPECT_EQ(SlotOf("invprev", Game::HalfLife), 902);
    for (const Game kind : Kinds{Game::Quake, Game::Hexen2, Game::Quake2, Game::Unreal, Game::Sin, Game::Heretic2}) {
        EXPECT_EQ(SlotOf("invnext", kind), 1102) << NumberOf(kind);
        EXPECT_EQ(SlotOf("inventoryprevious", kind), 1103) << NumberOf(kind);
    }
}

TEST(SlotFromCommand, UsesTheInventoryByTheKind) {
    for (const TextView command : {"invuse", "inventoryactivate", "defnext", "+attack2"}) {
        for (const Game kind : Kinds{Game::Hexen2, Game::Heretic2, Game::HalfLife}) {
            EXPECT_EQ(SlotOf(command, kind), 905) << command << NumberOf(kind);
        }
        for (const Game kind : Kinds{Game::Quake2, Game::Unreal, Game::Sin}) {
            EXPECT_EQ(SlotOf(command, kind), 1104) << command << NumberOf(kind);
        }
        EXPECT_TRUE(Dropped(command, Game::Quake)) << command;
    }
    EXPECT_EQ(SlotOf("+cammousemove", Game::Quake), 1104);
}

TEST(SlotFromCommand, LightsTheTorchByTheKind) {
    for (const TextView command : {"impulse 100", "+autoaim"}) {
        EXPECT_EQ(SlotOf(command, Game::HalfLife), 907) << command;
        EXPECT_EQ(SlotOf(command, Game::Hexen2), 909) << command;
        EXPECT_EQ(SlotOf(command, Game::Heretic2), 909) << command;
        EXPECT_TRUE(Dropped(command, Game::Quake)) << command;
        EXPECT_TRUE(Dropped(command, Game::Unreal)) << command;
    }
    EXPECT_TRUE(Dropped("+showinfo", Game::HalfLife));
    EXPECT_EQ(SlotOf("+quickturn", Game::Hexen2), 907);
}

TEST(SlotFromCommand, UsesAnObjectByTheKind) {
    for (const TextView command : {"use rebreather", "throwweapon", "+use"}) {
        EXPECT_EQ(SlotOf(command, Game::HalfLife), 908) << command;
        for (const Game kind :
             Kinds{Game::Quake, Game::Hexen2, Game::Quake2, Game::Unreal, Game::Sin, Game::Heretic2}) {
            EXPECT_EQ(SlotOf(command, kind), 1110) << command << NumberOf(kind);
        }
    }
}

TEST(SlotFromCommand, TogglesFragsInHexen2Only) {
    EXPECT_EQ(SlotOf("toggle_dm", Game::Hexen2), 908);
    EXPECT_TRUE(Dropped("toggle_dm", Game::Heretic2));
    EXPECT_TRUE(Dropped("toggle_dm", Game::HalfLife));
}

TEST(SlotFromCommand, HasFourSlotsThatHeretic2HasNot) {
    for (SlotNumber slot = 913; slot <= 916; ++slot) {
        const Text command = "impulse " + std::to_string(slot - 809);
        EXPECT_EQ(SlotOf(command, Game::Hexen2), slot) << command;
        EXPECT_EQ(SlotOf(command, Game::HalfLife), slot) << command;
        EXPECT_TRUE(Dropped(command, Game::Heretic2)) << command;
    }
    EXPECT_EQ(SlotOf("use weapon_gauss", Game::HalfLife), 916);
    EXPECT_EQ(SlotOf("weapon_gauss", Game::HalfLife), 916);
}

TEST(SlotFromCommand, ReadsBothCameraLines) {
    EXPECT_EQ(SlotOf("set cl_camera_dampfactor 0.2 ; set cl_camera_viewmax 200 ; echo camera normal", Game::Heretic2),
              911);
    EXPECT_EQ(SlotOf("set cl_camera_dampfactor 0.08 ; set cl_camera_viewmax 200 ; echo camera normal", Game::Heretic2),
              911);
    EXPECT_EQ(SlotOf("set cl_camera_dampfactor 0.0 ; set cl_camera_viewmax 1000 ; echo camera locked", Game::Heretic2),
              912);
}

TEST(SlotFromCommand, ReadsAQuickSaveWithAndWithoutItsEcho) {
    for (const TextView command : {"quicksave", "save quick", "echo quicksaving...; wait; save quick",
                                   "echo quick saving...; wait; save quick"}) {
        EXPECT_EQ(SlotOf(command, Game::Quake2), 406) << command;
    }
}

TEST(SlotFromCommand, ReadsTheZoomWithAndWithoutItsSound) {
    EXPECT_EQ(SlotOf("fov 80;fov 60;fov 40;fov 20;", Game::Quake2), 409);
    EXPECT_EQ(SlotOf("fov 60;fov fov 90;", Game::Quake2), 411);
    EXPECT_EQ(SlotOf("cancel", Game::Unreal), 411);
}

TEST(SlotFromCommand, TakesAKindThatIsNoneForQuake) {
    for (const Game kind :
         Kinds{Game{-32768}, Game{-1}, Game::None, Game{7}, Game{8}, Game{10}, Game{32}, Game{64}, Game{32767}}) {
        EXPECT_EQ(SlotOf("impulse 20", kind), 1001) << NumberOf(kind);
        EXPECT_TRUE(Dropped("+crouch", kind)) << NumberOf(kind);
    }
}

TEST(SlotFromCommand, RecognisesNearlyAllThatItsOwnScriptsSay) {
    using Lost = std::tuple<Index, SlotNumber, SlotNumber>;  // kind, slot, what it is read back as
    std::vector<Lost> lost;
    for (const Game kind : kKinds) {
        ScriptDocument document;
        FillCommandTable(document, kind);
        for (const SlotNumber slot : SlotNumbers()) {
            const Text& command = document.SlotCommand[slot];
            const SlotNumber read = SlotOf(LowerCase(command), kind);
            if (!command.empty() && document.Bound_Lbl[slot].Visible && read != slot) {
                lost.emplace_back(NumberOf(kind), slot, read);
            }
        }
    }
    // Rows of pages that the kind does not show are among them: 1001 to 1005, 1104 in kinds 1, 2 and 6.
    const std::vector<Lost> expected = {
        {1, 1104, 0},  {2, 1001, 0}, {2, 1002, 0}, {2, 1003, 0}, {2, 1004, 0}, {2, 1005, 0}, {2, 1104, 905},
        {3, 1001, 0},  {3, 1002, 0}, {3, 1003, 0}, {3, 1004, 0}, {3, 1005, 0}, {4, 115, 0},  {4, 408, 0},
        {4, 410, 0},   {4, 411, 0},  {4, 412, 0},  {4, 413, 0},  {4, 1001, 0}, {4, 1002, 0}, {4, 1003, 0},
        {4, 1004, 0},  {4, 1005, 0}, {5, 1001, 0}, {5, 1002, 0}, {5, 1003, 0}, {5, 1004, 0}, {5, 1005, 0},
        {6, 114, 908}, {6, 1001, 0}, {6, 1002, 0}, {6, 1003, 0}, {6, 1004, 0}, {6, 1005, 0}, {6, 1104, 905},
        {9, 1001, 0},  {9, 1002, 0}, {9, 1003, 0}, {9, 1004, 0}, {9, 1005, 0},
    };
    EXPECT_EQ(lost, expected);
}

TEST(SlotFromCommand, NamesASlotOrNoneForAnyBytes) {
    std::mt19937 random(2);
    for (int round = 0; round < 20'000; ++round) {
        Text command(random() % 40, '\0');
        for (char& c : command) {
            c = static_cast<char>(random());
        }
        const SlotMatch match = SlotFromCommand(command, Game{static_cast<Index>(random() % 12)});
        EXPECT_TRUE(match.Slot == kNoSlot || (match.Known && match.Slot >= kFirstSlot && match.Slot <= kLastSlot));
    }
    EXPECT_FALSE(SlotFromCommand(TextView("+back\0", 6), Game::Quake).Known);
    EXPECT_FALSE(SlotFromCommand(Text(1'000'000, '+'), Game::Quake).Known);
}

TEST(SlotNumbers, AreTheBlocksWithoutTheirGaps) {
    const std::vector<SlotNumber>& numbers = SlotNumbers();
    EXPECT_EQ(numbers.size(), 16U + 12 + 8 + 13 + 24 + 27 + 12 + 13 + 23 + 5 + 5 + 7 + 5);
    EXPECT_TRUE(std::is_sorted(numbers.begin(), numbers.end()));
    EXPECT_EQ(numbers.front(), 101);
    EXPECT_EQ(numbers.back(), 1124);
    for (const SlotNumber gap : Slots{117, 213, 414, 525, 628, 713, 814, 924, 1006, 1106, 1117}) {
        EXPECT_FALSE(std::ranges::binary_search(numbers, gap)) << gap;
    }
}

TEST(SlotBlock, HoldsBothItsEnds) {
    EXPECT_FALSE(kExtras.Holds(500));
    EXPECT_TRUE(kExtras.Holds(501));
    EXPECT_TRUE(kExtras.Holds(524));
    EXPECT_FALSE(kExtras.Holds(525));
    EXPECT_EQ(kBoundAliases.Last - kBoundAliases.First + 1, 27);
    EXPECT_EQ(kBoundScripts.Last - kBoundScripts.First + 1, 12);
    EXPECT_EQ(kMessages.Last - kMessages.First + 1, 13);
}

TEST(SlotColor, IsThatOfTheGroup) {
    struct Case {
        SlotNumber First;
        SlotNumber Last;
        Color Back;
    };
    constexpr Case kCases[] = {
        {101, 116, 0x00c000}, {201, 212, 0x00c0c0},   {301, 308, 0xc0c000},   {401, 413, 0xff8080},
        {501, 524, 0x8080ff}, {601, 627, 0xff80ff},   {701, 712, 0x80c0ff},   {801, 813, 0x80ffff},
        {901, 923, 0xffc0c0}, {1001, 1005, 0xffc0ff}, {1101, 1124, 0xffc0c0},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(SlotColor(c.First, Game::Quake), c.Back) << c.First;
        EXPECT_EQ(SlotColor(c.Last, Game::Quake), c.Back) << c.Last;
    }
}

TEST(SlotColor, OfAHeadingIsThatOfItsRowsAndNotOfItsNumber) {
    EXPECT_EQ(SlotColor(700, Game::Quake), 0xff80ffU);  // bound aliases, 601 to 627
    EXPECT_EQ(SlotColor(800, Game::Quake), 0x80c0ffU);  // bound scripts, 701 to 712
    EXPECT_EQ(SlotColor(67, Game::Quake), 0x80ffffU);
    EXPECT_EQ(SlotColor(950, Game::Hexen2), 0xffc0c0U);
    EXPECT_EQ(SlotColor(1199, Game::Quake2), 0xffc0c0U);
}

TEST(SlotColor, IsPinkForTheCameraTricksOfHalfLife) {
    for (const SlotNumber slot : Slots{1100, 1101, 1105, 1120, 1124}) {
        EXPECT_EQ(SlotColor(slot, Game::HalfLife), 0xffc0ffU) << slot;
    }
    EXPECT_EQ(SlotColor(1110, Game::HalfLife), 0xffc0c0U);
    EXPECT_EQ(SlotColor(1101, Game::Quake2), 0xffc0c0U);
}

}  // namespace
}  // namespace lv
