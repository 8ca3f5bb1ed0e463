// platform/linux/starting/wine_road.h
//
// The roads of a Windows program and of a batch of the user's own, both by Wine in the game's directory.
//
// A Windows program gets the environment and the arguments of the launch batch as separate values, and no command
// processor sees a word of them. Wine makes the one line of text that Windows knows out of them by the rules of the
// Microsoft C runtime, a word with a blank in double quotes.
//
// Only a batch of the user's own has the launch batch run by Wine's command processor. The
// batch says "C:" and "cd C:\QUAKE", and means this program's drives. If Wine's drive of that letter is the same
// directory, Wine is given the batch itself; otherwise a copy in the cache directory that says the same to Wine. As
// Wine is started in the game's directory, the copy leaves those two lines out, and so needs no name of a directory.
// Wine reads a batch in the OEM code page of the user's language, so a line with a character beyond ASCII is carried
// to it by an environment variable, LV_666_1 and so on, and the copy says "%LV_666_1%" instead.

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/starting/game_start.h"

namespace lv {

/// Error 53 if Wine is not installed.
Result<HostCommand> WineRoad(Files& disk, const GameStart& start);

/// The same for a batch of the user's own.
Result<HostCommand> WineBatchRoad(Files& disk, const GameStart& start);

/// Wine with these arguments and an environment that suits it.
Result<HostCommand> WineCommand(const HostPlaces& places, std::vector<std::string> environment,
                                std::vector<std::string> arguments);

struct WineCopy {
    std::string Text;
    std::vector<std::pair<std::string, std::string>> Variables;  // code page 1252
};

/// The copy for Wine: without drive and cd lines, with `command` (unless empty) for the command lines, everything else
/// byte for byte but for the lines that a variable carries.
WineCopy CopyForWine(std::string_view batch, std::string_view command);

/// Whether the drive of `letter` in the Wine prefix is the host directory `root`. A prefix that is not there yet is
/// taken for what Wine will make: "c:" its own drive_c, "z:" the host's root.
bool WineDriveIs(const std::filesystem::path& prefix, char letter, const std::filesystem::path& root);

/// The host path on the Wine drive that lies deepest above it, UTF-8.
std::optional<std::string> WinePathOf(const std::filesystem::path& prefix, const std::filesystem::path& hostPath);

}  // namespace lv
