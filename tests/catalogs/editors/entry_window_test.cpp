#include "catalogs/editors/entry_window.h"

#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

using EntryWindows = EditorsTest;

TEST_F(EntryWindows, BeginWithOkAsTheDefaultButton) {
    const EntryWindow form(run, "AddExe_Frm", EntryMode::Add);
    EXPECT_EQ(form.Name, "AddExe_Frm");
    EXPECT_EQ(form.OK_Cmd.Caption, "&OK");
    EXPECT_TRUE(form.OK_Cmd.Default);
    EXPECT_EQ(form.Cancel_Cmd.Caption, "&Cancel");
}

TEST_F(EntryWindows, TheModesHaveTheirNumbers) {
    EXPECT_EQ(static_cast<int>(EntryMode::Add), 0);
    EXPECT_EQ(static_cast<int>(EntryMode::Edit), 1);
    EXPECT_EQ(static_cast<int>(EntryMode::New), 2);
}

TEST_F(EntryWindows, CancelClosesWithoutAResult) {
    EntryWindow form(run, "AddExe_Frm", EntryMode::Add);
    Entry_Cancel_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_FALSE(form.DialogResult);
}

TEST_F(EntryWindows, AFaultPutsTheFocusInItsField) {
    EntryWindow form(run, "AddExe_Frm", EntryMode::Add);
    ExpectTold("Wrong.", "Oh");
    TellFault(form, "Title_Txt", "Wrong.", "Oh");
    EXPECT_EQ(form.Focus, "Title_Txt");
    EXPECT_FALSE(form.Closed);
}

TEST_F(EntryWindows, AnEntryIsConfirmedAndTheWindowCloses) {
    EntryWindow form(run, "AddExe_Frm", EntryMode::Add);
    ExpectConfirmed("Quake now references C:\\QUAKE.EXE");
    ConfirmEntry(form, "Quake", "C:\\QUAKE.EXE");
    EXPECT_TRUE(form.Closed);
    EXPECT_TRUE(form.DialogResult);
}

TEST_F(EntryWindows, SuspendAlwaysOnTopForTheirTime) {
    run.MainFormLoaded = true;
    run.Topmost.AlwaysOnTop = true;
    run.Topmost.InBand = true;
    bool inBand = true;
    user.In<EntryWindow>([&](EntryWindow&) { inBand = run.Topmost.InBand; });
    EntryWindow form(run, "AddExe_Frm", EntryMode::Add);
    ShowModal(form);
    EXPECT_FALSE(inBand);
    EXPECT_TRUE(run.Topmost.InBand);
}

}  // namespace lv
