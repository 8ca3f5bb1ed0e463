// The names that assistive tools read. On Windows nobody but Windows itself keeps them.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/spoken_name.h"
#include "tests/forms/lv_form_fixture.h"
#include "tests/forms/window_manners.h"

namespace lv {

TEST_F(LvForm_, EveryControlHasATextOrANameThatAssistiveToolsRead) {
    std::vector<const char*> names = {"Exe_Cbo",  "Game_Cbo",   "Script_Cbo", "VideoProfiles_Cbo",       "Mem_Cbo",
                                      "Demo_Cbo", "Server_Cbo", "Map_Cbo",    "CommandLineAdditions_Txt"};
    for (const OptionBox* option = OptionBoxesBegin(); option != OptionBoxesEnd(); ++option) {
        names.push_back(option->Name);
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

}  // namespace lv
