#include "platform/windows/wide_text.h"

#include <gtest/gtest.h>

namespace lv {

TEST(WideText, BringsAll256BytesThereAndBack) {
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    EXPECT_EQ(ToWide(all).size(), 256u);
    EXPECT_EQ(FromWide(ToWide(all)), all);
}

TEST(WideText, KnowsTheCodePage) {
    EXPECT_EQ(ToWide("\x80\x8C\xE9\x81"), L"\u20AC\u0152\u00E9\x81");
}

TEST(FromWide, HasNothingForWhatIsNotInTheCodePage) {
    EXPECT_EQ(FromWide(L"a\u65E5"), std::nullopt);
    EXPECT_EQ(FromWide(L""), "");
}

TEST(FromWideLossy, AsksOnceForEachCharacter) {
    EXPECT_EQ(FromWideLossy(L"a\u65E5b"), "a?b");
    EXPECT_EQ(FromWideLossy(L"\xD83D\xDE00!"), "?!");
}

TEST(WideFromUtf8, RefusesWhatIsNotWellFormed) {
    EXPECT_EQ(WideFromUtf8("\xC3\xA9"), L"\u00E9");
    EXPECT_EQ(WideFromUtf8(""), L"");
    EXPECT_EQ(WideFromUtf8("\xC3"), std::nullopt);
    EXPECT_EQ(WideFromUtf8("\xFF"), std::nullopt);
}

TEST(Utf8FromWide, RefusesHalfACharacter) {
    EXPECT_EQ(Utf8FromWide(L"\u00E9\u65E5"), "\xC3\xA9\xE6\x97\xA5");
    EXPECT_EQ(Utf8FromWide(L""), "");
    EXPECT_EQ(Utf8FromWide(L"\xD83D"), std::nullopt);
}

}  // namespace lv
