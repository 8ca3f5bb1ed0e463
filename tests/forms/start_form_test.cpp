// The start of a run in real windows.

#include "launcher/start/start.h"

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/frame.h>

#include "foundation/settings.h"
#include "launcher/forms/lv_form.h"
#include "launcher/window/window_life.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"
#include "video/forms/video_profile_form.h"

namespace lv {
namespace {

class StartForm : public ::testing::Test {
  protected:
    StartForm() {
        system.Disk.AddDirectory("C:\\LORVANE");
        system.Disk.AddFile("C:\\QUAKE\\GLQUAKE.EXE");
        system.Disk.AddDirectory("C:\\QUAKE\\ID1");
        Save(run, kOptions, "Executables", "Quake;C:\\QUAKE\\GLQUAKE.EXE");
        Save(run, "LV-Stuff", "FirstTime", 0);
        form = new LvForm(launcher, user);
    }
    ~StartForm() override {
        form->Destroy();
        Settle();
    }

    static wxFrame* Shown() { return dynamic_cast<wxFrame*>(wxWindow::FindWindowByName("VideoProfile_Frm")); }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
    Launcher launcher{run};
    VideoProfileWindow profiles{launcher.VideoProfile, user};
    LvForm* form = nullptr;
};

TEST_F(StartForm, TheVideoProfileWindowAndItsNoteComeUpInFrontOfTheMainWindow) {
    Save(run, "VideoProfile_Frm", "LoadAtStartup", "1");
    WhenModal([this] {
        Screenshot("start_with_video_profiles");
        EXPECT_EQ(Find("QuestionBox_Frm")->GetLabel(), "Video Profiles");
        EXPECT_TRUE(FindAs<wxDialog>("QuestionBox_Frm")->IsActive());
        EXPECT_TRUE(Shown() != nullptr && Shown()->IsShownOnScreen());
        EXPECT_TRUE(form->IsShownOnScreen());
        ClickOn(Find("Button_Cmd(0)"));  // where the main window would lie above it
    });
    EXPECT_TRUE(Start(launcher));
    EXPECT_TRUE(SettleUntil([] { return Shown() != nullptr && Shown()->IsShownOnScreen(); }));
    Shown()->Move(900, 700);  // on Windows it stays above its owner
    Settle(300);
    BringForward(form);
    ClickOn(Find("NOCDAUDIO_Chk"));
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "NoCDAudio"), "1");
}

TEST_F(StartForm, WithoutItTheMainWindowHasTheKeyboard) {
    EXPECT_TRUE(Start(launcher));
    EXPECT_TRUE(SettleUntil([this] { return form->IsActive(); }));
    EXPECT_EQ(Shown(), nullptr);
}

}  // namespace
}  // namespace lv
