#include "launcher/window/lv_frm.h"

#include <algorithm>
#include <iterator>

namespace lv {

namespace {

constexpr const char* kBenchTip = "Check to run the standard benchmark video frame rate test";

// clang-format off
constexpr OptionBox kOptionBoxes[] = {
    {&LV_Frm::Memory_Chk, "Memory_Chk", "", "UseMemory", 1, "Check to activate the selected memory usage amount"},
    {&LV_Frm::Game_Chk, "Game_Chk", "", "UseGames", 1, "Check to activate the selected game modification"},
    {&LV_Frm::Script_Chk, "Script_Chk", "", "UseScripts", 0, "Check to activate the selected player script"},
    {&LV_Frm::Demo_Chk, "Demo_Chk", "", "UseDemos", 1, "Check to activate the selected demo"},
    {&LV_Frm::Server_Chk, "Server_Chk", "", "UseServers", 0, "Check to activate the connection to the selected server"},
    {&LV_Frm::Dedicated_Chk, "Dedicated_Chk", "&Dedicated", "Dedicated", 0, "Check to launch a dedicated server (you do not play)"},
    {&LV_Frm::Listen_Chk, "Listen_Chk", "&Listen", "Listen", 0, "Check to launch a listen server (you play too)"},
    {&LV_Frm::Map_Chk, "Map_Chk", "", "", 0, "Check to launch to the selected map"},
    // Written as "Qspy", read back as "QSpy": the store does not mind.
    {&LV_Frm::QSpy_Chk, "QSpy_Chk", "  &Connect To Current GameSpy Server", "Qspy", 0, "Check to connect to the currently selected GameSpy server"},
    {&LV_Frm::LaunchQspy_Chk, "LaunchQspy_Chk", "  Configure and Launch Game&Spy", "LaunchQSpy", 0, "Check to configure GameSpy with your Lorvane settings"},
    {&LV_Frm::Bench_Chk, "Bench_Chk", "Run standard benchmark", "", 0, kBenchTip},
    {&LV_Frm::NOLAN_Chk, "NOLAN_Chk", "Disable Network", "NoLAN", 0, "Check to disable all network support"},
    {&LV_Frm::NOUDP_Chk, "NOUDP_Chk", "Disable TCP/IP", "NoUDP", 0, "Check to disable TCP/IP support"},
    {&LV_Frm::NOCDAUDIO_Chk, "NOCDAUDIO_Chk", "Disable CD Audio", "NoCDAudio", 0, "Check to disable CD audio"},
    {&LV_Frm::nosound_chk, "nosound_chk", "Disable Sound", "", 0, "Check to disable sound"},
    {&LV_Frm::ShowSet_Chk, "ShowSet_Chk", "", "ShowEnvSettings", 0, ""},
    {&LV_Frm::EndOnLaunch_Chk, "EndOnLaunch_Chk", "Exit on Launch", "EndOnLaunch", 0, ""},
    {&LV_Frm::CommandLineAdditions_Chk, "CommandLineAdditions_Chk", "", "UseCustomCommandLine", 0, "Check to add this text to the command line"},
    // These five carry the benchmark's tool tip; kept as it is.
    {&LV_Frm::UnrealSimulateFirstRun_Chk, "UnrealSimulateFirstRun_Chk", "Simulate First Run", "", 0, kBenchTip},
    {&LV_Frm::UnrealDisableLogWindow_Chk, "UnrealDisableLogWindow_Chk", "Disable Log Window", "", 0, kBenchTip},
    {&LV_Frm::UnrealDisableK6Support_Chk, "UnrealDisableK6Support_Chk", "Disable K6 Support", "", 0, kBenchTip},
    {&LV_Frm::UnrealDisableMMXSupport_Chk, "UnrealDisableMMXSupport_Chk", "Disable MMX Support", "", 0, kBenchTip},
    {&LV_Frm::UnrealNoDirectSound_Chk, "UnrealNoDirectSound_Chk", "Disable DirectSound", "", 0, kBenchTip},
    {&LV_Frm::UnrealNoCDNeeded_Chk, "UnrealNoCDNeeded_Chk", "No CD Needed", "", 0, "Check to have Unreal read the CD's files from its own directory"},
};

struct PanelRow {
    Panel LV_Frm::*Pan;
    const char* Title;
};

constexpr PanelRow kPanels[] = {
    {&LV_Frm::Exe_Pan, "  Game Executable"},
    {&LV_Frm::Mod_Pan, "  Modification Subdirectory"},
    {&LV_Frm::Memory_Pan, "  Memory Usage"},
    {&LV_Frm::PlayerScript_Pan, "  Player Script"},
    {&LV_Frm::Demo_Pan, "  Default Demo"},
    {&LV_Frm::Server_Pan, "  Server and/or Start Map"},
    {&LV_Frm::VideoProfile_Pan, "  Video Profiles"},
    {&LV_Frm::QSpy_Pan, "  GameSpy 3D Integration"},
    {&LV_Frm::OtherOpts_Pan, "  Other Options"},
    {&LV_Frm::Command_Pan, " Command Center"},
};
// clang-format on

}  // namespace

LV_Frm::LV_Frm() {
    for (const PanelRow& row : kPanels) {
        (this->*row.Pan).Caption = row.Title;
    }
    for (const OptionBox& row : kOptionBoxes) {
        (this->*row.Box).Caption = row.Caption;
        (this->*row.Box).ToolTip = row.ToolTip;
    }
    for (CheckBox LV_Frm::*const box :
         {&LV_Frm::UnrealSimulateFirstRun_Chk, &LV_Frm::UnrealDisableLogWindow_Chk, &LV_Frm::UnrealDisableK6Support_Chk,
          &LV_Frm::UnrealDisableMMXSupport_Chk, &LV_Frm::UnrealNoDirectSound_Chk, &LV_Frm::UnrealNoCDNeeded_Chk}) {
        (this->*box).Visible = false;  // until Unreal is picked
    }
    Exe_Cbo.ToolTip = "List of recognized games";
    VideoProfiles_Cbo.ToolTip = "List of video profiles";
    DoIt_Cmd[0].Caption = "&Launch Me!";
    DoIt_Cmd[0].ToolTip = "Click to launch your game [F2]";
    DoIt_Cmd[1].Caption = "&View";
    DoIt_Cmd[1].ToolTip = "Click to create and view the launch files";
    DoIt_Cmd[2].Caption = "&Create Only";
    DoIt_Cmd[2].ToolTip = "Click to create launch files, but not launch";
    for (std::size_t i = 0; i < ButtonBar_Cmd.size(); ++i) {
        ButtonBar_Cmd[i].ToolTip = BarButtonRows()[i].ToolTip;
    }
}

const OptionBox* OptionBoxesBegin() {
    return std::begin(kOptionBoxes);
}

const OptionBox* OptionBoxesEnd() {
    return std::end(kOptionBoxes);
}

const OptionBox& OptionBoxOf(CheckBox LV_Frm::*box) {
    return *std::find_if(OptionBoxesBegin(), OptionBoxesEnd(), [box](const OptionBox& row) { return row.Box == box; });
}

}  // namespace lv
