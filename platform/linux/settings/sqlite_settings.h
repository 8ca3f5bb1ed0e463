// platform/linux/settings/sqlite_settings.h
//
// The settings store in one SQLite file, layout 1 (its user_version): a table "setting" of application, section, key
// and value, text in UTF-8. Two programs may use it at once, and SQLite's own shell may read and write it.

#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/linux/settings/settings_file.h"
#include "platform/settings_backing.h"

struct sqlite3_stmt;

namespace lv {

/// A write that returned is on the disk. Look-ups are blind to case for accented letters too, which SQLite's own
/// comparison is not: what is not found as spelled is looked for in all rows. Names count up to a character 0; values
/// may hold any. In a file written by others a character without a code page 1252 form reads as "?".
class SqliteSettings : public SettingsBacking {
  public:
    /// Opens the store, and makes it if it is not there; see OpenSettingsFile for what is refused.
    static Result<std::unique_ptr<SqliteSettings>> Open(const std::filesystem::path& file, int patience = kPatience);

    /// What is stored, in memory; see CopySettingsFile.
    static Result<std::unique_ptr<SqliteSettings>> OpenCopy(const std::filesystem::path& file);

    /// The same, and nothing changes on the disk; see ReadSettingsFile.
    static Result<std::unique_ptr<SqliteSettings>> OpenToRead(const std::filesystem::path& file);

    explicit SqliteSettings(Database database, int patience = kPatience);
    ~SqliteSettings() override;
    SqliteSettings(const SqliteSettings&) = delete;
    SqliteSettings& operator=(const SqliteSettings&) = delete;

    std::optional<std::string> Read(std::string_view application, std::string_view section,
                                    std::string_view key) override;

    /// A value that is there already is not written again. Waits for another program's write as long as Open was told
    /// to, and longer if the user wants that.
    Error Write(std::string_view application, std::string_view section, std::string_view key,
                std::string_view value) override;

    Error Remove(std::string_view application, std::string_view section, std::string_view key) override;

    Result<std::vector<StoredValue>> All(std::string_view application) override;

    /// The outermost group is one transaction, begun with its first write. The first write that fails takes back the
    /// whole group: all that follow fail the same way, and so does EndGroup. A group never ended is never stored.
    void BeginGroup() override;
    Error EndGroup() override;
    /// The transaction begins here, and no other program writes anything until its end.
    Error BeginAlone() override;

    void WhenLocked(LockedQuestion question) override { question_ = std::move(question); }

  private:
    enum Statement { kSelect, kScan, kUpsert, kDelete, kBegin, kCommit, kRollback, kStatements };
    struct Names {
        std::string_view Application;
        std::string_view Section;
        std::string_view Key;
    };
    using NewValue = std::optional<std::string_view>;  // nothing: the row goes
    struct Row {
        std::array<std::string, 3> Names;  // as they are stored, UTF-8
        std::string Value;
    };

    sqlite3_stmt* Prepared(Statement statement);
    bool WaitAgain(const Error& fault);
    void NoteUnlocked();
    Error Do(Statement statement);
    std::optional<Row> Find(const Names& names);
    Result<std::optional<Row>> Look(const Names& names);
    Result<std::optional<Row>> Select(const std::array<std::string, 3>& names);
    Result<std::optional<Row>> LookInAllRows(const Names& names);
    Error NoteSpellings();
    Result<std::vector<StoredValue>> ReadAll(std::string_view application);
    Error Change(const Names& names, NewValue value);
    Error Store(const Names& names, NewValue value);
    Error Upsert(const std::array<std::string, 3>& names, std::string_view value);
    Error Delete(const std::array<std::string, 3>& names);
    Error StoreInTransaction(const Names& names, NewValue value);
    Error StoreInGroup(const Names& names, NewValue value);
    void TakeBack();

    Database database_;
    std::array<sqlite3_stmt*, kStatements> statements_{};
    int depth_ = 0;
    Error groupFault_;
    /// In a transaction, once a name was looked for in all rows: how each is spelled, by its names in lower case.
    std::optional<std::unordered_map<std::string, std::array<std::string, 3>>> spellings_;
    int patience_ = kPatience;
    LockedQuestion question_;
    bool asking_ = false;
    bool gaveUp_ = false;  // the user goes on without what another program keeps locked
};

}  // namespace lv
