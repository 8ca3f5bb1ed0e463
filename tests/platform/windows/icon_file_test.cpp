#include "platform/windows/icon_file.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(IconFile, HasAnEntryForEachSizeAndTheBytesBehindThem) {
    const ShortcutPicture pictures[] = {{16, "abc"}, {256, "defgh"}};
    const std::string expected(
        "\0\0\1\0\2\0"
        "\x10\x10\0\0\1\0\x20\0\3\0\0\0\x26\0\0\0"
        "\0\0\0\0\1\0\x20\0\5\0\0\0\x29\0\0\0"
        "abcdefgh",
        6 + 16 + 16 + 8);
    EXPECT_EQ(IconFileOf(pictures), expected);
}

TEST(IconFile, LeavesOutWhatItsByteCannotSay) {
    const ShortcutPicture pictures[] = {{0, "a"}, {257, "b"}};
    EXPECT_EQ(IconFileOf(pictures), std::string("\0\0\1\0\0\0", 6));
}

}  // namespace
}  // namespace lv
