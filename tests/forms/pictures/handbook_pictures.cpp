// Takes the handbook's pictures of the real windows, into the folder that LV_PICTURES names: scripts/handbook_pictures.

#include <wx/checkbox.h>
#include <wx/listbox.h>
#include <wx/textctrl.h>

#include <cstdlib>

#include "catalogs/editors/path_window.h"
#include "foundry/versions/script_versions.h"
#include "gamespy/forms/game_spy_form.h"
#include "gamespy/game_spy_config.h"
#include "launcher/forms/game_list_form.h"
#include "launcher/forms/launcher_user.h"
#include "launcher/forms/setups_form.h"
#include "launcher/menu/video_profile_menu.h"
#include "launcher/setups/row_picks.h"
#include "launcher/start/install_params.h"
#include "launcher/window/lv_events.h"
#include "tests/forms/fig_form_fixture.h"
#include "tests/support/shipped_engines.h"
#include "video/forms/add_vid_profile_form.h"
#include "video/forms/video_profile_form.h"
#include "wizard/forms/install_form.h"
#include "wizard/wizard.h"

namespace lv {
namespace {

constexpr const char* kScript = R"(name "Ranger"
sensitivity "4"
fov "100"
crosshair "1"
bind ESCAPE "togglemenu"
bind w "+forward"
bind s "+back"
bind a "+moveleft"
bind d "+moveright"
bind SPACE "+jump"
bind MOUSE1 "+attack"
bind MOUSE2 "+speed"
bind 1 "impulse 2"
bind 2 "impulse 3"
bind q "impulse 7"
bind e "impulse 8"
bind t "messagemode"
bind r "say_team Quad is coming up!"
alias rocketjump "impulse 7; +jump; +attack"
bind x "rocketjump"
)";

/// A window without the rest of the screen.
void Picture(const std::string& name, const wxWindow* window) {
    ASSERT_NE(window, nullptr) << name;
    wxUIActionSimulator().MouseMove(2, 2);
    Settle(500);
    const wxRect place = window->GetScreenRect();
    const char* const folder = std::getenv("LV_PICTURES");
    ASSERT_NE(folder, nullptr);
    const std::string command = wxString::Format("import -window root -crop %dx%d+%d+%d +repage '%s/%s.png'",
                                                 place.width, place.height, place.x, place.y, folder, name)
                                    .utf8_string();
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
}

/// Takes a picture of the dialog that comes next, and leaves it.
void PictureNext(const std::string& name, const std::string& window) {
    WhenModal([=] {
        Picture(name, Find(window));
        PressKey(WXK_ESCAPE);
    });
}

class HandbookPictures : public FigForm_ {
  protected:
    HandbookPictures() {
        MemoryFiles& disk = system.Disk;
        for (const char* file : {"C:\\QUAKE\\QUAKE.EXE", "C:\\QUAKE2\\QUAKE2.EXE", "C:\\UNREAL\\SYSTEM\\UNREAL.EXE",
                                 "C:\\QUAKE\\ID1\\maps\\start.bsp", "C:\\QUAKE\\ID1\\maps\\dm4.bsp",
                                 "C:\\QUAKE\\CTF\\pak0.pak", "C:\\QUAKE\\ID1\\mine.dem"}) {
            disk.AddFile(file);
        }
        disk.AddDirectory("C:\\QUAKE2\\BASEQ2");
        Save(run, "ShowMessage", "VideoProfiles", 0);
        Save(run, kOptions, "NetServers", "The Attic;10.0.0.1;26000;0;");
        Save(run, kOptions, "Games", "Capture the Flag;-game CTF");
        Save(run, kOptions, "Demos", "My best run;playdemo mine.dem");
        Save(run, kOptions, "Scripts", "My keys;c:\\quake\\id1\\my.cfg");
        user.AddForms(MakeInstallForm);
        user.AddForms(MakeAddVidProfileForm);
        user.AddForms(MakeGameSpyForm);
        user.AddForms(MakeSetupsForm);
        Use(kGames[0], kScript);
        launcher.Window.Exe_Cbo.Items[0].Title = "GL Quake";
        user.Refresh();
    }
};

TEST_F(HandbookPictures, TheMainWindowAndItsDialogs) {
    Picture("main_window", main);
    struct Dialog {
        MenuItem Item;
        const char* Window;
        const char* Picture;
    };
    for (const Dialog& dialog : {Dialog{MenuItem::ExeEdit_Bar, "AddExe_Frm", "edit_executable"},
                                 Dialog{MenuItem::GameEdit_Bar, "AddGame_Frm", "edit_modification"},
                                 Dialog{MenuItem::ScriptsEdit_Bar, "AddScript_Frm", "edit_script"},
                                 Dialog{MenuItem::DemoEdit_Bar, "AddDemo_Frm", "edit_demo"},
                                 Dialog{MenuItem::ServerEdit_Bar, "AddServer_Frm", "edit_server"},
                                 Dialog{MenuItem::MemEdit_Bar, "EditMem_Frm", "edit_memory"},
                                 Dialog{MenuItem::ExeViewAll_Bar, "QuestionBox_Frm", "view_all"},
                                 Dialog{MenuItem::VideoProfilesAdd_Bar, "AddVidProfile_Frm", "new_profile"},
                                 Dialog{MenuItem::HelpAbout_Bar, "About_Frm", "about"}}) {
        PictureNext(dialog.Picture, dialog.Window);
        Menu_Click(launcher, dialog.Item);
        Settle();
    }
    PictureNext("view", "QuestionBox_Frm");
    Menu_Click(launcher, MenuItem::ViewCommands_Bar);
}

TEST_F(HandbookPictures, TheWindowOfTheSetups) {
    const auto keep = [this](TextView name) {
        lv::Setup setup = SetupOf(launcher);
        setup.Name = name;
        ASSERT_TRUE(KeepSetup(run, launcher.Setups, setup));
    };
    keep("Alone, with my keys");
    SetOption(launcher, Option::Server_Chk, 1);
    keep("Evenings in the Attic");
    ASSERT_TRUE(PickMap(launcher, "DM4"));
    SetOption(launcher, Option::Map_Chk, 1);
    SetOption(launcher, Option::Listen_Chk, 1);
    keep("A game for the neighbours");
    PictureNext("setups", "Setups_Frm");
    Menu_Click(launcher, MenuItem::ShowSetups_Bar);
}

TEST_F(HandbookPictures, TheGameList) {
    launcher.Window.Exe_Cbo.Items.push_back({"Quake 2", "C:\\QUAKE2\\QUAKE2.EXE", "Quake2", "Quake2"});
    launcher.Window.Exe_Cbo.Items.push_back({"Unreal", "C:\\UNREAL\\SYSTEM\\UNREAL.EXE", "Unreal", "Unreal"});
    user.Refresh();
    Save(run, "Played", LowerCase(launcher.Window.Exe_Cbo.Items[0].Key), "1999-11-21 11:05:00;45300;31");
    Save(run, "Played", "c:\\quake2\\quake2.exe", "1999-11-18 20:15:00;9120;6");
    user.AddForms(MakeGameListForm);
    PictureNext("game_list", "GameList_Frm");
    Menu_Click(launcher, MenuItem::GameList_Bar);
}

TEST_F(HandbookPictures, TheLiveProfileWindow) {
    VideoProfileWindow profiles(launcher.VideoProfile, user);
    VideoProfileEdit_Cmd_Click(launcher);
    ASSERT_TRUE(SettleUntil([] { return wxWindow::FindWindowByName("VideoProfile_Frm") != nullptr; }));
    Picture("video_profiles", Find("VideoProfile_Frm"));
}

TEST_F(HandbookPictures, TheFirstStart) {
    main->Hide();
    LauncherUser first(system.Disk);
    first.SetRun(run);
    InstallParams_Frm card;
    InstallParams_Load(run, card);
    PictureNext("card", "InstallParams_Frm");
    first.ShowInstallParams(card);
    for (const char* file :
         {"Z:\\home\\zoe\\games\\quake\\id1\\pak0.pak", "Z:\\home\\zoe\\games\\quake\\id1\\pak1.pak",
          "Z:\\home\\zoe\\games\\quake2\\baseq2\\pak0.pak", "Z:\\home\\zoe\\games\\quake2\\baseq2\\pak1.pak",
          "Z:\\usr\\games\\quakespasm", "Z:\\usr\\games\\ezquake", "Z:\\usr\\games\\yquake2"}) {
        system.Disk.AddFile(file);
    }
    system.Places.IsGames = {"Z:\\home\\zoe\\games"};
    system.Places.IsPrograms = {"Z:\\usr\\games"};
    launcher.Engines = ShippedEngines();
    WhenModal([] {
        Picture("setup", Find("Install_Frm"));
        DoAndAnswer([] { ClickOn(Find("Browse_Cmd(0)")); },
                    [] {
                        Picture("directory", Find("Path_Frm"));
                        PressKey(WXK_ESCAPE);
                    });
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(HandbookPictures, TheWindowOfGameSpy) {
    GameSpyConfig_Frm form(run, launcher.Window.Exe_Cbo);
    GameSpyConfig_Load(form);
    PictureNext("gamespy", "GameSpyConfig_Frm");
    ShowModal(form);
}

TEST_F(HandbookPictures, SetupFoundryAndItsDialogs) {
    const auto dialog = [](const std::string& button, const std::string& name, const std::string& field,
                           const std::string& text) {
        DoAndAnswer([&button] { ClickOn(Find(button)); },
                    [&] {
                        if (!field.empty()) {
                            FindAs<wxTextCtrl>(field)->SetValue(text);
                        }
                        const wxWindow* top = nullptr;
                        for (const wxWindow* window : wxTopLevelWindows) {
                            const auto* modal = dynamic_cast<const wxDialog*>(window);
                            top = modal != nullptr && modal->IsModal() ? modal : top;
                        }
                        Picture(name, top);
                        PressKey(WXK_ESCAPE);
                    });
    };
    Edit([&] {
        Turn(EditorPage::Player);
        Picture("foundry_player", form);
        dialog("PlayerColor_Lbl(0)", "color", "", "");
        dialog("ViewCustomLetters_Cmd", "phun_names", "", "");
        TurnBindings(BindingsPage::Standard);
        Picture("foundry_bindings", form);
        TurnBindings(BindingsPage::Talking);
        dialog("AddMessage_Cmd", "message", "Message_Txt", "Quad is coming up!");
        TurnBindings(BindingsPage::Extended);
        dialog("AddExtraBinding_Cmd", "extra_binding", "Message_Txt", "impulse 9");
        dialog("AddBoundScript_Cmd", "choose_script", "ScriptPath_Txt", "night.cfg");
        Turn(EditorPage::Aliases);
        Picture("foundry_aliases", form);
        dialog("AddCustomAlias_Cmd", "alias", "AliasName_Txt", "rocketjump");
        ASSERT_EQ(KeepVersion(run, path).Fault.Number, 0);
        Turn(EditorPage::SaveAndExit);
        dialog("ShowChanges_Cmd", "foundry_changes", "", "");
        dialog("Versions_Cmd", "foundry_versions", "", "");
        form->Model().Document.ScriptClean = false;
        WhenModal([] {
            Picture("confirm_exit", wxGetTopLevelParent(Find("Yes_Cmd")));
            ClickOn(Find("No_Cmd"));
        });
        form->Close();
        Settle();
    });
}

}  // namespace
}  // namespace lv
