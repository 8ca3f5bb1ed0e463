#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>
#include <wx/timer.h>

#include "catalogs/editors/add_server.h"
#include "catalogs/forms/entry_forms.h"
#include "foundation/forms/wx_user.h"
#include "foundation/settings.h"
#include "gamespy/forms/game_spy_form.h"
#include "gamespy/game_spy_config.h"
#include "launcher/window/launch_flow.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"
#include "tests/forms/lv_form_fixture.h"

namespace lv {
namespace {

class GameSpyFormTest : public ::testing::Test {
  protected:
    GameSpyFormTest() {
        user.AddForms(MakeEntryForm);
        user.AddForms(MakeGameSpyForm);
        AddExecutable("GL Quake", "C:\\QUAKE\\GLQUAKE.EXE", "C:\\QUAKE\\ID1");
        AddExecutable("Quake", "C:\\QUAKE\\QUAKE.EXE", "C:\\QUAKE\\ID1");
        AddExecutable("QuakeWorld", "C:\\QUAKE\\QWCL.EXE", "C:\\QUAKE\\ID1");
        AddExecutable("Quake 2", "C:\\QUAKE2\\QUAKE2.EXE", "C:\\QUAKE2\\BASEQ2");
        AddExecutable("Unreal", "C:\\UNREAL\\SYSTEM\\UNREAL.EXE", "C:\\UNREAL\\MAPS");
        Save(run, kOptions, "Scripts", "My keys;c:\\quake\\id1\\my.cfg;Two;c:\\quake2\\baseq2\\two.cfg");
    }

    void AddExecutable(const Text& title, const Text& path, TextView data) {
        system.Disk.AddFile(path);
        system.Disk.AddDirectory(data);
        executables.Items.push_back({title, path, "", ""});
    }
    void Show() {
        GameSpyConfig_Load(form);
        ShowModal(form);
    }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
    ImageCombo executables;
    GameSpyConfig_Frm form{run, executables};
};

TEST_F(GameSpyFormTest, ShowsTheGamesAndTakesTheChoices) {
    system.Disk.AddFile("C:\\gamespy\\gamespy.exe");
    WhenModal([] {
        EXPECT_EQ(FindAs<wxChoice>("ExeSpy_Cbo(0)")->GetStringSelection(), "GL Quake");
        EXPECT_TRUE(FindAs<wxCheckBox>("Quake2Installed_Chk")->GetValue());
        EXPECT_FALSE(Find("SinInstalled_Chk")->IsEnabled());
        EXPECT_EQ(Find("GameSpyLocation_Lbl")->GetLabel(), "C:\\gamespy\\gamespy.exe");
        EXPECT_EQ(Find("QuakeWorkingDir_Lbl")->GetLabel(), "C:\\QUAKE");
        Screenshot("game_spy_config");
        ClickOn(Find("Quake2Installed_Chk"));
        ClickOn(Find("LaunchSpyNow_Chk"));
        ClickOn(Find("MinimizeLorvane_Opt(1)"));
        ClickOn(Find("DoIt_Cmd"));
    });
    Show();
    EXPECT_EQ(form.DialogResult, 1);
    EXPECT_EQ(form.Quake2Installed_Chk.Value, 0);
    EXPECT_EQ(form.LaunchSpyNow_Chk.Value, 0);
    EXPECT_EQ(form.Minimize, MinimizeLorvane::Minimize);
}

TEST_F(GameSpyFormTest, ListsAreUsedByKeyboard) {
    system.Disk.AddFile("C:\\gamespy\\gamespy.exe");
    WhenModal([] {
        Find("ExeSpy_Cbo(0)")->SetFocus();
        Settle();
        PressKey(WXK_DOWN);
        EXPECT_EQ(FindAs<wxChoice>("ExeSpy_Cbo(0)")->GetStringSelection(), "Quake");
        PressKey(WXK_ESCAPE);
    });
    Show();
    EXPECT_EQ(form.DialogResult, 0);
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "SpyExecutablesPos0"), "1");
}

TEST_F(GameSpyFormTest, APickedScriptCanBeUnpicked) {
    system.Disk.AddFile("C:\\gamespy\\gamespy.exe");
    Save(run, kOptions, "SpyScriptsPos0", 0);
    WhenModal([] {
        auto* scripts = FindAs<wxChoice>("ScriptSpy_Cbo(0)");
        EXPECT_EQ(scripts->GetStringSelection(), "My keys");
        EXPECT_EQ(scripts->GetString(1), "No script");
        scripts->SetFocus();
        Settle();
        PressKey(WXK_DOWN);
        EXPECT_EQ(scripts->GetSelection(), wxNOT_FOUND);
        Screenshot("game_spy_no_script");
        ClickOn(Find("DoIt_Cmd"));
    });
    Show();
    EXPECT_EQ(form.DialogResult, 1);
    EXPECT_FALSE(form.ScriptSpy_Cbo[0].HasSelection());
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "SpyScriptsPos0"), "-1");
}

TEST_F(GameSpyFormTest, AGameWithoutScriptsHasNoneToUnpick) {
    system.Disk.AddFile("C:\\gamespy\\gamespy.exe");
    WhenModal([] {
        EXPECT_EQ(FindAs<wxChoice>("ScriptSpy_Cbo(4)")->GetCount(), 0u);
        EXPECT_EQ(FindAs<wxChoice>("ScriptSpy_Cbo(3)")->GetString(1), "No script");
        PressKey(WXK_ESCAPE);
    });
    Show();
}

/// Leaves the window that is up by then.
struct LaterEscape : wxTimer {
    void Notify() override { PressKey(WXK_ESCAPE); }
};

TEST_F(GameSpyFormTest, AsksForTheProgramThatWasNotFound) {
    LaterEscape chooser;  // comes when the question has gone
    WhenModal([&chooser] {
        DoAndAnswer([] { ClickOn(Find("DoIt_Cmd")); },
                    [&chooser] {
                        Screenshot("game_spy_where");
                        PressKey(WXK_RETURN);
                        chooser.StartOnce(1000);
                    });
        EXPECT_TRUE(Find("DoIt_Cmd")->IsShownOnScreen());
        ClickOn(Find("Cancel_Cmd"));
    });
    Show();
    EXPECT_EQ(form.DialogResult, 0);
}

/// Reads the message that is up by then, and closes it.
struct MessageReader : wxTimer {
    void Notify() override {
        if (const wxWindow* text = wxWindow::FindWindowByName("Question_Txt")) {
            Stop();
            Said = dynamic_cast<const wxTextCtrl&>(*text).GetValue();
            PressKey(WXK_RETURN);
        }
    }
    wxString Said;
};

using GameSpyFlow = LvForm_;

TEST_F(GameSpyFlow, SaysWhatToPickWhenNoGameIsPicked) {
    user.AddForms(MakeGameSpyForm);
    system.Disk.AddFile("C:\\gamespy\\gamespy.exe");
    system.Disk.AddFile("C:\\HL\\HL.EXE");
    launcher.Window.Exe_Cbo.Items = {{"Half-Life", "C:\\HL\\HL.EXE", "", ""}};
    launcher.Window.Exe_Cbo.ListIndex = 0;
    launcher.Window.Box(Option::LaunchQspy_Chk).Value = 1;
    MessageReader message;
    WhenModal([&message] {
        EXPECT_FALSE(Find("ExeSpy_Cbo(0)")->IsEnabled());
        message.Start(100);
        ClickOn(Find("DoIt_Cmd"));
    });
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(message.Said.StartsWith("You must pick a GameSpy Quake Executable")) << message.Said;
}

TEST_F(GameSpyFormTest, TheTypeOfSeveralServersIsPicked) {
    SelectServerType_Frm type(run,
                              "Please select the game type of these servers. Note: to add the server names from "
                              "GameSpy also, please deselect the 'copy IP address only' option in GameSpy.");
    WhenModal([] {
        Screenshot("select_server_type");
        ClickOn(Find("Server_Opt(3)"));
        ClickOn(Find("OK_Cmd"));
    });
    ShowModal(type);
    EXPECT_TRUE(type.DialogResult);
    EXPECT_EQ(type.LastEntry, "3");
}

}  // namespace
}  // namespace lv
