#include "gamespy/server_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace lv {
namespace {

TEST(AssembleAddress, TakesTheLastThreeCharactersBeforeTheFirstDot) {
    EXPECT_EQ(AssembleAddress("9999.1.1.1:27500").Address, "999.1.1.1:27500");
    EXPECT_EQ(AssembleAddress("a 99.1.1.1:27500").Address, "99.1.1.1:27500");
}

TEST(AssembleAddress, CutsAColonAndOneCharacterOffTheLastOctet) {
    EXPECT_EQ(AssembleAddress("1.1.1.9:27500").Address, "1.1.1.9:27500");
    EXPECT_EQ(AssembleAddress("1.1.1.99:27500").Address, "1.1.1.99:27500");
}

TEST(AssembleAddress, APortOfTwoCharactersFails) {
    EXPECT_STREQ(AssembleAddress("1.1.1.1:27").Fault, "Could not assemble Port from data");
}

TEST(AssembleAddress, PortsHaveThreeToFiveCharacters) {
    EXPECT_EQ(AssembleAddress("1.1.1.1:275").Address, "1.1.1.1:275");
    EXPECT_EQ(AssembleAddress("1.1.1.1:2750").Address, "1.1.1.1:2750");
    EXPECT_EQ(AssembleAddress("1.1.1.1:27500").Address, "1.1.1.1:27500");
}

TEST(AssembleAddress, LooksAtTenThousandBlanksAndNoMore) {
    EXPECT_EQ(AssembleAddress("1.1.1.1:" + Text(10000, ' ') + "27500").Address, "1.1.1.1:27500");
    EXPECT_STREQ(AssembleAddress("1.1.1.1:" + Text(10005, ' ') + "27500").Fault, "Could not assemble Port from data");
}

TEST(AssembleAddress, LooksTenThousandCharactersFarForTheColon) {
    EXPECT_EQ(AssembleAddress("1.1.1." + Text(10000, '1') + ":27500").Address, "1.1.1.111:27500");
    EXPECT_EQ(AssembleAddress("1.1.1." + Text(20000, '1') + ":27500").Address, "1.1.1.111:11111");
}

TEST(AssembleAddress, RandomTextNeverGivesAnAddressThatEndsAWordOrACommand) {
    std::mt19937 random(20);
    const Text alphabet = Text("0123456789....::  \t\r\n;\"|&%^<>aZ\xE9\x7F") + '\0';
    int assembled = 0;
    for (int round = 0; round < 50000; ++round) {
        Text text = "43 10.0.0.1:27500 Home";
        for (std::size_t changes = random() % 8; changes > 0; --changes) {
            text[random() % text.size()] = alphabet[random() % alphabet.size()];
        }
        text.resize(text.size() - random() % 5);
        const AssembledAddress read = AssembleAddress(text);
        if (read.Fault == nullptr) {
            ++assembled;
            ASSERT_EQ(read.Address.find_first_not_of("0123456789.:aZ"), Text::npos) << text;
            ASSERT_EQ(std::count(read.Address.begin(), read.Address.end(), ':'), 1) << text;
        } else {
            ASSERT_EQ(read.Address, "") << text;
        }
    }
    EXPECT_GT(assembled, 10000);
}

TEST(AssembleAddress, AllBytesAndHugeTextsAreRead) {
    std::mt19937 random(21);
    for (int round = 0; round < 50; ++round) {
        Text text;
        for (std::size_t length = random() % 20000; length > 0; --length) {
            text += static_cast<char>(random());
        }
        const AssembledAddress read = AssembleAddress(text);
        EXPECT_EQ(read.Address.empty(), read.Fault != nullptr);
        const Text marked = MarkLines(text);
        const Index lines = std::min<Index>(CountLines(marked), 50);
        for (Index line = 0; line < lines; ++line) {
            const CapturedServer server = ReadListedServer(LineAt(marked, line), line % 2 == 0);
            EXPECT_LE(server.Host.size(), marked.size());
            EXPECT_EQ(server.Host.find('\n'), Text::npos);
        }
    }
}

TEST(MarkLines, PutsABarForEachLineEnd) {
    EXPECT_EQ(MarkLines("a\r\nb\r\nc"), "a|b|c");
}

TEST(MarkLines, TakesALineFeedAloneAsALineEnd) {
    EXPECT_EQ(MarkLines("a\nb"), "a|b");
}

TEST(MarkLines, DropsWhiteSpaceAtBothEnds) {
    EXPECT_EQ(MarkLines("\r\n \t a b \r\n\r\n"), "a b");
}

TEST(MarkLines, StoresABarInANameAsI) {
    EXPECT_EQ(MarkLines("|clan| one\r\n|clan| two"), "IclanI one|IclanI two");
}

TEST(MarkLines, MakesBlanksOfOtherControlCharacters) {
    EXPECT_EQ(MarkLines("a\tb\x7F\rc"), "a b  c");
}

TEST(CountLines, OfNothingIsOne) {
    EXPECT_EQ(CountLines(""), 1);
    EXPECT_EQ(CountLines("a"), 1);
    EXPECT_EQ(CountLines("a|b"), 2);
}

TEST(CountLines, StaysANumberForMoreLinesThanItCanHold) {
    EXPECT_EQ(CountLines(Text(100000, '|')), 32767);
}

TEST(LineAt, GivesEachLineWithoutBlanksAtItsEnds) {
    EXPECT_EQ(LineAt("a| b c |d", 0), "a");
    EXPECT_EQ(LineAt("a| b c |d", 1), "b c");
    EXPECT_EQ(LineAt("a| b c |d", 2), "d");
}

TEST(IsAddressAlone, HasNoBlank) {
    EXPECT_TRUE(IsAddressAlone("10.0.0.1:27500"));
    EXPECT_FALSE(IsAddressAlone("43 10.0.0.1 27500 Home"));
}

}  // namespace
}  // namespace lv
