#include "foundry/writing/save_filters.h"

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kAllFiles = "|All Files (*.*)|*.*";

struct FilterRow {
    Index GameKind;  // 0: all others
    TextView Head;
    TextView Patterns;
    TextView Extensions[2];
};

// The second extension of Hexen II and Sin is not the one that their filter names, kept on purpose.
constexpr FilterRow kFilters[] = {
    {1, "Quake Scripts (*.cfg, *.qs", "*.cfg;*.qs", {"cfg", "qs"}},
    {2, "Hexen Scripts (*.cfg, *.hs", "*.cfg;*.hs", {"cfg", "qs"}},
    {3, "Quake2 Scripts (*.cfg, *.q2s", "*.cfg;*.q2s", {"cfg", "q2s"}},
    {5, "Sin Scripts (*.cfg, *.ss", "*.cfg;*.ss", {"cfg", "q2s"}},
    {4, "Unreal INIs (*.ini", "*.ini", {"ini", "ini"}},
    {6, "Heretic2 Scripts (*.cfg, *.hrs", "*.cfg;*.hrs", {"cfg", "hrs"}},
    {0, "Scripts (*.cfg", "*.cfg", {"cfg", "cfg"}},
};

const FilterRow& RowOf(Index gameKind) {
    for (const FilterRow& row : kFilters) {
        if (row.GameKind == gameKind) {
            return row;
        }
    }
    return *(std::end(kFilters) - 1);
}

}  // namespace

Text SaveFilter(Index gameKind, TextView extension) {
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
