#include "foundry/reading/skin_page.h"

#include <algorithm>
#include <array>

#include "catalogs/sorted_names.h"
#include "catalogs/wildcard.h"
#include "foundation/field_strings.h"
#include "foundation/game_numbers.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

constexpr std::size_t kSkinsPage = 3;
constexpr std::size_t kRatePage = 4;
constexpr TextView kPlayers = "\\players\\";

/// What goes with a model but is no skin for it.
constexpr std::array<TextView, 3> kNoSkins = {"_i.", "pain.", "weapon."};

bool IsSkin(TextView file) {
    const Text name = LowerCase(file);
    return std::ranges::none_of(kNoSkins, [&](TextView part) { return Holds(name, part); });
}

void Sort(std::vector<Text>& names) {
    std::ranges::sort(names, {}, [](const Text& name) { return LowerCase(name); });
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
    const Text players = Join(run.DefaultGameDirectory, "\\", run.BaseGameDir, kPlayers);
    document.Sex_Cbo.Items = SortedDirectories(Entries(run, "models", players));
    document.Sex_Cbo.ListIndex = document.Sex_Cbo.Items.empty() ? -1 : 0;
}

void FillQuakeWorldSkins(Run& run, ScriptDocument& document) {
    FileListBox& list = document.Skin_Fil;
    const Text skins = Join(run.DefaultGameDirectory, "\\qw\\skins");
    list.Pattern = "*.pcx";
    if (run.System.Disk.DirectoryExists(skins)) {
        list.Path = skins;
        list.Items = ListFiles(run.System.Disk, skins, list.Pattern);
        Sort(list.Items);
    }
}

}  // namespace

void PrepareSkinPage(Run& run, ScriptDocument& document) {
    const bool quakeWorld = document.Dialect.IsQuakeWorld;
    const bool newFamily = document.Dialect.ScriptFamily == script_family::kQuake2;
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
    const Text directory = Join(DropRight(document.CurrentScriptDirectory, 1), kPlayers, document.Sex_Cbo.Selected());
    for (const DirectoryEntry& entry : Entries(run, "skins", directory)) {
        if (!entry.IsDirectory && MatchesWildcard(entry.Name, "*.pcx") && IsSkin(entry.Name)) {
            document.Skin_Cbo.Items.push_back(DropRight(entry.Name, 4));
        }
    }
    Sort(document.Skin_Cbo.Items);
}

}  // namespace lv
