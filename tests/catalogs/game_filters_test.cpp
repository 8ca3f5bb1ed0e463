#include "catalogs/game_filters.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

struct FilterCase {
    Game Kind;
    const char* Scripts;
    const char* Demos;
    const char* Extension;
};

class Filters : public ::testing::TestWithParam<FilterCase> {};

TEST_P(Filters, AreTheGames) {
    const GameFilters* row = FiltersOf(GetParam().Kind);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->GameKind, GetParam().Kind);
    EXPECT_EQ(row->Scripts, GetParam().Scripts);
    EXPECT_EQ(row->Demos, GetParam().Demos);
    EXPECT_EQ(row->Extension, GetParam().Extension);
}

INSTANTIATE_TEST_SUITE_P(
    EachRow, Filters,
    ::testing::Values(FilterCase{Game::Quake, "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*",
                                 "Quake Demonstrations (*.dem;*.qwd)|*.dem;*.qwd|All Files (*.*)|*.*", ".qs"},
                      FilterCase{Game::Hexen2, "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*",
                                 "Hexen Demonstrations (*.dem)|*.dem|All Files (*.*)|*.*", ".hs"},
                      FilterCase{Game::Quake2, "Quake2 Scripts (*.cfg, *.q2s)|*.cfg;*.q2s|All Files (*.*)|*.*",
                                 "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*", ".q2s"},
                      FilterCase{Game::Sin, "SIN Scripts (*.cfg, *.sns)|*.cfg;*.sns|All Files (*.*)|*.*",
                                 "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*", ".sns"},
                      FilterCase{Game::Heretic2, "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*",
                                 "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*", ".cfg"},
                      FilterCase{Game::HalfLife, "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*",
                                 "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*", ".cfg"},
                      FilterCase{Game::Unreal, "Unreal INIs (*.ini)|*.ini|All Files (*.*)|*.*", "", ".ini"}));

TEST(FiltersOf, NoGameIsNothing) {
    EXPECT_EQ(FiltersOf(Game::None), nullptr);
    EXPECT_EQ(FiltersOf(Game{7}), nullptr);
    EXPECT_EQ(FiltersOf(Game{8}), nullptr);
    EXPECT_EQ(FiltersOf(Game{-1}), nullptr);
}

}  // namespace
}  // namespace lv
