#include "foundation/field_strings.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

namespace lv {
namespace {

TEST(CountDelimiters, OfAnEmptyTextIsZero) {
    EXPECT_EQ(CountDelimiters("", ";"), 0);
}

TEST(CountDelimiters, CountsEachOne) {
    EXPECT_EQ(CountDelimiters("a;b", ";"), 1);
    EXPECT_EQ(CountDelimiters("a;b;", ";"), 2);
    EXPECT_EQ(CountDelimiters(";;", ";"), 2);
}

TEST(CountDelimiters, CountsOverlaps) {
    EXPECT_EQ(CountDelimiters("aaa", "aa"), 2);
    EXPECT_EQ(CountDelimiters("abababa", "aba"), 3);
}

TEST(CountDelimiters, IsCaseSensitive) {
    EXPECT_EQ(CountDelimiters("xXx", "X"), 1);
}

TEST(CountDelimiters, StopsAtTheGreatestIndex) {
    EXPECT_EQ(CountDelimiters(Text(100'000, ';'), ";"), 32767);
}

TEST(CountDelimiters, OfNothingIsZero) {
    EXPECT_EQ(CountDelimiters("abc", ""), 0);
}

TEST(GetField, OfAnEmptyTextIsEmpty) {
    EXPECT_EQ(GetField("", 0, ";"), "");
}

TEST(GetField, GivesEachFieldInTurn) {
    EXPECT_EQ(GetField("one;two;three", 0, ";"), "one");
    EXPECT_EQ(GetField("one;two;three", 1, ";"), "two");
    EXPECT_EQ(GetField("one;two;three", 2, ";"), "three");
}

TEST(GetField, TakesTheCommaWithoutADelimiter) {
    EXPECT_EQ(GetField("&Yes,&No", 1), "&No");
    EXPECT_EQ(GetField("&Yes,&No", 1, ""), "&No");
}

TEST(GetField, BehindAClosingDelimiterIsEmpty) {
    EXPECT_EQ(GetField("a;b;", 2, ";"), "");
}

TEST(GetField, LosesLeadingBlanks) {
    EXPECT_EQ(GetField("  padded;x", 0, ";"), "padded");
}

TEST(GetField, KeepsTrailingBlanksAndTabs) {
    EXPECT_EQ(GetField("padded  ;x", 0, ";"), "padded  ");
    EXPECT_EQ(GetField("\tx;y", 0, ";"), "\tx");
}

TEST(GetField, OfNothingButBlanksIsEmpty) {
    EXPECT_EQ(GetField("a;   ;b", 1, ";"), "");
}

TEST(GetField, WrapsBehindTheLastField) {
    EXPECT_EQ(GetField("a;b", 2, ";"), "a");
    EXPECT_EQ(GetField("a;b", 3, ";"), "b");
    EXPECT_EQ(GetField("a;b", 4, ";"), "a");
    EXPECT_EQ(GetField("alone", 7, ";"), "alone");
}

TEST(GetField, WrapsAgainAndAgain) {
    EXPECT_EQ(GetField("a;b;c", 32765, ";"), "c");
    EXPECT_EQ(GetField("a;b;c", 32766, ";"), "a");
    EXPECT_EQ(GetField("a;b;c", 32767, ";"), "b");
    EXPECT_EQ(GetField("alone", 32767, ";"), "alone");
    EXPECT_EQ(GetField(";", 32767, ";"), "");
}

TEST(GetField, FarBehindTheLastFieldCostsOnePassOverTheText) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(GetField(Text(16 << 20, 'x'), 32767, ";").size(), 16U << 20);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

TEST(GetField, BelowZeroIsTheFirst) {
    EXPECT_EQ(GetField("a;b", -3, ";"), "a");
}

TEST(GetField, ConsumesOneCharacterOfALongDelimiter) {
    EXPECT_EQ(GetField("a::b", 1, "::"), ":b");
}

TEST(GetField, ReachesTheLastIndexOfAHugeList) {
    Text list;
    for (int i = 0; i < 100'000; ++i) {
        list += std::to_string(i) + ";";
    }
    EXPECT_EQ(GetField(list, 32767, ";"), "32767");
    EXPECT_EQ(GetField(list, 1, ";"), "1");
}

TEST(GetKeyOrValue, PartsAtTheFirstEqualsSign) {
    EXPECT_EQ(GetKeyOrValue("key=a=b", false), "key");
    EXPECT_EQ(GetKeyOrValue("key=a=b", true), "a=b");
}

TEST(GetKeyOrValue, OfALineWithoutOneIsAllKey) {
    EXPECT_EQ(GetKeyOrValue("[Section]", false), "[Section]");
    EXPECT_EQ(GetKeyOrValue("[Section]", true), "");
}

TEST(GetKeyOrValue, WithTheSignInFrontHasNoKey) {
    EXPECT_EQ(GetKeyOrValue("=x", false), "");
    EXPECT_EQ(GetKeyOrValue("=x", true), "x");
}

TEST(GetQuotedWord, KeepsAQuotedBlankAndTheQuotes) {
    EXPECT_EQ(GetQuotedWord("bind \"a b\" c", 0), "bind");
    EXPECT_EQ(GetQuotedWord("bind \"a b\" c", 1), "\"a b\"");
    EXPECT_EQ(GetQuotedWord("bind \"a b\" c", 2), "c");
}

TEST(GetQuotedWord, BehindTheLastIsEmpty) {
    EXPECT_EQ(GetQuotedWord("bind a", 2), "");
    EXPECT_EQ(GetQuotedWord("", 0), "");
    EXPECT_EQ(GetQuotedWord("   ", 0), "");
}

TEST(GetQuotedWord, PassesOverManyBlanks) {
    EXPECT_EQ(GetQuotedWord("   a    b  ", 1), "b");
}

TEST(GetQuotedWord, RunsToTheBlankBehindTheClosingQuote) {
    EXPECT_EQ(GetQuotedWord("x \"a b\"c d", 1), "\"a b\"c");
}

TEST(GetQuotedWord, OpensAQuoteInsideAWord) {
    EXPECT_EQ(GetQuotedWord("say=\"a b\" c", 0), "say=\"a b\"");
}

TEST(GetQuotedWord, WithoutAClosingQuoteRunsToTheEnd) {
    EXPECT_EQ(GetQuotedWord("x \"a b c", 1), "\"a b c");
}

TEST(GetQuotedWord, BelowZeroIsEmpty) {
    EXPECT_EQ(GetQuotedWord("a b", -1), "");
}

TEST(PadToWidth, FillsWithBlanks) {
    EXPECT_EQ(PadToWidth("ab", 5), "ab   ");
}

TEST(PadToWidth, KeepsTheFirstHundredOfALongName) {
    EXPECT_EQ(PadToWidth(Text(100, 'a') + Text(20, 'b'), 100), Text(100, 'a'));
}

TEST(PadToWidth, LeavesAnExactOne) {
    EXPECT_EQ(PadToWidth("abc", 3), "abc");
}

TEST(DropRight, CutsTheEnd) {
    EXPECT_EQ(DropRight("abcd", 3), "a");
}

TEST(DropRight, OfATextThatIsTooShortIsEmpty) {
    EXPECT_EQ(DropRight("ab", 3), "");
}

TEST(DropRight, OfItsWholeLengthIsEmpty) {
    EXPECT_EQ(DropRight("ab", 2), "");
}

TEST(DropRight, OfNothingChangesNothing) {
    EXPECT_EQ(DropRight("ab", 0), "ab");
}

TEST(DropLeft, CutsTheFront) {
    EXPECT_EQ(DropLeft("-game ctf", 6), "ctf");
}

TEST(DropLeft, OfATextThatIsTooShortIsEmpty) {
    EXPECT_EQ(DropLeft("ab", 3), "");
}

TEST(ReplaceSameLength, OverwritesEachOne) {
    EXPECT_EQ(ReplaceSameLength("C:/QUAKE/ID1", "/", "\\"), "C:\\QUAKE\\ID1");
}

TEST(ReplaceSameLength, BeginsAtAMatchInFront) {
    EXPECT_EQ(ReplaceSameLength("/a/b", "/", "\\"), "\\a\\b");
}

TEST(ReplaceSameLength, LeavesATextWithoutAMatch) {
    EXPECT_EQ(ReplaceSameLength("abc", "/", "\\"), "abc");
}

TEST(ReplaceSameLength, OfTheSameChangesNothing) {
    EXPECT_EQ(ReplaceSameLength("a.b", ".", "."), "a.b");
}

TEST(ReplaceSameLength, WritesAsMuchAsTheShorterOne) {
    EXPECT_EQ(ReplaceSameLength("aXbX", "X", "12"), "a1b1");
    EXPECT_EQ(ReplaceSameLength("aXYb", "XY", "1"), "a1Yb");
}

TEST(ReplaceSameLength, EndsAtALaterMatchInFront) {
    // "aab" becomes "aba", and that "ab" in front ends the work.
    EXPECT_EQ(ReplaceSameLength("aab", "ab", "ba"), "aba");
}

TEST(ReplaceSameLength, LooksAgainAtWhatItWrote) {
    EXPECT_EQ(ReplaceSameLength("xaab", "ab", "ba"), "xbaa");
}

TEST(ReplaceSameLength, OfAReplacementThatReproducesTheFindEnds) {
    EXPECT_EQ(ReplaceSameLength("xab", "ab", "a"), "xab");
    EXPECT_EQ(ReplaceSameLength("xa", "a", "ab"), "xa");
}

TEST(ReplaceSameLength, OfAnEmptyFindChangesNothing) {
    EXPECT_EQ(ReplaceSameLength("abc", "", "x"), "abc");
}

TEST(ReplaceText, ReplacesEachOneOfAnyLength) {
    EXPECT_EQ(ReplaceText("a-b-c", "-", "--"), "a--b--c");
    EXPECT_EQ(ReplaceText("a--b--c", "--", "-"), "a-b-c");
    EXPECT_EQ(ReplaceText("axbxc", "x", ""), "abc");
}

TEST(ReplaceText, DoesNotLookAtWhatItInserted) {
    EXPECT_EQ(ReplaceText("a;b", ";", ";;"), "a;;b");
}

TEST(ReplaceText, ReplacesAMatchInFront) {
    EXPECT_EQ(ReplaceText("C:\\Q;C:\\Q", "C:", "D:"), "D:\\Q;D:\\Q");
}

TEST(ReplaceText, EndsAtASecondMatchInFront) {
    EXPECT_EQ(ReplaceText("set set x", "set ", ""), "set x");
    EXPECT_EQ(ReplaceText(";;;a;;b", ";", ""), ";;a;;b");
}

TEST(ReplaceText, GoesOnWhenTheSecondMatchIsNotInFront) {
    EXPECT_EQ(ReplaceText("set a set b", "set ", ""), "a b");
}

TEST(ReplaceText, RemovesNeighboursThatAreNotInFront) {
    EXPECT_EQ(ReplaceText("a;;b", ";", ""), "ab");
}

TEST(ReplaceText, IsCaseSensitive) {
    EXPECT_EQ(ReplaceText("c:\\C:\\", "C:", "D:"), "c:\\D:\\");
}

TEST(ReplaceText, LeavesATextWithoutAMatch) {
    EXPECT_EQ(ReplaceText("abc", "x", "y"), "abc");
}

TEST(TrimWhite, OfNothingButBlanksAndLineEndsIsEmpty) {
    EXPECT_EQ(TrimWhite(" \r\n\t \r\n"), "");
}

TEST(TrimWhite, TakesTheFiveCharactersAtBothEnds) {
    EXPECT_EQ(TrimWhite(Text("\0\t \r\na b\n\r \t\0", 13)), "a b");
}

TEST(TrimWhite, KeepsOtherControlCharacters) {
    EXPECT_EQ(TrimWhite("\v a\f"), "\v a\f");
}

TEST(Trim, TakesBlanksOnly) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(Trim("   "), "");
}

TEST(TrimmedView, IsAPartOfTheText) {
    constexpr TextView text = "  a b ";
    EXPECT_EQ(TrimmedView(text), "a b");
    EXPECT_EQ(TrimmedView(text).data(), text.data() + 2);
    EXPECT_EQ(TrimmedView("   "), "");
    EXPECT_EQ(TrimmedView(""), "");
}

TEST(FieldStringViews, AreStretchesOfTheText) {
    const Text line = "  bind \"a b\"  ";
    EXPECT_EQ(QuotedWordView(line, 1), "\"a b\"");
    EXPECT_EQ(StripQuotesView(QuotedWordView(line, 1)), "a b");
    EXPECT_EQ(StripQuotesView(QuotedWordView(line, 1)).data(), line.data() + 8);
    constexpr TextView ini = "a=b=c";
    EXPECT_EQ(KeyOrValueView(ini, false), "a");
    EXPECT_EQ(KeyOrValueView(ini, true), "b=c");
    EXPECT_EQ(KeyOrValueView(ini, true).data(), ini.data() + 2);
}

TEST(StripQuotes, TakesOneOfEach) {
    EXPECT_EQ(StripQuotes("\"a b\""), "a b");
    EXPECT_EQ(StripQuotes("\"\"a\"\""), "\"a\"");
}

TEST(StripQuotes, TakesASingleSide) {
    EXPECT_EQ(StripQuotes("a\""), "a");
    EXPECT_EQ(StripQuotes("\"a"), "a");
}

TEST(StripQuotes, OfASingleQuoteIsEmpty) {
    EXPECT_EQ(StripQuotes("\""), "");
    EXPECT_EQ(StripQuotes("\"\""), "");
    EXPECT_EQ(StripQuotes(""), "");
}

TEST(LastPathPart, StandsBehindTheLastBackslash) {
    EXPECT_EQ(LastPathPart("C:\\QUAKE\\quake.exe"), "quake.exe");
}

TEST(LastPathPart, OfAPathWithoutOneIsTheWhole) {
    EXPECT_EQ(LastPathPart("quake.exe"), "quake.exe");
    EXPECT_EQ(LastPathPart("  quake.exe"), "quake.exe");
}

TEST(LastPathPart, OfADirectoryWithABackslashIsEmpty) {
    EXPECT_EQ(LastPathPart("C:\\QUAKE\\"), "");
}

TEST(DirectoryOf, IsThePathWithoutItsLastPart) {
    EXPECT_EQ(DirectoryOf("C:\\QUAKE\\quake.exe"), "C:\\QUAKE");
    EXPECT_EQ(DirectoryOf("C:\\quake.exe"), "C:");
    EXPECT_EQ(DirectoryOf("quake.exe"), "");
}

TEST(PathBelow, HasOneBackslashBetweenDirectoryAndName) {
    EXPECT_EQ(PathBelow("C:\\QUAKE", "id1"), "C:\\QUAKE\\id1");
    EXPECT_EQ(PathBelow("C:\\", "QUAKE"), "C:\\QUAKE");
    EXPECT_EQ(PathBelow("C:\\QUAKE", ""), "C:\\QUAKE\\");
    EXPECT_EQ(PathBelow("C:\\QUAKE\\", ""), "C:\\QUAKE\\");
}

TEST(Holds, IsCaseSensitive) {
    EXPECT_TRUE(Holds("c:\\sinistar", "sin"));
    EXPECT_FALSE(Holds("c:\\sinistar", "SIN"));
}

// Whatever a damaged store holds, each function gives an answer, and the fields of a list are its own bytes.
TEST(FieldStrings, SurviveHostileTexts) {
    std::mt19937 random(20261121);
    const TextView alphabet("a;; \"\\=,&\0\r\n/\xFF.", 15);
    for (int round = 0; round < 2000; ++round) {
        Text text;
        for (std::size_t length = random() % 60; length > 0; --length) {
            text += alphabet[random() % alphabet.size()];
        }
        const Text find(1 + random() % 3, alphabet[random() % alphabet.size()]);
        const Text with(random() % 4, alphabet[random() % alphabet.size()]);
        const Index count = CountDelimiters(text, find);
        EXPECT_LE(static_cast<std::size_t>(count), text.size());
        const Text field = GetField(text, static_cast<Index>(random() % 100), find);
        EXPECT_NE(text.find(field), Text::npos);
        EXPECT_EQ(ReplaceSameLength(text, find, with).size(), text.size());
        EXPECT_LE(ReplaceText(text, find, with).size(), text.size() + text.size() * with.size());
        EXPECT_LE(GetQuotedWord(text, static_cast<Index>(random() % 9)).size(), text.size());
        EXPECT_LE(TrimWhite(StripQuotes(Trim(text))).size(), text.size());
        EXPECT_LE(LastPathPart(text).size() + DirectoryOf(text).size(), text.size());
        EXPECT_EQ(GetKeyOrValue(text, false), text.substr(0, text.find('=')));
    }
}

TEST(FieldStrings, SurviveAHundredThousandFields) {
    Text list;
    for (int i = 0; i < 100'000; ++i) {
        list += "ab;";
    }
    EXPECT_EQ(CountDelimiters(list, ";"), 32767);
    EXPECT_EQ(GetField(list, 32767, ";"), "ab");
    EXPECT_EQ(ReplaceText(list, "ab", "c").size(), 200'000U);
    EXPECT_EQ(ReplaceSameLength(list, ";", ",").find(';'), Text::npos);
    EXPECT_EQ(LastPathPart(ReplaceSameLength(list, ";", "\\")), "");
}

}  // namespace
}  // namespace lv
