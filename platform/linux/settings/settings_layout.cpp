#include "platform/linux/settings/settings_layout.h"

#include <sqlite3.h>

#include "platform/code_page.h"
#include "platform/linux/settings/settings_faults.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr int kLongestComputed = 16 << 20;

constexpr const char* kSchema = R"(
CREATE TABLE setting(
    application TEXT NOT NULL COLLATE NOCASE,
    section     TEXT NOT NULL COLLATE NOCASE,
    key         TEXT NOT NULL COLLATE NOCASE,
    value       TEXT NOT NULL,
    PRIMARY KEY (application, section, key)) WITHOUT ROWID;
PRAGMA user_version = 1;
)";

// Two first starts at once: the second one waits for the first and finds its table.
Error MakeTable(sqlite3* database, const fs::path& file) {
    if (!Execute(database, "BEGIN IMMEDIATE")) {
        return RefusedBySqlite(database, file);
    }
    const bool stillEmpty = Ask(database, "SELECT count(*) FROM sqlite_master") == "0";
    if ((stillEmpty && !Execute(database, kSchema)) || !Execute(database, "COMMIT")) {
        const Error fault = FaultOf(database);
        Execute(database, "ROLLBACK");
        return fault.Number == error::kAlreadyOpen
                   ? fault
                   : StoreRefusal(fault.Number, file, "they could not be made. (" + fault.Text + ")");
    }
    return {};
}

struct Layout {
    std::string Version;
    std::string Tables;
    std::string Columns;
    std::string Computed;  // columns
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
        layout.Computed = Ask(database, "SELECT count(*) FROM pragma_table_xinfo('setting') WHERE hidden IN (2, 3)");
        // The check would compute what the file wants computed.
        layout.Check = layout.Computed == "0" ? Ask(database, "PRAGMA quick_check(1)") : "not made";
        fault = layout.Check.empty() ? RefusedBySqlite(database, file) : Error();
    }
    Execute(database, "COMMIT");
    return fault ? Result<Layout>(fault) : layout;
}

// A column that computes what it may not would refuse each value that is written.
Error CheckColumns(sqlite3* database, const fs::path& file) {
    sqlite3_stmt* write = nullptr;
    const int failed = sqlite3_prepare_v2(
        database, "INSERT INTO setting(application, section, key, value) VALUES(?1, ?2, ?3, ?4)", -1, &write, nullptr);
    sqlite3_finalize(write);
    if (failed == SQLITE_OK) {
        return {};
    }
    if (failed != SQLITE_ERROR) {
        return RefusedBySqlite(database, file);
    }
    return UnusableStore(file, "their table wants to run something. (" + FromUtf8Lossy(sqlite3_errmsg(database)) + ")");
}

}  // namespace

void RunNothingOfTheFile(sqlite3* database) {
    struct Switch {
        int Option;
        int Value;
    };
    constexpr Switch kSwitches[] = {
        {SQLITE_DBCONFIG_DEFENSIVE, 1},   {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
        {SQLITE_DBCONFIG_ENABLE_VIEW, 0}, {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
        {SQLITE_DBCONFIG_ENABLE_FKEY, 0}, {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
    };
    for (const Switch& one : kSwitches) {
        sqlite3_db_config(database, one.Option, one.Value, nullptr);
    }
    sqlite3_limit(database, SQLITE_LIMIT_LENGTH, kLongestComputed);
}

bool Execute(sqlite3* database, const char* sql) {
    return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

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
    if (layout.Version.size() > 1 ? layout.Version[0] != '-' : layout.Version[0] > '0' + kStoreLayout) {
        return NewerLayout(file);
    }
    if (layout.Computed != "0") {
        return UnusableStore(file, "their table has columns that compute something.");
    }
    if (layout.Check != "ok") {
        return DamagedDatabase(file);
    }
    const bool known = layout.Version == "1" && layout.Columns == "application 1,section 2,key 3,value 0";
    return known ? CheckColumns(database, file) : NoDatabase(file);
}

}  // namespace lv
