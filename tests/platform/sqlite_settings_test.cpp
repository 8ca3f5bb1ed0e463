#include "platform/linux/settings/sqlite_settings.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

#include "tests/platform/store_files.h"

namespace lv {

namespace fs = std::filesystem;

TEST(SqliteSettings, MakeTheirDirectoryForThisUserAlone) {
    const ScratchDirectory scratch;
    const fs::path file = scratch.Path() / "config" / "lorvane3d" / "settings.sqlite";
    const auto store = OpenStore(file);
    struct stat info {};
    ASSERT_EQ(stat(file.parent_path().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777u, 0700u);
    ASSERT_EQ(stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777u, 0600u);
}

TEST(SqliteSettings, OutliveTheirOwner) {
    const ScratchDirectory scratch;
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "Games", "id1").Number, 0);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "id1");
}

TEST(SqliteSettings, AreReadByTheShellAsUtf8) {
    const ScratchDirectory scratch;
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "Name", "\x80\xE9").Number, 0);
    RunSql(scratch / "s", "UPDATE setting SET value = value || 'x' WHERE value = '\xE2\x82\xAC\xC3\xA9'");
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Name"), "\x80\xE9x");
}

TEST(SqliteSettings, LoseNoReturnedWriteToAKill) {
    const ScratchDirectory scratch;
    OpenStore(scratch / "s");
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = InChild([&] {
        const auto store = SqliteSettings::Open(scratch / "s");
        for (int i = 0; i < 10000; ++i) {
            const std::string number = std::to_string(i);
            if (store.Value->Write(kApp, "Options", "Key" + number, number) || write(ends[1], &i, sizeof i) < 0) {
                _exit(1);
            }
        }
    });
    close(ends[1]);
    int last = -1;
    while (last < 1000 && read(ends[0], &last, sizeof last) == sizeof last) {
    }
    ASSERT_GE(last, 1000) << "the child came to nothing";
    kill(child, SIGKILL);
    EXPECT_EQ(ExitOf(child), 128 + SIGKILL);
    while (read(ends[0], &last, sizeof last) == sizeof last) {
    }
    close(ends[0]);
    ASSERT_LT(last, 9999) << "killed too late to say anything";
    const auto store = OpenStore(scratch / "s");
    for (int i = 0; i <= last; ++i) {
        ASSERT_EQ(store->Read(kApp, "Options", "Key" + std::to_string(i)), std::to_string(i));
    }
}

TEST(SqliteSettings, LoseNothingWhenTwoProcessesWriteAtOnce) {
    const ScratchDirectory scratch;
    const auto writer = [&](const std::string& name) {
        return InChild([&scratch, name] {
            const auto store = SqliteSettings::Open(scratch / "s");
            for (int i = 0; store.Ok() && i < 500; ++i) {
                if (store.Value->Write(kApp, name, std::to_string(i), name)) {
                    _exit(1);
                }
            }
            _exit(store.Ok() ? 0 : 2);
        });
    };
    const pid_t one = writer("One");
    const pid_t two = writer("Two");
    EXPECT_EQ(ExitOf(one), 0);
    EXPECT_EQ(ExitOf(two), 0);
    const auto store = OpenStore(scratch / "s");
    for (int i = 0; i < 500; ++i) {
        ASSERT_EQ(store->Read(kApp, "One", std::to_string(i)), "One");
        ASSERT_EQ(store->Read(kApp, "Two", std::to_string(i)), "Two");
    }
}

TEST(SqliteSettings, LetSeveralFirstStartsMakeOneStore) {
    for (int round = 0; round < 20; ++round) {
        const ScratchDirectory scratch;
        std::vector<pid_t> children;
        for (int i = 0; i < 4; ++i) {
            children.push_back(InChild([&scratch] {
                const auto store = SqliteSettings::Open(scratch / "config/s");
                _exit(store.Ok() && !store.Value->Write(kApp, "Options", std::to_string(getpid()), "1") ? 0 : 1);
            }));
        }
        for (const pid_t child : children) {
            EXPECT_EQ(ExitOf(child), 0);
        }
        const auto store = OpenStore(scratch / "config/s");
        for (const pid_t child : children) {
            EXPECT_EQ(store->Read(kApp, "Options", std::to_string(child)), "1");
        }
    }
}

TEST(SqliteSettings, SeeWhatAnotherProcessWrote) {
    const ScratchDirectory scratch;
    const auto one = OpenStore(scratch / "s");
    const auto two = OpenStore(scratch / "s");
    EXPECT_EQ(one->Write(kApp, "Options", "Games", "id1").Number, 0);
    EXPECT_EQ(two->Read(kApp, "Options", "Games"), "id1");
}

TEST(SqliteSettings, KeepNothingOfAGroupThatWasKilled) {
    const ScratchDirectory scratch;
    const pid_t child = InChild([&] {
        const auto store = SqliteSettings::Open(scratch / "s");
        store.Value->BeginGroup();
        for (int i = 0; i < 300; ++i) {
            if (store.Value->Write(kApp, "Profile", std::to_string(i), "1")) {
                _exit(1);
            }
        }
        raise(SIGKILL);
    });
    EXPECT_EQ(ExitOf(child), 128 + SIGKILL);
    const auto store = OpenStore(scratch / "s");
    for (int i = 0; i < 300; ++i) {
        ASSERT_EQ(store->Read(kApp, "Profile", std::to_string(i)), std::nullopt);
    }
}

TEST(SqliteSettings, HideAGroupFromOthersUntilItsOutermostEnd) {
    const ScratchDirectory scratch;
    const auto one = OpenStore(scratch / "s");
    const auto two = OpenStore(scratch / "s");
    one->BeginGroup();
    one->BeginGroup();
    EXPECT_EQ(one->Write(kApp, "Options", "Games", "id1").Number, 0);
    EXPECT_EQ(one->EndGroup().Number, 0);
    EXPECT_EQ(two->Read(kApp, "Options", "Games"), std::nullopt);
    EXPECT_EQ(one->EndGroup().Number, 0);
    EXPECT_EQ(two->Read(kApp, "Options", "Games"), "id1");
}

TEST(SqliteSettings, LeaveTheDiskAloneForAnUnchangedValue) {
    const ScratchDirectory scratch;
    const auto store = OpenStore(scratch / "s");
    EXPECT_EQ(store->Write(kApp, "Options", "Games", "id1").Number, 0);
    const std::string file = BytesOf(scratch / "s");
    const std::string log = BytesOf(scratch / "s-wal");
    ASSERT_NE(log, "(none)");
    EXPECT_EQ(store->Write(kApp, "options", "GAMES", "id1").Number, 0);
    store->BeginGroup();
    EXPECT_EQ(store->Write(kApp, "Options", "Games", "id1").Number, 0);
    EXPECT_EQ(store->EndGroup().Number, 0);
    EXPECT_EQ(BytesOf(scratch / "s"), file);
    EXPECT_EQ(BytesOf(scratch / "s-wal"), log);
    EXPECT_EQ(store->Write(kApp, "Options", "Games", "id2").Number, 0);
    EXPECT_NE(BytesOf(scratch / "s-wal"), log);
}

TEST(SqliteSettings, ReadCharactersWithoutAFormAsQuestionMarks) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", std::string(kHandMade) + "UPDATE setting SET value = 'a\xE6\x97\xA5\xC3\xA9'");
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "a?\xE9");
}

TEST(SqliteSettings, TellAFullDiskAndKeepTheOldValues) {
    const ScratchDirectory scratch;
    const pid_t child = InChild([&] {
        const auto store = SqliteSettings::Open(scratch / "s");
        FillDiskAfter(200000);
        Error failed;
        for (int i = 0; i < 100 && !failed; ++i) {
            failed = store.Value->Write(kApp, "Options", "Games", std::string(10000, static_cast<char>('a' + i % 26)));
        }
        const auto kept = store.Value->Read(kApp, "Options", "Games");
        _exit(kept && kept->size() == 10000 ? failed.Number : 90);
    });
    EXPECT_EQ(ExitOf(child), 61);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games").value_or("").size(), 10000u);
}

TEST(SqliteSettings, TakeBackAWholeGroupWhenOneOfItsWritesFails) {
    const ScratchDirectory scratch;
    const pid_t child = InChild([&] {
        const auto store = SqliteSettings::Open(scratch / "s");
        FillDiskAfter(200000);
        store.Value->BeginGroup();
        for (int i = 0; i < 400; ++i) {
            (void)store.Value->Write(kApp, "Profile", std::to_string(i), std::string(16000, 'x'));
        }
        const Error failed = store.Value->EndGroup();
        _exit(store.Value->Read(kApp, "Profile", "0") ? 90 : failed.Number);
    });
    EXPECT_EQ(ExitOf(child), 61);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Profile", "0"), std::nullopt);
}

TEST(SqliteSettings, LeaveNamesWithoutAFormOutOfAllAndGiveTheirValuesWithQuestionMarks) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", std::string(kHandMade) +
                              "INSERT INTO setting VALUES('Lorvane 3D', 'Options', 'a\xE6\x97\xA5', 'x');"
                              "INSERT INTO setting VALUES('Lorvane 3D', '\xE6\x97\xA5', 'a', 'x');"
                              "INSERT INTO setting VALUES('\xE6\x97\xA5', 'Options', 'a', 'x');"
                              "INSERT INTO setting VALUES('Lorvane 3D', 'Options', 'b', 'a\xE6\x97\xA5\xC3\xA9');");
    const auto all = OpenStore(scratch / "s")->All(kApp);
    EXPECT_EQ(all.Fault.Number, 0);
    EXPECT_EQ(all.Value, (std::vector<StoredValue>{{"Options", "b", "a?\xE9"}, {"Options", "Games", "id1"}}));
}

TEST(SqliteSettings, LeaveTheStoreFreeForOthersOnceAllIsRead) {
    const ScratchDirectory scratch;
    const auto store = OpenStore(scratch / "s");
    EXPECT_EQ(store->Write(kApp, "Options", "Games", "id1").Number, 0);
    EXPECT_EQ(store->All(kApp).Value.size(), 1u);
    const auto other = OpenStore(scratch / "s");
    EXPECT_EQ(other->Write(kApp, "Options", "Games", "ctf").Number, 0);
    EXPECT_EQ(store->All(kApp).Value, (std::vector<StoredValue>{{"Options", "Games", "ctf"}}));
}

TEST(SqliteSettings, FindAccentedNamesInAnyCaseWithinAGroupToo) {
    const ScratchDirectory scratch;
    const auto store = OpenStore(scratch / "s");
    EXPECT_EQ(store->Write(kApp, "Options", "\xC9t\xE9", "old").Number, 0);
    store->BeginGroup();
    EXPECT_EQ(store->Write(kApp, "Options", "\xE9t\xE9", "new").Number, 0);
    EXPECT_EQ(store->Write(kApp, "Options", "No\xEBl", "1").Number, 0);
    EXPECT_EQ(store->Write(kApp, "Options", "NO\xCBL", "2").Number, 0);
    EXPECT_EQ(store->Read(kApp, "Options", "no\xEBl"), "2");
    EXPECT_EQ(store->EndGroup().Number, 0);
    EXPECT_EQ(store->All(kApp).Value,
              (std::vector<StoredValue>{{"Options", "No\xEBl", "2"}, {"Options", "\xC9t\xE9", "new"}}));
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "\xE0", "of another").Number, 0);
    store->BeginGroup();
    EXPECT_EQ(store->Write(kApp, "Options", "\xC0", "ours").Number, 0);
    EXPECT_EQ(store->EndGroup().Number, 0);
    EXPECT_EQ(store->All(kApp).Value.size(), 3u);
}

}  // namespace lv
