// What's This by the right mouse button, in the main window and in the editor.

#include <wx/uiaction.h>

#include "foundation/forms/help_bubble.h"
#include "launcher/menu/button_bar.h"
#include "tests/forms/fig_form_fixture.h"
#include "tests/forms/lv_form_fixture.h"
#include "tests/forms/told_help.h"

namespace lv {
namespace {

constexpr int kArrow = 12;  // from the right edge of a list to the middle of its arrow

void RightClickAt(const wxPoint& place) {
    wxUIActionSimulator hand;
    hand.MouseMove(place);
    Settle();
    hand.MouseClick(wxMOUSE_BTN_RIGHT);
    Settle();
}

TEST_F(LvForm_, ARightClickOnAListTellsWhatItIsFor) {
    const std::vector<std::string> lists = {"Exe_Cbo", "Game_Cbo", "Script_Cbo", "VideoProfiles_Cbo", "Mem_Cbo"};
    EXPECT_EQ(ToldByRightClicks(lists), lists);
    for (const std::string& list : lists) {
        EXPECT_NE(Find(list)->GetHelpText(), "") << list;
    }
}

class FigWhatsThis : public FigForm_ {};

TEST_F(FigWhatsThis, ARightClickTellsOfListsBoxesButtonsAndColors) {
    Use(kGames[0], "");
    Edit([this] {
        const std::vector<std::string> player = {"PlayerColor_Lbl(0)", "ShowRAM_Chk", "FindNext_Cmd"};
        EXPECT_EQ(ToldByRightClicks(player), player);
        Turn(EditorPage::Aliases);
        const std::vector<std::string> aliases = {"StdAliases_Cbo", "Alias_Lst", "AddCustomAlias_Cmd"};
        EXPECT_EQ(ToldByRightClicks(aliases), aliases);
        Turn(EditorPage::SaveAndExit);
        const std::vector<std::string> save = {"AutoSaveEnable_Chk", "Minutes_Cbo"};
        EXPECT_EQ(ToldByRightClicks(save), save);
        Turn(EditorPage::Bindings);
        const std::vector<std::string> keys = {"ColorCode_Lbl(0)", "JoyToggle_Cmd(0)"};
        EXPECT_EQ(ToldByRightClicks(keys), keys);
        ClickOn(Find("JoyToggle_Cmd(0)"));
        EXPECT_EQ(ToldByRightClicks({"Device_Cbo"}), std::vector<std::string>{"Device_Cbo"});
    });
}

TEST_F(FigWhatsThis, ARightClickOnAListShowsTheBubbleAndNoRows) {
    Use(kGames[0], "");
    Edit([this] {
        Turn(EditorPage::Aliases);
        RightClickOn(Find("StdAliases_Cbo"));
        wxWindow* const bubble = wxWindow::FindWindowByName(kHelpBubbleName);
        ASSERT_NE(bubble, nullptr);
        EXPECT_TRUE(bubble->IsShownOnScreen());
        PressKey(WXK_ESCAPE);
        EXPECT_EQ(wxWindow::FindWindowByName(kHelpBubbleName), nullptr);
        EXPECT_FALSE(form->Model().Closed);
    });
}

TEST_F(FigWhatsThis, TheArrowOfAListWithAFieldTells) {
    Use(kGames[0], "");
    Edit([] {
        const ToldHelp told;
        const wxRect list = Find("fov_Cbo")->GetScreenRect();
        RightClickAt(wxPoint(list.GetRight() - kArrow, list.y + list.height / 2));
        EXPECT_EQ(told.Names, std::vector<std::string>{"fov_Cbo"});
    });
}

TEST_F(LvForm_, ARightClickOnABoxOrAButtonTellsWhatItIsFor) {
    std::vector<std::string> controls = {"Memory_Chk",  "NOCDAUDIO_Chk", "EndOnLaunch_Chk",
                                         "DoIt_Cmd(0)", "DoIt_Cmd(2)",   "SetupFoundry_Cmd"};
    for (int i = 0; i < kBarButtons; ++i) {
        controls.push_back("ButtonBar_Cmd(" + std::to_string(i) + ")");
    }
    EXPECT_EQ(ToldByRightClicks(controls), controls);
    for (const OptionBox& option : OptionBoxes()) {
        EXPECT_NE(Find(option.Name)->GetHelpText(), "") << option.Name;
    }
}

}  // namespace
}  // namespace lv
