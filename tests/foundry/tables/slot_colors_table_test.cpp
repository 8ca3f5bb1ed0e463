// The back colours of the slots' groups, which their keys take.

#include <gtest/gtest.h>

#include "foundry/tables/slots.h"
#include "tests/foundry/listing_recognition.h"

namespace lv {
namespace {

struct GroupColorRow {
    int First;
    int Last;
    Color Back;  // 0xBBGGRR
};

// clang-format off
constexpr GroupColorRow kGroups[] = {
    { 101,  116, 0x00c000},
    { 201,  212, 0x00c0c0},
    { 301,  308, 0xc0c000},
    { 401,  413, 0xff8080},
    { 501,  524, 0x8080ff},
    { 601,  627, 0xff80ff},
    { 701,  712, 0x80c0ff},
    { 801,  813, 0x80ffff},
    { 901,  923, 0xffc0c0},
    {1001, 1005, 0xffc0ff},
    {1101, 1105, 0xffc0c0},
    {1110, 1116, 0xffc0c0},
    {1120, 1124, 0xffc0c0},
};
constexpr GroupColorRow kGroupsOfHalfLife[] = {
    {1101, 1105, 0xffc0ff},
    {1120, 1124, 0xffc0ff},
};
// clang-format on

TEST(SlotColorsTable, EachGroupHasItsColorInEachKind) {
    for (const Game kind : listing::kKinds) {
        for (const auto& group : kGroups) {
            const bool ofTheCamera = kind == Game::HalfLife && (group.First == 1101 || group.First == 1120);
            for (int slot = group.First; !ofTheCamera && slot <= group.Last; ++slot) {
                EXPECT_EQ(SlotColor(static_cast<SlotNumber>(slot), kind), group.Back)
                    << slot << " in " << NumberOf(kind);
            }
        }
    }
}

TEST(SlotColorsTable, CameraTricksOfHalfLifeHaveTheirOwn) {
    for (const auto& group : kGroupsOfHalfLife) {
        for (int slot = group.First; slot <= group.Last; ++slot) {
            EXPECT_EQ(SlotColor(static_cast<SlotNumber>(slot), Game::HalfLife), group.Back) << slot;
        }
    }
}

TEST(SlotColorsTable, HeadingsHaveTheColorOfTheirGroup) {
    EXPECT_EQ(SlotColor(100, Game::Quake), 0x00c000u);
    EXPECT_EQ(SlotColor(200, Game::Quake), 0x00c0c0u);
    EXPECT_EQ(SlotColor(300, Game::Quake), 0xc0c000u);
    EXPECT_EQ(SlotColor(400, Game::Quake), 0xff8080u);
    EXPECT_EQ(SlotColor(500, Game::Quake), 0x8080ffu);
    EXPECT_EQ(SlotColor(700, Game::Quake), 0xff80ffu);
    EXPECT_EQ(SlotColor(800, Game::Quake), 0x80c0ffu);
    EXPECT_EQ(SlotColor(67, Game::Quake), 0x80ffffu);
    EXPECT_EQ(SlotColor(900, Game::Hexen2), 0xffc0c0u);
    EXPECT_EQ(SlotColor(950, Game::Hexen2), 0xffc0c0u);
    EXPECT_EQ(SlotColor(1000, Game::Quake), 0xffc0ffu);
    EXPECT_EQ(SlotColor(1100, Game::Quake2), 0xffc0c0u);
    EXPECT_EQ(SlotColor(1198, Game::Quake2), 0xffc0c0u);
    EXPECT_EQ(SlotColor(1199, Game::Quake2), 0xffc0c0u);
    EXPECT_EQ(SlotColor(1100, Game::HalfLife), 0xffc0ffu);
}

}  // namespace
}  // namespace lv
