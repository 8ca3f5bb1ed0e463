#include "launch/option_boxes.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace lv {

namespace {

constexpr const char* kBenchTip = "Check to run the standard benchmark video frame rate test";

// clang-format off
constexpr OptionBox kOptionBoxes[] = {
    {Option::Memory_Chk, "Memory_Chk", "", "UseMemory", 1, "Check to activate the selected memory usage amount"},
    {Option::Game_Chk, "Game_Chk", "", "UseGames", 1, "Check to activate the selected game modification"},
    {Option::Script_Chk, "Script_Chk", "", "UseScripts", 0, "Check to activate the selected player script"},
    {Option::Demo_Chk, "Demo_Chk", "", "UseDemos", 1, "Check to activate the selected demo"},
    {Option::Server_Chk, "Server_Chk", "", "UseServers", 0, "Check to activate the connection to the selected server"},
    {Option::Dedicated_Chk, "Dedicated_Chk", "&Dedicated", "Dedicated", 0, "Check to launch a dedicated server (you do not play)"},
    {Option::Listen_Chk, "Listen_Chk", "&Listen", "Listen", 0, "Check to launch a listen server (you play too)"},
    {Option::Map_Chk, "Map_Chk", "", "", 0, "Check to launch to the selected map"},
    // Written as "Qspy", read back as "QSpy": the store does not mind.
    {Option::QSpy_Chk, "QSpy_Chk", "  &Connect To Current GameSpy Server", "Qspy", 0, "Check to connect to the currently selected GameSpy server"},
    {Option::LaunchQspy_Chk, "LaunchQspy_Chk", "  Configure and Launch Game&Spy", "LaunchQSpy", 0, "Check to configure GameSpy with your Lorvane settings"},
    {Option::Bench_Chk, "Bench_Chk", "Run standard benchmark", "", 0, kBenchTip, OptionGames::NotUnreal},
    {Option::NOLAN_Chk, "NOLAN_Chk", "Disable Network", "NoLAN", 0, "Check to disable all network support", OptionGames::NotUnreal},
    {Option::NOUDP_Chk, "NOUDP_Chk", "Disable TCP/IP", "NoUDP", 0, "Check to disable TCP/IP support", OptionGames::NotUnreal},
    {Option::NOCDAUDIO_Chk, "NOCDAUDIO_Chk", "Disable CD Audio", "NoCDAudio", 0, "Check to disable CD audio", OptionGames::NotUnreal},
    {Option::nosound_chk, "nosound_chk", "Disable Sound", "", 0, "Check to disable sound"},
    {Option::ShowSet_Chk, "ShowSet_Chk", "", "ShowEnvSettings", 0, ""},
    {Option::EndOnLaunch_Chk, "EndOnLaunch_Chk", "Exit on Launch", "EndOnLaunch", 0, ""},
    {Option::CommandLineAdditions_Chk, "CommandLineAdditions_Chk", "", "UseCustomCommandLine", 0, "Check to add this text to the command line"},
    // These five carry the benchmark's tool tip; kept as it is.
    {Option::UnrealSimulateFirstRun_Chk, "UnrealSimulateFirstRun_Chk", "Simulate First Run", "", 0, kBenchTip, OptionGames::Unreal},
    {Option::UnrealDisableLogWindow_Chk, "UnrealDisableLogWindow_Chk", "Disable Log Window", "", 0, kBenchTip, OptionGames::Unreal},
    {Option::UnrealDisableK6Support_Chk, "UnrealDisableK6Support_Chk", "Disable K6 Support", "", 0, kBenchTip, OptionGames::Unreal},
    {Option::UnrealDisableMMXSupport_Chk, "UnrealDisableMMXSupport_Chk", "Disable MMX Support", "", 0, kBenchTip, OptionGames::Unreal},
    {Option::UnrealNoDirectSound_Chk, "UnrealNoDirectSound_Chk", "Disable DirectSound", "", 0, kBenchTip, OptionGames::Unreal},
    {Option::UnrealNoCDNeeded_Chk, "UnrealNoCDNeeded_Chk", "No CD Needed", "", 0, "Check to have Unreal read the CD's files from its own directory", OptionGames::Unreal},
};
// clang-format on

static_assert(std::size(kOptionBoxes) == kOptionCount);
static_assert(std::ranges::is_sorted(kOptionBoxes, std::less_equal(), &OptionBox::Box));  // each at its own index

}  // namespace

std::span<const OptionBox> OptionBoxes() {
    return kOptionBoxes;
}

const OptionBox& OptionBoxOf(Option option) {
    return kOptionBoxes[static_cast<std::size_t>(option)];
}

}  // namespace lv
