#include "platform/linux/settings/settings_layout.h"

#include <gtest/gtest.h>

#include "tests/platform/store_files.h"

namespace lv {

namespace fs = std::filesystem;

namespace {

/// What the SQL of a stranger's puts into the table's file does nothing at any read and write.
void ExpectNothingIsRun(const std::string& sql) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", std::string(kHandMade) + sql);
    {
        const auto store = OpenStore(scratch / "s");
        ASSERT_NE(store, nullptr) << sql;
        EXPECT_EQ(store->Read(kApp, "Options", "Games"), "id1");
        EXPECT_EQ(store->Write(kApp, "Options", "Games", "ctf").Number, 0);
        EXPECT_EQ(store->Write(kApp, "Options", "New", "1").Number, 0);
        EXPECT_EQ(store->Read(kApp, "Options", "Games"), "ctf");
        EXPECT_EQ(store->Read(kApp, "Options", "Evil"), std::nullopt);
    }
    RunSql(scratch / "s",
           "CREATE TABLE checked(one CHECK(one = 2)); INSERT INTO checked SELECT count(*) FROM setting;");
}

}  // namespace

TEST(SettingsLayout, FireNoTrigger) {
    ExpectNothingIsRun(
        "CREATE TRIGGER t AFTER UPDATE ON setting BEGIN"
        " INSERT INTO setting VALUES('Lorvane 3D', 'Options', 'Evil', '1'); END;");
    ExpectNothingIsRun("CREATE TRIGGER t BEFORE INSERT ON setting BEGIN SELECT raise(ABORT, 'no'); END;");
    ExpectNothingIsRun("CREATE TRIGGER t AFTER INSERT ON setting BEGIN DELETE FROM setting; END;");
}

TEST(SettingsLayout, ReadNoView) {
    ExpectNothingIsRun("CREATE VIEW other AS SELECT * FROM setting;");
    const ScratchDirectory scratch;
    RunSql(scratch / "s",
           std::string(kHandMade) + "ALTER TABLE setting RENAME TO kept; CREATE VIEW setting AS SELECT * FROM kept;");
    const std::string bytes = BytesOf(scratch / "s");
    EXPECT_EQ(SqliteSettings::Open(scratch / "s").Fault.Number, 75);
    ExpectLeftAlone(scratch / "s", bytes);
}

TEST(SettingsLayout, RefuseAConditionThatCallsWhatItMayNot) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s",
           "CREATE TABLE setting(application TEXT NOT NULL COLLATE NOCASE, section TEXT NOT NULL COLLATE NOCASE,"
           " key TEXT NOT NULL COLLATE NOCASE, value TEXT NOT NULL CHECK (stranger(value)),"
           " PRIMARY KEY (application, section, key)) WITHOUT ROWID; PRAGMA user_version = 1;");
    const std::string bytes = BytesOf(scratch / "s");
    const auto opened = SqliteSettings::Open(scratch / "s");
    EXPECT_EQ(opened.Fault.Number, 75);
    EXPECT_NE(opened.Fault.Text.find("stranger()"), std::string::npos) << opened.Fault.Text;
    ExpectLeftAlone(scratch / "s", bytes);
}

TEST(SettingsLayout, RefuseAColumnThatComputes) {
    for (const char* const column : {"x TEXT AS (upper(value)) VIRTUAL", "x TEXT AS (upper(value)) STORED",
                                     "x BLOB AS (zeroblob(15000000)) STORED", "x BLOB AS (zeroblob(900000000)) VIRTUAL",
                                     "x TEXT AS (stranger(value)) VIRTUAL"}) {
        const ScratchDirectory scratch;
        RunSql(scratch / "s",
               "CREATE TABLE setting(application TEXT NOT NULL COLLATE NOCASE, section TEXT NOT NULL COLLATE NOCASE,"
               " key TEXT NOT NULL COLLATE NOCASE, value TEXT NOT NULL, " +
                   std::string(column) +
                   ", PRIMARY KEY (application, section, key)) WITHOUT ROWID; PRAGMA user_version = 1;");
        const std::string bytes = BytesOf(scratch / "s");
        const auto opened = SqliteSettings::Open(scratch / "s");
        EXPECT_EQ(opened.Fault.Number, 75) << column;
        EXPECT_NE(opened.Fault.Text.find("compute something"), std::string::npos) << opened.Fault.Text;
        ExpectLeftAlone(scratch / "s", bytes);
    }
}

}  // namespace lv
