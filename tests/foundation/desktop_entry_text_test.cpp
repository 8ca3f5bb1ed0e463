#include "foundation/desktop_entry_text.h"

#include <gtest/gtest.h>

namespace lv {

TEST(DesktopEntryText, StandsAsTheValueOfAKey) {
    EXPECT_EQ(DesktopEntryValue(""), "");
    EXPECT_EQ(DesktopEntryValue("Quake II; 100%"), "Quake II; 100%");
    EXPECT_EQ(DesktopEntryValue("a\nb\rc\td\\e"), "a\\nb\\rc\\td\\\\e");
    EXPECT_EQ(DesktopEntryValue("  two blanks "), "\\s two blanks ");
}

TEST(DesktopEntryText, CannotBeginAnotherKeyOrGroup) {
    EXPECT_EQ(DesktopEntryValue("Quake\nExec=rm\n[Desktop Action x]"), "Quake\\nExec=rm\\n[Desktop Action x]");
}

TEST(DesktopEntryText, QuotesAnArgument) {
    EXPECT_EQ(QuoteForExec(""), R"("")");
    EXPECT_EQ(QuoteForExec("/usr/bin/lorvane3d"), R"("/usr/bin/lorvane3d")");
    EXPECT_EQ(QuoteForExec("/home/me/my games/lorvane3d"), R"("/home/me/my games/lorvane3d")");
    EXPECT_EQ(QuoteForExec("a;b&c|d'e"), R"("a;b&c|d'e")");
}

TEST(DesktopEntryText, DoublesThePercentSignThatWouldBeginAFieldCode) {
    EXPECT_EQ(QuoteForExec("100%u"), R"("100%%u")");
    EXPECT_EQ(QuoteForExec("%%"), R"("%%%%")");
}

TEST(DesktopEntryText, EscapesTwiceWhatAShellWouldRead) {
    EXPECT_EQ(QuoteForExec("$HOME"), R"("\\$HOME")");
    EXPECT_EQ(QuoteForExec("`id`"), R"("\\`id\\`")");
    EXPECT_EQ(QuoteForExec("a\"b"), R"("a\\"b")");
    EXPECT_EQ(QuoteForExec("a\\b"), R"("a\\\\b")");
}

TEST(DesktopEntryText, KeepsALineEndInsideTheArgument) {
    EXPECT_EQ(QuoteForExec("a\nb\tc"), R"("a\nb\tc")");
    EXPECT_EQ(QuoteForExec(" a"), R"(" a")");
}

}  // namespace lv
