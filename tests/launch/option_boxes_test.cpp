#include "launch/option_boxes.h"

#include <gtest/gtest.h>

#include <iterator>

namespace lv {
namespace {

struct OptionCase {
    const char* Name;
    const char* Caption;
    const char* Key;
    int Default;
    const char* ToolTip;
    OptionGames Games = OptionGames::Every;
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
    {"Bench_Chk", "Run standard benchmark", "", 0, kBench, OptionGames::NotUnreal},
    {"NOLAN_Chk", "Disable Network", "NoLAN", 0, "Check to disable all network support", OptionGames::NotUnreal},
    {"NOUDP_Chk", "Disable TCP/IP", "NoUDP", 0, "Check to disable TCP/IP support", OptionGames::NotUnreal},
    {"NOCDAUDIO_Chk", "Disable CD Audio", "NoCDAudio", 0, "Check to disable CD audio", OptionGames::NotUnreal},
    {"nosound_chk", "Disable Sound", "", 0, "Check to disable sound"},
    {"ShowSet_Chk", "", "ShowEnvSettings", 0, ""},
    {"EndOnLaunch_Chk", "Exit on Launch", "EndOnLaunch", 0, ""},
    {"CommandLineAdditions_Chk", "", "UseCustomCommandLine", 0, "Check to add this text to the command line"},
    {"UnrealSimulateFirstRun_Chk", "Simulate First Run", "", 0, kBench, OptionGames::Unreal},
    {"UnrealDisableLogWindow_Chk", "Disable Log Window", "", 0, kBench, OptionGames::Unreal},
    {"UnrealDisableK6Support_Chk", "Disable K6 Support", "", 0, kBench, OptionGames::Unreal},
    {"UnrealDisableMMXSupport_Chk", "Disable MMX Support", "", 0, kBench, OptionGames::Unreal},
    {"UnrealNoDirectSound_Chk", "Disable DirectSound", "", 0, kBench, OptionGames::Unreal},
    {"UnrealNoCDNeeded_Chk", "No CD Needed", "", 0, "Check to have Unreal read the CD's files from its own directory",
     OptionGames::Unreal},
};

TEST(OptionBoxes, HoldEachRowOfTheTable) {
    ASSERT_EQ(OptionBoxes().size(), std::size(kOptionCases));
    for (std::size_t i = 0; i < std::size(kOptionCases); ++i) {
        const OptionBox& row = OptionBoxes()[i];
        const OptionCase& expected = kOptionCases[i];
        EXPECT_STREQ(row.Name, expected.Name);
        EXPECT_STREQ(row.Caption, expected.Caption) << expected.Name;
        EXPECT_STREQ(row.Key, expected.Key) << expected.Name;
        EXPECT_EQ(row.Default, expected.Default) << expected.Name;
        EXPECT_STREQ(row.ToolTip, expected.ToolTip) << expected.Name;
        EXPECT_EQ(row.Games, expected.Games) << expected.Name;
    }
}

TEST(OptionBoxOf, IsTheRowOfThatOption) {
    EXPECT_STREQ(OptionBoxOf(Option::Memory_Chk).Name, "Memory_Chk");
    EXPECT_STREQ(OptionBoxOf(Option::LaunchQspy_Chk).Name, "LaunchQspy_Chk");
    EXPECT_STREQ(OptionBoxOf(Option::nosound_chk).Name, "nosound_chk");
    EXPECT_STREQ(OptionBoxOf(Option::UnrealNoCDNeeded_Chk).Name, "UnrealNoCDNeeded_Chk");
    for (const OptionBox& row : OptionBoxes()) {
        EXPECT_EQ(OptionBoxOf(row.Box).Box, row.Box);
    }
}

TEST(OptionSet, HasWhatWasSetAndNothingElse) {
    OptionSet set = {Option::Memory_Chk, Option::UnrealNoCDNeeded_Chk};
    EXPECT_TRUE(set.Has(Option::Memory_Chk));
    EXPECT_TRUE(set.Has(Option::UnrealNoCDNeeded_Chk));
    EXPECT_FALSE(set.Has(Option::Game_Chk));
    set.Set(Option::Game_Chk);
    set.Set(Option::Memory_Chk, false);
    EXPECT_EQ(set, (OptionSet{Option::Game_Chk, Option::UnrealNoCDNeeded_Chk}));
    EXPECT_NE(set, OptionSet());
}

}  // namespace
}  // namespace lv
