#include "launch/engine_fit.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_files.h"
#include "tests/support/shipped_engines.h"

namespace lv {

namespace {

LaunchSelection Picked(TextView path) {
    LaunchSelection selection;
    selection.ExecutablePath = path;
    return selection;
}

LaunchGame QuakeIn(TextView directory) {
    LaunchGame game;
    game.GameKind = Game::Quake;
    game.ScriptFamily = Dialect::Quake;
    game.DefaultGameDirectory = directory;
    return game;
}

}  // namespace

TEST(EngineFit, TheGamesOwnProgramsAreNoEngines) {
    const LaunchGame game = QuakeIn("C:\\QUAKE");
    EXPECT_EQ(EngineOfLaunch(ShippedEngines(), Picked("C:\\QUAKE\\WINQUAKE.EXE"), game), nullptr);
    EXPECT_EQ(EngineOfLaunch(ShippedEngines(), Picked("C:\\QUAKE\\quakespasm"), game), &ShippedEngine("QuakeSpasm"));
}

TEST(EngineFit, UnrealsEnginesTakeTheirCommandLineAsItIs) {
    LaunchGame game = QuakeIn("C:\\UNREAL\\SYSTEM");
    game.GameKind = Game::Unreal;
    EXPECT_EQ(EngineOfLaunch(ShippedEngines(), Picked("C:\\UNREAL\\SYSTEM\\UnrealLinux.bin"), game), nullptr);
}

TEST(EngineFit, QuakeSpasmGetsNoHeapAndTheScript) {
    MemoryFiles disk;
    disk.AddFile("C:\\QUAKE\\id1\\pak0.pak");
    disk.AddFile("C:\\QUAKE\\id1\\pak1.pak");
    LaunchTexts texts;
    texts.GameCommand = "QUAKESPASM -zone 512 -heapsize 16384 -width 640 ";
    const Engine& engine = ShippedEngine("QuakeSpasm");
    const FittedCommand fitted =
        FitLaunch(engine, disk, Picked("C:\\QUAKE\\quakespasm"), QuakeIn("C:\\QUAKE"), texts, true);
    EXPECT_EQ(fitted.Command.find("-heapsize"), Text::npos);
    EXPECT_NE(fitted.Command.find("-width 640 +exec lv_666.qs"), Text::npos);
    EXPECT_EQ(fitted.AutoexecTail, "");
    const Text report = FitReport(engine, fitted);
    EXPECT_TRUE(report.starts_with("For QuakeSpasm = \r\n")) << report;
    EXPECT_NE(report.find("-heapsize 16384:\r\n\tleft out, manages its own memory\r\n"), Text::npos) << report;
}

TEST(EngineFit, SharewareDataNeedTheEnginesAutoexec) {
    MemoryFiles disk;
    disk.AddFile("C:\\QUAKE\\id1\\pak0.pak");
    LaunchTexts texts;
    texts.GameCommand = "QUAKESPASM ";
    const FittedCommand fitted = FitLaunch(ShippedEngine("QuakeSpasm"), disk, Picked("C:\\QUAKE\\quakespasm"),
                                           QuakeIn("C:\\QUAKE"), texts, true);
    EXPECT_EQ(fitted.AutoexecTail, "exec lv_666.qs\r\n");
}

TEST(EngineFit, NothingIsReportedOfALaunchThatGoesAsItIs) {
    EXPECT_EQ(FitReport(ShippedEngine("QuakeSpasm"), {}), "");
}

TEST(EngineFit, WhatTheEngineReadsInItsEnvironmentIsSetInTheBatch) {
    FittedCommand fitted;
    fitted.Environment = {{"XASH3D_BASEDIR", "/srv/hl"}, {"XASH3D_GAME", "valve"}};
    EXPECT_EQ(FitEnvironment(fitted), "SET XASH3D_BASEDIR=/srv/hl\r\nSET XASH3D_GAME=valve\r\n");
}

TEST(EngineFit, AutoexecGetsABlockOfTheProgramsOwn) {
    const Text block = "// Lorvane 3D: this launch\r\nexec lv_666.qs\r\n// Lorvane 3D: end\r\n";
    EXPECT_EQ(AutoexecWith("", "exec lv_666.qs\r\n"), block);
    EXPECT_EQ(AutoexecWith("bind x +jump", "exec lv_666.qs\r\n"), "bind x +jump\r\n" + block);
    EXPECT_EQ(AutoexecWith("bind x +jump\n", "exec lv_666.qs\r\n"), "bind x +jump\n" + block);
}

TEST(EngineFit, TheBlockOfTheLastLaunchGoes) {
    const Text first = AutoexecWith("bind x +jump\r\n", "exec lv_666.qs\r\n");
    EXPECT_EQ(AutoexecWith(first, "exec lv_666.qs\r\n"), first);
    EXPECT_EQ(AutoexecWith(first, ""), "bind x +jump\r\n");
    EXPECT_EQ(AutoexecWith(first + "bind y +attack\r\n", ""), "bind x +jump\r\nbind y +attack\r\n");
}

TEST(EngineFit, AMarkWithoutItsEndIsTheUsers) {
    EXPECT_EQ(AutoexecWith("// Lorvane 3D: this launch\r\nbind x +jump\r\n", ""),
              "// Lorvane 3D: this launch\r\nbind x +jump\r\n");
}

}  // namespace lv
