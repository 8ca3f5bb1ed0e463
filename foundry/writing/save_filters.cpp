#include "foundry/writing/save_filters.h"

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kAllFiles = "|All Files (*.*)|*.*";

struct FilterRow {
    Game GameKind;  // none: all others
    TextView Head;
    TextView Patterns;
    TextView Extensions[2];
};

// The second extension of Hexen II and Sin is not the one that their filter names, kept on purpose.
constexpr FilterRow kFilters[] = {
    {Game::Quake, "Quake Scripts (*.cfg, *.qs", "*.cfg;*.qs", {"cfg", "qs"}},
    {Game::Hexen2, "Hexen Scripts (*.cfg, *.hs", "*.cfg;*.hs", {"cfg", "qs"}},
    {Game::Quake2, "Quake2 Scripts (*.cfg, *.q2s", "*.cfg;*.q2s", {"cfg", "q2s"}},
    {Game::Sin, "Sin Scripts (*.cfg, *.ss", "*.cfg;*.ss", {"cfg", "q2s"}},
    {Game::Unreal, "Unreal INIs (*.ini", "*.ini", {"ini", "ini"}},
    {Game::Heretic2, "Heretic2 Scripts (*.cfg, *.hrs", "*.cfg;*.hrs", {"cfg", "hrs"}},
    {Game::None, "Scripts (*.cfg", "*.cfg", {"cfg", "cfg"}},
};

const FilterRow& RowOf(Game gameKind) {
    for (const FilterRow& row : kFilters) {
        if (row.GameKind == gameKind) {
            return row;
        }
    }
    return *(std::end(kFilters) - 1);
}

}  // namespace

Text SaveFilter(Game gameKind, TextView extension) {
    const FilterRow& row = RowOf(gameKind);
    const bool isKnown = extension == row.Extensions[0] || extension == row.Extensions[1];
    // These two part a filter's pieces.
    if (extension.empty() || isKnown || extension.find_first_of("|;") != TextView::npos) {
        return Join(row.Head, ")|", row.Patterns, kAllFiles);
    }
    return Join(row.Head, ", *.", extension, ")|", row.Patterns, ";*.", extension, kAllFiles);
}

Text ExtensionOf(TextView path) {
    const Text name = LowerCase(LastPathPart(path));
    const std::size_t dot = name.rfind('.');
    return dot == Text::npos ? Text() : name.substr(dot + 1);
}

}  // namespace lv
