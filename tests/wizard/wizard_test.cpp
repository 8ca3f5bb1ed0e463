#include "wizard/wizard.h"

#include "tests/wizard/wizard_fixture.h"
#include "wizard/setup_completion.h"

namespace lv {

using Wizard = WizardTest;

TEST_F(Wizard, GivesBackWhetherTheUserWentThrough) {
    user.In<Install_Frm>([](Install_Frm& form) { Install_Cancel_Cmd_Click(form); });
    EXPECT_FALSE(ShowInstallWizard(launcher));
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    user.In<Install_Frm>([](Install_Frm& form) {
        Tick(form, kSin);
        form.GamePath_Txt[kSin].Text = "C:\\SIN";
        Install_OK_Cmd_Click(form);
    });
    EXPECT_TRUE(ShowInstallWizard(launcher));
}

TEST_F(Wizard, IsWhatTheLauncherShows) {
    ConnectWizard(launcher);
    user.In<Install_Frm>([](Install_Frm& form) { EXPECT_EQ(form.Game_Chk[kSin].Value, 0); });
    EXPECT_FALSE(launcher.ShowInstallWizard());
}

TEST_F(Wizard, TheScanKnowsWhatTheCatalogKnows) {
    AddGames();
    Load();
    ConnectWizard(launcher);
    user.In<Install_Frm>([](Install_Frm& form) {
        EXPECT_EQ(form.Game_Chk[kQuake].Value, 2);
        EXPECT_EQ(form.GamePath_Txt[kQuake].Text, "C:\\QUAKE");
        EXPECT_EQ(form.Game_Chk[kHexen2].Value, 0);
        EXPECT_EQ(form.Game_Chk[kHalfLife].Value, 2);
    });
    Menu_Click(launcher, MenuItem::ExeAddScan_Bar);
    EXPECT_EQ(window.Exe_Cbo.Items.size(), 6u);
}

}  // namespace lv
