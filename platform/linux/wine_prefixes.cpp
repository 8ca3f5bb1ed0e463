#include "platform/linux/wine_prefixes.h"

#include <algorithm>
#include <system_error>

#include "platform/known_places.h"
#include "platform/linux/files/host_read.h"
#include "platform/linux/game_notes.h"
#include "platform/linux/user_directories.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

using Paths = std::vector<fs::path>;

// Below the home; many are links to each other.
constexpr const char* kSteamRoots[] = {
    ".steam/steam",
    ".steam/root",
    ".local/share/Steam",
    ".steam/debian-installation",
    ".var/app/com.valvesoftware.Steam/.local/share/Steam",
    ".var/app/com.valvesoftware.Steam/.steam/steam",
    ".var/app/com.valvesoftware.Steam/data/Steam",
    "snap/steam/common/.local/share/Steam",
    "snap/steam/common/.steam/steam",
};

// Below the home: directories whose entries are prefixes, or hold one as "pfx". In the order of their owners.
constexpr const char* kLutrisGames = "Games";
constexpr const char* kPrefixesWithin[] = {
    "Games/Heroic/Prefixes",
    "Games/Heroic/Prefixes/default",
    "Games/Heroic/Prefixes/shared",
    ".local/share/bottles/bottles",
    ".var/app/com.usebottles.bottles/data/bottles/bottles",
    ".PlayOnLinux/wineprefix",
};

constexpr const char* kLutrisSettings[] = {
    ".config/lutris/games",
    ".local/share/lutris/games",
    ".var/app/net.lutris.Lutris/config/lutris/games",
    ".var/app/net.lutris.Lutris/data/lutris/games",
};
constexpr const char* kLutrisDatabases[] = {
    ".local/share/lutris/pga.db",
    ".var/app/net.lutris.Lutris/data/lutris/pga.db",
};

template <std::size_t Size>
Paths InHome(const char* const (&names)[Size]) {
    Paths paths;
    std::ranges::transform(names, std::back_inserter(paths), HomePlace);
    return paths;
}

// Sorted, so that two looks say the same.
Paths EntriesOf(const fs::path& directory) {
    Paths entries;
    std::error_code failed;
    for (fs::directory_iterator at(directory, failed), end; !failed && at != end && entries.size() < kMostKnownPlaces;
         at.increment(failed)) {
        entries.push_back(at->path());
    }
    std::ranges::sort(entries);
    return entries;
}

class Prefixes {
  public:
    void Add(const fs::path& prefix) {
        std::error_code failed;
        const fs::path real = IsDirectoryAt(prefix / "drive_c") ? fs::canonical(prefix, failed) : fs::path();
        if (!real.empty() && !failed && found.size() < kMostKnownPlaces &&
            std::ranges::find(found, real) == found.end()) {
            found.push_back(real);
        }
    }
    void AddWithin(const fs::path& directory) {
        for (const fs::path& entry : EntriesOf(directory)) {
            Add(entry);
            Add(entry / "pfx");
        }
    }

    Paths found;
};

void AddLutris(Prefixes& prefixes) {
    prefixes.AddWithin(HomePlace(kLutrisGames));
    for (const fs::path& directory : LutrisSettings()) {
        for (const fs::path& file : EntriesOf(directory)) {
            const bool isSettings = file.extension() == ".yml";
            if (const std::string prefix = isSettings ? PrefixOfLutris(ReadNotes(file.string())) : "";
                !prefix.empty()) {
                prefixes.Add(prefix);
            }
        }
    }
}

}  // namespace

Paths FindSteamRoots() {
    Paths found;
    for (const fs::path& root : InHome(kSteamRoots)) {
        std::error_code failed;
        const fs::path real = fs::canonical(root, failed);
        if (!failed && IsDirectoryAt(real) && std::ranges::find(found, real) == found.end()) {
            found.push_back(real);
        }
    }
    return found;
}

Paths LutrisSettings() {
    return InHome(kLutrisSettings);
}

Paths LutrisDatabases() {
    return InHome(kLutrisDatabases);
}

Paths FindWinePrefixes(const Paths& steamRoots) {
    Prefixes prefixes;
    prefixes.Add(WinePrefix());
    AddLutris(prefixes);
    for (const fs::path& directory : InHome(kPrefixesWithin)) {
        prefixes.AddWithin(directory);
    }
    for (const fs::path& root : steamRoots) {
        prefixes.AddWithin(root / "steamapps/compatdata");
    }
    return std::move(prefixes.found);
}

}  // namespace lv
