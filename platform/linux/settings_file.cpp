#include "platform/linux/settings_file.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <system_error>

#include "platform/code_page.h"
#include "platform/linux/errno_error.h"
#include "platform/linux/file_descriptor.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr int kLayout = 1;
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kVersionOffset = 60;  // of the header, four bytes, the highest first

constexpr const char* kSchema = R"(
CREATE TABLE setting(
    application TEXT NOT NULL COLLATE NOCASE,
    section     TEXT NOT NULL COLLATE NOCASE,
    key         TEXT NOT NULL COLLATE NOCASE,
    value       TEXT NOT NULL,
    PRIMARY KEY (application, section, key)) WITHOUT ROWID;
PRAGMA user_version = 1;
)";

Error Refusal(int number, const fs::path& file, const std::string& reason) {
    return {number, "The settings in \"" + FromUtf8Lossy(file.string()) + "\" cannot be used: " + reason};
}

Error NewerLayout(const fs::path& file) {
    return Refusal(error::kPathFileAccess, file, "a newer version of this program made them.");
}

Error NoDatabase(const fs::path& file) {
    return Refusal(error::kPathFileAccess, file, "the file is no settings database.");
}

Error Damaged(const fs::path& file) {
    return Refusal(error::kPathFileAccess, file, "the database is damaged.");
}

Error Unwritable(int number, const fs::path& file, const char* what) {
    const Error fault = number == ENOENT ? MakeError(error::kPathNotFound) : ErrorOf(number);
    return Refusal(fault.Number, file, std::string(what) + " cannot be written. (" + fault.Text + ")");
}

// Parents that have to be made are for this user alone too, as the base directory rules want it.
int MakePrivateDirectories(const fs::path& directory) {
    struct stat info {};
    if (stat(directory.c_str(), &info) == 0) {
        return S_ISDIR(info.st_mode) ? 0 : ENOTDIR;
    }
    if (errno != ENOENT) {
        return errno;
    }
    if (directory.has_relative_path()) {
        if (const int failed = MakePrivateDirectories(directory.parent_path())) {
            return failed;
        }
    }
    return mkdir(directory.c_str(), 0700) == 0 || errno == EEXIST ? 0 : errno;
}

// An empty file is an empty database: what is left of a first start that was killed.
int MakeFile(const fs::path& file) {
    const FileDescriptor made(open(file.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!made.IsOpen()) {
        return errno == EEXIST ? 0 : errno;
    }
    const FileDescriptor directory(open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return directory.IsOpen() && fsync(directory.Number()) != 0 && errno == EIO ? EIO : 0;
}

Error CheckPlace(const fs::path& file) {
    if (const int failed = MakePrivateDirectories(file.parent_path())) {
        return Unwritable(failed, file, "their directory");
    }
    if (faccessat(AT_FDCWD, file.parent_path().c_str(), W_OK | X_OK, AT_EACCESS) != 0) {
        return Unwritable(errno, file, "their directory");
    }
    if (const int failed = MakeFile(file)) {
        return Unwritable(failed, file, "the file");
    }
    if (faccessat(AT_FDCWD, file.c_str(), R_OK | W_OK, AT_EACCESS) != 0) {
        return Unwritable(errno, file, "the file");
    }
    return {};
}

// Looks at the file's head itself: SQLite would touch what lies beside the file before it refuses.
Error CheckHead(const fs::path& file) {
    struct stat info {};
    if (stat(file.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return NoDatabase(file);
    }
    const FileDescriptor opened(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    std::array<unsigned char, kHeaderSize> head{};
    const ssize_t got = opened.IsOpen() ? read(opened.Number(), head.data(), head.size()) : -1;
    if (got == 0) {
        return {};
    }
    if (got != static_cast<ssize_t>(head.size()) || std::memcmp(head.data(), "SQLite format 3", 16) != 0) {
        return NoDatabase(file);
    }
    const unsigned char* v = head.data() + kVersionOffset;
    const bool newer = v[0] < 0x80 && (v[0] != 0 || v[1] != 0 || v[2] != 0 || v[3] > kLayout);
    return newer ? NewerLayout(file) : Error();
}

bool Execute(sqlite3* database, const char* sql) {
    return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

// The first column of the first row; empty on any failure.
std::string Ask(sqlite3* database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    std::string answer;
    if (sqlite3_prepare_v2(database, sql, -1, &statement, nullptr) == SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        answer = text != nullptr ? text : "";
    }
    sqlite3_finalize(statement);
    return answer;
}

// Two first starts at once: the second one waits for the first and finds its table.
Error MakeTable(sqlite3* database, const fs::path& file) {
    if (!Execute(database, "BEGIN IMMEDIATE")) {
        return Refusal(FaultOf(database).Number, file, FromUtf8Lossy(sqlite3_errmsg(database)) + ".");
    }
    const bool stillEmpty = Ask(database, "SELECT count(*) FROM sqlite_master") == "0";
    if ((stillEmpty && !Execute(database, kSchema)) || !Execute(database, "COMMIT")) {
        const Error fault = FaultOf(database);
        Execute(database, "ROLLBACK");
        return Refusal(fault.Number, file, "they could not be made. (" + fault.Text + ")");
    }
    return {};
}

Error CheckLayout(sqlite3* database, const fs::path& file) {
    const std::string version = Ask(database, "PRAGMA user_version");
    if (version.empty()) {
        const int code = sqlite3_errcode(database);
        return code == SQLITE_NOTADB ? NoDatabase(file)
               : code == SQLITE_CORRUPT
                   ? Damaged(file)
                   : Refusal(FaultOf(database).Number, file, FromUtf8Lossy(sqlite3_errmsg(database)) + ".");
    }
    if (version.size() > 1 ? version[0] != '-' : version[0] > '0' + kLayout) {
        return NewerLayout(file);
    }
    if (Ask(database, "PRAGMA quick_check(1)") != "ok") {
        return Damaged(file);
    }
    if (version == "0" && Ask(database, "SELECT count(*) FROM sqlite_master") == "0") {
        return MakeTable(database, file);
    }
    const std::string columns =
        Ask(database, "SELECT group_concat(name || ' ' || pk) FROM pragma_table_info('setting')");
    return version == "1" && columns == "application 1,section 2,key 3,value 0" ? Error() : NoDatabase(file);
}

}  // namespace

void DatabaseCloser::operator()(sqlite3* database) const {
    sqlite3_close(database);
}

Error FaultOf(sqlite3* database) {
    const Error system = ErrorOf(sqlite3_system_errno(database));
    switch (sqlite3_errcode(database) & 0xFF) {
        case SQLITE_FULL:
            return MakeError(error::kDiskFull);
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
        case SQLITE_READONLY:
        case SQLITE_PERM:
        case SQLITE_CANTOPEN:
            return MakeError(error::kPermissionDenied);
        case SQLITE_IOERR:
            return MakeError(system.Number == error::kDiskFull ? error::kDiskFull : error::kDeviceFault);
        default:
            return MakeError(error::kDeviceFault);
    }
}

Result<Database> OpenSettingsFile(const fs::path& file) {
    if (const Error refused = CheckPlace(file)) {
        return refused;
    }
    if (const Error refused = CheckHead(file)) {
        return refused;
    }
    sqlite3* opened = nullptr;
    const int failed = sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    Database database(opened);
    if (failed != SQLITE_OK) {
        return Refusal(error::kPathFileAccess, file, FromUtf8Lossy(sqlite3_errstr(failed)) + ".");
    }
    sqlite3_busy_timeout(opened, kPatience);
    // Until it is known to be a store, closing it must not move another program's log into it.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    if (const Error refused = CheckLayout(opened, file)) {
        return refused;
    }
    if (sqlite3_db_readonly(opened, "main") != 0) {
        return Unwritable(EACCES, file, "the file");
    }
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    // A store made by hand has a rollback journal. Where it cannot be changed now, because a shell has it open, it is
    // as good: EXTRA is FULL with a log, and syncs the directory too when a journal goes.
    sqlite3_busy_timeout(opened, 1000);
    Execute(opened, "PRAGMA journal_mode = WAL");
    sqlite3_busy_timeout(opened, kPatience);
    Execute(opened, "PRAGMA synchronous = EXTRA");
    return database;
}

}  // namespace lv
