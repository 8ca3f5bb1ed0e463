// games/trees/tree_search.h
//
// The quick look for games: in the places where they usually lie, two or three levels deep, never over a whole disk. In
// steps, so that a window can show where it is and let the user stop it.

#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "games/trees/game_tree.h"
#include "platform/known_places.h"

namespace lv {

constexpr std::size_t kMostListed = 5000;          // directories in one look
constexpr std::size_t kMostListedInAPlace = 2500;  // of one place, for those behind it to have their turn

class TreeSearch {
  public:
    /// `places` may be null: then only the drives' own directories are looked at.
    TreeSearch(Files& files, KnownPlaces* places) : files_(files), places_(places) {}

    /// Looks at one more directory; false when there is none left.
    bool Step();

    /// The directory that the last step looked at.
    [[nodiscard]] const Text& At() const { return at_; }

    /// In the order in which they were met: the user's own directories, the system's, Steam's libraries, what other
    /// launchers have noted down, Wine's prefixes, the drives. Each tree once.
    [[nodiscard]] const std::vector<GameTree>& Found() const { return found_; }

    /// The places that hold more than was looked through.
    [[nodiscard]] const std::vector<Text>& Crowded() const { return crowded_; }

    /// How many directories there have names that code page 1252 cannot say: no game could open them.
    [[nodiscard]] std::size_t Nameless() const { return nameless_; }

    /// How many directories were listed.
    [[nodiscard]] std::size_t Listed() const { return listed_; }

  private:
    struct Waiting {
        Text Path;
        int Depth = 0;  // how many levels below it are still looked at
    };
    bool OpenNextPlace();
    void LeavePlace();
    void AddStage();
    void AddDrives();
    void AddPrefixes();
    void AddEach(const std::vector<Text>& directories, int depth);
    void AddPrefix(TextView prefix);
    void AddSteam(TextView root);
    Text Nearest(const Text& path);
    void AddIfThere(Text path, int depth);
    void LookAt(const Waiting& place);
    void AddBelow(const Waiting& place, const std::vector<DirectoryEntry>& entries, bool isTree);

    Files& files_;
    KnownPlaces* places_;
    int stage_ = 0;
    std::deque<Waiting> usual_;    // places still to come
    Text place_;                   // the present one
    std::deque<Waiting> likely_;   // of that, nearest first: those that are called like a game
    std::deque<Waiting> waiting_;  // and those that are not, which come behind all of these
    std::size_t listedHere_ = 0;
    std::size_t listed_ = 0;
    Text at_;
    std::unordered_map<std::uint64_t, int> met_;  // by identity: to what depth
    std::unordered_set<std::uint64_t> trees_;
    std::vector<GameTree> found_;
    std::vector<Text> crowded_;
    std::size_t nameless_ = 0;
};

/// All of it at once.
std::vector<GameTree> QuickLook(Files& files, KnownPlaces* places);

}  // namespace lv
