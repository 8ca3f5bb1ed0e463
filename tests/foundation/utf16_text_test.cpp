#include "foundation/utf16_text.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(IsUtf16, IsTrueOfEitherByteOrderMark) {
    EXPECT_TRUE(IsUtf16(TextView("\xFF\xFE[\0", 4)));
    EXPECT_TRUE(IsUtf16(TextView("\xFE\xFF\0[", 4)));
    EXPECT_TRUE(IsUtf16("\xFF\xFE"));
    EXPECT_TRUE(IsUtf16("\xFE\xFF"));
}

TEST(IsUtf16, IsFalseOfTextOfOneByteALetter) {
    EXPECT_FALSE(IsUtf16(""));
    EXPECT_FALSE(IsUtf16("\xFF"));
    EXPECT_FALSE(IsUtf16("\xFF[Core]"));
    EXPECT_FALSE(IsUtf16("\xFE\xFE"));
    EXPECT_FALSE(IsUtf16("[Core]\xFF\xFE"));
    EXPECT_FALSE(IsUtf16("\xEF\xBB\xBF[Core]"));
    EXPECT_FALSE(IsUtf16(TextView("[\0C\0", 4)));
}

TEST(Utf16Fault, NamesTheFileAndSaysWhatToDo) {
    EXPECT_EQ(Utf16Fault("C:\\A.INI").Number, 75);
    EXPECT_EQ(Utf16Fault("C:\\A.INI").Text, "The file is UTF-16 text: C:\\A.INI. Save it as plain text (ANSI) first.");
}

}  // namespace
}  // namespace lv
