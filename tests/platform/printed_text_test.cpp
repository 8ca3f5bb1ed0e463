#include "platform/linux/printed_text.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

/// A standard file is that one, or closed, for the life of the object.
class StandardFile {
  public:
    StandardFile(int number, const char* path, int mode) : number_(number), before_(dup(number)) {
        const int file = open(path, mode, 0600);
        dup2(file, number_);
        close(file);
    }
    StandardFile(const StandardFile&) = delete;
    StandardFile& operator=(const StandardFile&) = delete;
    ~StandardFile() {
        dup2(before_, number_);
        close(before_);
    }

  private:
    int number_;
    int before_;
};

}  // namespace

TEST(PrintedText, IsUtf8InTheFileThatWasGiven) {
    const ScratchDirectory scratch;
    const auto path = scratch / "printed";
    Error lost;
    {
        const StandardFile output(STDOUT_FILENO, path.c_str(), O_WRONLY | O_CREAT);
        lost = Print(PrintedTo::Output, "\xE9t\xE9\ntwo\n");
    }
    EXPECT_FALSE(lost);
    EXPECT_EQ(BytesOf(path), "\xC3\xA9t\xC3\xA9\ntwo\n");
}

TEST(PrintedText, WhatIsLostIsAnError) {
    Error full;
    Error nothing;
    {
        const StandardFile output(STDOUT_FILENO, "/dev/full", O_WRONLY);
        full = Print(PrintedTo::Output, "two\n");
        nothing = Print(PrintedTo::Output, "");
    }
    EXPECT_EQ(full.Number, error::kDiskFull);
    EXPECT_FALSE(nothing);
}

TEST(PrintedText, AClosedStandardFileIsHeldAndTakesNothing) {
    Error lost;
    int next = -1;
    {
        const StandardFile output(STDOUT_FILENO, "/dev/null", O_WRONLY);
        close(STDOUT_FILENO);
        HoldStandardFiles();
        next = open("/dev/null", O_WRONLY);
        lost = Print(PrintedTo::Output, "two\n");
        close(next);
    }
    EXPECT_GT(next, STDERR_FILENO);
    EXPECT_TRUE(lost);
}

}  // namespace lv
