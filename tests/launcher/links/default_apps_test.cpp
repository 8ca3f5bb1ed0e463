#include "launcher/links/default_apps.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

constexpr const char* kQw = "x-scheme-handler/qw";
constexpr const char* kOurs = "ours.desktop";

const Text kKept =
    "# mine\n"
    "[Added Associations]\n"
    "x-scheme-handler/qw=added.desktop;\n"
    "\n"
    "[Default Applications]\n"
    "text/html = firefox.desktop\n"
    "x-scheme-handler/qw =  old.desktop;older.desktop; \n"
    "not a line of a list \xFF\n"
    "\n"
    "[Removed Associations]\n"
    "x-scheme-handler/qw=removed.desktop;\n";

using Names = std::vector<Text>;

}  // namespace

TEST(DefaultApps, ReadsTheGroupOfDefaultsAlone) {
    EXPECT_EQ(DefaultsOf(kKept, kQw), (Names{"old.desktop", "older.desktop"}));
    EXPECT_EQ(DefaultsOf(kKept, "text/html"), (Names{"firefox.desktop"}));
    EXPECT_EQ(DefaultsOf(kKept, "text/plain"), Names{});
    EXPECT_EQ(DefaultsOf(kKept, "x-scheme-handler/q"), Names{});
    EXPECT_EQ(DefaultsOf("", kQw), Names{});
    EXPECT_EQ(DefaultsOf("x-scheme-handler/qw=a.desktop\n", kQw), Names{}) << "it stands in no group";
    EXPECT_EQ(DefaultsOf("[Default Applications]\n#x-scheme-handler/qw=a.desktop\n", kQw), Names{});
    EXPECT_EQ(DefaultsOf("[Default Applications]\nx-scheme-handler/qw=;; ;\n", kQw), Names{});
}

TEST(DefaultApps, TakesTheLastOfTwoLinesAndOfTwoGroups) {
    const Text twice =
        "[Default Applications]\nx-scheme-handler/qw=a.desktop\nx-scheme-handler/qw=b.desktop\n[X]\n"
        "[Default Applications]\nx-scheme-handler/qw=c.desktop";
    EXPECT_EQ(DefaultsOf(twice, kQw), (Names{"c.desktop"}));
    const Text taken = WithDefault(twice, kQw, kOurs);
    EXPECT_EQ(DefaultsOf(taken, kQw), (Names{kOurs, "c.desktop"}));
    EXPECT_EQ(WithoutDefault(taken, kQw, kOurs), twice);
}

TEST(DefaultApps, StandsAheadOfWhatWasNamedAndGivesThatBack) {
    const Text taken = WithDefault(kKept, kQw, kOurs);
    const Text was = "x-scheme-handler/qw =  old.desktop;older.desktop; \n";
    Text wanted = kKept;
    wanted.replace(wanted.find(was), was.size(), "x-scheme-handler/qw =  ours.desktop;old.desktop;older.desktop; \n");
    EXPECT_EQ(taken, wanted);
    EXPECT_EQ(WithDefault(taken, kQw, kOurs), taken);
    EXPECT_EQ(WithoutDefault(taken, kQw, kOurs), kKept);
    EXPECT_EQ(WithoutDefault(kKept, kQw, kOurs), kKept) << "it is not named";
}

TEST(DefaultApps, ComesForwardWhereAnotherHasTakenTheFirstPlaceSince) {
    const Text list = "[Default Applications]\nx-scheme-handler/qw=new.desktop;ours.desktop;old.desktop\n";
    EXPECT_EQ(WithDefault(list, kQw, kOurs),
              "[Default Applications]\nx-scheme-handler/qw=ours.desktop;new.desktop;old.desktop\n");
    EXPECT_EQ(WithoutDefault(list, kQw, kOurs),
              "[Default Applications]\nx-scheme-handler/qw=new.desktop;old.desktop\n");
}

TEST(DefaultApps, AddsItsLineAndTakesItAwayAgain) {
    const Text list = "[Default Applications]\ntext/html=firefox.desktop\n";
    const Text taken = WithDefault(list, kQw, kOurs);
    EXPECT_EQ(taken, "[Default Applications]\nx-scheme-handler/qw=ours.desktop;\ntext/html=firefox.desktop\n");
    EXPECT_EQ(WithoutDefault(taken, kQw, kOurs), list);
}

TEST(DefaultApps, MakesTheGroupWhereThereIsNone) {
    EXPECT_EQ(WithDefault("", kQw, kOurs), "[Default Applications]\nx-scheme-handler/qw=ours.desktop;\n");
    EXPECT_EQ(WithDefault("[X]\na=b\n", kQw, kOurs),
              "[X]\na=b\n\n[Default Applications]\nx-scheme-handler/qw=ours.desktop;\n");
    EXPECT_EQ(WithDefault("[X]\na=b", kQw, kOurs),
              "[X]\na=b\n\n[Default Applications]\nx-scheme-handler/qw=ours.desktop;\n");
    EXPECT_EQ(WithDefault("[Default Applications]", kQw, kOurs),
              "[Default Applications]\nx-scheme-handler/qw=ours.desktop;\n");
}

TEST(DefaultApps, KeepsTheLineEndsOfWindows) {
    const Text list = "[Default Applications]\r\nx-scheme-handler/quake=old.desktop\r\n";
    EXPECT_EQ(DefaultsOf(list, "x-scheme-handler/quake"), (Names{"old.desktop"}));
    const Text added = WithDefault(list, kQw, kOurs);
    EXPECT_EQ(added,
              "[Default Applications]\r\nx-scheme-handler/qw=ours.desktop;\r\nx-scheme-handler/quake=old.desktop\r\n");
    const Text ahead = WithDefault(list, "x-scheme-handler/quake", kOurs);
    EXPECT_EQ(ahead, "[Default Applications]\r\nx-scheme-handler/quake=ours.desktop;old.desktop\r\n");
    EXPECT_EQ(WithoutDefault(ahead, "x-scheme-handler/quake", kOurs), list);
}

TEST(DefaultApps, ALineWithoutAnEndIsOne) {
    const Text list = "[Default Applications]\nx-scheme-handler/qw=old.desktop";
    const Text taken = WithDefault(list, kQw, kOurs);
    EXPECT_EQ(taken, "[Default Applications]\nx-scheme-handler/qw=ours.desktop;old.desktop");
    EXPECT_EQ(WithoutDefault(taken, kQw, kOurs), list);
    EXPECT_EQ(WithDefault("[Default Applications]\nx-scheme-handler/qw=", kQw, kOurs),
              "[Default Applications]\nx-scheme-handler/qw=ours.desktop;");
}

}  // namespace lv
