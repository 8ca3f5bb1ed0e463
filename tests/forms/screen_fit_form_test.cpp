// Windows on screens that are too small for them. These tests run on a screen of 1920 by 1080 at 200 % too.

#include "foundation/forms/screen_fit.h"

#include <gtest/gtest.h>
#include <wx/display.h>
#include <wx/menu.h>
#include <wx/scrolwin.h>
#include <wx/textctrl.h>

#include <array>

#include "catalogs/forms/entry_forms.h"
#include "foundation/forms/kept_place.h"
#include "foundation/forms/modal_form.h"
#include "foundation/question_box.h"
#include "gamespy/forms/game_spy_form.h"
#include "gamespy/game_spy_config.h"
#include "launcher/forms/launcher_user.h"
#include "launcher/menu/video_profile_menu.h"
#include "launcher/start/install_params.h"
#include "tests/forms/lv_form_fixture.h"
#include "video/forms/video_profile_form.h"
#include "wizard/forms/install_form.h"
#include "wizard/wizard.h"

namespace lv {
namespace {

constexpr int kManyRows = 40;

/// More rows than any screen of a test has room for.
struct Long_Frm : ModalWindow {
    explicit Long_Frm(Run& owner) : ModalWindow(owner, "Long_Frm") {
        Caption = "Long";
        OK_Cmd.Caption = "&OK";
        Cancel_Cmd.Caption = "&Cancel";
        for (Label& label : Labels) {
            label.Caption = "A row";
        }
    }
    std::array<Label, kManyRows> Labels;
    std::array<TextBox, kManyRows> Fields;
    CommandButton OK_Cmd;
    CommandButton Cancel_Cmd;
};

std::unique_ptr<wxDialog> MakeLong(wxWindow* owner, ModalWindow& window) {
    auto* model = dynamic_cast<Long_Frm*>(&window);
    if (model == nullptr) {
        return nullptr;
    }
    const auto close = [model] { model->Closed = true; };
    auto form = std::make_unique<ModalForm>(owner, *model, close);
    for (std::size_t i = 0; i < kManyRows; ++i) {
        const std::string index = "(" + std::to_string(i) + ")";
        form->AddField(model->Labels[i], ("Label" + index).c_str(),
                       form->MakeText(("Field" + index).c_str(), model->Fields[i]));
    }
    form->Finish(form->MakeButton("OK_Cmd", model->OK_Cmd, close),
                 form->MakeButton("Cancel_Cmd", model->Cancel_Cmd, close));
    return form;
}

wxRect Screen() {
    return wxDisplay(0U).GetClientArea();
}

void ExpectOnScreen(const std::string& name) {
    const wxWindow* const window = Find(name);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(SettleUntil([window] { return Screen().Contains(window->GetScreenRect()); }, 2000))
        << name << ": " << window->GetScreenRect().x << ", " << window->GetScreenRect().y << ", "
        << window->GetScreenRect().width << " x " << window->GetScreenRect().height;
}

class OnAnyScreen : public ::testing::Test {
  protected:
    OnAnyScreen() {
        user.SetRun(run);
        user.AddForms(MakeEntryForm);
        user.AddForms(MakeInstallForm);
        user.AddForms(MakeGameSpyForm);
        user.AddForms(MakeLong);
        system.Disk.AddDirectory("C:\\QUAKE\\ID1");
    }

    MemoryPlatform system;
    LauncherUser user{system.Disk};
    lv::Run run{system.Services, user};
    Launcher launcher{run};
};

TEST_F(OnAnyScreen, ADialogOfTooManyRowsScrollsAboveItsButtons) {
    Long_Frm form(run);
    WhenModal([] {
        ExpectOnScreen("Long_Frm");
        ExpectOnScreen("OK_Cmd");
        ExpectOnScreen("Cancel_Cmd");
        auto* last = FindAs<wxTextCtrl>("Field(39)");
        const auto* content = dynamic_cast<wxScrolledWindow*>(last->GetParent());
        ASSERT_NE(content, nullptr);
        EXPECT_FALSE(content->GetScreenRect().Contains(last->GetScreenRect()));
        EXPECT_TRUE(HasKeyboard(Find("Field(0)")));
        TypeText("a");
        last->SetFocus();
        Settle(300);
        EXPECT_TRUE(content->GetScreenRect().Contains(last->GetScreenRect()));
        TypeText("b");
        Screenshot("dialog_that_scrolls");
        ClickOn(Find("OK_Cmd"));
    });
    ShowModal(form);
    EXPECT_EQ(form.Fields[0].Text, "a");
    EXPECT_EQ(form.Fields[39].Text, "b");
}

TEST_F(OnAnyScreen, TheKeyboardGoesThroughADialogThatScrollsFromTheTop) {
    Long_Frm form(run);
    WhenModal([] {
        EXPECT_TRUE(HasKeyboard(Find("Field(0)")));
        PressKey(WXK_TAB);
        EXPECT_TRUE(HasKeyboard(Find("Field(1)")));
        Find("Field(39)")->SetFocus();
        Settle();
        PressKey(WXK_TAB);
        EXPECT_TRUE(HasKeyboard(Find("OK_Cmd")));
        PressKey(WXK_TAB);
        EXPECT_TRUE(HasKeyboard(Find("Cancel_Cmd")));
        PressKey(WXK_ESCAPE);
    });
    ShowModal(form);
    EXPECT_TRUE(form.Closed);
}

TEST_F(OnAnyScreen, TheSetupWindowShowsItsButtons) {
    WhenModal([] {
        ExpectOnScreen("Install_Frm");
        ExpectOnScreen("OK_Cmd");
        ExpectOnScreen("Cancel_Cmd");
        Screenshot("setup_on_its_screen");
        wxWindow* const last = Find("GamePath_Txt(8)");
        last->SetFocus();
        Settle(300);
        EXPECT_LE(last->GetScreenRect().GetBottom(), Find("OK_Cmd")->GetScreenRect().GetTop());
        DoAndAnswer(
            [] {
                Find("Browse_Cmd(0)")
                    ->ProcessWindowEvent(
                        *std::make_unique<wxCommandEvent>(wxEVT_BUTTON, Find("Browse_Cmd(0)")->GetId()));
            },
            [] {
                ExpectOnScreen("Path_Frm");
                PressKey(WXK_ESCAPE);
            });
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(OnAnyScreen, TheQuestionOfTheCardIsSeenWhole) {
    InstallParams_Frm form;
    WhenModal([] {
        ExpectOnScreen("InstallParams_Frm");
        ExpectOnScreen("OK_Cmd(0)");
        PressKey(WXK_ESCAPE);
    });
    user.ShowInstallParams(form);
}

TEST_F(OnAnyScreen, TheWindowOfGameSpyIsSeenWhole) {
    ImageCombo executables;
    GameSpyConfig_Frm form(run, executables);
    WhenModal([] {
        ExpectOnScreen("GameSpyConfig_Frm");
        ExpectOnScreen("DoIt_Cmd");
        Screenshot("game_spy_on_its_screen");
        PressKey(WXK_ESCAPE);
    });
    GameSpyConfig_Load(form);
    ShowModal(form);
}

TEST_F(OnAnyScreen, AMessageAndItsButtonsHaveRoomForTheirTexts) {
    WhenModal([this] {
        for (const char* const name : {"Button_Cmd(0)", "Button_Cmd(1)"}) {
            const wxWindow* const button = Find(name);
            EXPECT_GT(button->GetClientSize().x, button->GetTextExtent(button->GetLabel()).x) << name;
        }
        const wxWindow* const text = Find("Question_Txt");
        EXPECT_GT(text->GetClientSize().x, text->GetTextExtent("3D Hardware Chipset: Voodoo").x);
        EXPECT_NEAR(user.TextWidth("Chipset"), text->GetTextExtent("Chipset").x, 2);
        EXPECT_NEAR(user.TextHeight(), text->GetTextExtent("Wg").y, 2);
        Screenshot("message_on_its_screen");
        PressKey(WXK_RETURN);
    });
    EXPECT_EQ(AskUser(run, "Verify", "3D Hardware Chipset: Voodoo", "&Accept,&Decline"), 0);
}

TEST_F(OnAnyScreen, ALongMessageShowsItsButtons) {
    Text text;
    for (int i = 0; i < 200; ++i) {
        text += "A line of a long message that goes on and on and on and on and on and on and on\r\n";
    }
    WhenModal([] {
        ExpectOnScreen("QuestionBox_Frm");
        ExpectOnScreen("Button_Cmd(0)");
        ExpectOnScreen("NotAgain_Chk");
        Screenshot("long_message_on_its_screen");
        PressKey(WXK_RETURN);
    });
    Text title = "Long";
    AskUserOnce(run, title, text, "&Yes,&No", 0, 0);
}

/// A window of 400 by 300 that was left 200 pixels from the right edge of a screen and 100 from its lower one.
wxFrame* ComeUpAtTheEdge(KeptPlace*& kept, WindowPlacement& placement) {
    auto* frame = new wxFrame(nullptr, wxID_ANY, "Placed", wxDefaultPosition, wxSize(400, 300));
    frame->SetName("Placed_Frm");
    placement.Left = ToTwips(Screen().GetRight() - 200);
    placement.Top = ToTwips(Screen().GetBottom() - 100);
    kept = new KeptPlace(*frame, placement);
    kept->Put();
    frame->Show();
    BringForward(frame);
    Settle(300);
    return frame;
}

TEST_F(OnAnyScreen, AWindowThatWasLeftOnAnotherScreenComesUpWhollyOnThisOne) {
    WindowPlacement placement;
    placement.LeftElsewhere = true;
    KeptPlace* kept = nullptr;
    wxFrame* const frame = ComeUpAtTheEdge(kept, placement);
    ExpectOnScreen("Placed_Frm");
    EXPECT_LE(placement.Left, ToTwips(Screen().GetRight() - 399));
    frame->Destroy();
    Settle();
    delete kept;
}

TEST_F(OnAnyScreen, AWindowThatWasLeftPartlyOffThisScreenComesUpThere) {
    WindowPlacement placement;
    KeptPlace* kept = nullptr;
    wxFrame* const frame = ComeUpAtTheEdge(kept, placement);
    const wxPoint place(Screen().GetRight() - 200, Screen().GetBottom() - 100);
    EXPECT_TRUE(SettleUntil([&] { return frame->GetPosition() == place; }, 2000))
        << frame->GetPosition().x << ", " << frame->GetPosition().y;
    frame->Destroy();
    Settle();
    delete kept;
}

using MainWindowOnAnyScreen = LvForm_;

TEST_F(MainWindowOnAnyScreen, TheMainWindowIsOnItWithItsMenuBar) {
    BigSize(launcher);
    ExpectOnScreen("LV_Frm");
    EXPECT_GE(form->GetMenuBar()->GetScreenRect().y, Screen().y);
    Screenshot("main_window_on_its_screen");
    wxWindow* const last = Find("ShowSet_Chk");
    last->SetFocus();
    Settle(300);
    EXPECT_TRUE(form->GetScreenRect().Contains(last->GetScreenRect()));
    Screenshot("main_window_scrolled");
    LittleSize(launcher);
    Settle(300);
    ExpectOnScreen("LV_Frm");
    EXPECT_TRUE(form->GetScreenRect().Contains(Find("DoIt_Cmd(0)")->GetScreenRect()));
}

TEST_F(MainWindowOnAnyScreen, TheListOfGamesIsAsHighAsItsPicture) {
    const wxWindow* const list = Find("Exe_Cbo");
    EXPECT_GE(list->GetSize().y, list->FromDIP(24));
    EXPECT_LE(list->GetSize().y, list->FromDIP(24) + 20);
    EXPECT_LE(list->GetBestSize().y, list->FromDIP(24) + 20);
}

TEST_F(MainWindowOnAnyScreen, TheLiveProfileWindowIsOnItToo) {
    Save(run, "ShowMessage", "VideoProfiles", 0);
    VideoProfileWindow profiles(launcher.VideoProfile, user);
    VideoProfileEdit_Cmd_Click(launcher);
    EXPECT_TRUE(SettleUntil([] { return wxWindow::FindWindowByName("VideoProfile_Frm") != nullptr; }));
    Settle(300);
    ExpectOnScreen("VideoProfile_Frm");
}

}  // namespace
}  // namespace lv
