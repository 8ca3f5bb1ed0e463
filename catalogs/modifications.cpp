#include "catalogs/modifications.h"

#include <algorithm>
#include <iterator>

#include "catalogs/catalog_store.h"
#include "catalogs/list_room.h"
#include "catalogs/wildcard.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/settings.h"

namespace lv {

namespace {

constexpr Game kAnyGame = Game::None;

struct TitleRow {
    TextView Directory;
    Game GameKind;
    TextView Title;
};

constexpr TitleRow kTitles[] = {
    {"ACTION", kAnyGame, "Action Quake"},
    {"AS", kAnyGame, "Aftershock"},
    {"ARENA", kAnyGame, "Rocket Arena"},
    {"HIPNOTIC", kAnyGame, "Scourge of Armagon"},
    {"ROGUE", Game::Quake, "Dissolution of Eternity"},
    {"ROGUE", Game::Quake2, "Ground Zero"},
    {"PORTALS", kAnyGame, "Portals of Praevus"},
    {"CTF", kAnyGame, "Capture the Flag"},
    {"LMCTF", kAnyGame, "Loki's Minions CTF"},
    {"SHRAK", kAnyGame, "Shrak"},
    {"FORTRESS", kAnyGame, "Team Fortress"},
};

// The title of a directory that has another title in this game.
bool IsOfTheOtherGame(TextView title, Game gameKind) {
    const auto* const row = std::ranges::find_if(kTitles, [&](const TitleRow& each) { return each.Title == title; });
    return row != std::end(kTitles) && std::ranges::any_of(kTitles, [&](const TitleRow& other) {
               return other.Directory == row->Directory && other.GameKind != row->GameKind &&
                      other.GameKind == gameKind;
           });
}

// Half-Life's own directories that hold no game.
bool IsSkipped(TextView directory, Game gameKind) {
    return gameKind == Game::HalfLife && (SameText(directory, "AUTH") || SameText(directory, "PROFILEDATA"));
}

bool IsGameDirectory(Files& files, TextView directory) {
    const auto entries = files.List(directory);  // empty if it cannot be listed
    return std::any_of(entries.Value.begin(), entries.Value.end(), [](const DirectoryEntry& entry) {
        if (entry.IsDirectory) {
            return SameText(entry.Name, "maps");
        }
        return !entry.IsDevice && (MatchesWildcard(entry.Name, "*.pak") || MatchesWildcard(entry.Name, "*.dat"));
    });
}

// The row is taken back where the catalog has no room for it.
bool AddRow(Run& run, CatalogLists& lists, TextView directory) {
    ListBox& list = lists.Game_Cbo;
    list.Items.push_back(MakeItem(ModificationTitle(directory, run.GameKind), Join(kGameOption, directory)));
    if (SavedLength(lists, kGames.Key, list) > kLongestValue) {
        list.Items.pop_back();
        return false;
    }
    SaveCatalog(run, lists, kGames.Key, list);
    return true;
}

bool HasRow(const ListBox& list, TextView directory) {
    return FindItemValue(list.Items, directory, kGameOption.size()).has_value();
}

}  // namespace

Text ModificationTitle(TextView directory, Game gameKind) {
    for (const TitleRow& row : kTitles) {
        if (SameText(row.Directory, directory) && (row.GameKind == kAnyGame || row.GameKind == gameKind)) {
            return Text(row.Title);
        }
    }
    return Text(directory);
}

Text DirectoryOfOption(TextView option) {
    return Trim(DropLeft(option, kGameOption.size()));
}

bool FillGamesCombo(Run& run, CatalogLists& lists) {
    ListBox& list = lists.Game_Cbo;
    list.Clear();
    const Text value = CatalogValue(run, kGames);
    const auto rows = SplitRows(value, kGames.RecordSize);
    if (!rows) {
        ReportDamage(run, kGames.ErrorName, value);
        lists.Game_Chk.Value = 0;
        return !run.Ended;
    }
    lists.HiddenGames.clear();
    for (std::size_t i = 0; i < rows->Count(); ++i) {
        const Text& title = rows->Field(i, 0);
        const Text& option = rows->Field(i, 1);
        const Text directory = Join(run.DefaultGameDirectory, "\\", DirectoryOfOption(option));
        if (!IsOfTheOtherGame(Trim(title), run.GameKind) && run.System.Disk.DirectoryExists(directory)) {
            list.Items.push_back(MakeItem(title, option));
        } else {
            AppendRecord(lists.HiddenGames, Join(title, ";", option));
        }
    }
    list.ListIndex = RepairedPosition(run, "GamesPos", 0, list.Items.size());
    ScanForGames(run, lists);
    lists.Game_Chk.Value = list.HasSelection() ? StoredCheck(run, "UseGames", 1) : 0;
    return !run.Ended;
}

bool AddModification(Run& run, CatalogLists& lists, TextView directory) {
    return HasRow(lists.Game_Cbo, directory) || AddRow(run, lists, directory);
}

Index ScanForGames(Run& run, CatalogLists& lists) {
    if (run.DefaultGameDirectory.empty()) {
        return 0;
    }
    const auto listed = run.System.Disk.List(run.DefaultGameDirectory);
    const std::size_t last = std::min(listed.Value.size(), kMostScannedEntries);
    Index count = 0;
    for (std::size_t i = 1; i < last; ++i) {  // the first is "."
        const DirectoryEntry& entry = listed.Value[i];
        if (!entry.IsDirectory || entry.Name == ".." || !FitsAField(entry.Name)) {
            continue;
        }
        if (IsSkipped(entry.Name, run.GameKind) || HasRow(lists.Game_Cbo, entry.Name) ||
            !IsGameDirectory(run.System.Disk, Join(run.DefaultGameDirectory, "\\", entry.Name))) {
            continue;
        }
        if (!AddRow(run, lists, entry.Name)) {
            TellListIsFull(run, lists.ModificationsToldOf, run.DefaultGameDirectory, "modifications",
                           lists.Game_Cbo.Items.size());
            break;
        }
        ++count;
    }
    return count;
}

}  // namespace lv
