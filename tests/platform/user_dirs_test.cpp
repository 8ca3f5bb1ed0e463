#include "platform/linux/user_dirs.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

std::string Desktop(std::string_view text) {
    return DirectoryInUserDirs(text, "XDG_DESKTOP_DIR", "/home/me").string();
}

TEST(UserDirs, ADirectoryLiesInTheHomeOrAnywhere) {
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n"), "/home/me/Schreibtisch");
    EXPECT_EQ(Desktop("# notes\nXDG_DOWNLOAD_DIR=\"$HOME/x\"\n XDG_DESKTOP_DIR = \"/srv/desk\"\n"), "/srv/desk");
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIR=\"/a\"\nXDG_DESKTOP_DIR=\"/b\""), "/b");
}

TEST(UserDirs, ABackslashTakesTheMeaningOfWhatFollows) {
    EXPECT_EQ(Desktop(R"(XDG_DESKTOP_DIR="$HOME/a \"b\" \$c \\d")"), "/home/me/a \"b\" $c \\d");
}

TEST(UserDirs, TheHomeItselfIsNone) {
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIR=\"$HOME\""), "");
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIR=\"$HOME/\""), "");
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIR=\"/home/me/\""), "");
}

TEST(UserDirs, WhatIsNoPathIsNone) {
    EXPECT_EQ(Desktop(""), "");
    EXPECT_EQ(Desktop("#XDG_DESKTOP_DIR=\"/a\""), "");
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIR=/a"), "");
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIR=\"/a"), "");
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIR=\"Desktop\""), "");
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIR=\"$HOMER/a\""), "");
    EXPECT_EQ(Desktop("XDG_DESKTOP_DIRS=\"/a\""), "");
}

}  // namespace
}  // namespace lv
