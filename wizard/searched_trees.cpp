#include "wizard/searched_trees.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/typed_path.h"
#include "games/trees/tree_room.h"

namespace lv {

namespace {

bool HoldsControls(TextView path) {
    return std::ranges::any_of(path, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

bool NamesATree(Install_Frm& form, std::size_t row) {
    const Text& named = form.GamePath_Txt[row].Text;
    if (Trim(named).empty()) {
        return false;
    }
    if (named == form.FoundPaths[row]) {
        return true;
    }
    const auto tree = TreeIn(form.run.System.Disk, TypedPath(form.run, named));
    return tree && FactsOf(tree->GameKind).WizardRow == row;
}

}  // namespace

SearchedTrees::SearchedTrees() {
    for (const GameFacts& game : AllGames()) {
        bases_.push_back(game.Data.Directory.empty() ? BaseDirectoryOf(game) : Text(game.Data.Directory));
    }
}

bool SearchedTrees::MayHoldATree(const std::vector<DirectoryEntry>& entries) const {
    return std::ranges::any_of(entries, [this](const DirectoryEntry& entry) {
        return entry.IsDirectory &&
               std::ranges::any_of(bases_, [&](const Text& base) { return SameText(entry.Name, base); });
    });
}

void SearchedTrees::Take(Files& files, const DiskWalk::Step& step) {
    const Text directory = step.Path.ends_with('\\') ? DropRight(step.Path, 1) : step.Path;
    if (!MayHoldATree(step.Entries) || IsLinkedTree(directory) || HoldsControls(directory)) {
        return;
    }
    auto tree = TreeIn(files, directory, step.Entries);
    const std::size_t row = tree ? FactsOf(tree->GameKind).WizardRow : kWizardRows;
    if (row < kWizardRows && (!trees_[row] || (tree->IsFull && !trees_[row]->IsFull))) {
        trees_[row] = std::move(tree);
    }
}

void SearchedTrees::Fill(Install_Frm& form, std::array<bool, kWizardRows>& open) const {
    for (std::size_t row = 0; row < kWizardRows; ++row) {
        if (!open[row]) {
            continue;
        }
        if (NamesATree(form, row)) {
            open[row] = false;
        } else if (trees_[row]) {
            form.GamePath_Txt[row].Text = ProgramDirectoryOf(*trees_[row]);
            open[row] = false;
        }
    }
}

}  // namespace lv
