// tests/platform/store_files.h
//
// Files of the settings store, as their users, other programs and a full disk treat them.

#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <memory>
#include <string>

#include "platform/linux/settings/sqlite_settings.h"
#include "tests/platform/scratch_directory.h"

namespace lv {

inline constexpr const char* kApp = "Lorvane 3D";

inline std::unique_ptr<SqliteSettings> OpenStore(const std::filesystem::path& file) {
    auto opened = SqliteSettings::Open(file);
    EXPECT_EQ(opened.Fault.Text, "");
    return std::move(opened.Value);
}

/// Runs `work` in a process of its own, which must not come back.
inline pid_t InChild(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(99);
    }
    return child;
}

inline int ExitOf(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

/// SQL as the user of a shell would give it, who has a function of their own: "stranger(x)" gives x.
inline void RunSql(const std::filesystem::path& file, const std::string& sql) {
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
    const auto same = [](sqlite3_context* context, int, sqlite3_value** values) {
        sqlite3_result_value(context, values[0]);
    };
    sqlite3_create_function(database, "stranger", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, same, nullptr,
                            nullptr);
    ASSERT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
}

inline constexpr const char* kHandMade =
    "CREATE TABLE setting(application TEXT NOT NULL COLLATE NOCASE, section TEXT NOT NULL COLLATE NOCASE,"
    " key TEXT NOT NULL COLLATE NOCASE, value TEXT NOT NULL, PRIMARY KEY (application, section, key)) WITHOUT ROWID;"
    "PRAGMA user_version = 1;"
    "INSERT INTO setting VALUES('Lorvane 3D', 'Options', 'Games', 'id1');";

/// Bytes until the disk is full, for this process's SQLite.
inline off_t g_left = 0;

inline ssize_t WriteWhileThereIsRoom(int file, const void* bytes, std::size_t count, off_t offset) {
    if (static_cast<off_t>(count) > g_left) {
        errno = ENOSPC;
        return -1;
    }
    g_left -= static_cast<off_t>(count);
    return pwrite(file, bytes, count, offset);
}

/// In a child process only: there is no way back.
inline void FillDiskAfter(off_t bytes) {
    g_left = bytes;
    sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
    for (const char* const name : {"pwrite", "pwrite64"}) {
        system->xSetSystemCall(system, name, reinterpret_cast<sqlite3_syscall_ptr>(WriteWhileThereIsRoom));
    }
}

/// Nothing but the file itself may be beside it, and its bytes may not have changed.
inline void ExpectLeftAlone(const std::filesystem::path& file, const std::string& bytes) {
    EXPECT_EQ(BytesOf(file), bytes);
    EXPECT_EQ(
        std::distance(std::filesystem::directory_iterator(file.parent_path()), std::filesystem::directory_iterator()),
        1);
}

}  // namespace lv
