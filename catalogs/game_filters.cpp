#include "catalogs/game_filters.h"

namespace lv {

namespace {

constexpr TextView kQuake2Demos = "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*";
constexpr TextView kPlainScripts = "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*";

constexpr GameFilters kFilters[] = {
    {1, "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*",
     "Quake Demonstrations (*.dem;*.qwd)|*.dem;*.qwd|All Files (*.*)|*.*", ".qs"},
    {2, "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*",
     "Hexen Demonstrations (*.dem)|*.dem|All Files (*.*)|*.*", ".hs"},
    {3, "Quake2 Scripts (*.cfg, *.q2s)|*.cfg;*.q2s|All Files (*.*)|*.*", kQuake2Demos, ".q2s"},
    {5, "SIN Scripts (*.cfg, *.sns)|*.cfg;*.sns|All Files (*.*)|*.*", kQuake2Demos, ".sns"},
    {6, kPlainScripts, kQuake2Demos, ".cfg"},
    {9, kPlainScripts, kQuake2Demos, ".cfg"},
    {4, "Unreal INIs (*.ini)|*.ini|All Files (*.*)|*.*", "", ".ini"},
};

}  // namespace

const GameFilters* FiltersOf(Index gameKind) {
    for (const GameFilters& row : kFilters) {
        if (row.GameKind == gameKind) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace lv
