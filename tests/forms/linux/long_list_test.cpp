// Lists of thousands of rows. GTK alone has a list of its own for them.

#include <gtest/gtest.h>

#include <string>

#include "tests/forms/lv_form_fixture.h"

namespace lv {

TEST_F(LvForm_, AListOfThousandsOfRowsDropsDownAndIsPickedFrom) {
    ListBox& maps = launcher.Window.Map_Cbo;
    maps.Items.clear();
    for (int i = 0; i < 2500; ++i) {
        maps.Items.push_back("MAP" + std::to_string(i));
    }
    maps.ListIndex = 0;
    user.Refresh();
    ClickOn(Find("Map_Cbo"));
    Settle(1000);
    Screenshot("long_list");
    PressKey(WXK_DOWN);
    PressKey(WXK_DOWN);
    PressKey(WXK_RETURN);
    EXPECT_TRUE(SettleUntil([&] { return maps.ListIndex == 2; }, 10000)) << maps.ListIndex;
}

}  // namespace lv
