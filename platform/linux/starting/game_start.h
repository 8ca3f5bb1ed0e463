// platform/linux/starting/game_start.h
//
// What every road to a started game is given: the batch, the program in it, and where the host keeps its tools.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/linux/child_process.h"
#include "platform/starting/batch_game.h"

namespace lv {

/// The host's side of a start. Left empty, each is what this user's environment says.
struct HostPlaces {
    std::string SearchPath;                  // "/usr/bin:/bin"
    std::filesystem::path Cache;             // where files for the started programs are written
    std::filesystem::path WinePrefix;        // the Windows that Wine keeps
    std::filesystem::path PauseHelper;       // the program that shows the environment
    std::filesystem::path State = {};        // where the last game's output is kept
    std::filesystem::path WatchHelper = {};  // the program that keeps it
};

struct GameStart : BatchGame {
    std::vector<std::string> Environment;  // this program's own
    HostPlaces Places;
};

/// The arguments of the game and the environment that the batch asks for, as the host has them.
std::vector<std::string> HostArguments(const GameStart& start);
std::vector<std::string> BatchEnvironment(const GameStart& start);

/// The command as it is or, if the batch shows its environment, in a terminal, behind the program that shows it and
/// waits for a key. Errors: 53 without that program or a terminal.
Result<HostCommand> AfterShowing(HostCommand command, const GameStart& start);

/// The same command inside a terminal window, where a user can read and press a key. Error 53 if there is no terminal.
Result<HostCommand> InTerminal(HostCommand command, const HostPlaces& places);

}  // namespace lv
