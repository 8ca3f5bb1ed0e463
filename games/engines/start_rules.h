// games/engines/start_rules.h
//
// Which program of an engine is to be started, and when there is no use in starting it.

#pragma once

#include <optional>

#include "games/engines/engine_table.h"
#include "platform/files.h"

namespace lv {

/// The program itself, or the one that the engine's row names in its place if that is there: a wrapper that passes
/// switches of its own stands before it. Paths on the drives.
Text ProgramToStart(Files& disk, const Engine& engine, TextView program);

/// Whether the engine can use the data of the game in the directory.
bool TakesDataOf(const Engine& engine, TextView directory);

struct EngineStart {
    bool AsRoot = false;
    Text DataDirectory = {};  // on the drives; empty: not known
    bool DataDirectoryExists = true;
};

/// Why the engine would end at once, and what helps; nothing if it would not.
std::optional<Text> WhyNoUseToStart(const Engine& engine, const EngineStart& start);

}  // namespace lv
