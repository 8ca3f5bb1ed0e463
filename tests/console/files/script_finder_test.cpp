#include "console/files/script_finder.h"

#include <gtest/gtest.h>

#include "tests/console/files/listed_run.h"

namespace lv {
namespace {

/// Where it was found, and its text; "none".
Text Found(GameDisk& game, TextView name, Lookup where = Lookup::Anywhere,
           std::optional<std::size_t> level = std::nullopt) {
    const PlayedGame& played = game.Request.Played;
    ScriptFinder finder(game.Disk, SearchPath(game.Disk, played), ExecRulesOf(played.Of), game.Request.Given);
    const auto found = finder.Find(name, where, level);
    if (!found) {
        return "none";
    }
    return Join(PathBelowGame(found->Path), found->Inner.empty() ? "" : "/", found->Inner,
                found->IsUnread ? " unread" : " ", found->Content);
}

}  // namespace

TEST(ScriptFinder, LooksIntoArchivesAheadOrAfter) {
    GameDisk game;
    game.AddPak("ID1\\pak0.pak", {{"a.cfg", "packed"}, {"cfg/b.cfg", "deep"}});
    game.Add("ID1\\a.cfg", "loose");
    EXPECT_EQ(Found(game, "a.cfg"), "id1\\pak0.pak/a.cfg packed");
    EXPECT_EQ(Found(game, "a.cfg", Lookup::LooseFiles), "id1\\a.cfg loose");
    EXPECT_EQ(Found(game, "cfg\\b.cfg"), "id1\\pak0.pak/cfg/b.cfg deep");
    game.Request.Played.Of = Console::DarkPlaces;
    EXPECT_EQ(Found(game, "a.cfg"), "id1\\a.cfg loose");
    EXPECT_EQ(Found(game, "a.cfg", Lookup::Archives), "id1\\pak0.pak/a.cfg packed");
}

TEST(ScriptFinder, ReadsZips) {
    GameDisk game;
    game.Request.Played.Of = Console::EzQuake;
    game.Add("ID1\\a.pk3", ZippedFiles({StoredFile("x.cfg", "zipped"), {"y.cfg", "odd", 3, 14}}));
    EXPECT_EQ(Found(game, "x.cfg"), "id1\\a.pk3/x.cfg zipped");
    EXPECT_EQ(Found(game, "y.cfg"), "id1\\a.pk3/y.cfg unread");
}

TEST(ScriptFinder, MindsLetterCaseInArchivesWhereTheGameDoes) {
    GameDisk game;
    game.AddPak("ID1\\pak0.pak", {{"Default.cfg", "packed"}});
    EXPECT_EQ(Found(game, "default.cfg"), "none");
    EXPECT_EQ(Found(game, "Default.cfg"), "id1\\pak0.pak/Default.cfg packed");
    game.Request.Played.Of = Console::DarkPlaces;
    EXPECT_EQ(Found(game, "DEFAULT.CFG"), "id1\\pak0.pak/Default.cfg packed");
}

TEST(ScriptFinder, AddsAnEndingWhereTheConsoleDoes) {
    GameDisk game;
    game.Add("ID1\\a.cfg", "1");
    game.Add("ID1\\b.x.cfg", "2");
    EXPECT_EQ(Found(game, "a"), "none");
    game.Request.Played.Of = Console::EzQuake;
    EXPECT_EQ(Found(game, "a"), "id1\\a.cfg 1");
    EXPECT_EQ(Found(game, "b.x"), "none");
    game.Request.Played.Of = Console::Fte;
    EXPECT_EQ(Found(game, "b.x"), "id1\\b.x.cfg 2");
}

TEST(ScriptFinder, KeepsToALevelIfTold) {
    GameDisk game;
    game.Request.Played.Modification = "CTF";
    game.Add("CTF\\a.cfg", "mod");
    game.Add("ID1\\b.cfg", "base");
    EXPECT_EQ(Found(game, "b.cfg"), "id1\\b.cfg base");
    EXPECT_EQ(Found(game, "b.cfg", Lookup::Anywhere, 0), "none");
    EXPECT_EQ(Found(game, "a.cfg", Lookup::Anywhere, 0), "CTF\\a.cfg mod");
}

TEST(ScriptFinder, TakesGivenTextsForFiles) {
    GameDisk game;
    game.Add("ID1\\a.cfg", "old");
    game.Request.Given = {{"C:\\Quake\\ID1\\A.CFG", "new"}, {"C:\\QUAKE\\ID1\\sub\\b.cfg", "made up"}};
    EXPECT_EQ(Found(game, "a.cfg"), "id1\\a.cfg new");
    EXPECT_EQ(Found(game, "sub/b.cfg"), "id1\\sub\\b.cfg made up");
}

TEST(ScriptFinder, LeavesTheGamesDirectoriesForNobody) {
    GameDisk game;
    game.Disk.AddFile("C:\\QUAKE\\secret.cfg", "1");
    game.Disk.AddFile("C:\\secret.cfg", "2");
    for (const TextView name : {"../secret.cfg", "..\\secret.cfg", "C:\\secret.cfg", "C:secret.cfg", "/secret.cfg",
                                "\\secret.cfg", "x/../../secret.cfg", "./secret.cfg", "", "a*"}) {
        EXPECT_EQ(Found(game, name), "none") << name;
    }
    EXPECT_EQ(Found(game, Text(300, 'a')), "none");
}

TEST(ScriptFinder, DoesNotReadWhatNoScriptIs) {
    GameDisk game;
    game.Disk.AddSparseFile("C:\\QUAKE\\ID1\\huge.cfg", "bind a b", std::uint64_t{1} << 40U);
    game.Disk.AddDevice("C:\\QUAKE\\ID1\\pipe.cfg");
    EXPECT_EQ(Found(game, "huge.cfg"), "id1\\huge.cfg unread");
    EXPECT_EQ(Found(game, "pipe.cfg"), "none");
}

TEST(ScriptFinder, NotesArchivesThatItCannotRead) {
    GameDisk game;
    game.Add("ID1\\pak0.pak", "PAC");
    const PlayedGame& played = game.Request.Played;
    ScriptFinder finder(game.Disk, SearchPath(game.Disk, played), ExecRulesOf(played.Of), {});
    EXPECT_FALSE(finder.Find("a.cfg"));
    EXPECT_FALSE(finder.Find("b.cfg"));
    EXPECT_EQ(finder.UnreadArchives(), std::vector<Text>{"C:\\QUAKE\\id1\\pak0.pak"});
}

}  // namespace lv
