// platform/linux/game_start.h
//
// What every road to a started game is given: the batch, the program in it, and where the host keeps its tools.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/linux/batch_plan.h"
#include "platform/linux/child_process.h"
#include "platform/linux/program_search.h"

namespace lv {

/// The host's side of a start. Left empty, each is what this user's environment says.
struct HostPlaces {
    std::string SearchPath;             // "/usr/bin:/bin"
    std::filesystem::path Cache;        // where files for the started programs are written
    std::filesystem::path WinePrefix;   // the Windows that Wine keeps
    std::filesystem::path PauseHelper;  // the program that shows the environment
};

struct GameStart {
    std::string BatchText;
    std::string BatchPath;  // on the drives
    BatchPlan Plan;
    std::string Directory;  // that the game runs in, on the drives, with its drive
    FoundGame Game;
    std::vector<std::string> Environment;  // this program's own
    HostPlaces Places;
};

/// The same command inside a terminal window, where a user can read and press a key. Error 53 if there is no terminal.
Result<HostCommand> InTerminal(HostCommand command, const HostPlaces& places);

}  // namespace lv
