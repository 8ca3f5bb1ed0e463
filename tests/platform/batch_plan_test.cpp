#include "platform/starting/batch_plan.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

using Strings = std::vector<std::string>;
using Pairs = std::vector<std::pair<std::string, std::string>>;

constexpr const char* kWorkedExample =
    "SET FX_GLIDE_SWAPINTERVAL=0\r\nSET SST_RGAMMA=1.7\r\nC:\r\ncd C:\\QUAKE\r\n"
    "GLQUAKE.EXE -zone 512 -heapsize 16384 -width 640 +exec lv_666.qs";

struct WordsCase {
    const char* Command;
    std::vector<std::string> Words;
};

class SplitArgumentsTable : public testing::TestWithParam<WordsCase> {};

}  // namespace

TEST(ParseBatch, ReadsEveryPartOfALaunchBatch) {
    const BatchPlan plan = ParseBatch(kWorkedExample);
    EXPECT_EQ(plan.environment, (Pairs{{"FX_GLIDE_SWAPINTERVAL", "0"}, {"SST_RGAMMA", "1.7"}}));
    EXPECT_FALSE(plan.showsEnvironment);
    EXPECT_EQ(plan.drive, "C:");
    EXPECT_EQ(plan.directory, "C:\\QUAKE");
    EXPECT_EQ(plan.command, "GLQUAKE.EXE -zone 512 -heapsize 16384 -width 640 +exec lv_666.qs");
}

TEST(ParseBatch, ReadsABatchOfThreeLines) {
    const BatchPlan plan = ParseBatch("C:\r\ncd C:\\QUAKE\r\nQUAKE.EXE");
    EXPECT_TRUE(plan.environment.empty());
    EXPECT_EQ(plan.drive, "C:");
    EXPECT_EQ(plan.command, "QUAKE.EXE");
}

TEST(ParseBatch, SeesSetAndPauseBehindTheLastSetLine) {
    const BatchPlan plan = ParseBatch("SET A=1\r\nSET\r\nPAUSE\r\nC:\r\ncd C:\\QUAKE\r\nQUAKE.EXE");
    EXPECT_TRUE(plan.showsEnvironment);
    EXPECT_EQ(plan.environment, (Pairs{{"A", "1"}}));
    EXPECT_EQ(plan.command, "QUAKE.EXE");
}

TEST(ParseBatch, TakesTheQuotesFromADirectoryWithABlank) {
    EXPECT_EQ(ParseBatch("D:\r\ncd \"D:\\My Games\\Quake\"\r\nQUAKE.EXE").directory, "D:\\My Games\\Quake");
}

TEST(ParseBatch, KeepsBothOfTwoLinesForOneVariableInOrder) {
    EXPECT_EQ(ParseBatch("SET A=1\r\nSET B=2\r\nSET A=3\r\n").environment, (Pairs{{"A", "1"}, {"B", "2"}, {"A", "3"}}));
}

TEST(ParseBatch, KeepsEverythingBehindTheFirstEqualsSign) {
    EXPECT_EQ(ParseBatch("SET A= x=\"y z\" %PATH% & ; | > $HOME `id` ").environment,
              (Pairs{{"A", " x=\"y z\" %PATH% & ; | > $HOME `id` "}}));
}

TEST(ParseBatch, KeepsAnEmptyValue) {
    EXPECT_EQ(ParseBatch("SET A=").environment, (Pairs{{"A", ""}}));
}

TEST(ParseBatch, KeepsAllByteValues) {
    EXPECT_EQ(ParseBatch("SET A=\x80\xE9\xFF").environment, (Pairs{{"A", "\x80\xE9\xFF"}}));
}

TEST(ParseBatch, ReadsCommandWordsInAnyCase) {
    const BatchPlan plan = ParseBatch("set A=1\r\nc:\r\nCD C:\\QUAKE\r\nquake.exe");
    EXPECT_EQ(plan.environment, (Pairs{{"A", "1"}}));
    EXPECT_EQ(plan.drive, "c:");
    EXPECT_EQ(plan.directory, "C:\\QUAKE");
}

TEST(ParseBatch, JoinsACommandThatALineEndHasBroken) {
    const BatchPlan plan = ParseBatch("C:\r\ncd C:\\HL\r\nHL.EXE -console +password x\r\nconnect 1.2.3.4:27015 ");
    EXPECT_EQ(plan.command, "HL.EXE -console +password x connect 1.2.3.4:27015");
}

TEST(ParseBatch, TakesNoLineBehindTheCommandForASetting) {
    const BatchPlan plan = ParseBatch("C:\r\ncd C:\\HL\r\nHL.EXE\r\nSET LD_PRELOAD=evil.so\r\nD:\r\ncd D:\\\r\nPAUSE");
    EXPECT_TRUE(plan.environment.empty());
    EXPECT_FALSE(plan.showsEnvironment);
    EXPECT_EQ(plan.drive, "C:");
    EXPECT_EQ(plan.directory, "C:\\HL");
    EXPECT_EQ(plan.command, "HL.EXE SET LD_PRELOAD=evil.so D: cd D:\\ PAUSE");
}

TEST(ParseBatch, ReadsAGameWhoseNameStartsLikeAKeyword) {
    EXPECT_EQ(ParseBatch("C:\r\nSETUP.EXE -a").command, "SETUP.EXE -a");
    EXPECT_EQ(ParseBatch("C:\r\nCDPLAYER.EXE").command, "CDPLAYER.EXE");
}

TEST(ParseBatch, ReadsLineEndsOfEitherSystem) {
    const BatchPlan plan = ParseBatch("SET A=1\nC:\ncd C:\\QUAKE\nQUAKE.EXE\n");
    EXPECT_EQ(plan.environment, (Pairs{{"A", "1"}}));
    EXPECT_EQ(plan.command, "QUAKE.EXE");
}

TEST(ParseBatch, FindsNothingInNothing) {
    EXPECT_EQ(ParseBatch("").command, "");
    EXPECT_EQ(ParseBatch("\r\n\r\n").command, "");
    EXPECT_EQ(ParseBatch("SET A=1\r\nC:\r\ncd C:\\QUAKE").command, "");
}

TEST(ReadBatchLines, KeepsEachLineAsItStands) {
    const std::vector<BatchLine> lines = ReadBatchLines("SET A= b \r\nSET\r\nC:\r\ncd  X \r\nGO  now ");
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[0].Kind, BatchLineKind::kSet);
    EXPECT_EQ(lines[0].Text, "SET A= b ");
    EXPECT_EQ(lines[1].Kind, BatchLineKind::kShow);
    EXPECT_EQ(lines[2].Kind, BatchLineKind::kDrive);
    EXPECT_EQ(lines[3].Kind, BatchLineKind::kDirectory);
    EXPECT_EQ(lines[3].Text, "cd  X ");
    EXPECT_EQ(lines[4].Kind, BatchLineKind::kCommand);
    EXPECT_EQ(lines[4].Text, "GO  now ");
}

TEST_P(SplitArgumentsTable, GivesTheseWords) {
    EXPECT_EQ(SplitArguments(GetParam().Command), GetParam().Words);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, SplitArgumentsTable,
    testing::Values(
        WordsCase{"", {}}, WordsCase{"  \t ", {}}, WordsCase{"a b  c\td", {"a", "b", "c", "d"}},
        WordsCase{R"("abc" d e)", {"abc", "d", "e"}}, WordsCase{R"("a b c" d e)", {"a b c", "d", "e"}},
        WordsCase{R"("ab\"c" "\\" d)", {"ab\"c", "\\", "d"}},
        WordsCase{R"(a\\\b d"e f"g h)", {R"(a\\\b)", "de fg", "h"}}, WordsCase{R"(a\\\"b c d)", {R"(a\"b)", "c", "d"}},
        WordsCase{R"(a\\\\"b c" d e)", {R"(a\\b c)", "d", "e"}}, WordsCase{R"(a"b"" c d)", {"ab\" c d"}},
        WordsCase{R"("" x)", {"", "x"}}, WordsCase{R"(a"")", {"a"}}, WordsCase{R"(C:\QUAKE\)", {"C:\\QUAKE\\"}},
        WordsCase{R"("C:\My Games\\" x)", {"C:\\My Games\\", "x"}}, WordsCase{R"(\" x)", {"\"", "x"}},
        WordsCase{R"("never closed)", {"never closed"}}, WordsCase{R"(a\)", {"a\\"}},
        WordsCase{"$(id) `id` ; & | > %PATH% * ~ '", {"$(id)", "`id`", ";", "&", "|", ">", "%PATH%", "*", "~", "'"}}));

TEST(SplitArguments, TakesAGivenWordWholeWhateverItHolds) {
    EXPECT_EQ(
        SplitArguments("-game x +connect evil.example -a", {{6, "x +connect evil.example", "x +connect evil.example"}}),
        (Strings{"-game", "x +connect evil.example", "-a"}));
    EXPECT_EQ(SplitArguments("-game a\" \"b\\ -a", {{6, "a\" \"b\\", "a\" \"b\\"}}),
              (Strings{"-game", "a\" \"b\\", "-a"}));
    EXPECT_EQ(SplitArguments("INI=\"a\" +x \"b.ini\" -a", {{0, "\"a\" +x \"b.ini\"", "a\" +x \"b.ini", "INI="}}),
              (Strings{"INI=a\" +x \"b.ini", "-a"}));
}

TEST(SplitArguments, TakesAGivenWordAtItsPlaceWhateverElseReadsLikeIt) {
    EXPECT_EQ(SplitArguments("-zone 512 -game 512 -game -a", {{16, "512 -game", "512 -game"}}),
              (Strings{"-zone", "512", "-game", "512 -game", "-a"}));
    EXPECT_EQ(SplitArguments("a b a b", {{4, "a b", "a b"}}), (Strings{"a", "b", "a b"}));
    EXPECT_EQ(SplitArguments("a b a b", {{0, "a b", "a b"}, {4, "a b", "a b"}}), (Strings{"a b", "a b"}));
}

TEST(SplitArguments, LetsNoQuoteOfTheUsersReachIntoAGivenWord) {
    EXPECT_EQ(SplitArguments("\"open a b -c", {{6, "a b", "a b"}}), (Strings{"open ", "a b", "-c"}));
}

TEST(ParseBatch, CountsThePlacesOfGivenWordsInTheCommand) {
    const BatchPlan plan = ParseBatch("C:\r\ncd C:\\HL\r\n HL.EXE +password a b \r\n connect c d ",
                                      {{32, "a b", "a b"}, {47, "c d", "c d"}});
    EXPECT_EQ(plan.command, "HL.EXE +password a b connect c d");
    ASSERT_EQ(plan.given.size(), 2u);
    EXPECT_EQ(plan.given[0].At, 17u);
    EXPECT_EQ(plan.given[1].At, 29u);
    EXPECT_EQ(SplitArguments(plan.command, plan.given), (Strings{"HL.EXE", "+password", "a b", "connect", "c d"}));
}

TEST(ParseBatch, LeavesOutGivenWordsThatAreNotAtTheirPlaces) {
    constexpr const char* kBatch = "C:\r\ncd C:\\Q\r\nQ.EXE -game x y\r\nmore";
    EXPECT_EQ(ParseBatch(kBatch, {{25, "x y", "x y"}}).given.size(), 1u);
    EXPECT_EQ(ParseBatch(kBatch, {{24, "x y", "x y"}}).given.size(), 0u);
    EXPECT_EQ(ParseBatch(kBatch, {{25, "x z", "x z"}}).given.size(), 0u);
    EXPECT_EQ(ParseBatch(kBatch, {{0, "C:", "C:"}}).given.size(), 0u);
    EXPECT_EQ(ParseBatch(kBatch, {{27, "y\r\nmore", "y"}}).given.size(), 0u);
    EXPECT_EQ(ParseBatch(kBatch, {{1000, "x y", "x y"}}).given.size(), 0u);
    EXPECT_EQ(ParseBatch(kBatch, {{1000, "", ""}}).given.size(), 0u);
    EXPECT_EQ(ParseBatch(kBatch, {{25, "x y", "x y"}, {27, "y", "y"}}).given.size(), 1u);
}

TEST(ParseBatch, TakesTheBackslashesOfANetworkForADrive) {
    const BatchPlan plan = ParseBatch("\\\\\r\ncd \"\\\\server\\games\\quake\"\r\nGLQUAKE.EXE -a");
    EXPECT_EQ(plan.drive, "");
    EXPECT_EQ(plan.directory, "\\\\server\\games\\quake");
    EXPECT_EQ(plan.command, "GLQUAKE.EXE -a");
}

}  // namespace lv
