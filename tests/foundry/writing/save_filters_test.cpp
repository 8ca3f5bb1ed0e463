#include "foundry/writing/save_filters.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

struct Row {
    Game GameKind;
    TextView Extension;
    TextView Filter;
};

TEST(SaveFilter, IsThatOfTheKind) {
    const Row rows[] = {
        {Game::Quake, "cfg", "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*"},
        {Game::Quake, "qs", "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*"},
        {Game::Hexen2, "cfg", "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*"},
        {Game::Quake2, "q2s", "Quake2 Scripts (*.cfg, *.q2s)|*.cfg;*.q2s|All Files (*.*)|*.*"},
        {Game::Sin, "cfg", "Sin Scripts (*.cfg, *.ss)|*.cfg;*.ss|All Files (*.*)|*.*"},
        {Game::Unreal, "ini", "Unreal INIs (*.ini)|*.ini|All Files (*.*)|*.*"},
        {Game::Heretic2, "hrs", "Heretic2 Scripts (*.cfg, *.hrs)|*.cfg;*.hrs|All Files (*.*)|*.*"},
        {Game::HalfLife, "cfg", "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*"},
        {Game::None, "cfg", "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SaveFilter(row.GameKind, row.Extension), row.Filter) << static_cast<int>(row.GameKind);
    }
}

TEST(SaveFilter, TakesAThirdExtension) {
    const Row rows[] = {
        {Game::Quake, "rc", "Quake Scripts (*.cfg, *.qs, *.rc)|*.cfg;*.qs;*.rc|All Files (*.*)|*.*"},
        {Game::Quake2, "rc", "Quake2 Scripts (*.cfg, *.q2s, *.rc)|*.cfg;*.q2s;*.rc|All Files (*.*)|*.*"},
        {Game::Unreal, "cfg", "Unreal INIs (*.ini, *.cfg)|*.ini;*.cfg|All Files (*.*)|*.*"},
        {Game::Heretic2, "rc", "Heretic2 Scripts (*.cfg, *.hrs, *.rc)|*.cfg;*.hrs;*.rc|All Files (*.*)|*.*"},
        {Game::HalfLife, "qs", "Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SaveFilter(row.GameKind, row.Extension), row.Filter) << static_cast<int>(row.GameKind);
    }
}

TEST(SaveFilter, OfHexenAndSinTestsTheExtensionsOfOthers) {
    EXPECT_EQ(SaveFilter(Game::Hexen2, "qs"), "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*");
    EXPECT_EQ(SaveFilter(Game::Hexen2, "hs"), "Hexen Scripts (*.cfg, *.hs, *.hs)|*.cfg;*.hs;*.hs|All Files (*.*)|*.*");
    EXPECT_EQ(SaveFilter(Game::Sin, "q2s"), "Sin Scripts (*.cfg, *.ss)|*.cfg;*.ss|All Files (*.*)|*.*");
    EXPECT_EQ(SaveFilter(Game::Sin, "ss"), "Sin Scripts (*.cfg, *.ss, *.ss)|*.cfg;*.ss;*.ss|All Files (*.*)|*.*");
}

TEST(SaveFilter, TakesNoExtensionThatWouldBreakIt) {
    for (const TextView odd : {"", "c|g", "c;g"}) {
        EXPECT_EQ(SaveFilter(Game::HalfLife, odd), "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*") << odd;
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
