#include "catalogs/editors/choose_script.h"

#include "foundation/browse.h"
#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

using ChooseScript = EditorsTest;

TEST_F(ChooseScript, HasItsCaptions) {
    const ChooseScript_Frm form(run, "");
    EXPECT_EQ(form.Caption, "Choose Script");
    EXPECT_EQ(form.Label2.Caption, "Script File Name");
    EXPECT_EQ(form.Browse_Cmd.Caption, "&Browse");
}

TEST_F(ChooseScript, NoNameIsRefused) {
    ChooseScript_Frm form(run, "");
    form.ScriptPath_Txt.Text = "  ";
    ExpectFault(form, ChooseScript_OK_Cmd_Click, "ScriptPath_Txt", "No script name was entered.");
}

TEST_F(ChooseScript, GivesTheNameBack) {
    ChooseScript_Frm form(run, "");
    form.ScriptPath_Txt.Text = " my.cfg ";
    ChooseScript_OK_Cmd_Click(form);
    EXPECT_EQ(form.LastEntry, "my.cfg");
    EXPECT_TRUE(form.DialogResult);
    EXPECT_TRUE(form.Closed);
}

TEST_F(ChooseScript, BrowsesWithTheGamesFilter) {
    const std::vector<std::pair<Game, const char*>> rows = {
        {Game::Quake, "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*"},
        {Game::Hexen2, "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*"},
        {Game::Quake2, "Quake2 Scripts (*.cfg, *.q2s)|*.cfg;*.q2s|All Files (*.*)|*.*"},
        {Game::Unreal, "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*"},
        {Game::Sin, "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*"},
        {Game::Heretic2, "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*"},
        {Game::HalfLife, "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*"},
        {Game::None, "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*"},
    };
    for (const auto& [kind, filter] : rows) {
        run.GameKind = kind;
        ChooseScript_Frm form(run, "C:\\QUAKE\\ID1\\");
        user.FileAnswers.push_back(std::optional<Text>("C:\\QUAKE\\ID1\\A.CFG"));
        ChooseScript_Browse_Cmd_Click(form);
        EXPECT_EQ(user.FileRequests.back().Filter, filter);
        EXPECT_EQ(user.FileRequests.back().InitialDirectory, "C:\\QUAKE\\ID1\\");
    }
}

TEST_F(ChooseScript, AScriptOfTheDirectoryGoesByItsNameAsTheGameLooksForIt) {
    ChooseScript_Frm form(run, "C:\\QUAKE\\ID1\\");
    user.FileAnswers.push_back(std::optional<Text>("c:\\quake\\ID1\\A.CFG"));
    ChooseScript_Browse_Cmd_Click(form);
    EXPECT_EQ(form.ScriptPath_Txt.Text, "A.CFG");
}

TEST_F(ChooseScript, TakesAPathOfTheSystemsOwn) {
    system.Disk.Home = "C:\\QUAKE";
    for (const auto& [typed, entry] : std::vector<std::pair<const char*, const char*>>{
             {"~/ID1/a.cfg", "a.cfg"}, {"~/CTF/a.cfg", "C:\\QUAKE\\CTF\\a.cfg"}, {" b.cfg ", "b.cfg"}}) {
        ChooseScript_Frm form(run, "C:\\QUAKE\\ID1\\");
        form.ScriptPath_Txt.Text = typed;
        ChooseScript_OK_Cmd_Click(form);
        EXPECT_EQ(form.LastEntry, entry);
    }
}

TEST_F(ChooseScript, AScriptFromElsewhereKeepsItsPath) {
    ChooseScript_Frm form(run, "C:\\QUAKE\\ID1\\");
    user.FileAnswers.push_back(std::optional<Text>("C:\\QUAKE\\CTF\\A.CFG"));
    ChooseScript_Browse_Cmd_Click(form);
    EXPECT_EQ(form.ScriptPath_Txt.Text, "C:\\QUAKE\\CTF\\A.CFG");
}

TEST_F(ChooseScript, ACancelledFileDialogLeavesTheName) {
    ChooseScript_Frm form(run, "C:\\QUAKE\\ID1\\");
    form.ScriptPath_Txt.Text = "a.cfg";
    user.FileAnswers.push_back(std::optional<Text>());
    ChooseScript_Browse_Cmd_Click(form);
    user.FileAnswers.push_back(Error{kDialogCancelled, "cancel"});
    ChooseScript_Browse_Cmd_Click(form);
    EXPECT_EQ(form.ScriptPath_Txt.Text, "a.cfg");
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(ChooseScript, AFileDialogThatFailsIsTold) {
    ChooseScript_Frm form(run, "C:\\QUAKE\\ID1\\");
    user.FileAnswers.push_back(Error{76, "Path not found"});
    user.Expect({"A Windows Related Error Occured", "Error Number = 76\r\nError String = Path not found"});
    ChooseScript_Browse_Cmd_Click(form);
    EXPECT_EQ(form.ScriptPath_Txt.Text, "");
}

}  // namespace lv
