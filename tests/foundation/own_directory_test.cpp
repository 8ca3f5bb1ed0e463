#include "foundation/own_directory.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

class OwnDirectories : public ::testing::Test {
  protected:
    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace

TEST_F(OwnDirectories, LieInTheDirectoryForData) {
    system.Places.IsData = "C:\\HOME\\share";
    EXPECT_EQ(OwnDirectory(run, "backups"), "C:\\HOME\\share\\lorvane3d\\backups");
}

TEST_F(OwnDirectories, LieBesideTheProgramWhereThereIsNoSuchDirectory) {
    EXPECT_EQ(OwnDirectory(run, "backups"), "C:\\LORVANE\\backups");
    run.AppDirectory = "D:\\PLAY";
    EXPECT_EQ(OwnDirectory(run, "backups"), "D:\\PLAY\\backups");
    system.Services.Places = nullptr;
    EXPECT_EQ(OwnDirectory(run, "backups"), "D:\\PLAY\\backups");
}

TEST_F(OwnDirectories, AreMadeWithThoseAboveThem) {
    system.Disk.AddDrive("C:");
    EXPECT_EQ(MakeWholeDirectory(system.Disk, "C:\\HOME\\share\\lorvane3d").Number, 0);
    EXPECT_TRUE(system.Disk.DirectoryExists("C:\\HOME\\share\\lorvane3d"));
    EXPECT_EQ(MakeWholeDirectory(system.Disk, "C:\\HOME\\share\\lorvane3d").Number, 0);
}

TEST_F(OwnDirectories, CannotBeMadeOnADriveThatIsNotThere) {
    EXPECT_NE(MakeWholeDirectory(system.Disk, "X:\\a\\b").Number, 0);
}

}  // namespace lv
