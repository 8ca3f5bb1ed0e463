#include "platform/windows/windows_known_places.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/windows/registry_key.h"
#include "platform/windows/variable.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

using Directories = std::vector<std::wstring>;

// On each fixed drive.
constexpr const wchar_t* kOnADrive[] = {L"Games", L"GOG Games"};
// Below a directory for programs.
constexpr const wchar_t* kBelowPrograms[] = {L"\\GOG Galaxy\\Games", L""};
constexpr const wchar_t* kProgramVariables[] = {L"ProgramFiles", L"ProgramFiles(x86)"};

// Each may stand in quotes.
Directories PartsOfPath(std::wstring path) {
    Directories parts;
    std::erase(path, L'"');
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t end = std::min(path.find(L';', at), path.size());
        parts.push_back(path.substr(at, end - at));
        at = end + 1;
    }
    return parts;
}

bool IsFixed(const std::string& drive) {
    return GetDriveTypeW((ToWide(drive) + L"\\").c_str()) == DRIVE_FIXED;
}

std::wstring TextIn(const RegistryKeyHandle& key, const wchar_t* name) {
    RawRegistryValue value;
    return key.Query(name, value) == ERROR_SUCCESS && value.Type == REG_SZ ? value.Text : std::wstring();
}

// A whole path with a drive: what is taken from a current directory or a server says nothing here.
bool IsOnADrive(const std::wstring& path) {
    return path.size() > 2 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/');
}

}  // namespace

std::vector<std::string> WindowsKnownPlaces::ThatAreThere(const Directories& directories) const {
    std::vector<std::string> places;
    for (const std::wstring& directory : directories) {
        const auto text = IsOnADrive(directory) ? Utf8FromWide(directory) : std::nullopt;
        std::string path = text ? files_.FromHost(*text) : std::string();
        const auto isThis = [&path](const std::string& place) { return SameText(place, path); };
        if (!path.empty() && places.size() < kMostKnownPlaces && std::ranges::none_of(places, isThis) &&
            files_.DirectoryExists(path)) {
            places.push_back(std::move(path));
        }
    }
    return places;
}

std::vector<std::string> WindowsKnownPlaces::Programs() {
    return ThatAreThere(PartsOfPath(Variable(L"PATH")));
}

std::string WindowsKnownPlaces::DataDirectory() {
    const auto places = ThatAreThere({Variable(L"LOCALAPPDATA")});
    return places.empty() ? std::string() : places.front();
}

std::string WindowsKnownPlaces::ConfigDirectory() {
    const auto places = ThatAreThere({Variable(L"APPDATA")});
    return places.empty() ? std::string() : places.front();
}

std::vector<std::string> WindowsKnownPlaces::Games() {
    Directories directories;
    for (const std::string& drive : files_.Drives()) {
        if (!IsFixed(drive)) {
            continue;
        }
        for (const wchar_t* const name : kOnADrive) {
            directories.push_back(ToWide(drive) + L"\\" + name);
        }
    }
    for (const wchar_t* const below : kBelowPrograms) {
        for (const wchar_t* const variable : kProgramVariables) {
            directories.push_back(Variable(variable) + below);
        }
    }
    return ThatAreThere(directories);
}

std::vector<std::string> WindowsKnownPlaces::SteamRoots() {
    Directories directories;
    RegistryKeyHandle steam;
    if (steam.Open(L"Software\\Valve\\Steam", KEY_READ) == ERROR_SUCCESS) {
        directories.push_back(TextIn(steam, L"SteamPath"));
    }
    for (const wchar_t* const variable : kProgramVariables) {
        directories.push_back(Variable(variable) + L"\\Steam");
    }
    return ThatAreThere(directories);
}

std::vector<std::string> WindowsKnownPlaces::NotedGames() {
    Directories directories;
    RegistryKeyHandle games;
    constexpr const wchar_t* kGog = L"SOFTWARE\\GOG.com\\Games";
    if (games.OpenMachine32(kGog) != ERROR_SUCCESS) {
        return {};
    }
    for (const std::wstring& name : games.Keys(kMostKnownPlaces)) {
        RegistryKeyHandle game;
        if (game.OpenMachine32(std::wstring(kGog) + L"\\" + name) == ERROR_SUCCESS) {
            directories.push_back(TextIn(game, L"path"));
        }
    }
    return ThatAreThere(directories);
}

}  // namespace lv
