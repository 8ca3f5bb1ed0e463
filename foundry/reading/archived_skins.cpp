#include "foundry/reading/archived_skins.h"

#include <algorithm>
#include <array>
#include <functional>
#include <unordered_set>

#include "catalogs/archive_names.h"
#include "catalogs/wildcard.h"
#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundry/tables/skin_files.h"
#include "games/games.h"

namespace lv {

namespace {

constexpr std::size_t kMostArchives = 100;  // of one directory
constexpr std::size_t kMostNames = 5000;    // of one list
constexpr TextView kPlayers = "players/";
constexpr TextView kSkins = "skins/";

constexpr std::array<TextView, 3> kNoSkins = {"_i.", "pain.", "weapon."};

/// More that is none among Heretic II's own textures: the wounds, and what gleams.
constexpr std::array<TextView, 2> kNoTextures = {"dmg.", "reflect."};

template <std::size_t Count>
bool HoldsNone(TextView lowerName, const std::array<TextView, Count>& parts) {
    return std::ranges::none_of(parts, [&](TextView part) { return Holds(lowerName, part); });
}

/// The names of all entries below `folder` ("players/"), without it.
void VisitEntries(Files& disk, TextView directory, Game gameKind, TextView folder,
                  const std::function<void(TextView)>& visit) {
    std::vector<Text> archives = ListFiles(disk, directory, FactsOf(gameKind).Archives);
    std::ranges::sort(archives, {}, [](const Text& name) { return LowerCase(name); });
    archives.resize(std::min(archives.size(), kMostArchives));
    for (const Text& archive : archives) {
        const auto file = disk.Open(Join(directory, "\\", archive));
        if (!file.Ok()) {
            continue;
        }
        for (const Text& name : ArchiveEntryNames(*file.Value)) {
            if (SameText(TextView(name).substr(0, folder.size()), folder)) {
                visit(TextView(name).substr(folder.size()));
            }
        }
    }
}

class NameSet {
  public:
    void Add(TextView name) {
        if (names_.size() < kMostNames && known_.insert(LowerCase(name)).second) {
            names_.emplace_back(name);
        }
    }
    std::vector<Text> Take() { return std::move(names_); }

  private:
    std::unordered_set<Text> known_;
    std::vector<Text> names_;
};

bool IsSkinOfArchive(TextView file, Game gameKind) {
    if (file.find('/') != TextView::npos || !IsModelSkin(file)) {
        return false;
    }
    return MatchesWildcard(file, kSkinPattern) ||
           (gameKind == Game::Heretic2 && MatchesWildcard(file, "*.m8") && HoldsNone(LowerCase(file), kNoTextures));
}

}  // namespace

bool IsModelSkin(TextView file) {
    return HoldsNone(LowerCase(file), kNoSkins);
}

std::vector<Text> ArchivedModels(Files& disk, TextView directory, Game gameKind) {
    NameSet models;
    VisitEntries(disk, directory, gameKind, kPlayers, [&](TextView name) {
        if (const std::size_t slash = name.find('/'); slash != TextView::npos) {
            models.Add(name.substr(0, slash));
        }
    });
    return models.Take();
}

std::vector<Text> ArchivedSkins(Files& disk, TextView directory, TextView model, Game gameKind) {
    NameSet skins;
    VisitEntries(disk, directory, gameKind, Join(kPlayers, model, "/"), [&](TextView name) {
        if (IsSkinOfArchive(name, gameKind)) {
            skins.Add(name.substr(0, name.rfind('.')));
        }
    });
    return skins.Take();
}

std::vector<Text> ArchivedQuakeWorldSkins(Files& disk, TextView directory) {
    NameSet skins;
    VisitEntries(disk, directory, Game::Quake, kSkins, [&](TextView name) {
        if (name.find('/') == TextView::npos && MatchesWildcard(name, kSkinPattern)) {
            skins.Add(name);
        }
    });
    return skins.Take();
}

}  // namespace lv
