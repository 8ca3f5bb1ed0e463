#include "launcher/links/links_menu.h"

#include "launcher/menu/menu_table.h"
#include "platform/memory/memory_links.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

class LinksMenu : public LauncherTest {
  protected:
    LinksMenu() { system.Services.Lists = &lists; }
    MenuItemState& Item() { return window.Bar(MenuItem::TakeLinks_Bar); }
    void Choose() { Menu_Click(launcher, MenuItem::TakeLinks_Bar); }

    MemoryDesktopLists lists;
};

constexpr const char* kTitle = "Take Game Links";

}  // namespace

TEST_F(LinksMenu, IsOffAtFirstAndTakesAndGivesBackWithoutAWord) {
    Menu_Open(launcher);
    EXPECT_FALSE(Item().Checked);
    Choose();
    EXPECT_TRUE(Item().Checked);
    EXPECT_NE(lists.List, "");
    Choose();
    EXPECT_FALSE(Item().Checked);
    EXPECT_TRUE(lists.Entries.empty());
}

TEST_F(LinksMenu, ShowsWhatTheSystemHasAndNotWhatWasClicked) {
    Choose();
    lists.List.clear();
    Menu_Open(launcher);
    EXPECT_FALSE(Item().Checked);
}

TEST_F(LinksMenu, AsksBeforeItTakesThemFromAnother) {
    lists.List = "[Default Applications]\nx-scheme-handler/qw=other.desktop\n";
    const Text before = lists.List;
    user.Expect({kTitle,
                 "These links go to another program -->\r\n\r\n\tqw://  other.desktop\r\n\r\nShall they come to "
                 "Lorvane 3D? If you untick this item again, they go back.",
                 1, false, true, "&Take Them,&Cancel"});
    Choose();
    EXPECT_FALSE(Item().Checked);
    EXPECT_EQ(lists.List, before);
    user.Expect({kTitle, "qw://  other.desktop", 0});
    Choose();
    EXPECT_TRUE(Item().Checked);
    Choose();
    EXPECT_NE(lists.List.find("x-scheme-handler/qw=other.desktop\n"), Text::npos);
}

TEST_F(LinksMenu, TellsWhatCouldNotBeWritten) {
    lists.RefuseList = MakeError(error::kPermissionDenied, "/home/me/.config/mimeapps.list");
    user.Expect({kTitle, "Not all of this could be written.\r\n\r\nError Number = 70"});
    Choose();
    EXPECT_FALSE(Item().Checked);
}

TEST_F(LinksMenu, TellsThatTheDesktopHasSettingsOfItsOwn) {
    lists.Stronger = {"[Default Applications]\nx-scheme-handler/qw=strong.desktop\n"};
    user.Expect({kTitle, "These links go to another program", 0});
    user.Expect({kTitle,
                 "Your system's own settings still give these links to another program -->\r\n\r\n\tqw://  "
                 "strong.desktop\r\n\r\nChoose Lorvane 3D there."});
    Choose();
    EXPECT_FALSE(Item().Checked);
}

TEST_F(LinksMenu, IsOutOfUseWhereTheSystemHasNoPlaceForIt) {
    system.Services.Lists = nullptr;
    Menu_Open(launcher);
    EXPECT_FALSE(Item().Enabled);
    Choose();
    EXPECT_FALSE(Item().Checked);
}

}  // namespace lv
