#include "platform/linux/files/new_file.h"

#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

std::string NameOf(pid_t process, int number) {
    return ".lv_666_" + std::to_string(process) + "_" + std::to_string(number);
}

}  // namespace

TEST(NewFile, IsCalledByItsProcessAndTheFirstNumberThatIsFree) {
    const ScratchDirectory scratch;
    const NewFile first(scratch.Path().string(), 0600);
    const NewFile second(scratch.Path().string(), 0600);
    EXPECT_TRUE(first.IsOpen());
    EXPECT_TRUE(fs::exists(scratch / NameOf(getpid(), 0)));
    EXPECT_TRUE(fs::exists(scratch / NameOf(getpid(), 1)));
}

TEST(NewFile, HasItsModeLessTheUsersMask) {
    const ScratchDirectory scratch;
    const mode_t before = umask(022);
    const NewFile made(scratch.Path().string(), 0666);
    umask(before);
    struct stat info {};
    ASSERT_EQ(fstat(made.Number(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777u, 0644u);
}

TEST(NewFile, GoesWithItsObject) {
    const ScratchDirectory scratch;
    { const NewFile made(scratch.Path().string(), 0600); }
    EXPECT_TRUE(fs::is_empty(scratch.Path()));
}

TEST(NewFile, StaysOnceItHasMoved) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "a.cfg", "old");
    {
        NewFile made(scratch.Path().string(), 0600);
        ASSERT_EQ(write(made.Number(), "new", 3), 3);
        EXPECT_EQ(made.MoveTo((scratch / "a.cfg").string()), 0);
        EXPECT_FALSE(made.IsOpen());
    }
    EXPECT_EQ(BytesOf(scratch / "a.cfg"), "new");
    EXPECT_FALSE(fs::exists(scratch / NameOf(getpid(), 0)));
}

TEST(NewFile, LeavesNothingWhereItCannotMove) {
    const ScratchDirectory scratch;
    {
        NewFile made(scratch.Path().string(), 0600);
        EXPECT_EQ(made.MoveTo((scratch / "none/a.cfg").string()), ENOENT);
    }
    EXPECT_TRUE(fs::is_empty(scratch.Path()));
}

TEST(NewFile, SaysWhyItCouldNotBeMade) {
    const ScratchDirectory scratch;
    const NewFile made((scratch / "none").string(), 0600);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_FALSE(made.IsOpen());
}

TEST(RemoveLeftovers, LeavesTheFileOfAProcessThatRuns) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / NameOf(getppid(), 0), "half");
    RemoveLeftovers(scratch.Path().string());
    EXPECT_TRUE(fs::exists(scratch / NameOf(getppid(), 0)));
}

TEST(RemoveLeftovers, RemovesThoseOfAProcessThatIsGone) {
    const ScratchDirectory scratch;
    const pid_t gone = fork();
    if (gone == 0) {
        _exit(0);
    }
    waitpid(gone, nullptr, 0);
    WriteBytes(scratch / NameOf(gone, 0), "half");
    WriteBytes(scratch / NameOf(gone, 12), "half");
    RemoveLeftovers(scratch.Path().string());
    EXPECT_TRUE(fs::is_empty(scratch.Path()));
}

TEST(RemoveLeftovers, OfADirectoryThatIsNotThereDoesNothing) {
    const ScratchDirectory scratch;
    RemoveLeftovers((scratch / "none").string());
    EXPECT_FALSE(fs::exists(scratch / "none"));
}

}  // namespace lv
