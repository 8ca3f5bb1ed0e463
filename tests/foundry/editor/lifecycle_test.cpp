#include "foundry/editor/lifecycle.h"

#include "tests/foundry/editor/lifecycle_fixture.h"

namespace lv {
namespace {

// Load

TEST_F(Lifecycle, LoadShowsTheFirstPages) {
    Open(kQuakeDialect);
    form.Main_Tab.Tab = 3;
    form.Bindings_Tab.Tab = 2;
    form.Document.Options_Tab.Tab = 1;
    Fig_Frm_Load(form);
    EXPECT_EQ(form.Main_Tab.Tab, 0);
    EXPECT_EQ(form.Bindings_Tab.Tab, 0);
    EXPECT_EQ(form.Document.Options_Tab.Tab, 0);
    EXPECT_EQ(form.Device_Cbo.ListIndex, 0);
    EXPECT_EQ(form.Caption, "Setup Foundry - [C:/GAME/ID1/my.cfg]");
}

TEST_F(Lifecycle, LoadLeavesTheDocumentCleanAndTheTimerOn) {
    Open(kQuakeDialect);
    form.Document.ScriptClean = false;
    Fig_Frm_Load(form);
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_TRUE(form.Save_Tmr_Enabled);
    EXPECT_TRUE(form.Loaded);
    EXPECT_EQ(form.MinutesSinceAutoSave, 0);
}

TEST_F(Lifecycle, AFirstLoadStandsInTheScreensMiddle) {
    form.Measure = [] { return TwipsSize{9000, 6000}; };
    OpenAndLoad();
    EXPECT_EQ(form.Placement.Left, 3000);
    EXPECT_EQ(form.Placement.Top, 4500);
}

TEST_F(Lifecycle, ALoadStandsWhereTheLastOneWasLeft) {
    Save(run, "Fig_Frm", "Top", "900");
    Save(run, "Fig_Frm", "Left", "450");
    Save(run, "Fig_Frm", "WindowState", "2");
    OpenAndLoad();
    EXPECT_EQ(form.Placement.Top, 900);
    EXPECT_EQ(form.Placement.Left, 450);
    EXPECT_EQ(form.Placement.WindowState, kWindowMaximised);
}

TEST_F(Lifecycle, AutoSaveOffersTenIntervals) {
    OpenAndLoad();
    EXPECT_EQ(form.Minutes_Cbo.Items, (std::vector<Text>{"1", "2", "3", "4", "5", "10", "15", "20", "25", "30"}));
}

// Settings

TEST_F(Lifecycle, SettingsThatWereNeverStoredAreOff) {
    OpenAndLoad();
    EXPECT_EQ(form.AutoSaveEnable_Chk.Value, 0);
    EXPECT_EQ(form.Minutes_Cbo.ListIndex, -1);
    EXPECT_EQ(form.AutoSaveWarning_Chk.Value, 0);
    EXPECT_EQ(form.ExitOnSave_Chk.Value, 0);
    EXPECT_EQ(Setting("EnableAutoSave"), "(none)");
}

TEST_F(Lifecycle, StoredSettingsAreShown) {
    Store("EnableAutoSave", "1");
    Store("AutoSaveMinutesIndex", "9");
    Store("AutoSaveWarning", "1");
    Store("ExitOnSave", "1");
    OpenAndLoad();
    EXPECT_EQ(form.AutoSaveEnable_Chk.Value, 1);
    EXPECT_EQ(form.Minutes_Cbo.Selected(), "30");
    EXPECT_EQ(form.AutoSaveWarning_Chk.Value, 1);
    EXPECT_EQ(form.ExitOnSave_Chk.Value, 1);
}

TEST_F(Lifecycle, AStoredBoxThatIsNeither0Nor1IsClear) {
    Store("EnableAutoSave", "2");
    Store("AutoSaveWarning", "-1");
    Store("ExitOnSave", "yes");
    OpenAndLoad();
    EXPECT_EQ(form.AutoSaveEnable_Chk.Value, 0);
    EXPECT_EQ(form.AutoSaveWarning_Chk.Value, 0);
    EXPECT_EQ(form.ExitOnSave_Chk.Value, 0);
}

TEST_F(Lifecycle, AnUnknownStoredIndexIsFiveMinutesWhileAutoSaveIsOn) {
    Store("EnableAutoSave", "1");
    for (const char* index : {"50", "10", "-2"}) {
        Store("AutoSaveMinutesIndex", index);
        OpenAndLoad();
        EXPECT_EQ(form.Minutes_Cbo.ListIndex, 4) << index;
        EXPECT_EQ(form.Minutes_Cbo.Selected(), "5");
    }
}

TEST_F(Lifecycle, AnUnknownStoredIndexIsNoneWhileAutoSaveIsOff) {
    Store("AutoSaveMinutesIndex", "50");
    OpenAndLoad();
    EXPECT_EQ(form.Minutes_Cbo.ListIndex, -1);
}

TEST_F(Lifecycle, AStoredIndexOfNoneStaysNoneWhileAutoSaveIsOn) {
    Store("EnableAutoSave", "1");
    Store("AutoSaveMinutesIndex", "-1");
    OpenAndLoad();
    EXPECT_EQ(form.Minutes_Cbo.ListIndex, -1);
}

TEST_F(Lifecycle, EachClickIsStored) {
    OpenAndLoad();
    form.AutoSaveEnable_Chk.Value = 1;
    AutoSaveEnable_Chk_Click(form);
    form.Minutes_Cbo.ListIndex = 5;
    Minutes_Cbo_Click(form);
    form.AutoSaveWarning_Chk.Value = 1;
    AutoSaveWarning_Chk_Click(form);
    form.ExitOnSave_Chk.Value = 1;
    ExitOnSave_Chk_Click(form);
    EXPECT_EQ(Setting("EnableAutoSave"), "1");
    EXPECT_EQ(Setting("AutoSaveMinutesIndex"), "5");
    EXPECT_EQ(Setting("AutoSaveWarning"), "1");
    EXPECT_EQ(Setting("ExitOnSave"), "1");
    form.ExitOnSave_Chk.Value = 0;
    ExitOnSave_Chk_Click(form);
    EXPECT_EQ(Setting("ExitOnSave"), "0");
    EXPECT_TRUE(form.Document.ScriptClean);
}

// Save

TEST_F(Lifecycle, SaveWritesUnderTheSameNameAndAsksNothing) {
    OpenAndLoad();
    Change();
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_TRUE(IsWritten("name \"Me\""));
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_FALSE(form.Closed);
    EXPECT_TRUE(user.FileRequests.empty());
}

TEST_F(Lifecycle, SaveAsAsksForAFileAndRenewsTheCaption) {
    OpenAndLoad();
    Change();
    user.FileAnswers.emplace_back(Text("C:\\GAME\\ID1\\other.cfg"));
    ExpectSuccess();
    View_Cmd_Click(form, 7);
    EXPECT_TRUE(IsWritten("name \"Me\"", "C:\\GAME\\ID1\\other.cfg"));
    EXPECT_EQ(form.Document.CurrentScriptPath, "C:\\GAME\\ID1\\other.cfg");
    EXPECT_EQ(form.Caption, "Setup Foundry - [C:/GAME/ID1/other.cfg]");
}

TEST_F(Lifecycle, ASaveAsThatIsCancelledChangesNothing) {
    OpenAndLoad();
    Change();
    user.FileAnswers.emplace_back(std::nullopt);
    View_Cmd_Click(form, 7);
    EXPECT_EQ(Saves(), 0);
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_EQ(form.Caption, "Setup Foundry - [C:/GAME/ID1/my.cfg]");
}

TEST_F(Lifecycle, OtherViewButtonsDoNothing) {
    OpenAndLoad();
    form.ExitOnSave_Chk.Value = 1;
    View_Cmd_Click(form, 0);
    View_Cmd_Click(form, 8);
    EXPECT_EQ(Saves(), 0);
    EXPECT_FALSE(form.Closed);
}

TEST_F(Lifecycle, WithExitOnSaveASaveClosesWithNoQuestion) {
    OpenAndLoad();
    Change();
    form.ExitOnSave_Chk.Value = 1;
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_TRUE(form.Closed);
}

TEST_F(Lifecycle, WithExitOnSaveASaveAsClosesToo) {
    OpenAndLoad();
    Change();
    form.ExitOnSave_Chk.Value = 1;
    user.FileAnswers.emplace_back(Text("C:\\GAME\\ID1\\other.cfg"));
    ExpectSuccess();
    View_Cmd_Click(form, 7);
    EXPECT_TRUE(form.Closed);
}

TEST_F(Lifecycle, WithExitOnSaveASaveThatFailedAsks) {
    OpenAndLoad();
    Change();
    form.ExitOnSave_Chk.Value = 1;
    RefuseWrites();
    ExpectFailure();
    Answer(false, false);
    View_Cmd_Click(form, 6);
    EXPECT_FALSE(form.Closed);
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_TRUE(form.Save_Tmr_Enabled);
}

TEST_F(Lifecycle, WithExitOnSaveACancelledSaveAsOfACleanScriptCloses) {
    OpenAndLoad();
    form.ExitOnSave_Chk.Value = 1;
    user.FileAnswers.emplace_back(std::nullopt);
    View_Cmd_Click(form, 7);
    EXPECT_TRUE(form.Closed);
}

// Close

TEST_F(Lifecycle, ClosingWithNoChangeAsksNothing) {
    OpenAndLoad();
    EXPECT_TRUE(Fig_Frm_Unload(form));
    EXPECT_TRUE(form.Closed);
    EXPECT_FALSE(form.Save_Tmr_Enabled);
    EXPECT_FALSE(form.Loaded);
    EXPECT_EQ(Saves(), 0);
}

TEST_F(Lifecycle, ClosingKeepsTheWindowsPlace) {
    OpenAndLoad();
    form.Placement = {450, 900, 6000, 9000, kWindowNormal};
    Fig_Frm_Unload(form);
    EXPECT_EQ(Stored("Fig_Frm", "Top"), "450");
    EXPECT_EQ(Stored("Fig_Frm", "Left"), "900");
    EXPECT_EQ(Stored("Fig_Frm", "WindowState"), "0");
}

TEST_F(Lifecycle, YesClosesWithoutSaving) {
    OpenAndLoad();
    Change();
    user.In<ConfirmExit_Frm>([](ConfirmExit_Frm& box) {
        EXPECT_EQ(box.Caption, "Confirm Exit");
        EXPECT_EQ(box.Label1.Caption, "Changes have not been saved.");
        EXPECT_EQ(box.Label2.Caption, "Exit Anyway?");
        EXPECT_EQ(box.SaveNow_Chk.Caption, "Save Script Now");
        EXPECT_EQ(box.Yes_Cmd.Caption, "&Yes");
        EXPECT_EQ(box.No_Cmd.Caption, "&No");
        ConfirmExit_Yes_Cmd_Click(box);
    });
    EXPECT_TRUE(Fig_Frm_Unload(form));
    EXPECT_TRUE(form.Closed);
    EXPECT_EQ(Saves(), 0);
}

TEST_F(Lifecycle, NoStaysWithoutSaving) {
    OpenAndLoad();
    Change();
    Answer(false, false);
    EXPECT_FALSE(Fig_Frm_Unload(form));
    EXPECT_FALSE(form.Closed);
    EXPECT_TRUE(form.Save_Tmr_Enabled);
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_EQ(Saves(), 0);
    EXPECT_EQ(Stored("Fig_Frm", "Top"), "(none)");
}

TEST_F(Lifecycle, YesWithSaveScriptNowSavesAndCloses) {
    OpenAndLoad();
    Change();
    Answer(true, true);
    ExpectSuccess();
    EXPECT_TRUE(Fig_Frm_Unload(form));
    EXPECT_TRUE(form.Closed);
    EXPECT_TRUE(IsWritten("name \"Me\""));
}

TEST_F(Lifecycle, YesWithSaveScriptNowClosesAlsoWhenTheSaveFailed) {
    OpenAndLoad();
    Change();
    RefuseWrites();
    Answer(true, true);
    ExpectFailure();
    EXPECT_TRUE(Fig_Frm_Unload(form));
    EXPECT_TRUE(form.Closed);
}

TEST_F(Lifecycle, NoWithSaveScriptNowSavesAndStays) {
    OpenAndLoad();
    Change();
    Answer(false, true);
    ExpectSuccess();
    EXPECT_FALSE(Fig_Frm_Unload(form));
    EXPECT_FALSE(form.Closed);
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_TRUE(IsWritten("name \"Me\""));
}

TEST_F(Lifecycle, NoWithSaveScriptNowStaysAlsoWithExitOnSave) {
    OpenAndLoad();
    Change();
    form.ExitOnSave_Chk.Value = 1;
    Answer(false, true);
    ExpectSuccess();
    EXPECT_FALSE(Fig_Frm_Unload(form));
    EXPECT_FALSE(form.Closed);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(Lifecycle, AClosedWindowIsNotAskedAboutAgain) {
    OpenAndLoad();
    Fig_Frm_Unload(form);
    Change();
    EXPECT_TRUE(Fig_Frm_Unload(form));
}

TEST_F(Lifecycle, TheExitButtonSkipsTheQuestion) {
    OpenAndLoad();
    Change();
    UnloadSF_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_EQ(Saves(), 0);
}

TEST_F(Lifecycle, ASaveThatEndsTheProgramClosesTheWindow) {
    OpenAndLoad();
    Change();
    Save(run, kOptions, "Scripts", "A;c:\\q\\a.cfg;B");
    ExpectSuccess();
    user.Expect({"Lorvane 3D", "Lorvane 3D experienced a probable registry error."});
    View_Cmd_Click(form, 6);
    EXPECT_TRUE(run.Ended);
    EXPECT_TRUE(form.Closed);
}

}  // namespace
}  // namespace lv
