#include "platform/linux/start_report.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace lv {

namespace {

/// The code of a process that could not become its program, and reports that into the pipe.
int CodeOfFailure(int pipe, StartStage stage, int number) {
    const pid_t child = fork();
    if (child == 0) {
        FailStart(pipe, stage, number);
    }
    int status = -1;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

TEST(FailStart, ReportsTheStageAndTheSystemsNumberAndEndsTheProcess) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    EXPECT_EQ(CodeOfFailure(ends[1], StartStage::kDirectory, ENOENT), 127);
    EXPECT_EQ(CodeOfFailure(ends[1], StartStage::kProgram, EACCES), 127);
    close(ends[1]);
    StartReport report;
    ASSERT_EQ(read(ends[0], &report, sizeof report), static_cast<ssize_t>(sizeof report));
    EXPECT_EQ(report.At, StartStage::kDirectory);
    EXPECT_EQ(report.Number, ENOENT);
    ASSERT_EQ(read(ends[0], &report, sizeof report), static_cast<ssize_t>(sizeof report));
    EXPECT_EQ(report.At, StartStage::kProgram);
    EXPECT_EQ(report.Number, EACCES);
    EXPECT_EQ(read(ends[0], &report, sizeof report), 0);
    close(ends[0]);
}

TEST(FailStart, EndsWithACodeOfItsOwnWhereNobodyTakesTheReport) {
    EXPECT_EQ(CodeOfFailure(-1, StartStage::kFork, EAGAIN), 126);
}

}  // namespace lv
