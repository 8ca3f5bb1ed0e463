#include "platform/linux/files/replace_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

Error Put(const fs::path& file, std::string_view bytes) {
    return ReplaceHostFile(file.string(), 0666, [bytes](int made) { return WriteAll(made, bytes); });
}

Error PutOwn(const fs::path& file, std::string_view bytes) {
    return ReplaceOwnHostFile(file.string(), [bytes](int made) { return WriteAll(made, bytes); });
}

std::vector<std::string> NamesIn(const fs::path& directory) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(directory)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

// A number that no process has any more.
pid_t EndedProcess() {
    const pid_t child = fork();
    if (child == 0) {
        _exit(0);
    }
    waitpid(child, nullptr, 0);
    return child;
}

unsigned ModeOf(const fs::path& file) {
    struct stat info {};
    return stat(file.c_str(), &info) == 0 ? info.st_mode & 07777u : 0u;
}

}  // namespace

TEST(ReplaceHostFile, MakesAndReplaces) {
    const ScratchDirectory scratch;
    EXPECT_EQ(Put(scratch / "a.cfg", "one").Number, 0);
    EXPECT_EQ(BytesOf(scratch / "a.cfg"), "one");
    EXPECT_EQ(Put(scratch / "a.cfg", "").Number, 0);
    EXPECT_EQ(BytesOf(scratch / "a.cfg"), "");
    EXPECT_EQ(NamesIn(scratch.Path()), (std::vector<std::string>{"a.cfg"}));
}

TEST(ReplaceHostFile, PutsAnotherFileInTheOldOnesPlace) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "a.cfg", "old");
    fs::create_hard_link(scratch / "a.cfg", scratch / "still the old one");
    EXPECT_EQ(Put(scratch / "a.cfg", "new").Number, 0);
    EXPECT_EQ(BytesOf(scratch / "still the old one"), "old");
}

TEST(ReplaceHostFile, KeepsTheModeOfTheOldFile) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "run.sh", "old");
    chmod((scratch / "run.sh").c_str(), 0751);
    EXPECT_EQ(Put(scratch / "run.sh", "new").Number, 0);
    EXPECT_EQ(ModeOf(scratch / "run.sh"), 0751u);
}

TEST(ReplaceHostFile, HoldsANewFileToTheUsersMask) {
    const ScratchDirectory scratch;
    const mode_t before = umask(027);
    EXPECT_EQ(Put(scratch / "a.cfg", "new").Number, 0);
    umask(before);
    EXPECT_EQ(ModeOf(scratch / "a.cfg"), 0640u);
}

TEST(ReplaceHostFile, KeepsTheOwnerWhereThatIsAllowed) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "a.cfg", "old");
    const uid_t owner = geteuid() == 0 ? 65534 : geteuid();
    ASSERT_EQ(chown((scratch / "a.cfg").c_str(), owner, static_cast<gid_t>(-1)), 0);
    EXPECT_EQ(Put(scratch / "a.cfg", "new").Number, 0);
    struct stat info {};
    ASSERT_EQ(stat((scratch / "a.cfg").c_str(), &info), 0);
    EXPECT_EQ(info.st_uid, owner);
}

TEST(ReplaceHostFile, LeavesALinkALink) {
    const ScratchDirectory scratch;
    fs::create_directory(scratch / "dotfiles");
    WriteBytes(scratch / "dotfiles/real.cfg", "old");
    fs::create_symlink("dotfiles/real.cfg", scratch / "a.cfg");
    EXPECT_EQ(Put(scratch / "a.cfg", "new").Number, 0);
    EXPECT_TRUE(fs::is_symlink(scratch / "a.cfg"));
    EXPECT_EQ(BytesOf(scratch / "dotfiles/real.cfg"), "new");
}

TEST(ReplaceHostFile, MakesWhatALinkLeadsTo) {
    const ScratchDirectory scratch;
    fs::create_symlink("b.cfg", scratch / "a.cfg");
    EXPECT_EQ(Put(scratch / "a.cfg", "new").Number, 0);
    EXPECT_TRUE(fs::is_symlink(scratch / "a.cfg"));
    EXPECT_EQ(BytesOf(scratch / "b.cfg"), "new");
}

TEST(ReplaceHostFile, RefusesLinksInACircle) {
    const ScratchDirectory scratch;
    fs::create_symlink("b", scratch / "a");
    fs::create_symlink("a", scratch / "b");
    EXPECT_EQ(Put(scratch / "a", "new").Number, 76);
}

TEST(ReplaceHostFile, RefusesWhatIsNoFile) {
    const ScratchDirectory scratch;
    fs::create_directory(scratch / "dir");
    ASSERT_EQ(mkfifo((scratch / "pipe").c_str(), 0600), 0);
    WriteBytes(scratch / "file", "x");
    EXPECT_EQ(Put(scratch / "dir", "new").Number, 75);
    EXPECT_EQ(Put(scratch / "pipe", "new").Number, 75);
    EXPECT_EQ(Put("/dev/null", "new").Number, 75);
    EXPECT_EQ(Put(scratch / "no such/file", "new").Number, 76);
    EXPECT_EQ(Put(scratch / "file/file", "new").Number, 76);
    EXPECT_EQ(NamesIn(scratch.Path()), (std::vector<std::string>{"dir", "file", "pipe"}));
}

TEST(ReplaceHostFile, LeavesTheOldFileAndNothingElseWhenFillingFails) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "a.cfg", "old");
    const Error failed = ReplaceHostFile((scratch / "a.cfg").string(), 0666, [](int made) {
        (void)WriteAll(made, "half");
        return ENOSPC;
    });
    EXPECT_EQ(failed.Number, 61);
    EXPECT_EQ(BytesOf(scratch / "a.cfg"), "old");
    EXPECT_EQ(NamesIn(scratch.Path()), (std::vector<std::string>{"a.cfg"}));
}

TEST(ReplaceHostFile, TellsAFullDisk) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "a.cfg", "old");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = signal(SIGXFSZ, SIG_IGN);
    const rlimit most{1000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &most);
    const Error failed = Put(scratch / "a.cfg", std::string(5000, 'x'));
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, handler);
    EXPECT_EQ(failed.Number, 61);
    EXPECT_EQ(BytesOf(scratch / "a.cfg"), "old");
    EXPECT_EQ(NamesIn(scratch.Path()), (std::vector<std::string>{"a.cfg"}));
}

TEST(ReplaceHostFile, RefusesAFileAndADirectoryThatMayNotBeWritten) {
    const ScratchDirectory scratch;
    fs::permissions(scratch.Path(), fs::perms::all);
    WriteBytes(scratch / "readonly.cfg", "old");
    chmod((scratch / "readonly.cfg").c_str(), 0444);
    fs::create_directory(scratch / "locked");
    chmod((scratch / "locked").c_str(), 0555);
    // Everything may be written by root: the question is asked as somebody who is not.
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && seteuid(65534) != 0) {
            _exit(90);
        }
        const int file = Put(scratch / "readonly.cfg", "new").Number;
        const int directory = Put(scratch / "locked/a.cfg", "new").Number;
        _exit(file == 75 && directory == 70 ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(BytesOf(scratch / "readonly.cfg"), "old");
}

TEST(ReplaceHostFile, ShowsTheOldFileOrTheNewOneAfterAKill) {
    const ScratchDirectory scratch;
    const std::string one(100000, '1');
    const std::string two(100000, '2');
    WriteBytes(scratch / "a.cfg", one);
    const pid_t child = fork();
    if (child == 0) {
        while (true) {
            (void)Put(scratch / "a.cfg", two);
            (void)Put(scratch / "a.cfg", one);
        }
    }
    for (int i = 0; i < 200; ++i) {
        const std::string seen = BytesOf(scratch / "a.cfg");
        ASSERT_TRUE(seen == one || seen == two) << seen.size();
    }
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string left = BytesOf(scratch / "a.cfg");
    EXPECT_TRUE(left == one || left == two) << left.size();
}

TEST(ReplaceOwnHostFile, ReplacesALinkAndNeverFollowsIt) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / ".bashrc", "mine");
    fs::create_symlink(scratch / ".bashrc", scratch / "lv_666.bat");
    EXPECT_EQ(PutOwn(scratch / "lv_666.bat", "new").Number, 0);
    EXPECT_EQ(BytesOf(scratch / ".bashrc"), "mine");
    EXPECT_FALSE(fs::is_symlink(scratch / "lv_666.bat"));
    EXPECT_EQ(BytesOf(scratch / "lv_666.bat"), "new");
}

TEST(ReplaceOwnHostFile, ReplacesALinkToADirectoryOrToNothing) {
    const ScratchDirectory scratch;
    fs::create_directory(scratch / "dir");
    fs::create_symlink("dir", scratch / "a");
    fs::create_symlink("nowhere", scratch / "b");
    fs::create_symlink("c", scratch / "c");
    for (const char* const name : {"a", "b", "c"}) {
        EXPECT_EQ(PutOwn(scratch / name, "new").Number, 0) << name;
        EXPECT_FALSE(fs::is_symlink(scratch / name)) << name;
    }
    EXPECT_TRUE(fs::is_empty(scratch / "dir"));
    EXPECT_FALSE(fs::exists(scratch / "nowhere"));
}

TEST(ReplaceOwnHostFile, ShowsItToItsOwnerAloneWhateverWasThere) {
    const ScratchDirectory scratch;
    const mode_t before = umask(0);
    EXPECT_EQ(PutOwn(scratch / "new.bat", "x").Number, 0);
    WriteBytes(scratch / "old.bat", "x");
    chmod((scratch / "old.bat").c_str(), 0666);
    EXPECT_EQ(PutOwn(scratch / "old.bat", "y").Number, 0);
    umask(before);
    EXPECT_EQ(ModeOf(scratch / "new.bat"), 0600u);
    EXPECT_EQ(ModeOf(scratch / "old.bat"), 0600u);
}

TEST(ReplaceOwnHostFile, RefusesADirectory) {
    const ScratchDirectory scratch;
    fs::create_directory(scratch / "dir");
    EXPECT_EQ(PutOwn(scratch / "dir", "new").Number, 75);
    EXPECT_EQ(PutOwn(scratch / "no such/file", "new").Number, 76);
}

TEST(ReplaceOwnHostFile, ReplacesAPipeAndASocketAndWaitsForNobody) {
    const ScratchDirectory scratch;
    ASSERT_EQ(mkfifo((scratch / "pipe").c_str(), 0600), 0);
    ASSERT_EQ(mknod((scratch / "socket").c_str(), S_IFSOCK | 0600, 0), 0);
    for (const char* const name : {"pipe", "socket"}) {
        EXPECT_EQ(PutOwn(scratch / name, "new").Number, 0) << name;
        EXPECT_EQ(BytesOf(scratch / name), "new") << name;
    }
}

TEST(ReplaceOwnHostFile, RemovesWhatWouldBeTakenForIt) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / ".bashrc", "mine");
    WriteBytes(scratch / "A.QS", "a stranger's");
    fs::create_symlink(scratch / ".bashrc", scratch / "A.qs");
    const std::vector<std::string> others = {scratch / "A.QS", scratch / "A.qs", scratch / "gone.qs"};
    EXPECT_EQ(ReplaceOwnHostFile(scratch / "a.qs", others, [](int made) { return WriteAll(made, "new"); }).Number, 0);
    EXPECT_EQ(NamesIn(scratch.Path()), (std::vector<std::string>{".bashrc", "a.qs"}));
    EXPECT_EQ(BytesOf(scratch / ".bashrc"), "mine");
    EXPECT_EQ(BytesOf(scratch / "a.qs"), "new");
}

TEST(ReplaceOwnHostFile, ChangesNothingIfOneOfThemMayNotBeRemoved) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "A.QS", "a stranger's");
    fs::create_directory(scratch / "A.qs");
    const std::vector<std::string> others = {scratch / "A.QS", scratch / "A.qs"};
    EXPECT_EQ(ReplaceOwnHostFile(scratch / "a.qs", others, [](int made) { return WriteAll(made, "new"); }).Number, 75);
    EXPECT_EQ(NamesIn(scratch.Path()), (std::vector<std::string>{"A.QS", "A.qs"}));
}

TEST(ReplaceHostFile, ShowsAPrivateFileToNobodyWhileItIsWritten) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "secret.cfg", "old");
    chmod((scratch / "secret.cfg").c_str(), 0600);
    unsigned seen = 0777;
    const Error failed = ReplaceHostFile((scratch / "secret.cfg").string(), 0666, [&seen](int made) {
        struct stat info {};
        seen = fstat(made, &info) == 0 ? info.st_mode & 07777u : 0777u;
        return 0;
    });
    EXPECT_EQ(failed.Number, 0);
    EXPECT_EQ(seen, 0600u);
}

TEST(ReplaceHostFile, RemovesWhatKilledWritersHaveLeft) {
    const ScratchDirectory scratch;
    const std::string left = ".lv_666_" + std::to_string(EndedProcess()) + "_0";
    WriteBytes(scratch / left, "half");
    WriteBytes(scratch / (".lv_666_" + std::to_string(getpid()) + "_7"), "of one with this number before");
    EXPECT_EQ(Put(scratch / "a.cfg", "new").Number, 0);
    EXPECT_EQ(NamesIn(scratch.Path()), (std::vector<std::string>{"a.cfg"}));
    WriteBytes(scratch / left, "half");
    EXPECT_EQ(PutOwn(scratch / "lv_666.bat", "new").Number, 0);
    EXPECT_EQ(NamesIn(scratch.Path()), (std::vector<std::string>{"a.cfg", "lv_666.bat"}));
}

TEST(ReplaceHostFile, RemovesWhatAKilledWriteReallyLeaves) {
    const ScratchDirectory scratch;
    int ends[2] = {};
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        (void)ReplaceHostFile((scratch / "a.cfg").string(), 0666, [&ends](int made) {
            (void)WriteAll(made, "half");
            (void)WriteAll(ends[1], "x");
            pause();
            return 0;
        });
    }
    char written = 0;
    ASSERT_EQ(read(ends[0], &written, 1), 1);
    const auto names = [&scratch] { return NamesIn(scratch.Path()).size(); };
    EXPECT_EQ(Put(scratch / "b.cfg", "new").Number, 0);
    EXPECT_EQ(names(), 2u);  // the writer lives
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_EQ(Put(scratch / "b.cfg", "newer").Number, 0);
    EXPECT_EQ(NamesIn(scratch.Path()), (std::vector<std::string>{"b.cfg"}));
    close(ends[0]);
    close(ends[1]);
}

TEST(ReplaceHostFile, LeavesNewFilesThatAreNoLeftovers) {
    const ScratchDirectory scratch;
    const std::string gone = std::to_string(EndedProcess());
    const std::string locked = ".lv_666_" + gone + "_1";
    const std::string link = ".lv_666_" + gone + "_2";
    const std::string pipe_ = ".lv_666_" + gone + "_3";
    const std::string others[] = {".lv_666_1_0",           ".lv_666_",
                                  ".lv_666_x_0",           ".lv_666_" + gone,
                                  ".lv_666_" + gone + "_", ".lv_666_" + gone + "_0x",
                                  ".lv_666_-5_0",          ".lv_666_99999999999999_0"};
    for (const std::string& name : others) {
        WriteBytes(scratch / name, "x");
    }
    WriteBytes(scratch / locked, "x");
    const int writer = open((scratch / locked).c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_EQ(flock(writer, LOCK_EX), 0);
    fs::create_symlink(".lv_666_1_0", scratch / link);
    ASSERT_EQ(mkfifo((scratch / pipe_).c_str(), 0600), 0);
    EXPECT_EQ(Put(scratch / "a.cfg", "new").Number, 0);
    close(writer);
    for (const std::string& name : others) {
        EXPECT_TRUE(fs::exists(scratch / name)) << name;
    }
    for (const std::string& name : {locked, link, pipe_}) {
        EXPECT_TRUE(fs::is_symlink(scratch / name) || fs::exists(scratch / name)) << name;
    }
}

}  // namespace lv
