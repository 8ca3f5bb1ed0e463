#include "wizard/further_trees.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/typed_path.h"
#include "games/programs.h"
#include "games/trees/tree_room.h"
#include "wizard/engine_entries.h"
#include "wizard/entry_list.h"

namespace lv {

namespace {

constexpr std::size_t kMostShown = 20;

/// As a directory that was found is written.
Text AsFound(Text path) {
    std::ranges::replace(path, '/', '\\');
    while (path.ends_with('\\')) {
        path.pop_back();
    }
    return path;
}

/// One directory, on whichever drive it is named.
bool AreOne(Files& disk, const Text& one, const Text& other) {
    return SameText(one, other) || (!disk.ToHost(one).empty() && SameText(disk.ToHost(one), disk.ToHost(other)));
}

Text PathOfRow(Install_Frm& form, std::size_t row) {
    return form.Game_Chk[row].Value == 0 ? Text() : AsFound(TypedPath(form.run, form.GamePath_Txt[row].Text));
}

bool IsNamed(Install_Frm& form, const Text& path) {
    for (std::size_t row = 0; row < kWizardRows; ++row) {
        const Text named = PathOfRow(form, row);
        if (!named.empty() && AreOne(form.run.System.Disk, named, path)) {
            return true;
        }
    }
    return false;
}

bool HasNews(Install_Frm& form, std::size_t row, const Text& path, TextView list) {
    const auto isNew = [&](const Program& program) {
        return program.WizardRow == row && !program.EntryTitle.empty() &&
               IsNewProgram(form.run, list, LowerCase(Join(path, "\\", program.FileName)));
    };
    return std::ranges::any_of(AllPrograms(), isNew) ||
           HasNewEngine(form.run, form.Engines, form.Found, row, path, list);
}

}  // namespace

std::vector<FurtherTree> FurtherTrees(Install_Frm& form, TextView list) {
    std::vector<FurtherTree> trees;
    for (std::size_t row = 0; row < kWizardRows; ++row) {
        if (form.Game_Chk[row].Value != 1) {
            continue;
        }
        for (const GameTree* tree : TreesOfRow(form.Found, row)) {
            const Text path = ProgramDirectoryOf(*tree);
            // Of two that differ by letter case alone the list can hold one.
            const auto isThisOne = [&](const FurtherTree& other) { return SameText(other.Path, path); };
            if (!IsLinkedTree(path) && std::ranges::none_of(trees, isThisOne) && !IsNamed(form, path) &&
                HasNews(form, row, path, list)) {
                trees.push_back({row, path});
            }
        }
    }
    return trees;
}

bool WantsFurtherTrees(Run& run, const std::vector<FurtherTree>& trees) {
    if (trees.empty()) {
        return false;
    }
    Text lines;
    for (std::size_t i = 0; i < std::min(trees.size(), kMostShown); ++i) {
        lines += Join(TabChar, InstallRows()[trees[i].Row].Name, ": ", trees[i].Path, NewLine);
    }
    if (trees.size() > kMostShown) {
        lines += Join(TabChar, "and ", std::to_string(trees.size() - kMostShown), " more", NewLine);
    }
    return AskUser(run, "More of Your Games",
                   Join("These games lie here as well:", NewLine, NewLine, lines, NewLine,
                        "Shall they be in the list too? Their titles tell where they lie."),
                   "&Yes,&No") == 0;
}

std::vector<Text> TreesBeside(Install_Frm& form, TextView path) {
    std::vector<Text> trees;
    for (const GameTree& tree : form.Found.Trees) {
        trees.push_back(ProgramDirectoryOf(tree));
    }
    for (std::size_t row = 0; row < kWizardRows; ++row) {
        trees.push_back(PathOfRow(form, row));
    }
    std::erase_if(trees, [&](const Text& tree) {
        return tree.empty() || AreOne(form.run.System.Disk, tree, AsFound(Text(path)));
    });
    return trees;
}

}  // namespace lv
