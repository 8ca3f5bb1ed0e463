#include "platform/command_text.h"

#include <gtest/gtest.h>

#include <string>

namespace lv {

namespace {

struct Row {
    const char* Text;
    bool Nobody;
    bool DosShell;
    bool CommandProcessor;
    bool Batch;
};

// clang-format off
constexpr Row kRows[] = {
    // text                      nobody  DOS's   cmd's   a batch's
    {"",                         true,   true,   true,   true},
    {"ctf",                      true,   true,   true,   true},
    {"10.0.0.1:27500",           true,   true,   true,   true},
    {"[2001:db8::1]:27500",      true,   true,   true,   true},
    {"\xC4ngste",                true,   true,   true,   true},
    {"q~1!#$'-@_`{}+",           true,   true,   true,   true},
    {"a b",                      true,   false,  false,  false},
    {"x +connect evil.example",  true,   false,  false,  false},
    {"\"a b\"",                  true,   false,  true,   true},
    {"INI=\"my own.ini\"",       true,   false,  true,   false},
    {"\"a b",                    true,   false,  false,  false},
    {"a\"b",                     true,   false,  false,  false},
    {"a&b",                      true,   false,  false,  false},
    {"a|b",                      true,   false,  false,  false},
    {"d>quake.exe",              true,   false,  false,  false},
    {"a<b",                      true,   false,  false,  false},
    {"a^b",                      true,   false,  false,  false},
    {"%windir%",                 true,   false,  false,  false},
    {"50%",                      true,   false,  false,  false},
    {"\"50%\"",                  true,   false,  false,  false},
    {"\"a & b\"",                true,   false,  true,   false},
    {"\"a\"&\"b\"",              true,   false,  false,  false},
    {"a;b",                      true,   false,  true,   false},
    {"a,b",                      true,   true,   true,   false},
    {"a=b",                      true,   true,   true,   false},
    {"a(b)",                     true,   true,   true,   false},
    {"a\tb",                     false,  false,  false,  false},
    {"a\rb",                     false,  false,  false,  false},
    {"a\nb",                     false,  false,  false,  false},
    {"a\x1A" "b",                false,  false,  false,  false},
    {"a\x7F",                    false,  false,  false,  false},
};
// clang-format on

}  // namespace

TEST(ReadsAsOneWord, KnowsWhatEachReaderTakesForMoreThanText) {
    for (const Row& row : kRows) {
        EXPECT_EQ(ReadsAsOneWord(row.Text, LineReader::kNobody), row.Nobody) << row.Text;
        EXPECT_EQ(ReadsAsOneWord(row.Text, LineReader::kDosShell), row.DosShell) << row.Text;
        EXPECT_EQ(ReadsAsOneWord(row.Text, LineReader::kCommandProcessor), row.CommandProcessor) << row.Text;
        EXPECT_EQ(ReadsAsOneWord(row.Text, LineReader::kBatch), row.Batch) << row.Text;
    }
}

TEST(ReadsAsOneWord, NoReaderTakesAZeroByteForText) {
    EXPECT_FALSE(ReadsAsOneWord(std::string("a\0b", 3), LineReader::kNobody));
}

TEST(IsBatchName, KnowsBothEndingsInAnyCaseAndWhatMayStandBehind) {
    EXPECT_TRUE(IsBatchName("go.bat"));
    EXPECT_TRUE(IsBatchName("C:\\GO.CMD"));
    EXPECT_TRUE(IsBatchName("go.bat. ."));
    EXPECT_FALSE(IsBatchName("go.exe"));
    EXPECT_FALSE(IsBatchName("bat"));
    EXPECT_FALSE(IsBatchName(""));
}

}  // namespace lv
