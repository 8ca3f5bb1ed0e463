#include "foundry/reading/script_lines.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/foundry/reading.h"
#include "tests/foundry/rounds.h"

namespace lv {
namespace {

std::vector<Text> LinesOf(RandomAccessFile& file) {
    std::vector<Text> all;
    ScriptLines lines(file);
    std::span<char> line;
    while (lines.Next(line)) {
        all.emplace_back(line.begin(), line.end());
        EXPECT_EQ(lines.Number(), all.size());
    }
    EXPECT_FALSE(lines.Next(line)) << "a line behind the last";
    return all;
}

std::vector<Text> LinesOf(TextView bytes) {
    BytesFile file(bytes);
    return LinesOf(file);
}

/// A file that cannot be read from some place on.
class DamagedFile : public BytesFile {
  public:
    DamagedFile(TextView bytes, std::uint64_t goodBytes) : BytesFile(bytes), good_(goodBytes) {}
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        return offset + count > good_ ? MakeError(error::kDeviceFault) : BytesFile::Read(offset, count);
    }

  private:
    std::uint64_t good_;
};

using Lines = std::vector<Text>;

TEST(ScriptLines, EndInCarriageReturnLineFeedOrBoth) {
    EXPECT_EQ(LinesOf("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(LinesOf("a\n\rb"), (Lines{"a", "", "b"}));
    EXPECT_EQ(LinesOf("a\r\r\nb"), (Lines{"a", "", "b"}));
}

TEST(ScriptLines, OfAnEmptyFileAreNone) {
    EXPECT_EQ(LinesOf(""), Lines{});
}

TEST(ScriptLines, AreAsManyWithAndWithoutALastLineEnd) {
    EXPECT_EQ(LinesOf("a\r\n"), Lines{"a"});
    EXPECT_EQ(LinesOf("a\n"), Lines{"a"});
    EXPECT_EQ(LinesOf("a\r"), Lines{"a"});
    EXPECT_EQ(LinesOf("a"), Lines{"a"});
    EXPECT_EQ(LinesOf("\n"), Lines{""});
    EXPECT_EQ(LinesOf("\r\n"), Lines{""});
}

TEST(ScriptLines, KeepAllBytesButLineEndsAndZeros) {
    const Text odd("ab\t\x01\x1A\xFF", 6);
    EXPECT_EQ(LinesOf(odd + "\n" + odd), (Lines{odd, odd}));
}

TEST(ScriptLines, EndBeforeTheHundredAndFirstEmptyLineInARow) {
    EXPECT_EQ(LinesOf(Text(100, '\n') + "b").size(), 101);
    EXPECT_EQ(LinesOf(Text(101, '\n') + "b").size(), 100);
    EXPECT_EQ(LinesOf("a\n" + Text(100, '\n') + "b").back(), "b");
    EXPECT_EQ(LinesOf("a\n" + Text(101, '\n') + "b").back(), "");
}

TEST(ScriptLines, CountEmptyLinesAnewBehindALineThatIsNotEmpty) {
    EXPECT_EQ(LinesOf(Text(100, '\n') + "//\n" + Text(100, '\n') + "b").back(), "b");
    EXPECT_EQ(LinesOf(Text(100, '\n') + " \n" + Text(100, '\n') + "b").back(), "b");
}

TEST(ScriptLines, MayBeLongerThanABlock) {
    const Text longLine(200000, 'x');
    EXPECT_EQ(LinesOf(longLine), Lines{longLine});
    EXPECT_EQ(LinesOf("a\r\n" + longLine + "\r\n" + longLine + "\nb"), (Lines{"a", longLine, longLine, "b"}));
}

TEST(ScriptLines, MayEndAnywhereInABlock) {
    for (std::size_t length = 65530; length < 65542; ++length) {
        for (const char* end : {"\r\n", "\r", "\n"}) {
            const Text first(length, 'x');
            EXPECT_EQ(LinesOf(first + end + "b"), (Lines{first, "b"})) << length;
            EXPECT_EQ(LinesOf(first + end), Lines{first}) << length;
            EXPECT_EQ(LinesOf(first + end + end + "b"), (Lines{first, "", "b"})) << length;
        }
    }
}

TEST(ScriptLines, EndAtAReadError) {
    const Text bytes = "a\nb\n" + Text(65536, 'x') + "\nc\n";
    DamagedFile atOnce(bytes, 0);
    EXPECT_EQ(LinesOf(atOnce), Lines{});
    DamagedFile behindABlock(bytes, 65536);
    EXPECT_EQ(LinesOf(behindABlock), (Lines{"a", "b"}));
}

TEST(ScriptLines, EndWhereAFileHasShrunk) {
    class Shrunk : public BytesFile {
      public:
        using BytesFile::BytesFile;
        [[nodiscard]] std::uint64_t Size() const override { return 1000000; }
    };
    Shrunk file("a\nb\nunfinished");
    EXPECT_EQ(LinesOf(file), (Lines{"a", "b"}));
}

TEST(ScriptLines, MayBeChangedByTheirReader) {
    const Text bytes = "ab\ncd\n" + Text(70000, 'e');
    BytesFile file(bytes);
    ScriptLines lines(file);
    std::span<char> line;
    Text seen;
    while (lines.Next(line)) {
        line[0] = '*';
        seen.append(line.begin(), line.begin() + 2);
    }
    EXPECT_EQ(seen, "*b*d*e");
}

TEST(ScriptLines, ReleasedEarlyGoOnWithTheNext) {
    const Text bytes = Text(70000, 'e') + "\nb\nc";
    BytesFile file(bytes);
    ScriptLines lines(file);
    std::span<char> line;
    Text lengths;
    while (lines.Next(line)) {
        lengths += std::to_string(line.size()) + " ";
        lines.Release();
    }
    EXPECT_EQ(lengths, "70000 1 1 ");
}

TEST(ScriptLines, AreTheSameHoweverTheBytesFall) {
    std::mt19937 random(11);
    for (int round = 0; round < Rounds(200); ++round) {
        Lines expected;
        Text bytes;
        for (std::size_t count = 1 + random() % 20; count > 0; --count) {
            const std::size_t length = random() % 4 == 0 ? random() % 150000 : random() % 30;
            expected.emplace_back(length, static_cast<char>('a' + random() % 26));
            const bool last = count == 1;
            bytes += expected.back() + (last ? "" : random() % 2 == 0 ? "\r\n" : "\n");
        }
        if (expected.back().empty()) {
            expected.pop_back();  // nothing stands behind the last line end
        }
        ASSERT_EQ(LinesOf(bytes), expected) << "round " << round;
    }
}

TEST(ScriptLines, PassOverZeroBytesWhereverTheyStand) {
    EXPECT_EQ(LinesOf(TextView("a\0b\nc", 5)), (Lines{"ab", "c"}));
    EXPECT_EQ(LinesOf(TextView("\0\0ab\0\n\0c\0\0d\0", 12)), (Lines{"ab", "cd"}));
    EXPECT_EQ(LinesOf(TextView("a\n\0\0\nb", 6)), (Lines{"a", "", "b"}));
}

TEST(ScriptLines, EndInCarriageReturnAndLineFeedWithZeroBytesBetween) {
    EXPECT_EQ(LinesOf(TextView("a\0\r\0\n\0b\0", 8)), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf(Join("a\r", Text(70000, '\0'), "\nb")), (Lines{"a", "b"}));
}

TEST(ScriptLines, OfZeroBytesBehindTheLastLineEndAreNone) {
    EXPECT_EQ(LinesOf(TextView("a\n\0\0", 4)), Lines{"a"});
    EXPECT_EQ(LinesOf(TextView("a\r\0\n\0", 5)), Lines{"a"});
    EXPECT_EQ(LinesOf(Text(1, '\0')), Lines{});
}

TEST(ScriptLines, PassOverBlocksOfZeroBytes) {
    const Text holes(3 * 65536 + 100, '\0');
    EXPECT_EQ(LinesOf(holes), Lines());
    EXPECT_EQ(LinesOf(Join("a\nb\n", holes)), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf(Join("a\nb", holes)), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf(Join(holes, "a\nb")), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf(Join("a\n", holes, "b\nc")), (Lines{"a", "b", "c"}));
    EXPECT_EQ(LinesOf(Join("a\nb", holes, "c\nd")), (Lines{"a", "bc", "d"}));
    EXPECT_EQ(LinesOf(Join(Text(65536, 'x'), holes, "\nb")), (Lines{Text(65536, 'x'), "b"}));
}

TEST(ScriptLines, AreTheSameWhateverZeroBytesStandAmongThem) {
    std::mt19937 random(12);
    for (int round = 0; round < Rounds(200); ++round) {
        Text clean;
        Text bytes;
        for (std::size_t count = 1 + random() % 40; count > 0; --count) {
            const Text piece = random() % 2 == 0 ? Text(1, "\r\n"[random() % 2]) : Text(random() % 50000, 'x');
            clean += piece;
            bytes += Join(piece, Text(random() % 8 == 0 ? random() % 150000 : random() % 3, '\0'));
        }
        ASSERT_EQ(LinesOf(bytes), LinesOf(clean)) << "round " << round;
    }
}

}  // namespace
}  // namespace lv
