#include "platform/linux/settings/settings_file.h"

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
#include "platform/linux/files/file_descriptor.h"
#include "platform/linux/settings/settings_faults.h"
#include "platform/linux/settings/settings_layout.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

// The head of a SQLite 3 file, and the offsets of what is looked at in it: numbers with the highest byte first.
using Head = std::array<unsigned char, 100>;
constexpr std::size_t kPageOffset = 16;     // bytes in a page, two bytes; 1 is 65,536
constexpr std::size_t kPagesOffset = 28;    // pages in the file, four bytes
constexpr std::size_t kVersionOffset = 60;  // user_version, four bytes

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
        return UnwritableStore(failed, file, "their directory");
    }
    if (faccessat(AT_FDCWD, file.parent_path().c_str(), W_OK | X_OK, AT_EACCESS) != 0) {
        return UnwritableStore(errno, file, "their directory");
    }
    if (const int failed = MakeFile(file)) {
        return UnwritableStore(failed, file, "the file");
    }
    if (faccessat(AT_FDCWD, file.c_str(), R_OK | W_OK, AT_EACCESS) != 0) {
        return UnwritableStore(errno, file, "the file");
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

// Writes a page as it is. With a log nobody waits for the disk: it is synced with the first value that is saved. A lock
// is no matter here.
Error FindOutWhetherThereIsRoom(sqlite3* database, const fs::path& file, bool hasLog) {
    sqlite3_busy_timeout(database, 0);
    Execute(database, hasLog ? "PRAGMA synchronous = OFF" : "PRAGMA synchronous = EXTRA");
    const bool written = Execute(database, "BEGIN IMMEDIATE") &&
                         Execute(database, ("PRAGMA user_version = " + Ask(database, "PRAGMA user_version")).c_str()) &&
                         Execute(database, "COMMIT");
    const Error fault = written ? Error() : FaultOf(database);
    if (sqlite3_get_autocommit(database) == 0) {
        Execute(database, "ROLLBACK");
    }
    return fault.Number == error::kDiskFull ? StoreRefusal(fault.Number, file, "the disk is full.") : Error();
}

}  // namespace

// Looks at the file's head itself: SQLite would touch what lies beside the file before it refuses.
Error CheckSettingsHead(const fs::path& file) {
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
        return DamagedDatabase(file);
    }
    const unsigned char* v = head.data() + kVersionOffset;
    const bool newer = v[0] < 0x80 && (v[0] != 0 || v[1] != 0 || v[2] != 0 || v[3] > kStoreLayout);
    return newer ? NewerLayout(file) : Error();
}

void DatabaseCloser::operator()(sqlite3* database) const {
    sqlite3_close(database);
}

Result<Database> OpenSettingsFile(const fs::path& file, int patience) {
    if (Error refused = CheckPlace(file)) {
        return refused;
    }
    if (Error refused = CheckSettingsHead(file)) {
        return refused;
    }
    sqlite3* opened = nullptr;
    const int failed = sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    Database database(opened);
    if (failed != SQLITE_OK) {
        return UnusableStore(file, FromUtf8Lossy(sqlite3_errstr(failed)) + ".");
    }
    RunNothingOfTheFile(opened);
    sqlite3_busy_timeout(opened, patience);
    // Until it is known to be a store, closing it must not move another program's log into it.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    if (Error refused = CheckLayout(opened, file)) {
        return refused;
    }
    if (sqlite3_db_readonly(opened, "main") != 0) {
        return UnwritableStore(EACCES, file, "the file");
    }
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    // A store made by hand has a rollback journal. Where it cannot be changed now, because a shell has it open, it is
    // as good: EXTRA is FULL with a log, and syncs the directory too when a journal goes.
    sqlite3_busy_timeout(opened, kPatienceBeforeAsking);
    const bool hasLog = Ask(opened, "PRAGMA journal_mode = WAL") == "wal";
    if (Error refused = FindOutWhetherThereIsRoom(opened, file, hasLog)) {
        return refused;
    }
    sqlite3_busy_timeout(opened, patience);
    Execute(opened, "PRAGMA synchronous = EXTRA");
    return database;
}

}  // namespace lv
