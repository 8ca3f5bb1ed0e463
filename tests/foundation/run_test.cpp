#include "foundation/run.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

class RunTest : public ::testing::Test {
  protected:
    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(RunTest, BeginsAsTheProgramItself) {
    EXPECT_EQ(run.AppName, "Lorvane 3D");
    EXPECT_EQ(run.GameKind, Game::None);
    EXPECT_TRUE(run.UsesAccelerator);
    EXPECT_EQ(run.VideoProfileSection, "Options");
}

TEST_F(RunTest, TheSharedConstantsAreTheirCharacters) {
    EXPECT_EQ(NewLine, "\r\n");
    EXPECT_EQ(TabChar, "\t");
    EXPECT_EQ(SingleQuote, "'");
    EXPECT_EQ(DoubleQuote, "\"");
    EXPECT_EQ(Blank, " ");
    EXPECT_EQ(TwoBlanks, "  ");
}

TEST_F(RunTest, SetCurrentPathMovesDriveAndDirectory) {
    system.Disk.AddDirectory("C:\\LORVANE");
    system.Disk.AddDirectory("D:\\GAMES\\QUAKE");
    EXPECT_FALSE(SetCurrentPath(run, "D:\\GAMES\\QUAKE"));
    EXPECT_EQ(system.Disk.CurrentDirectory(), "D:\\GAMES\\QUAKE");
}

TEST_F(RunTest, SetCurrentPathTellsAMissingDrive) {
    EXPECT_EQ(SetCurrentPath(run, "Q:\\QUAKE").Number, error::kDeviceUnavailable);
    EXPECT_EQ(system.Disk.CurrentDirectory(), "C:\\");
}

TEST_F(RunTest, SetCurrentPathTellsAMissingDirectory) {
    system.Disk.AddDrive("D:");
    EXPECT_EQ(SetCurrentPath(run, "D:\\QUAKE").Number, error::kPathNotFound);
}

TEST_F(RunTest, SetCurrentPathOfNothingIsAnError) {
    EXPECT_NE(SetCurrentPath(run, "").Number, 0);
}

TEST_F(RunTest, PauseSecondsKeepsTheWindowsAlive) {
    PauseSeconds(run, 1);
    EXPECT_GT(system.Time.Elapsed, 1.0);
    EXPECT_LT(system.Time.Elapsed, 1.1);
    EXPECT_GT(user.Pumps, 10);
}

TEST_F(RunTest, TheWorkOfAPauseIsDoneWithinIt) {
    PauseSeconds(run, 1, [this] {
        EXPECT_EQ(user.Pumps, 0);
        system.Time.Elapsed += 0.4;
    });
    EXPECT_GT(system.Time.Elapsed, 1.0);
    EXPECT_LT(system.Time.Elapsed, 1.1);
}

TEST_F(RunTest, PauseSecondsOfNothingPumpsOnce) {
    PauseSeconds(run, 0);
    EXPECT_EQ(user.Pumps, 1);
}

TEST_F(RunTest, EndProgramEndsTheLoop) {
    EndProgram(run);
    EXPECT_TRUE(run.Ended);
    EXPECT_TRUE(user.ProgramEnded);
}

}  // namespace
}  // namespace lv
