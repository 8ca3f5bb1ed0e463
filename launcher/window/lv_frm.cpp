#include "launcher/window/lv_frm.h"

namespace lv {

namespace {

struct PanelRow {
    Panel LV_Frm::*Pan;
    const char* Title;
};

// clang-format off
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
    for (const OptionBox& row : OptionBoxes()) {
        CheckBox& box = Box(row.Box);
        box.Caption = row.Caption;
        box.ToolTip = row.ToolTip;
        box.Visible = row.Games != OptionGames::Unreal;  // until Unreal is picked
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

}  // namespace lv
