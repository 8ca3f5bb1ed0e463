// The lists of the player's and Unreal's pages, beside the listing of what they must offer.

#include <gtest/gtest.h>

#include "foundry/tables/page_lists.h"
#include "foundry/tables/setting_lists.h"
#include "tests/foundry/listing_page_lists.h"

namespace lv {
namespace {

std::vector<Text> Listed(std::span<const char* const> values) {
    return {values.begin(), values.end()};
}

ScriptSettings Filled(Game kind, Dialect family, bool missionPack = false) {
    ScriptSettings settings;
    FillPageLists(settings, kind, family, missionPack);
    return settings;
}

TEST(PageListsTable, TheOlderKindsHaveThreeCrosshairs) {
    EXPECT_EQ(Filled(Game::Quake, Dialect::Quake).Crosshair_Cbo.Items, Listed(listing::kCrosshairsOfQuake));
    EXPECT_EQ(Filled(Game::Hexen2, Dialect::Quake).Crosshair_Cbo.Items, Listed(listing::kCrosshairsOfQuake));
}

TEST(PageListsTable, TheNewerKindsNameTheirCrosshairs) {
    EXPECT_EQ(Filled(Game::Quake2, Dialect::Quake2).Crosshair_Cbo.Items, Listed(listing::kCrosshairsOfQuake2));
    EXPECT_EQ(Filled(Game::Sin, Dialect::Quake2).Crosshair_Cbo.Items, Listed(listing::kCrosshairsOfQuake2));
    EXPECT_EQ(Filled(Game::Heretic2, Dialect::Quake2).Crosshair_Cbo.Items, Listed(listing::kCrosshairsOfQuake2));
    EXPECT_EQ(Filled(Game::HalfLife, Dialect::Quake2).Crosshair_Cbo.Items, Listed(listing::kCrosshairsOfHalfLife));
}

TEST(PageListsTable, TheNewerKindsButHalfLifeAskForTheHand) {
    EXPECT_EQ(Filled(Game::Quake2, Dialect::Quake2).Handed_Cbo.Items, Listed(listing::kHands));
    EXPECT_EQ(Filled(Game::Sin, Dialect::Quake2).Handed_Cbo.Items, Listed(listing::kHands));
    EXPECT_EQ(Filled(Game::Heretic2, Dialect::Quake2).Handed_Cbo.Items, Listed(listing::kHands));
    EXPECT_TRUE(Filled(Game::HalfLife, Dialect::Quake2).Handed_Cbo.Items.empty());
    EXPECT_TRUE(Filled(Game::Quake, Dialect::Quake).Handed_Cbo.Items.empty());
}

TEST(PageListsTable, CrosshairColorsAreThePaletteWithThirtyOneNames) {
    EXPECT_EQ(Filled(Game::Quake, Dialect::Quake).CrossHairColor_Cbo.Items, Listed(listing::kCrosshairColors));
}

TEST(PageListsTable, HexenHasItsClassesTheFirstSelected) {
    EXPECT_EQ(Filled(Game::Hexen2, Dialect::Quake).PlayerClass_Cbo.Items, Listed(listing::kPlayerClasses));
    EXPECT_EQ(Filled(Game::Hexen2, Dialect::Quake).PlayerClass_Cbo.ListIndex, 0);
    EXPECT_EQ(Filled(Game::Hexen2, Dialect::Quake, true).PlayerClass_Cbo.Items,
              Listed(listing::kPlayerClassesOfMissionPack));
    EXPECT_EQ(Filled(Game::Hexen2, Dialect::Quake, true).PlayerClass_Cbo.ListIndex, 0);
}

TEST(PageListsTable, UnrealOffersTheListedSounds) {
    const ScriptSettings settings = Filled(Game::Unreal, Dialect::Unreal);
    ASSERT_EQ(std::size(listing::kUnrealAudio), settings.UnrealAudio_Cbo.size());
    for (std::size_t i = 0; i < settings.UnrealAudio_Cbo.size(); ++i) {
        EXPECT_EQ(settings.UnrealAudio_Cbo[i].Items, Listed(listing::kUnrealAudio[i])) << i;
        EXPECT_EQ(settings.UnrealAudio_Cbo[i].ListIndex, -1) << i;
    }
}

TEST(PageListsTable, UnrealOffersTheListedPlayerSettings) {
    const ScriptSettings settings = Filled(Game::Unreal, Dialect::Unreal);
    ASSERT_EQ(std::size(listing::kPlayerPawn), settings.PlayerPawn_Cbo.size());
    for (std::size_t i = 0; i < settings.PlayerPawn_Cbo.size(); ++i) {
        EXPECT_EQ(settings.PlayerPawn_Cbo[i].Items, Listed(listing::kPlayerPawn[i])) << i;
        EXPECT_EQ(settings.PlayerPawn_Cbo[i].ListIndex, -1) << i;
    }
}

TEST(PageListsTable, UnrealOffersFifteenSpeedsOfTheMouse) {
    const ScriptSettings settings = Filled(Game::Unreal, Dialect::Unreal);
    EXPECT_EQ(settings.MouseBind_Cbo[0].Items, Listed(listing::kMouseAxisSpeed));
    EXPECT_EQ(settings.MouseBind_Cbo[1].Items, Listed(listing::kMouseAxisSpeed));
}

TEST(PageListsTable, AllWeaponsOfUnrealAreAvailableAtFirst) {
    ScriptSettings settings;
    settings.WeaponsPriority_Lst.Items = {"Rifle"};
    settings.WeaponsAvailable_Lst.Items = {"Stinger"};
    FillPageLists(settings, Game::Unreal, Dialect::Unreal, false);
    EXPECT_EQ(settings.WeaponsAvailable_Lst.Items, Listed(listing::kWeapons));
    EXPECT_TRUE(settings.WeaponsPriority_Lst.Items.empty());
}

TEST(PageListsTable, ASecondFillStartsFromTheSameValues) {
    ScriptSettings settings;
    FillPageLists(settings, Game::Hexen2, Dialect::Quake, true);
    settings.Crosshair_Cbo.Items.emplace_back("7");
    settings.PlayerClass_Cbo.Items.emplace_back("7");
    settings.PlayerPawn_Cbo[4].Items.emplace_back("Maybe");
    settings.UnrealAudio_Cbo[13].Items.emplace_back("16");
    FillPageLists(settings, Game::Hexen2, Dialect::Quake, false);
    EXPECT_EQ(settings.Crosshair_Cbo.Items, Listed(listing::kCrosshairsOfQuake));
    EXPECT_EQ(settings.PlayerClass_Cbo.Items, Listed(listing::kPlayerClasses));
    EXPECT_EQ(settings.PlayerPawn_Cbo[4].Items, Listed(listing::kYesNo));
    EXPECT_TRUE(settings.UnrealAudio_Cbo[13].Items.empty());
}

}  // namespace
}  // namespace lv
