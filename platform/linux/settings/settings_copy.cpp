#include "platform/linux/settings/settings_copy.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/linux/settings/settings_faults.h"
#include "platform/linux/settings/settings_layout.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

enum class Way {
    kAsOthersDo,
    kReadOnly,
    kWithoutSharedFile,  // the one that all users of a log share, which may have found no room
    kWithoutLog,         // which may have found none either
};

Database Opened(const std::string& name, int flags) {
    sqlite3* opened = nullptr;
    const int failed = sqlite3_open_v2(name.c_str(), &opened, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    Database database(opened);
    if (failed != SQLITE_OK) {
        return nullptr;
    }
    RunNothingOfTheFile(opened);
    sqlite3_busy_timeout(opened, kPatienceBeforeAsking);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    return database;
}

std::string UriOf(const fs::path& file) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string uri = "file:";
    for (const char c : file.string()) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '%' || c == '?' || c == '#') {
            uri += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
        } else {
            uri += c;
        }
    }
    return uri;
}

Database OpenedToBeRead(const fs::path& file, Way way) {
    if (way == Way::kWithoutLog) {
        return Opened(UriOf(file) + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    }
    Database database = Opened(file.string(), way == Way::kReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
    if (database != nullptr && way == Way::kWithoutSharedFile) {
        Execute(database.get(), "PRAGMA locking_mode = EXCLUSIVE");
    }
    return database;
}

bool Holds(const fs::path& file) {
    std::error_code failed;
    const auto size = fs::file_size(file, failed);
    return !failed && size > 0;
}

Error CopyRows(sqlite3* from, sqlite3* to) {
    sqlite3_stmt* read = nullptr;
    sqlite3_stmt* write = nullptr;
    sqlite3_prepare_v2(from, "SELECT application, section, key, value FROM setting", -1, &read, nullptr);
    sqlite3_prepare_v2(to, "INSERT OR REPLACE INTO setting VALUES(?1, ?2, ?3, ?4)", -1, &write, nullptr);
    int got = sqlite3_step(read);
    int put = SQLITE_DONE;
    for (; got == SQLITE_ROW && put == SQLITE_DONE; got = sqlite3_step(read)) {
        for (int i = 0; i < 4; ++i) {
            sqlite3_bind_value(write, i + 1, sqlite3_column_value(read, i));
        }
        put = sqlite3_step(write);
        sqlite3_reset(write);
    }
    const Error fault = got != SQLITE_DONE ? FaultOf(from) : put != SQLITE_DONE ? FaultOf(to) : Error();
    sqlite3_finalize(read);
    sqlite3_finalize(write);
    return fault;
}

Error CopyStored(const fs::path& file, Way way, sqlite3* memory) {
    const Database stored = OpenedToBeRead(file, way);
    if (stored == nullptr) {
        return StoreRefusal(error::kDeviceFault, file, "the file cannot be read.");
    }
    if (Error refused = CheckLayout(stored.get(), file)) {
        return refused;
    }
    return CopyRows(stored.get(), memory);
}

bool IsThere(const fs::path& file) {
    std::error_code failed;
    return fs::exists(file, failed);
}

bool MayWriteIn(const fs::path& directory) {
    return faccessat(AT_FDCWD, directory.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

/// Whether somebody has begun something beside the file: a log, or a journal.
bool HasCompany(const fs::path& file) {
    return IsThere(file.string() + "-wal") || IsThere(file.string() + "-shm") || IsThere(file.string() + "-journal");
}

/// By the versions that its head asks of who writes and reads it.
bool KeepsALog(const fs::path& file) {
    constexpr std::size_t kVersions = 18;
    constexpr char kOfALog = 2;
    std::array<char, kVersions + 2> head{};
    std::ifstream in(file, std::ios::binary);
    return in.read(head.data(), head.size()) && head[kVersions] == kOfALog && head[kVersions + 1] == kOfALog;
}

struct FileState {
    fs::file_time_type Written;
    std::uintmax_t Size = 0;
    friend bool operator==(const FileState&, const FileState&) = default;
};

FileState StateOf(const fs::path& file) {
    std::error_code failed;
    return {fs::last_write_time(file, failed), fs::file_size(file, failed)};
}

// A store with a log that nobody has open has none beside it, and SQLite would make one to read it. Without a lock, so
// it is looked afterwards whether somebody came in between; a store with a rollback journal is read under its lock.
bool CopyQuietly(const fs::path& file, sqlite3* memory, Error& fault) {
    if (HasCompany(file) || !KeepsALog(file)) {
        return false;
    }
    const FileState before = StateOf(file);
    fault = CopyStored(file, Way::kWithoutLog, memory);
    return !HasCompany(file) && StateOf(file) == before;
}

Error CopyReading(const fs::path& file, sqlite3* memory) {
    Error fault;
    if (CopyQuietly(file, memory, fault)) {
        return fault;
    }
    fault = CopyStored(file, Way::kReadOnly, memory);
    if (fault.Number == error::kPermissionDenied) {
        fault = CopyStored(file, MayWriteIn(file.parent_path()) ? Way::kAsOthersDo : Way::kWithoutLog, memory);
    }
    return fault;
}

/// A store in memory without a row.
Result<Database> EmptyStore(const fs::path& file) {
    Database memory = Opened(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    if (memory == nullptr) {
        return StoreRefusal(error::kDeviceFault, file, "there is no memory left.");
    }
    if (Error fault = CheckLayout(memory.get(), file)) {
        return fault;
    }
    return memory;
}

}  // namespace

Result<Database> CopySettingsFile(const fs::path& file) {
    Result<Database> memory = EmptyStore(file);
    if (!memory.Ok() || !Holds(file)) {
        return memory;
    }
    Error fault = CopyStored(file, Way::kAsOthersDo, memory.Value.get());
    if (fault) {
        fault = CopyStored(file, Way::kWithoutSharedFile, memory.Value.get());
    }
    if (fault && !Holds(file.string() + "-wal")) {
        fault = CopyStored(file, Way::kWithoutLog, memory.Value.get());
    }
    return fault ? Result<Database>(fault) : std::move(memory);
}

Result<Database> ReadSettingsFile(const fs::path& file) {
    Result<Database> memory = EmptyStore(file);
    if (!memory.Ok()) {
        return memory;
    }
    if (faccessat(AT_FDCWD, file.c_str(), R_OK, AT_EACCESS) != 0) {
        return errno == ENOENT ? std::move(memory) : Result<Database>(UnreadableStore(errno, file));
    }
    Error fault = CheckSettingsHead(file);
    if (!fault && Holds(file)) {
        fault = CopyReading(file, memory.Value.get());
    }
    return fault ? Result<Database>(fault) : std::move(memory);
}

}  // namespace lv
