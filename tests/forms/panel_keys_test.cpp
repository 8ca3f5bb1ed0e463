// The access keys of the two panels of keys, from inside and from outside.

#include "tests/forms/fig_form_fixture.h"

namespace lv {
namespace {

class PanelKeys : public FigForm_ {};

bool CameTo(const char* name) {
    return SettleUntil([name] { return HasKeyboard(Find(name)); }, 1000);
}

TEST_F(PanelKeys, LeadIntoThePanelThatComesUp) {
    Use(kGames[0], "");
    Edit([this] {
        TurnBindings(BindingsPage::Standard);
        Find("Key_Lbl(5)")->SetFocus();
        Settle();
        PressKey('J', wxMOD_ALT);
        EXPECT_TRUE(CameTo("Device_Cbo"));
        PressKey(WXK_TAB);
        EXPECT_TRUE(CameTo("Key_Lbl(98)"));
        PressKey('K', wxMOD_ALT);
        EXPECT_TRUE(CameTo("Key_Lbl(0)"));
        Find("Find_Txt")->SetFocus();
        Settle();
        PressKey('J', wxMOD_ALT);
        EXPECT_TRUE(CameTo("Device_Cbo"));
    });
}

}  // namespace
}  // namespace lv
