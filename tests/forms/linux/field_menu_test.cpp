// The menu of a field. Windows does not return from it before it is left, so that no test goes on beneath.

#include "tests/forms/fig_form_fixture.h"
#include "tests/forms/told_help.h"

namespace lv {
namespace {

class FieldMenu : public FigForm_ {};

TEST_F(FieldMenu, OpensAtARightClickAndNothingIsTold) {
    Use(kGames[0], "");
    Edit([] {
        const ToldHelp told;
        RightClickOn(Find("Find_Txt"));
        PressKey(WXK_ESCAPE);
        RightClickOn(Find("Name_Txt"));
        PressKey(WXK_ESCAPE);
        EXPECT_EQ(told.Names, std::vector<std::string>());
    });
}

}  // namespace
}  // namespace lv
