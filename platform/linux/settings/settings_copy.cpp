#include "platform/linux/settings/settings_copy.h"

#include <sqlite3.h>

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
    Database database = Opened(file.string(), SQLITE_OPEN_READWRITE);
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

}  // namespace

Result<Database> CopySettingsFile(const fs::path& file) {
    Database memory = Opened(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    if (memory == nullptr) {
        return StoreRefusal(error::kDeviceFault, file, "there is no memory left.");
    }
    Error fault = CheckLayout(memory.get(), file);
    if (fault || !Holds(file)) {
        return fault ? Result<Database>(fault) : std::move(memory);
    }
    fault = CopyStored(file, Way::kAsOthersDo, memory.get());
    if (fault) {
        fault = CopyStored(file, Way::kWithoutSharedFile, memory.get());
    }
    if (fault && !Holds(file.string() + "-wal")) {
        fault = CopyStored(file, Way::kWithoutLog, memory.get());
    }
    return fault ? Result<Database>(fault) : std::move(memory);
}

}  // namespace lv
