#include "catalogs/timed_file.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

constexpr std::size_t kBlock = 65536;

class TimedFileTest : public ::testing::Test {
  protected:
    TimedFileTest() {
        disk.AddSparseFile("C:\\pak0.pak", "PACK", 100 * kBlock);
        file = std::move(disk.Open("C:\\pak0.pak").Value);
    }
    MemoryFiles disk;
    MemoryClock clock;
    std::unique_ptr<RandomAccessFile> file;
};

TEST_F(TimedFileTest, ReadsLikeTheFileBelowIt) {
    TimedFile timed(*file, clock, 0.1);
    EXPECT_EQ(timed.Size(), 100 * kBlock);
    EXPECT_EQ(timed.Read(0, 4).Value, "PACK");
    EXPECT_EQ(timed.Read(100 * kBlock, 4).Value, "");
}

TEST_F(TimedFileTest, EndsWhenItsTimeIsOver) {
    TimedFile timed(*file, clock, 0.1);
    for (int i = 0; i < 10; ++i) {
        EXPECT_TRUE(timed.Read(0, kBlock).Ok());
    }
    clock.Elapsed += 0.2;
    EXPECT_EQ(timed.Read(0, kBlock).Fault.Number, 71);
}

TEST_F(TimedFileTest, ReadsWhatAGamesOwnArchiveNeedsHoweverSlowTheDisk) {
    TimedFile timed(*file, clock, 0.1);
    clock.Step = 10;
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(timed.Read(0, kBlock).Ok()) << i;
    }
    EXPECT_EQ(timed.Read(0, kBlock).Fault.Number, 71);
}

}  // namespace
}  // namespace lv
