#include "commands/launch_command.h"

#include "commands/launch_choice.h"
#include "commands/rehearse_launch.h"
#include "commands/unseen/unseen_launcher.h"
#include "foundation/field_strings.h"
#include "launcher/window/launch_flow.h"

namespace lv {

namespace {

constexpr int kLaunchButton = 0;

CommandResult Start(const Command& command, const CommandPlace& place) {
    UnseenLauncher unseen(place);
    if (const Text why = unseen.Load(); !why.empty()) {
        return {.Code = exit_code::kFailed, .Err = why};
    }
    Text notes;
    const std::vector<Text> missing = Choose(unseen.Its, command, notes);
    if (!missing.empty()) {
        return NotCalledSo(missing);
    }
    DoIt_Cmd_Click(unseen.Its, kLaunchButton);
    CommandResult result{.Err = Join(notes, unseen.User.Said()),
                         .Started = unseen.Its.LastGame.Name,
                         .StartedPath = unseen.Its.LastGame.Path};
    if (result.Started.empty()) {
        result.Code = exit_code::kFailed;
        result.Err += Join("Nothing was started.", NewLine);
    } else {
        result.Out =
            Join("Started ", result.Started, " in ", PrintedPath(place, unseen.TheRun.DefaultGameDirectory), NewLine);
    }
    return result;
}

}  // namespace

CommandResult LaunchOrRehearse(const Command& command, const CommandPlace& place) {
    if (!command.DryRun) {
        return Start(command, place);
    }
    return RehearseLaunch(place, [&command](Launcher& unseen, Text& notes) {
        return Lacking{.Refused = Choose(unseen, command, notes)};
    });
}

}  // namespace lv
