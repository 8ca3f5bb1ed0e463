// What a launch has done where one of its steps ends it, and in which order the steps come.

#include "tests/launcher/window/launch_flow_fixture.h"

namespace lv {

TEST_F(LaunchFlow, WithoutAGameDirectoryThereAreNoSetLines) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    SetProfile("VidCard", "2");
    run.DefaultGameDirectory.clear();
    user.Expect({"Viewing Commands", "Batch File = \r\nC:\r\ncd \r\n", 0});
    DoIt_Cmd_Click(launcher, 1);
}

TEST_F(LaunchFlow, TheLengthOfUnrealsOwnLineDoesNotAsk) {
    LoadWith("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
    run.IsWin9x = true;
    window.Map_Cbo.Items = {Text(130, 'M')};
    window.Map_Cbo.ListIndex = 0;
    window.Box(Option::Map_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(LaunchFlow, TheLengthOfTheOtherGamesLineAsksForUnrealToo) {
    LoadWith("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
    run.IsWin9x = true;
    window.Game_Cbo.Items = {Text("Mod") + Text(97, ' ') + "-game " + Text(130, 'x')};
    window.Game_Cbo.ListIndex = 0;
    window.Box(Option::Game_Chk).Value = 1;
    user.Expect({"Command Line Problem", "Length = 148", 1});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchFlow, AnAbortedLongLineHasCountedAndHidesNothing) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    run.IsWin9x = true;
    window.Visible = true;
    system.Disk.AddFile(kPif, "as it was");
    window.CommandLineAdditions_Txt.Text = Text(200, 'x');
    window.Box(Option::CommandLineAdditions_Chk).Value = 1;
    user.Expect({"Command Line Problem", "Length = ", 1});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "1");
    EXPECT_EQ(system.Disk.Bytes(kPif), "as it was");
    EXPECT_TRUE(window.Visible);
}

TEST_F(LaunchFlow, EachStartCountsOneMore) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Save(run, "LV-Stuff", "LaunchCount", 41);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "42");
}

TEST_F(LaunchFlow, ADirectoryThatCannotBeEnteredIsReportedBehindTheCount) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    window.Visible = true;
    system.Disk.DrivesNotReady.insert("C:");
    user.Expect({"Lorvane 3D", "Error Number = 71\r\nError Code = EC00480\r\nError String = Disk not ready\r\n"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "1");
    EXPECT_FALSE(system.Disk.FileExists(kPif));
    EXPECT_TRUE(window.Visible);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchFlow, ShowsTheEnvironmentWhereThatIsTicked) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    SetProfile("VidCard", "0");
    Click(Option::ShowSet_Chk, 1);
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Bytes(kBatch), "SET\r\nPAUSE\r\nC:\r\ncd c:\\quake\r\nGLQUAKE.EXE -zone 512");
}

TEST_F(LaunchFlow, WhatStartsNoGameDoesNotExit) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::EndOnLaunch_Chk, 1);
    DoIt_Cmd_Click(launcher, 2);
    user.Expect({"Viewing Commands", "", 0});
    DoIt_Cmd_Click(launcher, 1);
    EXPECT_FALSE(user.ProgramEnded);
}

TEST_F(LaunchFlow, TheClipboardGetsAllThatIsShown) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    user.Expect({"Viewing Commands", "exec my.cfg\r\n", 1});
    DoIt_Cmd_Click(launcher, 1);
    EXPECT_EQ(system.Clip.Held, user.Asked.back().Question_Txt.Text);
}

TEST_F(LaunchFlow, ViewShowsHalfLifesScriptWithoutItsSets) {
    LoadWith("C:\\HL\\HL.EXE");
    SetProfile("Windowed", "1");
    user.Expect({"Viewing Commands", "Script File = \r\n_windowed_mouse 1\r\n", 0});
    DoIt_Cmd_Click(launcher, 1);
}

TEST_F(LaunchFlow, WithoutASelectedExecutableSavesNothing) {
    Load();
    const std::size_t saves = system.Settings.Log.size();
    user.Expect({"Lorvane 3D", "No executable is selected."});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Settings.Log.size(), saves);
}

TEST_F(LaunchFlow, AFailedBatchLeavesTheScriptInPlace) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    system.Disk.Refused["c:\\quake\\lv_666.bat"] = MakeError(error::kDiskFull);
    user.Expect({"Lorvane 3D", "Error Code = EC00230"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes(kScript), "exec my.cfg\r\n");
}

TEST_F(LaunchFlow, AnOldScriptThatStaysAndAPifThatIsRefusedStopNothing) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    system.Disk.AddFile(kScript, "of the last launch");
    system.Disk.RefusedDeletes.insert("c:\\quake\\id1\\lv_666.qs");
    system.Disk.Refused["c:\\quake\\lv_666.pif"] = MakeError(error::kPermissionDenied);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
    EXPECT_TRUE(system.Disk.Bytes(kBatch).ends_with("GLQUAKE.EXE -zone 512"));
}

}  // namespace lv
