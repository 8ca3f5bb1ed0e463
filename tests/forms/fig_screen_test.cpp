// The editor on screens that are too small for it. These tests run on a screen of 1920 by 1080 at 200 % too.

#include <wx/display.h>

#include "tests/forms/fig_form_fixture.h"

namespace lv {
namespace {

constexpr const KindOfGame& kQuake = kGames[0];

/// Whether no part of the control lies beyond the edge of a window that it stands in, or of the screen.
bool IsSeenWhole(const std::string& name) {
    const wxWindow* window = Find(name);
    const wxRect place = window->GetScreenRect();
    for (; window != nullptr && !window->IsTopLevel(); window = window->GetParent()) {
        if (!window->GetScreenRect().Contains(place)) {
            return false;
        }
    }
    return window != nullptr && window->GetScreenRect().Contains(place) &&
           wxDisplay(0U).GetClientArea().Contains(place);
}

/// The window that holds the mouse gets the turn of the wheel.
void TurnWheelDown(const std::string& holder, const wxPoint& at) {
    wxMouseEvent turn(wxEVT_MOUSEWHEEL);
    turn.SetPosition(Find(holder)->ScreenToClient(at));
    turn.m_wheelRotation = -120;
    turn.m_wheelDelta = 120;
    turn.m_linesPerAction = 3;
    Find(holder)->ProcessWindowEvent(turn);
}

/// As little of the rows as on the smallest of screens.
void ShowFewRows(wxWindow* form) {
    constexpr int kFewRows = 230;
    Find("Main_Tab")->SetMinSize(wxSize(-1, form->FromDIP(kFewRows)));
    wxWindow* const content = form->GetChildren().front();
    content->FitInside();
    form->SetClientSize(form->GetClientSize().x, content->GetSizer()->CalcMin().y);
    Settle(300);
}

class EditorOnAnyScreen : public FigForm_ {};

TEST_F(EditorOnAnyScreen, RowsAndKeysAreSeenTogether) {
    Use(kQuake, "bind w +forward\n");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Screenshot("foundry_on_its_screen");
        for (const char* name : {"Find_Txt", "Redo_Cmd", "Setting_Lbl(101)", "Setting_Lbl(104)", "Setting_Lbl(204)",
                                 "Key_Lbl(5)", "Key_Lbl(80)", "JoyToggle_Cmd(0)"}) {
            EXPECT_TRUE(IsSeenWhole(name)) << name;
        }
        Drag("Key_Lbl(5)", "Setting_Lbl(103)");
        EXPECT_EQ(Shown("Setting_Lbl(103)"), "{E}");
    });
}

TEST_F(EditorOnAnyScreen, ARowComesIntoSightWithTheKeyboard) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Find("Setting_Lbl(116)")->SetFocus();
        Settle(300);
        EXPECT_TRUE(IsSeenWhole("Setting_Lbl(116)"));
        EXPECT_TRUE(IsSeenWhole("Key_Lbl(5)"));
        Find("Setting_Lbl(101)")->SetFocus();
        Settle(300);
        EXPECT_TRUE(IsSeenWhole("Setting_Lbl(101)"));
    });
}

TEST_F(EditorOnAnyScreen, ARowBehindTheKeysTakesNoKey) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        ShowFewRows(form);
        const wxPoint hidden = MiddleOf("Setting_Lbl(116)");
        ASSERT_GT(hidden.y, Find("Keyboard_Fra")->GetScreenRect().y);
        Grab("Key_Lbl(5)");
        MoveTo(hidden);
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(116)"), "");
        EXPECT_TRUE(form->Model().Document.ScriptClean);
    });
}

TEST_F(EditorOnAnyScreen, TheWheelScrollsTheRowsUnderADrag) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        ShowFewRows(form);
        const wxPoint place = MiddleOf("Setting_Lbl(102)");
        Grab("Key_Lbl(5)");
        MoveTo(place);
        EXPECT_TRUE(FindAs<CellLabel>("Setting_Lbl(102)")->Shown().Highlighted);
        TurnWheelDown("Key_Lbl(5)", place);
        Settle(200);
        EXPECT_LT(MiddleOf("Setting_Lbl(102)").y, place.y);
        EXPECT_FALSE(FindAs<CellLabel>("Setting_Lbl(102)")->Shown().Highlighted);
        Drop();
        EXPECT_EQ(Shown("Setting_Lbl(102)"), "");
        EXPECT_FALSE(form->Model().Document.ScriptClean);
    });
}

TEST_F(EditorOnAnyScreen, EveryPageIsReached) {
    Use(kQuake, "");
    Edit([this] {
        for (const EditorPage page :
             {EditorPage::Player, EditorPage::Aliases, EditorPage::FreeForm, EditorPage::SaveAndExit}) {
            Turn(page);
            Screenshot("foundry_small_" + std::to_string(static_cast<int>(page)));
        }
        Turn(EditorPage::SaveAndExit);
        Find("UnloadSF_Cmd")->SetFocus();
        Settle(300);
        EXPECT_TRUE(IsSeenWhole("UnloadSF_Cmd"));
    });
}

}  // namespace
}  // namespace lv
