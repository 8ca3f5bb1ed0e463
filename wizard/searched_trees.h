// wizard/searched_trees.h
//
// Games that the search for programs comes by and knows by their data alone: they fill the rows for which it finds no
// program.

#pragma once

#include <optional>

#include "games/trees/game_tree.h"
#include "wizard/disk_walk.h"
#include "wizard/install_frm.h"

namespace lv {

class SearchedTrees {
  public:
    SearchedTrees();

    /// Keeps the tree in the directory, if there is one: of a game the first whole one, or the first at all. Lists what
    /// is below only where a directory is called as a game's is.
    void Take(Files& files, const DiskWalk::Step& step);

    /// Fills the open rows and closes them. One that names a tree of its game already stays as it is, and is closed
    /// too.
    void Fill(Install_Frm& form, std::array<bool, kWizardRows>& open) const;

  private:
    [[nodiscard]] bool MayHoldATree(const std::vector<DirectoryEntry>& entries) const;

    std::vector<Text> bases_;  // names of the directories that hold the games' data
    std::array<std::optional<GameTree>, kWizardRows> trees_;
};

}  // namespace lv
