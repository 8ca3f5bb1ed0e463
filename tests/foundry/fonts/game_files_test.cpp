#include "foundry/fonts/game_files.h"

#include "platform/memory/memory_platform.h"
#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

class GameFiles : public ::testing::Test {
  protected:
    /// All that is shown, joined by "|"; the one that is `wanted` is taken.
    Text Shown(const std::vector<Text>& directories, Game gameKind, TextView name, TextView wanted = "") {
        Text shown;
        taken = TakeGameFile(system.Disk, directories, gameKind, name, [&](TextView content) {
            shown += shown.empty() ? "" : "|";
            shown += content;
            return content == wanted;
        });
        return shown;
    }

    void AddPak(const Text& path, const Text& content, const Text& magic = "PACK") {
        system.Disk.AddFile(path, PackedFiles({{"gfx/a.lmp", content}}, magic));
    }

    MemoryPlatform system;
    bool taken = false;
};

TEST_F(GameFiles, AreLooseOnesFirstAndThenTheNewestArchives) {
    AddPak("C:\\QUAKE\\ID1\\pak0.pak", "0");
    AddPak("C:\\QUAKE\\ID1\\PAK2.PAK", "2");
    AddPak("C:\\QUAKE\\ID1\\pak10.pak", "10");
    AddPak("C:\\QUAKE\\ID1\\pak1.pak", "1");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\GFX\\A.LMP", "loose");
    EXPECT_EQ(Shown({"C:\\QUAKE\\ID1"}, Game::Quake, "gfx/a.lmp"), "loose|10|2|1|0");
    EXPECT_FALSE(taken);
}

TEST_F(GameFiles, ComeFromTheDirectoriesInTheirOrder) {
    AddPak("C:\\QUAKE\\ID1\\pak0.pak", "base");
    AddPak("C:\\QUAKE\\CTF\\pak0.pak", "mod");
    EXPECT_EQ(Shown({"C:\\QUAKE\\CTF", "C:\\QUAKE\\NONE", "C:\\QUAKE\\ID1"}, Game::Quake, "gfx/a.lmp"), "mod|base");
}

TEST_F(GameFiles, EndWithTheOneThatIsTaken) {
    AddPak("C:\\QUAKE\\ID1\\pak0.pak", "0");
    AddPak("C:\\QUAKE\\ID1\\pak1.pak", "1");
    AddPak("C:\\QUAKE\\ID1\\pak2.pak", "2");
    EXPECT_EQ(Shown({"C:\\QUAKE\\ID1"}, Game::Quake, "gfx/a.lmp", "1"), "2|1");
    EXPECT_TRUE(taken);
}

TEST_F(GameFiles, OfSinLieInItsOwnArchives) {
    AddPak("C:\\SIN\\BASE\\pak0.sin", "sin", "SPAK");
    AddPak("C:\\SIN\\BASE\\pak0.pak", "pak");
    EXPECT_EQ(Shown({"C:\\SIN\\BASE"}, Game::Sin, "gfx/a.lmp"), "sin");
    EXPECT_EQ(Shown({"C:\\SIN\\BASE"}, Game::Quake2, "gfx/a.lmp"), "pak");
}

TEST_F(GameFiles, OfMoreThanAMegabyteAreNotRead) {
    constexpr std::size_t kMegabyte = 1048576;
    system.Disk.AddFile("C:\\QUAKE\\ID1\\gfx\\a.lmp", Text(kMegabyte + 1, 'x'));
    AddPak("C:\\QUAKE\\ID1\\pak1.pak", Text(kMegabyte + 1, 'x'));
    AddPak("C:\\QUAKE\\ID1\\pak0.pak", "small");
    EXPECT_EQ(Shown({"C:\\QUAKE\\ID1"}, Game::Quake, "gfx/a.lmp"), "small");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\gfx\\a.lmp", Text(kMegabyte, 'x'));
    EXPECT_EQ(Shown({"C:\\QUAKE\\ID1"}, Game::Quake, "gfx/a.lmp"), Text(kMegabyte, 'x') + "|small");
}

TEST_F(GameFiles, ComeFromNoMoreThanTheThirtyTwoNewestArchives) {
    for (int i = 0; i < 33; ++i) {
        const Text number = std::to_string(i);
        AddPak(Join("C:\\QUAKE\\ID1\\pak", number, ".pak"), number);
    }
    const Text shown = Shown({"C:\\QUAKE\\ID1"}, Game::Quake, "gfx/a.lmp");
    EXPECT_TRUE(shown.starts_with("32|31|30|"));
    EXPECT_TRUE(shown.ends_with("|3|2|1"));
    EXPECT_EQ(std::count(shown.begin(), shown.end(), '|'), 31);
}

TEST_F(GameFiles, DoNotIncludeDirectoriesThatAreNamedLikeThem) {
    system.Disk.AddDirectory("C:\\QUAKE\\ID1\\gfx\\a.lmp");
    system.Disk.AddDirectory("C:\\QUAKE\\ID1\\pak0.pak");
    EXPECT_EQ(Shown({"C:\\QUAKE\\ID1", ""}, Game::Quake, "gfx/a.lmp"), "");
}

TEST_F(GameFiles, AreSoughtPastDamagedArchives) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak2.pak", "");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak1.pak", "PACK\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF");
    AddPak("C:\\QUAKE\\ID1\\pak0.pak", "0");
    EXPECT_EQ(Shown({"C:\\QUAKE\\ID1"}, Game::Quake, "gfx/a.lmp"), "0");
}

TEST_F(GameFiles, InArchivesAreOrderedByTheNumbersInTheNames) {
    for (const char* name : {"Htic2-0.pak", "htic2-1.pak", "pak009.pak", "pak10.pak", "zoo.pak", "pak.pak"}) {
        system.Disk.AddFile(Join("C:\\H2\\", name), "");
    }
    EXPECT_EQ(NewestArchives(system.Disk, "C:\\H2", Game::Heretic2),
              (std::vector<Text>{"zoo.pak", "pak10.pak", "pak009.pak", "pak.pak", "htic2-1.pak", "Htic2-0.pak"}));
}

}  // namespace
}  // namespace lv
