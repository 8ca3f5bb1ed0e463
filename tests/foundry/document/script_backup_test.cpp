#include "foundry/document/script_backup.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

TEST(BackupPathOf, CutsTheNameAtItsFirstPoint) {
    EXPECT_EQ(BackupPathOf("c:\\q\\my.cfg"), "c:\\q\\my.SetupFoundry_Config_Backup");
    EXPECT_EQ(BackupPathOf("a.b.cfg"), "a.SetupFoundry_Config_Backup");
    EXPECT_EQ(BackupPathOf("c:\\q.1\\my"), "c:\\q.1\\my.SetupFoundry_Config_Backup");
    EXPECT_EQ(BackupPathOf("c:\\q.1\\.cfg"), "c:\\q.1\\.SetupFoundry_Config_Backup");
}

TEST(KeepBackup, PutsTheCopyBesideTheScript) {
    MemoryFiles disk;
    disk.AddFile("C:\\Q\\my.cfg", "theirs");
    EXPECT_EQ(KeepBackup(disk, "C:\\Q\\my.cfg").Number, 0);
    EXPECT_EQ(disk.Bytes("C:\\Q\\my.SetupFoundry_Config_Backup"), "theirs");
    EXPECT_EQ(KeepBackup(disk, "C:\\Q\\none.cfg").Number, 53);
}

TEST(KeepBackup, LeavesACopyItselfAlone) {
    MemoryFiles disk;
    disk.AddFile("C:\\Q\\my.setupfoundry_config_backup", "x");
    EXPECT_EQ(KeepBackup(disk, "C:\\Q\\my.setupfoundry_config_backup").Number, 0);
    EXPECT_TRUE(disk.Log.empty());
}

}  // namespace
}  // namespace lv
