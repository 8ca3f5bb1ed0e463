#include "wizard/install_frm.h"

#include "catalogs/editors/path_window.h"
#include "tests/wizard/wizard_fixture.h"

namespace lv {

using InstallWindow = WizardTest;

TEST_F(InstallWindow, HasItsCaptions) {
    const Install_Frm form(run);
    EXPECT_EQ(form.Name, "Install_Frm");
    EXPECT_EQ(form.Caption, "Lorvane 3D Setup");
    const char* const captions[] = {"Quake",     "Hexen 2", "Quake 2", "Unreal",   "Sin",
                                    "Heretic 2", "Shogo",   "Blood2",  "Half-File"};
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_EQ(form.Game_Chk[i].Caption, captions[i]);
        EXPECT_EQ(form.Game_Chk[i].Value, 0);
        EXPECT_EQ(form.Browse_Cmd[i].Caption, "&Browse");
        EXPECT_EQ(form.Label1[i].Caption, "path -->");
    }
    EXPECT_EQ(form.AutoSearch_Cmd.Caption, "&Do An Auto-Search");
    EXPECT_EQ(form.ZipMagic_Chk.Caption, "Auto-Search Ignores ZipMagic Folders");
    EXPECT_EQ(form.Cancel_Cmd.Caption, "&Cancel");
    EXPECT_EQ(form.Label2[0].Caption, "1) Check any games you have installed.");
    EXPECT_EQ(form.Label2[1].Caption,
              "2) Enter all paths. This can be done manually, by Browsing, or by clicking 'Do An Auto Search'.");
    EXPECT_EQ(form.Label2[2].Caption, "3) Click 'OK' when you are done.");
}

TEST_F(InstallWindow, AKnownGameIsGreyedWithItsPath) {
    const Install_Frm form(run, {{kQuake2, "C:\\QUAKE2"}});
    EXPECT_EQ(form.Game_Chk[kQuake2].Value, 2);
    EXPECT_FALSE(form.Game_Chk[kQuake2].Enabled);
    EXPECT_EQ(form.GamePath_Txt[kQuake2].Text, "C:\\QUAKE2");
    EXPECT_FALSE(form.Browse_Cmd[kQuake2].Enabled);
    EXPECT_TRUE(form.Browse_Cmd[kQuake].Enabled);
}

TEST_F(InstallWindow, BrowsingIsTitledByTheGame) {
    const char* const names[] = {"Quake",     "Hexen 2", "Quake 2", "Unreal",   "Sin",
                                 "Heretic 2", "Shogo",   "Blood 2", "Half-Life"};
    Install_Frm form(run);
    for (int i = 0; i < 9; ++i) {
        user.In<Path_Frm>([&](Path_Frm& shown) {
            EXPECT_EQ(shown.Caption, Text("Select ") + names[i] + " Path.");
            shown.Path_Lbl.Caption = "C:\\GAME";
            Path_OK_Cmd_Click(shown);
        });
        Install_Browse_Cmd_Click(form, i);
        EXPECT_EQ(form.GamePath_Txt[static_cast<std::size_t>(i)].Text, "C:\\GAME");
    }
}

TEST_F(InstallWindow, BrowsingBeginsAtThePathInTheRowElseWhereTheLastEnded) {
    system.Disk.AddDirectory("C:\\QUAKE\\ID1");
    system.Disk.AddDirectory("C:\\OTHER");
    Install_Frm form(run);
    const auto browse = [&](const char* typed, const char* start, void (*leave)(Path_Frm&)) {
        form.GamePath_Txt[kSin].Text = typed;
        user.In<Path_Frm>([=](Path_Frm& shown) {
            EXPECT_EQ(shown.Path_Lbl.Caption, start);
            leave(shown);
        });
        Install_Browse_Cmd_Click(form, kSin);
    };
    browse("", "C:\\", Path_Cancel_Cmd_Click);
    browse("C:\\QUAKE\\GONE", "C:\\QUAKE", Path_OK_Cmd_Click);
    browse("", "C:\\QUAKE", Path_Cancel_Cmd_Click);
    browse("C:\\OTHER", "C:\\OTHER", Path_Cancel_Cmd_Click);
    browse("", "C:\\QUAKE", Path_Cancel_Cmd_Click);
}

TEST_F(InstallWindow, ACancelledPathLeavesTheField) {
    Install_Frm form(run);
    form.GamePath_Txt[kSin].Text = "C:\\SIN";
    user.In<Path_Frm>([](Path_Frm& shown) { Path_Cancel_Cmd_Click(shown); });
    Install_Browse_Cmd_Click(form, kSin);
    EXPECT_EQ(form.GamePath_Txt[kSin].Text, "C:\\SIN");
}

TEST_F(InstallWindow, CancelClosesWithoutAResult) {
    Install_Frm form(run);
    Install_Cancel_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_FALSE(form.DialogResult);
}

TEST_F(InstallWindow, ItsCloseBoxIsACancel) {
    Install_Frm form(run);
    EXPECT_TRUE(Install_QueryUnload(form));
    EXPECT_TRUE(form.Closed);
}

}  // namespace lv
