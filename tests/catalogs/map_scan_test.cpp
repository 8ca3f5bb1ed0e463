#include "catalogs/map_scan.h"

#include "tests/catalogs/catalogs_fixture.h"
#include "tests/catalogs/pak_file.h"

namespace lv {
namespace {

class MapScanTest : public CatalogsTest {
  protected:
    MapScanTest() { BeInQuake(); }
};

TEST_F(MapScanTest, WithoutMapsTheListIsEmpty) {
    lists.Map_Cbo.Items = {"OLD"};
    lists.Map_Cbo.ListIndex = 0;
    lists.MapList = "old";
    ScanForMaps(run, lists);
    EXPECT_TRUE(lists.Map_Cbo.Items.empty());
    EXPECT_EQ(lists.Map_Cbo.ListIndex, -1);
    EXPECT_EQ(lists.MapList, "");
}

TEST_F(MapScanTest, NamesStandInUpperCaseAndTheFirstIsSelected) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile({"maps/start.bsp", "maps/e1m1.bsp"}));
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"START", "E1M1"}));
    EXPECT_EQ(lists.Map_Cbo.ListIndex, 0);
    EXPECT_EQ(lists.MapList, "start;e1m1");
}

TEST_F(MapScanTest, ModelsAreLeftOut) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile({"maps/b_shell.bsp", "maps/base1.bsp"}));
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"BASE1"}));
}

TEST_F(MapScanTest, AnArchiveWithoutMapsAddsNothing) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile({"progs.dat"}));
    ScanForMaps(run, lists);
    EXPECT_TRUE(lists.Map_Cbo.Items.empty());
}

TEST_F(MapScanTest, ArchivesComeBeforeLooseFilesAndNothingIsSorted) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\Zed.BSP");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\alpha.bsp");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\PAK1.PAK", PakFile({"maps/two.bsp"}));
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile({"maps/one.bsp"}));
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.MapList, "two;one;Zed;alpha");
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"TWO", "ONE", "ZED", "ALPHA"}));
}

TEST_F(MapScanTest, ANameFoundTwiceStandsTwice) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile({"maps/start.bsp"}));
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\start.bsp");
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"START", "START"}));
}

TEST_F(MapScanTest, AModificationsMapsComeFirst) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile({"maps/base.bsp"}));
    system.Disk.AddFile("C:\\QUAKE\\ctf\\pak0.pak", PakFile({"maps/packed.bsp"}));
    system.Disk.AddFile("C:\\QUAKE\\ctf\\maps\\loose.bsp");
    run.CurrentGameDir = "ctf";
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"PACKED", "LOOSE", "BASE"}));
}

TEST_F(MapScanTest, TheBaseGameInAnotherCaseIsScannedOnce) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile({"maps/base.bsp"}));
    run.CurrentGameDir = "id1";
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"BASE"}));
}

TEST_F(MapScanTest, LooseNamesEndAtTheFirstExtension) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\a.bsp.bsp");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\.bsp");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\b.txt");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\c;d.bsp");
    system.Disk.AddDirectory("C:\\QUAKE\\ID1\\maps\\e.bsp");
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"A"}));
}

TEST_F(MapScanTest, LooseModelsAreKept) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\b_loose.bsp");
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"B_LOOSE"}));
}

TEST_F(MapScanTest, SinLooksAtItsOwnArchivesOnly) {
    run.GameKind = Game::Sin;
    run.BaseGameDir = "BASE";
    run.CurrentGameDir = "BASE";
    system.Disk.AddFile("C:\\QUAKE\\BASE\\pak0.pak", PakFile({"maps/packed.bsp"}));
    system.Disk.AddFile("C:\\QUAKE\\BASE\\pak1.pak", PakFile({"maps/packed.bsp"}, "SPAK"));
    ScanForMaps(run, lists);
    EXPECT_TRUE(lists.Map_Cbo.Items.empty());
    system.Disk.AddFile("C:\\QUAKE\\BASE\\pak0.sin", PakFile({"maps/spry.bsp"}, "SPAK"));
    system.Disk.AddFile("C:\\QUAKE\\BASE\\pak1.sin", PakFile({"maps/wrong.bsp"}, "PACK"));
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"SPRY"}));
}

TEST_F(MapScanTest, OtherGamesLeaveSinsArchivesAlone) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.sin", PakFile({"maps/spry.bsp"}, "SPAK"));
    ScanForMaps(run, lists);
    EXPECT_TRUE(lists.Map_Cbo.Items.empty());
}

TEST_F(MapScanTest, UnrealsMapsLieBesideItsSystemDirectory) {
    run.GameKind = Game::Unreal;
    run.DefaultGameDirectory = "c:\\unreal\\system";
    run.BaseGameDir = "MAPS";
    run.CurrentGameDir = "MAPS";
    system.Disk.AddFile("C:\\UNREAL\\MAPS\\Vortex2.unr");
    system.Disk.AddFile("C:\\UNREAL\\MAPS\\LOUD.UNR");  // the test for ".unr" looks at the case
    system.Disk.AddFile("C:\\UNREAL\\MAPS\\DmDeck16.unr");
    system.Disk.AddFile("C:\\UNREAL\\MAPS\\.unr");
    system.Disk.AddFile("C:\\UNREAL\\MAPS\\readme.txt");
    system.Disk.AddFile("C:\\UNREAL\\SYSTEM\\MAPS\\pak0.pak", PakFile({"maps/no.bsp"}));
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"VORTEX2", "DMDECK16"}));
    EXPECT_EQ(lists.MapList, "Vortex2;DmDeck16");
}

TEST_F(MapScanTest, ADamagedArchiveCostsItsOwnEntriesOnly) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", "PACK");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak1.pak", "");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak2.pak", "PACK\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak3.pak", PakFile({"maps/good.bsp"}));
    system.Disk.AddDirectory("C:\\QUAKE\\ID1\\pak4.pak");
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"GOOD"}));
}

TEST_F(MapScanTest, WithoutADirectoryNothingIsScanned) {
    system.Disk.AddFile("C:\\pak0.pak", PakFile({"maps/root.bsp"}));
    run.DefaultGameDirectory.clear();
    run.BaseGameDir.clear();
    run.CurrentGameDir.clear();
    ScanForMaps(run, lists);
    EXPECT_TRUE(lists.Map_Cbo.Items.empty());
}

TEST_F(MapScanTest, ASecondScanKeepsNothingOfTheFirst) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile({"maps/start.bsp"}));
    ScanForMaps(run, lists);
    ASSERT_FALSE(system.Disk.Delete("C:\\QUAKE\\ID1\\pak0.pak"));
    ScanForMaps(run, lists);
    EXPECT_TRUE(lists.Map_Cbo.Items.empty());
    EXPECT_EQ(lists.MapList, "");
}

TEST_F(MapScanTest, AnArchiveThatClaimsFourGigabytesAddsWhatItHas) {
    Text whole = PakFile({"maps/start.bsp"});
    whole.replace(8, 4, LittleEndian(0xFFFFFFF0));
    system.Disk.AddSparseFile("C:\\QUAKE\\ID1\\pak0.pak", whole, 4ULL << 30U);
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak1.pak", PakFile({"maps/e1m1.bsp"}));
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"START", "E1M1"}));
}

TEST_F(MapScanTest, PipesAndDevicesAreNoArchivesAndNoMaps) {
    system.Disk.AddDevice("C:\\QUAKE\\ID1\\pak0.pak");
    system.Disk.AddDevice("C:\\QUAKE\\ID1\\maps\\pipe.bsp");
    ScanForMaps(run, lists);
    EXPECT_TRUE(lists.Map_Cbo.Items.empty());
}

TEST_F(MapScanTest, ASlowArchiveIsLeftAfterATenthOfASecond) {
    TextList entries(20'000, "progs.dat");
    entries[4095] = "maps/read.bsp";
    entries[8192] = "maps/not_any_more.bsp";
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile(entries));
    system.Time.Step = 0.06;  // at each look at the clock: one before each block behind the first 4,096 entries
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"READ"}));
    system.Time.Step = 0;
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items, (TextList{"READ", "NOT_ANY_MORE"}));
}

TEST_F(MapScanTest, ArchivesFillTheListWithNoMoreThanItCanShow) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", PakFile(TextList(1000, "maps/a.bsp")));
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak1.pak", PakFile(TextList(65536, "maps/b.bsp")));
    system.Disk.AddFile("C:\\QUAKE\\ID1\\pak2.pak", PakFile({"maps/c.bsp"}));
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\loose.bsp");
    ScanForMaps(run, lists);
    ASSERT_EQ(lists.Map_Cbo.Items.size(), 1025U);
    EXPECT_EQ(lists.Map_Cbo.Items[999], "A");
    EXPECT_EQ(lists.Map_Cbo.Items[1023], "B");
    EXPECT_EQ(lists.Map_Cbo.Items[1024], "LOOSE");
}

TEST_F(MapScanTest, ADirectoryWithMoreLooseMapsThanTheListShowsIsToldOfOnce) {
    for (int i = 0; i < 4097; ++i) {
        system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\m" + std::to_string(i) + ".bsp");
    }
    user.Expect({"More Than a List Shows", "more maps than the list can show in\r\nc:\\quake\\ID1\\maps"});
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items.size(), 4096U);
    ASSERT_EQ(user.Asked.size(), 1U);
    ScanForMaps(run, lists);
    EXPECT_EQ(user.Asked.size(), 1U);
}

TEST_F(MapScanTest, AsManyLooseMapsAsTheListShowsAreNotWorthAWord) {
    for (int i = 0; i < 4096; ++i) {
        system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\m" + std::to_string(i) + ".bsp");
    }
    ScanForMaps(run, lists);
    EXPECT_EQ(lists.Map_Cbo.Items.size(), 4096U);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(MapScanTest, ManySlowArchivesAreLeftAfterASecond) {
    for (int i = 0; i < 100; ++i) {
        system.Disk.AddFile("C:\\QUAKE\\ID1\\pak" + std::to_string(i) + ".pak", PakFile({"maps/a.bsp"}));
    }
    system.Time.Step = 0.05;
    ScanForMaps(run, lists);
    EXPECT_GE(lists.Map_Cbo.Items.size(), 5U);
    EXPECT_LT(lists.Map_Cbo.Items.size(), 21U);
}

}  // namespace
}  // namespace lv
