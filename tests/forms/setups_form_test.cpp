#include "launcher/forms/setups_form.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/menu.h>
#include <wx/timer.h>

#include "launcher/forms/launcher_form.h"
#include "launcher/forms/main_menu.h"
#include "launcher/setups/setups_menu.h"
#include "tests/forms/form_system.h"
#include "tests/forms/lv_form_fixture.h"
#include "tests/forms/told_help.h"

namespace lv {
namespace {

/// The window of the setups and their menu, over the real main window.
class SetupsForm : public LvForm_ {
  protected:
    SetupsForm() {
        user.AddForms(MakeSetupsForm);
        user.AddForms(MakeLauncherForm);
    }

    void Keep(TextView name) {
        lv::Setup setup = SetupOf(launcher);
        setup.Name = name;
        ASSERT_TRUE(KeepSetup(run, launcher.Setups, setup));
        user.Refresh();
    }

    /// "Two" of Quake 2 and "Flag & Co" of Quake, which is picked.
    void KeepTwo() {
        PickExe(1);
        Keep("Two");
        PickExe(0);
        ClickOn(Find("NOCDAUDIO_Chk"));
        Keep("Flag & Co");
    }

    void InWindow(const std::function<void()>& act) {
        WhenModal(act);
        Menu_Click(launcher, MenuItem::ShowSetups_Bar);
    }

    [[nodiscard]] std::vector<std::string> Items() const {
        std::vector<std::string> items;
        const wxMenuItem* menu = form->GetMenuBar()->FindItem(MenuIdOf(MenuItem::Setups_Bar));
        for (const wxMenuItem* item : menu->GetSubMenu()->GetMenuItems()) {
            items.push_back((item->IsCheckable() && item->IsChecked() ? "* " : "") +
                            item->GetItemLabel().utf8_string() + (item->IsEnabled() ? "" : " -"));
        }
        return items;
    }
};

TEST_F(SetupsForm, SaysWhatToDoWhereThereIsNone) {
    InWindow([] {
        Screenshot("setups_empty");
        EXPECT_TRUE(Find("Setups_Lbl")->GetLabel().StartsWith("No setup is kept yet."));
        EXPECT_TRUE(HasKeyboard(Find("CloseSetups_Cmd")));
        EXPECT_FALSE(Find("StartSetup_Cmd")->IsEnabled());
        EXPECT_FALSE(Find("MakeLauncher_Cmd")->IsEnabled());
        PressKey(WXK_RETURN);
    });
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(SetupsForm, EnterStartsTheRow) {
    KeepTwo();
    InWindow([] {
        Screenshot("setups");
        EXPECT_TRUE(HasKeyboard(Find("Setups_Lst")));
        auto* list = FindAs<wxListBox>("Setups_Lst");
        EXPECT_EQ(list->GetString(0), "Two  -  Quake 2");
        EXPECT_EQ(list->GetStringSelection(), "Flag & Co (picked)  -  Quake");
        PressKey(WXK_UP);
        EXPECT_EQ(list->GetSelection(), 0);
        PressKey(WXK_RETURN);
    });
    EXPECT_TRUE(SettleUntil([this] { return !system.Programs.Started.empty(); }));
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake2\\lv_666.bat"}));
    EXPECT_EQ(launcher.Setups.Picked, 1);
}

TEST_F(SetupsForm, ADoubleClickStartsTheRowOnce) {
    KeepTwo();
    InWindow([] {
        wxWindow* const list = Find("Setups_Lst");
        wxCommandEvent twice(wxEVT_LISTBOX_DCLICK, list->GetId());
        list->ProcessWindowEvent(twice);
    });
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake\\lv_666.bat"}));
}

TEST_F(SetupsForm, AnAccessKeyPicksTheRowAndStartsNothing) {
    KeepTwo();
    InWindow([] {
        PressKey(WXK_UP);
        PressKey('P', wxMOD_ALT);
    });
    EXPECT_EQ(run.GameKind, Game::Quake2);
    EXPECT_EQ(launcher.Window.Box(Option::NOCDAUDIO_Chk).Value, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(SetupsForm, EveryControlIsReachedByTheTabKey) {
    KeepTwo();
    ClickOn(Find("nosound_chk"));
    InWindow([] {
        for (const char* const name :
             {"Setups_Lst", "StartSetup_Cmd", "PickSetup_Cmd", "KeepSetupChanges_Cmd", "RenameSetup_Cmd",
              "DeleteSetup_Cmd", "MakeLauncher_Cmd", "CloseSetups_Cmd", "Setups_Lst"}) {
            EXPECT_TRUE(HasKeyboard(Find(name))) << name;
            PressKey(WXK_TAB);
        }
        PressKey(WXK_ESCAPE);
    });
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(SetupsForm, KeepsChangesRenamesAndDeletes) {
    KeepTwo();
    ClickOn(Find("nosound_chk"));
    InWindow([this] {
        auto* list = FindAs<wxListBox>("Setups_Lst");
        EXPECT_EQ(list->GetStringSelection(), "Flag & Co (picked, changed)  -  Quake");
        PressKey('K', wxMOD_ALT);
        EXPECT_TRUE(SettleUntil([list] { return list->GetStringSelection() == "Flag & Co (picked)  -  Quake"; }));
        DoAndAnswer([] { PressKey('R', wxMOD_ALT); },
                    [] {
                        PressKey('N');
                        PressKey(WXK_RETURN);
                    });
        EXPECT_EQ(list->GetStringSelection(), "n (picked)  -  Quake");
        DoAndAnswer([] { PressKey('D', wxMOD_ALT); },
                    [] {
                        Screenshot("setups_delete");
                        PressKey('D', wxMOD_ALT);
                    });
        EXPECT_EQ(list->GetCount(), 1u);
        PressKey('C', wxMOD_ALT);
    });
    EXPECT_EQ(GetSetting(run, run.AppName, "Setups", "Names"), "1=Two");
}

TEST_F(SetupsForm, EscapeClosesTheWindowBehindTheLastDeletion) {
    Keep("Alone");
    InWindow([] {
        DoAndAnswer([] { PressKey('D', wxMOD_ALT); }, [] { PressKey('D', wxMOD_ALT); });
        EXPECT_FALSE(Find("DeleteSetup_Cmd")->IsEnabled());
        PressKey(WXK_ESCAPE);
    });
    EXPECT_EQ(OpenModals(), 0);
}

TEST_F(SetupsForm, EveryControlTellsWhatItIsFor) {
    KeepTwo();
    InWindow([] {
        for (const char* const name : {"Setups_Lst", "StartSetup_Cmd", "PickSetup_Cmd", "KeepSetupChanges_Cmd",
                                       "RenameSetup_Cmd", "DeleteSetup_Cmd", "MakeLauncher_Cmd", "CloseSetups_Cmd"}) {
            EXPECT_NE(Find(name)->GetHelpText(), "") << name;
        }
        EXPECT_EQ(ToldByRightClicks({"Setups_Lst", "StartSetup_Cmd"}),
                  (std::vector<std::string>{"Setups_Lst", "StartSetup_Cmd"}));
        PressKey(WXK_ESCAPE);
    });
}

TEST_F(SetupsForm, ALauncherIsMadeWhereItIsTicked) {
    KeepTwo();
    // It takes the dialog's place.
    wxTimer told;
    told.Bind(wxEVT_TIMER, [&told](wxTimerEvent&) {
        if (wxWindow::FindWindowByName("Question_Txt") != nullptr) {
            told.Stop();
            Settle(300);
            Screenshot("launcher_made");
            PressKey(WXK_RETURN);
        }
    });
    InWindow([&told] {
        DoAndAnswer([] { PressKey('M', wxMOD_ALT); },
                    [&told] {
                        Screenshot("make_launcher");
                        EXPECT_EQ(Find("LauncherFor_Lbl")->GetLabel(), "Where is Flag && Co to be started from?");
                        EXPECT_TRUE(HasKeyboard(Find("LauncherInMenu_Chk")));
                        EXPECT_FALSE(Find("WriteLauncher_Cmd")->IsEnabled());
                        for (const char* const name :
                             {"LauncherInMenu_Chk", "LauncherOnDesktop_Chk", "WriteLauncher_Cmd", "Cancel_Cmd"}) {
                            EXPECT_NE(Find(name)->GetHelpText(), "") << name;
                        }
                        PressKey('D', wxMOD_ALT);
                        EXPECT_TRUE(Find("WriteLauncher_Cmd")->IsEnabled());
                        told.Start(100);
                        PressKey(WXK_RETURN);
                    });
        EXPECT_FALSE(told.IsRunning()) << "nothing was told";
        PressKey(WXK_ESCAPE);
    });
    ASSERT_EQ(system.Launchers.Made.size(), 1U);
    EXPECT_EQ(system.Launchers.Made.begin()->second.Words[0], "--setup=Flag & Co");
}

TEST_F(SetupsForm, TheMenuHasTheSetupsThatThereAre) {
    const std::vector<std::string> none = {"Keep This &Setup...", "&Keep Changes -", "&Drop Changes -", "Set&ups..."};
    EXPECT_EQ(Items(), none);
    KeepTwo();
    ClickOn(Find("nosound_chk"));
    EXPECT_EQ(Items(), (std::vector<std::string>{"Keep This &Setup...", "&Keep Changes", "&Drop Changes", "Set&ups...",
                                                 "&1 Two", "* &2 Flag && Co (changed)"}));
    ASSERT_TRUE(DeleteSetup(run, launcher.Setups, 1));
    user.Refresh();
    EXPECT_EQ(Items().size(), 5u);
    ASSERT_TRUE(DeleteSetup(run, launcher.Setups, 2));
    user.Refresh();
    EXPECT_EQ(Items(), none);
    Keep("Again");
    EXPECT_EQ(Items().back(), "* &1 Again");
}

TEST_F(SetupsForm, AClickOnANameInTheMenuStartsIt) {
    KeepTwo();
    WalkMenu('T', {'E'}, "menu_setups", {'1'});
    EXPECT_TRUE(SettleUntil([this] { return !system.Programs.Started.empty(); }));
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake2\\lv_666.bat"}));
    EXPECT_EQ(Items().back(), "&2 Flag && Co");
}

TEST_F(SetupsForm, TheWindowIsKeptUnderAName) {
    WhenModal([] {
        Screenshot("setups_keep");
        PressKey('D');
        PressKey(WXK_RETURN);
    });
    Menu_Click(launcher, MenuItem::KeepSetup_Bar);
    EXPECT_EQ(GetSetting(run, run.AppName, "Setups", "Names"), "1=d");
}

}  // namespace
}  // namespace lv
