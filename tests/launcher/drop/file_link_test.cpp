#include "launcher/drop/file_link.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(FileLink, AFileOfThisMachineIsItsPath) {
    EXPECT_EQ(PathOfFileLink("file:///home/me/dm3.bsp"), "/home/me/dm3.bsp");
    EXPECT_EQ(PathOfFileLink("FILE://localhost/home/me/My%20maps/%C3%A4.bsp"), "/home/me/My maps/\xC3\xA4.bsp");
    EXPECT_EQ(PathOfFileLink("file:///home/100%25.cfg"), "/home/100%.cfg");
}

TEST(FileLink, ADriveIsNoDirectory) {
    EXPECT_EQ(PathOfFileLink("file:///C:/Games/a%20b.pak"), "C:\\Games\\a b.pak");
}

TEST(FileLink, WhatIsNoFileOfThisMachineIsNone) {
    for (const char* link : {"", "file:", "file://", "file://other/x", "http://host/x", "/home/me", "file:///a%00b",
                             "file:///a%2", "file:///a%", "file:///a%zz", "file:///a%+1"}) {
        EXPECT_FALSE(PathOfFileLink(link).has_value()) << link;
    }
}

}  // namespace
}  // namespace lv
