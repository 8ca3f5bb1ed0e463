#include "gamespy/spy_files.h"

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

enum class RegistryData { WorkingDirectory, Batch };

struct RegistryRow {
    const char* Key;
    const char* Name;
    RegistryData Data;
    std::size_t Slot;  // that it is taken from
    bool Always;       // else only with the slot in use
};

// clang-format off
constexpr RegistryRow kRegistry[] = {
    {"software\\gamespy\\gamespy 3d\\qspy quake", "workdir",   RegistryData::WorkingDirectory, spy_slot::kQuakeWorld, true},
    {"software\\gamespy\\gamespy 3d\\qspy quake", "cmdline",   RegistryData::Batch,            spy_slot::kQuake,      false},
    {"software\\gamespy\\gamespy 3d\\quakeworld", "cmdlineqw", RegistryData::Batch,            spy_slot::kQuakeWorld, false},
    {"software\\gamespy\\gamespy 3d\\hexen2",     "workdir",   RegistryData::WorkingDirectory, spy_slot::kHexen2,     false},
    {"software\\gamespy\\gamespy 3d\\hexen2",     "cmdline",   RegistryData::Batch,            spy_slot::kHexen2,     false},
    {"software\\gamespy\\gamespy 3d\\quake2",     "workdir",   RegistryData::WorkingDirectory, spy_slot::kQuake2,     false},
    {"software\\gamespy\\gamespy 3d\\quake2",     "cmdline",   RegistryData::Batch,            spy_slot::kQuake2,     false},
    {"software\\gamespy\\gamespy 3d\\unreal",     "workdir",   RegistryData::WorkingDirectory, spy_slot::kUnreal,     false},
    {"software\\gamespy\\gamespy 3d\\unreal",     "cmdline",   RegistryData::Batch,            spy_slot::kUnreal,     false},
    {"software\\gamespy\\gamespy 3d\\sin",        "workdir",   RegistryData::WorkingDirectory, spy_slot::kSin,        false},
    {"software\\gamespy\\gamespy 3d\\sin",        "cmdline",   RegistryData::Batch,            spy_slot::kSin,        false},
};
// clang-format on

/// "-heapsize 16000" from "-winmem 16": three zeros, where a launch multiplies by 1024. Both are kept.
Text MemoryOption(TextView command, const std::optional<Text>& memory) {
    if (!memory) {
        return {};
    }
    const bool isGlOrWin = command.starts_with("GL") || command.starts_with("WIN");
    return isGlOrWin ? Join("-heapsize ", Trim(DropLeft(*memory, kMemoryOption.size())), "000 ") : Join(*memory, Blank);
}

Text CommandOf(std::size_t slot, const SpyGame& game, const SpyBatchParts& parts) {
    if (slot == spy_slot::kUnreal) {
        const Text ini = game.Script.empty() ? Text() : Join(" INI=", LastPathPart(game.Script));
        return Join(game.Command, parts.UnrealTail, kSpyParameters, ini);
    }
    const Text memory = slot <= spy_slot::kHexen2 ? MemoryOption(game.Command, parts.Memory) : Text();
    return Join(game.Command, memory, parts.GameTail);
}

}  // namespace

SpyGame MakeSpyGame(std::size_t slot, TextView executablePath) {
    SpyGame game;
    game.InUse = true;
    if (!executablePath.empty()) {
        const TextView wrapper = slot == spy_slot::kQuake ? "qlaunch quakeudp.dll " : "";
        game.Command = Join(wrapper, UpperCase(LastPathPart(executablePath)), Blank);
        game.Drive = executablePath.substr(0, 2);
        game.Directory = DirectoryOf(executablePath);
    }
    return game;
}

Text SpyScriptText(TextView scriptPath, TextView launchLines) {
    const Text call = scriptPath.empty() ? Text() : Join("exec ", LastPathPart(scriptPath), NewLine);
    return call + Text(launchLines);
}

Text SpyBatchText(std::size_t slot, const SpyGame& game, const SpyBatchParts& parts) {
    return Join(parts.EnvironmentLines, game.Drive, NewLine, "cd ", DoubleQuote, game.Directory, DoubleQuote, NewLine,
                CommandOf(slot, game, parts));
}

std::vector<RegistryTriple> SpyRegistry(const SpyGames& games) {
    std::vector<RegistryTriple> triples;
    for (const RegistryRow& row : kRegistry) {
        if (row.Always || games[row.Slot].InUse) {
            const bool isBatch = row.Data == RegistryData::Batch;
            triples.push_back({row.Key, row.Name,
                               isBatch ? Text(SpySlots()[row.Slot].Batch) : Join(games[row.Slot].Directory, "\\")});
        }
    }
    return triples;
}

}  // namespace lv
