#include "platform/linux/settings/settings_copy.h"

#include <gtest/gtest.h>

#include "tests/platform/store_files.h"

namespace lv {

namespace fs = std::filesystem;

namespace {

// Opens on a disk without a free byte; what the child finds is its exit code.
int OnAFullDisk(const std::function<int()>& work, off_t room = 0) {
    return ExitOf(InChild([&] {
        FillDiskAfter(room);
        _exit(work());
    }));
}

}  // namespace

TEST(SettingsCopy, TellAFullDiskAtTheStart) {
    const ScratchDirectory scratch;
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "Games", "id1").Number, 0);
    for (const off_t room : {0, 3, 4096}) {
        EXPECT_EQ(OnAFullDisk([&] { return SqliteSettings::Open(scratch / "s").Fault.Number; }, room), 61) << room;
    }
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "id1");
}

TEST(SettingsCopy, TellAFullDiskAtTheStartOfAStoreMadeByHand) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    EXPECT_EQ(OnAFullDisk([&] { return SqliteSettings::Open(scratch / "s").Fault.Number; }), 61);
}

TEST(SettingsCopy, AreCopiedWhereNothingCanBeWritten) {
    const ScratchDirectory scratch;
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "Games", "id1").Number, 0);
    const auto work = [&] {
        const auto copy = SqliteSettings::OpenCopy(scratch / "s");
        if (!copy.Ok() || copy.Value->Read(kApp, "options", "games") != "id1") {
            return 1;
        }
        if (copy.Value->Write(kApp, "Options", "Games", "ctf") || copy.Value->Read(kApp, "Options", "Games") != "ctf") {
            return 2;
        }
        return 0;
    };
    EXPECT_EQ(OnAFullDisk(work), 0);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "id1");
}

TEST(SettingsCopy, AreCopiedWithWhatIsOnlyInTheLogYet) {
    const ScratchDirectory scratch;
    const pid_t child = InChild([&] {
        const auto store = SqliteSettings::Open(scratch / "s");
        (void)store.Value->Write(kApp, "Options", "Games", "id1");
        raise(SIGKILL);
    });
    ASSERT_EQ(ExitOf(child), 128 + SIGKILL);
    ASSERT_GT(fs::file_size(scratch / "s-wal"), 0u);
    fs::remove(scratch / "s-shm");
    EXPECT_EQ(OnAFullDisk([&] {
                  const auto copy = SqliteSettings::OpenCopy(scratch / "s");
                  return copy.Ok() && copy.Value->Read(kApp, "Options", "Games") == "id1" ? 0 : 1;
              }),
              0);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "id1");
}

TEST(SettingsCopy, AreAnEmptyCopyWhereThereIsNoFile) {
    const ScratchDirectory scratch;
    const auto copy = SqliteSettings::OpenCopy(scratch / "no/s");
    ASSERT_TRUE(copy.Ok()) << copy.Fault.Text;
    EXPECT_EQ(copy.Value->Read(kApp, "Options", "Games"), std::nullopt);
    EXPECT_EQ(copy.Value->Write(kApp, "Options", "Games", "id1").Number, 0);
    EXPECT_EQ(copy.Value->Read(kApp, "Options", "Games"), "id1");
    EXPECT_FALSE(fs::exists(scratch / "no"));
}

TEST(SettingsCopy, AreNotCopiedFromWhatIsNoStore) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", "CREATE TABLE bookmarks(url TEXT); INSERT INTO bookmarks VALUES('x');");
    EXPECT_EQ(SqliteSettings::OpenCopy(scratch / "s").Fault.Number, 75);
}

TEST(SettingsCopy, AreCopiedFromAFileOfAnyName) {
    const ScratchDirectory scratch;
    const fs::path file = scratch / "50% of #1?";
    EXPECT_EQ(OpenStore(file)->Write(kApp, "Options", "Games", "id1").Number, 0);
    const auto copy = SqliteSettings::OpenCopy(file);
    ASSERT_TRUE(copy.Ok()) << copy.Fault.Text;
    EXPECT_EQ(copy.Value->Read(kApp, "Options", "Games"), "id1");
}

TEST(ReadSettings, LeaveTheStoreAsItIs) {
    const ScratchDirectory scratch;
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "Games", "id1").Number, 0);
    const std::string bytes = BytesOf(scratch / "s");
    const auto written = fs::last_write_time(scratch / "s");
    const auto read = SqliteSettings::OpenToRead(scratch / "s");
    ASSERT_TRUE(read.Ok()) << read.Fault.Text;
    EXPECT_EQ(read.Value->Read(kApp, "options", "games"), "id1");
    EXPECT_EQ(read.Value->Write(kApp, "Options", "Games", "ctf").Number, 0);
    EXPECT_EQ(read.Value->Read(kApp, "Options", "Games"), "ctf") << "for this run";
    ExpectLeftAlone(scratch / "s", bytes);
    EXPECT_EQ(fs::last_write_time(scratch / "s"), written);
}

TEST(ReadSettings, LeaveAStoreMadeByHandAsItIs) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    const std::string bytes = BytesOf(scratch / "s");
    const auto read = SqliteSettings::OpenToRead(scratch / "s");
    ASSERT_TRUE(read.Ok()) << read.Fault.Text;
    EXPECT_EQ(read.Value->Read(kApp, "Options", "Games"), "id1");
    ExpectLeftAlone(scratch / "s", bytes);
}

TEST(ReadSettings, SeeWhatAProgramHasWrittenThatStillRuns) {
    const ScratchDirectory scratch;
    const auto running = OpenStore(scratch / "s");
    EXPECT_EQ(running->Write(kApp, "Options", "Games", "id1").Number, 0);
    const std::string bytes = BytesOf(scratch / "s");
    const std::string log = BytesOf(scratch / "s-wal");
    const auto read = SqliteSettings::OpenToRead(scratch / "s");
    ASSERT_TRUE(read.Ok()) << read.Fault.Text;
    EXPECT_EQ(read.Value->Read(kApp, "Options", "Games"), "id1");
    EXPECT_EQ(BytesOf(scratch / "s"), bytes);
    EXPECT_EQ(BytesOf(scratch / "s-wal"), log);
    EXPECT_EQ(running->Write(kApp, "Options", "Games", "ctf").Number, 0);
    EXPECT_EQ(running->Read(kApp, "Options", "Games"), "ctf");
}

TEST(ReadSettings, SeeWhatIsOnlyInTheLogOfAKilledProgram) {
    const ScratchDirectory scratch;
    const pid_t child = InChild([&] {
        const auto store = SqliteSettings::Open(scratch / "s");
        (void)store.Value->Write(kApp, "Options", "Games", "id1");
        raise(SIGKILL);
    });
    ASSERT_EQ(ExitOf(child), 128 + SIGKILL);
    for (const bool hasShared : {true, false}) {
        if (!hasShared) {
            fs::remove(scratch / "s-shm");
        }
        const std::string bytes = BytesOf(scratch / "s");
        const std::string log = BytesOf(scratch / "s-wal");
        const auto read = SqliteSettings::OpenToRead(scratch / "s");
        ASSERT_TRUE(read.Ok()) << read.Fault.Text;
        EXPECT_EQ(read.Value->Read(kApp, "Options", "Games"), "id1") << hasShared;
        EXPECT_EQ(BytesOf(scratch / "s"), bytes);
        EXPECT_EQ(BytesOf(scratch / "s-wal"), log);
    }
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "id1");
}

TEST(ReadSettings, TakeBackWhatAKilledProgramHadBegunInAStoreMadeByHand) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    const pid_t child = InChild([&] {
        sqlite3* database = nullptr;
        sqlite3_open((scratch / "s").c_str(), &database);
        sqlite3_exec(database,
                     "PRAGMA cache_size = 1; BEGIN; UPDATE setting SET value = 'half';"
                     "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
                     "INSERT INTO setting SELECT 'x', 'y', i, hex(zeroblob(100)) FROM n;",
                     nullptr, nullptr, nullptr);
        raise(SIGKILL);
    });
    ASSERT_EQ(ExitOf(child), 128 + SIGKILL);
    ASSERT_GT(fs::file_size(scratch / "s-journal"), 0u);
    const auto read = SqliteSettings::OpenToRead(scratch / "s");
    ASSERT_TRUE(read.Ok()) << read.Fault.Text;
    EXPECT_EQ(read.Value->Read(kApp, "Options", "Games"), "id1");
    EXPECT_EQ(read.Value->All("x").Value.size(), 0u);
}

TEST(ReadSettings, AreEmptyWhereThereIsNoneAndNothingIsMade) {
    const ScratchDirectory scratch;
    const auto read = SqliteSettings::OpenToRead(scratch / "no/s");
    ASSERT_TRUE(read.Ok()) << read.Fault.Text;
    EXPECT_EQ(read.Value->Read(kApp, "Options", "Games"), std::nullopt);
    EXPECT_FALSE(fs::exists(scratch / "no"));
    WriteBytes(scratch / "empty", "");
    EXPECT_TRUE(SqliteSettings::OpenToRead(scratch / "empty").Ok());
    EXPECT_EQ(fs::file_size(scratch / "empty"), 0u);
}

TEST(ReadSettings, RefuseWhatIsNoStoreAndWhatIsLocked) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "text", "no database, but long enough for a head of one: " + std::string(100, 'x'));
    EXPECT_EQ(SqliteSettings::OpenToRead(scratch / "text").Fault.Number, 75);
    RunSql(scratch / "s", kHandMade);
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open((scratch / "s").c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(SqliteSettings::OpenToRead(scratch / "s").Fault.Number, 55);
    sqlite3_close(holder);
    EXPECT_TRUE(SqliteSettings::OpenToRead(scratch / "s").Ok());
}

TEST(ReadSettings, ReadWhereNothingMayBeWritten) {
    const ScratchDirectory scratch;
    constexpr fs::perms kToBeRead = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
    constexpr fs::perms kToBeEntered = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    fs::permissions(scratch.Path(), fs::perms::owner_all | kToBeEntered);
    const auto lock = [&](const std::string& name, bool isToBeRead) {
        for (const auto& entry : fs::directory_iterator(scratch / name)) {
            fs::permissions(entry.path(), isToBeRead ? kToBeRead : fs::perms::none);
        }
        fs::permissions(scratch / name, kToBeRead | kToBeEntered);
    };
    // Everything may be read and written by root: the question is asked as somebody who is not.
    const auto readsAs = [&](const fs::path& file, int fault) {
        return ExitOf(InChild([&] {
            if (geteuid() == 0 && seteuid(65534) != 0) {
                _exit(90);
            }
            const auto read = SqliteSettings::OpenToRead(file);
            if (fault != 0) {
                _exit(read.Fault.Number == fault ? 0 : 91);
            }
            _exit(!read.Ok() ? read.Fault.Number : read.Value->Read(kApp, "Options", "Games") == "id1" ? 0 : 92);
        }));
    };
    for (const char* const name : {"closed", "killed", "unreadable"}) {
        fs::create_directory(scratch / name);
        const fs::path file = scratch.Path() / name / "s";
        const pid_t child = InChild([&] {
            auto store = SqliteSettings::Open(file);
            (void)store.Value->Write(kApp, "Options", "Games", "id1");
            if (std::string(name) == "killed") {
                raise(SIGKILL);
            }
            store.Value.reset();
            _exit(0);
        });
        (void)ExitOf(child);
        lock(name, std::string(name) != "unreadable");
    }
    EXPECT_EQ(readsAs(scratch.Path() / "closed" / "s", 0), 0);
    EXPECT_EQ(readsAs(scratch.Path() / "killed" / "s", 0), 0) << "the log counts";
    EXPECT_EQ(readsAs(scratch.Path() / "unreadable" / "s", 70), 0);
    for (const char* const name : {"closed", "killed", "unreadable"}) {
        fs::permissions(scratch / name, fs::perms::owner_all);
    }
}

}  // namespace lv
