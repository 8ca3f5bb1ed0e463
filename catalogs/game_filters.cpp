#include "catalogs/game_filters.h"

namespace lv {

namespace {

constexpr TextView kQuake2Demos = "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*";
constexpr TextView kPlainScripts = "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*";

constexpr GameFilters kFilters[] = {
    {Game::Quake, "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*",
     "Quake Demonstrations (*.dem;*.qwd)|*.dem;*.qwd|All Files (*.*)|*.*", ".qs"},
    {Game::Hexen2, "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*",
     "Hexen Demonstrations (*.dem)|*.dem|All Files (*.*)|*.*", ".hs"},
    {Game::Quake2, "Quake2 Scripts (*.cfg, *.q2s)|*.cfg;*.q2s|All Files (*.*)|*.*", kQuake2Demos, ".q2s"},
    {Game::Sin, "SIN Scripts (*.cfg, *.sns)|*.cfg;*.sns|All Files (*.*)|*.*", kQuake2Demos, ".sns"},
    {Game::Heretic2, kPlainScripts, kQuake2Demos, ".cfg"},
    {Game::HalfLife, kPlainScripts, kQuake2Demos, ".cfg"},
    {Game::Unreal, "Unreal INIs (*.ini)|*.ini|All Files (*.*)|*.*", "", ".ini"},
};

}  // namespace

const GameFilters* FiltersOf(Game gameKind) {
    for (const GameFilters& row : kFilters) {
        if (row.GameKind == gameKind) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace lv
