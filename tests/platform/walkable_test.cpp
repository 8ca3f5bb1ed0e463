#include "platform/linux/files/walkable.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace lv {

TEST(IsWalkedType, PassesOverTheKernelsAndOtherMachines) {
    for (const std::uint32_t type :
         {0x9FA0u,     0x62656572u, 0x1CD1u,     0x27E0EBu,   0x63677270u, 0x64626720u, 0x74726163u,
          0x73636673u, 0x62656570u, 0x6165676Cu, 0xCAFE4A11u, 0x19800202u, 0x958458F6u, 0x42494E4Du,
          0xDE5E81E4u, 0x6E736673u, 0x65735543u, 0x187u,      0x6969u,     0x517Bu,     0xFF534D42u,
          0xFE534D42u, 0x564Cu,     0x73757245u, 0x5346414Fu, 0x6B414653u, 0xC36400u,   0x1021997u}) {
        EXPECT_FALSE(IsWalkedType(type, false)) << std::hex << type;
    }
}

TEST(IsWalkedType, GoesIntoDisks) {
    EXPECT_TRUE(IsWalkedType(0xEF53, true));       // ext4
    EXPECT_TRUE(IsWalkedType(0x9123683E, false));  // btrfs
    EXPECT_TRUE(IsWalkedType(0x01021994, false));  // tmpfs
    EXPECT_TRUE(IsWalkedType(0x4D44, true));       // FAT
}

TEST(IsWalkedType, TellsAWindowsDiskFromAShare) {
    EXPECT_TRUE(IsWalkedType(0x65735546, true));
    EXPECT_FALSE(IsWalkedType(0x65735546, false));
}

TEST(WalkableDevices, PassOverProcSysAndDev) {
    WalkableDevices devices;
    for (const char* path : {"/proc", "/sys", "/dev"}) {
        struct stat info {};
        ASSERT_EQ(stat(path, &info), 0);
        EXPECT_FALSE(devices.MayWalk(info.st_dev, path)) << path;
        EXPECT_FALSE(devices.MayWalk(info.st_dev, path)) << path;
    }
}

TEST(IdentityOf, DiffersByDeviceAndInode) {
    EXPECT_EQ(IdentityOf(8, 2), IdentityOf(8, 2));
    EXPECT_NE(IdentityOf(8, 2), IdentityOf(8, 3));
    EXPECT_NE(IdentityOf(8, 2), IdentityOf(9, 2));
    EXPECT_NE(IdentityOf(2, 8), IdentityOf(8, 2));
}

}  // namespace lv
