#include "foundry/editor/script_looks.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundry/document/bindings.h"
#include "foundry/look/changes_frm.h"
#include "foundry/look/file_order_frm.h"
#include "foundry/look/script_check_frm.h"
#include "foundry/look/versions_frm.h"
#include "foundry/reading/open_script.h"
#include "tests/foundry/editor/lifecycle_fixture.h"

namespace lv {

class ScriptLooks : public Lifecycle {
  protected:
    void BringBackFirst() {
        user.In<Versions_Frm>([](Versions_Frm& versions) { Versions_BringBack_Cmd_Click(versions); });
        Versions_Cmd_Click(form);
    }
};

TEST_F(ScriptLooks, AVersionThatIsBroughtBackIsEditedThen) {
    OpenAndLoad(kQuakeDialect, "bind x +attack\nalias mine \"impulse 7\"\n");
    Change();
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    ASSERT_EQ(form.Document.Name_Txt.Text, "Me");
    BringBackFirst();
    EXPECT_NE(form.Document.Name_Txt.Text, "Me");
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_EQ(Command(KeyFromName("x")), "+attack");
    ASSERT_EQ(form.Alias_Lst.Items.size(), 1u);
    EXPECT_FALSE(IsWritten("name \"Me\""));
}

TEST_F(ScriptLooks, ThatCanBeUndone) {
    OpenAndLoad();
    Change();
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    BringBackFirst();
    Undo_Cmd_Click(form);
    EXPECT_EQ(form.Document.Name_Txt.Text, "Me");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(ScriptLooks, WithoutAVersionTheScriptStays) {
    OpenAndLoad(kQuakeDialect, "bind x +attack\n");
    Change();
    user.Expect({"Setup Foundry", "There is no older version of this script yet."});
    Versions_Cmd_Click(form);
    EXPECT_EQ(form.Document.Name_Txt.Text, "Me");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(ScriptLooks, WhichFileWinsIsThatOfALaunchWithTheScriptAsItIsEdited) {
    OpenAndLoad(kQuakeDialect, "bind x +attack\n");
    run.DefaultGameDirectory = Text(DirectoryOf(DirectoryOf(Text(kEditedScript))));
    run.BaseGameDir = LastPathPart(DirectoryOf(Text(kEditedScript)));
    run.CurrentGameDir = run.BaseGameDir;
    Change();
    const Text launchScript = Join(DirectoryOf(Text(kEditedScript)), "\\lv_666.qs");
    form.StartOfLaunch = [&](const GivenScript& edited) {
        StartRequest request;
        request.Commands = {"exec lv_666.qs"};
        request.Given = {edited, {launchScript, Join("exec ", LastPathPart(kEditedScript), "\r\n"), true}};
        return request;
    };
    user.In<FileOrder_Frm>([](FileOrder_Frm& order) {
        EXPECT_FALSE(order.Note_Lbl.Visible);
        order.Wanted_Txt.Text = "name";
        FileOrder_Wanted_Txt_Change(order);
        ASSERT_FALSE(order.Set_Lst.Items.empty());
        EXPECT_TRUE(order.Set_Lst.Items[0].starts_with("setting name   \"Me\"   ")) << order.Set_Lst.Items[0];
        FileOrder_Close_Cmd_Click(order);
    });
    FileOrder_Cmd_Click(form);
}

TEST_F(ScriptLooks, AScriptThatTheLaunchLeavesOutIsStillCheckedAndThatIsSaid) {
    OpenAndLoad(kQuakeDialect, "bind x +attack\n");
    run.DefaultGameDirectory = Text(DirectoryOf(DirectoryOf(Text(kEditedScript))));
    run.BaseGameDir = LastPathPart(DirectoryOf(Text(kEditedScript)));
    run.CurrentGameDir = run.BaseGameDir;
    user.In<ScriptCheck_Frm>([](ScriptCheck_Frm& check) {
        EXPECT_TRUE(check.Note_Lbl.Visible);
        EXPECT_EQ(check.Request.Commands.size(), 1u);
        ScriptCheck_Close_Cmd_Click(check);
    });
    ScriptCheck_Cmd_Click(form);
}

class SaveLooks : public Lifecycle {
  protected:
    /// A script that this program has not written, with a bind that the editor cannot hold.
    void OpenForeign(TextView script = "bind ESCAPE togglemenu\r\nbind x +attack\r\n") {
        run.GameKind = Game::Quake;
        run.ScriptFamily = Dialect::Quake;
        run.DefaultGameDirectory = "C:\\GAME";
        run.BaseGameDir = "ID1";
        run.CurrentGameDir = "ID1";
        SwitchMessageOff("BackupScript");
        system.Disk.AddFile(Text(kEditedScript), script);
        ASSERT_TRUE(OpenScript(run, form.Document, form, kEditedScript));
        Fig_Frm_Load(form);
        system.Disk.Log.clear();  // of the copy of a foreign script
    }
    void SwitchMessageOff(TextView message) { Save(run, "ShowMessage", message, "0"); }
    void AnswerLook(void (*click)(Changes_Frm&)) { user.In<Changes_Frm>(click); }
};

TEST_F(SaveLooks, ASaveThatWouldLoseSomethingIsShownFirst) {
    OpenForeign();
    user.In<Changes_Frm>([](Changes_Frm& changes) {
        EXPECT_EQ(changes.Losses_Lbl.Caption.find("For the game this save loses or changes "), 0u);
        EXPECT_TRUE(changes.Keep_Cmd.Default);
        ASSERT_FALSE(changes.Losses_Lst.Items.empty());
        EXPECT_EQ(changes.Losses_Lst.Items[0], "The key ESCAPE loses \"togglemenu\". Setup Foundry has no key ESCAPE.");
        Changes_Close_Cmd_Click(changes);
    });
    View_Cmd_Click(form, 6);
    EXPECT_EQ(Saves(), 0);
    EXPECT_FALSE(form.Closed);
}

TEST_F(SaveLooks, WhatIsKeptIsSavedToTheLetterAndNothingIsLostThen) {
    OpenForeign();
    AnswerLook(Changes_Keep_Cmd_Click);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_TRUE(system.Disk.Bytes(kEditedScript).find("bind ESCAPE togglemenu") != Text::npos);
    Change();
    ExpectSuccess();
    View_Cmd_Click(form, 6);  // no window: nothing is lost
    EXPECT_EQ(Saves(), 2);
}

TEST_F(SaveLooks, SaveAnywaySavesAsItAlwaysDid) {
    OpenForeign();
    AnswerLook(Changes_Save_Cmd_Click);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_EQ(Saves(), 1);
    EXPECT_EQ(system.Disk.Bytes(kEditedScript).find("togglemenu"), Text::npos);
}

TEST_F(SaveLooks, AScriptOfThisProgramIsSavedWithoutAWord) {
    OpenAndLoad(kQuakeDialect, "");
    Change();
    ExpectSuccess();
    View_Cmd_Click(form, 6);  // a new one
    Bind(form.Document, KeyFromName("x"), "+attack");
    Edited(form);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_EQ(Saves(), 2);
}

TEST_F(SaveLooks, AScriptOfThisProgramThatLosesNothingIsSavedWithoutAWord) {
    OpenAndLoad(kQuakeDialect, "bind x +attack\n");
    Change();
    ExpectSuccess();
    View_Cmd_Click(form, 6);  // it gets settings more
    EXPECT_EQ(Saves(), 1);
}

TEST_F(SaveLooks, WhatComesToAnothersScriptUnaskedIsShownOnce) {
    OpenForeign("bind x +attack\r\n");
    user.In<Changes_Frm>([](Changes_Frm& changes) {
        const std::vector<Text>& rows = changes.Losses_Lst.Items;
        EXPECT_NE(std::ranges::find(rows,
                                    "The setting name gets \"\", and the file leaves it alone. Setup Foundry writes it "
                                    "into each script."),
                  rows.end());
        Changes_Keep_Cmd_Click(changes);
    });
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    ASSERT_TRUE(OpenScript(run, form.Document, form, kEditedScript));
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_EQ(Saves(), 2);
}

TEST_F(SaveLooks, ASaveIsLookedAtAsTheEngineThatIsPickedTakesIt) {
    Engine darkPlaces;
    darkPlaces.Name = "DarkPlaces";
    darkPlaces.Programs = {"darkplaces"};
    const EngineTable engines{{darkPlaces}, {}};
    OpenAndLoad(kQuakeDialect, "");
    Change();
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    const Text known = system.Disk.Bytes(kEditedScript);
    // DarkPlaces knows the command, and the letter case of what it removes. The game itself has none of it.
    const Text script = Join("alias Rocket \"impulse 7\"\r\nunalias Rocket\r\n", known);
    for (const bool isPicked : {false, true}) {
        system.Disk.AddFile(Text(kEditedScript), script);
        ASSERT_TRUE(OpenScript(run, form.Document, form, kEditedScript));
        if (isPicked) {
            form.Lists.Engines = &engines;
            form.Lists.Exe_Cbo.Items.push_back({"DarkPlaces", "C:\\GAME\\darkplaces", "", ""});
            form.Lists.Exe_Cbo.ListIndex = static_cast<int>(form.Lists.Exe_Cbo.Items.size()) - 1;
            user.In<Changes_Frm>([](Changes_Frm& changes) {
                EXPECT_TRUE(Holds(changes.Losses_Lst.Items[0], "The alias Rocket gets \"impulse 7\" and was removed."));
                Changes_Keep_Cmd_Click(changes);
            });
        }
        ExpectSuccess();
        View_Cmd_Click(form, 6);
    }
    EXPECT_TRUE(IsWritten("unalias \"rocket\""));
}

TEST_F(SaveLooks, WhatSomebodyElseWroteMeanwhileIsShownAndKept) {
    OpenAndLoad(kQuakeDialect, "");
    Change();
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    for (const TextView said : {"say NEW", "say AGAIN"}) {
        const Text known = system.Disk.Bytes(kEditedScript);
        system.Disk.AddFile(Text(kEditedScript), Join(known, "\r\nbind m \"", said, "\"\r\n"));
        user.In<Changes_Frm>([&](Changes_Frm& changes) {
            ASSERT_FALSE(changes.Losses_Lst.Items.empty());
            EXPECT_TRUE(Holds(changes.Losses_Lst.Items[0], said)) << changes.Losses_Lst.Items[0];
            EXPECT_TRUE(Holds(changes.Losses_Lst.Items[0], "The file was changed after Setup Foundry had read it."));
            Changes_Keep_Cmd_Click(changes);
        });
        ExpectSuccess();
        View_Cmd_Click(form, 6);
        EXPECT_TRUE(Holds(system.Disk.Bytes(kEditedScript), Join("bind m \"", said, "\"")));
    }
}

TEST_F(SaveLooks, WhatTheUserChangesIsNoLoss) {
    OpenForeign();
    AnswerLook(Changes_Keep_Cmd_Click);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    UnbindKey(form.Document, form, KeyFromName("x"));
    Edited(form);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_EQ(Saves(), 2);
}

TEST_F(SaveLooks, AnEditThatAKeptLineSetsBackIsShownAndGetsTheLastWord) {
    OpenForeign("name Me\r\nbind x slot2\r\n");
    AnswerLook(Changes_Keep_Cmd_Click);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    ASSERT_TRUE(IsWritten("; bind x slot2"));
    ASSERT_TRUE(OpenScript(run, form.Document, form, kEditedScript));
    Bind(form.Document, KeyFromName("x"), "+jump");
    Edited(form);
    user.In<Changes_Frm>([](Changes_Frm& changes) {
        ASSERT_EQ(changes.Losses_Lst.Items.size(), 1u);
        EXPECT_EQ(changes.Losses_Lbl.Caption,
                  "For the game 1 of your changes comes to nothing. 'Keep These' saves it too:");
        EXPECT_EQ(changes.Losses_Lst.Items[0],
                  "The key x keeps \"slot2\", and the page says \"+jump\". The line ; bind x slot2 of the Free Form "
                  "Additions runs behind those of the pages. 'Keep These' takes it out.");
        Changes_Keep_Cmd_Click(changes);
    });
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_FALSE(Holds(system.Disk.Bytes(kEditedScript), "slot2"));
    EXPECT_TRUE(IsWritten("bind \"x\"             \"+jump\""));
    Change();
    ExpectSuccess();
    View_Cmd_Click(form, 6);  // nobody is asked again
    EXPECT_EQ(Saves(), 3);
}

TEST_F(SaveLooks, ANameThatIsTypedOnceAScriptWithoutOneWasKeptIsTheGamesName) {
    OpenForeign("bind h say hello all\r\nbind x slot2\r\nunbind z\r\n");
    AnswerLook(Changes_Keep_Cmd_Click);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_FALSE(Holds(system.Disk.Bytes(kEditedScript), "; name"));
    ASSERT_TRUE(OpenScript(run, form.Document, form, kEditedScript));
    form.Document.Name_Txt.Text = "Bobby";
    Edited(form);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_EQ(EffectsOf(system.Disk.Bytes(kEditedScript), Console::Quake).Settings.Find("name")->Value, "Bobby");
}

TEST_F(SaveLooks, ACancelledSaveNeitherClosesNorLosesTheEdits) {
    OpenForeign();
    Change();
    form.ExitOnSave_Chk.Value = 1;
    AnswerLook(Changes_Close_Cmd_Click);
    View_Cmd_Click(form, 6);
    EXPECT_FALSE(form.Closed);
    Answer(true, true);
    AnswerLook(Changes_Close_Cmd_Click);
    EXPECT_FALSE(Fig_Frm_Unload(form));
    EXPECT_FALSE(form.Closed);
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_EQ(Saves(), 0);
}

TEST_F(SaveLooks, AnAutoSaveAsksToo) {
    OpenForeign();
    Change();
    form.AutoSaveEnable_Chk.Value = 1;
    form.Minutes_Cbo.ListIndex = 0;
    AnswerLook(Changes_Keep_Cmd_Click);
    Minutes(1);
    EXPECT_EQ(Saves(), 1);
    EXPECT_TRUE(system.Disk.Bytes(kEditedScript).find("togglemenu") != Text::npos);
}

TEST_F(SaveLooks, LookingChangesNothingButWhatIsKept) {
    OpenForeign();
    AnswerLook(Changes_Close_Cmd_Click);
    ShowChanges_Cmd_Click(form);
    EXPECT_TRUE(form.Document.ScriptClean);
    AnswerLook(Changes_Keep_Cmd_Click);
    ShowChanges_Cmd_Click(form);
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_NE(form.Document.Sections[0].Text.find("togglemenu"), Text::npos);
    Undo_Cmd_Click(form);
    EXPECT_EQ(form.Document.Sections[0].Text.find("togglemenu"), Text::npos);
}

}  // namespace lv
