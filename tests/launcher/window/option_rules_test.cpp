#include "launcher/window/option_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace lv {
namespace {

using Box = CheckBox LV_Frm::*;

std::set<Text> NamesExcludedBy(Box box) {
    std::set<Text> names;
    for (const Box excluded : ExcludedBy(box)) {
        names.insert(OptionBoxOf(excluded).Name);
    }
    return names;
}

TEST(ExcludedBy, HoldsEachRowOfTheTable) {
    using Names = std::set<Text>;
    EXPECT_EQ(NamesExcludedBy(&LV_Frm::Server_Chk),
              (Names{"Dedicated_Chk", "Listen_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Demo_Chk", "Bench_Chk", "Map_Chk"}));
    EXPECT_EQ(NamesExcludedBy(&LV_Frm::QSpy_Chk), (Names{"Server_Chk", "Dedicated_Chk", "Listen_Chk", "LaunchQspy_Chk",
                                                         "Demo_Chk", "Bench_Chk", "Map_Chk"}));
    EXPECT_EQ(NamesExcludedBy(&LV_Frm::Dedicated_Chk),
              (Names{"Server_Chk", "Listen_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Demo_Chk", "Bench_Chk"}));
    EXPECT_EQ(NamesExcludedBy(&LV_Frm::Listen_Chk),
              (Names{"Server_Chk", "Dedicated_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Demo_Chk", "Bench_Chk"}));
    EXPECT_EQ(NamesExcludedBy(&LV_Frm::Demo_Chk),
              (Names{"Server_Chk", "Dedicated_Chk", "Listen_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Bench_Chk"}));
    EXPECT_EQ(NamesExcludedBy(&LV_Frm::LaunchQspy_Chk), (Names{"Server_Chk", "Dedicated_Chk", "Listen_Chk", "QSpy_Chk",
                                                               "Demo_Chk", "Bench_Chk", "Game_Chk", "Map_Chk"}));
    EXPECT_EQ(NamesExcludedBy(&LV_Frm::Map_Chk), (Names{"Server_Chk", "QSpy_Chk", "LaunchQspy_Chk", "Bench_Chk"}));
    EXPECT_TRUE(NamesExcludedBy(&LV_Frm::Bench_Chk).empty());
    EXPECT_TRUE(NamesExcludedBy(&LV_Frm::NOLAN_Chk).empty());
}

struct OptionCase {
    const char* Name;
    const char* Caption;
    const char* Key;
    int Default;
    const char* ToolTip;
};

constexpr const char* kBench = "Check to run the standard benchmark video frame rate test";

constexpr OptionCase kOptionCases[] = {
    {"Memory_Chk", "", "UseMemory", 1, "Check to activate the selected memory usage amount"},
    {"Game_Chk", "", "UseGames", 1, "Check to activate the selected game modification"},
    {"Script_Chk", "", "UseScripts", 0, "Check to activate the selected player script"},
    {"Demo_Chk", "", "UseDemos", 1, "Check to activate the selected demo"},
    {"Server_Chk", "", "UseServers", 0, "Check to activate the connection to the selected server"},
    {"Dedicated_Chk", "&Dedicated", "Dedicated", 0, "Check to launch a dedicated server (you do not play)"},
    {"Listen_Chk", "&Listen", "Listen", 0, "Check to launch a listen server (you play too)"},
    {"Map_Chk", "", "", 0, "Check to launch to the selected map"},
    {"QSpy_Chk", "  &Connect To Current GameSpy Server", "Qspy", 0,
     "Check to connect to the currently selected GameSpy server"},
    {"LaunchQspy_Chk", "  Configure and Launch Game&Spy", "LaunchQSpy", 0,
     "Check to configure GameSpy with your Lorvane settings"},
    {"Bench_Chk", "Run standard benchmark", "", 0, kBench},
    {"NOLAN_Chk", "Disable Network", "NoLAN", 0, "Check to disable all network support"},
    {"NOUDP_Chk", "Disable TCP/IP", "NoUDP", 0, "Check to disable TCP/IP support"},
    {"NOCDAUDIO_Chk", "Disable CD Audio", "NoCDAudio", 0, "Check to disable CD audio"},
    {"nosound_chk", "Disable Sound", "", 0, "Check to disable sound"},
    {"ShowSet_Chk", "", "ShowEnvSettings", 0, ""},
    {"EndOnLaunch_Chk", "Exit on Launch", "EndOnLaunch", 0, ""},
    {"CommandLineAdditions_Chk", "", "UseCustomCommandLine", 0, "Check to add this text to the command line"},
    {"UnrealSimulateFirstRun_Chk", "Simulate First Run", "", 0, kBench},
    {"UnrealDisableLogWindow_Chk", "Disable Log Window", "", 0, kBench},
    {"UnrealDisableK6Support_Chk", "Disable K6 Support", "", 0, kBench},
    {"UnrealDisableMMXSupport_Chk", "Disable MMX Support", "", 0, kBench},
    {"UnrealNoDirectSound_Chk", "Disable DirectSound", "", 0, kBench},
    {"UnrealNoCDNeeded_Chk", "No CD Needed", "", 0, "Check to have Unreal read the CD's files from its own directory"},
};

TEST(OptionBoxes, HoldsEachRowOfTheTable) {
    ASSERT_EQ(OptionBoxesEnd() - OptionBoxesBegin(), static_cast<std::ptrdiff_t>(std::size(kOptionCases)));
    const LV_Frm window;
    for (const OptionCase& expected : kOptionCases) {
        const OptionBox* row = std::find_if(OptionBoxesBegin(), OptionBoxesEnd(),
                                            [&](const OptionBox& one) { return Text(one.Name) == expected.Name; });
        ASSERT_NE(row, OptionBoxesEnd()) << expected.Name;
        EXPECT_STREQ(row->Key, expected.Key) << expected.Name;
        EXPECT_EQ(row->Default, expected.Default) << expected.Name;
        EXPECT_EQ((window.*row->Box).Caption, expected.Caption) << expected.Name;
        EXPECT_EQ((window.*row->Box).ToolTip, expected.ToolTip) << expected.Name;
    }
}

TEST(LV_Frm, HasEachPanelsTitle) {
    const LV_Frm window;
    EXPECT_EQ(window.Exe_Pan.Caption, "  Game Executable");
    EXPECT_EQ(window.Mod_Pan.Caption, "  Modification Subdirectory");
    EXPECT_EQ(window.Memory_Pan.Caption, "  Memory Usage");
    EXPECT_EQ(window.PlayerScript_Pan.Caption, "  Player Script");
    EXPECT_EQ(window.Demo_Pan.Caption, "  Default Demo");
    EXPECT_EQ(window.Server_Pan.Caption, "  Server and/or Start Map");
    EXPECT_EQ(window.VideoProfile_Pan.Caption, "  Video Profiles");
    EXPECT_EQ(window.QSpy_Pan.Caption, "  GameSpy 3D Integration");
    EXPECT_EQ(window.OtherOpts_Pan.Caption, "  Other Options");
    EXPECT_EQ(window.Command_Pan.Caption, " Command Center");
}

TEST(LV_Frm, NamesItsListOfVideoProfiles) {
    EXPECT_EQ(LV_Frm().VideoProfiles_Cbo.ToolTip, "List of video profiles");
}

TEST(LV_Frm, NamesItsLaunchButtons) {
    const LV_Frm window;
    EXPECT_EQ(window.DoIt_Cmd[0].ToolTip, "Click to launch your game [F2]");
    EXPECT_EQ(window.DoIt_Cmd[1].Caption, "&View");
    EXPECT_EQ(window.DoIt_Cmd[1].ToolTip, "Click to create and view the launch files");
    EXPECT_EQ(window.DoIt_Cmd[2].Caption, "&Create Only");
    EXPECT_EQ(window.DoIt_Cmd[2].ToolTip, "Click to create launch files, but not launch");
    EXPECT_EQ(window.EndOnLaunch_Chk.Caption, "Exit on Launch");
    EXPECT_EQ(window.Exe_Cbo.ToolTip, "List of recognized games");
}

constexpr PanelGame kQuake = {Game::Quake, Dialect::Quake, false, false};
constexpr PanelGame kQuakeWorld = {Game::Quake, Dialect::Quake, true, false};
constexpr PanelGame kQuake2 = {Game::Quake2, Dialect::Quake2, false, false};
constexpr PanelGame kUnreal = {Game::Unreal, Dialect::Unreal, false, false};

LV_Frm WithTicked(std::initializer_list<Box> boxes) {
    LV_Frm window;
    for (const Box box : boxes) {
        (window.*box).Value = 1;
    }
    return window;
}

TEST(ApplyGamePanels, TakesFromAQuakeWorldClientWhatItCannotDo) {
    LV_Frm window =
        WithTicked({&LV_Frm::Demo_Chk, &LV_Frm::Bench_Chk, &LV_Frm::Game_Chk, &LV_Frm::Map_Chk, &LV_Frm::Memory_Chk});
    ApplyGamePanels(window, kQuakeWorld);
    EXPECT_EQ(window.Demo_Chk.Value, 0);
    EXPECT_EQ(window.Game_Chk.Value, 0);
    for (const Box box : {&LV_Frm::Bench_Chk, &LV_Frm::Map_Chk}) {
        EXPECT_EQ((window.*box).Value, 0) << OptionBoxOf(box).Name;
        EXPECT_FALSE((window.*box).Enabled) << OptionBoxOf(box).Name;
    }
    EXPECT_FALSE(window.Listen_Chk.Enabled);
    EXPECT_FALSE(window.Dedicated_Chk.Enabled);
    EXPECT_EQ(window.Memory_Chk.Value, 1);
}

TEST(ApplyGamePanels, LeavesAQuakeWorldClientItsModificationsAndDemos) {
    LV_Frm window;
    ApplyGamePanels(window, kQuakeWorld);
    EXPECT_TRUE(window.Game_Chk.Enabled);
    EXPECT_TRUE(window.Mod_Pan.Enabled);
    EXPECT_TRUE(window.Demo_Pan.Enabled);
}

TEST(ApplyGamePanels, LeavesAHexenWorldClientTheListenServerToo) {
    LV_Frm window = WithTicked({&LV_Frm::Demo_Chk});
    ApplyGamePanels(window, {Game::Hexen2, Dialect::Quake, false, true});
    EXPECT_EQ(window.Demo_Chk.Value, 0);
    EXPECT_TRUE(window.Demo_Pan.Enabled);
    EXPECT_TRUE(window.Game_Chk.Enabled);
    EXPECT_TRUE(window.Listen_Chk.Enabled);
    EXPECT_FALSE(window.Dedicated_Chk.Enabled);
    EXPECT_FALSE(window.Bench_Chk.Enabled);
    EXPECT_FALSE(window.Map_Chk.Enabled);
}

TEST(ApplyGamePanels, GivesEverythingBackForQuake) {
    LV_Frm window;
    ApplyGamePanels(window, kQuakeWorld);
    ApplyGamePanels(window, kQuake);
    EXPECT_TRUE(window.Demo_Pan.Enabled);
    for (const Box box : {&LV_Frm::Listen_Chk, &LV_Frm::Dedicated_Chk, &LV_Frm::Bench_Chk, &LV_Frm::Game_Chk,
                          &LV_Frm::Map_Chk, &LV_Frm::NOLAN_Chk, &LV_Frm::NOUDP_Chk}) {
        EXPECT_TRUE((window.*box).Enabled) << OptionBoxOf(box).Name;
    }
}

TEST(ApplyGamePanels, KeepsTheModificationTickBetweenTwoGamesOfOneKind) {
    LV_Frm window = WithTicked({&LV_Frm::Game_Chk});
    ApplyGamePanels(window, kQuake);
    EXPECT_EQ(window.Game_Chk.Value, 1);
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
    LV_Frm window = WithTicked({&LV_Frm::Game_Chk});
    ApplyGamePanels(window, kUnreal);
    EXPECT_EQ(window.Game_Chk.Value, 2);
    EXPECT_EQ(window.Demo_Chk.Value, 0);
    EXPECT_FALSE(window.Mod_Pan.Enabled);
    EXPECT_FALSE(window.Demo_Pan.Enabled);
    EXPECT_FALSE(window.Listen_Chk.Enabled);
}

TEST(ApplyGamePanels, LeavesUnrealItsMemory) {
    LV_Frm window = WithTicked({&LV_Frm::Memory_Chk});
    ApplyGamePanels(window, kUnreal);
    EXPECT_EQ(window.Memory_Chk.Value, 1);
    EXPECT_TRUE(window.Memory_Pan.Enabled);
    EXPECT_TRUE(window.Bar(MenuItem::Mem_Bar).Enabled);
}

TEST(ApplyGamePanels, TicksAgainBehindUnrealWhatWasGreyed) {
    LV_Frm window = WithTicked({&LV_Frm::Memory_Chk, &LV_Frm::Game_Chk, &LV_Frm::Demo_Chk});
    ApplyGamePanels(window, kUnreal);
    ApplyGamePanels(window, kQuake);
    EXPECT_EQ(window.Memory_Chk.Value, 1);
    EXPECT_EQ(window.Game_Chk.Value, 1);
    EXPECT_EQ(window.Demo_Chk.Value, 1);
    EXPECT_TRUE(window.Memory_Pan.Enabled);
    EXPECT_TRUE(window.Mod_Pan.Enabled);
    EXPECT_TRUE(window.Bar(MenuItem::Mem_Bar).Enabled);
}

TEST(ApplyGamePanels, ChangesTheOptionsForUnreal) {
    LV_Frm window = WithTicked({&LV_Frm::NOCDAUDIO_Chk, &LV_Frm::NOUDP_Chk, &LV_Frm::NOLAN_Chk, &LV_Frm::Bench_Chk});
    ApplyGamePanels(window, kUnreal);
    for (const Box box : {&LV_Frm::NOCDAUDIO_Chk, &LV_Frm::NOUDP_Chk, &LV_Frm::NOLAN_Chk, &LV_Frm::Bench_Chk}) {
        EXPECT_EQ((window.*box).Value, 0) << OptionBoxOf(box).Name;
        EXPECT_FALSE((window.*box).Visible) << OptionBoxOf(box).Name;
    }
    for (const Box box :
         {&LV_Frm::UnrealSimulateFirstRun_Chk, &LV_Frm::UnrealDisableLogWindow_Chk, &LV_Frm::UnrealDisableK6Support_Chk,
          &LV_Frm::UnrealDisableMMXSupport_Chk, &LV_Frm::UnrealNoDirectSound_Chk, &LV_Frm::UnrealNoCDNeeded_Chk}) {
        EXPECT_TRUE((window.*box).Visible) << OptionBoxOf(box).Name;
    }
    ApplyGamePanels(window, kQuake);
    EXPECT_TRUE(window.Bench_Chk.Visible);
    EXPECT_TRUE(window.NOLAN_Chk.Visible);
    EXPECT_FALSE(window.UnrealNoDirectSound_Chk.Visible);
}

TEST(ApplyGamePanels, KeepsListenDisabledForQuakeWorldAlsoAfterLeavingUnreal) {
    LV_Frm window;
    ApplyGamePanels(window, kUnreal);
    ApplyGamePanels(window, kQuakeWorld);
    EXPECT_FALSE(window.Listen_Chk.Enabled);
    ApplyGamePanels(window, kQuake);
    EXPECT_TRUE(window.Listen_Chk.Enabled);
}

TEST(ApplyGamePanels, LeavesTheQuake2FamilyItsOwnMemoryAndNetwork) {
    LV_Frm window = WithTicked({&LV_Frm::NOLAN_Chk, &LV_Frm::NOUDP_Chk, &LV_Frm::Memory_Chk});
    ApplyGamePanels(window, kQuake2);
    EXPECT_EQ(window.NOLAN_Chk.Value, 0);
    EXPECT_FALSE(window.NOLAN_Chk.Enabled);
    EXPECT_EQ(window.NOUDP_Chk.Value, 0);
    EXPECT_FALSE(window.NOUDP_Chk.Enabled);
    EXPECT_EQ(window.Memory_Chk.Value, 2);
    EXPECT_FALSE(window.Memory_Pan.Enabled);
    EXPECT_FALSE(window.Bar(MenuItem::Mem_Bar).Enabled);
    ApplyGamePanels(window, kQuake);
    EXPECT_TRUE(window.NOLAN_Chk.Enabled);
    EXPECT_TRUE(window.NOCDAUDIO_Chk.Enabled);
    EXPECT_TRUE(window.nosound_chk.Enabled);
    EXPECT_TRUE(window.Memory_Pan.Enabled);
    EXPECT_TRUE(window.Bar(MenuItem::Mem_Bar).Enabled);
    EXPECT_EQ(window.Memory_Chk.Value, 1);
}

TEST(ApplyGamePanels, ChangesNothingTheSecondTime) {
    for (const PanelGame& game : {kQuake, kQuakeWorld, kQuake2, kUnreal}) {
        LV_Frm once = WithTicked({&LV_Frm::Memory_Chk, &LV_Frm::Demo_Chk, &LV_Frm::NOLAN_Chk});
        ApplyGamePanels(once, game);
        LV_Frm twice = once;
        ApplyGamePanels(twice, game);
        for (const OptionBox* option = OptionBoxesBegin(); option != OptionBoxesEnd(); ++option) {
            EXPECT_EQ((once.*option->Box).Value, (twice.*option->Box).Value) << option->Name;
            EXPECT_EQ((once.*option->Box).Enabled, (twice.*option->Box).Enabled) << option->Name;
        }
    }
}

}  // namespace
}  // namespace lv
