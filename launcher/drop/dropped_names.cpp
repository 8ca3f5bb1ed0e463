#include "launcher/drop/dropped_names.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "foundation/device_names.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kFallbackName = "newmod";

bool IsLetterOrDigit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool IsOfAName(char c) {
    return IsLetterOrDigit(c) || c == '_' || c == '-' || c == '.';
}

// "pak0", "PAK12".
bool IsNumberedPak(TextView stem) {
    return stem.size() > 3 && StartsWithText(stem, "pak") &&
           std::ranges::all_of(stem.substr(3), [](char c) { return c >= '0' && c <= '9'; });
}

Text OnlyNameCharacters(TextView stem) {
    Text name(stem.substr(0, kLongestModificationName));
    std::ranges::replace_if(
        name, [](char c) { return !IsOfAName(c); }, '_');
    while (!name.empty() && !IsLetterOrDigit(name.front())) {
        name.erase(0, 1);
    }
    while (name.ends_with('.')) {
        name.pop_back();
    }
    return name;
}

}  // namespace

Text StemOf(TextView file) {
    return Text(file.substr(0, file.rfind('.')));
}

bool IsModificationName(TextView name, const GameFacts& game) {
    return !name.empty() && name.size() <= kLongestModificationName && IsLetterOrDigit(name.front()) &&
           !name.ends_with('.') && std::ranges::all_of(name, IsOfAName) && !SameText(name, game.BaseGameDir) &&
           !IsDeviceName(name);
}

Text ModificationNameFor(TextView archive, const GameFacts& game) {
    Text stem = StemOf(LastPathPart(archive));
    if (IsNumberedPak(stem)) {
        stem = LastPathPart(DirectoryOf(archive));
    }
    const Text name = LowerCase(OnlyNameCharacters(stem));
    const bool isDrive = Holds(stem, ":");
    return !isDrive && IsModificationName(name, game) ? name : Text(kFallbackName);
}

Text ArchiveNameFor(const DroppedThing& thing, Game game) {
    if (thing.IsZip) {
        const Text name = LastPathPart(thing.Path);
        const Text ending = LowerCase(name.substr(name.rfind('.')));
        const Text stem = OnlyNameCharacters(StemOf(name));
        return Join(stem.empty() || IsDeviceName(stem) ? Text(kFallbackName) : stem, ending);
    }
    switch (game) {
        case Game::Heretic2:
            return "htic2-0.pak";
        case Game::Sin:
            return "pak0.sin";
        default:
            return "pak0.pak";
    }
}

bool IsMapName(TextView stem) {
    return !stem.empty() && FitsAField(stem) && stem.find_first_of(" \"") == TextView::npos && !IsDeviceName(stem);
}

bool IsScriptName(TextView name) {
    return FitsAField(name) && Holds(name, ".") && name.find_first_of("\\/:\"") == TextView::npos &&
           !IsDeviceName(name);
}

}  // namespace lv
