#include "platform/linux/settings/sqlite_settings.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

#include "platform/code_page.h"
#include "platform/linux/settings/settings_copy.h"
#include "platform/linux/settings/settings_faults.h"
#include "platform/linux/settings/sqlite_use.h"

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
    "DELETE FROM setting WHERE application = ?1 AND section = ?2 AND key = ?3",
    "BEGIN IMMEDIATE",
    "COMMIT",
    "ROLLBACK",
};

bool HasOtherThanAscii(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

std::string IdOf(std::string_view application, std::string_view section, std::string_view key) {
    std::string id = LowerCase(application) + '\0';
    id += LowerCase(section) + '\0';
    return id + LowerCase(key);
}

bool IsName(const std::string& utf8, std::string_view name) {
    const auto stored = FromUtf8(utf8);
    return stored && SameText(*stored, name);
}

}  // namespace

Result<std::unique_ptr<SqliteSettings>> SqliteSettings::Open(const std::filesystem::path& file, int patience) {
    Result<Database> opened = OpenSettingsFile(file, patience);
    if (!opened.Ok()) {
        return opened.Fault;
    }
    return std::make_unique<SqliteSettings>(std::move(opened.Value), patience);
}

Result<std::unique_ptr<SqliteSettings>> SqliteSettings::OpenCopy(const std::filesystem::path& file) {
    Result<Database> copied = CopySettingsFile(file);
    if (!copied.Ok()) {
        return copied.Fault;
    }
    return std::make_unique<SqliteSettings>(std::move(copied.Value));
}

Result<std::unique_ptr<SqliteSettings>> SqliteSettings::OpenToRead(const std::filesystem::path& file) {
    Result<Database> read = ReadSettingsFile(file);
    if (!read.Ok()) {
        return read.Fault;
    }
    return std::make_unique<SqliteSettings>(std::move(read.Value));
}

SqliteSettings::SqliteSettings(Database database, int patience) : database_(std::move(database)), patience_(patience) {}

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

// While the question is up, and once the user has gone on without the store, nobody waits.
bool SqliteSettings::WaitAgain(const Error& fault) {
    if (fault.Number != error::kAlreadyOpen || !question_ || asking_ || gaveUp_) {
        return false;
    }
    sqlite3_busy_timeout(database_.get(), 0);
    asking_ = true;
    gaveUp_ = !question_(fault);
    asking_ = false;
    if (!gaveUp_) {
        sqlite3_busy_timeout(database_.get(), patience_);
    }
    return !gaveUp_;
}

void SqliteSettings::NoteUnlocked() {
    if (gaveUp_) {
        gaveUp_ = false;
        sqlite3_busy_timeout(database_.get(), patience_);
    }
}

Error SqliteSettings::Do(Statement statement) {
    while (true) {
        Error fault;
        {
            SqliteUse use(Prepared(statement));
            // The reason is asked for before the statement is reset: that forgets what the system said.
            fault = use.Step() == SQLITE_DONE ? Error() : FaultOf(database_.get());
        }
        if (!fault && statement == kBegin) {
            NoteUnlocked();
        }
        if (!WaitAgain(fault)) {
            return fault;
        }
    }
}

std::optional<SqliteSettings::Row> SqliteSettings::Find(const Names& names) {
    while (true) {
        Result<std::optional<Row>> row = Look(names);
        if (!WaitAgain(row.Fault)) {
            return std::move(row.Value);
        }
    }
}

Result<std::optional<SqliteSettings::Row>> SqliteSettings::Select(const std::array<std::string, 3>& names) {
    SqliteUse select(Prepared(kSelect));
    select.Bind(1, names[0]);
    select.Bind(2, names[1]);
    select.Bind(3, names[2]);
    const int got = select.Step();
    if (got == SQLITE_ROW) {
        return std::optional(Row{{select.Column(0), select.Column(1), select.Column(2)}, select.Column(3)});
    }
    return got == SQLITE_DONE ? Result<std::optional<Row>>() : FaultOf(database_.get());
}

Result<std::optional<SqliteSettings::Row>> SqliteSettings::Look(const Names& names) {
    Result<std::optional<Row>> row = Select({ToUtf8(names.Application), ToUtf8(names.Section), ToUtf8(names.Key)});
    if (!row.Ok() || row.Value) {
        return row;
    }
    const bool mayDifferInCase =
        HasOtherThanAscii(names.Application) || HasOtherThanAscii(names.Section) || HasOtherThanAscii(names.Key);
    return mayDifferInCase ? LookInAllRows(names) : std::optional<Row>();
}

// What a transaction has begun with nobody else changes.
Error SqliteSettings::NoteSpellings() {
    SqliteUse scan(Prepared(kScan));
    spellings_.emplace();
    int got = scan.Step();
    for (; got == SQLITE_ROW; got = scan.Step()) {
        std::array<std::string, 3> names{scan.Column(0), scan.Column(1), scan.Column(2)};
        const auto application = FromUtf8(names[0]);
        const auto section = FromUtf8(names[1]);
        const auto key = FromUtf8(names[2]);
        if (application && section && key) {
            spellings_->emplace(IdOf(*application, *section, *key), std::move(names));
        }
    }
    if (got == SQLITE_DONE) {
        return {};
    }
    spellings_.reset();
    return FaultOf(database_.get());
}

Result<std::optional<SqliteSettings::Row>> SqliteSettings::LookInAllRows(const Names& names) {
    if (sqlite3_get_autocommit(database_.get()) == 0) {
        if (Error failed = spellings_ ? Error() : NoteSpellings()) {
            return failed;
        }
        const auto found = spellings_->find(IdOf(names.Application, names.Section, names.Key));
        return found == spellings_->end() ? Result<std::optional<Row>>() : Select(found->second);
    }
    SqliteUse scan(Prepared(kScan));
    int got = scan.Step();
    for (; got == SQLITE_ROW; got = scan.Step()) {
        Row row{{scan.Column(0), scan.Column(1), scan.Column(2)}, {}};
        if (IsName(row.Names[2], names.Key) && IsName(row.Names[1], names.Section) &&
            IsName(row.Names[0], names.Application)) {
            row.Value = scan.Column(3);
            return std::optional(std::move(row));
        }
    }
    return got == SQLITE_DONE ? Result<std::optional<Row>>() : FaultOf(database_.get());
}

Result<std::vector<StoredValue>> SqliteSettings::All(std::string_view application) {
    while (true) {
        Result<std::vector<StoredValue>> values = ReadAll(application);
        if (!WaitAgain(values.Fault)) {
            return values;
        }
    }
}

Result<std::vector<StoredValue>> SqliteSettings::ReadAll(std::string_view application) {
    SqliteUse scan(Prepared(kScan));
    std::vector<StoredValue> values;
    int got = scan.Step();
    for (; got == SQLITE_ROW; got = scan.Step()) {
        auto section = FromUtf8(scan.Column(1));
        auto key = FromUtf8(scan.Column(2));
        if (section && key && IsName(scan.Column(0), application)) {
            values.push_back({*std::move(section), *std::move(key), FromUtf8Lossy(scan.Column(3))});
        }
    }
    return got == SQLITE_DONE ? Result<std::vector<StoredValue>>(std::move(values)) : FaultOf(database_.get());
}

std::optional<std::string> SqliteSettings::Read(std::string_view application, std::string_view section,
                                                std::string_view key) {
    const auto row = Find({application, section, key});
    return row ? std::optional(FromUtf8Lossy(row->Value)) : std::nullopt;
}

Error SqliteSettings::Write(std::string_view application, std::string_view section, std::string_view key,
                            std::string_view value) {
    return Change({application, section, key}, value);
}

Error SqliteSettings::Remove(std::string_view application, std::string_view section, std::string_view key) {
    return Change({application, section, key}, std::nullopt);
}

Error SqliteSettings::Change(const Names& names, NewValue value) {
    if (asking_) {
        return MakeError(error::kAlreadyOpen);  // what asks may be in the middle of a transaction
    }
    if (depth_ > 0 && groupFault_) {
        return groupFault_;
    }
    const auto row = Find(names);
    if (row && value ? FromUtf8Lossy(row->Value) == *value : !row && !value) {
        return {};
    }
    return depth_ > 0 ? StoreInGroup(names, value) : StoreInTransaction(names, value);
}

// Within a transaction: the row that is there under another case keeps its spelling.
Error SqliteSettings::Store(const Names& names, NewValue value) {
    const auto row = Find(names);
    if (!value) {
        return row ? Delete(row->Names) : Error();
    }
    return Upsert(row ? row->Names
                      : std::array<std::string, 3>{ToUtf8(names.Application), ToUtf8(names.Section), ToUtf8(names.Key)},
                  *value);
}

Error SqliteSettings::Upsert(const std::array<std::string, 3>& names, std::string_view value) {
    const std::string text = ToUtf8(value);
    SqliteUse upsert(Prepared(kUpsert));
    upsert.Bind(1, names[0]);
    upsert.Bind(2, names[1]);
    upsert.Bind(3, names[2]);
    upsert.Bind(4, text);
    if (upsert.Step() != SQLITE_DONE) {
        return FaultOf(database_.get());
    }
    if (spellings_) {
        spellings_->insert_or_assign(IdOf(FromUtf8Lossy(names[0]), FromUtf8Lossy(names[1]), FromUtf8Lossy(names[2])),
                                     names);
    }
    return {};
}

// A look in all rows that finds the row gone says what is so.
Error SqliteSettings::Delete(const std::array<std::string, 3>& names) {
    SqliteUse gone(Prepared(kDelete));
    gone.Bind(1, names[0]);
    gone.Bind(2, names[1]);
    gone.Bind(3, names[2]);
    return gone.Step() == SQLITE_DONE ? Error() : FaultOf(database_.get());
}

Error SqliteSettings::StoreInTransaction(const Names& names, NewValue value) {
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

Error SqliteSettings::StoreInGroup(const Names& names, NewValue value) {
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
    spellings_.reset();
    if (sqlite3_get_autocommit(database_.get()) == 0) {
        (void)Do(kRollback);
    }
}

void SqliteSettings::BeginGroup() {
    if (depth_++ == 0) {
        groupFault_ = {};
    }
}

Error SqliteSettings::BeginAlone() {
    if (asking_) {
        return MakeError(error::kAlreadyOpen);
    }
    const bool begun = sqlite3_get_autocommit(database_.get()) == 0;
    if (Error failed = begun ? Error() : Do(kBegin)) {
        return failed;
    }
    BeginGroup();
    return {};
}

Error SqliteSettings::EndGroup() {
    if (depth_ == 0 || --depth_ > 0 || asking_) {
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
