#include "foundry/editor/text_column.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_user.h"

namespace lv {
namespace {

/// Letters of ten, blanks of three.
struct NarrowBlanks : ScriptedUser {
    int TextWidth(TextView line) override {
        int width = 0;
        for (const char c : line) {
            width += c == ' ' ? 3 : 10;
        }
        return width;
    }
};

TEST(TextColumn, PadsUntilTheTextIsAsWideAsTheColumn) {
    NarrowBlanks user;
    const TextColumn column(user, 32);
    EXPECT_EQ(column.Padded("ab"), "ab    ");  // 20, and four blanks of 3
    EXPECT_EQ(column.Padded(""), "           ");
}

TEST(TextColumn, LeavesATextAsItIsThatIsWideEnough) {
    NarrowBlanks user;
    const TextColumn column(user, 30);
    EXPECT_EQ(column.Padded("abc"), "abc");
    EXPECT_EQ(column.Padded("abcdefgh"), "abcdefgh");
}

TEST(TextColumn, PadsInAFontWhoseBlanksHaveNoWidth) {
    struct NoBlanks : ScriptedUser {
        int TextWidth(TextView) override { return 0; }
    };
    NoBlanks user;
    EXPECT_EQ(TextColumn(user, 2).Padded("a"), "a  ");
}

TEST(TextColumn, ATabIsAsWideAsEightLetters) {
    NarrowBlanks user;
    EXPECT_EQ(TabWidth(user), 80);
}

}  // namespace
}  // namespace lv
