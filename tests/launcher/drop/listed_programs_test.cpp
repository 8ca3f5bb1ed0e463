#include "launcher/drop/listed_programs.h"

#include "tests/launcher/drop/drop_fixture.h"

namespace lv {
namespace {

using Parts = std::vector<Text>;

class ListedProgramsTest : public DropTest {};

TEST_F(ListedProgramsTest, EachRowSaysWhatItPlays) {
    LoadGames();
    const auto programs = ListedPrograms(launcher);
    ASSERT_EQ(programs.size(), 6u);
    EXPECT_EQ(programs[0].Title, "Quake");
    EXPECT_EQ(programs[0].Plays.Facts->GameKind, Game::Quake);
    EXPECT_FALSE(programs[0].IsOfAWorld());
    EXPECT_TRUE(programs[2].IsOfAWorld());
    EXPECT_EQ(programs[3].Plays.Facts->GameKind, Game::Quake2);
    EXPECT_EQ(programs[4].Directory, "C:\\UNREAL\\SYSTEM");
    EXPECT_EQ(programs[4].Tree(), "C:\\UNREAL");
    EXPECT_EQ(programs[5].Tree(), "C:\\HL");
    EXPECT_EQ(PickedProgram(launcher)->Title, "Quake");
}

TEST_F(ListedProgramsTest, WithoutARowThereIsNone) {
    Load();
    EXPECT_TRUE(ListedPrograms(launcher).empty());
    EXPECT_FALSE(PickedProgram(launcher).has_value());
    EXPECT_FALSE(PlaceOf(launcher, "C:\\QUAKE\\ID1\\a.cfg", true).has_value());
}

TEST_F(ListedProgramsTest, APathBelongsToTheGameAboveIt) {
    LoadGames();
    const auto place = PlaceOf(launcher, "c:\\quake2\\Baseq2\\maps\\x.bsp", false);
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(place->Program.Title, "Quake 2");
    EXPECT_EQ(place->Below, (Parts{"Baseq2", "maps", "x.bsp"}));
    EXPECT_EQ(PlaceOf(launcher, "C:\\UNREAL\\Maps\\x.unr", false)->Below, (Parts{"Maps", "x.unr"}));
}

TEST_F(ListedProgramsTest, APathBesideAGameBelongsToNone) {
    LoadGames();
    EXPECT_FALSE(PlaceOf(launcher, "C:\\QUAKE3\\x.bsp", true).has_value());
    EXPECT_FALSE(PlaceOf(launcher, "C:\\QUAKE", true).has_value());
    EXPECT_FALSE(PlaceOf(launcher, "C:\\Downloads\\x.pak", true).has_value());
}

TEST_F(ListedProgramsTest, OfSeveralProgramsThePickedOneIsMeant) {
    LoadGames();
    PickExe("C:\\QUAKE\\QUAKE.EXE");
    EXPECT_EQ(PlaceOf(launcher, "C:\\QUAKE\\ID1\\a.cfg", true)->Program.Title, "Plain Quake");
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_EQ(PlaceOf(launcher, "C:\\QUAKE\\ID1\\a.cfg", true)->Program.Title, "Quake");
}

TEST_F(ListedProgramsTest, AWorldsClientIsMeantForWhatItHasAUseFor) {
    LoadGames();
    PickExe("C:\\QUAKE\\QWCL.EXE");
    EXPECT_EQ(PlaceOf(launcher, "C:\\QUAKE\\ID1\\a.cfg", true)->Program.Title, "QuakeWorld");
    EXPECT_EQ(PlaceOf(launcher, "C:\\QUAKE\\ID1\\maps\\a.bsp", false)->Program.Title, "Quake");
}

TEST_F(ListedProgramsTest, AGameInsideOfAnotherIsMeantAheadOfThat) {
    AddGames();
    system.Disk.AddFile("C:\\QUAKE\\Q2\\QUAKE2.EXE");
    system.Disk.AddFile("C:\\QUAKE\\Q2\\BASEQ2\\a.cfg");
    Save(run, kOptions, "Executables", "Quake;C:\\QUAKE\\GLQUAKE.EXE;Inner;C:\\QUAKE\\Q2\\QUAKE2.EXE");
    Load();
    const auto place = PlaceOf(launcher, "C:\\QUAKE\\Q2\\BASEQ2\\a.cfg", true);
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(place->Program.Title, "Inner");
    EXPECT_EQ(place->Below, (Parts{"BASEQ2", "a.cfg"}));
}

TEST_F(ListedProgramsTest, TheSameDirectoryOnAnotherDriveIsKnown) {
    LoadGames();
    system.Disk.AddDrive("Z:");
    system.Disk.AddLink("Z:\\games", "C:\\QUAKE");
    const auto place = PlaceOf(launcher, "Z:\\games\\id1\\my.cfg", true);
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(place->Program.Title, "Quake");
    EXPECT_EQ(place->Below, (Parts{"id1", "my.cfg"}));
}

}  // namespace
}  // namespace lv
