#include "transfer/moved_places.h"

#include <algorithm>
#include <set>

#include "catalogs/catalog_store.h"
#include "catalogs/missing_game.h"
#include "foundation/field_strings.h"
#include "transfer/carried_values.h"

namespace lv {

namespace {

constexpr std::size_t kRoot = 3;  // characters of "C:\"

bool IsOfADrive(TextView path) {
    return path.size() >= kRoot && path[1] == ':' && path[2] == '\\';
}

bool IsOnDiskette(TextView path) {
    const char drive = path.empty() ? '\0' : UpperCase(path.front());
    return drive == 'A' || drive == 'B';
}

bool IsMissing(Files& disk, TextView directory) {
    return IsOfADrive(directory) && (IsOnDiskette(directory) || !disk.DirectoryExists(directory));
}

bool LiesBelow(TextView path, TextView directory) {
    return path.size() > directory.size() && StartsWithText(path, directory) && path[directory.size()] == '\\';
}

MovedPlace* PlaceOf(std::vector<MovedPlace>& places, TextView directory) {
    const auto found = std::ranges::find_if(
        places, [directory](const MovedPlace& place) { return SameText(place.Directory, directory); });
    return found == places.end() ? nullptr : &*found;
}

/// What lies in another place goes into that.
std::vector<MovedPlace> Outermost(std::vector<MovedPlace> places) {
    std::vector<MovedPlace> outer;
    for (const MovedPlace& place : places) {
        if (std::ranges::none_of(
                places, [&place](const MovedPlace& other) { return LiesBelow(place.Directory, other.Directory); })) {
            outer.push_back(place);
        }
    }
    for (const MovedPlace& place : places) {
        const auto above = std::ranges::find_if(
            outer, [&place](const MovedPlace& other) { return LiesBelow(place.Directory, other.Directory); });
        if (above != outer.end()) {
            above->Games.insert(above->Games.end(), place.Games.begin(), place.Games.end());
            above->Programs.insert(above->Programs.end(), place.Programs.begin(), place.Programs.end());
        }
    }
    return outer;
}

}  // namespace

std::vector<MovedPlace> MovedPlacesOf(Files& disk, const std::vector<StoredValue>& values) {
    const StoredValue* const catalog = FindValue(values, kOptions, kExecutables.Key);
    const auto rows = catalog != nullptr ? SplitRows(catalog->Value, kExecutables.RecordSize) : std::nullopt;
    std::vector<MovedPlace> places;
    std::vector<Text> there;
    for (std::size_t i = 0; rows && i < rows->Count(); ++i) {
        const Text program = OnDisk(Trim(rows->Field(i, 1)));
        const Text directory = DirectoryOf(program);
        if (MovedPlace* const known = PlaceOf(places, directory)) {
            known->Games.push_back(rows->Field(i, 0));
            known->Programs.push_back(program);
        } else if (std::ranges::find(there, LowerCase(directory)) == there.end()) {
            if (IsMissing(disk, directory)) {
                places.push_back({directory, {rows->Field(i, 0)}, {program}});
            } else {
                there.push_back(LowerCase(directory));
            }
        }
    }
    return Outermost(std::move(places));
}

Text LikelyPlace(Files& disk, const MovedPlace& place, const std::vector<PathMove>& known) {
    std::set<Text> seen = {place.Directory};
    for (const PathMove& move : known) {
        const Text moved = MovedPath(place.Directory, {{DirectoryOf(move.From), DirectoryOf(move.To)}});
        if (seen.insert(moved).second && IsHere(disk, moved)) {
            return moved;
        }
    }
    return {};
}

std::vector<Text> MissingIn(Files& disk, const MovedPlace& place, TextView here) {
    std::vector<Text> missing;
    for (const Text& program : place.Programs) {
        const Text moved = MovedPath(program, {{place.Directory, Text(here)}});
        const Text name = program.substr(std::min(place.Directory.size() + 1, program.size()));
        const bool isNamed = std::ranges::any_of(missing, [&name](const Text& other) { return SameText(other, name); });
        if (IsOfADrive(moved) && !isNamed && (IsOnDiskette(moved) || !disk.FileExists(moved))) {
            missing.push_back(name);
        }
    }
    return missing;
}

Text WhereToLook(Files& disk, const MovedPlace& place, TextView executables) {
    const auto rows = SplitRows(executables, kExecutables.RecordSize);
    Text root;
    for (std::size_t i = 0; rows && i < rows->Count(); ++i) {
        const Text directory = DirectoryOf(OnDisk(Trim(rows->Field(i, 1))));
        if (!IsHere(disk, directory)) {
            continue;
        }
        if (SameText(LastPathPart(directory), LastPathPart(place.Directory))) {
            return directory;
        }
        root = root.empty() ? directory.substr(0, kRoot) : root;
    }
    const Text own = place.Directory.substr(0, kRoot);
    return root.empty() && IsHere(disk, own) ? own : root;
}

bool IsHere(Files& disk, TextView path) {
    return IsOfADrive(path) && !IsOnDiskette(path) && (disk.FileExists(path) || disk.DirectoryExists(path));
}

}  // namespace lv
