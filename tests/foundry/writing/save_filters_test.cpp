#include "foundry/writing/save_filters.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

struct Row {
    Index GameKind;
    TextView Extension;
    TextView Filter;
};

TEST(SaveFilter, IsThatOfTheKind) {
    const Row rows[] = {
        {1, "cfg", "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*"},
        {1, "qs", "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*"},
        {2, "cfg", "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*"},
        {3, "q2s", "Quake2 Scripts (*.cfg, *.q2s)|*.cfg;*.q2s|All Files (*.*)|*.*"},
        {5, "cfg", "Sin Scripts (*.cfg, *.ss)|*.cfg;*.ss|All Files (*.*)|*.*"},
        {4, "ini", "Unreal INIs (*.ini)|*.ini|All Files (*.*)|*.*"},
        {6, "hrs", "Heretic2 Scripts (*.cfg, *.hrs)|*.cfg;*.hrs|All Files (*.*)|*.*"},
        {9, "cfg", "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*"},
        {0, "cfg", "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SaveFilter(row.GameKind, row.Extension), row.Filter) << row.GameKind;
    }
}

TEST(SaveFilter, TakesAThirdExtension) {
    const Row rows[] = {
        {1, "rc", "Quake Scripts (*.cfg, *.qs, *.rc)|*.cfg;*.qs;*.rc|All Files (*.*)|*.*"},
        {3, "rc", "Quake2 Scripts (*.cfg, *.q2s, *.rc)|*.cfg;*.q2s;*.rc|All Files (*.*)|*.*"},
        {4, "cfg", "Unreal INIs (*.ini, *.cfg)|*.ini;*.cfg|All Files (*.*)|*.*"},
        {6, "rc", "Heretic2 Scripts (*.cfg, *.hrs, *.rc)|*.cfg;*.hrs;*.rc|All Files (*.*)|*.*"},
        {9, "qs", "Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SaveFilter(row.GameKind, row.Extension), row.Filter) << row.GameKind;
    }
}

TEST(SaveFilter, OfHexenAndSinTestsTheExtensionsOfOthers) {
    EXPECT_EQ(SaveFilter(2, "qs"), "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*");
    EXPECT_EQ(SaveFilter(2, "hs"), "Hexen Scripts (*.cfg, *.hs, *.hs)|*.cfg;*.hs;*.hs|All Files (*.*)|*.*");
    EXPECT_EQ(SaveFilter(5, "q2s"), "Sin Scripts (*.cfg, *.ss)|*.cfg;*.ss|All Files (*.*)|*.*");
    EXPECT_EQ(SaveFilter(5, "ss"), "Sin Scripts (*.cfg, *.ss, *.ss)|*.cfg;*.ss;*.ss|All Files (*.*)|*.*");
}

TEST(SaveFilter, TakesNoExtensionThatWouldBreakIt) {
    for (const TextView odd : {"", "c|g", "c;g"}) {
        EXPECT_EQ(SaveFilter(9, odd), "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*") << odd;
    }
}

TEST(ExtensionOf, IsWhatFollowsTheLastDotOfTheName) {
    EXPECT_EQ(ExtensionOf("C:\\QUAKE\\ID1\\A.B.CFG"), "cfg");
    EXPECT_EQ(ExtensionOf("C:\\QUAKE.OLD\\ID1\\SCRIPT"), "");
    EXPECT_EQ(ExtensionOf("my."), "");
    EXPECT_EQ(ExtensionOf(""), "");
}

}  // namespace
}  // namespace lv
