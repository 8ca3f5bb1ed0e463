#include "launcher/launchers/launcher_frm.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class LauncherFrm : public LauncherTest {
  protected:
    LauncherFrm() { setup.Name = "Flag & Co\n"; }

    void Tick(Launcher_Frm& form, bool menu, bool desktop) {
        form.LauncherInMenu_Chk.Value = menu ? 1 : 0;
        form.LauncherOnDesktop_Chk.Value = desktop ? 1 : 0;
        LauncherPlace_Chk_Click(form);
    }

    lv::Setup setup;
};

TEST_F(LauncherFrm, AsksWhereAndTicksNothingAtFirst) {
    const Launcher_Frm form(launcher, setup);
    EXPECT_EQ(form.Name, "Launcher_Frm");
    EXPECT_EQ(form.Caption, "Make a Launcher");
    EXPECT_EQ(form.LauncherFor_Lbl.Caption, "Where is Flag & Co to be started from?");
    EXPECT_EQ(form.LauncherInMenu_Chk.Caption, "Applications &Menu");
    EXPECT_EQ(form.LauncherOnDesktop_Chk.Caption, "&Desktop");
    EXPECT_EQ(form.LauncherInMenu_Chk.Value, 0);
    EXPECT_EQ(form.LauncherOnDesktop_Chk.Value, 0);
    EXPECT_FALSE(form.WriteLauncher_Cmd.Enabled);
}

TEST_F(LauncherFrm, OffersNoPlaceThatIsNotThere) {
    Save(run, kStuff, "LauncherPlaces", 3);
    system.Launchers.Without = {ShortcutPlace::Desktop};
    const Launcher_Frm form(launcher, setup);
    EXPECT_EQ(form.LauncherInMenu_Chk.Value, 1);
    EXPECT_FALSE(form.LauncherOnDesktop_Chk.Enabled);
    EXPECT_EQ(form.LauncherOnDesktop_Chk.Value, 0);
    EXPECT_TRUE(form.WriteLauncher_Cmd.Enabled);
}

TEST_F(LauncherFrm, MakesThemAndTicksTheSameNextTime) {
    user.In<Launcher_Frm>([&](Launcher_Frm& form) {
        Tick(form, false, true);
        EXPECT_TRUE(form.WriteLauncher_Cmd.Enabled);
        Launcher_Write_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
    });
    user.Expect({"Make a Launcher", "This was written:\r\n\r\n/desktop/lorvane3d-setup-flag_20_26_20co_0A.desktop", 0,
                 false, true});
    OfferLaunchers(launcher, setup);
    EXPECT_EQ(system.Launchers.Made.size(), 1U);
    EXPECT_EQ(Stored("LV-Stuff", "LauncherPlaces"), "2");
    EXPECT_EQ(Launcher_Frm(launcher, setup).LauncherOnDesktop_Chk.Value, 1);
}

TEST_F(LauncherFrm, ACancelMakesNothingAndNotesNothing) {
    user.In<Launcher_Frm>([&](Launcher_Frm& form) {
        Tick(form, true, true);
        Launcher_Cancel_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
    });
    OfferLaunchers(launcher, setup);
    EXPECT_TRUE(system.Launchers.Made.empty());
    EXPECT_EQ(Stored("LV-Stuff", "LauncherPlaces"), "(none)");
}

TEST_F(LauncherFrm, ANameThatNoStartCanSayIsToldOf) {
    setup.Name = Text("a\0b", 3);
    user.Expect({"Make a Launcher", "No start of a program can say the name of this setup. Rename it first."});
    OfferLaunchers(launcher, setup);
}

}  // namespace
}  // namespace lv
