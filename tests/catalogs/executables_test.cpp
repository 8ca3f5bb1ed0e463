#include "catalogs/executables.h"

#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

class ExecutablesTest : public CatalogsTest {
  protected:
    ExecutablesTest() {
        system.Disk.AddFile("C:\\QUAKE\\quake.exe");
        system.Disk.AddFile("C:\\QUAKE2\\quake2.exe");
    }

    static constexpr const char* kTwo = "Quake;C:\\QUAKE\\quake.exe;Quake 2;C:\\QUAKE2\\quake2.exe";
};

TEST_F(ExecutablesTest, AnEmptyCatalogIsAnEmptyList) {
    lists.Exe_Cbo.Items = {{"Old", "C:\\old.exe", "", ""}};
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_TRUE(lists.Exe_Cbo.Items.empty());
    EXPECT_EQ(lists.Exe_Cbo.ListIndex, -1);
    EXPECT_EQ(system.Settings.Count(), 0U);
}

TEST_F(ExecutablesTest, AShortCatalogIsAnEmptyList) {
    Store("Executables", "a;b");
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_TRUE(lists.Exe_Cbo.Items.empty());
    EXPECT_EQ(Stored("Executables"), "a;b");
}

TEST_F(ExecutablesTest, EachRowHasTitlePathAndPicture) {
    Store("Executables", kTwo);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Rows(lists.Exe_Cbo), (TextList{"Quake|C:\\QUAKE\\quake.exe", "Quake 2|C:\\QUAKE2\\quake2.exe"}));
    EXPECT_EQ(lists.Exe_Cbo.Items[0].Image, "QUAKE");
    EXPECT_EQ(lists.Exe_Cbo.Items[0].SelectedImage, "QUAKE");
    EXPECT_EQ(lists.Exe_Cbo.Items[1].Image, "QUAKE2");
    EXPECT_EQ(lists.Exe_Cbo.Items[1].SelectedImage, "QUAKE2");
}

TEST_F(ExecutablesTest, ThePictureIsToldInAnyCase) {
    system.Disk.AddFile("C:\\HL\\HL.EXE");
    Store("Executables", "Half-Life;C:\\HL\\HL.EXE");
    LoadExes(run, lists);
    EXPECT_EQ(lists.Exe_Cbo.Items[0].Image, "HALFLIFE");
}

TEST_F(ExecutablesTest, APathWithSlashesIsFoundAndKeptAsItIs) {
    Store("Executables", "Quake;C:/QUAKE/quake.exe");
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Rows(lists.Exe_Cbo), (TextList{"Quake|C:/QUAKE/quake.exe"}));
    EXPECT_EQ(lists.Exe_Cbo.Items[0].Image, "QUAKE");
}

TEST_F(ExecutablesTest, TheStoredRowIsSelectedAndShown) {
    Store("Executables", kTwo);
    Store("ExecutablesPos", "1");
    LoadExes(run, lists);
    EXPECT_EQ(lists.Exe_Cbo.ListIndex, 1);
    EXPECT_EQ(user.Refreshes, 1);
}

TEST_F(ExecutablesTest, APositionBehindTheEndIsCutAndSaved) {
    Store("Executables", kTwo);
    Store("ExecutablesPos", "2");
    LoadExes(run, lists);
    EXPECT_EQ(lists.Exe_Cbo.ListIndex, 1);
    EXPECT_EQ(Stored("ExecutablesPos"), "1");
}

TEST_F(ExecutablesTest, ATrailingSemicolonHealsItself) {
    Store("Executables", Text(kTwo) + ";");
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(lists.Exe_Cbo.Items.size(), 2U);
    EXPECT_EQ(Stored("Executables"), kTwo);
}

TEST_F(ExecutablesTest, AShortValueLosesItsTrailingSemicolons) {
    Store("Executables", "a;b;;");
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "a;b");
}

TEST_F(ExecutablesTest, NothingButSemicolonsBecomesEmpty) {
    Store("Executables", ";;;");
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "");
}

TEST_F(ExecutablesTest, AnOddCountEndsTheProgram) {
    Store("Executables", Text(kTwo) + ";odd");
    ExpectDamage("defaultExes", Text(kTwo) + ";odd");
    EXPECT_FALSE(LoadExes(run, lists));
    EXPECT_TRUE(run.Ended);
    EXPECT_TRUE(user.ProgramEnded);
}

TEST_F(ExecutablesTest, ASecondEntryOfAPathIsToldAndLeftOut) {
    const Text twice = "Quake;C:\\QUAKE\\quake.exe;Again;C:\\QUAKE\\quake.exe";
    Store("Executables", twice);
    for (int start = 0; start < 2; ++start) {  // the value keeps it, so the box comes at every start
        user.Expect({"Duplicate Game",
                     "Again  C:\\QUAKE\\quake.exe\r\nThis Game -->\r\n"
                     "was listed twice. The second entry will be ignored.",
                     0, false, true, "&OK"});
        EXPECT_TRUE(LoadExes(run, lists));
        EXPECT_EQ(Rows(lists.Exe_Cbo), (TextList{"Quake|C:\\QUAKE\\quake.exe"}));
        EXPECT_EQ(Stored("Executables"), twice);
    }
}

TEST_F(ExecutablesTest, ARowOfAMissingGameThatIsIgnoredStaysAndIsAskedForAgain) {
    const Text value = "Gone;C:\\GONE\\gone.exe;Quake;C:\\QUAKE\\quake.exe";
    Store("Executables", value);
    for (int start = 0; start < 2; ++start) {
        user.Expect({"Game Not Found...", "Gone  C:\\GONE\\gone.exe\r\nThis Game -->\r\nwas not found.", 2, false, true,
                     "I &deleted this Game,I &moved this Game,I&gnore"});
        EXPECT_TRUE(LoadExes(run, lists));
        EXPECT_EQ(Rows(lists.Exe_Cbo), (TextList{"Gone|C:\\GONE\\gone.exe", "Quake|C:\\QUAKE\\quake.exe"}));
        EXPECT_EQ(Stored("Executables"), value);
    }
}

TEST_F(ExecutablesTest, TheListIsSavedAsItWasRead) {
    Store("Executables", " Quake ;  C:\\QUAKE\\quake.exe");
    LoadExes(run, lists);
    EXPECT_EQ(Stored("Executables"), "Quake;C:\\QUAKE\\quake.exe");
}

}  // namespace
}  // namespace lv
