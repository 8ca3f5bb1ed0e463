#include "launcher/window/option_rules.h"

#include <gtest/gtest.h>

#include <set>

namespace lv {
namespace {

std::set<Text> NamesExcludedBy(Option option) {
    std::set<Text> names;
    for (const OptionBox& row : OptionBoxes()) {
        if (ExcludedBy(option).Has(row.Box)) {
            names.insert(row.Name);
        }
    }
    return names;
}

TEST(ExcludedBy, HoldsEachRowOfTheTable) {
    using Names = std::set<Text>;
    EXPECT_EQ(NamesExcludedBy(Option::Server_Chk),
              (Names{"Dedicated_Chk", "Listen_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Demo_Chk", "Bench_Chk", "Map_Chk"}));
    EXPECT_EQ(NamesExcludedBy(Option::QSpy_Chk), (Names{"Server_Chk", "Dedicated_Chk", "Listen_Chk", "LaunchQspy_Chk",
                                                        "Demo_Chk", "Bench_Chk", "Map_Chk"}));
    EXPECT_EQ(NamesExcludedBy(Option::Dedicated_Chk),
              (Names{"Server_Chk", "Listen_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Demo_Chk", "Bench_Chk"}));
    EXPECT_EQ(NamesExcludedBy(Option::Listen_Chk),
              (Names{"Server_Chk", "Dedicated_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Demo_Chk", "Bench_Chk"}));
    EXPECT_EQ(NamesExcludedBy(Option::Demo_Chk),
              (Names{"Server_Chk", "Dedicated_Chk", "Listen_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Bench_Chk"}));
    EXPECT_EQ(NamesExcludedBy(Option::LaunchQspy_Chk), (Names{"Server_Chk", "Dedicated_Chk", "Listen_Chk", "QSpy_Chk",
                                                              "Demo_Chk", "Bench_Chk", "Game_Chk", "Map_Chk"}));
    EXPECT_EQ(NamesExcludedBy(Option::Map_Chk), (Names{"Server_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Bench_Chk"}));
    EXPECT_TRUE(NamesExcludedBy(Option::Bench_Chk).empty());
    EXPECT_TRUE(NamesExcludedBy(Option::NOLAN_Chk).empty());
}

constexpr PanelGame kQuake = {Game::Quake, Dialect::Quake, false, false};
constexpr PanelGame kQuakeWorld = {Game::Quake, Dialect::Quake, true, false};
constexpr PanelGame kQuake2 = {Game::Quake2, Dialect::Quake2, false, false};
constexpr PanelGame kUnreal = {Game::Unreal, Dialect::Unreal, false, false};

LV_Frm WithTicked(std::initializer_list<Option> options) {
    LV_Frm window;
    for (const Option option : options) {
        window.Box(option).Value = 1;
    }
    return window;
}

TEST(ApplyGamePanels, TakesFromAQuakeWorldClientWhatItCannotDo) {
    LV_Frm window =
        WithTicked({Option::Demo_Chk, Option::Bench_Chk, Option::Game_Chk, Option::Map_Chk, Option::Memory_Chk});
    ApplyGamePanels(window, kQuakeWorld);
    EXPECT_EQ(window.Box(Option::Demo_Chk).Value, 0);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 0);
    for (const Option option : {Option::Bench_Chk, Option::Map_Chk}) {
        EXPECT_EQ(window.Box(option).Value, 0) << OptionBoxOf(option).Name;
        EXPECT_FALSE(window.Box(option).Enabled) << OptionBoxOf(option).Name;
    }
    EXPECT_FALSE(window.Box(Option::Listen_Chk).Enabled);
    EXPECT_FALSE(window.Box(Option::Dedicated_Chk).Enabled);
    EXPECT_EQ(window.Box(Option::Memory_Chk).Value, 1);
}

TEST(ApplyGamePanels, LeavesAQuakeWorldClientItsModificationsAndDemos) {
    LV_Frm window;
    ApplyGamePanels(window, kQuakeWorld);
    EXPECT_TRUE(window.Box(Option::Game_Chk).Enabled);
    EXPECT_TRUE(window.Mod_Pan.Enabled);
    EXPECT_TRUE(window.Demo_Pan.Enabled);
}

TEST(ApplyGamePanels, LeavesAHexenWorldClientTheListenServerToo) {
    LV_Frm window = WithTicked({Option::Demo_Chk});
    ApplyGamePanels(window, {Game::Hexen2, Dialect::Quake, false, true});
    EXPECT_EQ(window.Box(Option::Demo_Chk).Value, 0);
    EXPECT_TRUE(window.Demo_Pan.Enabled);
    EXPECT_TRUE(window.Box(Option::Game_Chk).Enabled);
    EXPECT_TRUE(window.Box(Option::Listen_Chk).Enabled);
    EXPECT_FALSE(window.Box(Option::Dedicated_Chk).Enabled);
    EXPECT_FALSE(window.Box(Option::Bench_Chk).Enabled);
    EXPECT_FALSE(window.Box(Option::Map_Chk).Enabled);
}

TEST(ApplyGamePanels, GivesEverythingBackForQuake) {
    LV_Frm window;
    ApplyGamePanels(window, kQuakeWorld);
    ApplyGamePanels(window, kQuake);
    EXPECT_TRUE(window.Demo_Pan.Enabled);
    for (const Option option : {Option::Listen_Chk, Option::Dedicated_Chk, Option::Bench_Chk, Option::Game_Chk,
                                Option::Map_Chk, Option::NOLAN_Chk, Option::NOUDP_Chk}) {
        EXPECT_TRUE(window.Box(option).Enabled) << OptionBoxOf(option).Name;
    }
}

TEST(ApplyGamePanels, KeepsTheModificationTickBetweenTwoGamesOfOneKind) {
    LV_Frm window = WithTicked({Option::Game_Chk});
    ApplyGamePanels(window, kQuake);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
}

TEST(ApplyGamePanels, LaysTheRightColumnOutForUnreal) {
    LV_Frm window;
    ApplyGamePanels(window, kUnreal);
    EXPECT_EQ(window.Server_Pan.Top, 0);
    EXPECT_EQ(window.QSpy_Pan.Top, 2340);
    EXPECT_EQ(window.OtherOpts_Pan.Top, 3360);
    EXPECT_EQ(window.OtherOpts_Pan.Height, 2535);
}

TEST(ApplyGamePanels, LaysTheRightColumnOutForTheOthers) {
    LV_Frm window;
    ApplyGamePanels(window, kUnreal);
    ApplyGamePanels(window, kQuake);
    EXPECT_EQ(window.Server_Pan.Top, 1320);
    EXPECT_EQ(window.QSpy_Pan.Top, 3660);
    EXPECT_EQ(window.OtherOpts_Pan.Top, 4680);
    EXPECT_EQ(window.OtherOpts_Pan.Height, 1215);
}

TEST(ApplyGamePanels, GreysForUnrealWhatItRemembers) {
    LV_Frm window = WithTicked({Option::Game_Chk});
    ApplyGamePanels(window, kUnreal);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 2);
    EXPECT_EQ(window.Box(Option::Demo_Chk).Value, 0);
    EXPECT_FALSE(window.Mod_Pan.Enabled);
    EXPECT_FALSE(window.Demo_Pan.Enabled);
    EXPECT_FALSE(window.Box(Option::Listen_Chk).Enabled);
}

TEST(ApplyGamePanels, LeavesUnrealItsMemory) {
    LV_Frm window = WithTicked({Option::Memory_Chk});
    ApplyGamePanels(window, kUnreal);
    EXPECT_EQ(window.Box(Option::Memory_Chk).Value, 1);
    EXPECT_TRUE(window.Memory_Pan.Enabled);
    EXPECT_TRUE(window.Bar(MenuItem::Mem_Bar).Enabled);
}

TEST(ApplyGamePanels, TicksAgainBehindUnrealWhatWasGreyed) {
    LV_Frm window = WithTicked({Option::Memory_Chk, Option::Game_Chk, Option::Demo_Chk});
    ApplyGamePanels(window, kUnreal);
    ApplyGamePanels(window, kQuake);
    EXPECT_EQ(window.Box(Option::Memory_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Demo_Chk).Value, 1);
    EXPECT_TRUE(window.Memory_Pan.Enabled);
    EXPECT_TRUE(window.Mod_Pan.Enabled);
    EXPECT_TRUE(window.Bar(MenuItem::Mem_Bar).Enabled);
}

TEST(ApplyGamePanels, ChangesTheOptionsForUnreal) {
    LV_Frm window = WithTicked({Option::NOCDAUDIO_Chk, Option::NOUDP_Chk, Option::NOLAN_Chk, Option::Bench_Chk});
    ApplyGamePanels(window, kUnreal);
    for (const Option option : {Option::NOCDAUDIO_Chk, Option::NOUDP_Chk, Option::NOLAN_Chk, Option::Bench_Chk}) {
        EXPECT_EQ(window.Box(option).Value, 0) << OptionBoxOf(option).Name;
        EXPECT_FALSE(window.Box(option).Visible) << OptionBoxOf(option).Name;
    }
    for (const Option option :
         {Option::UnrealSimulateFirstRun_Chk, Option::UnrealDisableLogWindow_Chk, Option::UnrealDisableK6Support_Chk,
          Option::UnrealDisableMMXSupport_Chk, Option::UnrealNoDirectSound_Chk, Option::UnrealNoCDNeeded_Chk}) {
        EXPECT_TRUE(window.Box(option).Visible) << OptionBoxOf(option).Name;
    }
    ApplyGamePanels(window, kQuake);
    EXPECT_TRUE(window.Box(Option::Bench_Chk).Visible);
    EXPECT_TRUE(window.Box(Option::NOLAN_Chk).Visible);
    EXPECT_FALSE(window.Box(Option::UnrealNoDirectSound_Chk).Visible);
}

TEST(ApplyGamePanels, KeepsListenDisabledForQuakeWorldAlsoAfterLeavingUnreal) {
    LV_Frm window;
    ApplyGamePanels(window, kUnreal);
    ApplyGamePanels(window, kQuakeWorld);
    EXPECT_FALSE(window.Box(Option::Listen_Chk).Enabled);
    ApplyGamePanels(window, kQuake);
    EXPECT_TRUE(window.Box(Option::Listen_Chk).Enabled);
}

TEST(ApplyGamePanels, LeavesTheQuake2FamilyItsOwnMemoryAndNetwork) {
    LV_Frm window = WithTicked({Option::NOLAN_Chk, Option::NOUDP_Chk, Option::Memory_Chk});
    ApplyGamePanels(window, kQuake2);
    EXPECT_EQ(window.Box(Option::NOLAN_Chk).Value, 0);
    EXPECT_FALSE(window.Box(Option::NOLAN_Chk).Enabled);
    EXPECT_EQ(window.Box(Option::NOUDP_Chk).Value, 0);
    EXPECT_FALSE(window.Box(Option::NOUDP_Chk).Enabled);
    EXPECT_EQ(window.Box(Option::Memory_Chk).Value, 2);
    EXPECT_FALSE(window.Memory_Pan.Enabled);
    EXPECT_FALSE(window.Bar(MenuItem::Mem_Bar).Enabled);
    ApplyGamePanels(window, kQuake);
    EXPECT_TRUE(window.Box(Option::NOLAN_Chk).Enabled);
    EXPECT_TRUE(window.Box(Option::NOCDAUDIO_Chk).Enabled);
    EXPECT_TRUE(window.Box(Option::nosound_chk).Enabled);
    EXPECT_TRUE(window.Memory_Pan.Enabled);
    EXPECT_TRUE(window.Bar(MenuItem::Mem_Bar).Enabled);
    EXPECT_EQ(window.Box(Option::Memory_Chk).Value, 1);
}

TEST(ApplyGamePanels, ChangesNothingTheSecondTime) {
    for (const PanelGame& game : {kQuake, kQuakeWorld, kQuake2, kUnreal}) {
        LV_Frm once = WithTicked({Option::Memory_Chk, Option::Demo_Chk, Option::NOLAN_Chk});
        ApplyGamePanels(once, game);
        LV_Frm twice = once;
        ApplyGamePanels(twice, game);
        for (const OptionBox& option : OptionBoxes()) {
            EXPECT_EQ(once.Box(option.Box).Value, twice.Box(option.Box).Value) << option.Name;
            EXPECT_EQ(once.Box(option.Box).Enabled, twice.Box(option.Box).Enabled) << option.Name;
        }
    }
}

}  // namespace
}  // namespace lv
