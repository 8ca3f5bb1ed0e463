#include "games/trees/game_tree.h"

#include <algorithm>
#include <array>
#include <span>

#include "foundation/field_strings.h"
#include "games/places.h"

namespace lv {

namespace {

constexpr std::size_t kMostMarks = 3;
constexpr std::size_t kMostPacks = 4;

// Names and the "*.pak" of patterns, in lower case; a "*" stands at the start or at the end.
using Marks = std::array<TextView, kMostMarks>;
using Packs = std::array<TextView, kMostPacks>;

struct TreeRow {
    Game GameKind;
    TextView Base;
    Marks Within;       // one of these lies in the base directory
    Marks FullWithin;   // one of these too if it is the full game; none: it always is
    Marks FullBeside;   // or one of these beside the base directory
    TextView NotThere;  // lies in the base directory of another game
    Packs MissionPacks;
    Marks InPack;  // one of these lies in a mission pack's directory
    std::size_t WizardRow;
};

// In the order in which a directory is tested for a game everywhere.
// clang-format off
constexpr TreeRow kRows[] = {
    // game            base      archives                             full with          or beside it       not with    mission packs                        with                     wizard's row
    {Game::Quake,    "id1",    {"*.pak"},                         {"pak1.pak"},     {"quakeex.kpf"},   "",         {"hipnotic", "rogue", "dopa", "mg1"}, {"*.pak"},               wizard_row::kQuake},
    {Game::Hexen2,   "data1",  {"*.pak"},                         {"pak1.pak"},     {},                "",         {"portals", "hw"},                    {"*.pak"},               wizard_row::kHexen2},
    {Game::Quake2,   "baseq2", {"*.pak"},                         {"pak1.pak"},     {"q2game.kpf"},    "",         {"xatrix", "rogue"},                  {"*.pak"},               wizard_row::kQuake2},
    {Game::Unreal,   "system", {"unreal.exe", "unrealshare.u"},   {},               {},                "botpack.u", {},                                  {},                      wizard_row::kUnreal},
    {Game::Sin,      "base",   {"*.sin"},                         {},               {},                "",         {"2015"},                             {"*.sin"},               wizard_row::kSin},
    {Game::Heretic2, "base",   {"htic2-*"},                       {"htic2-1.pak"},  {},                "",         {},                                   {},                      wizard_row::kHeretic2},
    {Game::HalfLife, "valve",  {"liblist.gam", "*.pak", "*.wad"}, {},               {},                "",         {"gearbox", "bshift"},                {"liblist.gam", "*.pak"}, wizard_row::kHalfLife},
};
// clang-format on

// Without these it is a directory of that name and no more.
constexpr TextView kUnrealMaps = "maps";

using Entries = std::vector<DirectoryEntry>;

bool Fits(TextView name, TextView mark) {
    if (mark.starts_with('*')) {
        const TextView end = mark.substr(1);
        return name.size() > end.size() && SameText(name.substr(name.size() - end.size()), end);
    }
    if (mark.ends_with('*')) {
        return StartsWithText(name, mark.substr(0, mark.size() - 1));
    }
    return SameText(name, mark);
}

bool IsFileLike(const DirectoryEntry& entry, const Marks& marks) {
    const auto fits = [&](TextView mark) { return !mark.empty() && Fits(entry.Name, mark); };
    return !entry.IsDirectory && !entry.IsDevice && std::ranges::any_of(marks, fits);
}

bool HasFileLike(const Entries& entries, const Marks& marks) {
    return std::ranges::any_of(entries, [&](const DirectoryEntry& entry) { return IsFileLike(entry, marks); });
}

// Those called so, the one in lower case first: engines that heed letter case find that alone.
std::vector<Text> DirectoriesCalled(const Entries& entries, TextView name) {
    std::vector<Text> found;
    for (const DirectoryEntry& entry : entries) {
        if (entry.IsDirectory && SameText(entry.Name, name)) {
            found.push_back(entry.Name);
        }
    }
    std::ranges::sort(found, [](const Text& a, const Text& b) { return a > b; });
    return found;
}

Text Below(TextView directory, TextView name) {
    return Join(directory, directory.ends_with('\\') ? "" : "\\", name);
}

bool IsLower(TextView name) {
    return LowerCase(name) == name;
}

bool AreArchivesLower(const Entries& within, const Marks& archives) {
    return std::ranges::all_of(
        within, [&](const DirectoryEntry& entry) { return !IsFileLike(entry, archives) || IsLower(entry.Name); });
}

bool IsFull(const TreeRow& row, const Entries& beside, const Entries& within) {
    return row.FullWithin.front().empty() || HasFileLike(within, row.FullWithin) || HasFileLike(beside, row.FullBeside);
}

std::vector<Text> MissionPacksIn(Files& files, TextView directory, const Entries& entries, const TreeRow& row) {
    std::vector<Text> packs;
    for (const TextView pack : row.MissionPacks) {
        const auto names = pack.empty() ? std::vector<Text>() : DirectoriesCalled(entries, pack);
        const auto hasArchive = [&](const Text& name) {
            return HasFileLike(files.List(Below(directory, name)).Value, row.InPack);
        };
        if (const auto found = std::ranges::find_if(names, hasArchive); found != names.end()) {
            packs.push_back(*found);
        }
    }
    return packs;
}

std::optional<GameTree> TreeOf(Files& files, TextView directory, const Entries& entries, const TreeRow& row) {
    if (row.GameKind == Game::Unreal && DirectoriesCalled(entries, kUnrealMaps).empty()) {
        return std::nullopt;
    }
    for (const Text& base : DirectoriesCalled(entries, row.Base)) {
        const Entries within = files.List(Below(directory, base)).Value;
        if (!HasFileLike(within, row.Within) || HasFileLike(within, {row.NotThere})) {
            continue;
        }
        const bool anyCase = row.GameKind == Game::Unreal;
        return GameTree{.GameKind = row.GameKind,
                        .Directory = Text(directory),
                        .BaseGameDir = base,
                        .IsFull = IsFull(row, entries, within),
                        .IsSpelledForToday = anyCase || (IsLower(base) && AreArchivesLower(within, row.Within)),
                        .MissionPacks = MissionPacksIn(files, directory, entries, row)};
    }
    return std::nullopt;
}

}  // namespace

std::optional<GameTree> TreeIn(Files& files, TextView directory, const Entries& entries) {
    for (const TreeRow& row : kRows) {
        if (auto tree = TreeOf(files, directory, entries, row)) {
            return tree;
        }
    }
    return std::nullopt;
}

std::optional<GameTree> TreeIn(Files& files, TextView directory) {
    return TreeIn(files, directory, files.List(directory).Value);
}

Text ProgramDirectoryOf(const GameTree& tree) {
    return tree.GameKind == Game::Unreal ? Below(tree.Directory, tree.BaseGameDir) : tree.Directory;
}

std::size_t WizardRowOf(Game game) {
    const auto row = std::ranges::find(kRows, game, &TreeRow::GameKind);
    return row == std::end(kRows) ? kWizardRows : row->WizardRow;
}

}  // namespace lv
