#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

std::string AllBytes() {
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    return all;
}

struct HighRow {
    unsigned char Byte;
    char32_t Point;
    const char* Utf8;
};

// The bytes 80 to 9F of code page 1252, by the published table.
constexpr HighRow kHighRows[] = {
    {0x80, 0x20AC, "\xE2\x82\xAC"}, {0x81, 0x0081, "\xC2\x81"},     {0x82, 0x201A, "\xE2\x80\x9A"},
    {0x83, 0x0192, "\xC6\x92"},     {0x84, 0x201E, "\xE2\x80\x9E"}, {0x85, 0x2026, "\xE2\x80\xA6"},
    {0x86, 0x2020, "\xE2\x80\xA0"}, {0x87, 0x2021, "\xE2\x80\xA1"}, {0x88, 0x02C6, "\xCB\x86"},
    {0x89, 0x2030, "\xE2\x80\xB0"}, {0x8A, 0x0160, "\xC5\xA0"},     {0x8B, 0x2039, "\xE2\x80\xB9"},
    {0x8C, 0x0152, "\xC5\x92"},     {0x8D, 0x008D, "\xC2\x8D"},     {0x8E, 0x017D, "\xC5\xBD"},
    {0x8F, 0x008F, "\xC2\x8F"},     {0x90, 0x0090, "\xC2\x90"},     {0x91, 0x2018, "\xE2\x80\x98"},
    {0x92, 0x2019, "\xE2\x80\x99"}, {0x93, 0x201C, "\xE2\x80\x9C"}, {0x94, 0x201D, "\xE2\x80\x9D"},
    {0x95, 0x2022, "\xE2\x80\xA2"}, {0x96, 0x2013, "\xE2\x80\x93"}, {0x97, 0x2014, "\xE2\x80\x94"},
    {0x98, 0x02DC, "\xCB\x9C"},     {0x99, 0x2122, "\xE2\x84\xA2"}, {0x9A, 0x0161, "\xC5\xA1"},
    {0x9B, 0x203A, "\xE2\x80\xBA"}, {0x9C, 0x0153, "\xC5\x93"},     {0x9D, 0x009D, "\xC2\x9D"},
    {0x9E, 0x017E, "\xC5\xBE"},     {0x9F, 0x0178, "\xC5\xB8"},
};

}  // namespace

TEST(CodePage, HasThePublishedCodePointsFrom80To9F) {
    for (const HighRow& row : kHighRows) {
        EXPECT_EQ(CodePointOf(row.Byte), row.Point) << int{row.Byte};
        EXPECT_EQ(ByteOf(row.Point), row.Byte) << int{row.Byte};
        EXPECT_EQ(ToUtf8(std::string(1, static_cast<char>(row.Byte))), row.Utf8) << int{row.Byte};
    }
}

TEST(CodePage, LeavesAllOtherBytesTheirOwnCodePoint) {
    EXPECT_EQ(CodePointOf(0x00), U'\0');
    EXPECT_EQ(CodePointOf(0x7F), U'\x7F');
    EXPECT_EQ(CodePointOf(0xA0), U'\xA0');
    EXPECT_EQ(CodePointOf(0xFF), U'\xFF');
}

TEST(CodePage, BringsAll256BytesThereAndBack) {
    const std::string all = AllBytes();
    ASSERT_EQ(all.size(), 256u);
    EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
    EXPECT_EQ(FromUtf8Lossy(ToUtf8(all)), all);
}

TEST(CodePage, HasNoByteForWhatTheBytes80To9FWouldBeInLatin1) {
    EXPECT_EQ(ByteOf(0x80), std::nullopt);
    EXPECT_EQ(ByteOf(0x9F), std::nullopt);
    EXPECT_EQ(ByteOf(0x100), std::nullopt);
    EXPECT_EQ(ByteOf(0x1F600), std::nullopt);
}

TEST(FromUtf8, RefusesMalformedText) {
    const char* const kMalformed[] = {
        "\x80",              // a follower alone
        "\xC3",              // cut off
        "\xC3(",             // a lead without a follower
        "\xC0\x80",          // overlong
        "\xC1\xBF",          // overlong
        "\xE0\x80\x80",      // overlong
        "\xE2\x82",          // cut off
        "\xED\xA0\x80",      // a surrogate
        "\xF0\x80\x80\x80",  // overlong
        "\xF4\x90\x80\x80",  // beyond the last character
        "\xF5\x80\x80\x80",  // no lead
        "\xFF",              // no lead
    };
    for (const char* const text : kMalformed) {
        EXPECT_EQ(FromUtf8(text), std::nullopt) << text;
    }
}

TEST(FromUtf8, RefusesCharactersWithoutAForm) {
    EXPECT_EQ(FromUtf8("\xE6\x97\xA5"), std::nullopt);      // U+65E5
    EXPECT_EQ(FromUtf8("\xF0\x9F\x98\x80"), std::nullopt);  // U+1F600
}

TEST(FromUtf8Lossy, PutsAQuestionMarkForEachCharacterOrStrayByte) {
    EXPECT_EQ(FromUtf8Lossy("a\xE6\x97\xA5z"), "a?z");
    EXPECT_EQ(FromUtf8Lossy("\xF0\x9F\x98\x80!"), "?!");
    EXPECT_EQ(FromUtf8Lossy("\xC3(\xFF"), "?(?");
}

TEST(LetterCase, CoversAccentedLettersBothWays) {
    EXPECT_EQ(UpperCase("quake \xE9\xE0\xFE\x9A\x9C\x9E\xFF"), "QUAKE \xC9\xC0\xDE\x8A\x8C\x8E\x9F");
    EXPECT_EQ(LowerCase("QUAKE \xC9\xC0\xDE\x8A\x8C\x8E\x9F"), "quake \xE9\xE0\xFE\x9A\x9C\x9E\xFF");
}

TEST(LetterCase, LeavesTheMultiplicationAndDivisionSignsAndTheSharpS) {
    EXPECT_EQ(UpperCase("\xF7\xD7\xDF"), "\xF7\xD7\xDF");
    EXPECT_EQ(LowerCase("\xF7\xD7\xDF"), "\xF7\xD7\xDF");
}

TEST(StartsWithText, IsBlindToCaseAndToNothingElse) {
    EXPECT_TRUE(StartsWithText("\xC9T\xE9 and more", "\xE9t\xC9"));
    EXPECT_TRUE(StartsWithText("say ", "SAY "));
    EXPECT_TRUE(StartsWithText("x", ""));
    EXPECT_FALSE(StartsWithText("say", "say "));
    EXPECT_FALSE(StartsWithText("", "x"));
}

TEST(SameText, IsBlindToCaseAndToNothingElse) {
    EXPECT_TRUE(SameText("\xC9t\xE9", "\xE9T\xC9"));
    EXPECT_FALSE(SameText("id1", "id1 "));
    EXPECT_FALSE(SameText("e", "\xE9"));
    EXPECT_TRUE(SameText("", ""));
}

}  // namespace lv
