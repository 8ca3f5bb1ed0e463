#include "platform/linux/linux_known_places.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <system_error>

#include "platform/linux/game_notes.h"
#include "platform/linux/user_directories.h"
#include "platform/linux/wine_prefixes.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

using Paths = std::vector<fs::path>;

// In their order; "~" stands for the home, "/" for the system's directories.
constexpr std::string_view kPrograms[] = {
    "/usr/games",
    "/usr/local/games",
    "~/bin",
    "~/.local/bin",
    "~/Applications",
    "~/.local/share/flatpak/exports/bin",
    "/var/lib/flatpak/exports/bin",
    "/snap/bin",
    "/var/lib/snapd/snap/bin",
    "/opt",
};
constexpr std::string_view kGames[] = {
    "~/games", "~/Games", "~/.local/share/games", "~/GOG Games", "/usr/share/games", "/usr/local/share/games", "/opt",
};
constexpr std::string_view kHeroicLists[] = {
    "gog_store/installed.json",
    "legendaryConfig/legendary/installed.json",
    "sideload_apps/library.json",
};

fs::path Resolve(std::string_view place, const fs::path& system) {
    return place.starts_with('~') ? HomePlace(place.substr(2)) : system / place.substr(1);
}

// Each program's own directory below /opt, and the "bin" in it.
void AddOptional(Paths& paths, const fs::path& optional) {
    std::error_code failed;
    Paths own;
    for (fs::directory_iterator at(optional, failed), end; !failed && at != end && own.size() < kMostKnownPlaces;
         at.increment(failed)) {
        own.push_back(at->path());
    }
    std::ranges::sort(own);
    for (const fs::path& directory : own) {
        paths.push_back(directory);
        paths.push_back(directory / "bin");
    }
}

}  // namespace

// A path on the drives says a directory by one name, links followed: it stands once.
std::vector<std::string> LinuxKnownPlaces::OnDrives(const Paths& hosts) const {
    std::vector<std::string> places;
    for (const fs::path& host : hosts) {
        std::error_code failed;
        const fs::path real = host.is_absolute() ? fs::canonical(host, failed) : fs::path();
        if (places.size() == kMostKnownPlaces) {
            break;
        }
        if (real.empty() || failed || !fs::is_directory(real, failed)) {
            continue;
        }
        std::string path = files_.FromHost(real.string());
        if (!path.empty() && std::ranges::find(places, path) == places.end()) {
            places.push_back(std::move(path));
        }
    }
    return places;
}

std::vector<std::string> LinuxKnownPlaces::Programs() {
    Paths hosts;
    const char* const variable = std::getenv("PATH");
    std::string_view path = variable != nullptr ? variable : "";
    while (!path.empty()) {
        const std::size_t size = std::min(path.find(':'), path.size());
        hosts.emplace_back(path.substr(0, size));
        path.remove_prefix(std::min(size + 1, path.size()));
    }
    for (const std::string_view place : kPrograms) {
        hosts.push_back(Resolve(place, system_));
    }
    AddOptional(hosts, system_ / "opt");
    return OnDrives(hosts);
}

std::string LinuxKnownPlaces::DataDirectory() {
    return files_.FromHost(lv::DataDirectory().parent_path().string());
}

std::string LinuxKnownPlaces::ConfigDirectory() {
    return files_.FromHost(lv::ConfigDirectory().parent_path().string());
}

std::vector<std::string> LinuxKnownPlaces::Games() {
    Paths hosts;
    for (const std::string_view place : kGames) {
        hosts.push_back(Resolve(place, system_));
    }
    return OnDrives(hosts);
}

std::vector<std::string> LinuxKnownPlaces::SteamRoots() {
    return OnDrives(FindSteamRoots());
}

std::vector<std::string> LinuxKnownPlaces::WinePrefixes() {
    return OnDrives(FindWinePrefixes(FindSteamRoots()));
}

std::vector<std::string> LinuxKnownPlaces::NotedGames() {
    Paths hosts;
    const auto add = [&hosts](const std::vector<std::string>& more) {
        hosts.insert(hosts.end(), more.begin(), more.end());
    };
    for (const char* const heroic : {".config/heroic", ".var/app/com.heroicgameslauncher.hgl/config/heroic"}) {
        for (const std::string_view list : kHeroicLists) {
            add(DirectoriesOfHeroic(ReadNotes((HomePlace(heroic) / list).string())));
        }
    }
    for (const fs::path& database : LutrisDatabases()) {
        add(DirectoriesOfLutris(ReadNotes(database.string())));
    }
    return OnDrives(hosts);
}

}  // namespace lv
