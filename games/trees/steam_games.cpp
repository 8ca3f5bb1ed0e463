#include "games/trees/steam_games.h"

#include <algorithm>

#include "games/trees/vdf_file.h"

namespace lv {

namespace {

struct SteamTitle {
    TextView AppId;
    TextView Directory;  // below steamapps\common, where no manifest says it
};

// clang-format off
constexpr SteamTitle kTitles[] = {
    {"2310",    "Quake"},
    {"2320",    "Quake 2"},
    {"1089130", "Quake II RTX"},
    {"9060",    "Hexen 2"},
    {"70",      "Half-Life"},
    {"13250",   "Unreal Gold"},
    {"1313",    "SiN 1"},
    {"1313",    "SiN Gold"},
};
// clang-format on

constexpr TextView kLibraryLists[] = {"\\steamapps\\libraryfolders.vdf", "\\config\\libraryfolders.vdf"};

void AddOnce(std::vector<Text>& paths, Text path) {
    if (std::ranges::none_of(paths, [&](const Text& each) { return SameText(each, path); })) {
        paths.push_back(std::move(path));
    }
}

Text ReadBounded(Files& files, TextView path) {
    const auto file = files.FileExists(path) ? files.Open(path) : MakeError(error::kFileNotFound);
    return file.Ok() ? file.Value->Read(0, kLargestVdf).Value : Text();
}

bool IsNumber(TextView text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

// In the newer layout each number is a block with a "path", in the older one the path itself.
std::vector<Text> HostPathsIn(TextView bytes) {
    std::vector<Text> paths;
    const auto entries = ReadVdf(bytes);
    const VdfEntry* list = FindVdf(entries, "libraryfolders");
    for (const VdfEntry& entry : list == nullptr ? std::vector<VdfEntry>() : list->Block) {
        Text path = entry.Block.empty() ? entry.Value : VdfValue(entry.Block, "path");
        if (IsNumber(entry.Key) && !path.empty()) {
            paths.push_back(std::move(path));
        }
    }
    return paths;
}

// One name of a directory, and no way to another.
bool IsPlainName(TextView name) {
    return !name.empty() && name != "." && name != ".." && name.find_first_of(TextView("/\\:\0", 4)) == TextView::npos;
}

Text DirectoryNameOf(Files& files, TextView apps, const SteamTitle& title) {
    const Text manifest = ReadBounded(files, Join(apps, "\\appmanifest_", title.AppId, ".acf"));
    const auto entries = ReadVdf(manifest);
    const VdfEntry* state = FindVdf(entries, "AppState");
    const auto said = state == nullptr ? std::nullopt : FromUtf8(VdfValue(state->Block, "installdir"));
    return said && IsPlainName(*said) ? *said : Text(title.Directory);
}

}  // namespace

std::vector<Text> SteamLibraries(Files& files, TextView root) {
    std::vector<Text> libraries = {Text(root)};
    for (const TextView list : kLibraryLists) {
        for (const Text& host : HostPathsIn(ReadBounded(files, Join(root, list)))) {
            Text path = files.FromHost(host);
            if (!path.empty() && libraries.size() < kMostSteamLibraries && files.DirectoryExists(path)) {
                AddOnce(libraries, std::move(path));
            }
        }
    }
    return libraries;
}

std::vector<Text> SteamGameDirectories(Files& files, TextView library) {
    std::vector<Text> directories;
    const Text apps = Join(library, "\\steamapps");
    for (const SteamTitle& title : kTitles) {
        Text path = Join(apps, "\\common\\", DirectoryNameOf(files, apps, title));
        if (!files.DirectoryExists(path)) {
            path = Join(apps, "\\common\\", title.Directory);
        }
        if (files.DirectoryExists(path)) {
            AddOnce(directories, std::move(path));
        }
    }
    return directories;
}

std::vector<Text> SteamPrefixes(Files& files, TextView library) {
    const Text data = Join(library, "\\steamapps\\compatdata");
    std::vector<Text> names;
    for (const DirectoryEntry& entry : files.List(data).Value) {
        if (entry.IsDirectory && IsNumber(entry.Name)) {
            names.push_back(entry.Name);
        }
    }
    std::ranges::sort(names);
    std::vector<Text> prefixes;
    for (const Text& name : names) {
        Text prefix = Join(data, "\\", name, "\\pfx");
        if (prefixes.size() < kMostSteamPrefixes && files.DirectoryExists(Join(prefix, "\\drive_c"))) {
            prefixes.push_back(std::move(prefix));
        }
    }
    return prefixes;
}

}  // namespace lv
