#include "platform/linux/files/walked_drive.h"

#include <gtest/gtest.h>

namespace lv {

TEST(WalkedDrive, TellsWhereADirectoryLiesByItsPath) {
    WalkedDrive drive;
    drive.Enter('C', "/home/me/drives/c:");
    EXPECT_EQ(drive.HostPathOf("C:\\Games"), "/home/me/drives/c:/Games");
    EXPECT_EQ(drive.HostPathOf("c:\\Games\\.hidden\\..."), "/home/me/drives/c:/Games/.hidden/...");
    EXPECT_EQ(drive.HostPathOf("C:\\\xE9t\xE9"), "/home/me/drives/c:/\xC3\xA9t\xC3\xA9");
}

TEST(WalkedDrive, DoesNotTellOfOtherDrivesNorOfTheRoot) {
    WalkedDrive drive;
    EXPECT_EQ(drive.HostPathOf("C:\\Games"), "");
    drive.Enter('C', "/c");
    EXPECT_EQ(drive.HostPathOf("D:\\Games"), "");
    EXPECT_EQ(drive.HostPathOf("C:\\"), "");
    EXPECT_EQ(drive.HostPathOf("C:"), "");
    EXPECT_EQ(drive.HostPathOf(""), "");
}

TEST(WalkedDrive, DoesNotTellOfAPathThatSaysMoreThanNames) {
    WalkedDrive drive;
    drive.Enter('C', "/c");
    for (const std::string_view path :
         {"C:Games", "C:\\a\\..\\b", "C:\\a\\.\\b", "C:\\a\\\\b", "C:/a", "C:\\a/b", "a\\b"}) {
        EXPECT_EQ(drive.HostPathOf(path), "") << path;
    }
    EXPECT_EQ(drive.HostPathOf(std::string_view("C:\\a\0b", 6)), "");
}

}  // namespace lv
