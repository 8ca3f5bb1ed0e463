// Rows of long lists, found by typing, in real windows.

#include "foundation/forms/search_keys.h"

#include <gtest/gtest.h>
#include <wx/choice.h>
#include <wx/dialog.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "foundation/forms/binder.h"
#include "platform/toolkit/spoken_name.h"
#include "tests/forms/lv_form_fixture.h"
#include "tests/forms/window_manners.h"

namespace lv {
namespace {

constexpr int kPause = 1700;  // milliseconds, longer than a search lives without a key

/// What the bubble says; empty without one.
std::string Bubble() {
    const wxWindow* const bubble = wxWindow::FindWindowByName(kSearchBubbleName);
    return bubble == nullptr || !bubble->IsShown()
               ? std::string()
               : static_cast<wxStaticText*>(bubble->GetChildren().front())->GetLabelText().utf8_string();
}

class SearchedLists : public LvForm_ {
  protected:
    void AddMaps(int count) {
        maps.Items.clear();
        for (int i = 0; i < count; ++i) {
            maps.Items.push_back("map" + std::to_string(i));
        }
        maps.Items[5] = "The Bad Place";
        maps.Items[7] = "dm4 of old";
        maps.Items[9] = "my dm4";
        maps.ListIndex = 0;
        user.Refresh();
        list = FindAs<wxChoice>("Map_Cbo");
        list->SetFocus();
        Settle();
        ASSERT_TRUE(HasKeyboard(list));
    }
    /// That assistive tools are told so.
    void ExpectSpoken(const std::string& name) {
        if (SystemKeepsNames(*list)) {
            EXPECT_EQ(SpokenName(list->GetHandle()), name);
        }
    }

    ListBox& maps = launcher.Window.Map_Cbo;
    wxChoice* list = nullptr;
};

TEST_F(SearchedLists, TypingAnyPartOfANameGoesToItsRow) {
    AddMaps(40);
    TypeText("bad");
    EXPECT_EQ(maps.ListIndex, 5);
    EXPECT_EQ(list->GetSelection(), 5);
    EXPECT_EQ(Bubble(), "Search: bad (1 of 1)");
    ExpectSpoken("Start map, Search: bad (1 of 1)");
    Screenshot("search_in_list");
    TypeText(" p");
    EXPECT_EQ(Bubble(), "Search: bad p (1 of 1)");
    TypeText("x");
    EXPECT_EQ(Bubble(), "Search: bad px (nothing found)");
    EXPECT_EQ(maps.ListIndex, 5);
    EXPECT_TRUE(HasKeyboard(list));
}

TEST_F(SearchedLists, UpAndDownGoFromHitToHit) {
    AddMaps(40);
    TypeText("dm");
    EXPECT_EQ(maps.ListIndex, 7);
    PressKey(WXK_DOWN);
    EXPECT_EQ(maps.ListIndex, 9);
    EXPECT_EQ(Bubble(), "Search: dm (2 of 2)");
    PressKey(WXK_UP);
    EXPECT_EQ(maps.ListIndex, 7);
}

TEST_F(SearchedLists, BackspaceTakesALetterBackAndEscapeEndsTheSearch) {
    AddMaps(40);
    TypeText("map39");
    EXPECT_EQ(maps.ListIndex, 39);
    PressKey(WXK_BACK);
    EXPECT_EQ(Bubble(), "Search: map3 (1 of 11)");
    EXPECT_EQ(maps.ListIndex, 3);
    PressKey(WXK_ESCAPE);
    EXPECT_EQ(Bubble(), "");
    ExpectSpoken("Start map");
    EXPECT_EQ(maps.ListIndex, 3);
    TypeText("bad");
    EXPECT_EQ(maps.ListIndex, 5) << "anew";
}

TEST_F(SearchedLists, APauseEndsTheSearch) {
    AddMaps(40);
    TypeText("ba");
    Settle(kPause);
    EXPECT_EQ(Bubble(), "");
    ExpectSpoken("Start map");
    TypeText("dm");
    EXPECT_EQ(Bubble(), "Search: dm (1 of 2)");
}

TEST_F(SearchedLists, LeavingTheListEndsTheSearch) {
    AddMaps(40);
    TypeText("ba");
    PressKey(WXK_TAB);
    EXPECT_EQ(Bubble(), "");
    EXPECT_FALSE(HasKeyboard(list));
}

TEST_F(SearchedLists, AListThatIsOpenIsSearchedToo) {
    AddMaps(40);
    ClickOn(list);
    Settle(500);
    TypeText("bad");
    Settle();
    EXPECT_EQ(maps.ListIndex, 5);
    EXPECT_EQ(Bubble(), "Search: bad (1 of 1)");
    Screenshot("search_in_open_list");
    PressKey(WXK_ESCAPE);
    EXPECT_EQ(Bubble(), "");
    EXPECT_TRUE(HasKeyboard(list));
}

TEST_F(SearchedLists, AListOfThousandsThatIsOpenIsSearchedToo) {
    AddMaps(2000);
    ClickOn(list);
    Settle(1000);
    TypeText("bad");
    Settle();
    EXPECT_EQ(maps.ListIndex, 5);
    EXPECT_EQ(Bubble(), "Search: bad (1 of 1)");
}

TEST_F(SearchedLists, AShortListIsNotSearched) {
    AddMaps(20);
    TypeText("bad");
    EXPECT_EQ(Bubble(), "");
    EXPECT_NE(maps.ListIndex, 5);
}

TEST_F(SearchedLists, TheListOfGamesIsSearchedByItsTitles) {
    ImageCombo& games = launcher.Window.Exe_Cbo;
    for (int i = 0; i < 25; ++i) {
        games.Items.push_back({"Mission " + std::to_string(i), "C:\\M" + std::to_string(i) + ".EXE", "Quake", "Quake"});
    }
    user.Refresh();
    auto* view = Find("Exe_Cbo");
    view->SetFocus();
    Settle();
    TypeText("real");
    EXPECT_EQ(games.Items[static_cast<std::size_t>(games.ListIndex)].Title, "Unreal");
    EXPECT_EQ(run.GameKind, Game::Unreal) << "picked as by its user";
    EXPECT_EQ(Bubble(), "Search: real (1 of 1)");
}

/// A dialog with a list of rows.
class ListDialog : public wxDialog {
  public:
    ListDialog() : wxDialog(nullptr, wxID_ANY, "Rows"), Controls([this] { Controls.Show(); }) {
        for (int i = 0; i < 60; ++i) {
            Rows.Items.push_back("row " + std::to_string(i));
        }
        Rows.ListIndex = 0;
        View = new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(200, 120)));
        Controls.Bind("Searched_Lst", Rows, View, [this] { ++Clicks; });
        Controls.Show();
        Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& key) {
            Escapes += key.GetKeyCode() == WXK_ESCAPE ? 1 : 0;
            key.Skip(key.GetKeyCode() != WXK_ESCAPE);
        });
        auto* room = new wxBoxSizer(wxVERTICAL);
        room->Add(View, wxSizerFlags(1).Expand());
        SetSizerAndFit(room);
        Show();
        BringForward(this);
        View->SetFocus();
        Settle();
    }

    Binder Controls;
    ListBox Rows;
    wxListBox* View = nullptr;
    int Clicks = 0;
    int Escapes = 0;
};

TEST(SearchedListBox, ShowsTheFoundRowAndArrowsGoOnFromThere) {
    ListDialog dialog;
    ASSERT_TRUE(HasKeyboard(dialog.View));
    TypeText("w 4");
    EXPECT_EQ(dialog.Rows.ListIndex, 4);
    TypeText("7");
    EXPECT_EQ(dialog.Rows.ListIndex, 47);
    EXPECT_EQ(dialog.View->GetSelection(), 47);
    EXPECT_GE(dialog.Clicks, 1);
    const int top = dialog.View->GetTopItem();
    EXPECT_LE(top, 47);
    EXPECT_LE(47, top + dialog.View->GetCountPerPage());
    EXPECT_EQ(Bubble(), "Search: w 47 (1 of 1)");
    PressKey(WXK_ESCAPE);
    EXPECT_EQ(dialog.Escapes, 0) << "it ended the search alone";
    PressKey(WXK_DOWN);
    EXPECT_EQ(dialog.Rows.ListIndex, 48);
    PressKey(WXK_ESCAPE);
    EXPECT_EQ(dialog.Escapes, 1);
}

}  // namespace
}  // namespace lv
