#include "foundry/editor/rescued_edits.h"

#include "foundation/field_strings.h"
#include "foundry/document/bindings.h"
#include "foundry/editor/settings_pages.h"
#include "foundry/editor/setup_foundry.h"
#include "foundry/foundry.h"
#include "foundry/writing/compose_script.h"
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
        form.History = {};
        ASSERT_TRUE(OpenScript(run, form.Document, form, kEditedScript));
    }
    void TakeUp() {
        ExpectOffer(0);
        ASSERT_EQ(OfferRescuedEdits(form), true);
        Fig_Frm_Load(form);
        ASSERT_TRUE(TakeUpRescuedEdits(form));
    }
    /// The end of the session, and the next one, in which the edits are wanted.
    void EndAndTakeUp() {
        form.Document.ScriptClean = false;
        RescueEdits(form);
        OpenAgain();
        TakeUp();
    }
    Text Written() { return ComposeScript(form.Document, system.Time.Now()); }
    std::vector<Text> SectionNames() {
        std::vector<Text> names;
        for (const ScriptSection& section : form.Document.Sections) {
            names.push_back(section.Name);
        }
        return names;
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
    TakeUp();
    EXPECT_EQ(form.Document.Name_Txt.Text, "Me");
}

TEST_F(RescuedEdits, StandAmongTheUsersDataWhereTheScriptsDirectoryTakesNone) {
    system.Places.IsData = "C:\\HOME\\share";
    system.Disk.AddDirectory("C:\\HOME\\share\\lorvane3d");
    system.Disk.AddFile(BesideProgram(), "name \"Older\"\n");
    OpenAndLoad();
    Change();
    system.Disk.Refused[LowerCase(RescuePathOf(kEditedScript))] = MakeError(error::kPermissionDenied);
    EXPECT_EQ(RescueEdits(form).Number, 0);
    const Text kept = Join("C:\\HOME\\share\\lorvane3d\\", LastPathPart(RescuePathOf(kEditedScript)));
    EXPECT_EQ(CountLines(system.Disk.Bytes(kept), "name \"Me\""), 1);
    EXPECT_FALSE(system.Disk.FileExists(BesideProgram()));
    OpenAgain();
    TakeUp();
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
    TakeUp();
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
    TakeUp();
    EXPECT_EQ(form.Document.BackupDue, kEditedScript);
}

TEST_F(RescuedEdits, AreTakenBackToTheScriptOnDisk) {
    OpenAndLoad(kQuakeDialect, "bind w +forward\nalias a \"wait\"\nfov 97\nbind x \"say hi\"\nr_x 1\n");
    const Text onDisk = Written();
    BindKey(form.Document, form, 1, 102);
    UnbindKey(form.Document, form, KeyFromName("x"));
    AddAlias(form.Document, "b", "wait");
    TypeIntoList(form, form.Document.fov_Cbo, "98");
    form.Document.Sections[0].Text = "r_x 2\r\nr_y 3";
    Change();
    const Text edited = Written();
    ASSERT_NE(edited, onDisk);
    EndAndTakeUp();
    EXPECT_EQ(Written(), edited);
    EXPECT_EQ(form.Alias_Lst.Items.size(), 2U);
    EXPECT_TRUE(form.Undo_Cmd.Enabled);
    EXPECT_FALSE(form.Redo_Cmd.Enabled);

    Undo_Cmd_Click(form);
    EXPECT_EQ(Written(), onDisk);
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_FALSE(form.Undo_Cmd.Enabled);
    EXPECT_EQ(form.Alias_Lst.Items.size(), 1U);
    EXPECT_EQ(Keys(102), "");
    EXPECT_EQ(KeyColor(1), kWhite);
    EXPECT_NE(KeyColor(KeyFromName("x")), kWhite);

    Redo_Cmd_Click(form);
    EXPECT_EQ(Written(), edited);
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_EQ(Keys(102), "{A}");
    EXPECT_NE(KeyColor(1), kWhite);
}

TEST_F(RescuedEdits, OfSectionsThatTheScriptOnDiskHasNotAreTakenBack) {
    using Names = std::vector<Text>;
    OpenAndLoad(kUnrealDialect, "[Core]\nx=1\n[Engine.Engine]\ny=2\n");
    const Text onDisk = Written();
    form.Document.Sections[0].Text = "x=1\r\n[New]\r\nz=3";
    EndAndTakeUp();
    const Text edited = Written();
    EXPECT_EQ(SectionNames(), (Names{"[Core]", "[New]", "[Engine.Engine]"}));
    form.Document.Section_Cbo.ListIndex = 2;

    Undo_Cmd_Click(form);
    EXPECT_EQ(SectionNames(), (Names{"[Core]", "[Engine.Engine]"}));
    EXPECT_EQ(form.Document.Section_Cbo.Items, (Names{"[Core]", "[Engine.Engine]"}));
    EXPECT_EQ(form.Document.Section_Cbo.ListIndex, 0);
    EXPECT_EQ(Written(), onDisk);
    EXPECT_TRUE(form.Document.ScriptClean);

    Redo_Cmd_Click(form);
    EXPECT_EQ(form.Document.Section_Cbo.Items, (Names{"[Core]", "[New]", "[Engine.Engine]"}));
    EXPECT_EQ(Written(), edited);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(RescuedEdits, AreNoPartOfWhatIsTypedBehindThem) {
    OpenAndLoad();
    Change();
    EndAndTakeUp();
    for (const char* typed : {"Me!", "Me!?"}) {
        form.Document.Name_Txt.Text = typed;
        Edited(form);
        NoteEdit(form);
    }
    Undo_Cmd_Click(form);
    EXPECT_EQ(form.Document.Name_Txt.Text, "Me");
    EXPECT_FALSE(form.Document.ScriptClean);
    Undo_Cmd_Click(form);
    EXPECT_EQ(form.Document.Name_Txt.Text, "");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(RescuedEdits, ThatAreWhatTheScriptOnDiskSaysAreNone) {
    OpenAndLoad(kQuakeDialect, "bind w +forward\n");
    ExpectSuccess();
    View_Cmd_Click(form, 6);  // from here on it says all that a script of the program's says
    EndAndTakeUp();
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_FALSE(form.Undo_Cmd.Enabled);
}

TEST_F(RescuedEdits, ThatCannotBeReadLeaveTheScriptAsItIsOnDisk) {
    OpenAndLoad(kQuakeDialect, "bind w +forward\nalias a \"wait\"\n");
    Change();
    RescueEdits(form);
    system.Disk.AddFile(RescuePathOf(kEditedScript), TextView("\xFF\xFE", 2));
    OpenAgain();
    ExpectOffer(0);
    EXPECT_EQ(OfferRescuedEdits(form), true);
    Fig_Frm_Load(form);
    user.Expect({.Title = "Script Not Opened", .Text_ = "Error Number = 75", .Buttons = "&OK"});
    EXPECT_TRUE(TakeUpRescuedEdits(form));
    EXPECT_EQ(form.Document.Name_Txt.Text, "");
    EXPECT_EQ(Keys(101), "{W}");
    EXPECT_EQ(form.Alias_Lst.Items.size(), 1U);
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_FALSE(form.Undo_Cmd.Enabled);
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
        Undo_Cmd_Click(shown);
        EXPECT_EQ(shown.Document.Name_Txt.Text, "");
        EXPECT_TRUE(shown.Document.ScriptClean);
        Fig_Frm_Unload(shown);
    });
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(system.Disk.FileExists(RescuePathOf(path)));
}

}  // namespace
}  // namespace lv
