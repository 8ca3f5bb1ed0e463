#include "commands/dry_run/missing_parts.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "catalogs/modifications.h"
#include "console/checks/run_check.h"
#include "foundation/field_strings.h"
#include "foundation/shown_name.h"
#include "launch/launch_files.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/planned_launch.h"

namespace lv {

namespace {

constexpr std::size_t kMostMissingScripts = 50;

void LookForProgram(Launcher& launcher, const LaunchSelection& selection, const PathText& asSaid,
                    std::vector<Text>& missing) {
    Platform& system = launcher.run.System;
    const Text& path = selection.ExecutablePath;
    if (path.empty()) {
        return;
    }
    if (!system.Disk.FileExists(path)) {
        const Engine* const engine = SelectedEngine(launcher);
        const Text package = engine != nullptr && !engine->DebianPackage.empty()
                                 ? Join(" The Debian package \"", engine->DebianPackage, "\" has it.")
                                 : Text();
        missing.push_back(Join("The program ", SaidPath(asSaid, path), " is not there.", package));
    } else if (!system.Programs.HasRunnerFor(path)) {
        missing.push_back(Join("What runs ", SaidPath(asSaid, path),
                               " here is not installed: wine for a Windows program, dosbox for one "
                               "for DOS."));
    }
}

void LookForChoices(Launcher& launcher, const LaunchSelection& selection, const PathText& asSaid,
                    std::vector<Text>& missing) {
    Files& disk = launcher.run.System.Disk;
    const Text& directory = launcher.run.DefaultGameDirectory;
    if (selection.Ticked.Has(Option::Game_Chk) && selection.Game) {
        const Text modification = Join(directory, "\\", DirectoryOfOption(*selection.Game));
        if (!disk.DirectoryExists(modification)) {
            missing.push_back(Join("The modification's directory ", SaidPath(asSaid, modification), " is not there."));
        }
    }
    if (selection.Ticked.Has(Option::Script_Chk) && selection.Script && !disk.FileExists(*selection.Script)) {
        missing.push_back(Join("The script ", SaidPath(asSaid, *selection.Script), " is not there."));
    }
    if (selection.Ticked.Has(Option::Map_Chk) && selection.Map) {
        const std::vector<Text> maps = SplitFields(launcher.Lists.MapList);
        const Text wanted = Trim(*selection.Map);
        if (std::ranges::none_of(maps, [&](const Text& map) { return SameText(Trim(map), wanted); })) {
            missing.push_back(Join("The map \"", Shown(wanted), "\" lies in no archive and no directory of the game."));
        }
    }
}

/// Of those that a script of the player's executes; what an engine looks for by itself may lack.
void LookForScripts(Launcher& launcher, const PathText& asSaid, std::vector<Text>& missing) {
    Run& run = launcher.run;
    if (run.GameKind == Game::None || run.GameKind == Game::Unreal ||
        !run.System.Disk.FileExists(ScriptFilePath(GameOf(run)))) {
        return;
    }
    const StartRequest request = StartOfLaunch(launcher);
    std::size_t told = 0;
    for (Finding& finding : CheckRun(RunStart(run.System.Disk, request), request.Played.Of)) {
        if (finding.Kind == FindingKind::MissingScript && told++ < kMostMissingScripts) {
            finding.File = Holds(finding.File, ":\\") ? SaidPath(asSaid, finding.File) : finding.File;
            missing.push_back(FindingLine(finding));
        }
    }
}

}  // namespace

Text SaidPath(const PathText& asSaid, TextView path) {
    return asSaid ? asSaid(path) : Text(path);
}

std::vector<Text> MissingParts(Launcher& launcher, const PathText& asSaid) {
    const LaunchSelection selection = SelectionOf(launcher.Window);
    std::vector<Text> missing;
    LookForProgram(launcher, selection, asSaid, missing);
    LookForChoices(launcher, selection, asSaid, missing);
    LookForScripts(launcher, asSaid, missing);
    return missing;
}

}  // namespace lv
