#include <gtest/gtest.h>

#include "tests/forms/fig_form_fixture.h"
#include "tests/forms/form_driver.h"

namespace lv {

class LabelKeys : public FigForm_ {};

TEST_F(LabelKeys, LeadToTheFieldsBehindTheLabels) {
    Use(kGames[0], "");
    Edit([this] {
        Turn(EditorPage::Aliases);
        DoAndAnswer([] { ClickOn(Find("AddCustomAlias_Cmd")); },
                    [] {
                        PressKey('M', wxMOD_ALT);
                        EXPECT_TRUE(SettleUntil([] { return HasKeyboard(Find("AliasBody_Txt")); }));
                        PressKey('N', wxMOD_ALT);
                        EXPECT_TRUE(SettleUntil([] { return HasKeyboard(Find("AliasName_Txt")); }));
                        PressKey(WXK_ESCAPE);
                    });
    });
}

}  // namespace lv
