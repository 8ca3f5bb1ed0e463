#include "launcher/links/desktop_links.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_links.h"

namespace lv {

namespace {

constexpr const char* kEntry = "lorvane3d-links.desktop";

const Text kOthers =
    "[Default Applications]\n"
    "x-scheme-handler/quake=other.desktop\n"
    "text/html=firefox.desktop\n";

class DesktopLinks : public ::testing::Test {
  protected:
    MemoryDesktopLists lists;
};

}  // namespace

TEST_F(DesktopLinks, AreNotTakenBeforeTheUserWantsIt) {
    EXPECT_FALSE(DesktopGivesLinks(lists));
    lists.List = kOthers;
    EXPECT_FALSE(DesktopGivesLinks(lists));
}

TEST_F(DesktopLinks, ComeToTheProgramAndGoBack) {
    lists.List = kOthers;
    EXPECT_FALSE(TakeDesktopLinks(lists));
    EXPECT_TRUE(DesktopGivesLinks(lists));
    EXPECT_EQ(lists.List,
              "[Default Applications]\n"
              "x-scheme-handler/quake2=lorvane3d-links.desktop;\n"
              "x-scheme-handler/qw=lorvane3d-links.desktop;\n"
              "x-scheme-handler/quake=lorvane3d-links.desktop;other.desktop\n"
              "text/html=firefox.desktop\n");
    EXPECT_NE(lists.Entries[kEntry].find("Exec=\"/opt/lorvane/lorvane3d\" %u\n"), Text::npos);
    EXPECT_FALSE(LeaveDesktopLinks(lists));
    EXPECT_FALSE(DesktopGivesLinks(lists));
    EXPECT_EQ(lists.List, kOthers);
    EXPECT_TRUE(lists.Entries.empty());
}

TEST_F(DesktopLinks, AreNotOursOnceAnotherTakesOneOfThem) {
    EXPECT_FALSE(TakeDesktopLinks(lists));
    const std::size_t line = lists.List.find("x-scheme-handler/qw=");
    lists.List.insert(line + 20, "new.desktop;");
    EXPECT_FALSE(DesktopGivesLinks(lists));
    EXPECT_EQ(LinksOfOthers(lists), (std::vector<Text>{"qw://  new.desktop"}));
    EXPECT_FALSE(LeaveDesktopLinks(lists));
    EXPECT_EQ(lists.List, "[Default Applications]\nx-scheme-handler/qw=new.desktop;\n");
}

TEST_F(DesktopLinks, AreNotOursWhereTheEntryIsGoneOrStartsAnotherCopy) {
    EXPECT_FALSE(TakeDesktopLinks(lists));
    lists.Program = "/home/me/lorvane3d";
    EXPECT_FALSE(DesktopGivesLinks(lists));
    EXPECT_FALSE(TakeDesktopLinks(lists));
    EXPECT_TRUE(DesktopGivesLinks(lists));
    lists.Entries.clear();
    EXPECT_FALSE(DesktopGivesLinks(lists));
}

TEST_F(DesktopLinks, AreWhoseTheDesktopsOwnListSays) {
    EXPECT_FALSE(TakeDesktopLinks(lists));
    lists.Stronger = {"[Default Applications]\nx-scheme-handler/quake2=strong.desktop\n"};
    EXPECT_FALSE(DesktopGivesLinks(lists));
    EXPECT_EQ(LinksOfOthers(lists), (std::vector<Text>{"quake2://  strong.desktop"}));
}

TEST_F(DesktopLinks, AStrangersNameIsFitToBeShown) {
    lists.List = "[Default Applications]\nx-scheme-handler/qw=a\x01\xC3\xA4.desktop\n";
    EXPECT_EQ(LinksOfOthers(lists), (std::vector<Text>{"qw://  a?\xE4.desktop"}));
}

TEST_F(DesktopLinks, NothingIsNamedThatIsNotThere) {
    lists.RefuseEntry = MakeError(error::kDiskFull);
    EXPECT_EQ(TakeDesktopLinks(lists).Number, error::kDiskFull);
    EXPECT_EQ(lists.List, "");
}

TEST_F(DesktopLinks, AListThatCannotBeReadOrWrittenStays) {
    lists.List = kOthers;
    lists.RefuseReads = MakeError(error::kOutOfMemory);
    EXPECT_EQ(TakeDesktopLinks(lists).Number, error::kOutOfMemory);
    EXPECT_EQ(LeaveDesktopLinks(lists).Number, error::kOutOfMemory);
    EXPECT_FALSE(DesktopGivesLinks(lists));
    lists.RefuseReads = {};
    lists.RefuseList = MakeError(error::kPermissionDenied);
    EXPECT_EQ(TakeDesktopLinks(lists).Number, error::kPermissionDenied);
    EXPECT_EQ(lists.List, kOthers);
    EXPECT_FALSE(LeaveDesktopLinks(lists)) << "nothing is to be written";
    EXPECT_TRUE(lists.Entries.empty());
}

}  // namespace lv
