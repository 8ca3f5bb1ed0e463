#include "tests/foundry/editor/lifecycle_fixture.h"

namespace lv {
namespace {

class AutoSaving : public Lifecycle {};

TEST_F(AutoSaving, AutoSaveWritesInSilenceWhenItsMinutesAreOver) {
    OpenWithAutoSave(1);
    Change();
    Minutes(1);
    EXPECT_EQ(Saves(), 0);
    Minutes(1);
    EXPECT_EQ(Saves(), 1);
    EXPECT_TRUE(IsWritten("name \"Me\""));
    EXPECT_TRUE(form.Document.ScriptClean);
    EXPECT_FALSE(form.AutoSaveRunning);
    EXPECT_EQ(form.MinutesSinceAutoSave, 0);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(AutoSaving, AutoSaveComesAgainAfterTheSameTime) {
    OpenWithAutoSave(5);
    Minutes(19);
    EXPECT_EQ(Saves(), 1);
    Minutes(1);
    EXPECT_EQ(Saves(), 2);
}

TEST_F(AutoSaving, WithoutMinutesChosenEachMinuteSaves) {
    OpenWithAutoSave(-1);
    Minutes(3);
    EXPECT_EQ(Saves(), 3);
}

TEST_F(AutoSaving, WithAutoSaveOffNothingIsSaved) {
    OpenWithAutoSave(0);
    form.AutoSaveEnable_Chk.Value = 0;
    Minutes(30);
    EXPECT_EQ(Saves(), 0);
    EXPECT_EQ(form.MinutesSinceAutoSave, 30);
}

TEST_F(AutoSaving, AnHourWithAutoSaveOffCountsOnceItIsOnAgain) {
    OpenWithAutoSave(9);
    form.AutoSaveEnable_Chk.Value = 0;
    Minutes(60);
    form.AutoSaveEnable_Chk.Value = 1;
    Minutes(1);
    EXPECT_EQ(Saves(), 1);
}

TEST_F(AutoSaving, TheMinutesAreCountedNoFurtherThanTheirCounter) {
    OpenAndLoad();
    form.MinutesSinceAutoSave = 32766;
    Minutes(3);
    EXPECT_EQ(form.MinutesSinceAutoSave, 32767);
}

TEST_F(AutoSaving, ASaveByHandLeavesTheCounterAlone) {
    OpenWithAutoSave(1);
    Minutes(1);
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_EQ(form.MinutesSinceAutoSave, 1);
    Minutes(1);
    EXPECT_EQ(Saves(), 2);
}

TEST_F(AutoSaving, TheWarningsOKSaves) {
    OpenWithAutoSave(0, true);
    ExpectWarning(0);
    Minutes(1);
    EXPECT_EQ(Saves(), 1);
    EXPECT_EQ(form.MinutesSinceAutoSave, 0);
}

TEST_F(AutoSaving, NoWayBringsTheQuestionBackOneMinuteLater) {
    OpenWithAutoSave(0, true);
    ExpectWarning(1);
    Minutes(1);
    EXPECT_EQ(Saves(), 0);
    EXPECT_EQ(form.MinutesSinceAutoSave, 1);
    ExpectWarning(0);
    Minutes(1);
    EXPECT_EQ(Saves(), 1);
}

TEST_F(AutoSaving, NoWayNagsEachMinuteHoweverLongTheInterval) {
    OpenWithAutoSave(9, true);
    Minutes(29);
    EXPECT_TRUE(user.Asked.empty());
    for (int i = 0; i < 3; ++i) {
        ExpectWarning(1);
        Minutes(1);
    }
    EXPECT_EQ(user.Asked.size(), 3U);
    EXPECT_EQ(form.MinutesSinceAutoSave, 32);
}

TEST_F(AutoSaving, MinutesCountWhileTheWarningIsUpAndItComesOnce) {
    OpenWithAutoSave(0, true);
    ExpectWarning(1);
    user.OnDialog = [this] { Minutes(2); };
    Minutes(1);
    EXPECT_EQ(user.Asked.size(), 1U);
    EXPECT_EQ(form.MinutesSinceAutoSave, 3);
}

TEST_F(AutoSaving, AutoSaveGoesOnWhileAnotherBoxOfTheWindowIsUp) {
    OpenWithAutoSave(0);
    Change();
    user.OnDialog = [this] { Minutes(1); };
    Answer(false, false);
    EXPECT_FALSE(Fig_Frm_Unload(form));
    EXPECT_EQ(Saves(), 1);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(AutoSaving, AnAutoSaveThatFailedTellsWhyAndLosesNothing) {
    OpenWithAutoSave(0);
    Change();
    RefuseWrites();
    ExpectFailure();
    Minutes(1);
    EXPECT_FALSE(form.Document.ScriptClean);
    EXPECT_FALSE(form.AutoSaveRunning);
    EXPECT_EQ(form.MinutesSinceAutoSave, 0);
    RefuseWrites(false);
    Minutes(1);
    EXPECT_TRUE(IsWritten("name \"Me\""));
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(AutoSaving, TheTimerIsDeafBeforeTheLoadAndAfterTheUnload) {
    Open(kQuakeDialect);
    form.AutoSaveEnable_Chk.Value = 1;
    Minutes(1);
    Fig_Frm_Load(form);
    Fig_Frm_Unload(form);
    form.AutoSaveEnable_Chk.Value = 1;
    Minutes(1);
    EXPECT_EQ(Saves(), 0);
    EXPECT_EQ(form.MinutesSinceAutoSave, 0);
}

TEST_F(AutoSaving, ItsTimerComesOnceAMinute) {
    EXPECT_EQ(kSaveTimerMilliseconds, 60000);
}

}  // namespace
}  // namespace lv
