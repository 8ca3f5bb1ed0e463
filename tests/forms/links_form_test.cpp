#include "launcher/forms/main_menu.h"
#include "launcher/links/taken_links.h"
#include "platform/memory/memory_links.h"
#include "tests/forms/lv_form_fixture.h"

namespace lv {

namespace {

class LinksForm : public LvForm_ {
  protected:
    LinksForm() { system.Services.Lists = &lists; }
    [[nodiscard]] bool IsTicked() const { return form->GetMenuBar()->IsChecked(MenuIdOf(MenuItem::TakeLinks_Bar)); }
    void Choose() {
        wxCommandEvent chosen(wxEVT_MENU, MenuIdOf(MenuItem::TakeLinks_Bar));
        form->ProcessWindowEvent(chosen);
        Settle();
    }

    MemoryDesktopLists lists;
};

}  // namespace

TEST_F(LinksForm, TheMarkIsOffAtFirstAndFollowsTheClicks) {
    EXPECT_FALSE(IsTicked());
    Choose();
    EXPECT_TRUE(IsTicked());
    EXPECT_FALSE(lists.Entries.empty());
    Choose();
    EXPECT_FALSE(IsTicked());
    EXPECT_TRUE(lists.Entries.empty());
}

TEST_F(LinksForm, AnOpenedMenuShowsWhatTheSystemHasNow) {
    EXPECT_FALSE(TakeLinks(system.Services));
    EXPECT_FALSE(IsTicked());
    PassMenu('T', "menu_links_taken");
    EXPECT_TRUE(IsTicked());
    lists.List.clear();
    PassMenu('T', "menu_links_lost");
    EXPECT_FALSE(IsTicked());
}

}  // namespace lv
