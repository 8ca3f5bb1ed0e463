#include "platform/linux/game_notes.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <chrono>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

using Paths = std::vector<std::string>;

// The bytes of a database that these statements make.
std::string Database(const ScratchDirectory& scratch, const std::string& statements) {
    const std::string file = (scratch / "pga.db").string();
    std::filesystem::remove(file);
    sqlite3* base = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &base), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(base, statements.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(base);
    sqlite3_close(base);
    return BytesOf(file);
}

constexpr const char* kGames =
    "CREATE TABLE games(id INTEGER PRIMARY KEY, name, slug, runner, executable, directory, "
    "installed INTEGER);";

}  // namespace

TEST(HeroicNotes, GiveTheDirectoriesOfInstalledGames) {
    EXPECT_EQ(DirectoriesOfHeroic(R"({"installed":[
        {"appName":"1435828198","install_path":"/home/me/Games/Heroic/Quake","executable":"","platform":"windows"},
        {"appName":"1441704920","install_path":"/srv/Quake II"}]})"),
              (Paths{"/home/me/Games/Heroic/Quake", "/srv/Quake II"}));
    EXPECT_EQ(DirectoriesOfHeroic(R"({"18161d3e":{"install_path":"/srv/Quake","title":"Quake"}})"),
              (Paths{"/srv/Quake"}));
    EXPECT_EQ(DirectoriesOfHeroic(R"({"games":[{"runner":"sideload","folder_name":"/srv/own"}]})"),
              (Paths{"/srv/own"}));
}

TEST(HeroicNotes, GiveWhatStandsBeforeTheDamage) {
    const std::string whole = R"({"installed":[{"install_path":"/a"},{"install_path":"/b"}]})";
    EXPECT_EQ(DirectoriesOfHeroic(whole.substr(0, whole.size() - 8)), (Paths{"/a"}));
    EXPECT_EQ(DirectoriesOfHeroic(""), Paths());
    EXPECT_EQ(DirectoriesOfHeroic("\xFF\xFE{"), Paths());
    EXPECT_EQ(DirectoriesOfHeroic(R"({"install_path":7})"), Paths());
    EXPECT_EQ(DirectoriesOfHeroic(R"({"install_path":["/a"]})"), Paths());
}

TEST(HeroicNotes, MayBeNestedAsDeepAsTheyLike) {
    EXPECT_EQ(DirectoriesOfHeroic(R"({"install_path":"/a","x":)" + std::string(4U << 20U, '[')), (Paths{"/a"}));
}

TEST(HeroicNotes, GiveNoMoreThanAThousand) {
    std::string json = "[";
    for (int i = 0; i < 1500; ++i) {
        json += R"({"install_path":"/a"},)";
    }
    EXPECT_EQ(DirectoriesOfHeroic(json).size(), 1000u);
}

TEST(LutrisNotes, GiveTheDirectoriesOfInstalledGames) {
    const ScratchDirectory scratch;
    const std::string bytes = Database(
        scratch, std::string(kGames) +
                     "INSERT INTO games(name, executable, directory, installed) VALUES"
                     "('Quake', NULL, '/home/me/Games/quake', 1), ('Gone', NULL, '/home/me/Games/gone', 0),"
                     "('Quake II', '/srv/q2/quake2', '', 1), ('None', NULL, NULL, 1), ('Odd', 'q2', NULL, 1);");
    EXPECT_EQ(DirectoriesOfLutris(bytes), (Paths{"/home/me/Games/quake", "/srv/q2"}));
}

TEST(LutrisNotes, AreReadFromADatabaseWithALog) {
    const ScratchDirectory scratch;
    const std::string bytes = Database(scratch, std::string("PRAGMA journal_mode=WAL;") + kGames +
                                                    "INSERT INTO games(directory, installed) VALUES('/srv/quake', 1);");
    EXPECT_EQ(bytes[18], 2);
    EXPECT_EQ(DirectoriesOfLutris(bytes), (Paths{"/srv/quake"}));
}

TEST(LutrisNotes, GiveNothingOfWhatIsNoSuchDatabase) {
    const ScratchDirectory scratch;
    EXPECT_EQ(DirectoriesOfLutris(""), Paths());
    EXPECT_EQ(DirectoriesOfLutris("SQLite format 3"), Paths());
    EXPECT_EQ(DirectoriesOfLutris(std::string(100000, 'x')), Paths());
    EXPECT_EQ(DirectoriesOfLutris(Database(scratch, "CREATE TABLE other(a);")), Paths());
}

TEST(LutrisNotes, TakeNoHarmFromADamagedDatabase) {
    const ScratchDirectory scratch;
    const std::string whole =
        Database(scratch, std::string(kGames) + "INSERT INTO games(directory, installed) VALUES('/srv/quake', 1);");
    EXPECT_EQ(DirectoriesOfLutris(whole.substr(0, 5000)), Paths());
    for (std::size_t at = 16; at < whole.size(); at += 7) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x5A);
        EXPECT_LE(DirectoriesOfLutris(damaged).size(), 1u) << at;
    }
}

TEST(LutrisNotes, EndInTimeWhereTheTableHasNoEnd) {
    const ScratchDirectory scratch;
    const std::string bytes =
        Database(scratch,
                 "CREATE VIEW games AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                 "SELECT '/a' AS directory, '' AS executable, 0 AS installed, i AS rowid FROM n;");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(DirectoriesOfLutris(bytes), Paths());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(LutrisNotes, GiveAGamesPrefix) {
    EXPECT_EQ(PrefixOfLutris("game:\n  arch: win64\n  prefix: /home/me/Games/quake\nwine: {}\n"),
              "/home/me/Games/quake");
    EXPECT_EQ(PrefixOfLutris("game:\r\n  prefix: '/srv/a b'  \r\n"), "/srv/a b");
    EXPECT_EQ(PrefixOfLutris("game:\n  prefix: ../b\n"), "");
    EXPECT_EQ(PrefixOfLutris("game:\n  prefix:"), "");
    EXPECT_EQ(PrefixOfLutris(""), "");
}

TEST(PlainPath, IsAbsoluteAndLeadsNowhereElse) {
    EXPECT_TRUE(IsPlainPath("/srv/quake"));
    EXPECT_TRUE(IsPlainPath("/srv/..quake"));
    EXPECT_FALSE(IsPlainPath(""));
    EXPECT_FALSE(IsPlainPath("srv/quake"));
    EXPECT_FALSE(IsPlainPath("~/quake"));
    EXPECT_FALSE(IsPlainPath("/srv/../etc"));
    EXPECT_FALSE(IsPlainPath("/srv/.."));
    EXPECT_FALSE(IsPlainPath(std::string("/srv\0/a", 7)));
    EXPECT_FALSE(IsPlainPath("/srv\n/a"));
}

TEST(Notes, AreReadFromPlainFilesOfALimitedSize) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "notes", "{}");
    EXPECT_EQ(ReadNotes((scratch / "notes").string()), "{}");
    std::filesystem::resize_file(scratch / "notes", kLargestNotes);
    EXPECT_EQ(ReadNotes((scratch / "notes").string()).size(), kLargestNotes);
    std::filesystem::resize_file(scratch / "notes", kLargestNotes + 1);
    EXPECT_EQ(ReadNotes((scratch / "notes").string()), "");
    ASSERT_EQ(mkfifo((scratch / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(ReadNotes((scratch / "pipe").string()), "");
    EXPECT_EQ(ReadNotes((scratch / "none").string()), "");
}

}  // namespace lv
