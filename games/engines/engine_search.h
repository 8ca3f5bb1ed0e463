// games/engines/engine_search.h
//
// The engines that are on the machine.

#pragma once

#include <vector>

#include "games/engines/engine_table.h"
#include "platform/files.h"

namespace lv {

struct FoundEngine {
    const Engine* Its = nullptr;  // of the table, which must outlive it
    Text Path;                    // on the drives
    Text Title;                   // fit for a list: the engine's name, and the file's where several are of one engine
};

struct EngineSearch {
    std::vector<FoundEngine>
        Engines;                 // in the order of the table; of one engine in that of the directories, then by name
    std::vector<Text> CutShort;  // directories with more entries than were looked at
};

constexpr std::size_t kMostDirectoryEntries = 50'000;

/// Directories on the drives in the order in which their programs count: of two with the same name the first does, as
/// in PATH. A directory that is not there, or may not be read, has none; one that is named twice is listed once.
EngineSearch FindEngines(Files& disk, const std::vector<Text>& directories, const EngineTable& table);

}  // namespace lv
