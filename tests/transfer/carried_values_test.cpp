#include "transfer/carried_values.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "launch/option_boxes.h"

namespace lv {

namespace {

using Values = std::vector<StoredValue>;

struct Row {
    const char* Section;
    const char* Key;
    Carried Goes;
    PathsIn Paths = PathsIn::kNowhere;
    std::optional<const char*> Missing = std::nullopt;
};

constexpr const char* kMemory =
    "8 megabytes;-winmem 8;12 megabytes;-winmem 12;16 megabytes;-winmem 16;24 megabytes;-winmem 24;32 "
    "megabytes;-winmem "
    "32;40 megabytes;-winmem 40;48 megabytes;-winmem 48";
constexpr const char* kDemos =
    "None;playdemo nodemo.dem;Quake Demo #1;playdemo demo1.dem;Quake Demo #2;playdemo demo2.dem;Quake Demo #3;playdemo "
    "demo3.dem;Quake ][ Demo #1;demomap demo1.dm2;Quake ][ Demo #2;demomap demo2.dm2";

using enum Carried;

constexpr Row kRows[] = {
    {"Options", "Executables", kYes, PathsIn::kFields, ""},
    {"Options", "ExecutablesPos", kYes, PathsIn::kNowhere, "0"},
    {"Options", "Games", kYes, PathsIn::kNowhere, ""},
    {"Options", "GamesPos", kYes, PathsIn::kNowhere, "0"},
    {"Options", "Scripts", kYes, PathsIn::kFields, ""},
    {"Options", "NetServers", kYes, PathsIn::kNowhere, ""},
    {"Options", "Demos", kYes, PathsIn::kNowhere, kDemos},
    {"Options", "DemoPos", kYes, PathsIn::kNowhere, "0"},
    {"Options", "Memory", kYes, PathsIn::kNowhere, kMemory},
    {"Options", "MemoryPos", kYes, PathsIn::kNowhere, "2"},
    {"Options", "UseGames", kYes, PathsIn::kNowhere, "1"},
    {"Options", "UseScripts", kYes, PathsIn::kNowhere, "0"},
    {"Options", "UseServers", kYes, PathsIn::kNowhere, "0"},
    {"Options", "UseDemos", kYes, PathsIn::kNowhere, "1"},
    {"Options", "UseMemory", kYes, PathsIn::kNowhere, "1"},
    {"Options", "Dedicated", kYes, PathsIn::kNowhere, "0"},
    {"Options", "Listen", kYes, PathsIn::kNowhere, "0"},
    {"Options", "QSpy", kYes, PathsIn::kNowhere, "0"},
    {"Options", "LaunchQSpy", kYes, PathsIn::kNowhere, "0"},
    {"Options", "NoLAN", kYes, PathsIn::kNowhere, "0"},
    {"Options", "NoUDP", kYes, PathsIn::kNowhere, "0"},
    {"Options", "NoCDAudio", kYes, PathsIn::kNowhere, "0"},
    {"Options", "EndOnLaunch", kYes, PathsIn::kNowhere, "0"},
    {"Options", "ShowEnvSettings", kYes, PathsIn::kNowhere, "0"},
    {"Options", "UseCustomCommandLine", kYes, PathsIn::kNowhere, "0"},
    {"Options", "CustomCommandLineText", kYes, PathsIn::kNowhere, ""},
    {"Options", "ScriptEditor", kIfThere, PathsIn::kWhole},
    {"Options", "GameSpyLocation", kIfThere, PathsIn::kWhole},
    {"Options", "VideoProfileList", kYes, PathsIn::kNowhere, ""},
    {"Options", "VideoProfilePos", kYes, PathsIn::kNowhere, "0"},
    {"Options", "VidCard", kYes, PathsIn::kNowhere, ""},
    {"Options", "ShowAll", kNo},
    {"Options", "OnTop", kNo},
    {"Options", "*", kYes},
    {"LV-Stuff", "VP_Version", kYes, PathsIn::kNowhere, "0"},
    {"LV-Stuff", "NVC_Version", kYes, PathsIn::kNowhere, "0"},
    {"LV-Stuff", "*", kNo},
    {"DefaultScript", "*", kYes, PathsIn::kKeyToo},
    {"ShowMessage", "*", kYes},
    {"SetupFoundry", "*", kYes},
    {"Setups", "*", kYes, PathsIn::kSetup},
    {"Engines", "Seats", kYes, PathsIn::kFields, ""},
    {"Engines", "*", kNo},
    {"LinkedTrees", "*", kNo},
    {"LinksLeftOut", "*", kNo},
    {"", "*", kYes},
};

bool Goes(TextView section, TextView key, const std::vector<Text>& profiles = {}) {
    const CarriedRule* const rule = RuleOf(profiles, section, key);
    return rule != nullptr && rule->Goes != kNo;
}

}  // namespace

TEST(CarriedValues, HaveTheseRules) {
    const auto rules = CarriedRules();
    ASSERT_EQ(rules.size(), std::size(kRows));
    for (std::size_t i = 0; i < rules.size(); ++i) {
        SCOPED_TRACE(Join(kRows[i].Section, " ", kRows[i].Key));
        EXPECT_EQ(rules[i].Section, kRows[i].Section);
        EXPECT_EQ(rules[i].Key, kRows[i].Key);
        EXPECT_EQ(rules[i].Goes, kRows[i].Goes);
        EXPECT_EQ(rules[i].Paths, kRows[i].Paths);
        EXPECT_EQ(rules[i].Missing.has_value(), kRows[i].Missing.has_value());
        EXPECT_EQ(rules[i].Missing.value_or("-"), kRows[i].Missing.value_or("-"));
    }
}

TEST(CarriedValues, KnowWhatEachBoxIsWithoutAValue) {
    for (const OptionBox& box : OptionBoxes()) {
        if (*box.Key != '\0') {
            const CarriedRule* const rule = RuleOf({}, "Options", box.Key);
            ASSERT_NE(rule, nullptr) << box.Key;
            EXPECT_EQ(rule->Missing.value_or("-"), std::to_string(box.Default)) << box.Key;
        }
    }
}

TEST(CarriedValues, GoByNamesInAnyLetterCase) {
    EXPECT_TRUE(Goes("OPTIONS", "games"));
    EXPECT_TRUE(Goes("options", "Qspy"));
    EXPECT_FALSE(Goes("options", "ONTOP"));
    EXPECT_FALSE(Goes("lv-stuff", "runcount"));
}

TEST(CarriedValues, LeaveWhatIsOfThisMachine) {
    for (const char* const key : {"FirstTime", "FirstRunOn", "RunCount", "LaunchCount", "FollowedLinks"}) {
        EXPECT_FALSE(Goes("LV-Stuff", key)) << key;
    }
    for (const char* const section :
         {"LV_Frm", "VideoProfile_Frm", "Path_Frm", "Fig_Frm", "Handbook_Frm", "Elsewhere"}) {
        EXPECT_FALSE(Goes(section, "Top")) << section;
    }
    EXPECT_FALSE(Goes("Engines", "Advised"));
    EXPECT_FALSE(Goes("LinkedTrees", "quake-1"));
    EXPECT_FALSE(Goes("LinksLeftOut", "quake-1"));
}

TEST(CarriedValues, TakeTheSectionsOfListedVideoProfilesAlong) {
    const Values values = {{"Options", "VideoProfileList", "Base;Fast ; Mes R\xC9glages;Default"}};
    const std::vector<Text> profiles = ProfileNames(values);
    EXPECT_EQ(profiles, (std::vector<Text>{"base", "default", "fast", "mes r\xE9glages"}));
    EXPECT_TRUE(Goes("FAST", "UseRez", profiles));
    EXPECT_TRUE(Goes("mes R\xE9GLAGES", "UseRez", profiles));
    EXPECT_FALSE(Goes("Slow", "UseRez", profiles));
    EXPECT_TRUE(ProfileNames({}).empty());
}

TEST(CarriedValues, LetNoProfileGoByTheNameOfAnotherSection) {
    const Values values = {
        {"Options", "VideoProfileList", "LV-Stuff;LV_Frm;LinkedTrees;path_FRM;Engines;Options;Mine"}};
    const std::vector<Text> profiles = ProfileNames(values);
    EXPECT_EQ(profiles, std::vector<Text>{"mine"});
    EXPECT_FALSE(Goes("LV-Stuff", "RunCount", profiles));
    EXPECT_FALSE(Goes("LV_Frm", "Top", profiles));
}

TEST(CarriedValues, AreSortedAndEachThereOnce) {
    const Values values = {{"ShowMessage", "b", "1"}, {"Options", "Zoo", "1"},
                           {"options", "apple", "2"}, {"OPTIONS", "APPLE", "3"},
                           {"LV_Frm", "Top", "4"},    {"Fast", "UseRez", "5"},
                           {"Slow", "UseRez", "6"},   {"Options", "VideoProfileList", "Fast"}};
    EXPECT_EQ(CarriedOf(values), (Values{{"Fast", "UseRez", "5"},
                                         {"options", "apple", "2"},
                                         {"Options", "VideoProfileList", "Fast"},
                                         {"Options", "Zoo", "1"},
                                         {"ShowMessage", "b", "1"}}));
}

TEST(CarriedValues, NameWhatNoFileCanHold) {
    const Values values = {{"Options", "Long", Text(16001, 'x')},
                           {"DefaultScript", Text(256, 'k'), "v"},
                           {"LV_Frm", "Long", Text(16001, 'x')},
                           {"Options", "Games", "g"}};
    std::vector<Text> leftOut;
    EXPECT_EQ(CarriedOf(values, &leftOut), (Values{{"Options", "Games", "g"}}));
    EXPECT_EQ(leftOut, (std::vector<Text>{"Options\\Long", Join("DefaultScript\\", Text(256, 'k'))}));
}

TEST(CarriedValues, AreFoundInAnyLetterCase) {
    const Values values = {{"Options", "Games", "g"}};
    ASSERT_NE(FindValue(values, "OPTIONS", "games"), nullptr);
    EXPECT_EQ(FindValue(values, "OPTIONS", "games")->Value, "g");
    EXPECT_EQ(FindValue(values, "Options", "Game"), nullptr);
}

}  // namespace lv
