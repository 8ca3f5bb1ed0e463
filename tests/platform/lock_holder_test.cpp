#include "platform/linux/settings/lock_holder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

bool LockAll(int file, short type) {
    struct flock whole {};
    whole.l_type = type;
    whole.l_whence = SEEK_SET;
    return fcntl(file, F_SETLK, &whole) == 0;
}

/// A process with that name which holds the lock until this goes.
class Holder {
  public:
    Holder(const std::filesystem::path& file, short type, const char* name) {
        int ready[2];
        EXPECT_EQ(pipe(ready), 0);
        id_ = fork();
        if (id_ == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            prctl(PR_SET_NAME, name);
            const int opened = open(file.c_str(), O_RDWR);
            const char sign = LockAll(opened, type) ? 'y' : 'n';
            if (write(ready[1], &sign, 1) == 1) {
                pause();
            }
            _exit(1);
        }
        char sign = 0;
        EXPECT_EQ(read(ready[0], &sign, 1), 1);
        EXPECT_EQ(sign, 'y');
        close(ready[0]);
        close(ready[1]);
    }
    ~Holder() {
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;
    [[nodiscard]] int Id() const { return id_; }

  private:
    pid_t id_ = -1;
};

}  // namespace

TEST(ReadLocks, TakesProcessFileAndMode) {
    const auto locks = ReadLocks(
        "1: POSIX  ADVISORY  WRITE 3642 08:01:1835037 0 EOF\n"
        "2: POSIX  ADVISORY  READ 77 fe:00:12 1073741826 1073742335\n");
    ASSERT_EQ(locks.size(), 2u);
    EXPECT_EQ(locks[0].Process, 3642);
    EXPECT_EQ(locks[0].File, 1835037u);
    EXPECT_TRUE(locks[0].IsExclusive);
    EXPECT_EQ(locks[1].Process, 77);
    EXPECT_EQ(locks[1].File, 12u);
    EXPECT_FALSE(locks[1].IsExclusive);
}

TEST(ReadLocks, LeavesOutWhoOnlyWaits) {
    EXPECT_TRUE(ReadLocks("1: -> POSIX  ADVISORY  WRITE 3643 08:01:1835037 0 EOF\n").empty());
}

TEST(ReadLocks, LeavesOutWhatBelongsToNoProcess) {
    EXPECT_TRUE(
        ReadLocks("1: OFDLCK ADVISORY  WRITE -1 08:01:5 0 EOF\n2: POSIX  ADVISORY  READ 0 08:01:5 0 EOF").empty());
}

TEST(ReadLocks, PassesOverWhatItCannotRead) {
    EXPECT_TRUE(ReadLocks("").empty());
    EXPECT_TRUE(ReadLocks("\n\n   \n1:\n").empty());
    EXPECT_TRUE(ReadLocks("1: POSIX ADVISORY WRITE 99999999999999999999 08:01:5 0 EOF").empty());
    EXPECT_TRUE(ReadLocks("1: POSIX ADVISORY WRITE 12 08:01:x 0 EOF").empty());
}

TEST(FindLockHolder, NamesTheProgramAndItsProcess) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "s", "x");
    const Holder holder(scratch / "s", F_WRLCK, "a greedy one");
    const auto found = FindLockHolder({scratch / "nothing", scratch / "s"});
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Process, holder.Id());
    EXPECT_EQ(found->Name, "a greedy one");
}

TEST(FindLockHolder, PrefersTheOneThatKeepsEverybodyOut) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "s", "x");
    WriteBytes(scratch / "s-shm", "x");
    const Holder reader(scratch / "s", F_RDLCK, "reader");
    const Holder writer(scratch / "s-shm", F_WRLCK, "writer");
    const auto found = FindLockHolder({scratch / "s", scratch / "s-shm"});
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Name, "writer");
    const auto other = FindLockHolder({scratch / "s"});
    ASSERT_TRUE(other);
    EXPECT_EQ(other->Name, "reader");
}

TEST(FindLockHolder, IsNobodyWithoutALock) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "s", "x");
    EXPECT_FALSE(FindLockHolder({scratch / "s"}));
}

TEST(FindLockHolder, IsNotThisProcessItself) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "s", "x");
    const int own = open((scratch / "s").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_TRUE(LockAll(own, F_WRLCK));
    EXPECT_FALSE(FindLockHolder({scratch / "s"}));
    close(own);
}

}  // namespace lv
