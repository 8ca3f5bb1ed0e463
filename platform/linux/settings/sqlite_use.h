// platform/linux/settings/sqlite_use.h
//
// A prepared statement of SQLite's, bound, stepped through and put back.

#pragma once

#include <sqlite3.h>

#include <string>

namespace lv {

/// A prepared statement for one use; a read that is not reset would hold back the log.
class SqliteUse {
  public:
    explicit SqliteUse(sqlite3_stmt* statement) : statement_(statement) {}
    ~SqliteUse() {
        if (statement_ != nullptr) {
            sqlite3_reset(statement_);
            sqlite3_clear_bindings(statement_);
        }
    }
    SqliteUse(const SqliteUse&) = delete;
    SqliteUse& operator=(const SqliteUse&) = delete;

    /// The text must outlive the use.
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

}  // namespace lv
