#include "launcher/forms/lv_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/bmpcbox.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/display.h>
#include <wx/menu.h>
#include <wx/textctrl.h>

#include <set>
#include <string>
#include <vector>

#include "foundation/padded_item.h"
#include "foundation/settings.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/game_end.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/window_life.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"
#include "tests/forms/lv_form_fixture.h"
#include "tests/forms/window_manners.h"

namespace lv {
namespace {

void ExpectNothingCutOff(const LvForm& form) {
    const wxRect inside = form.GetScreenRect();
    for (const OptionBox& option : OptionBoxes()) {
        const wxWindow* box = Find(option.Name);
        if (box->IsShownOnScreen()) {
            EXPECT_TRUE(inside.Contains(box->GetScreenRect())) << option.Name;
            EXPECT_GE(box->GetSize().x, box->GetBestSize().x) << option.Name;
        }
    }
    for (const char* button : {"DoIt_Cmd(0)", "DoIt_Cmd(1)", "DoIt_Cmd(2)"}) {
        if (!Find(button)->IsShownOnScreen()) {
            continue;
        }
        EXPECT_TRUE(inside.Contains(Find(button)->GetScreenRect())) << button;
        EXPECT_GE(Find(button)->GetSize().x, Find(button)->GetBestSize().x) << button;
    }
}

TEST_F(LvForm_, F2Launches) {
    PressKey(WXK_F2);
    EXPECT_TRUE(SettleUntil([this] { return !system.Programs.Started.empty(); }));
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake\\lv_666.bat"}));
}

TEST_F(LvForm_, TheLaunchButtonLaunches) {
    ClickOn(Find("DoIt_Cmd(0)"));
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(LvForm_, CreateOnlyWritesTheFiles) {
    ClickOn(Find("DoIt_Cmd(2)"));
    EXPECT_TRUE(system.Disk.FileExists("C:\\QUAKE\\lv_666.bat"));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LvForm_, ViewShowsTheFiles) {
    WhenModal([] {
        Screenshot("viewing_commands");
        ClickOn(Find("Button_Cmd(0)"));
    });
    ClickOn(Find("DoIt_Cmd(1)"));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LvForm_, AClickOnABoxReachesTheStore) {
    ClickOn(Find("NOCDAUDIO_Chk"));
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "NoCDAudio"), "1");
}

TEST_F(LvForm_, WhatABoxExcludesIsClearedOnTheScreen) {
    ClickOn(Find("Listen_Chk"));
    EXPECT_TRUE(FindAs<wxCheckBox>("Listen_Chk")->Get3StateValue() == wxCHK_CHECKED);
    ClickOn(Find("Dedicated_Chk"));
    EXPECT_FALSE(FindAs<wxCheckBox>("Listen_Chk")->Get3StateValue() == wxCHK_CHECKED);
    EXPECT_TRUE(FindAs<wxCheckBox>("Dedicated_Chk")->Get3StateValue() == wxCHK_CHECKED);
}

TEST_F(LvForm_, TypedAdditionsReachTheStore) {
    ClickOn(Find("CommandLineAdditions_Txt"));
    PressKey('q');
    PressKey('1');
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "CustomCommandLineText"), "q1");
}

TEST_F(LvForm_, ListsShowTitlesAndHideTheValuesBehindThem) {
    EXPECT_EQ(FindAs<wxChoice>("Mem_Cbo")->GetStringSelection(), "16 megabytes");
    EXPECT_EQ(FindAs<wxBitmapComboBox>("Exe_Cbo")->GetString(0), "Quake");
    EXPECT_EQ(FindAs<wxChoice>("Script_Cbo")->GetStringSelection(), "my.cfg");
}

TEST_F(LvForm_, TheKeyboardPicksAnotherGame) {
    Find("ButtonBar_Cmd(8)")->SetFocus();
    PressKey(WXK_TAB);
    EXPECT_TRUE(HasKeyboard(Find("Exe_Cbo")));
    PressKey(WXK_DOWN);
    EXPECT_TRUE(SettleUntil([this] { return run.GameKind == Game::Quake2; }));
}

TEST_F(LvForm_, UnrealShowsItsOwnOptions) {
    EXPECT_FALSE(Find("UnrealNoDirectSound_Chk")->IsShown());
    PickExe(2);
    EXPECT_TRUE(Find("UnrealNoDirectSound_Chk")->IsShownOnScreen());
    EXPECT_TRUE(Find("UnrealNoCDNeeded_Chk")->IsShownOnScreen());
    EXPECT_FALSE(Find("Bench_Chk")->IsShown());
    EXPECT_TRUE(Find("Mem_Cbo")->IsEnabled());
    EXPECT_FALSE(Find("Game_Cbo")->IsEnabled());
    Screenshot("main_window_unreal");
    PickExe(0);
    EXPECT_TRUE(Find("Game_Cbo")->IsEnabled());
    EXPECT_TRUE(Find("Bench_Chk")->IsShownOnScreen());
}

TEST_F(LvForm_, NothingIsCutOff) {
    Screenshot("main_window");
    const wxSize screen = wxDisplay(form).GetClientArea().GetSize();
    EXPECT_LE(form->GetSize().x, screen.x);
    EXPECT_LE(form->GetSize().y, screen.y);
    ExpectNothingCutOff(*form);
    PickExe(2);
    ExpectNothingCutOff(*form);
}

TEST_F(LvForm_, EachSizeShowsItsParts) {
    ClickOn(Find("ButtonBar_Cmd(5)"));
    EXPECT_TRUE(Find("Exe_Cbo")->IsShownOnScreen());
    EXPECT_TRUE(Find("DoIt_Cmd(0)")->IsShownOnScreen());
    EXPECT_FALSE(Find("Game_Cbo")->IsShownOnScreen());
    ExpectNothingCutOff(*form);
    Screenshot("main_window_some");
    const int some = form->GetSize().y;
    ClickOn(Find("ButtonBar_Cmd(5)"));
    EXPECT_FALSE(Find("Exe_Cbo")->IsShownOnScreen());
    EXPECT_TRUE(Find("ButtonBar_Cmd(8)")->IsShownOnScreen());
    EXPECT_LT(form->GetSize().y, some);
    Screenshot("main_window_buttons");
    ClickOn(Find("ButtonBar_Cmd(5)"));
    EXPECT_TRUE(Find("Game_Cbo")->IsShownOnScreen());
    ExpectNothingCutOff(*form);
}

TEST_F(LvForm_, TheMenuBarIsTheTable) {
    const wxMenuBar* bar = form->GetMenuBar();
    std::vector<std::string> titles;
    for (std::size_t i = 0; i < bar->GetMenuCount(); ++i) {
        titles.push_back(bar->GetMenuLabel(i).utf8_string());
    }
    EXPECT_EQ(titles, (std::vector<std::string>{"&File", "&Options", "&Game Executable", "&Modification Subdirectory",
                                                "&Memory", "&Video Profiles", "&Player Script", "&Demos", "&Server",
                                                "&GL", "&Help", "&Tools"}));
    std::vector<std::string> file;
    for (const wxMenuItem* item : bar->GetMenu(0)->GetMenuItems()) {
        file.push_back(item->GetItemLabel().utf8_string());
    }
    EXPECT_EQ(file, (std::vector<std::string>{"&Launch Me!\tF2", "&View Commands", "&Create Files Only",
                                              "&Hide Lorvane 3D", "E&xit\tF12"}));
}

TEST_F(LvForm_, EachMenuOpensByItsAccessKey) {
    const char* const keys = "FOGMVPDSHT";
    for (const char* key = keys; *key != '\0'; ++key) {
        PassMenu(*key, std::string("menu_") + *key);
    }
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LvForm_, ALongRowShowsInFullAsAToolTip) {
    const Text title(90, 'W');
    launcher.Window.Demo_Cbo.Items = {title + Text(10, ' ') + "playdemo long.dem"};
    launcher.Window.Demo_Cbo.ListIndex = 0;
    user.Refresh();
    EXPECT_EQ(Find("Demo_Cbo")->GetToolTipText(), wxString(title));
    launcher.Window.Demo_Cbo.Items = {MakeItem("None", "playdemo nodemo.dem")};
    user.Refresh();
    EXPECT_EQ(Find("Demo_Cbo")->GetToolTipText(), "");
}

TEST_F(LvForm_, F12Exits) {
    PressKey(WXK_F12);
    EXPECT_TRUE(run.Ended);
    EXPECT_EQ(GetSetting(run, run.AppName, "VideoProfile_Frm", "LoadAtStartup"), "0");
}

TEST_F(LvForm_, AboutShowsItsCounters) {
    WhenModal([] {
        Screenshot("about");
        ClickOn(Find("ButtonBar_Cmd"));
    });
    Menu_Click(launcher, MenuItem::HelpAbout_Bar);
}

TEST_F(LvForm_, TheOutputOfTheLastGameCanBeReadAndCopied) {
    system.Programs.Output = "one\r\n" + Text(3000, 'x') + "\r\nlast\r\n";
    WhenModal([] {
        Screenshot("last_output");
        EXPECT_TRUE(FindAs<wxTextCtrl>("Question_Txt")->GetValue().EndsWith("last"));
        ClickOn(Find("Button_Cmd(1)"));
    });
    Menu_Click(launcher, MenuItem::GameOutput_Bar);
    EXPECT_EQ(system.Clip.Held, system.Programs.Output);
}

TEST_F(LvForm_, AGameThatCrashesBringsTheWindowBackAndIsToldOf) {
    PressKey(WXK_F2);
    EXPECT_TRUE(SettleUntil([this] { return !form->IsShownOnScreen() || form->IsIconized(); }));
    system.Programs.Watching = true;
    system.Programs.End = GameEnd{.Signal = 11, .Seconds = 60, .LastLines = "the last words\r\n"};
    ASSERT_TRUE(GameEndIsDue(launcher));
    WhenModal([this] {
        Screenshot("game_end");
        EXPECT_TRUE(form->IsShownOnScreen());
        EXPECT_TRUE(FindAs<wxTextCtrl>("Question_Txt")->GetValue().Contains("the last words"));
        ClickOn(Find("Button_Cmd(0)"));
    });
    TellGameEnd(launcher);
    EXPECT_EQ(system.Clip.Held, "");
}

TEST_F(LvForm_, RenamingTheLaunchButtonShowsAtOnce) {
    WhenModal([] {
        PressKey('g');
        PressKey('o');
        PressKey(WXK_RETURN);
    });
    Menu_Click(launcher, MenuItem::RenameButton_Bar);
    user.Refresh();
    EXPECT_EQ(Find("DoIt_Cmd(0)")->GetLabel(), "go");
}

TEST_F(LvForm_, EveryControlIsReachedByTheTabKey) {
    std::set<std::string> waiting = {"Exe_Cbo",           "Game_Chk",    "Game_Cbo",    "Script_Cbo",
                                     "VideoProfiles_Cbo", "Mem_Cbo",     "Demo_Cbo",    "Server_Cbo",
                                     "Map_Cbo",           "DoIt_Cmd(0)", "DoIt_Cmd(1)", "DoIt_Cmd(2)",
                                     "NOLAN_Chk",         "nosound_chk", "ShowSet_Chk", "CommandLineAdditions_Txt"};
    Find("Exe_Cbo")->SetFocus();
    for (int i = 0; i < 40 && !waiting.empty(); ++i) {
        std::erase_if(waiting, [](const std::string& name) { return HasKeyboard(Find(name)); });
        PressKey(WXK_TAB);
    }
    EXPECT_EQ(waiting, std::set<std::string>());
}

}  // namespace
// The captions and menus are given; nothing that stands beside them takes one of their keys.
TEST_F(LvForm_, OnlyItsGivenCaptionsShareAccessKeys) {
    for (int row = 0; row < 3; ++row) {
        PickExe(row);
        EXPECT_EQ(SharedAccessKeys(*form),
                  "c: [&Create Only] [&Connect To Current GameSpy Server]\n"
                  "d: [&Dedicated] [&Demos]\n"
                  "g: [&Game Executable] [&GL]\n"
                  "l: [&Launch Me!] [&Listen]\n"
                  "m: [&Modification Subdirectory] [&Memory]\n"
                  "s: [Configure and Launch Game&Spy] [&Server]\n"
                  "v: [&View] [&Video Profiles]\n")
            << row;
    }
}

TEST_F(LvForm_, AnAmpersandInANameShowsInTheHint) {
    system.Disk.AddFile("C:\\QUAKE\\A&B.EXE");
    launcher.Window.Exe_Cbo.Items[0].Key = "C:\\QUAKE\\A&B.EXE";
    PickExe(0);
    EXPECT_THAT(FindAs<wxStaticText>("Hint_Lbl")->GetLabelText().utf8_string(), ::testing::HasSubstr("A&B.EXE"));
}

TEST_F(LvForm_, TheListOfGamesHasRoomForItsPicturesAndItsMenuStandsInLine) {
    const wxWindow* list = Find("Exe_Cbo");
    const wxRect shown = list->GetScreenRect();
    const wxRect menu = Find("Menu_Pic(0)")->GetScreenRect();
    EXPECT_GE(shown.height, list->FromDIP(24) + 4);
    EXPECT_NEAR(shown.y * 2 + shown.height, menu.y * 2 + menu.height, 4);
}

}  // namespace lv
