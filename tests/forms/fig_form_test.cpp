#include "tests/forms/fig_form_fixture.h"

#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/platinfo.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "foundation/forms/wx_text.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {
namespace {

using testing::HasSubstr;

constexpr const KindOfGame& kQuake = kGames[0];
constexpr Color kGreen = 0x00c000;
constexpr int kLongerThanADoubleClick = 700;
constexpr int kTabMiddle = 12;

/// The middle of the tab with this caption, on the screen.
wxPoint TabCalled(const wxNotebook* tabs, const wxString& caption) {
    int left = -1;
    int right = -1;
    for (int x = 0; x < tabs->GetSize().x; ++x) {
        const int tab = tabs->HitTest(wxPoint(x, kTabMiddle));
        if (tab != wxNOT_FOUND && tabs->GetPageText(static_cast<std::size_t>(tab)) == caption) {
            left = left < 0 ? x : left;
            right = x;
        }
    }
    EXPECT_GE(left, 0) << "no tab " << caption;
    return tabs->ClientToScreen(wxPoint((left + right) / 2, kTabMiddle));
}

TEST_F(FigForm_, ATabShowsItsAmpersandAndNoAccessKey) {
    Use(kQuake, "bind w +forward\n");
    Edit([] {
        const bool readsKeys = wxPlatformInfo::Get().GetPortId() == wxPORT_MSW;
        EXPECT_EQ(FindAs<wxNotebook>("Main_Tab")->GetPageText(4), readsKeys ? "Save && Exit" : "Save & Exit");
    });
}

TEST_F(FigForm_, F3OpensTheSelectedScript) {
    Use(kQuake, "bind w +forward\n");
    DoAndAnswer([] { PressKey(WXK_F3); },
                [] {
                    auto* shown = dynamic_cast<FigForm*>(Find("Fig_Frm"));
                    ASSERT_NE(shown, nullptr);
                    EXPECT_EQ(shown->GetTitle(), "Setup Foundry - [C:/QUAKE/ID1/my.cfg]");
                    shown->Close();
                });
}

TEST_F(FigForm_, AKeyDraggedOntoARowIsBoundToIt) {
    Use(kQuake, "bind w +forward\n");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        EXPECT_EQ(Shown("Setting_Lbl(101)"), "{W}");
        EXPECT_EQ(BackOf("Key_Lbl(23)"), kGreen);
        Carry("Key_Lbl(5)", "Setting_Lbl(111)");
        EXPECT_TRUE(FindAs<CellLabel>("Setting_Lbl(111)")->Shown().Highlighted);
        Screenshot("foundry_drag");
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "{E}");
        EXPECT_EQ(BackOf("Key_Lbl(5)"), kGreen);
        EXPECT_FALSE(FindAs<CellLabel>("Setting_Lbl(111)")->Shown().Highlighted);
        EXPECT_FALSE(form->Model().Document.ScriptClean);
    });
}

TEST_F(FigForm_, ADropElsewhereBindsNothing) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Carry("Key_Lbl(5)", "Bound_Lbl(111)");
        EXPECT_FALSE(FindAs<CellLabel>("Setting_Lbl(111)")->Shown().Highlighted);
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "");
        EXPECT_TRUE(form->Model().Document.ScriptClean);
    });
}

TEST_F(FigForm_, EscapeGivesADragUp) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Carry("Key_Lbl(5)", "Setting_Lbl(111)");
        PressKey(WXK_ESCAPE);
        EXPECT_FALSE(FindAs<CellLabel>("Setting_Lbl(111)")->Shown().Highlighted);
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "");
        EXPECT_TRUE(form->IsShown());
    });
}

TEST_F(FigForm_, TheOtherButtonEndsNoDrag) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Carry("Key_Lbl(5)", "Setting_Lbl(111)");
        wxUIActionSimulator().MouseClick(wxMOUSE_BTN_RIGHT);
        Settle();
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "");
        EXPECT_TRUE(FindAs<CellLabel>("Setting_Lbl(111)")->Shown().Highlighted);
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "{E}");
    });
}

TEST_F(FigForm_, ARowThatIsScrolledOutOfSightTakesNoKey) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        form->SetSize(20, 60, 1000, 420);
        Settle(300);
        auto* content = dynamic_cast<wxScrolledWindow*>(form->GetChildren().front());
        content->Scroll(0, 1000);
        Settle(300);
        const wxRect hidden = Find("Setting_Lbl(101)")->GetScreenRect();
        ASSERT_LT(hidden.y, content->GetScreenRect().y);
        Grab("Key_Lbl(5)");
        // At once: a drag that stays beyond the edge pulls the rows back into sight.
        wxUIActionSimulator().MouseMove(hidden.GetTopLeft() + wxPoint(hidden.width / 2, hidden.height / 2));
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(101)"), "");
        Settle(kLongerThanADoubleClick);
        content->Scroll(0, 1000);
        Settle(300);
        Grab("Key_Lbl(5)");
        content->Scroll(0, 0);
        Settle(100);
        MoveTo(MiddleOf("Setting_Lbl(103)"));
        EXPECT_TRUE(SettleUntil([] { return FindAs<CellLabel>("Setting_Lbl(103)")->Shown().Highlighted; }));
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(103)"), "{E}");
    });
}

TEST_F(FigForm_, AnEmptyRowRefusesTheKey) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Extended);
        Carry("Key_Lbl(5)", "Setting_Lbl(501)");
        EXPECT_FALSE(FindAs<CellLabel>("Setting_Lbl(501)")->Shown().Highlighted);
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(501)"), "");
    });
}

TEST_F(FigForm_, TheKeypadIsTheTwinOfTheMainKeysInQuake) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Drag("Key_Lbl(88)", "Setting_Lbl(101)");
        EXPECT_EQ(Shown("Setting_Lbl(101)"), "{5}");
        EXPECT_EQ(BackOf("Key_Lbl(32)"), kGreen);
        EXPECT_EQ(BackOf("Key_Lbl(88)"), kGreen);
    });
}

TEST_F(FigForm_, ADoubleClickOnAKeyClearsItAndLeavesTheScriptClean) {
    Use(kQuake, "bind w +forward\n");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        MoveTo(MiddleOf("Key_Lbl(23)"));
        DoAndAnswer([] { wxUIActionSimulator().MouseDblClick(); },
                    [] {
                        EXPECT_EQ(wxGetTopLevelParent(Find("Button_Cmd(0)"))->GetLabel(), "Comfirm Clear");
                        ClickOn(Find("Button_Cmd(0)"));
                    });
        EXPECT_EQ(Shown("Setting_Lbl(101)"), "");
        EXPECT_EQ(BackOf("Key_Lbl(23)"), kWhite);
        EXPECT_TRUE(form->Model().Document.ScriptClean);
    });
}

TEST_F(FigForm_, ADoubleClickOnARowClearsItAndIsAnEdit) {
    Use(kQuake, "bind w +forward\n");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        MoveTo(MiddleOf("Setting_Lbl(101)"));
        DoAndAnswer([] { wxUIActionSimulator().MouseDblClick(); }, [] { ClickOn(Find("Button_Cmd(0)")); });
        EXPECT_EQ(Shown("Setting_Lbl(101)"), "");
        EXPECT_FALSE(form->Model().Document.ScriptClean);
    });
}

TEST_F(FigForm_, EnterOnARowWaitsForTheKey) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Find("Setting_Lbl(101)")->SetFocus();
        Settle();
        PressKey(WXK_RETURN);
        EXPECT_EQ(form->FindWindow("Hint_Lbl")->GetLabel(), "Press a key for Forward");
        Screenshot("foundry_capture");
        PressKey('K');
        EXPECT_EQ(Shown("Setting_Lbl(101)"), "{K}");
        PressKey(WXK_RETURN);
        PressKey(WXK_ESCAPE);
        EXPECT_EQ(Shown("Setting_Lbl(101)"), "{K}");
        EXPECT_EQ(form->Model().CaptureRow, kNoSlot);
        PressKey(WXK_DOWN);
        PressKey(WXK_RETURN);
        wxUIActionSimulator().MouseClick(wxMOUSE_BTN_RIGHT);
        Settle();
        EXPECT_EQ(Shown("Setting_Lbl(102)"), "M2");
    });
}

TEST_F(FigForm_, AKeyIsPickedUpAndDroppedByKeyboard) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Find("Key_Lbl(11)")->SetFocus();
        Settle();
        PressKey(WXK_RETURN);
        EXPECT_EQ(form->Model().PickedKey, 11);
        Find("Setting_Lbl(103)")->SetFocus();
        Settle();
        PressKey(WXK_RETURN);
        EXPECT_EQ(Shown("Setting_Lbl(103)"), "{K}");
        EXPECT_EQ(form->Model().PickedKey, kNoKey);
    });
}

TEST_F(FigForm_, AssistiveToolsReadKeysAndRows) {
    Use(kQuake, "bind w +forward\nbind uparrow +forward\n");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Find("Setting_Lbl(101)")->SetFocus();
        Settle();
        EXPECT_EQ(SpokenName(Find("Setting_Lbl(101)")->GetHandle()), "Forward: W : Up");
        Find("Key_Lbl(23)")->SetFocus();
        Settle();
        EXPECT_EQ(SpokenName(Find("Key_Lbl(23)")->GetHandle()), "W, Forward");
    });
}

TEST_F(FigForm_, UndoAndRedoByTheirKeys) {
    Use(kQuake, "bind w +forward\n");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Drag("Key_Lbl(5)", "Setting_Lbl(111)");
        PressKey('Z', wxMOD_CONTROL);
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "");
        EXPECT_EQ(BackOf("Key_Lbl(5)"), kWhite);
        EXPECT_TRUE(form->Model().Document.ScriptClean);
        PressKey('Y', wxMOD_CONTROL);
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "{E}");
        EXPECT_FALSE(form->Model().Document.ScriptClean);
    });
}

TEST_F(FigForm_, TheBoxAboveFindsAFunctionAndLeadsToIt) {
    Use(kQuake, "");
    Edit([this] {
        PressKey('F', wxMOD_CONTROL);
        TypeText("quick save");
        PressKey(WXK_RETURN);
        EXPECT_TRUE(Find("Setting_Lbl(406)")->IsShownOnScreen());
        EXPECT_TRUE(HasKeyboard(Find("Setting_Lbl(406)")));
        Screenshot("foundry_find");
    });
}

TEST_F(FigForm_, ATypedValueIsSavedThoughNoListHasIt) {
    Use(kQuake, "fov 90\n");
    Edit([this] {
        auto* fov = FindAs<wxComboBox>("fov_Cbo");
        EXPECT_EQ(fov->GetValue(), "90");
        fov->SetFocus();
        fov->SetSelection(-1, -1);
        TypeText("97");
        EXPECT_EQ(fov->GetValue(), "97");
        EXPECT_EQ(form->Model().Document.fov_Cbo.Selected(), "97");
        DoAndAnswer([] { PressKey('S', wxMOD_CONTROL); }, [] { ClickOn(Find("Button_Cmd(0)")); });
    });
    EXPECT_THAT(File(), HasSubstr("\r\nfov 97\r\n"));
}

TEST_F(FigForm_, TheFirstClickOnATabTurnsThePage) {
    Use(kQuake, "alias hop \"+jump\"\nalias duck \"+movedown\"\n");
    Edit([this] {
        MoveTo(TabCalled(FindAs<wxNotebook>("Main_Tab"), "Aliases"));
        wxUIActionSimulator().MouseClick();
        Settle(300);
        EXPECT_EQ(form->Model().Main_Tab.Tab, static_cast<int>(EditorPage::Aliases));
        EXPECT_TRUE(Find("Alias_Lst")->IsShownOnScreen());
    });
}

TEST_F(FigForm_, PagesAndListsNotYetSeenAreMadeInIdleMoments) {
    Use(kQuake, "sensitivity 5\n");
    Edit([] {
        EXPECT_TRUE(SettleUntil([] { return wxWindow::FindWindowByName("UnloadSF_Cmd") != nullptr; }, 5000));
        EXPECT_TRUE(SettleUntil([] { return FindAs<wxComboBox>("fov_Cbo")->GetCount() > 1; }, 5000));
        for (const char* name : {"Alias_Lst", "Setting_Lbl(501)", "FreeForm_Txt(0)"}) {
            EXPECT_FALSE(Find(name)->IsShownOnScreen()) << name;
        }
    });
}

TEST_F(FigForm_, SavesWhatWasBound) {
    Use(kQuake, "bind w +forward\n");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Drag("Key_Lbl(5)", "Setting_Lbl(112)");
        Turn(EditorPage::SaveAndExit);
        DoAndAnswer([] { ClickOn(Find("View_Cmd(6)")); },
                    [] {
                        Screenshot("foundry_saved");
                        ClickOn(Find("Button_Cmd(0)"));
                    });
        EXPECT_TRUE(form->Model().Document.ScriptClean);
    });
    EXPECT_THAT(File(), HasSubstr("bind \"e\"             \"+jump\"\r\n"));
    EXPECT_THAT(File(), HasSubstr("bind \"w\"             \"+forward\"\r\n"));
}

/// Each kind of game in turn, on a screen of 1024 by 768.
class FigFormOfKind : public FigForm_, public ::testing::WithParamInterface<KindOfGame> {
  protected:
    /// What is shown of a page has its whole text and lies within the window.
    void ExpectNothingCutOff(wxWindow* window) {
        if (!window->IsShownOnScreen()) {
            return;
        }
        const wxString what = window->GetName() + " " + window->GetLabel();
        const bool whole = dynamic_cast<wxCheckBox*>(window) != nullptr || dynamic_cast<wxButton*>(window) != nullptr ||
                           dynamic_cast<wxComboBox*>(window) != nullptr ||
                           dynamic_cast<wxStaticText*>(window) != nullptr;
        if (whole) {
            EXPECT_GE(window->GetSize().x, window->GetBestSize().x) << what;
            EXPECT_GE(window->GetSize().y, window->GetBestSize().y) << what;
        }
        const bool label = dynamic_cast<CellLabel*>(window) != nullptr;
        if (label && !window->GetName().StartsWith("NamePosition")) {
            EXPECT_GE(window->GetSize().y, window->GetTextExtent("Wg").y) << what;
        }
        if (whole || label) {
            const wxRect room = form->GetScreenRect();
            EXPECT_TRUE(room.Contains(window->GetScreenRect())) << what;
        }
        for (wxWindow* child : window->GetChildren()) {
            ExpectNothingCutOff(child);
        }
    }

    void Keep(const std::string& page) {
        const wxWindow* const content = form->GetChildren().front();
        const wxSize wanted = content->GetSizer()->CalcMin();
        EXPECT_LE(wanted.x, content->GetClientSize().x) << page;
        EXPECT_LE(wanted.y, content->GetClientSize().y) << page;
        ExpectNothingCutOff(form);
        Screenshot("foundry_" + std::string(GetParam().Name) + "_" + page);
    }
};

INSTANTIATE_TEST_SUITE_P(Kinds, FigFormOfKind, ::testing::ValuesIn(kGames),
                         [](const auto& kind) { return std::string(kind.param.Name); });

TEST_P(FigFormOfKind, EveryPageFitsTheScreen) {
    Use(GetParam(),
        GetParam().Dialect.GameKind == Game::Unreal ? "[Engine.Input]\nW=MoveForward\n" : "bind w +forward\n");
    Edit([this] {
        MakeAllPages();
        Settle();
        EXPECT_LE(form->GetRect().GetRight(), 1024);
        EXPECT_LE(form->GetRect().GetBottom(), 768);
        auto* options = FindAs<wxNotebook>("Options_Tab");
        for (std::size_t page = 0; page < options->GetPageCount(); ++page) {
            options->SetSelection(page);
            Settle();
            Keep("options_" + std::to_string(page));
        }
        Turn(EditorPage::Bindings);
        auto* bindings = FindAs<wxNotebook>("Bindings_Tab");
        for (std::size_t page = 0; page < bindings->GetPageCount(); ++page) {
            bindings->SetSelection(page);
            Settle();
            Keep("bindings_" + std::to_string(page));
        }
        ClickOn(Find("JoyToggle_Cmd(0)"));
        Keep("joystick");
        for (const EditorPage page : {EditorPage::Aliases, EditorPage::FreeForm, EditorPage::SaveAndExit}) {
            Turn(page);
            Keep("page_" + std::to_string(static_cast<int>(page)));
        }
    });
}

class FigFormClosing : public FigForm_ {
  protected:
    /// Closes with an unsaved change and answers; whether the window is still there.
    bool StaysAfter(bool tick, const char* button, bool savesWith) {
        Use(kQuake, "bind w +forward\n");
        bool stays = false;
        Edit([&] {
            TurnBindings(BindingsPage::Standard);
            Drag("Key_Lbl(5)", "Setting_Lbl(112)");
            WhenModal([&, savesWith] {
                EXPECT_EQ(wxGetTopLevelParent(Find("Yes_Cmd"))->GetLabel(), "Confirm Exit");
                if (tick) {
                    ClickOn(Find("SaveNow_Chk"));
                }
                ClickOn(Find(button));
            });
            const std::unique_ptr<AnswersBoxes> answers(savesWith ? new AnswersBoxes : nullptr);
            form->Close();
            Settle();
            stays = !form->Model().Closed;
        });
        return stays;
    }
};

TEST_F(FigFormClosing, YesLeavesWithoutSaving) {
    EXPECT_FALSE(StaysAfter(false, "Yes_Cmd", false));
    EXPECT_THAT(File(), testing::Not(HasSubstr("+jump")));
}

TEST_F(FigFormClosing, NoStays) {
    EXPECT_TRUE(StaysAfter(false, "No_Cmd", false));
    EXPECT_THAT(File(), testing::Not(HasSubstr("+jump")));
}

TEST_F(FigFormClosing, YesWithTheTickSavesAndLeaves) {
    EXPECT_FALSE(StaysAfter(true, "Yes_Cmd", true));
    EXPECT_THAT(File(), HasSubstr("+jump"));
}

TEST_F(FigFormClosing, NoWithTheTickSavesAndStays) {
    EXPECT_TRUE(StaysAfter(true, "No_Cmd", true));
    EXPECT_THAT(File(), HasSubstr("+jump"));
}

TEST_F(FigForm_, TheSavePageHasItsFrames) {
    Use(kGames[0], "");
    Edit([this] {
        Turn(EditorPage::SaveAndExit);
        for (const char* caption : {"Auto Save", "Save Script Now", "Exit SetupFoundry Now"}) {
            const wxWindow* const frame = wxWindow::FindWindowByLabel(caption, form);
            ASSERT_NE(frame, nullptr) << caption;
            EXPECT_TRUE(frame->IsShownOnScreen()) << caption;
        }
    });
}

}  // namespace
}  // namespace lv
