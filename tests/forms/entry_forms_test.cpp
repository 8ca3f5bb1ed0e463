#include "catalogs/forms/entry_forms.h"

#include <gtest/gtest.h>
#include <wx/timer.h>

#include "foundation/forms/wx_user.h"
#include "foundation/settings.h"
#include "launcher/forms/lv_form.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/window_life.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"

namespace lv {
namespace {

/// The dialogs over the real main window, used by keyboard alone.
class EntryForms : public ::testing::Test {
  protected:
    EntryForms() {
        MemoryFiles& disk = system.Disk;
        disk.AddFile("C:\\QUAKE\\GLQUAKE.EXE");
        disk.AddFile("C:\\QUAKE\\QUAKE.EXE");
        disk.AddFile("C:\\QUAKE\\ID1\\my.cfg");
        disk.AddFile("C:\\QUAKE\\CTF\\pak0.pak");
        Save(run, "LV-Stuff", "FirstTime", 0);
        Save(run, kOptions, "Executables", "Quake;c:\\quake\\glquake.exe");
        Save(run, kOptions, "NetServers", "Home;10.0.0.1;26000;0;");
        user.AddForms(MakeEntryForm);
        form = new LvForm(launcher, user);
        EXPECT_TRUE(LV_Frm_Load(launcher));
        ShowMainWindow(launcher);
        BringForward(form);
    }
    ~EntryForms() override {
        form->Destroy();
        Settle();
    }

    Text Stored(TextView key) { return GetSetting(run, run.AppName, kOptions, key); }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
    Launcher launcher{run};
    LvForm* form = nullptr;
};

TEST_F(EntryForms, AddsAnExecutable) {
    WhenModal([] {
        EXPECT_TRUE(HasKeyboard(Find("ExeTitle_Txt")));
        TypeText("plain");
        PressKey(WXK_TAB);
        EXPECT_TRUE(HasKeyboard(Find("ExePath_Txt")));
        Find("ExePath_Txt");
        TypeText("c:\\quake\\quake.exe");
        Screenshot("add_executable");
        DoAndAnswer([] { PressKey(WXK_RETURN); },
                    [] {
                        Screenshot("add_executable_confirmation");
                        PressKey(WXK_RETURN);
                    });
    });
    Menu_Click(launcher, MenuItem::ExeAddManual_Bar);
    EXPECT_EQ(Stored("Executables"), "Quake;c:\\quake\\glquake.exe;plain;c:\\quake\\quake.exe");
}

TEST_F(EntryForms, ReturnsTheFocusToTheFaultyField) {
    WhenModal([] {
        DoAndAnswer([] { PressKey(WXK_RETURN); }, [] { PressKey(WXK_RETURN); });
        EXPECT_TRUE(HasKeyboard(Find("ExeTitle_Txt")));
        PressKey(WXK_ESCAPE);
    });
    Menu_Click(launcher, MenuItem::ExeAddManual_Bar);
    EXPECT_EQ(Stored("Executables"), "Quake;c:\\quake\\glquake.exe");
}

TEST_F(EntryForms, EachEditorOpensAndIsLeftByEscape) {
    struct Editor {
        MenuItem Item;
        const char* Window;
    };
    for (const Editor& editor :
         {Editor{MenuItem::ExeEdit_Bar, "AddExe_Frm"}, Editor{MenuItem::GameAddManual_Bar, "AddGame_Frm"},
          Editor{MenuItem::MemEdit_Bar, "EditMem_Frm"}, Editor{MenuItem::ScriptsAdd_Bar, "AddScript_Frm"},
          Editor{MenuItem::ScriptsEdit_Bar, "AddScript_Frm"}, Editor{MenuItem::DemoAdd_Bar, "AddDemo_Frm"},
          Editor{MenuItem::DemoEdit_Bar, "AddDemo_Frm"}, Editor{MenuItem::ServerAddManual_Bar, "AddServer_Frm"},
          Editor{MenuItem::ServerEdit_Bar, "AddServer_Frm"}}) {
        bool opened = false;
        WhenModal([&] {
            opened = wxWindow::FindWindowByName(editor.Window) != nullptr;
            Screenshot(std::string("editor_") + editor.Window);
            PressKey(WXK_ESCAPE);
        });
        Menu_Click(launcher, editor.Item);
        EXPECT_TRUE(opened) << editor.Window;
    }
}

TEST_F(EntryForms, ViewAllShowsTheRows) {
    WhenModal([] {
        Screenshot("view_all");
        PressKey(WXK_RETURN);
    });
    Menu_Click(launcher, MenuItem::MemViewAll_Bar);
}

TEST_F(EntryForms, DeletesAServerAfterTwoQuestions) {
    // The second question comes when the first one has gone.
    WhenModal([] { PressKey(WXK_RETURN); });
    wxTimer second;
    second.Bind(wxEVT_TIMER, [](wxTimerEvent&) {
        if (wxWindow* box = wxWindow::FindWindowByName("QuestionBox_Frm");
            box != nullptr && box->GetLabel() == "Lorvane 3D") {
            PressKey(WXK_RETURN);
        }
    });
    second.Start(400);
    Menu_Click(launcher, MenuItem::ServerDelete_Bar);
    EXPECT_EQ(Stored("NetServers"), "");
}

}  // namespace
}  // namespace lv
