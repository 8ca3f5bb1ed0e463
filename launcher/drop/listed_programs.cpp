#include "launcher/drop/listed_programs.h"

#include <algorithm>

#include "catalogs/missing_game.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kUnrealSystem = "\\system";

ListedProgram ProgramAt(Launcher& launcher, const ImageComboItem& item) {
    Text path = OnDisk(Trim(item.Key));
    Text directory = DirectoryOf(path);
    const PlayedBy plays = WhatPlays(launcher.run.System.Disk, &launcher.Engines, path);
    return {Trim(item.Title), std::move(path), std::move(directory), plays};
}

// What stands behind the directory and a separator; empty for what does not lie below it.
TextView RestBelow(TextView path, TextView directory, char separator, bool (*same)(TextView, TextView)) {
    if (directory.empty() || path.size() <= directory.size() + 1 || path[directory.size()] != separator ||
        !same(path.substr(0, directory.size()), directory)) {
        return {};
    }
    return path.substr(directory.size() + 1);
}

bool ToTheLetter(TextView a, TextView b) {
    return a == b;
}

bool InAnyCase(TextView a, TextView b) {
    return SameText(a, b);
}

std::vector<Text> PartsOf(TextView path, char separator) {
    std::vector<Text> parts;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find(separator), path.size());
        parts.emplace_back(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return parts;
}

// The same directory may lie on two drives: the host knows both by one path.
std::vector<Text> PartsBelow(Files& disk, TextView path, const Text& tree) {
    if (const TextView rest = RestBelow(path, tree, '\\', InAnyCase); !rest.empty()) {
        return PartsOf(rest, '\\');
    }
    const Text host = disk.ToHost(path);
    const TextView rest = RestBelow(host, disk.ToHost(tree), '/', ToTheLetter);
    return PartsOf(FromUtf8Lossy(rest), '/');
}

}  // namespace

Text ListedProgram::Tree() const {
    const bool below = Plays.Facts->GameKind == Game::Unreal && LowerCase(Directory).ends_with(kUnrealSystem);
    return below ? DropRight(Directory, kUnrealSystem.size()) : Directory;
}

std::vector<ListedProgram> ListedPrograms(Launcher& launcher) {
    std::vector<ListedProgram> programs;
    for (const ImageComboItem& item : launcher.Window.Exe_Cbo.Items) {
        programs.push_back(ProgramAt(launcher, item));
    }
    return programs;
}

std::optional<ListedProgram> PickedProgram(Launcher& launcher) {
    const ImageCombo& list = launcher.Window.Exe_Cbo;
    return list.HasSelection()
               ? std::optional(ProgramAt(launcher, list.Items[static_cast<std::size_t>(list.ListIndex)]))
               : std::nullopt;
}

std::optional<PlaceInGame> PlaceOf(Launcher& launcher, TextView path, bool wantsWorldToo) {
    std::optional<PlaceInGame> best;
    int bestRank = 0;
    const ImageCombo& list = launcher.Window.Exe_Cbo;
    for (std::size_t row = 0; row < list.Items.size(); ++row) {
        ListedProgram program = ProgramAt(launcher, list.Items[row]);
        if (program.Plays.Facts->GameKind == Game::None) {
            continue;
        }
        std::vector<Text> below = PartsBelow(launcher.run.System.Disk, path, program.Tree());
        if (below.empty()) {
            continue;
        }
        // A game inside of another's directory is meant ahead of that.
        const int depth = -static_cast<int>(below.size());
        const bool isPicked = static_cast<int>(row) == list.ListIndex && (wantsWorldToo || !program.IsOfAWorld());
        const int rank = (depth * 4) + (isPicked ? 2 : 0) + (program.IsOfAWorld() ? 0 : 1);
        if (!best || rank > bestRank) {
            bestRank = rank;
            best = {std::move(program), std::move(below)};
        }
    }
    return best;
}

}  // namespace lv
