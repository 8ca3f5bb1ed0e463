#include "launcher/window/lv_frm.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(LV_Frm, ShowsOnEachBoxWhatItsRowSays) {
    const LV_Frm window;
    for (const OptionBox& row : OptionBoxes()) {
        EXPECT_EQ(window.Box(row.Box).Caption, row.Caption) << row.Name;
        EXPECT_EQ(window.Box(row.Box).ToolTip, row.ToolTip) << row.Name;
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
    EXPECT_EQ(window.DoIt_Cmd[0].Caption, "&Launch Me!");
    EXPECT_EQ(window.DoIt_Cmd[0].ToolTip, "Click to launch your game [F2]");
    EXPECT_EQ(window.DoIt_Cmd[1].Caption, "&View");
    EXPECT_EQ(window.DoIt_Cmd[1].ToolTip, "Click to create and view the launch files");
    EXPECT_EQ(window.DoIt_Cmd[2].Caption, "&Create Only");
    EXPECT_EQ(window.DoIt_Cmd[2].ToolTip, "Click to create launch files, but not launch");
    EXPECT_EQ(window.Box(Option::EndOnLaunch_Chk).Caption, "Exit on Launch");
    EXPECT_EQ(window.Exe_Cbo.ToolTip, "List of recognized games");
}

TEST(LV_Frm, ShowsUnrealsBoxesToUnrealAlone) {
    const LV_Frm window;
    EXPECT_FALSE(window.Box(Option::UnrealNoCDNeeded_Chk).Visible);
    EXPECT_TRUE(window.Box(Option::Bench_Chk).Visible);
    EXPECT_TRUE(window.Box(Option::Memory_Chk).Visible);
}

TEST(LV_Frm, NamesItsBarButtons) {
    const LV_Frm window;
    ASSERT_EQ(window.ButtonBar_Cmd.size(), 9U);
    EXPECT_EQ(window.ButtonBar_Cmd[0].ToolTip, "Launch [F2]");
    EXPECT_EQ(window.ButtonBar_Cmd[8].ToolTip, "Help!! [F1]");
}

TEST(LV_Frm, IsMadeOutOfSightWithoutAnIcon) {
    const LV_Frm window;
    EXPECT_EQ(window.Caption, "Lorvane 3D");
    EXPECT_FALSE(window.Visible);
    EXPECT_FALSE(window.TrayIcon);
    EXPECT_FALSE(window.CanUnload);
}

}  // namespace
}  // namespace lv
