#include "games/trees/tree_search.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "games/games.h"
#include "games/trees/steam_games.h"

namespace lv {

namespace {

constexpr int kBelowGames = 3;  // ~/games/id/quake, and the "data" of an installer
constexpr int kBelowNoted = 2;
constexpr int kBelowTitle = 1;  // a game's own directory
constexpr TextView kRerelease = "rerelease";

struct PrefixPlace {
    TextView Top;  // below the prefix's drive
    TextView Path;
    int Depth;
};

constexpr PrefixPlace kInPrefix[] = {
    {"GOG Games", "", 2},
    {"Program Files", "\\GOG Galaxy\\Games", 2},
    {"Program Files (x86)", "\\GOG Galaxy\\Games", 2},
    {"Games", "", 2},
    {"Program Files", "", 2},
    {"Program Files (x86)", "", 2},
};
constexpr TextView kHoldsPrograms = "Program Files";  // in the names of those that may hold Steam

// Below the directory that holds the data of the user's programs.
constexpr TextView kInData[] = {"\\OldUnreal", "\\unreal-gold"};

// On each drive.
constexpr TextView kOnADrive[] = {
    "\\quake",     "\\hexen2", "\\quake2", "\\unreal", "\\sin", "\\heretic ii", "\\heretic2", "\\sierra\\half-life",
    "\\half-life",
};

// Neither game nor way to one; hidden directories are none either.
constexpr TextView kPassedOver[] = {
    "windows", "dosdevices", "proc", "sys", "dev", "$recycle.bin", "system volume information"};

bool IsPassedOver(TextView name) {
    return name.starts_with('.') ||
           std::ranges::any_of(kPassedOver, [&](TextView each) { return SameText(each, name); });
}

// By the first word of a game's name: "quake-full", "Hexen II".
bool IsCalledLikeAGame(TextView name) {
    return std::ranges::any_of(AllGames(), [&](const GameFacts& game) {
        return StartsWithText(name, game.Name.substr(0, game.Name.find(' ')));
    });
}

bool ComesBefore(const Text& a, const Text& b) {
    const Text lowerA = LowerCase(a);
    const Text lowerB = LowerCase(b);
    return lowerA != lowerB ? lowerA < lowerB : a < b;
}

enum Stage { kGames, kSteam, kNoted, kPrefixes, kDrives, kNoStage };

}  // namespace

// On the drive that lies nearest: a prefix may be the drive C: itself.
Text TreeSearch::Nearest(const Text& path) {
    Text nearest = files_.FromHost(files_.ToHost(path));
    return nearest.empty() || SameText(nearest, path) ? path : nearest;
}

void TreeSearch::AddIfThere(Text path, int depth) {
    if (files_.DirectoryExists(path)) {
        usual_.push_back({std::move(path), depth});
    }
}

void TreeSearch::AddSteam(TextView root) {
    for (const Text& library : SteamLibraries(files_, root)) {
        for (Text& directory : SteamGameDirectories(files_, Nearest(library))) {
            usual_.push_back({std::move(directory), kBelowTitle});
        }
    }
}

// A name that is not there is looked for in all of its directory, so that is read once for all names.
void TreeSearch::AddPrefix(TextView prefix) {
    const Text drive = Nearest(Join(prefix, "\\drive_c"));
    const auto tops = files_.List(drive).Value;
    for (const DirectoryEntry& top : tops) {
        const Text steam = Join(PathBelow(drive, top.Name), "\\Steam");
        if (top.IsDirectory && StartsWithText(top.Name, kHoldsPrograms) && files_.DirectoryExists(steam)) {
            AddSteam(steam);
        }
    }
    for (const PrefixPlace& place : kInPrefix) {
        for (const DirectoryEntry& top : tops) {
            if (top.IsDirectory && SameText(top.Name, place.Top)) {
                AddIfThere(Join(PathBelow(drive, top.Name), place.Path), place.Depth);
            }
        }
    }
    AddIfThere(drive, 1);
}

void TreeSearch::AddDrives() {
    for (const Text& drive : files_.Drives()) {
        for (const TextView own : kOnADrive) {
            if (!SameText(drive, "A:") && !SameText(drive, "B:")) {
                AddIfThere(Join(drive, own), kBelowTitle);
            }
        }
    }
}

void TreeSearch::AddPrefixes() {
    for (const Text& prefix : places_->WinePrefixes()) {
        AddPrefix(prefix);
    }
    for (const Text& root : places_->SteamRoots()) {
        for (const Text& library : SteamLibraries(files_, root)) {
            for (const Text& prefix : SteamPrefixes(files_, library)) {
                AddPrefix(prefix);
            }
        }
    }
}

void TreeSearch::AddStage() {
    const int stage = stage_++;
    if (stage == kDrives) {
        AddDrives();
    } else if (places_ == nullptr) {
        return;
    } else if (stage == kGames) {
        AddEach(places_->Games(), kBelowGames);
        for (const TextView own : kInData) {
            AddIfThere(Join(places_->DataDirectory(), own), kBelowNoted);
        }
    } else if (stage == kSteam) {
        for (const Text& root : places_->SteamRoots()) {
            AddSteam(root);
        }
    } else if (stage == kNoted) {
        AddEach(places_->NotedGames(), kBelowNoted);
    } else {
        AddPrefixes();
    }
}

void TreeSearch::AddEach(const std::vector<Text>& directories, int depth) {
    for (const Text& directory : directories) {
        usual_.push_back({Nearest(directory), depth});
    }
}

bool TreeSearch::OpenNextPlace() {
    while (usual_.empty() && stage_ < kNoStage) {
        AddStage();
    }
    if (usual_.empty()) {
        return false;
    }
    place_ = usual_.front().Path;
    waiting_.push_back(std::move(usual_.front()));
    usual_.pop_front();
    listedHere_ = 0;
    return true;
}

void TreeSearch::LeavePlace() {
    if (!likely_.empty() || !waiting_.empty()) {
        crowded_.push_back(place_);
        likely_.clear();
        waiting_.clear();
    }
}

bool TreeSearch::Step() {
    if (listed_ >= kMostListed || listedHere_ >= kMostListedInAPlace) {
        LeavePlace();
    }
    if (listed_ >= kMostListed) {
        return false;
    }
    if (likely_.empty() && waiting_.empty() && !OpenNextPlace()) {
        return false;
    }
    std::deque<Waiting>& queue = likely_.empty() ? waiting_ : likely_;
    const Waiting next = std::move(queue.front());
    queue.pop_front();
    LookAt(next);
    return true;
}

void TreeSearch::LookAt(const Waiting& place) {
    at_ = place.Path;
    ++listed_;
    ++listedHere_;
    const auto listed = files_.ListForWalk(place.Path);
    if (!listed.Ok()) {
        return;
    }
    const std::uint64_t identity = listed.Value.Identity;
    const auto [met, isNew] = met_.try_emplace(identity, place.Depth);
    if (!isNew && met->second >= place.Depth) {
        return;
    }
    met->second = place.Depth;
    nameless_ += isNew ? listed.Value.Nameless : 0;
    auto tree = trees_.contains(identity) ? std::nullopt : TreeIn(files_, place.Path, listed.Value.Entries);
    if (tree) {
        trees_.insert(identity);
        found_.push_back(*std::move(tree));
    }
    AddBelow(place, listed.Value.Entries, trees_.contains(identity));
}

// What lies in a tree is the game's own, but for a rerelease, which is a tree of its own.
void TreeSearch::AddBelow(const Waiting& place, const std::vector<DirectoryEntry>& entries, bool isTree) {
    if (place.Depth == 0 && !isTree) {
        return;
    }
    std::vector<Text> names;
    for (const DirectoryEntry& entry : entries) {
        if (entry.IsDirectory && (isTree ? SameText(entry.Name, kRerelease) : !IsPassedOver(entry.Name))) {
            names.push_back(entry.Name);
        }
    }
    std::ranges::sort(names, ComesBefore);
    for (const Text& name : names) {
        (IsCalledLikeAGame(name) ? likely_ : waiting_)
            .push_back({PathBelow(place.Path, name), std::max(place.Depth - 1, 0)});
    }
}

std::vector<GameTree> QuickLook(Files& files, KnownPlaces* places) {
    TreeSearch search(files, places);
    while (search.Step()) {
    }
    return search.Found();
}

}  // namespace lv
