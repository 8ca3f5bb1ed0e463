#include "commands/rehearse_launch.h"

#include <utility>

#include "commands/dry_run/dry_run_report.h"
#include "commands/launch_choice.h"
#include "commands/unseen/unseen_launcher.h"
#include "foundation/question_box.h"
#include "launcher/setups/setup.h"
#include "launcher/window/launch_flow.h"

namespace lv {

namespace {

constexpr int kLaunchButton = 0;
constexpr Index kCopy = 1;

void ShowDryRun(Launcher& window, const CommandPlace& place) {
    Run& run = window.run;
    const CommandResult result = RehearseLaunch(
        place, [&window](Launcher& unseen, Text&) { return Lacking{.Told = ApplySetup(unseen, SetupOf(window))}; });
    const Text text = result.Out.empty() ? result.Err : result.Out;
    if (AskUserFixedWidth(run, "Dry Run", text, "&Close,C&opy") != kCopy) {
        return;
    }
    if (const Error failed = run.System.Clip.SetText(text)) {
        AskUser(run, "", failed.Text);
    }
}

}  // namespace

CommandResult RehearseLaunch(const CommandPlace& place, const Choice& choose) {
    RehearsedFiles disk(place.System.Disk);
    RehearsedPrograms programs(place.System.Programs, disk);
    RehearsedRegistry registry(place.System.Registry);
    UnseenLauncher unseen(place, {&disk, &programs, &registry});
    if (const Text why = unseen.Load(); !why.empty()) {
        return {.Code = exit_code::kFailed, .Err = why};
    }
    Rehearsal rehearsal{
        disk, programs, registry, unseen.Its, {}, {}, [&place](TextView path) {
                            return PrintedPath(place, path); }};
    Lacking lacking = choose(unseen.Its, rehearsal.Said);
    if (!lacking.Refused.empty()) {
        return NotCalledSo(lacking.Refused);
    }
    rehearsal.Missing = std::move(lacking.Told);
    DoIt_Cmd_Click(unseen.Its, kLaunchButton);
    rehearsal.Said += unseen.User.Said();
    const DryRunReport report = ReportOf(rehearsal);
    return {.Code = report.IsMissingSomething ? exit_code::kFinds : exit_code::kDone, .Out = report.Text};
}

void ConnectDryRun(Launcher& window, std::function<CommandPlace()> place) {
    window.ShowDryRun = [&window, place = std::move(place)] { ShowDryRun(window, place()); };
}

}  // namespace lv
