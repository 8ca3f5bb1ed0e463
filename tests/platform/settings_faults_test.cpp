#include "platform/linux/settings/settings_faults.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cerrno>

#include "tests/platform/store_files.h"

namespace lv {

namespace {

constexpr const char* kHelp =
    "\r\n\r\nMove this file elsewhere, and the program starts with new settings, or put an older copy in its place.";

std::string Refused(const std::string& reason) {
    return "The settings in \"/x/s\" cannot be used: " + reason;
}

void ExpectError(const Error& fault, int number, const std::string& text) {
    EXPECT_EQ(fault.Number, number);
    EXPECT_EQ(fault.Text, text);
}

/// A database that has just failed over the statement.
class FailedOver {
  public:
    FailedOver(const std::filesystem::path& file, const char* sql, int flags = SQLITE_OPEN_READWRITE) {
        sqlite3_open_v2(file.c_str(), &database_, flags, nullptr);
        EXPECT_NE(sqlite3_exec(database_, sql, nullptr, nullptr, nullptr), SQLITE_OK);
    }
    ~FailedOver() { sqlite3_close(database_); }
    FailedOver(const FailedOver&) = delete;
    FailedOver& operator=(const FailedOver&) = delete;
    [[nodiscard]] sqlite3* Get() const { return database_; }

  private:
    sqlite3* database_ = nullptr;
};

}  // namespace

TEST(SettingsFaults, NameTheFileAndTheReason) {
    ExpectError(StoreRefusal(70, "/x/s", "a reason."), 70, Refused("a reason."));
}

TEST(SettingsFaults, SayWhatHelpsWithAFileThatIsNoStore) {
    ExpectError(NewerLayout("/x/s"), 75, Refused("a newer version of this program made them.") + kHelp);
    ExpectError(NoDatabase("/x/s"), 75, Refused("the file is no settings database.") + kHelp);
    ExpectError(DamagedDatabase("/x/s"), 75, Refused("the database is damaged.") + kHelp);
}

TEST(SettingsFaults, ShowAFileInTheProgramsOwnCharacters) {
    EXPECT_EQ(StoreRefusal(70, "/\xC3\xA9/s", "x").Text, "The settings in \"/\xE9/s\" cannot be used: x");
}

TEST(SettingsFaults, SayWhatCannotBeWrittenAndWhy) {
    ExpectError(UnwritableStore(ENOENT, "/x/s", "their directory"), 76,
                Refused("their directory cannot be written. (Path not found)"));
    ExpectError(
        UnwritableStore(EACCES, "/x/s", "the file"), 70,
        Refused(
            "the file cannot be written. (Permission denied)\r\n\r\nGive yourself the right to write there, or name "
            "another directory for settings in the variable XDG_CONFIG_HOME."));
    ExpectError(UnreadableStore(EACCES, "/x/s"), 70, Refused("the file cannot be read. (Permission denied)"));
    ExpectError(UnwritableStore(ENOSPC, "/x/s", "the file"), 61, Refused("the file cannot be written. (Disk full)"));
}

TEST(SettingsFaults, SpeakOfAnotherProgramWhereNobodyIsFound) {
    ExpectError(LockedStore("/x/s"), 55, "The settings in \"/x/s\" are locked by another program.");
}

TEST(SettingsFaults, NumberWhatSqliteSays) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    EXPECT_EQ(FaultOf(FailedOver(scratch / "s", "no sql").Get()).Number, 57);
    EXPECT_EQ(FaultOf(FailedOver(scratch / "s", "DELETE FROM setting", SQLITE_OPEN_READONLY).Get()).Number, 70);
    EXPECT_EQ(FaultOf(FailedOver(scratch / "none/s", "SELECT 1 FROM setting").Get()).Number, 70);
    EXPECT_EQ(FaultOf(FailedOver(scratch / "s",
                                 "PRAGMA max_page_count = 2; INSERT INTO setting "
                                 "VALUES('a', 'b', 'c', zeroblob(100000))")
                          .Get())
                  .Number,
              61);
}

TEST(SettingsFaults, NumberALockAndNameItsFile) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open((scratch / "s").c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    const Error fault = FaultOf(FailedOver(scratch / "s", "DELETE FROM setting").Get());
    EXPECT_EQ(fault.Number, 55);
    EXPECT_NE(fault.Text.find((scratch / "s").string()), std::string::npos);
    sqlite3_close(holder);
}

TEST(SettingsFaults, TellAFileThatIsNoDatabase) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "s", std::string(5000, 'x'));
    const Error fault = RefusedBySqlite(FailedOver(scratch / "s", "SELECT 1 FROM setting").Get(), "/x/s");
    ExpectError(fault, 75, Refused("the file is no settings database.") + kHelp);
}

TEST(SettingsFaults, RepeatWhatSqliteSaysOfAllElse) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    ExpectError(RefusedBySqlite(FailedOver(scratch / "s", "SELECT 1 FROM none").Get(), "/x/s"), 75,
                Refused("no such table: none.") + kHelp);
    ExpectError(RefusedBySqlite(FailedOver(scratch / "none/s", "SELECT 1 FROM none").Get(), "/x/s"), 70,
                Refused("unable to open database file."));
}

}  // namespace lv
