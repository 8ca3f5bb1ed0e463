// The editor without a mouse.

#include <wx/scrolwin.h>

#include "foundation/forms/help_bubble.h"
#include "platform/toolkit/spoken_name.h"
#include "tests/forms/fig_form_fixture.h"

namespace lv {
namespace {

constexpr const KindOfGame& kQuake = kGames[0];

class FigKeyboard : public FigForm_ {};

bool CameTo(const char* name) {
    const bool came = SettleUntil([name] { return HasKeyboard(Find(name)); }, 1000);
    const wxWindow* const focus = wxWindow::FindFocus();
    EXPECT_TRUE(came) << "at " << (focus == nullptr ? wxString("nothing") : focus->GetName());
    return came;
}

TEST_F(FigKeyboard, TabGoesFromTheTabsToTheRowsAndTheKeysAndBack) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Find("Bindings_Tab")->SetFocus();
        Settle();
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("Setting_Lbl(101)"));
        PressKey(WXK_DOWN);
        EXPECT_TRUE(CameTo("Setting_Lbl(102)"));
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("Key_Lbl(0)"));
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("JoyToggle_Cmd(0)"));
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("Find_Txt"));
        PressKey(WXK_TAB, wxMOD_SHIFT);
        EXPECT_TRUE(CameTo("JoyToggle_Cmd(0)"));
        PressKey(WXK_TAB, wxMOD_SHIFT);
        EXPECT_TRUE(CameTo("Key_Lbl(0)"));
        PressKey(WXK_TAB, wxMOD_SHIFT);
        EXPECT_TRUE(CameTo("Setting_Lbl(102)"));
        PressKey(WXK_TAB, wxMOD_SHIFT);
        EXPECT_TRUE(CameTo("Bindings_Tab"));
        EXPECT_FALSE(HasKeyboard(Find("Setting_Lbl(102)")));
    });
}

TEST_F(FigKeyboard, TabGoesToTheRowsOfMessagesAndThenToTheirBoxes) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Talking);
        Find("Bindings_Tab")->SetFocus();
        Settle();
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("Setting_Lbl(801)"));
        PressKey(WXK_DOWN);
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("Say_Team_Chk(801)"));
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("Say_Team_Chk(802)"));
        Find("Say_Team_Chk(813)")->SetFocus();
        Settle();
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("AddMessage_Cmd"));
    });
}

TEST_F(FigKeyboard, TabGoesToTheKeysOfTheController) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Find("Key_Lbl(5)")->SetFocus();
        ClickOn(Find("JoyToggle_Cmd(0)"));
        Find("Setting_Lbl(103)")->SetFocus();
        Settle();
        PressKey(WXK_TAB);
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("Key_Lbl(98)"));
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("JoyToggle_Cmd(1)"));
    });
}

TEST_F(FigKeyboard, UndoInTheFindBoxLeavesTheScriptAlone) {
    Use(kQuake, "bind w +forward\n");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Find("Key_Lbl(5)")->SetFocus();
        PressKey(WXK_RETURN);
        Find("Setting_Lbl(111)")->SetFocus();
        PressKey(WXK_RETURN);
        ASSERT_EQ(Shown("Setting_Lbl(111)"), "{E}");
        PressKey('F', wxMOD_CONTROL);
        PressKey('Z', wxMOD_CONTROL);
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "{E}");
        Find("Setting_Lbl(111)")->SetFocus();
        Settle();
        PressKey('Z', wxMOD_CONTROL);
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "");
        PressKey('F', wxMOD_CONTROL);
        PressKey('Y', wxMOD_CONTROL);
        EXPECT_EQ(Shown("Setting_Lbl(111)"), "");
    });
}

TEST_F(FigKeyboard, WhatHasTheKeyboardIsScrolledIntoSightAndTheHintStaysThere) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        form->SetSize(20, 60, 1000, 420);
        Settle(300);
        const auto inside = [this](const char* name) {
            const wxRect frame(form->ClientToScreen(wxPoint()), form->GetClientSize());
            return SettleUntil([&] { return frame.Contains(form->FindWindow(name)->GetScreenRect()); }, 1000);
        };
        EXPECT_TRUE(inside("Hint_Lbl"));
        PressKey('F', wxMOD_CONTROL);
        TypeText("f5");
        PressKey(WXK_RETURN);
        EXPECT_TRUE(CameTo("Key_Lbl(41)"));
        EXPECT_TRUE(inside("Key_Lbl(41)"));
        Find("Setting_Lbl(112)")->SetFocus();
        Settle();
        EXPECT_TRUE(inside("Setting_Lbl(112)"));
        PressKey(WXK_RETURN);
        EXPECT_EQ(form->FindWindow("Hint_Lbl")->GetLabel(), "Press a key for Jump");  // not the main window's
        EXPECT_TRUE(inside("Hint_Lbl"));
        PressKey(WXK_ESCAPE);
    });
}

TEST_F(FigKeyboard, ADragThatNearsTheEdgeScrollsTheWindow) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        form->SetSize(20, 60, 1000, 420);
        Settle(300);
        auto* content = dynamic_cast<wxScrolledWindow*>(form->GetChildren().front());
        content->Scroll(0, 1000);
        Settle(300);
        const int below = content->GetViewStart().y;
        ASSERT_GT(below, 0);
        Grab("Key_Lbl(5)");
        MoveTo(content->GetScreenRect().GetTopLeft() + wxPoint(300, 6));
        EXPECT_TRUE(SettleUntil([&] { return content->GetViewStart().y == 0; }, 5000));
        MoveTo(MiddleOf("Setting_Lbl(103)"));
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(103)"), "{E}");
    });
}

TEST_F(FigKeyboard, AnyKeyClosesWhatThisIs) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        const auto bubble = [] { return wxWindow::FindWindowByName(kHelpBubbleName); };
        Find("Setting_Lbl(105)")->SetFocus();
        Settle();
        PressKey(WXK_F1, wxMOD_SHIFT);
        ASSERT_NE(bubble(), nullptr);
        EXPECT_TRUE(bubble()->IsShownOnScreen());
        const wxRect row = Find("Setting_Lbl(105)")->GetScreenRect();
        EXPECT_NEAR(bubble()->GetScreenRect().x, row.x, 2);
        EXPECT_GE(bubble()->GetScreenRect().y, row.GetBottom());
        EXPECT_LE(bubble()->GetScreenRect().y, row.GetBottom() + 8);
        Screenshot("foundry_whats_this");
        PressKey(WXK_ESCAPE);
        EXPECT_EQ(bubble(), nullptr);
        EXPECT_FALSE(form->Model().Closed);
        PressKey(WXK_F1, wxMOD_SHIFT);
        ASSERT_NE(bubble(), nullptr);
        PressKey(WXK_DOWN);
        EXPECT_EQ(bubble(), nullptr);
        EXPECT_TRUE(CameTo("Setting_Lbl(106)"));
        RightClickOn(Find("FindNext_Cmd"));
        ASSERT_NE(bubble(), nullptr);
        PressKey('K');
        EXPECT_EQ(bubble(), nullptr);
    });
}

TEST_F(FigKeyboard, ShiftF1TellsInTheDialogsToo) {
    Use(kQuake, "");
    user.OnHelpKey([] {});
    Edit([this] {
        Turn(EditorPage::Aliases);
        DoAndAnswer([] { ClickOn(Find("AddCustomAlias_Cmd")); },
                    [] {
                        PressKey(WXK_F1, wxMOD_SHIFT);
                        EXPECT_NE(wxWindow::FindWindowByName(kHelpBubbleName), nullptr);
                        PressKey(WXK_ESCAPE);
                        EXPECT_EQ(wxWindow::FindWindowByName(kHelpBubbleName), nullptr);
                        EXPECT_TRUE(Find("AliasName_Txt")->IsShownOnScreen());
                        Find("AddableCommands_Cbo")->SetFocus();
                        Settle();
                        PressKey(WXK_F1, wxMOD_SHIFT);
                        EXPECT_NE(wxWindow::FindWindowByName(kHelpBubbleName), nullptr);
                        PressKey(WXK_ESCAPE);
                        PressKey(WXK_ESCAPE);
                    });
    });
}

TEST_F(FigKeyboard, RowsAndKeysHaveTheirNamesBeforeTheKeyboardComes) {
    Use(kQuake, "bind w +forward\nbind uparrow +forward\n");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        const auto named = [](const char* control, const std::string& name) {
            return SettleUntil([&] { return SpokenName(Find(control)->GetHandle()) == name; }, 3000);
        };
        EXPECT_TRUE(named("Setting_Lbl(101)", "Forward: W : Up"));
        EXPECT_TRUE(named("Key_Lbl(41)", "F5, free"));
        EXPECT_TRUE(named("Key_Lbl(23)", "W, Forward"));
        Drag("Key_Lbl(23)", "Setting_Lbl(102)");
        EXPECT_TRUE(named("Key_Lbl(23)", "W, Backward"));
    });
}

}  // namespace
}  // namespace lv
