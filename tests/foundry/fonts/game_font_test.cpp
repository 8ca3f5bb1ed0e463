#include "foundry/fonts/game_font.h"

#include "platform/memory/memory_platform.h"
#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

class GameFont : public ::testing::Test {
  protected:
    std::optional<FontMap> Read(Game gameKind) {
        return ReadGameFont(system.Disk, {"C:\\GAME\\MOD", "C:\\GAME\\BASE"}, gameKind);
    }
    /// The red of letter 65; -1 without a font.
    int RedOf65(Game gameKind) {
        const auto map = Read(gameKind);
        return map ? PixelOf(*map, 65)[0] : -1;
    }
    void Add(TextView name, const Text& content) { system.Disk.AddFile(Join("C:\\GAME\\BASE\\", name), content); }

    MemoryPlatform system;
};

Text Quake() {
    return WadFile({{"CONCHARS", LetterPixels(16, 16)}});
}

/// All letters of the one colour.
Text QuakeOf(char color) {
    return WadFile({{"CONCHARS", Text(16384, color)}});
}

Text SmallPcx(const Text& palette = PaletteBytes()) {
    return PcxFile(16, 16, 16, PcxRuns(LetterPixels(16, 16, 1)), palette);
}

TEST_F(GameFont, OfQuakeIsInAWadInAPak) {
    Add("pak0.pak", PackedFiles({{"gfx/palette.lmp", PaletteBytes()}, {"gfx.wad", Quake()}}));
    const auto map = Read(Game::Quake);
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 65), (Pixel{65, 190, 32, 255}));
    EXPECT_TRUE(IsEmpty(*map, 0));
}

TEST_F(GameFont, OfQuakeNeedsItsPalette) {
    Add("gfx.wad", Quake());
    EXPECT_FALSE(Read(Game::Quake));
    Add("gfx\\palette.lmp", PaletteBytes());
    EXPECT_EQ(RedOf65(Game::Quake), 65);
}

TEST_F(GameFont, OfAModificationComesBeforeTheBaseGames) {
    Add("gfx\\palette.lmp", PaletteBytes());
    Add("gfx.wad", QuakeOf(3));
    system.Disk.AddFile("C:\\GAME\\MOD\\pak0.pak", PackedFiles({{"gfx.wad", QuakeOf(4)}}));
    EXPECT_EQ(RedOf65(Game::Quake), 4);
}

TEST_F(GameFont, OfANewerArchiveComesBeforeAnOlderOnes) {
    Add("gfx\\palette.lmp", PaletteBytes());
    Add("pak0.pak", PackedFiles({{"gfx.wad", QuakeOf(3)}}));
    Add("pak1.pak", PackedFiles({{"gfx.wad", QuakeOf(4)}}));
    EXPECT_EQ(RedOf65(Game::Quake), 4);
}

TEST_F(GameFont, ThatIsDamagedGivesWayToTheNextOne) {
    Add("gfx\\palette.lmp", PaletteBytes());
    Add("gfx.wad", QuakeOf(3).substr(0, 1000));
    Add("pak0.pak", PackedFiles({{"gfx.wad", QuakeOf(4)}}));
    EXPECT_EQ(RedOf65(Game::Quake), 4);
}

TEST_F(GameFont, OfHexen2IsALooseLump) {
    Add("pak0.pak",
        PackedFiles({{"gfx/palette.lmp", PaletteBytes()}, {"gfx/menu/conchars.lmp", LetterPixels(32, 16)}}));
    EXPECT_EQ(RedOf65(Game::Hexen2), 65);
}

TEST_F(GameFont, OfQuake2IsInThePaletteOfAllItsPictures) {
    Text other = PaletteBytes();
    other[65 * 3] = 99;
    Add("pak0.pak", PackedFiles({{"pics/conchars.pcx", SmallPcx()}, {"pics/colormap.pcx", SmallPcx(other)}}));
    EXPECT_EQ(RedOf65(Game::Quake2), 99);
}

TEST_F(GameFont, OfQuake2IsInItsOwnPaletteWithoutThat) {
    Add("pak0.pak", PackedFiles({{"pics/conchars.pcx", SmallPcx()}}));
    EXPECT_EQ(RedOf65(Game::Quake2), 65);
}

TEST_F(GameFont, OfSinIsLikeQuake2sInAnArchiveOfItsOwn) {
    Add("pak0.sin", PackedFiles({{"pics/conchars.pcx", SmallPcx()}}, "SPAK"));
    EXPECT_EQ(RedOf65(Game::Sin), 65);
    EXPECT_EQ(RedOf65(Game::Quake2), -1);
}

TEST_F(GameFont, OfHeretic2IsAnM32OrElseAnM8) {
    Add("Htic2-0.pak", PackedFiles({{"pics/misc/conchars.m8", M8File(16, 16, Text(256, '\x08'))}}));
    EXPECT_EQ(RedOf65(Game::Heretic2), 8);
    Add("Htic2-1.pak", PackedFiles({{"pics/misc/conchars.m32", M32File(16, 16, Text(1024, '\x20'))}}));
    EXPECT_EQ(RedOf65(Game::Heretic2), 32);
}

TEST_F(GameFont, OfHalfLifeIsAmongItsLumps) {
    Add("fonts.wad", WadFile({{"FONT1", QfontLump(8, 8, 8), 70}}, "WAD3"));
    EXPECT_EQ(RedOf65(Game::HalfLife), 65);
    Text lump = QfontLump(8, 8, 8);
    lump.replace(16 + 65 * 4, 4, lump.substr(16 + 66 * 4, 4));
    Add("gfx.wad", WadFile({{"CONCHARS", lump, 70}}, "WAD3"));
    EXPECT_EQ(RedOf65(Game::HalfLife), 66);
}

TEST_F(GameFont, OfUnrealIsNotRead) {
    Add("gfx\\palette.lmp", PaletteBytes());
    Add("gfx.wad", Quake());
    Add("pics\\conchars.pcx", SmallPcx());
    EXPECT_FALSE(Read(Game::Unreal));
    EXPECT_FALSE(Read(Game::None));
}

TEST_F(GameFont, IsNoneWithoutTheGame) {
    for (const Game gameKind : std::vector<Game>{Game::None, Game::Quake, Game::Hexen2, Game::Quake2, Game::Unreal,
                                                 Game::Sin, Game::Heretic2, Game::HalfLife}) {
        EXPECT_FALSE(Read(gameKind)) << NumberOf(gameKind);
        EXPECT_FALSE(ReadGameFont(system.Disk, {}, gameKind)) << NumberOf(gameKind);
    }
}

TEST_F(GameFont, IsWholeOrNoneHoweverItsArchiveIsDamaged) {
    const Text pak = PackedFiles({{"pics/conchars.pcx", SmallPcx()}});
    ForEachDamage(pak, pak.size() - 12, [&](TextView bytes) {
        if (bytes.size() % 7 == 0 || bytes.size() == pak.size()) {
            Add("pak0.pak", Text(bytes));
            ExpectWholeOrNone(Read(Game::Quake2));
        }
    });
}

TEST_F(GameFont, HasColorsOfPlayersInQuake) {
    Add("pak0.pak", PackedFiles({{"gfx/palette.lmp", PaletteBytes()}}));
    const auto colors = ReadPlayerColors(system.Disk, {"C:\\GAME\\BASE"}, Game::Quake);
    ASSERT_TRUE(colors);
    EXPECT_EQ((*colors)[0], 0x04F708U);
    EXPECT_EQ((*colors)[13], 0x6C27D8U);
}

TEST_F(GameFont, HasColorsOfPlayersInHexen2WhereTheTableIs) {
    Add("gfx\\palette.lmp", PaletteBytes());
    EXPECT_FALSE(ReadPlayerColors(system.Disk, {"C:\\GAME\\BASE"}, Game::Hexen2));
    Add("gfx\\player.lmp", Text(256 + 3 * 14 * 256, '\x05'));
    const auto colors = ReadPlayerColors(system.Disk, {"C:\\GAME\\BASE"}, Game::Hexen2);
    ASSERT_TRUE(colors);
    EXPECT_EQ((*colors)[7], 0x02FA05U);
}

TEST_F(GameFont, HasNoColorsOfPlayersWithoutAPaletteOrInOtherGames) {
    EXPECT_FALSE(ReadPlayerColors(system.Disk, {"C:\\GAME\\BASE"}, Game::Quake));
    Add("gfx\\palette.lmp", PaletteBytes());
    Add("pics\\colormap.pcx", SmallPcx());
    for (const Game gameKind :
         std::vector<Game>{Game::None, Game::Quake2, Game::Unreal, Game::Sin, Game::Heretic2, Game::HalfLife}) {
        EXPECT_FALSE(ReadPlayerColors(system.Disk, {"C:\\GAME\\BASE"}, gameKind)) << NumberOf(gameKind);
    }
}

}  // namespace
}  // namespace lv
