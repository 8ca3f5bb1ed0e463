#include "launcher/setups/setup_start.h"

#include "foundation/question_box.h"
#include "launcher/setups/setup_words.h"
#include "launcher/window/launch_flow.h"

namespace lv {

namespace {

constexpr int kCancel = 1;

// True if the window holds the setup now, but for what is gone.
bool Apply(Launcher& launcher, const KeptSetup& kept, Text& gone) {
    for (const Text& line : ApplySetup(launcher, kept.What)) {
        gone += Join(gone.empty() ? "" : NewLine, ShownText(line));
    }
    const bool applied =
        !launcher.run.Ended && SameText(SelectionOf(launcher.Window).ExecutablePath, kept.What.ExecutablePath);
    if (applied) {
        NotePickedSetup(launcher.run, launcher.Setups, kept.Number);
    }
    return applied;
}

}  // namespace

const KeptSetup* PickedSetup(const Launcher& launcher) {
    return launcher.Setups.Of(launcher.Setups.Picked);
}

bool PickedSetupIsChanged(const Launcher& launcher) {
    const KeptSetup* const picked = PickedSetup(launcher);
    return picked != nullptr && !StartTheSame(picked->What, SetupOf(launcher));
}

bool PickSetup(Launcher& launcher, int number) {
    const KeptSetup* const found = launcher.Setups.Of(number);
    if (found == nullptr || launcher.LaunchUnderWay) {
        return false;
    }
    const KeptSetup kept = *found;
    Text gone;
    const bool applied = Apply(launcher, kept, gone);
    if (!gone.empty() && !launcher.run.Ended) {
        AskUser(launcher.run, kSetupsTitle, gone);
    }
    return applied;
}

bool StartSetup(Launcher& launcher, int number) {
    const KeptSetup* const found = launcher.Setups.Of(number);
    if (found == nullptr || launcher.LaunchUnderWay) {
        return false;
    }
    const KeptSetup kept = *found;
    Text gone;
    const bool applied = Apply(launcher, kept, gone);
    if (launcher.run.Ended) {
        return false;
    }
    if (!applied) {
        AskUser(launcher.run, kSetupsTitle, gone);
        return false;
    }
    if (!gone.empty() && AskUser(launcher.run, kSetupsTitle, Join(gone, NewLine, NewLine, "Start without it?"),
                                 "&Start,&Cancel", kCancel) == kCancel) {
        return false;
    }
    DoIt_Cmd_Click(launcher, 0);
    return true;
}

}  // namespace lv
