// gamespy/spy_files.h
//
// What a configured GameSpy 3D works with: the texts of the scripts and batches, and the registry values that point it
// at them.

#pragma once

#include <array>
#include <optional>
#include <vector>

#include "gamespy/spy_slots.h"

namespace lv {

constexpr TextView kSpyScriptFile = "lvgs_666.qs";

/// What GameSpy puts behind the batch's name; the batch passes it on.
constexpr TextView kSpyParameters = "%1 %2 %3 %4 %5 %6 %7 %8 %9";

/// What was chosen for one slot. Without an executable's path all but InUse stays empty.
struct SpyGame {
    bool InUse = false;
    Text Command;    // "GLQUAKE.EXE " and, for Quake, the wrapper before it
    Text Drive;      // "C:"
    Text Directory;  // no trailing "\"
    Text Script;     // full path; empty if none is chosen
};

using SpyGames = std::array<SpyGame, kSpySlots>;

/// The command, drive and directory of an executable.
SpyGame MakeSpyGame(std::size_t slot, TextView executablePath);

/// The chosen script's call, and the launch's own lines. Empty: no file is written.
Text SpyScriptText(TextView scriptPath, TextView launchLines);

/// What all batches of one launch share.
struct SpyBatchParts {
    Text EnvironmentLines;       // each ended by NewLine
    Text GameTail;               // of GameCommand, behind its prefix
    Text UnrealTail;             // of UnrealCommand
    std::optional<Text> Memory;  // "-winmem 16", if it is to be used
};

/// No line end follows the command.
Text SpyBatchText(std::size_t slot, const SpyGame& game, const SpyBatchParts& parts);

struct RegistryTriple {
    Text Key;  // below HKEY_CURRENT_USER
    Text Name;
    Text Value;
};

/// The values for the slots in use. Quake's working directory is QuakeWorld's and always written: kept on purpose.
std::vector<RegistryTriple> SpyRegistry(const SpyGames& games);

}  // namespace lv
