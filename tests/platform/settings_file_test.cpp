// What a store's file is asked before a first value is read.

#include "platform/linux/settings/settings_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <unistd.h>

#include "tests/platform/store_files.h"

namespace lv {

namespace fs = std::filesystem;

TEST(SqliteSettings, RefuseAFileThatIsNoDatabase) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "s", "my shopping list");
    const auto opened = SqliteSettings::Open(scratch / "s");
    EXPECT_EQ(opened.Fault.Number, 75);
    EXPECT_EQ(opened.Fault.Text, "The settings in \"" + (scratch / "s").string() +
                                     "\" cannot be used: the file is no settings database."
                                     "\r\n\r\nMove this file elsewhere, and the program starts with new settings, "
                                     "or put an older copy in its place.");
    ExpectLeftAlone(scratch / "s", "my shopping list");
}

TEST(SqliteSettings, RefuseALongFileThatIsNoDatabase) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "s", std::string(100000, 'x'));
    EXPECT_EQ(SqliteSettings::Open(scratch / "s").Fault.Number, 75);
    ExpectLeftAlone(scratch / "s", std::string(100000, 'x'));
}

TEST(SqliteSettings, RefuseADirectoryInPlaceOfTheFile) {
    const ScratchDirectory scratch;
    fs::create_directory(scratch / "s");
    EXPECT_EQ(SqliteSettings::Open(scratch / "s").Fault.Number, 75);
}

TEST(SqliteSettings, RefuseANewerLayout) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", std::string(kHandMade) + "PRAGMA user_version = 2;");
    const std::string bytes = BytesOf(scratch / "s");
    const auto opened = SqliteSettings::Open(scratch / "s");
    EXPECT_EQ(opened.Fault.Number, 75);
    EXPECT_EQ(opened.Fault.Text, "The settings in \"" + (scratch / "s").string() +
                                     "\" cannot be used: a newer version of this program made them."
                                     "\r\n\r\nMove this file elsewhere, and the program starts with new settings, "
                                     "or put an older copy in its place.");
    ExpectLeftAlone(scratch / "s", bytes);
}

TEST(SqliteSettings, RefuseANewerLayoutThatIsOnlyInTheLogYet) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    const pid_t child = InChild([&] {
        sqlite3* database = nullptr;
        sqlite3_open((scratch / "s").c_str(), &database);
        sqlite3_exec(database, "PRAGMA journal_mode = WAL; PRAGMA user_version = 300", nullptr, nullptr, nullptr);
        raise(SIGKILL);
    });
    ASSERT_EQ(ExitOf(child), 128 + SIGKILL);
    const std::string bytes = BytesOf(scratch / "s");
    const std::string log = BytesOf(scratch / "s-wal");
    EXPECT_NE(SqliteSettings::Open(scratch / "s").Fault.Text.find("a newer version"), std::string::npos);
    EXPECT_EQ(BytesOf(scratch / "s"), bytes);
    EXPECT_EQ(BytesOf(scratch / "s-wal"), log);
}

TEST(SqliteSettings, RefuseAnotherProgramsDatabase) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", "CREATE TABLE bookmarks(url TEXT); INSERT INTO bookmarks VALUES('x');");
    const std::string bytes = BytesOf(scratch / "s");
    EXPECT_EQ(SqliteSettings::Open(scratch / "s").Fault.Number, 75);
    ExpectLeftAlone(scratch / "s", bytes);
}

TEST(SqliteSettings, RefuseADamagedDatabase) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    std::string bytes = BytesOf(scratch / "s");
    ASSERT_EQ(bytes.size(), 8192u);
    bytes.replace(4096, 200, std::string(200, '\xFF'));
    WriteBytes(scratch / "s", bytes);
    const auto opened = SqliteSettings::Open(scratch / "s");
    EXPECT_NE(opened.Fault.Text.find((scratch / "s").string()), std::string::npos);
    EXPECT_NE(opened.Fault.Text.find("damaged"), std::string::npos) << opened.Fault.Text;
    EXPECT_EQ(BytesOf(scratch / "s"), bytes);
}

TEST(SqliteSettings, RefuseADatabaseCutOffAnywhereWithoutTouchingIt) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    const std::string whole = BytesOf(scratch / "s");
    for (std::size_t size = 1; size < whole.size(); size += 511) {
        WriteBytes(scratch / "s", whole.substr(0, size));
        EXPECT_NE(SqliteSettings::Open(scratch / "s").Fault.Number, 0) << size;
        EXPECT_TRUE(BytesOf(scratch / "s") == whole.substr(0, size)) << size;
    }
}

TEST(SqliteSettings, NameTheFileWhoseDirectoryCannotBeMade) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "plain", "a file");
    const fs::path file = scratch.Path() / "plain" / "lorvane3d" / "settings.sqlite";
    const auto opened = SqliteSettings::Open(file);
    EXPECT_EQ(opened.Fault.Number, 76);
    EXPECT_EQ(opened.Fault.Text, "The settings in \"" + file.string() +
                                     "\" cannot be used: their directory cannot be written. (Path not found)");
    EXPECT_EQ(BytesOf(scratch / "plain"), "a file");
}

TEST(SqliteSettings, NameTheFileInADirectoryThatMayNotBeWritten) {
    const ScratchDirectory scratch;
    fs::create_directory(scratch / "locked");
    const fs::path file = scratch.Path() / "locked" / "settings.sqlite";
    RunSql(file, kHandMade);
    const std::string bytes = BytesOf(file);
    fs::permissions(scratch / "locked", fs::perms::owner_read | fs::perms::owner_exec);
    fs::permissions(scratch.Path(), fs::perms::owner_all | fs::perms::others_exec);
    // Everything may be written by root: the question is asked as somebody who is not.
    const pid_t child = InChild([&] {
        if (geteuid() == 0 && (chown((scratch / "locked").c_str(), 65534, 65534) != 0 || seteuid(65534) != 0)) {
            _exit(90);
        }
        const auto opened = SqliteSettings::Open(file);
        const bool named = opened.Fault.Text.find(file.string()) != std::string::npos;
        _exit(named ? opened.Fault.Number : 91);
    });
    EXPECT_EQ(ExitOf(child), 70);
    EXPECT_EQ(BytesOf(file), bytes);
    fs::permissions(scratch / "locked", fs::perms::owner_all);
}

TEST(SqliteSettings, OpenAFileMadeByHand) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    const auto store = OpenStore(scratch / "s");
    EXPECT_EQ(store->Read(kApp, "Options", "Games"), "id1");
    EXPECT_EQ(store->Write(kApp, "Options", "Games", "ctf").Number, 0);
    EXPECT_EQ(store->Read(kApp, "Options", "Games"), "ctf");
}

TEST(SqliteSettings, OpenAFileWithARollbackJournalThatSomebodyHasOpen) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    sqlite3* shell = nullptr;
    ASSERT_EQ(sqlite3_open((scratch / "s").c_str(), &shell), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(shell, "BEGIN; SELECT * FROM setting", nullptr, nullptr, nullptr), SQLITE_OK);
    const auto store = OpenStore(scratch / "s");
    EXPECT_EQ(store->Read(kApp, "Options", "Games"), "id1");
    sqlite3_exec(shell, "COMMIT", nullptr, nullptr, nullptr);
    EXPECT_EQ(store->Write(kApp, "Options", "Games", "ctf").Number, 0);
    EXPECT_EQ(store->Read(kApp, "Options", "Games"), "ctf");
    sqlite3_close(shell);
}

TEST(SqliteSettings, StartAnewInAnEmptyFile) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "s", "");
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "Games", "id1").Number, 0);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "id1");
}

}  // namespace lv
