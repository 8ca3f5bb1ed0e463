#include "platform/linux/files/read_once.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

bool HasNews(int watch) {
    pollfd news{watch, POLLIN, 0};
    return poll(&news, 1, 0) == 1;
}

}  // namespace

TEST(WatchForOpening, TellsThatTheFileWasOpenedFromThenOn) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "once.bat", "x");
    EXPECT_EQ(BytesOf(scratch / "once.bat"), "x");
    const int watch = WatchForOpening((scratch / "once.bat").string());
    ASSERT_GE(watch, 0);
    EXPECT_FALSE(HasNews(watch));
    EXPECT_EQ(BytesOf(scratch / "once.bat"), "x");
    EXPECT_TRUE(HasNews(watch));
    close(watch);
}

TEST(WatchForOpening, TellsThatTheFileIsGone) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "once.bat", "x");
    const int watch = WatchForOpening((scratch / "once.bat").string());
    std::filesystem::remove(scratch / "once.bat");
    EXPECT_TRUE(HasNews(watch));
    close(watch);
}

TEST(WatchForOpening, HasNoDescriptorForAFileThatIsNotThere) {
    const ScratchDirectory scratch;
    EXPECT_EQ(WatchForOpening((scratch / "none").string()), -1);
}

TEST(RemoveOnceOpened, LeavesTheFileForASecondLookThenTakesItAway) {
    const ScratchDirectory scratch;
    const std::string file = (scratch / "once.bat").string();
    WriteBytes(file, "x");
    const int watch = WatchForOpening(file);
    const pid_t child = fork();
    if (child == 0) {
        RemoveOnceOpened(watch, file.c_str());
    }
    close(watch);
    EXPECT_EQ(BytesOf(file), "x");
    EXPECT_EQ(BytesOf(file), "x");
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_FALSE(std::filesystem::exists(file));
}

}  // namespace lv
