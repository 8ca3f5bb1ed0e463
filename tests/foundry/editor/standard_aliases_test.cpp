#include "foundry/editor/standard_aliases.h"

#include "foundry/document/bindings.h"
#include "foundry/editor/aliases_page.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

constexpr const char* kScrollPath = "C:\\GAME\\ID1\\nsrl_666.qs";

class StandardAliases : public FigTest {
  protected:
    void SetUp() override { OpenAndFill(); }

    void OpenAndFill(TextView script = "") {
        Open(kQuakeDialect, script);
        FillStandardAliases(form);
        FillAliasList(form);
    }
    void AddEntry(int entry) {
        form.StdAliases_Cbo.ListIndex = entry;
        AddStandardAlias_Cmd_Click(form);
    }
    Text Body(TextView name) {
        const AliasPlace at = FindAlias(form.Document, name);
        return at.Found ? form.Document.AliasTable[at.Place].Body : "(none)";
    }
    void WillBeAsked(TextView name, int answer) {
        user.Expect({.Title = "Alias Exists",
                     .Text_ = Join("Setup Foundry found an existing alias titled '", name, "'. Overwrite this alias?"),
                     .Answer = answer,
                     .Whole = true,
                     .Buttons = "&Yes,&No"});
    }
};

constexpr const char* kRocketJump =
    "cl_pitchspeed 32000;+lookdown;impulse 7;wait;wait;wait;wait;wait;wait;wait;wait;wait;wait;+jump;wait;wait;wait;"
    "+attack;wait;wait;wait;-lookdown;-attack;cl_pitchspeed ";

TEST_F(StandardAliases, AreOfferedForQuakeAlone) {
    EXPECT_EQ(form.StdAliases_Cbo.Items, (std::vector<Text>{" 1. Rocket Jump", " 2. Name Scroll"}));
    for (const ScriptDialect& dialect : {kHexen2Dialect, kQuake2Dialect, kUnrealDialect, kHalfLifeDialect}) {
        Open(dialect);
        FillStandardAliases(form);
        EXPECT_TRUE(form.StdAliases_Cbo.Items.empty()) << static_cast<int>(dialect.GameKind);
    }
}

TEST_F(StandardAliases, AreNotAddedWithoutASelection) {
    user.Expect(
        {.Title = "Setup Foundry", .Text_ = "No Standard Alias has been selected.", .Whole = true, .Buttons = "&OK"});
    AddEntry(-1);
    EXPECT_TRUE(form.Document.AliasTable.empty());
}

TEST_F(StandardAliases, TheRocketJumpGoesBackToTheChosenPitchSpeed) {
    Choose(form.Document.cl_pitchspeed_Cbo, "150");
    AddEntry(0);
    EXPECT_EQ(Body("rl_jump_1"), Join(kRocketJump, "150"));
    EXPECT_EQ(form.Alias_Lst.Items.size(), 1U);
    EXPECT_EQ(form.Alias_Lst.ListIndex, 0);
    EXPECT_FALSE(form.Document.AliasTable[0].Bound);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(StandardAliases, TheRocketJumpGoesBackToTheGamesPitchSpeed) {
    form.Document.cl_pitchspeed_Cbo.ListIndex = -1;
    AddEntry(0);
    EXPECT_EQ(Body("rl_jump_1"), Join(kRocketJump, "100"));
}

TEST_F(StandardAliases, ThePitchSpeedIsWrittenWithAPoint) {
    form.Document.Dialect.DecimalSeparator = ',';
    Choose(form.Document.cl_pitchspeed_Cbo, "150,5");
    AddEntry(0);
    EXPECT_EQ(Body("rl_jump_1"), Join(kRocketJump, "150.5"));
}

TEST_F(StandardAliases, TheNameScrollRunsAScriptOfItsOwn) {
    form.Document.Name_Txt.Text = "Player";
    AddEntry(1);
    EXPECT_EQ(Body("n_scroll_1"), "exec nsrl_666.qs;exec nsrl_666.qs;exec nsrl_666.qs;exec nsrl_666.qs");
    EXPECT_EQ(system.Disk.Bytes(kScrollPath), Crlf("\n"
                                                   "/////////////////////\n"
                                                   "//                 //\n"
                                                   "// Setup Foundry   //\n"
                                                   "//                 //\n"
                                                   "// 11/21/1999      //\n"
                                                   "//                 //\n"
                                                   "/////////////////////\n"
                                                   "\n"
                                                   "/////////////////////\n"
                                                   "//                 //\n"
                                                   "// Name Scroll     //\n"
                                                   "//                 //\n"
                                                   "/////////////////////\n"
                                                   "\n"
                                                   "name \"layer         P\"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"ayer         Pl\"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"yer         Pla\"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"er         Play\"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"r         Playe\"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"         Player\"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"        Player \"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"       Player  \"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"      Player   \"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"     Player    \"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"    Player     \"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"   Player      \"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"  Player       \"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \" Player        \"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"Player         \"\n"
                                                   "wait;wait;wait;wait;wait\n"
                                                   "name \"Player\"\n"));
}

TEST_F(StandardAliases, AnOlderScriptOfTheNameScrollIsReplaced) {
    system.Disk.AddFile(kScrollPath, "old");
    AddEntry(1);
    EXPECT_EQ(system.Disk.Bytes(kScrollPath).find("old"), Text::npos);
}

TEST_F(StandardAliases, TheScriptLiesInTheGamesOwnDirectoryWithoutAnother) {
    run.CurrentGameDir.clear();
    AddEntry(1);
    EXPECT_NE(system.Disk.Bytes("C:\\GAME\\nsrl_666.qs"), "(none)");
}

TEST_F(StandardAliases, AreNotMadeWhereTheScriptCannotBeWritten) {
    system.Disk.Refused["c:\\game\\id1\\nsrl_666.qs"] = MakeError(61);
    user.Expect({.Title = "Error Writing to File",
                 .Text_ = "The alias was not created.\r\n Error Number = 61\r\nError String = Disk full",
                 .Whole = true,
                 .Buttons = "&OK"});
    AddEntry(1);
    EXPECT_TRUE(form.Document.AliasTable.empty());
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(StandardAliases, AnExistingAliasIsOverwrittenIfTheUserAgrees) {
    OpenAndFill("alias rl_jump_1 \"wait\"\nbind a rl_jump_1\n");
    form.Document.cl_pitchspeed_Cbo.ListIndex = -1;
    WillBeAsked("rl_jump_1", 0);
    AddEntry(0);
    EXPECT_EQ(Body("rl_jump_1"), Join(kRocketJump, "100"));
    EXPECT_EQ(form.Alias_Lst.Items, (std::vector<Text>{Join(" [X] rl_jump_1               ", kRocketJump, "100")}));
    EXPECT_EQ(Command(1), "rl_jump_1");
}

TEST_F(StandardAliases, AnExistingAliasIsKeptIfTheUserSaysNo) {
    OpenAndFill("alias n_scroll_1 \"wait\"\n");
    WillBeAsked("n_scroll_1", 1);
    AddEntry(1);
    EXPECT_EQ(Body("n_scroll_1"), "wait");
    EXPECT_EQ(system.Disk.Bytes(kScrollPath), "(none)");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(StandardAliases, AMissingListEntryIsToldAndMadeGood) {
    OpenAndFill("alias rl_jump_1 \"wait\"\n");
    form.Alias_Lst.Clear();
    WillBeAsked("rl_jump_1", 0);
    user.Expect({.Title = "Non-Critical Error",
                 .Text_ = "Could not find original alias in the Alias List.",
                 .Whole = true,
                 .Buttons = "&OK"});
    AddEntry(0);
    EXPECT_EQ(form.Alias_Lst.Items.size(), 1U);
    EXPECT_NE(Body("rl_jump_1"), "wait");
}

TEST_F(StandardAliases, BehindTheListThereAreNone) {
    EXPECT_EQ(StandardAliasName(2), "");
    EXPECT_EQ(StandardAliasBody(form.Document, 2), "");
    EXPECT_TRUE(WriteStandardAliasFiles(form, 2));
}

TEST_F(StandardAliases, TheScriptReplacesALinkOfItsName) {
    system.Disk.AddFile("C:\\HOME\\.bashrc", "mine");
    system.Disk.AddFileLink(kScrollPath, "C:\\HOME\\.bashrc");
    AddEntry(1);
    EXPECT_EQ(system.Disk.Bytes("C:\\HOME\\.bashrc"), "mine");
    EXPECT_NE(system.Disk.Bytes(kScrollPath), "mine");
}

}  // namespace
}  // namespace lv
