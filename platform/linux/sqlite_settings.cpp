#include "platform/linux/sqlite_settings.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

#include "platform/code_page.h"

namespace lv {

namespace {

constexpr const char* kUpsertSql =
    "INSERT INTO setting(application, section, key, value) VALUES(?1, ?2, ?3, ?4) "
    "ON CONFLICT(application, section, key) DO UPDATE SET value = excluded.value";

// In the order of SqliteSettings::Statement.
constexpr const char* kSql[] = {
    "SELECT application, section, key, value FROM setting WHERE application = ?1 AND section = ?2 AND key = ?3",
    "SELECT application, section, key, value FROM setting",
    kUpsertSql,
    "BEGIN IMMEDIATE",
    "COMMIT",
    "ROLLBACK",
};

// A statement for one use; a read that is not reset would hold back the log.
class Use {
  public:
    explicit Use(sqlite3_stmt* statement) : statement_(statement) {}
    ~Use() {
        if (statement_ != nullptr) {
            sqlite3_reset(statement_);
            sqlite3_clear_bindings(statement_);
        }
    }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

    // The text must outlive the use.
    void Bind(int index, const std::string& text) {
        sqlite3_bind_text(statement_, index, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
    }
    int Step() { return sqlite3_step(statement_); }
    [[nodiscard]] std::string Column(int index) const {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, index));
        const int size = sqlite3_column_bytes(statement_, index);
        return text != nullptr ? std::string(text, static_cast<std::size_t>(size)) : std::string();
    }

  private:
    sqlite3_stmt* statement_;
};

bool HasOtherThanAscii(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

bool IsName(const std::string& utf8, std::string_view name) {
    const auto stored = FromUtf8(utf8);
    return stored && SameText(*stored, name);
}

}  // namespace

Result<std::unique_ptr<SqliteSettings>> SqliteSettings::Open(const std::filesystem::path& file) {
    Result<Database> opened = OpenSettingsFile(file);
    if (!opened.Ok()) {
        return opened.Fault;
    }
    return std::make_unique<SqliteSettings>(std::move(opened.Value));
}

SqliteSettings::SqliteSettings(Database database) : database_(std::move(database)) {}

SqliteSettings::~SqliteSettings() {
    TakeBack();
    for (sqlite3_stmt* statement : statements_) {
        sqlite3_finalize(statement);
    }
}

sqlite3_stmt* SqliteSettings::Prepared(Statement statement) {
    sqlite3_stmt*& prepared = statements_[statement];
    if (prepared == nullptr) {
        sqlite3_prepare_v3(database_.get(), kSql[statement], -1, SQLITE_PREPARE_PERSISTENT, &prepared, nullptr);
    }
    return prepared;
}

Error SqliteSettings::Do(Statement statement) {
    Use use(Prepared(statement));
    // The reason is asked for before the statement is reset: that forgets what the system said.
    return use.Step() == SQLITE_DONE ? Error() : FaultOf(database_.get());
}

std::optional<SqliteSettings::Row> SqliteSettings::Find(const Names& names) {
    const std::string application = ToUtf8(names.Application);
    const std::string section = ToUtf8(names.Section);
    const std::string key = ToUtf8(names.Key);
    {
        Use select(Prepared(kSelect));
        select.Bind(1, application);
        select.Bind(2, section);
        select.Bind(3, key);
        if (select.Step() == SQLITE_ROW) {
            return Row{{select.Column(0), select.Column(1), select.Column(2)}, select.Column(3)};
        }
    }
    const bool mayDifferInCase =
        HasOtherThanAscii(names.Application) || HasOtherThanAscii(names.Section) || HasOtherThanAscii(names.Key);
    return mayDifferInCase ? FindInAllRows(names) : std::nullopt;
}

std::optional<SqliteSettings::Row> SqliteSettings::FindInAllRows(const Names& names) {
    Use scan(Prepared(kScan));
    while (scan.Step() == SQLITE_ROW) {
        Row row{{scan.Column(0), scan.Column(1), scan.Column(2)}, {}};
        if (IsName(row.Names[2], names.Key) && IsName(row.Names[1], names.Section) &&
            IsName(row.Names[0], names.Application)) {
            row.Value = scan.Column(3);
            return row;
        }
    }
    return std::nullopt;
}

std::optional<std::string> SqliteSettings::Read(std::string_view application, std::string_view section,
                                                std::string_view key) {
    const auto row = Find({application, section, key});
    return row ? std::optional(FromUtf8Lossy(row->Value)) : std::nullopt;
}

Error SqliteSettings::Write(std::string_view application, std::string_view section, std::string_view key,
                            std::string_view value) {
    if (depth_ > 0 && groupFault_) {
        return groupFault_;
    }
    const Names names{application, section, key};
    if (const auto row = Find(names); row && FromUtf8Lossy(row->Value) == value) {
        return {};
    }
    return depth_ > 0 ? StoreInGroup(names, value) : StoreInTransaction(names, value);
}

// Within a transaction: the row that is there under another case keeps its spelling.
Error SqliteSettings::Store(const Names& names, std::string_view value) {
    const auto row = Find(names);
    const std::array<std::string, 3> stored =
        row ? row->Names
            : std::array<std::string, 3>{ToUtf8(names.Application), ToUtf8(names.Section), ToUtf8(names.Key)};
    const std::string text = ToUtf8(value);
    Use upsert(Prepared(kUpsert));
    upsert.Bind(1, stored[0]);
    upsert.Bind(2, stored[1]);
    upsert.Bind(3, stored[2]);
    upsert.Bind(4, text);
    return upsert.Step() == SQLITE_DONE ? Error() : FaultOf(database_.get());
}

Error SqliteSettings::StoreInTransaction(const Names& names, std::string_view value) {
    if (Error failed = Do(kBegin)) {
        return failed;
    }
    Error failed = Store(names, value);
    if (!failed) {
        failed = Do(kCommit);
    }
    TakeBack();
    return failed;
}

Error SqliteSettings::StoreInGroup(const Names& names, std::string_view value) {
    const bool begun = sqlite3_get_autocommit(database_.get()) == 0;
    groupFault_ = begun ? Error() : Do(kBegin);
    if (!groupFault_) {
        groupFault_ = Store(names, value);
    }
    if (groupFault_) {
        TakeBack();
    }
    return groupFault_;
}

// Ends a transaction that is still open.
void SqliteSettings::TakeBack() {
    if (sqlite3_get_autocommit(database_.get()) == 0) {
        (void)Do(kRollback);
    }
}

void SqliteSettings::BeginGroup() {
    if (depth_++ == 0) {
        groupFault_ = {};
    }
}

Error SqliteSettings::EndGroup() {
    if (depth_ == 0 || --depth_ > 0) {
        return {};
    }
    const bool begun = sqlite3_get_autocommit(database_.get()) == 0;
    if (!groupFault_ && begun) {
        groupFault_ = Do(kCommit);
    }
    TakeBack();
    return std::exchange(groupFault_, {});
}

}  // namespace lv
