#include "wizard/engine_advice.h"

#include "foundation/field_strings.h"
#include "tests/wizard/found_games_fixture.h"

namespace lv {

/// Quake can be played here, Hexen II cannot.
class EngineAdviceTest : public FoundGamesTest {
  protected:
    EngineAdviceTest() {
        AddQuake();
        AddEngine("quakespasm");
        system.Disk.AddFile("C:\\HOME\\games\\hexen2\\data1\\pak0.pak");
    }
    void ExpectAdvice(TextView path) {
        user.Expect({"Nothing Here to Play It With", Join("\t", path, "\r\n"), 0, false, false, "&OK,&Copy"});
    }
    Text Advised() { return Stored("Engines", "Advised"); }
    static constexpr const char* kHexen2Tree = "c:\\home\\games\\hexen2";
};

TEST_F(EngineAdviceTest, IsGivenOnceOfWhatTheLookAroundFills) {
    ExpectAdvice(kHexen2Tree);
    EXPECT_TRUE(SetUpFoundGames());
    EXPECT_EQ(Advised(), kHexen2Tree);
    EXPECT_TRUE(SetUpFoundGames());
    EXPECT_TRUE(SetUpFoundGames());
}

TEST_F(EngineAdviceTest, IsGivenAgainOfAPathThatTheUserNames) {
    ExpectAdvice(kHexen2Tree);
    SetUpFoundGames();
    ExpectAdvice(kHexen2Tree);
    user.In<Install_Frm>([](Install_Frm& form) {
        form.GamePath_Txt[kHexen2].Text = "C:\\Home\\Games\\hexen2";
        Install_OK_Cmd_Click(form);
    });
    EXPECT_TRUE(ShowInstallWizard(launcher));
}

TEST_F(EngineAdviceTest, IsGivenOfEachTreeThatIsNew) {
    ExpectAdvice(kHexen2Tree);
    SetUpFoundGames();
    system.Disk.AddFile("C:\\HOME\\games\\quake2\\baseq2\\pak0.pak");
    ExpectAdvice("c:\\home\\games\\quake2");
    SetUpFoundGames();
    EXPECT_EQ(Advised(), "c:\\home\\games\\hexen2;c:\\home\\games\\quake2");
}

TEST_F(EngineAdviceTest, IsAlwaysGivenWhereNothingCanBePlayed) {
    system.Disk.Delete("Z:\\usr\\games\\quakespasm");
    for (int i = 0; i < 2; ++i) {
        ExpectAdvice("c:\\home\\games\\quake");
        ExpectAdvice(kHexen2Tree);
        ExpectTold("No supported executables were found\r\nin the selected directories.");
        EXPECT_FALSE(SetUpFoundGames());
    }
}

TEST_F(EngineAdviceTest, IsGivenAnewWhenTheEngineHasGoneAgain) {
    ExpectAdvice(kHexen2Tree);
    SetUpFoundGames();
    AddEngine("glhexen2");
    SetUpFoundGames();
    EXPECT_EQ(Advised(), "");
    system.Disk.Delete("Z:\\usr\\games\\glhexen2");
    ExpectAdvice(kHexen2Tree);
    SetUpFoundGames();
}

TEST_F(EngineAdviceTest, IsRememberedOfThirtyTrees) {
    std::vector<SetUpTree> trees;
    for (int i = 0; i < 40; ++i) {
        trees.push_back({kSin, Join("c:\\tree", std::to_string(i))});
        user.Expect({"Nothing Here to Play It With", trees.back().Path});
    }
    AdviseOnce(run, launcher.Engines, trees, false);
    EXPECT_TRUE(Advised().starts_with("c:\\tree10;")) << Advised();
    EXPECT_TRUE(Advised().ends_with(";c:\\tree39")) << Advised();
}

TEST_F(EngineAdviceTest, AsksForTheProgramOfAGameThatNoEnginePlays) {
    user.Expect({"Nothing Here to Play It With",
                 "Sin lies in\r\n\r\n\tc:\\home\\games\\sin\r\n\r\nbut its program sin.exe does not, and no engine of "
                 "today plays Sin. That program runs through Wine. Put it there, or press Browse in the row of Sin and "
                 "show the directory that it lies in.",
                 0, false, true, "&OK"});
    AdviseEngine(run, launcher.Engines, kSin, "c:\\home\\games\\sin");
    system.Disk.KnowsStandIns = false;
    user.Expect({"Nothing Here to Play It With", "no engine of today plays Sin. Put it there"});
    AdviseEngine(run, launcher.Engines, kSin, "c:\\home\\games\\sin");
}

TEST_F(EngineAdviceTest, SaysInWhichPartOfDebianAPackageIs) {
    user.Expect(
        {"Nothing Here to Play It With",
         "In a terminal,\r\n\r\n\tapt install yamagi-quake2\r\n\r\ninstalls Yamagi Quake II, which does. It is in "
         "Debian's \"contrib\", which must stand among apt's sources. Afterwards",
         1, false, false, "&OK,&Copy"});
    AdviseEngine(run, launcher.Engines, kQuake2, "c:\\q2");
    EXPECT_EQ(system.Clip.Held, "apt install yamagi-quake2");
}

TEST_F(EngineAdviceTest, APathThatNoListKeepsIsToldOfEachTime) {
    for (int i = 0; i < 2; ++i) {
        ExpectAdvice("c:\\a;b");
        AdviseOnce(run, launcher.Engines, {{kQuake2, "c:\\a;b"}}, false);
    }
    EXPECT_EQ(Advised(), "(none)");
}

}  // namespace lv
