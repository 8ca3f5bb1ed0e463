#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wx/display.h>
#include <wx/listbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <cstdlib>
#include <functional>

#include "catalogs/forms/entry_forms.h"
#include "foundation/forms/wx_user.h"
#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"
#include "wizard/forms/install_form.h"
#include "wizard/wizard.h"

namespace lv {
namespace {

class WizardForm : public ::testing::Test {
  protected:
    WizardForm() {
        system.Disk.AddFile("C:\\QUAKE\\QUAKE.EXE");
        system.Disk.AddFile("C:\\QUAKE\\GLQUAKE.EXE");
        system.Disk.AddDirectory("C:\\QUAKE\\ID1");
        system.Disk.AddFile("C:\\OLD\\STUFF\\SIN\\SIN.EXE");
        user.AddForms(MakeEntryForm);
        user.AddForms(MakeInstallForm);
    }

    std::string Path(int row) {
        return FindAs<wxTextCtrl>("GamePath_Txt(" + std::to_string(row) + ")")->GetValue().utf8_string();
    }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
    Launcher launcher{run};
};

TEST_F(WizardForm, FindsATickedGameAndListsItsPrograms) {
    WhenModal([this] {
        EXPECT_TRUE(HasKeyboard(Find("Game_Chk(0)")));
        PressKey(WXK_SPACE);
        ClickOn(Find("AutoSearch_Cmd"));
        EXPECT_EQ(Path(0), "C:\\quake");
        Screenshot("wizard");
        ClickOn(Find("OK_Cmd"));
    });
    EXPECT_TRUE(ShowInstallWizard(launcher));
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Executables"),
              "Quake;c:\\quake\\quake.exe;GL Quake;c:\\quake\\glquake.exe");
}

TEST_F(WizardForm, WhatWasFoundIsSaidInFullOverTwoLines) {
    const Text found = "Found: Quake, Quake 2. Plays here: QuakeSpasm, ezQuake, Yamagi Quake II. Click 'OK' to go on.";
    Install_Frm form(run);
    form.Found_Lbl.Caption = found;
    WhenModal([&] {
        auto* const label = FindAs<wxStaticText>("Found_Lbl");
        EXPECT_EQ(label->GetLabel().utf8_string(), found);
        EXPECT_EQ(label->wxStaticText::GetLabel().Freq('\n'), 1u);
        EXPECT_EQ(label->wxStaticText::GetLabel().Find(wxString::FromUTF8("\u2026")), wxNOT_FOUND);
        EXPECT_GE(label->GetSize().y, label->GetTextExtent("X").y * 2);
        PressKey(WXK_ESCAPE);
    });
    ShowModal(form);
}

TEST_F(WizardForm, EachGameStandsInItsFrameWithAnArrowToItsPath) {
    WhenModal([] {
        for (int row = 0; row < 9; ++row) {
            const std::string index = "(" + std::to_string(row) + ")";
            const wxRect frame = Find("GameSetup_Fra" + index)->GetScreenRect();
            EXPECT_TRUE(Find("GameSetup_Fra" + index)->IsShownOnScreen()) << row;
            EXPECT_TRUE(Find("Label1" + index)->IsShownOnScreen()) << row;
            EXPECT_EQ(Find("Label1" + index)->GetLabel(), "path -->") << row;
            for (const char* part : {"GameIcon_Pic", "Game_Chk", "Label1", "GamePath_Txt", "Browse_Cmd"}) {
                EXPECT_TRUE(frame.Contains(Find(part + index)->GetScreenRect())) << part << row;
            }
            EXPECT_LE(Find("Label1" + index)->GetScreenRect().GetRight(),
                      Find("GamePath_Txt" + index)->GetScreenRect().GetLeft());
            EXPECT_EQ(Find("Label1" + index)->GetScreenRect().GetLeft(), Find("Label1(0)")->GetScreenRect().GetLeft());
        }
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(WizardForm, WalksTheDiskWhenTheUserWantsIt) {
    WhenModal([this] {
        ClickOn(Find("Game_Chk(4)"));
        DoAndAnswer([] { ClickOn(Find("AutoSearch_Cmd")); },
                    [] {
                        Screenshot("wizard_question");
                        ClickOn(Find("Button_Cmd(0)"));
                    });
        EXPECT_EQ(Path(4), "C:\\OLD\\STUFF\\SIN");
        EXPECT_EQ(Find("Status_Lbl")->GetLabel(), "Search Complete:");
        ClickOn(Find("Cancel_Cmd"));
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(WizardForm, SaysThatAGameHasToBeTicked) {
    WhenModal([] {
        DoAndAnswer([] { ClickOn(Find("AutoSearch_Cmd")); }, [] { PressKey(WXK_RETURN); });
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(WizardForm, BrowsesForADirectoryByKeyboard) {
    WhenModal([this] {
        DoAndAnswer([] { ClickOn(Find("Browse_Cmd(0)")); },
                    [] {
                        Screenshot("choose_directory");
                        PressKey(WXK_ESCAPE);
                    });
        EXPECT_EQ(Path(0), "");
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(WizardForm, EnterGoesIntoTheDirectoryThatTypingFoundAndAcceptsNothing) {
    system.Disk.Home = "C:\\";
    WhenModal([this] {
        DoAndAnswer([] { ClickOn(Find("Browse_Cmd(0)")); },
                    [] {
                        auto* list = FindAs<wxListBox>("Dir1");
                        EXPECT_TRUE(HasKeyboard(list));
                        TypeText("qu");
                        EXPECT_EQ(list->GetStringSelection(), "   QUAKE");
                        PressKey(WXK_RETURN);
                        Settle(300);
                        ASSERT_NE(wxWindow::FindWindowByName("Path_Frm"), nullptr);
                        EXPECT_EQ(Find("Path_Lbl")->GetLabel(), "C:\\QUAKE");
                        TypeText("i");
                        EXPECT_EQ(list->GetStringSelection(), "      ID1");
                        PressKey(WXK_RETURN);
                        Settle(300);
                        ASSERT_NE(wxWindow::FindWindowByName("Path_Frm"), nullptr);
                        EXPECT_EQ(Find("Path_Lbl")->GetLabel(), "C:\\QUAKE\\ID1");
                        ClickOn(Find("Path_Frm")->FindWindow("OK_Cmd"));
                    });
        EXPECT_EQ(Path(0), "C:\\QUAKE\\ID1");
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(WizardForm, TheChoiceOfADirectoryComesUpWhereItWasLeft) {
    const auto browse = [](const std::function<void(wxTopLevelWindow*)>& act) {
        DoAndAnswer([] { ClickOn(Find("Browse_Cmd(0)")); },
                    [&act] {
                        act(FindAs<wxTopLevelWindow>("Path_Frm"));
                        PressKey(WXK_ESCAPE);
                    });
    };
    WhenModal([&] {
        wxPoint left;
        browse([&left](wxTopLevelWindow* form) {
            EXPECT_TRUE(SettleUntil([form] { return form->IsActive(); }));
            form->Move(70, 90);
            Settle(400);
            left = form->GetPosition();
        });
        EXPECT_NEAR(left.x, 70, 20);
        browse([&left](wxTopLevelWindow* form) {
            EXPECT_TRUE(SettleUntil([form, left] {
                const wxPoint now = form->GetPosition();
                return std::abs(now.x - left.x) <= 2 && std::abs(now.y - left.y) <= 2;
            })) << form->GetPosition().x
                << ", " << form->GetPosition().y;
        });
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(WizardForm, TheChoiceOfADirectoryFirstComesUpInTheMiddleOfTheScreen) {
    WhenModal([] {
        DoAndAnswer([] { ClickOn(Find("Browse_Cmd(0)")); },
                    [] {
                        Settle(300);
                        const wxRect place = Find("Path_Frm")->GetScreenRect();
                        const wxRect screen = wxDisplay(0U).GetClientArea();
                        EXPECT_NEAR(place.x + place.width / 2, screen.width / 2, 30);
                        EXPECT_NEAR(place.y + place.height / 2, screen.height / 2, 40);
                        PressKey(WXK_ESCAPE);
                    });
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(WizardForm, TheChoiceOfADirectoryComesUpMaximisedIfItWasLeftSo) {
    Save(run, "Path_Frm", "WindowState", 2);
    WhenModal([] {
        DoAndAnswer([] { ClickOn(Find("Browse_Cmd(0)")); },
                    [] {
                        auto* form = FindAs<wxTopLevelWindow>("Path_Frm");
                        EXPECT_TRUE(SettleUntil([form] { return form->IsMaximized(); }));
                        PressKey(WXK_ESCAPE);
                    });
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
    EXPECT_EQ(GetSetting(run, run.AppName, "Path_Frm", "WindowState"), "2");
}

}  // namespace
}  // namespace lv
