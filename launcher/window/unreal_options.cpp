#include "launcher/window/unreal_options.h"

#include "foundation/bounded_file.h"
#include "foundation/field_strings.h"
#include "foundation/link_question.h"
#include "foundation/path_fault.h"
#include "launch/unreal_ini.h"
#include "launcher/window/launch_flow.h"
#include "video/profile_model.h"

namespace lv {

namespace {

Text PickIni(Launcher& launcher) {
    const LaunchSelection selection = SelectionOf(launcher.Window);
    if (selection.Ticked.Has(Option::Script_Chk) && selection.Script) {
        return *selection.Script;
    }
    return Join(launcher.run.DefaultGameDirectory, "\\", kUnrealIni);
}

/// Also one that an ended run has left. A user's ini of that very name is no work file.
void RemoveWorkFile(Run& run, TextView ini) {
    const Text workFile = Join(run.DefaultGameDirectory, "\\", kUnrealWorkFile);
    if (!SameText(workFile, ini)) {
        (void)run.System.Disk.Delete(workFile);
    }
}

Error Missing(Error failed) {
    if (failed.Number == error::kFileNotFound) {
        failed.Text += ". The game makes it when it is started by itself.";
    }
    return failed;
}

}  // namespace

Error SetUnrealVideoOptionsForLaunch(Launcher& launcher, const std::optional<Text>& ini) {
    Run& run = launcher.run;
    Text& changed = launcher.Window.ChangedIniLines;
    changed.clear();
    if (ini) {
        run.DefaultGameDirectory = DirectoryOf(*ini);
    } else if (run.DefaultGameDirectory.empty()) {
        return {};
    }
    const Text path = ini ? *ini : PickIni(launcher);
    RemoveWorkFile(run, path);
    if (!MayWriteThroughLinks(run, path)) {
        return {};  // the game starts with what that file says
    }
    const Result<Text> old = ReadBounded(run.System.Disk, path, kLargestIni);
    if (!old.Ok()) {
        return Missing(FaultAt(run.System.Disk, path, old.Fault));
    }
    UnrealIniResult rewritten =
        RewriteUnrealIni({old.Value, ReadProfile(run), launcher.Window.Box(Option::UnrealNoCDNeeded_Chk).Value == 1,
                          run.DefaultGameDirectory});
    changed = std::move(rewritten.ChangedIniLines);
    return FaultAt(run.System.Disk, path, run.System.Disk.Replace(path, rewritten.Ini));
}

}  // namespace lv
