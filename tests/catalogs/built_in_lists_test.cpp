#include "catalogs/built_in_lists.h"

#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

TEST_F(CatalogsTest, MemoryHasSevenSizesByDefault) {
    EXPECT_TRUE(FillMemoryCombo(run, lists));
    EXPECT_EQ(Rows(lists.Mem_Cbo),
              (TextList{"8 megabytes|-winmem 8", "12 megabytes|-winmem 12", "16 megabytes|-winmem 16",
                        "24 megabytes|-winmem 24", "32 megabytes|-winmem 32", "40 megabytes|-winmem 40",
                        "48 megabytes|-winmem 48"}));
    EXPECT_EQ(lists.Mem_Cbo.ListIndex, 2);
}

TEST_F(CatalogsTest, DemosHaveSixRowsByDefault) {
    EXPECT_TRUE(FillDemoCombo(run, lists));
    EXPECT_EQ(Rows(lists.Demo_Cbo),
              (TextList{"None|playdemo nodemo.dem", "Quake Demo #1|playdemo demo1.dem",
                        "Quake Demo #2|playdemo demo2.dem", "Quake Demo #3|playdemo demo3.dem",
                        "Quake ][ Demo #1|demomap demo1.dm2", "Quake ][ Demo #2|demomap demo2.dm2"}));
    EXPECT_EQ(lists.Demo_Cbo.ListIndex, 0);
}

TEST_F(CatalogsTest, TheDefaultsAreNotWritten) {
    FillMemoryCombo(run, lists);
    FillDemoCombo(run, lists);
    EXPECT_EQ(system.Settings.Count(), 0U);
}

TEST_F(CatalogsTest, StoredSizesStandInTheListInstead) {
    Store("Memory", "64 megabytes;-winmem 64");
    Store("MemoryPos", "5");
    EXPECT_TRUE(FillMemoryCombo(run, lists));
    EXPECT_EQ(Rows(lists.Mem_Cbo), (TextList{"64 megabytes|-winmem 64"}));
    EXPECT_EQ(lists.Mem_Cbo.ListIndex, 0);
}

TEST_F(CatalogsTest, TheStoredDemoIsSelected) {
    Store("DemoPos", "4");
    FillDemoCombo(run, lists);
    EXPECT_EQ(lists.Demo_Cbo.ListIndex, 4);
}

TEST_F(CatalogsTest, ASecondFillLeavesNoOldRows) {
    FillDemoCombo(run, lists);
    FillDemoCombo(run, lists);
    EXPECT_EQ(lists.Demo_Cbo.Items.size(), 6U);
}

TEST_F(CatalogsTest, AnEmptyMemoryCatalogIsDamaged) {
    Store("Memory", "");
    ExpectDamage("defaultMem", "");
    EXPECT_FALSE(FillMemoryCombo(run, lists));
    EXPECT_TRUE(run.Ended);
}

TEST_F(CatalogsTest, AShortMemoryCatalogIsDamaged) {
    Store("Memory", "8;-mem 8");
    ExpectDamage("defaultMem", "8;-mem 8");
    EXPECT_FALSE(FillMemoryCombo(run, lists));
    EXPECT_TRUE(run.Ended);
}

TEST_F(CatalogsTest, AnEmptyDemoCatalogIsEmpty) {
    Store("Demos", "");
    EXPECT_TRUE(FillDemoCombo(run, lists));
    EXPECT_TRUE(lists.Demo_Cbo.Items.empty());
    EXPECT_EQ(lists.Demo_Cbo.ListIndex, -1);
}

TEST_F(CatalogsTest, ADamagedDemoCatalogEndsTheProgram) {
    Store("Demos", "None;playdemo nodemo.dem;");
    ExpectDamage("defaultDemos", "None;playdemo nodemo.dem;");
    EXPECT_FALSE(FillDemoCombo(run, lists));
    EXPECT_TRUE(run.Ended);
}

}  // namespace
}  // namespace lv
