#include "platform/windows/command_line.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/windows/system.h"

namespace lv {

namespace {

// As the system takes the line apart.
std::vector<std::wstring> Apart(const std::wstring& words) {
    int count = 0;
    wchar_t** apart = CommandLineToArgvW((L"program.exe " + words).c_str(), &count);
    std::vector<std::wstring> found(apart + 1, apart + count);
    LocalFree(apart);
    return found;
}

}  // namespace

TEST(QuotedWord, StaysAsItIsWithoutBlanksAndQuotes) {
    EXPECT_EQ(QuotedWord(L"+map"), L"+map");
    EXPECT_EQ(QuotedWord(L"c:\\quake\\"), L"c:\\quake\\");
}

TEST(QuotedWord, IsInQuotesWithThem) {
    EXPECT_EQ(QuotedWord(L""), L"\"\"");
    EXPECT_EQ(QuotedWord(L"a b"), L"\"a b\"");
    EXPECT_EQ(QuotedWord(L"a\"b"), L"\"a\\\"b\"");
    EXPECT_EQ(QuotedWord(L"c:\\my games\\"), L"\"c:\\my games\\\\\"");
    EXPECT_EQ(QuotedWord(L"a\\\\\"b"), L"\"a\\\\\\\\\\\"b\"");
}

TEST(QuotedWords, AreTakenApartAsTheyWere) {
    std::mt19937 random(1999);
    const std::wstring letters = L"ab \\\"\t";
    for (int round = 0; round < 500; ++round) {
        std::vector<std::wstring> words(random() % 5);
        for (std::wstring& word : words) {
            for (unsigned length = random() % 9; length > 0; --length) {
                word += letters[random() % letters.size()];
            }
        }
        EXPECT_EQ(Apart(QuotedWords(words)), words) << round;
    }
}

}  // namespace lv
