#include "launcher/start/install_params.h"

#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

class InstallParams : public LauncherTest {
  protected:
    void Pick(int row) {
        form.VidCard_Cbo.ListIndex = row;
        InstallParams_VidCard_Cbo_Click(run, form);
    }
    void ExpectCancelQuestion(int answer) {
        user.Expect({"Lorvane 3D", "Setup cancelled at users request.", answer, false, true, "&OK,&Not OK"});
    }

    InstallParams_Frm form;
};

}  // namespace

TEST_F(InstallParams, OffersTheFourChipsets) {
    EXPECT_EQ(form.VidCard_Cbo.Items, (std::vector<Text>{"None", "Voodoo", "Voodoo2", "Other!"}));
    EXPECT_EQ(form.Hardware_Fra.Caption, "3D Hardware Support");
    EXPECT_EQ(form.OK_Cmd[0].Caption, "&Accept These Settings");
    EXPECT_EQ(form.OK_Cmd[1].Caption, "&Cancel");
    EXPECT_EQ(form.Label6.Caption,
              "One of the best Lorvane 3D features is support for 3D Hardware (hence the '3D' in the name). Select "
              "your 3D chipset if it is in the list. If you do not have a 3D card, select none. With a graphics "
              "card of today select Other!");
}

TEST_F(InstallParams, PreselectsVoodoo) {
    InstallParams_Load(run, form);
    EXPECT_EQ(form.VidCard_Cbo.Selected(), "Voodoo");
    EXPECT_EQ(Stored(kOptions, "VidCard"), "1");
}

TEST_F(InstallParams, NoneIs0) {
    Pick(0);
    EXPECT_EQ(Stored(kOptions, "VidCard"), "0");
}

TEST_F(InstallParams, VoodooIs1) {
    Pick(1);
    EXPECT_EQ(Stored(kOptions, "VidCard"), "1");
}

TEST_F(InstallParams, Voodoo2Is2) {
    Pick(2);
    EXPECT_EQ(Stored(kOptions, "VidCard"), "2");
}

TEST_F(InstallParams, OtherIs100) {
    Pick(3);
    EXPECT_EQ(Stored(kOptions, "VidCard"), "100");
}

TEST_F(InstallParams, AcceptAsksAndCloses) {
    Pick(2);
    user.Expect({"Verify Setup Information", "3D Hardware Chipset: Voodoo2", 0, false, true, "&Accept,&Decline"});
    InstallParams_OK_Cmd_Click(run, form, 0);
    EXPECT_TRUE(form.DialogResult);
    EXPECT_TRUE(form.Closed);
}

TEST_F(InstallParams, DeclineStaysInTheDialog) {
    Pick(3);
    user.Expect({"Verify Setup Information", "3D Hardware Chipset: Other!", 1, false, true});
    InstallParams_OK_Cmd_Click(run, form, 0);
    EXPECT_FALSE(form.DialogResult);
    EXPECT_FALSE(form.Closed);
}

TEST_F(InstallParams, CancelCloses) {
    InstallParams_OK_Cmd_Click(run, form, 1);
    EXPECT_FALSE(form.DialogResult);
    EXPECT_TRUE(form.Closed);
}

TEST_F(InstallParams, AnAcceptedDialogGoesOn) {
    user.InInstallParams.push_back([this](InstallParams_Frm& shown) {
        shown.VidCard_Cbo.ListIndex = 3;
        InstallParams_VidCard_Cbo_Click(run, shown);
        user.Expect({"Verify Setup Information", "3D Hardware Chipset: Other!"});
        InstallParams_OK_Cmd_Click(run, shown, 0);
    });
    EXPECT_TRUE(AskForChipset(run));
    EXPECT_EQ(Stored(kOptions, "VidCard"), "100");
    EXPECT_FALSE(run.Ended);
}

TEST_F(InstallParams, ACancelledDialogComesAgainOnNotOk) {
    user.InInstallParams.push_back([this](InstallParams_Frm& shown) { InstallParams_OK_Cmd_Click(run, shown, 1); });
    ExpectCancelQuestion(1);
    user.InInstallParams.push_back([this](InstallParams_Frm& shown) {
        user.Expect({"Verify Setup Information", "3D Hardware Chipset: Voodoo"});
        InstallParams_OK_Cmd_Click(run, shown, 0);
    });
    EXPECT_TRUE(AskForChipset(run));
    EXPECT_TRUE(user.InInstallParams.empty());
}

TEST_F(InstallParams, ACancelledDialogEndsTheProgramOnOk) {
    user.InInstallParams.push_back([this](InstallParams_Frm& shown) { InstallParams_OK_Cmd_Click(run, shown, 1); });
    ExpectCancelQuestion(0);
    EXPECT_FALSE(AskForChipset(run));
    EXPECT_TRUE(run.Ended);
}

}  // namespace lv
