// The names that assistive tools read. On Windows nobody but Windows itself keeps them.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/toolkit/spoken_name.h"
#include "tests/forms/fig_form_fixture.h"
#include "tests/forms/lv_form_fixture.h"
#include "tests/forms/window_manners.h"

namespace lv {

TEST_F(LvForm_, EveryControlHasATextOrANameThatAssistiveToolsRead) {
    std::vector<const char*> names = {"Exe_Cbo",  "Game_Cbo",   "Script_Cbo", "VideoProfiles_Cbo",       "Mem_Cbo",
                                      "Demo_Cbo", "Server_Cbo", "Map_Cbo",    "CommandLineAdditions_Txt"};
    for (const OptionBox& option : OptionBoxes()) {
        names.push_back(option.Name);
    }
    for (const char* name : names) {
        wxWindow* control = Find(name);
        EXPECT_TRUE(!control->GetLabel().empty() || !SpokenName(control->GetHandle()).empty()) << name;
    }
    for (int i = 0; i < 9; ++i) {
        EXPECT_NE(SpokenName(Find("ButtonBar_Cmd(" + std::to_string(i) + ")")->GetHandle()), "") << i;
    }
    EXPECT_EQ(SpokenName(Find("SetupFoundry_Cmd")->GetHandle()), "Edit the player script");
    EXPECT_EQ(SpokenName(Find("VideoProfileEdit_Cmd")->GetHandle()), "Edit the video profile");
    EXPECT_EQ(NamelessControls(*form), "");
    for (int i = 0; i < 7; ++i) {
        EXPECT_NE(SpokenName(Find("Menu_Pic(" + std::to_string(i) + ")")->GetHandle()), "") << i;
    }
}

class SpokenSettings : public FigForm_ {
  protected:
    static std::string Spoken(const char* name) { return SpokenName(Find(name)->GetHandle()); }
};

TEST_F(SpokenSettings, AreCalledByTheirCaptionsAndNotByTheirToolTips) {
    Use(kGames[1], "bind w +forward\n");
    Edit([this] {
        MakeAllPages();
        form->ShowState();
        EXPECT_EQ(Spoken("fov_Cbo"), "Field Of View");
        EXPECT_EQ(Spoken("Crosshair_Cbo"), "Crosshair");
        EXPECT_EQ(Spoken("Skin_Fil"), "Skins");
        EXPECT_EQ(Spoken("Name_Txt"), "Player's name");
    });
}

TEST_F(SpokenSettings, ColorsHaveTheirNamesBeforeTheKeyboardComes) {
    Use(kGames[0], "color 4 12\n");
    Edit([] {
        const auto named = [](const char* control, const std::string& name) {
            return SettleUntil([&] { return Spoken(control) == name; }, 3000);
        };
        EXPECT_TRUE(named("PlayerColor_Lbl(0)", "Shirt Color, 4")) << Spoken("PlayerColor_Lbl(0)");
        EXPECT_TRUE(named("PlayerColor_Lbl(1)", "Pants Color, 12")) << Spoken("PlayerColor_Lbl(1)");
        DoAndAnswer([] { ClickOn(Find("PlayerColor_Lbl(0)")); },
                    [] {
                        EXPECT_EQ(Spoken("Color_Lbl(0)"), "Color 0");
                        EXPECT_EQ(Spoken("Color_Lbl(13)"), "Color 13");
                        ClickOn(Find("Color_Lbl(13)"));
                    });
        EXPECT_TRUE(named("PlayerColor_Lbl(0)", "Shirt Color, 13")) << Spoken("PlayerColor_Lbl(0)");
    });
}

TEST_F(SpokenSettings, OfUnrealAreCalledSoTooWithTheListsOfWeapons) {
    Use(kGames[4], "[Engine.Input]\nW=MoveForward\n");
    Edit([this] {
        MakeAllPages();
        form->ShowState();
        EXPECT_EQ(Spoken("PlayerPawn_Cbo(0)"), "Dodge Click Time");
        EXPECT_EQ(Spoken("WeaponsAvailable_Lst"), "Unselected Weapons");
        EXPECT_EQ(Spoken("WeaponsPriority_Lst"), "Weapon Preferance Order");
    });
}

}  // namespace lv
