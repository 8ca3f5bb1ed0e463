#include "platform/linux/settings_file.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
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

// The head of a SQLite 3 file, and the offsets of what is looked at in it: numbers with the highest byte first.
using Head = std::array<unsigned char, 100>;
constexpr std::size_t kPageOffset = 16;     // bytes in a page, two bytes; 1 is 65,536
constexpr std::size_t kPagesOffset = 28;    // pages in the file, four bytes
constexpr std::size_t kVersionOffset = 60;  // user_version, four bytes

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

bool HasLog(const fs::path& file) {
    std::error_code failed;
    for (const char* const end : {"-wal", "-journal"}) {
        const auto size = fs::file_size(file.string() + end, failed);
        if (!failed && size > 0) {
            return true;
        }
    }
    return false;
}

bool IsShort(const Head& head, const fs::path& file) {
    const unsigned page = static_cast<unsigned>(head[kPageOffset] << 8 | head[kPageOffset + 1]);
    std::uintmax_t pages = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        pages = pages << 8 | head[kPagesOffset + i];
    }
    std::error_code failed;
    const std::uintmax_t size = fs::file_size(file, failed);
    return !failed && size < pages * (page == 1 ? 65536 : page);
}

// SQLite fills up a last page that is cut off with zeros, and a value with them. With a log beside the file the rest
// may lie there; another program may be moving it into the file at this moment, so the size is looked at again.
bool IsCutOff(const Head& head, const fs::path& file) {
    return IsShort(head, file) && !HasLog(file) && IsShort(head, file);
}

// Looks at the file's head itself: SQLite would touch what lies beside the file before it refuses.
Error CheckHead(const fs::path& file) {
    struct stat info {};
    if (stat(file.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return NoDatabase(file);
    }
    const FileDescriptor opened(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    Head head{};
    const ssize_t got = opened.IsOpen() ? read(opened.Number(), head.data(), head.size()) : -1;
    if (got == 0) {
        return {};
    }
    if (got != static_cast<ssize_t>(head.size()) || std::memcmp(head.data(), "SQLite format 3", 16) != 0) {
        return NoDatabase(file);
    }
    if (IsCutOff(head, file)) {
        return Damaged(file);
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

// What SQLite itself says against the file.
Error RefusedBySqlite(sqlite3* database, const fs::path& file) {
    switch (sqlite3_errcode(database)) {
        case SQLITE_NOTADB:
            return NoDatabase(file);
        case SQLITE_CORRUPT:
            return Damaged(file);
        default:
            return Refusal(FaultOf(database).Number, file, FromUtf8Lossy(sqlite3_errmsg(database)) + ".");
    }
}

// Two first starts at once: the second one waits for the first and finds its table.
Error MakeTable(sqlite3* database, const fs::path& file) {
    if (!Execute(database, "BEGIN IMMEDIATE")) {
        return RefusedBySqlite(database, file);
    }
    const bool stillEmpty = Ask(database, "SELECT count(*) FROM sqlite_master") == "0";
    if ((stillEmpty && !Execute(database, kSchema)) || !Execute(database, "COMMIT")) {
        const Error fault = FaultOf(database);
        Execute(database, "ROLLBACK");
        return Refusal(fault.Number, file, "they could not be made. (" + fault.Text + ")");
    }
    return {};
}

struct Layout {
    std::string Version;
    std::string Tables;
    std::string Columns;
    std::string Check;
};

// All of one moment, for another program may be making the table.
Result<Layout> ReadLayout(sqlite3* database, const fs::path& file) {
    if (!Execute(database, "BEGIN")) {
        return RefusedBySqlite(database, file);
    }
    Layout layout;
    layout.Version = Ask(database, "PRAGMA user_version");
    Error fault = layout.Version.empty() ? RefusedBySqlite(database, file) : Error();
    if (!fault) {
        layout.Tables = Ask(database, "SELECT count(*) FROM sqlite_master");
        layout.Columns = Ask(database, "SELECT group_concat(name || ' ' || pk) FROM pragma_table_info('setting')");
        layout.Check = Ask(database, "PRAGMA quick_check(1)");
        fault = layout.Check.empty() ? RefusedBySqlite(database, file) : Error();
    }
    Execute(database, "COMMIT");
    return fault ? Result<Layout>(fault) : layout;
}

Error CheckLayout(sqlite3* database, const fs::path& file) {
    Result<Layout> read = ReadLayout(database, file);
    if (read.Ok() && read.Value.Version == "0" && read.Value.Tables == "0") {
        if (Error failed = MakeTable(database, file)) {
            return failed;
        }
        read = ReadLayout(database, file);
    }
    if (!read.Ok()) {
        return read.Fault;
    }
    const Layout& layout = read.Value;
    if (layout.Version.size() > 1 ? layout.Version[0] != '-' : layout.Version[0] > '0' + kLayout) {
        return NewerLayout(file);
    }
    if (layout.Check != "ok") {
        return Damaged(file);
    }
    const bool known = layout.Version == "1" && layout.Columns == "application 1,section 2,key 3,value 0";
    return known ? Error() : NoDatabase(file);
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
    if (Error refused = CheckPlace(file)) {
        return refused;
    }
    if (Error refused = CheckHead(file)) {
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
    if (Error refused = CheckLayout(opened, file)) {
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
