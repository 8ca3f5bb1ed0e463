// The values of the setting lists, beside the listing of what they must offer.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "foundry/tables/page_lists.h"
#include "foundry/tables/setting_lists.h"
#include "tests/foundry/listing_settings.h"

namespace lv {
namespace {

using listing::kSettingLists;

#define LV_LIST(name) \
    { #name, &ScriptSettings::name }
const std::map<TextView, ListBox ScriptSettings::*> kNumericLists = {
    LV_LIST(snd_mixahead_Cbo),     LV_LIST(bgmvolume_Cbo),       LV_LIST(volume_Cbo),
    LV_LIST(cl_backspeed_Cbo),     LV_LIST(cl_forwardspeed_Cbo), LV_LIST(cl_sidespeed_Cbo),
    LV_LIST(cl_bob_Cbo),           LV_LIST(cl_bobcycle_Cbo),     LV_LIST(gamma_Cbo),
    LV_LIST(cl_bobup_Cbo),         LV_LIST(cl_pitchspeed_Cbo),   LV_LIST(cl_rollangle_Cbo),
    LV_LIST(cl_rollspeed_Cbo),     LV_LIST(cl_yawspeed_Cbo),     LV_LIST(fov_Cbo),
    LV_LIST(m_forward_Cbo),        LV_LIST(m_pitch_Cbo),         LV_LIST(m_yaw_Cbo),
    LV_LIST(m_side_Cbo),           LV_LIST(scr_centerspeed_Cbo), LV_LIST(scr_conspeed_Cbo),
    LV_LIST(MouseSensitivity_Cbo), LV_LIST(v_kickpitch_Cbo),     LV_LIST(v_kickroll_Cbo),
    LV_LIST(v_kicktime_Cbo),       LV_LIST(viewsize_Cbo),        LV_LIST(vidmode_Cbo),
};
#undef LV_LIST

std::vector<Text> Listed(const listing::SettingList& list, char decimalSeparator) {
    std::vector<Text> values;
    for (const char* const value : list.Values) {
        values.emplace_back(value);
        std::replace(values.back().begin(), values.back().end(), '.', decimalSeparator);
    }
    return values;
}

void ExpectListed(const ScriptSettings& settings, char decimalSeparator) {
    for (const auto& list : kSettingLists) {
        EXPECT_EQ((settings.*kNumericLists.at(list.Name)).Items, Listed(list, decimalSeparator)) << list.Name;
    }
}

TEST(SettingListsTable, TheListingHoldsEachListOnce) {
    EXPECT_EQ(std::size(kSettingLists), 27u);
    EXPECT_EQ(kNumericLists.size(), 27u);
    for (const auto& list : kSettingLists) {
        EXPECT_TRUE(kNumericLists.contains(list.Name)) << list.Name;
    }
}

TEST(SettingListsTable, EachListOffersTheListedValuesWithAPoint) {
    ScriptSettings settings;
    FillSettingLists(settings, '.');
    ExpectListed(settings, '.');
}

TEST(SettingListsTable, EachListOffersTheListedValuesWithAComma) {
    ScriptSettings settings;
    FillSettingLists(settings, ',');
    ExpectListed(settings, ',');
}

TEST(SettingListsTable, ASecondFillStartsFromTheSameValues) {
    ScriptSettings settings;
    FillSettingLists(settings, '.');
    for (const auto& [name, list] : kNumericLists) {
        (settings.*list).Items.emplace_back("0.333");
        (settings.*list).ListIndex = 0;
    }
    FillSettingLists(settings, '.');
    ExpectListed(settings, '.');
}

TEST(SettingListsTable, NothingIsSelectedAfterAFill) {
    ScriptSettings settings;
    FillSettingLists(settings, '.');
    for (const auto& [name, list] : kNumericLists) {
        (settings.*list).ListIndex = 1;
    }
    FillSettingLists(settings, '.');
    for (const auto& [name, list] : kNumericLists) {
        EXPECT_EQ((settings.*list).ListIndex, -1) << name;
    }
}

TEST(SettingListsTable, TheMouseFilterIsOffOrOn) {
    ScriptSettings settings;
    FillPageLists(settings, Game::Quake, Dialect::Quake, false);
    EXPECT_EQ(settings.m_filter_Cbo.Items, (std::vector<Text>{"0", "1"}));
}

}  // namespace
}  // namespace lv
