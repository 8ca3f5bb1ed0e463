// What the helper lorvane3d-watch keeps of games that are started for real.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <thread>

#include "platform/linux/files/file_descriptor.h"
#include "platform/linux/linux_processes.h"
#include "platform/linux/starting/game_record.h"
#include "tests/support/game_yard.h"
#include "tests/support/output_to.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

bool Until(const std::function<bool()>& happened) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!happened() && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return happened();
}

bool SomeProcessNames(const std::string& path) {
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator("/proc", ignored)) {
        if (ReadBytes(entry.path() / "cmdline").find(path) != std::string::npos) {
            return true;
        }
    }
    return false;
}

mode_t ModeOf(const std::string& path) {
    struct stat about {};
    return lstat(path.c_str(), &about) == 0 && S_ISREG(about.st_mode) ? about.st_mode & 07777u : 0;
}

struct WatchedYard : GameYard {
    explicit WatchedYard(const std::string& name)
        : GameYard(name), Programs(Disk, Places), Kept(GameFilesIn(Places.State)) {}

    /// What it prints is passed on to `output`, to nobody without one.
    Error Start(const std::string& script, const std::string& name = "GAME", int output = -1) {
        const auto game = AddFile("quake/" + name, "#!/bin/sh\n" + script + "\n");
        fs::permissions(game, fs::perms::owner_all);
        AddBatch("quake", {"SET TOLD=by the batch", "C:", "cd C:\\QUAKE", name + " -zone \"5 12\""});
        const FileDescriptor nobody(open("/dev/null", O_WRONLY | O_CLOEXEC));
        const OutputTo redirected(output >= 0 ? output : nobody.Number());
        return Programs.StartBatch("C:\\QUAKE", "lv_666.bat");
    }

    GameEnd WaitForEnd() {
        std::optional<GameEnd> end;
        EXPECT_TRUE(Until([&] { return end || (end = Programs.EndOfLastGame()); }));
        return end.value_or(GameEnd{.Code = -1});
    }

    GameEnd EndOf(const std::string& script) {
        const Error fault = Start(script);
        EXPECT_FALSE(fault) << fault.Text;
        EXPECT_TRUE(Programs.WatchesGame());
        return WaitForEnd();
    }

    LinuxProcesses Programs;
    GameFiles Kept;
};

}  // namespace

TEST(GameWatch, TellsACodeAndTheLastLinesOnce) {
    WatchedYard yard("watch_code");
    const GameEnd end = yard.EndOf("echo one; echo two >&2; exit 1");
    EXPECT_EQ(end.Code, 1);
    EXPECT_EQ(end.Signal, 0);
    EXPECT_LT(end.Seconds, 5);
    EXPECT_EQ(end.LastLines, "one\r\ntwo\r\n");
    EXPECT_FALSE(yard.Programs.WatchesGame());
    EXPECT_FALSE(yard.Programs.EndOfLastGame());
    EXPECT_EQ(yard.Programs.LastOutput(), "one\r\ntwo\r\n");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_TRUE(Until([&] { return !SomeProcessNames(yard.Kept.Output); }));
}

TEST(GameWatch, TellsCodeZero) {
    WatchedYard yard("watch_zero");
    const GameEnd end = yard.EndOf("sleep 0.3; exit 0");
    EXPECT_EQ(end.Code, 0);
    EXPECT_EQ(end.Signal, 0);
    EXPECT_GE(end.Seconds, 0.3);
    EXPECT_EQ(end.LastLines, "");
    EXPECT_EQ(yard.Programs.LastOutput(), "");
}

TEST(GameWatch, TellsWhetherOthersRunOn) {
    WatchedYard yard("watch_others");
    EXPECT_FALSE(yard.EndOf("true; sleep 0.1; exit 0").OthersRun);
    EXPECT_TRUE(yard.EndOf("sleep 3 & exit 0").OthersRun);
    const GameEnd apart = yard.EndOf("setsid sh -c 'sleep 3 & exit 0' < /dev/null > /dev/null 2>&1; exit 0");
    EXPECT_TRUE(apart.OthersRun);
    EXPECT_EQ(apart.Code, 0);
}

TEST(GameWatch, TellsTheSignal) {
    WatchedYard yard("watch_signal");
    const GameEnd end = yard.EndOf("echo last words; kill -SEGV $$");
    EXPECT_EQ(end.Signal, SIGSEGV);
    EXPECT_EQ(end.Code, 0);
    EXPECT_EQ(end.LastLines, "last words\r\n");
}

TEST(GameWatch, HandsOnArgumentsDirectoryAndEnvironmentAndNothingElse) {
    WatchedYard yard("watch_handed");
    const GameEnd end = yard.EndOf(
        "pwd; echo \"$1|$2|$TOLD\"; ls /proc/self/fd | tr '\\n' ' '; readlink /proc/self/fd/0; "
        "grep -E '^Sig(Blk|Ign)' /proc/self/status | tr -d '\\t'");
    // "ls" itself opens 3.
    EXPECT_EQ(end.LastLines, (yard.Drive / "quake").string() + "\r\n-zone|5 12|by the batch\r\n0 1 2 3 /dev/null\r\n" +
                                 "SigBlk:0000000000000000\r\nSigIgn:0000000000000000\r\n");
}

TEST(GameWatch, KeepsTheFirstPartAndTheLastOfTwoMegabytes) {
    WatchedYard yard("watch_much");
    yard.EndOf("echo the first line; yes 0123456789abcdef | head -c 2000000; echo; echo the last line");
    const std::string kept = ReadBytes(yard.Kept.Output);
    EXPECT_LE(kept.size(), 1024u * 1024u);
    EXPECT_GE(kept.size(), 512u * 1024u);
    EXPECT_TRUE(kept.starts_with("the first line\n0123456789abcdef\n"));
    EXPECT_NE(kept.find("\n... (lines are left out here) ...\n"), std::string::npos);
    EXPECT_TRUE(kept.ends_with("\nthe last line\n"));
    EXPECT_EQ(ModeOf(yard.Kept.Output), 0600u);
    EXPECT_FALSE(fs::exists(yard.Kept.Output + ".new"));
}

TEST(GameWatch, KeepsTheEndOfALineThatWasNotEnded) {
    WatchedYard yard("watch_line");
    EXPECT_EQ(yard.EndOf("printf 'no end of line'; exit 3").LastLines, "no end of line");
}

TEST(GameWatch, ShowsBinaryOutputAsText) {
    WatchedYard yard("watch_binary");
    const GameEnd end = yard.EndOf("printf 'a\\000b\\377\\033[31mred\\007\\n'; exit 1");
    EXPECT_EQ(end.LastLines, "a?b?red?\r\n");
    EXPECT_EQ(ReadBytes(yard.Kept.Output), std::string("a\0b\xFF\x1B[31mred\x07\n", 14));
}

TEST(GameWatch, TheEndOfAGameThatForksAndLeavesIsItsFirstProgramsAndTheRestPrintsOn) {
    WatchedYard yard("watch_forks");
    const std::string done = (yard.Root / "done").string();
    const GameEnd end =
        yard.EndOf("(sleep 1; yes late | head -c 300000; echo over; echo end > '" + done + "') & echo gone; exit 0");
    EXPECT_EQ(end.Code, 0);
    EXPECT_LT(end.Seconds, 1);
    EXPECT_EQ(end.LastLines, "gone\r\n");
    EXPECT_THAT(WaitForOutput(done), ElementsAre("end"));
    EXPECT_TRUE(Until([&] { return ReadBytes(yard.Kept.Output).ends_with("late\nover\n"); }));
    EXPECT_TRUE(Until([&] { return !SomeProcessNames(yard.Kept.Output); }));
}

TEST(GameWatch, GoesOnWhenTheLauncherAndItsTerminalAreGone) {
    WatchedYard yard("watch_alone");
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t launcher = fork();
    if (launcher == 0) {
        const Error fault = yard.Start("sleep 0.5; yes words | head -c 199998; echo last; exit 7", "GAME", ends[1]);
        _exit(fault ? 1 : 0);
    }
    int status = -1;
    waitpid(launcher, &status, 0);
    close(ends[0]);
    close(ends[1]);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(WaitForText(yard.Kept.End, " code 7 "));
    EXPECT_TRUE(ReadBytes(yard.Kept.Output).ends_with("words\nlast\n"));
    EXPECT_EQ(yard.Programs.LastOutput().value_or("").substr(0, 7), "words\r\n");
    EXPECT_FALSE(yard.Programs.EndOfLastGame()) << "another run's game";
}

TEST(GameWatch, OutlivesWhatEndsASession) {
    WatchedYard yard("watch_session");
    const GameEnd end = yard.EndOf("kill -TERM $PPID; kill -HUP $PPID; kill -INT $PPID; sleep 0.2; echo saved; exit 2");
    EXPECT_EQ(end.Code, 2);
    EXPECT_EQ(end.LastLines, "saved\r\n");
}

TEST(GameWatch, PassesTheOutputOn) {
    WatchedYard yard("watch_passed");
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const Error fault = yard.Start("echo one; echo two >&2", "GAME", ends[1]);
    close(ends[1]);
    EXPECT_FALSE(fault) << fault.Text;
    std::string passed;
    char byte = 0;
    while (read(ends[0], &byte, 1) == 1) {
        passed += byte;
    }
    close(ends[0]);
    EXPECT_EQ(passed, "one\ntwo\n");
}

TEST(GameWatch, AReaderThatTakesNothingHoldsNoGameUp) {
    WatchedYard yard("watch_stuck");
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const Error fault = yard.Start("yes words | head -c 400000; exit 4", "GAME", ends[1]);
    EXPECT_FALSE(fault) << fault.Text;
    EXPECT_EQ(yard.WaitForEnd().Code, 4);
    EXPECT_EQ(ReadBytes(yard.Kept.Output).size(), 400000u);
    close(ends[0]);
    close(ends[1]);
}

TEST(GameWatch, FilesAndDirectoryAreThisUsersAlone) {
    WatchedYard yard("watch_modes");
    const mode_t mask = umask(0);
    yard.EndOf("echo x");
    umask(mask);
    EXPECT_EQ(ModeOf(yard.Kept.Output), 0600u);
    EXPECT_EQ(ModeOf(yard.Kept.End), 0600u);
    EXPECT_EQ(fs::status(yard.Places.State).permissions(), fs::perms::owner_all);
}

TEST(GameWatch, LinksAtTheNamesOfItsFilesAreReplacedAndNotFollowed) {
    WatchedYard yard("watch_links");
    const auto mine = yard.AddFile("mine.txt", "mine");
    fs::create_directories(yard.Places.State);
    for (const std::string& name :
         {yard.Kept.Output, yard.Kept.End, yard.Kept.Output + ".new", yard.Kept.End + ".new"}) {
        fs::create_symlink(mine, name);
    }
    yard.EndOf("echo the first; yes x | head -c 1500000; echo the last");
    EXPECT_EQ(ReadBytes(mine), "mine");
    EXPECT_TRUE(ReadBytes(yard.Kept.Output).ends_with("\nthe last\n"));
    EXPECT_EQ(ModeOf(yard.Kept.Output), 0600u);
    EXPECT_EQ(ModeOf(yard.Kept.End), 0600u);
}

}  // namespace lv
