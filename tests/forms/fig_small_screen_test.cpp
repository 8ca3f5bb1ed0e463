// The editor on screens that are too small for it. These tests run on a screen of 960 by 540 too.

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/scrolwin.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "foundry/forms/cell_label.h"
#include "tests/forms/fig_form_fixture.h"

namespace lv {
namespace {

template <class... Kinds>
bool IsOneOf(const wxWindow* window) {
    return ((dynamic_cast<const Kinds*>(window) != nullptr) || ...);
}

bool IsControl(const wxWindow* window) {
    return IsOneOf<wxCheckBox, wxButton, wxChoice, wxComboBox, wxListBox, wxStaticText, wxTextCtrl, CellLabel>(window);
}

/// How much of a window its parent shows, or would show once it is scrolled.
wxRect ReachOf(const wxWindow* parent) {
    const auto* scrolled = dynamic_cast<const wxScrolledWindow*>(parent);
    if (scrolled == nullptr) {
        return {parent->ClientToScreen(wxPoint(0, 0)), parent->GetClientSize()};
    }
    return {parent->ClientToScreen(scrolled->CalcScrolledPosition(wxPoint(0, 0))), parent->GetVirtualSize()};
}

wxString Told(const wxRect& rect) {
    return wxString::Format(" (%d, %d, %d x %d)", rect.x, rect.y, rect.width, rect.height);
}

class FoundryOnAnyScreen : public FigForm_, public ::testing::WithParamInterface<KindOfGame> {
  protected:
    static void ExpectInReach(const wxWindow* control, const std::string& page) {
        wxRect place = control->GetScreenRect();
        for (const wxWindow* parent = control->GetParent(); parent != nullptr; parent = parent->GetParent()) {
            const wxRect reach = ReachOf(parent);
            EXPECT_TRUE(reach.Contains(place)) << page << ": " << control->GetName() << " " << control->GetLabel()
                                               << Told(place) << " in " << parent->GetName() << Told(reach);
            if (dynamic_cast<const wxScrolledWindow*>(parent) != nullptr) {
                place = parent->GetScreenRect();
            }
            if (parent->IsTopLevel() || !reach.Contains(place)) {
                return;
            }
        }
    }

    static void ExpectInReachWithin(const wxWindow* window, const std::string& page) {
        std::vector<const wxWindow*> seen;
        for (const wxWindow* child : window->GetChildren()) {
            if (!child->IsShownOnScreen() || child->IsTopLevel()) {
                continue;
            }
            if (IsControl(child)) {
                ExpectInReach(child, page);
                for (const wxWindow* other : seen) {
                    EXPECT_FALSE(other->GetRect().Intersects(child->GetRect()))
                        << page << ": " << child->GetName() << " " << child->GetLabel() << " over " << other->GetName()
                        << " " << other->GetLabel();
                }
                seen.push_back(child);
            }
            ExpectInReachWithin(child, page);
        }
    }

    void Look(const std::string& page) {
        Settle();
        ExpectInReachWithin(form, page);
        Screenshot("small_" + std::string(GetParam().Name) + "_" + page);
    }

    void PressNamesButton() {
        wxWindow* const button = Find("ViewCustomLetters_Cmd");
        button->SetFocus();
        Settle();
        PressKey(WXK_SPACE);
    }

    void LookAtTabs(const char* name) {
        auto* tabs = FindAs<wxNotebook>(name);
        for (std::size_t page = 0; page < tabs->GetPageCount(); ++page) {
            tabs->SetSelection(page);
            Look(std::string(name) + "_" + std::to_string(page));
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Kinds, FoundryOnAnyScreen, ::testing::ValuesIn(kGames),
                         [](const auto& kind) { return std::string(kind.param.Name); });

TEST_P(FoundryOnAnyScreen, EveryControlOfEveryPageIsInReachOfABar) {
    Use(GetParam(),
        GetParam().Dialect.GameKind == Game::Unreal ? "[Engine.Input]\nW=MoveForward\n" : "bind w +forward\n");
    Edit([this] {
        MakeAllPages();
        LookAtTabs("Options_Tab");
        Turn(EditorPage::Bindings);
        LookAtTabs("Bindings_Tab");
        for (const EditorPage page : {EditorPage::Aliases, EditorPage::FreeForm, EditorPage::SaveAndExit}) {
            Turn(page);
            Look("page_" + std::to_string(static_cast<int>(page)));
        }
    });
}

TEST_P(FoundryOnAnyScreen, TheNamesEditorLeavesTheNameInSight) {
    Use(GetParam(),
        GetParam().Dialect.GameKind == Game::Unreal ? "[Engine.Input]\nW=MoveForward\n" : "bind w +forward\n");
    Edit([this] {
        Settle(300);
        DoAndAnswer([this] { PressNamesButton(); },
                    [this] {
                        Settle(300);
                        const wxRect editor = wxGetTopLevelParent(Find("Picture1"))->GetScreenRect();
                        for (const char* name : {"Name_Pic", "NamePosition_Lbl(1)"}) {
                            const wxRect place = Find(name)->GetScreenRect();
                            EXPECT_FALSE(editor.Intersects(place)) << name << Told(place) << " under" << Told(editor);
                            EXPECT_GE(place.y, form->GetScreenRect().y) << name;
                        }
                        Screenshot("small_" + std::string(GetParam().Name) + "_names");
                        PressKey(WXK_ESCAPE);
                    });
    });
}

TEST_P(FoundryOnAnyScreen, TheKeyboardBringsTheLastSettingOfAPageIntoSight) {
    const bool unreal = GetParam().Dialect.GameKind == Game::Unreal;
    Use(GetParam(), unreal ? "[Engine.Input]\nW=MoveForward\n" : "bind w +forward\n");
    Edit([this, unreal] {
        MakeAllPages();
        FindAs<wxNotebook>("Options_Tab")->SetSelection(1);
        Settle();
        const wxWindow* const last = Find(unreal ? "UnrealPassword_Txt" : "scr_centerspeed_Cbo");
        Find(last->GetName().utf8_string())->SetFocus();
        Settle(300);
        for (const wxWindow* parent = last->GetParent(); !parent->IsTopLevel(); parent = parent->GetParent()) {
            const wxRect shown(parent->ClientToScreen(wxPoint(0, 0)), parent->GetClientSize());
            EXPECT_TRUE(shown.y <= last->GetScreenRect().y && last->GetScreenRect().GetBottom() <= shown.GetBottom())
                << parent->GetName() << Told(last->GetScreenRect()) << " in " << Told(shown);
        }
    });
}

}  // namespace
}  // namespace lv
