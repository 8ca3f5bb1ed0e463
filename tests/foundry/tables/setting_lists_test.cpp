#include "foundry/tables/setting_lists.h"
#include "foundry/tables/page_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace lv {
namespace {

using testing::ElementsAre;

ScriptSettings Filled(char separator = '.') {
    ScriptSettings settings;
    FillSettingLists(settings, separator);
    return settings;
}

TEST(FillSettingLists, ReachesTheEndOfEveryRule) {
    const ScriptSettings settings = Filled();
    EXPECT_EQ(settings.snd_mixahead_Cbo.Items.size(), 20U);
    EXPECT_EQ(settings.snd_mixahead_Cbo.Items.front(), "0.05");
    EXPECT_EQ(settings.snd_mixahead_Cbo.Items.back(), "1.00");
    EXPECT_EQ(settings.volume_Cbo.Items.back(), "1.1");
    EXPECT_EQ(settings.gamma_Cbo.Items.front(), "0.1");
    EXPECT_EQ(settings.gamma_Cbo.Items.back(), "2.0");
    EXPECT_EQ(settings.cl_bob_Cbo.Items.back(), "0.08");
    EXPECT_EQ(settings.v_kicktime_Cbo.Items.back(), "3.0");
    EXPECT_EQ(settings.fov_Cbo.Items.size(), 70U);
    EXPECT_EQ(settings.fov_Cbo.Items.back(), "360");
}

TEST(FillSettingLists, StartsThePitchWithThreeValuesOfItsOwn) {
    const ScriptSettings settings = Filled();
    EXPECT_THAT(settings.m_pitch_Cbo.Items, ElementsAre("0.005", "0.010", "0.022", "0.030", "0.040", "0.050", "0.060",
                                                        "0.070", "0.080", "0.090", "0.100"));
    EXPECT_EQ(settings.m_yaw_Cbo.Items, settings.m_pitch_Cbo.Items);
}

TEST(FillSettingLists, LengthensTheSteps) {
    const ScriptSettings settings = Filled();
    EXPECT_THAT(settings.scr_conspeed_Cbo.Items,
                ElementsAre("100", "200", "300", "400", "500", "1000", "2000", "10000"));
    EXPECT_THAT(settings.m_side_Cbo.Items,
                ElementsAre("0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0", "2.0", "3.0", "4.0",
                            "5.0", "6.0", "7.0", "8.0", "9.0", "10.0"));
    EXPECT_THAT(settings.cl_yawspeed_Cbo.Items,
                ElementsAre("50", "60", "70", "80", "90", "100", "110", "120", "130", "140", "150", "160", "170", "180",
                            "190", "200", "300", "400", "500", "600", "700", "800", "900", "1000"));
}

TEST(FillSettingLists, CountsTheSensitivityDownwards) {
    const ScriptSettings settings = Filled();
    EXPECT_EQ(settings.MouseSensitivity_Cbo.Items.size(), 101U);
    EXPECT_EQ(settings.MouseSensitivity_Cbo.Items[0], "50.0");
    EXPECT_EQ(settings.MouseSensitivity_Cbo.Items[1], "49.5");
    EXPECT_EQ(settings.MouseSensitivity_Cbo.Items[99], "0.5");
    EXPECT_EQ(settings.MouseSensitivity_Cbo.Items[100], "0.0");
}

TEST(FillSettingLists, NamesTheVideoModesByTheirNumbers) {
    const ScriptSettings settings = Filled();
    EXPECT_EQ(settings.vidmode_Cbo.Items.size(), 11U);
    EXPECT_EQ(settings.vidmode_Cbo.Items[0], "0) 320x200");
    EXPECT_EQ(settings.vidmode_Cbo.Items[10], "10) 360x480");
}

TEST(FillSettingLists, WritesTheLocalesSeparator) {
    const ScriptSettings settings = Filled(',');
    EXPECT_EQ(settings.snd_mixahead_Cbo.Items.front(), "0,05");
    EXPECT_EQ(settings.m_pitch_Cbo.Items[2], "0,022");
    EXPECT_EQ(settings.m_side_Cbo.Items.back(), "10,0");
    EXPECT_EQ(settings.MouseSensitivity_Cbo.Items[1], "49,5");
    EXPECT_EQ(settings.fov_Cbo.Items.front(), "15");
    EXPECT_EQ(settings.vidmode_Cbo.Items[0], "0) 320x200");
}

TEST(FillSettingLists, EmptiesTheListsFirst) {
    ScriptSettings settings = Filled();
    settings.fov_Cbo.Items.emplace_back("112");
    settings.fov_Cbo.ListIndex = 3;
    settings.vidmode_Cbo.Items.emplace_back("15) Custom VESA Mode");
    settings.vidmode_Cbo.ListIndex = 11;
    FillSettingLists(settings, '.');
    EXPECT_EQ(settings.fov_Cbo.Items.size(), 70U);
    EXPECT_EQ(settings.fov_Cbo.ListIndex, -1);
    EXPECT_EQ(settings.vidmode_Cbo.Items.size(), 11U);
    EXPECT_EQ(settings.vidmode_Cbo.ListIndex, -1);
}

ScriptSettings Pages(Game kind, Dialect family, bool isMissionPack = false) {
    ScriptSettings settings;
    FillPageLists(settings, kind, family, isMissionPack);
    return settings;
}

TEST(FillPageLists, OffersTheCrosshairsOfTheKind) {
    EXPECT_THAT(Pages(Game::Quake, Dialect::Quake).Crosshair_Cbo.Items, ElementsAre("0", "1", "2"));
    EXPECT_THAT(Pages(Game::Hexen2, Dialect::Quake).Crosshair_Cbo.Items, ElementsAre("0", "1", "2"));
    EXPECT_THAT(Pages(Game::Quake2, Dialect::Quake2).Crosshair_Cbo.Items,
                ElementsAre("0 (none)", "1 (white cross)", "2 (red dot)", "3 (red angle)"));
    EXPECT_THAT(Pages(Game::HalfLife, Dialect::Quake2).Crosshair_Cbo.Items,
                ElementsAre("0 (none)", "1 (crosshair on)"));
}

TEST(FillPageLists, OffersHandsInTheNewConsoleButHalfLife) {
    EXPECT_THAT(Pages(Game::Heretic2, Dialect::Quake2).Handed_Cbo.Items,
                ElementsAre("0 (right)", "1 (left)", "2 (none)"));
    EXPECT_TRUE(Pages(Game::Quake, Dialect::Quake).Handed_Cbo.Items.empty());
    EXPECT_TRUE(Pages(Game::HalfLife, Dialect::Quake2).Handed_Cbo.Items.empty());
}

TEST(FillPageLists, NamesThirtyOneOfThe256CrosshairColors) {
    const std::vector<Text> colors = Pages(Game::Quake, Dialect::Quake).CrossHairColor_Cbo.Items;
    EXPECT_EQ(colors.size(), 256U);
    EXPECT_EQ(colors[0], "000 -Brown");
    EXPECT_EQ(colors[1], "001");
    EXPECT_EQ(colors[39], "039 -Lt. Blue");
    EXPECT_EQ(colors[224], "224 -Burgandy");
    EXPECT_EQ(colors[255], "255 -Brown");
    EXPECT_EQ(std::count_if(colors.begin(), colors.end(), [](const Text& color) { return color.size() > 3; }), 31);
}

TEST(FillPageLists, HasTheDemonessWithTheMissionPackOnly) {
    EXPECT_THAT(Pages(Game::Hexen2, Dialect::Quake).PlayerClass_Cbo.Items,
                ElementsAre("Paladin", "Crusader", "Necromancer", "Assassin"));
    EXPECT_THAT(Pages(Game::Hexen2, Dialect::Quake, true).PlayerClass_Cbo.Items,
                ElementsAre("Paladin", "Crusader", "Necromancer", "Assassin", "Demoness"));
    EXPECT_EQ(Pages(Game::Hexen2, Dialect::Quake).PlayerClass_Cbo.ListIndex, 0);
    EXPECT_TRUE(Pages(Game::Quake, Dialect::Quake, true).PlayerClass_Cbo.Items.empty());
}

TEST(FillPageLists, WritesUnrealsNumbersAsItsIniDoes) {
    const ScriptSettings settings = Pages(Game::Unreal, Dialect::Unreal);
    EXPECT_THAT(settings.UnrealAudio_Cbo[0].Items, ElementsAre("True", "False"));
    EXPECT_THAT(settings.UnrealAudio_Cbo[10].Items, ElementsAre("True", "False"));
    EXPECT_EQ(settings.UnrealAudio_Cbo[11].Items.size(), 11U);
    EXPECT_EQ(settings.UnrealAudio_Cbo[11].Items.back(), "100");
    EXPECT_THAT(settings.UnrealAudio_Cbo[12].Items, ElementsAre("11025Hz", "22050Hz", "44100Hz"));
    EXPECT_THAT(settings.UnrealAudio_Cbo[14].Items,
                ElementsAre("4500.000000", "5500.000000", "6500.000000", "7500.000000", "8500.000000"));
    EXPECT_EQ(settings.UnrealAudio_Cbo[17].Items.size(), 11U);
    EXPECT_EQ(settings.UnrealAudio_Cbo[17].Items[1], "0.100000");
    EXPECT_EQ(settings.UnrealAudio_Cbo[17].Items.back(), "1.000000");
}

TEST(FillPageLists, OffersUnrealsPlayerItsChoices) {
    const ScriptSettings settings = Pages(Game::Unreal, Dialect::Unreal);
    EXPECT_THAT(settings.PlayerPawn_Cbo[0].Items,
                ElementsAre("0.000000", "0.125000", "0.250000", "0.375000", "0.500000", "0.675000", "0.750000",
                            "0.875000", "1.000000"));
    EXPECT_EQ(settings.PlayerPawn_Cbo[1].Items.back(), "0.040000");
    EXPECT_EQ(settings.PlayerPawn_Cbo[2].Items[8], "0.800000");
    EXPECT_EQ(settings.PlayerPawn_Cbo[2].Items[9], "0.850000");
    EXPECT_EQ(settings.PlayerPawn_Cbo[2].Items[10], "0.860000");
    EXPECT_EQ(settings.PlayerPawn_Cbo[2].Items.back(), "1.000000");
    EXPECT_THAT(settings.PlayerPawn_Cbo[3].Items, ElementsAre("-1.000000", "1.000000"));
    EXPECT_THAT(settings.PlayerPawn_Cbo[8].Items, ElementsAre("True", "False"));
    EXPECT_EQ(settings.PlayerPawn_Cbo[9].Items.back(), "10.000000");
    EXPECT_THAT(settings.PlayerPawn_Cbo[10].Items, ElementsAre("1300", "1950", "2600", "3250", "3900", "4550", "5200"));
    EXPECT_THAT(settings.PlayerPawn_Cbo[12].Items,
                ElementsAre("0.000000", "0.025000", "0.050000", "0.075000", "0.100000"));
    EXPECT_EQ(settings.MouseBind_Cbo[0].Items.front(), "1.0");
    EXPECT_EQ(settings.MouseBind_Cbo[1].Items.back(), "15.0");
    EXPECT_EQ(settings.WeaponsAvailable_Lst.Items.size(), 15U);
    EXPECT_TRUE(settings.WeaponsPriority_Lst.Items.empty());
}

TEST(ColorTable, HoldsFourteenBlueGreenRedNumbers) {
    EXPECT_THAT(ColorTable, ElementsAre(0xffffff, 0x008080, 0xa88677, 0x008000, 0x000080, 0x5a8779, 0x4d6ba6, 0x4989cf,
                                        0x753572, 0xb779b4, 0x697b83, 0x6b7c3f, 0x00ffff, 0xc00000));
}

}  // namespace
}  // namespace lv
