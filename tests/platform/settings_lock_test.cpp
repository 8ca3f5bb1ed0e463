// The store while another program holds it.

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <chrono>

#include "platform/linux/settings/sqlite_settings.h"
#include "tests/platform/store_files.h"

namespace lv {

namespace fs = std::filesystem;

namespace {

/// A process called "a shell" which holds the store by this SQL until it is killed or has slept that long.
pid_t HoldStore(const fs::path& file, const std::string& sql, int milliseconds = 60000) {
    int ready[2];
    EXPECT_EQ(pipe(ready), 0);
    const pid_t child = InChild([&] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        prctl(PR_SET_NAME, "a shell");
        sqlite3* database = nullptr;
        sqlite3_open(file.c_str(), &database);
        const bool held = sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
        if (write(ready[1], held ? "y" : "n", 1) != 1) {
            _exit(1);
        }
        usleep(static_cast<useconds_t>(milliseconds) * 1000);
        _exit(0);
    });
    char sign = 0;
    EXPECT_EQ(read(ready[0], &sign, 1), 1);
    EXPECT_EQ(sign, 'y');
    close(ready[0]);
    close(ready[1]);
    return child;
}

void LetGo(pid_t holder) {
    kill(holder, SIGKILL);
    ExitOf(holder);
}

std::string LockedBy(const fs::path& file, pid_t holder) {
    return "The settings in \"" + file.string() + "\" are locked by the program \"a shell\" (process " +
           std::to_string(holder) + ").";
}

}  // namespace

TEST(LockedSettings, TellWhoKeepsThemFromBeingOpened) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    const pid_t holder = HoldStore(scratch / "s", "BEGIN EXCLUSIVE");
    const auto before = std::chrono::steady_clock::now();
    const auto opened = SqliteSettings::Open(scratch / "s", 200);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(5));
    EXPECT_EQ(opened.Fault.Number, 55);
    EXPECT_EQ(opened.Fault.Text, LockedBy(scratch / "s", holder));
    LetGo(holder);
    EXPECT_TRUE(SqliteSettings::Open(scratch / "s", 200).Ok());
}

TEST(LockedSettings, AreReadWhileAnotherProgramKeepsThemFromBeingWritten) {
    const ScratchDirectory scratch;
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "Games", "id1").Number, 0);
    const pid_t holder = HoldStore(scratch / "s", "BEGIN EXCLUSIVE");
    const auto opened = SqliteSettings::Open(scratch / "s", 200);
    ASSERT_TRUE(opened.Ok()) << opened.Fault.Text;
    EXPECT_EQ(opened.Value->Read(kApp, "Options", "Games"), "id1");
    LetGo(holder);
}

TEST(LockedSettings, AskWhetherToWaitForAnotherPrograms) {
    const ScratchDirectory scratch;
    OpenStore(scratch / "s");
    const pid_t holder = HoldStore(scratch / "s", "BEGIN IMMEDIATE");
    const auto opened = SqliteSettings::Open(scratch / "s", 100);
    int asked = 0;
    opened.Value->WhenLocked([&](const Error& reason) {
        EXPECT_EQ(reason.Number, 55);
        EXPECT_EQ(reason.Text, LockedBy(scratch / "s", holder));
        if (++asked == 3) {
            LetGo(holder);
        }
        return true;
    });
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "Games", "id1").Number, 0);
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(opened.Value->Read(kApp, "Options", "Games"), "id1");
}

TEST(LockedSettings, FailWithoutAQuestionOnceTheUserGoesOnWithoutThem) {
    const ScratchDirectory scratch;
    OpenStore(scratch / "s");
    pid_t holder = HoldStore(scratch / "s", "BEGIN IMMEDIATE");
    const auto opened = SqliteSettings::Open(scratch / "s", 100);
    int asked = 0;
    opened.Value->WhenLocked([&](const Error&) { return ++asked > 1; });
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "Games", "id1").Number, 55);
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "Games", "id2").Number, 55);
    EXPECT_EQ(asked, 1);
    LetGo(holder);
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "Games", "id3").Number, 0);
    holder = HoldStore(scratch / "s", "BEGIN IMMEDIATE", 400);
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "Games", "id4").Number, 0);
    EXPECT_GE(asked, 2) << "another lock is another question";
    ExitOf(holder);
}

TEST(LockedSettings, KeepAGroupForWhomTheUserWaited) {
    const ScratchDirectory scratch;
    OpenStore(scratch / "s");
    const pid_t holder = HoldStore(scratch / "s", "BEGIN IMMEDIATE");
    const auto opened = SqliteSettings::Open(scratch / "s", 100);
    opened.Value->WhenLocked([&](const Error&) {
        LetGo(holder);
        return true;
    });
    opened.Value->BeginGroup();
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "a", "1").Number, 0);
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "b", "2").Number, 0);
    EXPECT_EQ(opened.Value->EndGroup().Number, 0);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "b"), "2");
}

TEST(LockedSettings, BeginNoGroupAloneWhileAnotherProgramWrites) {
    const ScratchDirectory scratch;
    OpenStore(scratch / "s");
    const pid_t holder = HoldStore(scratch / "s", "BEGIN IMMEDIATE");
    const auto opened = SqliteSettings::Open(scratch / "s", 100);
    EXPECT_EQ(opened.Value->BeginAlone().Number, 55);
    LetGo(holder);
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "a", "1").Number, 0);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "a"), "1") << "no group is open";
}

TEST(LockedSettings, HoldOthersUpFromTheBeginningOfAGroupAlone) {
    const ScratchDirectory scratch;
    const auto one = OpenStore(scratch / "s");
    const auto other = SqliteSettings::Open(scratch / "s", 100);
    ASSERT_EQ(one->BeginAlone().Number, 0);
    EXPECT_EQ(other.Value->Write(kApp, "Options", "a", "1").Number, 55);
    EXPECT_EQ(one->EndGroup().Number, 0);
    EXPECT_EQ(other.Value->Write(kApp, "Options", "a", "1").Number, 0);
}

TEST(LockedSettings, AskNothingWhileTheQuestionIsUp) {
    const ScratchDirectory scratch;
    OpenStore(scratch / "s");
    const pid_t holder = HoldStore(scratch / "s", "BEGIN IMMEDIATE");
    const auto opened = SqliteSettings::Open(scratch / "s", 100);
    int asked = 0;
    opened.Value->WhenLocked([&](const Error&) {
        ++asked;
        EXPECT_EQ(opened.Value->Write(kApp, "Options", "b", "2").Number, 55);
        LetGo(holder);
        return true;
    });
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "a", "1").Number, 0);
    EXPECT_EQ(asked, 1);
}

// A reader of a store with a rollback journal lets others write, but not finish.
TEST(LockedSettings, AskAtTheEndOfAWriteToo) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    const pid_t holder = HoldStore(scratch / "s", "BEGIN; SELECT * FROM setting");
    const auto opened = SqliteSettings::Open(scratch / "s", 100);
    opened.Value->WhenLocked([&](const Error& reason) {
        EXPECT_EQ(reason.Text, LockedBy(scratch / "s", holder));
        {
            const SettingsGroup another(*opened.Value);
            EXPECT_EQ(opened.Value->Write(kApp, "Options", "b", "2").Number, 55);
        }
        EXPECT_EQ(opened.Value->Write(kApp, "Options", "b", "2").Number, 55);
        LetGo(holder);
        return true;
    });
    EXPECT_EQ(opened.Value->Write(kApp, "Options", "Games", "ctf").Number, 0);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "ctf");
}

}  // namespace lv
