#include "foundry/editor/rescued_edits.h"

#include "foundation/field_strings.h"
#include "foundry/editor/setup_foundry.h"
#include "foundry/foundry.h"
#include "launcher/window/window_life.h"
#include "tests/foundry/editor/lifecycle_fixture.h"

namespace lv {
namespace {

constexpr TextView kTitle = "Setup Foundry";
constexpr TextView kOffer =
    "There are edits of C:\\GAME\\ID1\\my.cfg that were not saved: the session ended first.\r\n\r\n"
    "Take them up and go on, or drop them for good?";

class RescuedEdits : public Lifecycle {
  protected:
    RescuedEdits() {
        run.AppDirectory = "C:\\PROGRAM";
        system.Disk.AddDirectory("C:\\PROGRAM");
    }

    Text Kept() { return system.Disk.Bytes(RescuePathOf(kEditedScript)); }
    bool IsKept() { return system.Disk.FileExists(RescuePathOf(kEditedScript)); }
    Text BesideProgram() { return Join("C:\\PROGRAM\\", LastPathPart(RescuePathOf(kEditedScript))); }
    void ExpectOffer(int answer) {
        user.Expect({Text(kTitle), Text(kOffer), answer, false, true, "&Take Them Up,&Drop Them"});
    }
    /// The program's next run: the script is read anew.
    void OpenAgain() {
        form.Loaded = false;
        ASSERT_TRUE(OpenScript(run, form.Document, form, kEditedScript));
    }
};

TEST_F(RescuedEdits, AreWrittenBesideTheScriptAndNotOverIt) {
    OpenAndLoad(kQuakeDialect, "bind w +forward\n");
    const Text before = system.Disk.Bytes(kEditedScript);
    Change();
    EXPECT_EQ(RescueEdits(form).Number, 0);
    EXPECT_EQ(CountLines(Kept(), "name \"Me\""), 1);
    EXPECT_EQ(CountLines(Kept(), "bind \"w\"             \"+forward\""), 1);
    EXPECT_EQ(system.Disk.Bytes(kEditedScript), before);
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_TRUE(RescuePathOf(kEditedScript).starts_with("C:\\GAME\\ID1\\SetupFoundry_Rescue_"));
}

TEST_F(RescuedEdits, OfACleanScriptAreNone) {
    OpenAndLoad();
    RescueEdits(form);
    EXPECT_FALSE(IsKept());
}

TEST_F(RescuedEdits, OfAWindowThatIsNotLoadedYetAreNone) {
    Open(kQuakeDialect);
    form.Document.ScriptClean = false;
    RescueEdits(form);
    EXPECT_FALSE(IsKept());
}

TEST_F(RescuedEdits, GoBesideTheProgramWhereTheScriptsDirectoryTakesNone) {
    OpenAndLoad();
    Change();
    system.Disk.Refused[LowerCase(RescuePathOf(kEditedScript))] = MakeError(error::kPermissionDenied);
    EXPECT_EQ(RescueEdits(form).Number, 0);
    EXPECT_EQ(CountLines(system.Disk.Bytes(BesideProgram()), "name \"Me\""), 1);
    OpenAgain();
    ExpectOffer(0);
    EXPECT_EQ(OfferRescuedEdits(form), true);
    EXPECT_EQ(form.Document.Name_Txt.Text, "Me");
}

TEST_F(RescuedEdits, AreFoundInWhateverLetterCaseTheScriptIsNamed) {
    EXPECT_TRUE(SameText(RescuePathOf("C:\\GAME\\ID1\\MY.CFG"), RescuePathOf("c:\\game\\id1\\my.cfg")));
    EXPECT_FALSE(SameText(RescuePathOf("C:\\GAME\\ID1\\MY.CFG"), RescuePathOf("C:\\GAME\\ID1\\MY2.CFG")));
}

TEST_F(RescuedEdits, ThatAreTakenUpAreUnsavedEditsOfTheScript) {
    OpenAndLoad(kQuakeDialect, "bind w +forward\n");
    Change();
    RescueEdits(form);
    OpenAgain();
    EXPECT_EQ(form.Document.Name_Txt.Text, "");
    ExpectOffer(0);
    EXPECT_EQ(OfferRescuedEdits(form), true);
    Fig_Frm_Load(form);
    MarkRescued(form);
    EXPECT_EQ(form.Document.Name_Txt.Text, "Me");
    EXPECT_EQ(form.Document.CurrentScriptPath, kEditedScript);
    EXPECT_EQ(form.Document.CurrentScriptDirectory, "C:\\GAME\\ID1\\");
    EXPECT_EQ(form.Caption, "Setup Foundry - [C:/GAME/ID1/my.cfg]");
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_TRUE(IsKept());
}

TEST_F(RescuedEdits, ThatAreDroppedAreGone) {
    OpenAndLoad();
    Change();
    RescueEdits(form);
    OpenAgain();
    ExpectOffer(1);
    EXPECT_EQ(OfferRescuedEdits(form), false);
    EXPECT_EQ(form.Document.Name_Txt.Text, "");
    EXPECT_FALSE(IsKept());
    EXPECT_EQ(OfferRescuedEdits(form), false);
}

TEST_F(RescuedEdits, AreGoneOnceTheScriptIsSaved) {
    OpenAndLoad();
    Change();
    RescueEdits(form);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_FALSE(IsKept());
}

TEST_F(RescuedEdits, StayWhenTheSaveFails) {
    OpenAndLoad();
    Change();
    RescueEdits(form);
    RefuseWrites();
    ExpectFailure();
    View_Cmd_Click(form, 6);
    EXPECT_TRUE(IsKept());
}

TEST_F(RescuedEdits, AreGoneOnceTheWindowIsLeftWithoutThem) {
    OpenAndLoad();
    Change();
    RescueEdits(form);
    UnloadSF_Cmd_Click(form);
    EXPECT_FALSE(IsKept());
}

TEST_F(RescuedEdits, StayWhenTheProgramEndsOverTheWindow) {
    OpenAndLoad();
    Change();
    RescueEdits(form);
    run.Ended = true;
    UnloadSF_Cmd_Click(form);
    EXPECT_TRUE(IsKept());
}

TEST_F(RescuedEdits, OfAForeignScriptWithoutACopyDoNotUnlockIt) {
    OpenAndLoad();
    Change();
    RescueEdits(form);
    OpenAgain();
    form.Document.BackupDue = kEditedScript;
    ExpectOffer(0);
    EXPECT_EQ(OfferRescuedEdits(form), true);
    EXPECT_EQ(form.Document.BackupDue, kEditedScript);
}

TEST_F(RescuedEdits, AreKeptByTheEndOfTheSessionAndOfferedByTheNextOpening) {
    AddGames();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\MY.CFG", Crlf("//* Setup Foundry   *//\nbind w +forward\n"));
    SetupFoundry foundry(launcher);
    ConnectEditor(foundry);
    Load();
    const Text path = "c:\\quake\\id1\\my.cfg";
    user.In<Fig_Frm>([&](Fig_Frm& shown) {
        shown.Document.Name_Txt.Text = "Me";
        Edited(shown);
        SessionEnds(launcher);
    });
    SetupFoundry_Bar_Click(foundry);
    EXPECT_TRUE(run.Ended);
    EXPECT_TRUE(system.Disk.FileExists(RescuePathOf(path)));
    run.Ended = false;
    run.MainFormLoaded = true;
    user.Expect({Text(kTitle),
                 "There are edits of c:\\quake\\id1\\my.cfg that were not saved: the session ended first.\r\n\r\n"
                 "Take them up and go on, or drop them for good?",
                 0, false, true, "&Take Them Up,&Drop Them"});
    user.In<Fig_Frm>([](Fig_Frm& shown) {
        EXPECT_EQ(shown.Document.Name_Txt.Text, "Me");
        EXPECT_EQ(shown.Document.Setting_Lbl[101].Caption, "{W}");
        EXPECT_FALSE(shown.Document.ScriptClean);
        shown.Document.ScriptClean = true;
        Fig_Frm_Unload(shown);
    });
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(system.Disk.FileExists(RescuePathOf(path)));
}

}  // namespace
}  // namespace lv
