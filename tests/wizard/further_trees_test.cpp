#include "wizard/further_trees.h"

#include "foundation/field_strings.h"
#include "tests/wizard/found_games_fixture.h"

namespace lv {

/// Quake lies in the home and in Steam's library.
class FurtherTreesTest : public FoundGamesTest {
  protected:
    FurtherTreesTest() {
        system.Places.IsGames = {"C:\\HOME\\games", "D:\\steamapps\\common"};
        AddQuake();
        system.Disk.AddFile("D:\\steamapps\\common\\Quake\\id1\\pak0.pak");
        system.Disk.AddFile("D:\\steamapps\\common\\Quake\\id1\\pak1.pak");
        AddEngine("quakespasm");
    }
    void ExpectOffer(TextView lines, int answer) {
        user.Expect({"More of Your Games",
                     Join("These games lie here as well:\r\n\r\n", lines,
                          "\r\n\r\nShall they be in the list too? Their titles tell where they lie."),
                     answer, false, true, "&Yes,&No"});
    }
    static constexpr const char* kSteam = "\tQuake: D:\\steamapps\\common\\Quake";
    static constexpr const char* kFirst = "QuakeSpasm;c:\\home\\games\\quake\\quakespasm";
};

TEST_F(FurtherTreesTest, AreEnteredUnderTitlesThatDiffer) {
    ExpectOffer(kSteam, 0);
    EXPECT_TRUE(SetUpFoundGames());
    EXPECT_EQ(Executables(), Join(kFirst, ";QuakeSpasm (Steam\\Quake);d:\\steamapps\\common\\quake\\quakespasm"));
    EXPECT_TRUE(system.Disk.FileExists("D:\\steamapps\\common\\Quake\\quakespasm"));
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\home\\games\\quake\\");
}

TEST_F(FurtherTreesTest, OfTwoThatDifferByLetterCaseAloneOneIsOffered) {
    Install_Frm form(run);
    form.Engines = launcher.Engines;
    form.Found = LookAround(run, launcher.Engines);
    ASSERT_EQ(form.Found.Trees.size(), 2u);
    GameTree other = form.Found.Trees[1];
    other.Directory = "D:\\steamapps\\COMMON\\quake";
    form.Found.Trees.push_back(other);
    form.Game_Chk[kQuake].Value = 1;
    form.GamePath_Txt[kQuake].Text = "C:\\HOME\\games\\quake";
    EXPECT_EQ(FurtherTrees(form, "").size(), 1u);
}

TEST_F(FurtherTreesTest, AreLeftOutIfTheUserWantsNone) {
    ExpectOffer(kSteam, 1);
    EXPECT_TRUE(SetUpFoundGames());
    EXPECT_EQ(Executables(), kFirst);
    EXPECT_FALSE(system.Disk.FileExists("D:\\steamapps\\common\\Quake\\quakespasm"));
}

TEST_F(FurtherTreesTest, AreOfferedAgainOnlyWithSomethingNew) {
    ExpectOffer(kSteam, 0);
    SetUpFoundGames();
    const Text before = Executables();
    SetUpFoundGames();
    EXPECT_EQ(Executables(), before);
    AddEngine("darkplaces");
    ExpectOffer(kSteam, 0);
    SetUpFoundGames();
    EXPECT_NE(Executables().find("DarkPlaces (Steam\\Quake);d:\\steamapps"), Text::npos) << Executables();
}

TEST_F(FurtherTreesTest, GetTheirOwnProgramsToo) {
    system.Disk.AddFile("C:\\HOME\\games\\quake\\glquake.exe");
    system.Disk.AddFile("D:\\steamapps\\common\\Quake\\glquake.exe");
    ExpectOffer(kSteam, 0);
    SetUpFoundGames();
    EXPECT_NE(Executables().find("GL Quake (Steam\\Quake);d:\\steamapps\\common\\quake\\glquake.exe"), Text::npos)
        << Executables();
}

TEST_F(FurtherTreesTest, ARereleaseIsNamedByItsDirectory) {
    system.Places.IsGames = {"C:\\HOME\\games"};
    system.Disk.AddFile("C:\\HOME\\games\\quake\\rerelease\\id1\\pak0.pak");
    ExpectOffer("\tQuake: C:\\HOME\\games\\quake\\rerelease", 0);
    SetUpFoundGames();
    EXPECT_NE(Executables().find("QuakeSpasm (rerelease);"), Text::npos) << Executables();
}

TEST_F(FurtherTreesTest, OfARowThatIsNotTickedAreNotOffered) {
    user.In<Install_Frm>([](Install_Frm& form) {
        form.Game_Chk[kQuake].Value = 0;
        EXPECT_TRUE(FurtherTrees(form, "").empty());
        Install_Cancel_Cmd_Click(form);
    });
    ShowInstallWizard(launcher);
}

TEST_F(FurtherTreesTest, TheTreeThatARowNamesIsNone) {
    user.In<Install_Frm>([](Install_Frm& form) {
        form.GamePath_Txt[kQuake].Text = "d:/steamapps/common/quake/";
        const std::vector<FurtherTree> trees = FurtherTrees(form, "");
        ASSERT_EQ(trees.size(), 1u);
        EXPECT_EQ(trees[0].Path, "C:\\HOME\\games\\quake");
        Install_Cancel_Cmd_Click(form);
    });
    ShowInstallWizard(launcher);
}

TEST_F(FurtherTreesTest, ALongListIsCut) {
    const std::vector<FurtherTree> trees(23, FurtherTree{kSin, "C:\\SIN"});
    user.Expect({"More of Your Games", "\tSin: C:\\SIN\r\n\tand 3 more\r\n\r\nShall", 1});
    EXPECT_FALSE(WantsFurtherTrees(run, trees));
    EXPECT_FALSE(WantsFurtherTrees(run, {}));
}

TEST_F(FurtherTreesTest, EntriesOfTwoGamesKeepApartToo) {
    system.Places.IsGames = {"C:\\HOME\\games"};
    system.Disk.AddFile("C:\\HOME\\games\\hexen2\\data1\\pak0.pak");
    AddEngine("fteqw");
    SetUpFoundGames();
    EXPECT_NE(Executables().find("FTEQW;c:\\home\\games\\quake\\fteqw"), Text::npos) << Executables();
    EXPECT_NE(Executables().find(";FTEQW (hexen2);"), Text::npos) << Executables();
}

}  // namespace lv
