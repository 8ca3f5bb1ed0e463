#include "foundry/reading/skin_page.h"

#include <algorithm>
#include <unordered_set>

#include "catalogs/sorted_names.h"
#include "catalogs/wildcard.h"
#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/question_box.h"
#include "foundry/reading/archived_skins.h"
#include "foundry/tables/skin_files.h"

namespace lv {

namespace {

constexpr std::size_t kSkinsPage = 3;
constexpr std::size_t kRatePage = 4;
constexpr TextView kPlayers = "\\players\\";

void Sort(std::vector<Text>& names) {
    std::ranges::sort(names, {}, [](const Text& name) { return LowerCase(name); });
}

/// Adds the names that are not there yet in any letter case, and sorts all.
void Merge(std::vector<Text>& names, std::vector<Text> more) {
    std::unordered_set<Text> known;
    for (const Text& name : names) {
        known.insert(LowerCase(name));
    }
    for (Text& name : more) {
        if (known.insert(LowerCase(name)).second) {
            names.push_back(std::move(name));
        }
    }
    Sort(names);
}

void TellListFailed(Run& run, TextView which, const Error& failed, TextView directory) {
    AskUser(run, "Error",
            Join("The following error occured attempting to build the ", which, " list...", NewLine, "Error #",
                 std::to_string(failed.Number), " - ", failed.Text, NewLine, "Current File = ", NewLine,
                 "Q2dir$ = ", directory),
            "OK");
}

/// The entries of a directory; one that is not there has none.
std::vector<DirectoryEntry> Entries(Run& run, TextView which, TextView directory) {
    auto listed = run.System.Disk.List(directory);
    if (!listed.Ok() && listed.Fault.Number != error::kPathNotFound) {
        TellListFailed(run, which, listed.Fault, directory);
    }
    return std::move(listed.Value);
}

void FillModels(Run& run, ScriptDocument& document) {
    const Text base = Join(run.DefaultGameDirectory, "\\", run.BaseGameDir);
    ListBox& models = document.Sex_Cbo;
    models.Items = SortedDirectories(Entries(run, "models", Join(base, kPlayers)));
    Merge(models.Items, ArchivedModels(run.System.Disk, base, document.Dialect.GameKind));
    models.ListIndex = models.Items.empty() ? -1 : 0;
}

void FillQuakeWorldSkins(Run& run, ScriptDocument& document) {
    FileListBox& list = document.Skin_Fil;
    const Text game = Join(run.DefaultGameDirectory, "\\qw");
    const Text skins = Join(game, "\\skins");
    list.Pattern = kSkinPattern;
    if (run.System.Disk.DirectoryExists(skins)) {
        list.Path = skins;
        list.Items = ListFiles(run.System.Disk, skins, list.Pattern);
    }
    Merge(list.Items, ArchivedQuakeWorldSkins(run.System.Disk, game));
}

}  // namespace

void PrepareSkinPage(Run& run, ScriptDocument& document) {
    const bool quakeWorld = document.Dialect.IsQuakeWorld;
    const bool newFamily = document.Dialect.ScriptFamily == Dialect::Quake2;
    document.Options_Tab[kSkinsPage].Enabled = quakeWorld;
    document.Options_Tab[kRatePage].Enabled = quakeWorld || newFamily;
    document.Skin_Fil.Clear();
    document.Sex_Cbo.Clear();
    document.Skin_Cbo.Clear();
    if (quakeWorld) {
        FillQuakeWorldSkins(run, document);
    }
    if (newFamily) {
        FillModels(run, document);
        Sex_Cbo_Click(run, document);
    }
}

void Sex_Cbo_Click(Run& run, ScriptDocument& document) {
    document.Skin_Cbo.Clear();
    if (!document.Sex_Cbo.HasSelection()) {
        return;
    }
    const Text game = DropRight(document.CurrentScriptDirectory, 1);
    const Text model = document.Sex_Cbo.Selected();
    const Text directory = Join(game, kPlayers, model);
    for (const DirectoryEntry& entry : Entries(run, "skins", directory)) {
        if (!entry.IsDirectory && !entry.IsDevice && MatchesWildcard(entry.Name, kSkinPattern) &&
            IsModelSkin(entry.Name)) {
            document.Skin_Cbo.Items.push_back(DropRight(entry.Name, kSkinEnding.size()));
        }
    }
    Merge(document.Skin_Cbo.Items, ArchivedSkins(run.System.Disk, game, model, document.Dialect.GameKind));
}

}  // namespace lv
