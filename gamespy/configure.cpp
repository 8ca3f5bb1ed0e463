#include "gamespy/configure.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/link_question.h"
#include "foundation/padded_item.h"
#include "foundation/path_fault.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "gamespy/spy_files.h"
#include "gamespy/start_game_spy.h"
#include "launch/missing_executable.h"

namespace lv {

namespace {

/// A script of the launch: who has it, whose texts it is made of, and where it goes.
struct ScriptRow {
    std::size_t Slot;     // whose script it calls
    std::size_t AlsoFor;  // another slot that needs it
    Text LaunchTexts::*Lines;
    std::size_t DirectoryOf;
};

// Sin's script goes to Quake II's directory: kept on purpose.
constexpr ScriptRow kScriptFiles[] = {
    {spy_slot::kQuake, spy_slot::kQuakeWorld, &LaunchTexts::QuakeScript, spy_slot::kQuake},
    {spy_slot::kHexen2, spy_slot::kHexen2, &LaunchTexts::QuakeScript, spy_slot::kHexen2},
    {spy_slot::kQuake2, spy_slot::kQuake2, &LaunchTexts::Quake2Script, spy_slot::kQuake2},
    {spy_slot::kSin, spy_slot::kSin, &LaunchTexts::Quake2Script, spy_slot::kQuake2},
};

/// False if the executable is gone, which the user was told.
bool NoteGame(SpyLaunch& launch, std::size_t slot, SpyGame& game) {
    Run& run = launch.run;
    const Text path = ItemValue(launch.Form.ExeSpy_Cbo[slot].Selected());
    if (path.empty()) {
        AskUser(run, SpySlots()[slot].EmptyPathTitle, kEmptyExecutable);
    } else if (!run.System.Disk.FileExists(path)) {
        AskUser(run, "",
                MissingExecutableText(path, Join("4) Windows incorrectly reported the file as missing.", NewLine,
                                                 NewLine, "Game Spy has NOT been configured.")));
        return false;
    }
    game = MakeSpyGame(slot, path);
    return true;
}

/// False if there is nothing to configure; the user was told.
bool NoteGames(SpyLaunch& launch, SpyGames& games) {
    launch.Texts.LaunchStep = LaunchStep::GameSpyGames;
    for (std::size_t slot = 0; slot < kSpySlots; ++slot) {
        if (SlotInUse(launch.Form, slot) && !NoteGame(launch, slot, games[slot])) {
            return false;
        }
        games[slot].Script = ItemValue(launch.Form.ScriptSpy_Cbo[slot].Selected());
    }
    launch.Texts.LaunchStep = LaunchStep::GameSpyFiles;
    if (std::ranges::any_of(games, &SpyGame::InUse)) {
        return true;
    }
    AskUser(launch.run, "",
            "You must pick a GameSpy Quake Executable and/or a GameSpy QuakeWorld Executable and/or a GameSpy Hexen ][ "
            "Executable and/or a GameSpy Quake ][ Executable and/or a GameSpy UnReal Executable and/or a GameSpy SIN "
            "Executable in order for Lorvane 3D to configure and launch GameSpy.");
    return false;
}

bool InUse(const SpyGames& games, const ScriptRow& row) {
    return games[row.Slot].InUse || games[row.AlsoFor].InUse;
}

Text ScriptPath(const SpyGames& games, const ScriptRow& row) {
    return Join(games[row.DirectoryOf].Directory, DataDirectoryOf(SpySlots()[row.Slot]), "\\", kSpyScriptFile);
}

/// False if a data directory is a link out of its game, and the user does not want it written to.
bool MayWriteScripts(Run& run, const SpyGames& games) {
    return std::ranges::all_of(kScriptFiles, [&](const ScriptRow& row) {
        return !InUse(games, row) || MayPutOwnFile(run, ScriptPath(games, row), games[row.DirectoryOf].Directory);
    });
}

/// A data directory that is not there is passed over.
Error WriteScript(SpyLaunch& launch, const SpyGames& games, const ScriptRow& row) {
    if (!InUse(games, row)) {
        return {};
    }
    Files& disk = launch.run.System.Disk;
    const Text path = ScriptPath(games, row);
    const Text text = SpyScriptText(games[row.Slot].Script, launch.Texts.*row.Lines);
    if (text.empty()) {
        (void)disk.Delete(path);
        return {};
    }
    const Error failed = disk.ReplaceOwn(path, text);
    return failed.Number == error::kPathNotFound ? Error() : FaultAt(disk, path, failed);
}

Error WriteScripts(SpyLaunch& launch, const SpyGames& games) {
    for (const ScriptRow& row : kScriptFiles) {
        if (const Error failed = WriteScript(launch, games, row)) {
            return failed;
        }
    }
    const SpyGame& unreal = games[spy_slot::kUnreal];
    return unreal.InUse && !unreal.Script.empty() ? launch.SetUnrealVideoOptions(unreal.Script) : Error();
}

// Unreal's goes to Sin's directory: kept on purpose. Without a template the game starts without one.
void PutPif(SpyLaunch& launch, const SpyGames& games, std::size_t slot) {
    Run& run = launch.run;
    const SpySlot& facts = SpySlots()[slot];
    const std::size_t place = slot == spy_slot::kUnreal ? spy_slot::kSin : slot;
    const Text pif = Join(games[place].Directory, "\\", facts.Pif);
    if (run.System.Disk.CopyOwn(Join(run.AppDirectory, "\\", facts.PifTemplate), pif)) {
        (void)run.System.Disk.Delete(pif);
    }
}

SpyFailure WriteBatches(SpyLaunch& launch, const SpyGames& games) {
    const LaunchTexts& texts = launch.Texts;
    const SpyBatchParts parts = {
        launch.EnvironmentLines, DropLeft(texts.GameCommand, texts.PrefixLength),
        DropLeft(texts.UnrealCommand, texts.PrefixLength),
        launch.Selection.Ticked.Has(Option::Memory_Chk) ? launch.Selection.Memory : std::nullopt};
    for (std::size_t slot = 0; slot < kSpySlots; ++slot) {
        if (!games[slot].InUse) {
            continue;
        }
        const Text path = Join(games[slot].Directory, "\\", SpySlots()[slot].Batch);
        if (const Error failed = launch.run.System.Disk.ReplaceOwn(path, SpyBatchText(slot, games[slot], parts))) {
            return {failed, Join(SpySlots()[slot].FileTag, path)};
        }
        PutPif(launch, games, slot);
    }
    return {};
}

Error WriteRegistry(SpyLaunch& launch, const SpyGames& games) {
    launch.Texts.LaunchStep = LaunchStep::GameSpyRegistry;
    std::vector<RegistryEntry> entries;
    for (RegistryTriple& triple : SpyRegistry(games)) {
        entries.push_back(
            {{std::move(triple.Key), std::move(triple.Name)}, {kRegistryText, std::move(triple.Value), 0}});
    }
    return RegWriteAll(launch.run, entries);
}

}  // namespace

SpyFailure ConfigureGameSpy(SpyLaunch& launch) {
    SpyGames games;
    if (!NoteGames(launch, games) || !MayWriteScripts(launch.run, games)) {
        return {};
    }
    launch.Texts.GameCommand += Join(kSpyParameters, Blank, "+exec ", kSpyScriptFile, Blank);
    if (Error failed = WriteScripts(launch, games)) {
        return {std::move(failed), {}};
    }
    if (SpyFailure failed = WriteBatches(launch, games); failed.Fault) {
        return failed;
    }
    if (Error failed = WriteRegistry(launch, games)) {
        return {std::move(failed), {}};
    }
    if (launch.Form.LaunchSpyNow_Chk.Value == 1) {
        launch.Texts.LaunchStep = LaunchStep::GameSpyStart;
        if (!StartGameSpy(launch.run)) {
            return {};
        }
    }
    launch.LeaveMainWindow(launch.Form.Minimize);
    launch.Texts.LaunchStep = LaunchStep::GameSpyStarted;
    return {};
}

}  // namespace lv
