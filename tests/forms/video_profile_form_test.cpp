#include "video/forms/video_profile_form.h"

#include <gtest/gtest.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include "foundation/settings.h"
#include "launcher/forms/lv_form.h"
#include "launcher/menu/video_profile_menu.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/window_life.h"
#include "launcher/window/window_size.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"
#include "tests/forms/told_help.h"
#include "video/forms/add_vid_profile_form.h"

namespace lv {
namespace {

constexpr const char* kBatch = "C:\\QUAKE\\lv_666.bat";

/// Both real windows, side by side, over a platform in memory.
class VideoProfileForm_ : public ::testing::Test {
  protected:
    VideoProfileForm_() {
        MemoryFiles& disk = system.Disk;
        disk.AddFile("C:\\QUAKE\\GLQUAKE.EXE");
        disk.AddDirectory("C:\\QUAKE\\ID1");
        disk.AddFile("C:\\QUAKE2\\QUAKE2.EXE");
        disk.AddDirectory("C:\\QUAKE2\\BASEQ2");
        disk.AddFile("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
        Save(run, kOptions, "Executables",
             "Quake;C:\\QUAKE\\GLQUAKE.EXE;Quake 2;C:\\QUAKE2\\QUAKE2.EXE;Unreal;C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
        Save(run, "LV-Stuff", "FirstTime", 0);
        Save(run, "ShowMessage", "VideoProfiles", 0);
        user.AddForms(MakeAddVidProfileForm);
        form = new LvForm(launcher, user);
        EXPECT_TRUE(LV_Frm_Load(launcher));
        ShowMainWindow(launcher);
        BringForward(form);
    }
    ~VideoProfileForm_() override {
        form->Destroy();
        Settle();
    }

    void Open() {
        VideoProfileEdit_Cmd_Click(launcher);
        ASSERT_TRUE(SettleUntil([] { return Shown() != nullptr && Shown()->IsActive(); }));
        Settle();
    }
    static wxFrame* Shown() { return dynamic_cast<wxFrame*>(wxWindow::FindWindowByName("VideoProfile_Frm")); }

    void PickExe(int row) {
        launcher.Window.Exe_Cbo.ListIndex = row;
        Exe_Cbo_Click(launcher);
        user.Refresh();
        Settle();
    }
    void PickCard(int row) {
        launcher.VideoProfile.VidCard_Cbo.ListIndex = row;
        VidCard_Cbo_Click(launcher.VideoProfile);
        user.Refresh();
        Settle();
    }
    Text StoredOption(TextView key) { return GetSetting(run, run.AppName, kOptions, key, "(none)"); }

    /// Everything that is shown has its whole text and lies within the window.
    static void ExpectNothingCutOff() {
        for (wxWindow* window : Shown()->GetChildren()) {
            ExpectWhole(window);
        }
    }
    static void ExpectWhole(wxWindow* window) {
        if (!window->IsShown()) {
            return;
        }
        const wxString what = window->GetName() + " " + window->GetLabel();
        if (dynamic_cast<wxCheckBox*>(window) != nullptr || dynamic_cast<wxChoice*>(window) != nullptr) {
            EXPECT_GE(window->GetSize().x, window->GetBestSize().x) << what;
            const wxRect room(window->GetParent()->GetSize());
            EXPECT_TRUE(room.Contains(window->GetRect())) << what;
        }
        for (wxWindow* child : window->GetChildren()) {
            ExpectWhole(child);
        }
    }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
    Launcher launcher{run};
    VideoProfileWindow profiles{launcher.VideoProfile, user};
    LvForm* form = nullptr;
};

TEST_F(VideoProfileForm_, TheSmallButtonOpensItAndTheMainWindowStaysAlive) {
    ClickOn(Find("VideoProfileEdit_Cmd"));
    ASSERT_TRUE(SettleUntil([] { return Shown() != nullptr && Shown()->IsShown(); }));
    EXPECT_TRUE(form->IsShown());
    EXPECT_TRUE(form->IsEnabled());
    EXPECT_EQ(Shown()->GetTitle(), "Video Profile - 'Base'");
}

TEST_F(VideoProfileForm_, AClickThereIsInTheNextLaunchFromHere) {
    Open();
    ClickOn(Find("SST_FASTMEM_Chk"));
    EXPECT_EQ(StoredOption("SST_FASTMEM"), "1");
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_NE(system.Disk.Read(kBatch).Value.find("SET SST_FASTMEM=0\r\n"), Text::npos);
    FindAs<wxChoice>("SST_FASTMEM_Cbo")->SetFocus();
    Settle();
    PressKey(WXK_DOWN);
    EXPECT_TRUE(SettleUntil([this] { return StoredOption("SST_FASTMEM_Setting_Content") == "1"; }));
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_NE(system.Disk.Read(kBatch).Value.find("SET SST_FASTMEM=1\r\n"), Text::npos);
}

TEST_F(VideoProfileForm_, BothWindowsSideBySideForEachCard) {
    Open();
    form->Move(0, 0);
    Shown()->Move(60, 160);
    const int heights[] = {0, 1, 2, 3};
    std::vector<wxSize> sizes;
    for (const int row : heights) {
        PickCard(row);
        EXPECT_EQ(Find("Voodoo1_Pan")->IsShownOnScreen(), row == 1);
        EXPECT_EQ(Find("Voodoo2_Pan")->IsShownOnScreen(), row == 2);
        EXPECT_EQ(Find("Effects_Pan")->IsShownOnScreen(), row != 0);
        EXPECT_EQ(Find("No3DHardware_Pan")->IsShownOnScreen(), row == 0);
        ExpectNothingCutOff();
        sizes.push_back(Shown()->GetSize());
        Screenshot("video_profile_card_" + std::to_string(row));
    }
    EXPECT_LE(sizes[0].x, sizes[3].x) << "the window shrinks to what is shown";
    EXPECT_LT(sizes[0].y, sizes[1].y);
    EXPECT_LT(sizes[3].x, sizes[1].x);
}

TEST_F(VideoProfileForm_, AScreenOf1024By768TakesItWholeForEveryCardAndGame) {
    constexpr int kTaskBar = 40;
    Open();
    for (int game = 0; game < 3; ++game) {
        PickExe(game);
        for (int card = 0; card < 4; ++card) {
            PickCard(card);
            const wxSize wanted = Shown()->GetChildren().front()->GetSizer()->CalcMin();
            const wxSize client = Shown()->GetClientSize();
            const wxSize size = Shown()->GetSize();
            const std::string what = "game " + std::to_string(game) + ", card " + std::to_string(card);
            EXPECT_GE(client.x, wanted.x) << what;
            EXPECT_GE(client.y, wanted.y) << what;
            EXPECT_LE(size.x, 1024) << what;
            EXPECT_LE(size.y, 768 - kTaskBar) << what;
        }
    }
}

TEST_F(VideoProfileForm_, UnrealAndQuake2HaveTheirOwn) {
    Open();
    PickExe(2);
    EXPECT_TRUE(Find("UnrealVideo_Pan")->IsShownOnScreen());
    ExpectNothingCutOff();
    Shown()->Move(20, 20);
    Settle();
    Screenshot("video_profile_unreal");
    PickExe(1);
    EXPECT_FALSE(Find("UnrealVideo_Pan")->IsShownOnScreen());
    EXPECT_TRUE(Find("Q2_Rez_Cbo")->IsShownOnScreen());
    EXPECT_TRUE(Find("GraphicsDriver_Cbo")->IsShownOnScreen());
    EXPECT_FALSE(Find("Bits_Cbo")->IsShownOnScreen());
    ExpectNothingCutOff();
    Screenshot("video_profile_quake2");
}

TEST_F(VideoProfileForm_, CaptionsShowWithoutTheirDashes) {
    Open();
    EXPECT_EQ(Find("gl_polyblend_Chk")->GetLabel(), "Polyblend");
    EXPECT_EQ(Find("SST_SCREENREFRESH_Chk")->GetLabel(), "Screen Refresh Rate");
}

TEST_F(VideoProfileForm_, APickedProfileIsShownAtOnce) {
    Open();
    launcher.Window.VideoProfiles_Cbo.ListIndex = 2;
    VideoProfiles_Cbo_Click(launcher);
    user.Refresh();
    EXPECT_EQ(Shown()->GetTitle(), "Video Profile - 'Optimize for Beauty'");
    EXPECT_EQ(FindAs<wxCheckBox>("Shadows_Chk")->Get3StateValue(), wxCHK_CHECKED);
    EXPECT_EQ(FindAs<wxChoice>("Mirrors_Cbo")->GetStringSelection(), ".5");
}

TEST_F(VideoProfileForm_, TheWarningsStandOverItAndBringTheListBack) {
    Open();
    FindAs<wxChoice>("SST_GRXCLK_Cbo")->SetFocus();
    Settle();
    DoAndAnswer([] { PressKey(WXK_END); },
                [] {
                    Screenshot("overclock_warning");
                    ClickOn(Find("Button_Cmd(1)"));
                });
    EXPECT_TRUE(SettleUntil([this] { return StoredOption("SST_GRXCLK_Setting_Content") == "50"; }));
    EXPECT_EQ(FindAs<wxChoice>("SST_GRXCLK_Cbo")->GetStringSelection(), "50");
}

TEST_F(VideoProfileForm_, AHiddenMainWindowTakesItAlongAndBringsItBack) {
    Open();
    HideMainWindow(launcher);
    EXPECT_TRUE(SettleUntil([] { return !Shown()->IsShown(); }));
    ASSERT_TRUE(SettleUntil([this] { return form->IsIconized() || !form->IsShown(); }));
    ShowMainWindow(launcher);
    EXPECT_TRUE(SettleUntil([] { return Shown() != nullptr && Shown()->IsShown(); }));
}

TEST_F(VideoProfileForm_, ComesBackWhereItWasLeft) {
    Open();
    Shown()->Move(120, 90);
    EXPECT_TRUE(SettleUntil([] { return Shown()->GetPosition().x >= 120; }));
    Settle();
    const wxPoint left = Shown()->GetPosition();
    Shown()->Close();
    EXPECT_TRUE(SettleUntil([] { return !Shown()->IsShown(); }));
    EXPECT_FALSE(launcher.VideoProfile.VideoProfileWindowOpen);
    Open();
    EXPECT_NEAR(Shown()->GetPosition().x, left.x, 2);
    EXPECT_NEAR(Shown()->GetPosition().y, left.y, 2);
}

TEST_F(VideoProfileForm_, ComesUpMaximisedIfItWasLeftSo) {
    Save(run, "VideoProfile_Frm", "WindowState", 2);
    Open();
    EXPECT_TRUE(SettleUntil([] { return Shown()->IsMaximized(); }));
    Shown()->Close();
    EXPECT_TRUE(SettleUntil([] { return !Shown()->IsShown(); }));
    EXPECT_EQ(GetSetting(run, run.AppName, "VideoProfile_Frm", "WindowState"), "2");
}

TEST_F(VideoProfileForm_, TheMainWindowMinimisedUnderAWarningTakesNothingAway) {
    Open();
    FindAs<wxChoice>("SST_GRXCLK_Cbo")->SetFocus();
    Settle();
    DoAndAnswer([] { PressKey(WXK_END); },
                [this] {
                    LV_Frm_Resize(launcher, kWindowMinimised, {});
                    user.Refresh();
                    Settle();
                    EXPECT_TRUE(Shown()->IsShown());
                    ClickOn(Find("Button_Cmd(1)"));
                });
    EXPECT_TRUE(SettleUntil([this] { return StoredOption("SST_GRXCLK_Setting_Content") == "50"; }));
    EXPECT_TRUE(launcher.VideoProfile.VideoProfileWindowOpen);
}

TEST_F(VideoProfileForm_, EveryBoxHasItsHelp) {
    Open();
    for (const ProfileBoxRow& row : ProfileBoxRows()) {
        EXPECT_FALSE(Find(std::string(row.Name) + "_Chk")->GetHelpText().empty()) << row.Name;
    }
    for (const char* name : {"Windowed_Chk", "GL_Chk(0)", "GL_Chk(1)", "GraphicsDriver_Chk"}) {
        EXPECT_FALSE(Find(name)->GetHelpText().empty()) << name;
    }
}

TEST_F(VideoProfileForm_, ARightClickOnABoxOrItsListTellsWhatItIsFor) {
    Open();
    const std::vector<std::string> controls = {"Mirrors_Chk", "Windowed_Chk", "SST_GRXCLK_Cbo", "VidCard_Cbo"};
    EXPECT_EQ(ToldByRightClicks(controls), controls);
    EXPECT_EQ(Find("SST_GRXCLK_Cbo")->GetHelpText(), Find("SST_GRXCLK_Chk")->GetHelpText());
    EXPECT_NE(Find("VidCard_Cbo")->GetHelpText(), "");
}

TEST_F(VideoProfileForm_, DeleteWorksInTheNameOfANewProfile) {
    DoAndAnswer([this] { Menu_Click(launcher, MenuItem::VideoProfilesAdd_Bar); },
                [] {
                    auto* name = FindAs<wxTextCtrl>("NewVidProfileName_Txt");
                    PressKey('a');
                    PressKey('b');
                    PressKey(WXK_HOME);
                    PressKey(WXK_DELETE);
                    EXPECT_EQ(name->GetValue(), "b");
                    PressKey(WXK_END);
                    PressKey(WXK_BACK);
                    EXPECT_EQ(name->GetValue(), "");
                    PressKey(WXK_ESCAPE);
                });
}

TEST_F(VideoProfileForm_, AWindowAtTheEdgeStaysOnTheScreenWhenItGrows) {
    Open();
    PickCard(0);
    Shown()->Move(1024 - Shown()->GetSize().x, 768 - Shown()->GetSize().y);
    Settle();
    PickCard(2);
    EXPECT_TRUE(SettleUntil([] { return Shown()->GetRect().GetRight() < 1024; }));
    EXPECT_LT(Shown()->GetRect().GetBottom(), 768);
    EXPECT_GE(Shown()->GetRect().x, 0);
    EXPECT_GE(Shown()->GetRect().y, 0);
}

TEST_F(VideoProfileForm_, EscapeClosesIt) {
    Open();
    PressKey(WXK_ESCAPE);
    EXPECT_TRUE(SettleUntil([] { return !Shown()->IsShown(); }));
    EXPECT_FALSE(launcher.VideoProfile.VideoProfileWindowOpen);
}

TEST_F(VideoProfileForm_, ANewProfileIsTypedAndOpens) {
    DoAndAnswer([this] { Menu_Click(launcher, MenuItem::VideoProfilesAdd_Bar); },
                [] {
                    for (const char key : {'m', ';', '"', '/', 'x', ' ', '2'}) {
                        PressKey(key);
                    }
                    Screenshot("add_video_profile");
                    EXPECT_EQ(FindAs<wxTextCtrl>("NewVidProfileName_Txt")->GetValue(), "mx 2");
                    ClickOn(Find("OK_Cmd"));
                });
    EXPECT_EQ(StoredOption("VideoProfileList"), "Base;Optimize for Speed;Optimize for Beauty;Default;mx 2");
    ASSERT_TRUE(SettleUntil([] { return Shown() != nullptr; }));
    EXPECT_EQ(Shown()->GetTitle(), "Video Profile - 'mx 2'");
}

}  // namespace
}  // namespace lv
