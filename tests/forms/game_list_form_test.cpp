#include "launcher/forms/game_list_form.h"

#include <wx/listctrl.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <functional>
#include <string>
#include <vector>

#include "launcher/menu/menu_table.h"
#include "platform/toolkit/spoken_name.h"
#include "tests/forms/lv_form_fixture.h"
#include "tests/forms/window_manners.h"

namespace lv {
namespace {

constexpr int kHeadBelowTop = 10;  // pixels from the table's top into its head

/// The window of all executables over the real main window.
class GameListForms : public LvForm_ {
  protected:
    GameListForms() {
        system.Time.Is = {2024, 3, 1, 20, 0, 0};
        Save(run, "Played", "c:\\quake2\\quake2.exe", "2024-03-01 14:30:05;3660;12");
        Save(run, "Played", "c:\\unreal\\system\\unreal.exe", "2024-02-29 14:30:05;0;1");
        user.AddForms(MakeGameListForm);
    }

    void Open(const std::function<void()>& act) {
        WhenModal(act);
        Menu_Click(launcher, MenuItem::GameList_Bar);
        user.Refresh();
    }
    static wxListCtrl* Rows() { return FindAs<wxListCtrl>("Games_Lst"); }
    static std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (long row = 0; row < Rows()->GetItemCount(); ++row) {
            titles.push_back(Rows()->GetItemText(row).utf8_string());
        }
        return titles;
    }
    static long Selected() { return Rows()->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED); }
    static void ClickAt(const wxPoint& place) {
        wxUIActionSimulator hand;
        hand.MouseMove(place);
        Settle();
        hand.MouseClick();
        Settle();
    }
};

TEST_F(GameListForms, ShowsWhatWasPlayedLastOnTop) {
    Open([] {
        EXPECT_EQ(Titles(), (std::vector<std::string>{"Quake 2", "Unreal", "Quake"}));
        EXPECT_EQ(Rows()->GetItemText(0, 1), "Quake2");
        EXPECT_EQ(Rows()->GetItemText(0, 2), "today, 14:30");
        EXPECT_EQ(Rows()->GetItemText(0, 3), "1:01");
        EXPECT_EQ(Rows()->GetItemText(0, 4), "12");
        EXPECT_EQ(Rows()->GetItemText(1, 2), "yesterday");
        EXPECT_EQ(Rows()->GetItemText(2, 2), "never");
        EXPECT_EQ(Selected(), 0);
        EXPECT_TRUE(HasKeyboard(Find("GameSearch_Txt")));
        if (SystemKeepsNames(*Rows())) {
            EXPECT_EQ(SpokenName(Find("GameSearch_Txt")->GetHandle()), "Search");
            EXPECT_EQ(SpokenName(Rows()->GetHandle()), "Games, Quake 2, Quake2, today, 14:30, 1:01, 12");
        }
        for (const char* name : {"GameSearch_Txt", "Games_Lst", "PickGame_Cmd", "LaunchGame_Cmd", "CloseGames_Cmd"}) {
            EXPECT_NE(Find(name)->GetHelpText(), "") << name;
        }
        Screenshot("game_list");
        PressKey(WXK_ESCAPE);
    });
    EXPECT_EQ(launcher.Window.Exe_Cbo.ListIndex, 0);
}

TEST_F(GameListForms, TypingFiltersAndEnterPicks) {
    Open([] {
        TypeText("unr");
        EXPECT_EQ(Titles(), std::vector<std::string>{"Unreal"});
        EXPECT_EQ(Find("GameCount_Lbl")->GetLabel(), "1 of 3 games");
        Screenshot("game_list_search");
        PressKey(WXK_RETURN);
    });
    EXPECT_EQ(launcher.Window.Exe_Cbo.ListIndex, 2);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(GameListForms, UpAndDownGoThroughTheRowsWhileOneTypes) {
    Open([] {
        TypeText("quake");
        PressKey(WXK_DOWN);
        EXPECT_EQ(Selected(), 1);
        EXPECT_TRUE(HasKeyboard(Find("GameSearch_Txt")));
        PressKey(WXK_DOWN);
        EXPECT_EQ(Selected(), 1);
        PressKey(WXK_UP);
        EXPECT_EQ(Selected(), 0);
        PressKey(WXK_ESCAPE);
    });
}

TEST_F(GameListForms, AClickOnAHeadSortsAndOneOnARowSelects) {
    Open([] {
        const wxRect table = Rows()->GetScreenRect();
        ClickAt(wxPoint(table.x + Rows()->FromDIP(60), table.y + kHeadBelowTop));
        EXPECT_EQ(Titles(), (std::vector<std::string>{"Quake", "Quake 2", "Unreal"}));
        EXPECT_EQ(Selected(), 1) << "the row stays selected";
        wxRect row;
        ASSERT_TRUE(Rows()->GetItemRect(2, row));
        ClickAt(Rows()->ClientToScreen(wxPoint(row.x + 40, row.y + row.height / 2)));
        EXPECT_EQ(Selected(), 2);
        ClickOn(Find("PickGame_Cmd"));
    });
    EXPECT_EQ(launcher.Window.Exe_Cbo.ListIndex, 2);
}

TEST_F(GameListForms, LaunchStartsTheSelectedGame) {
    Open([] {
        TypeText("quake2");
        PressKey('l', wxMOD_ALT);
    });
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake2\\lv_666.bat"}));
    EXPECT_EQ(GetSetting(run, run.AppName, "Played", "c:\\quake2\\quake2.exe"), "2024-03-01 20:00:00;3660;13");
}

TEST_F(GameListForms, WithoutAHitThereIsNothingToPick) {
    Open([] {
        TypeText("doom");
        EXPECT_EQ(Rows()->GetItemCount(), 0);
        EXPECT_FALSE(Find("PickGame_Cmd")->IsEnabled());
        EXPECT_FALSE(Find("LaunchGame_Cmd")->IsEnabled());
        PressKey(WXK_ESCAPE);
    });
}

}  // namespace
}  // namespace lv
