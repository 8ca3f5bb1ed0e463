#include "launcher/window/planned_launch.h"

#include "console/files/line_commands.h"
#include "console/files/played_of_run.h"
#include "foundation/bounded_file.h"
#include "foundation/field_strings.h"
#include "launch/launch_files.h"
#include "launcher/window/engine_launch.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"

namespace lv {

namespace {

/// The engine's own with the lines of the launch; nothing where it stays as it is.
std::optional<GivenScript> AutoexecOf(Files& disk, const PlannedLaunch& plan,
                                      const std::optional<GivenScript>& edited) {
    if (plan.AutoexecPath.empty()) {
        return std::nullopt;
    }
    const bool isEdited = edited && SameText(edited->Path, plan.AutoexecPath);
    const Text before = isEdited ? edited->Content : ReadBounded(disk, plan.AutoexecPath, kLargestRunScript).Value;
    Text text = AutoexecWith(before, plan.AutoexecTail);
    return text == before ? std::nullopt : std::optional(GivenScript{plan.AutoexecPath, std::move(text), true});
}

}  // namespace

PlannedLaunch PlanLaunch(Launcher& launcher) {
    Run& run = launcher.run;
    const LaunchSelection selection = SelectionOf(launcher.Window);
    const LaunchGame game = GameOf(run);
    LaunchTexts texts = ComposeLaunch(selection, game, ReadProfile(run), {});
    AddCommandLineAdditions(selection, texts);
    PlannedLaunch plan;
    plan.Script = ScriptText(texts, game);
    const Engine* const engine = EngineOfLaunch(launcher.Engines, selection, game);
    if (engine != nullptr && !game.DefaultGameDirectory.empty()) {
        const FittedCommand fitted = FitTexts(*engine, run.System.Disk, selection, game, texts, plan.Script);
        plan.AutoexecPath = AutoexecPathOf(run, game.DefaultGameDirectory);
        plan.AutoexecTail = fitted.AutoexecTail;
    }
    if (!HasScript(plan.Script, game)) {
        plan.Script.clear();
    } else {
        plan.ScriptPath = ScriptFilePath(game);
        if (engine == nullptr) {
            AddScriptExec(texts);
        }
    }
    plan.Command = game.GameKind == Game::Unreal ? texts.UnrealCommand : texts.GameCommand;
    return plan;
}

StartRequest StartOfLaunch(Launcher& launcher, const std::optional<GivenScript>& edited) {
    const Run& run = launcher.run;
    const PlannedLaunch plan = PlanLaunch(launcher);
    StartRequest request;
    request.Played = PlayedOfRun(run, SelectedEngine(launcher), SelectionOf(launcher.Window).ExecutablePath,
                                 run.GameKind, run.IsQuakeWorld);
    request.Commands = LineCommands(plan.Command, request.Played.Of);
    if (auto autoexec = AutoexecOf(run.System.Disk, plan, edited)) {
        request.Given.push_back(*std::move(autoexec));
    }
    if (!plan.ScriptPath.empty()) {
        request.Given.push_back({plan.ScriptPath, plan.Script, true});
    }
    if (edited) {
        request.Given.push_back(*edited);
    }
    return request;
}

}  // namespace lv
