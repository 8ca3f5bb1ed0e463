#include "launcher/launchers/setup_launchers.h"

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/shown_name.h"
#include "launcher/launchers/setup_shortcut.h"

namespace lv {

namespace {

constexpr TextView kAnothers = "a file of this name is there that is no launcher of this setup. It was left as it is.";

Text Why(const Error& failed) {
    return failed.Number == error::kAlreadyOpen ? Text(kAnothers) : failed.Text;
}

Text PathLineOf(Shortcuts& system, ShortcutPlace place, const Shortcut& shortcut) {
    return Join(Shown(system.PathOf(place, shortcut)), NewLine);
}

// A line for each fault, told together.
class Faults {
  public:
    void Note(Shortcuts& system, ShortcutPlace place, const Shortcut& shortcut, const Error& failed) {
        if (failed) {
            lines_ += Join(NewLine, PathLineOf(system, place, shortcut), Why(failed), NewLine);
        }
    }
    [[nodiscard]] Text Behind(TextView head) const { return lines_.empty() ? Text() : Join(head, NewLine, lines_); }

  private:
    Text lines_;
};

void Tell(Run& run, const Text& text) {
    if (!text.empty()) {
        AskUser(run, kLauncherTitle, TrimWhite(text));
    }
}

}  // namespace

bool CanMakeLaunchers(const Run& run) {
    return run.System.Launchers != nullptr;
}

void MakeLaunchers(Launcher& launcher, const Setup& setup, std::span<const ShortcutPlace> places) {
    if (!CanMakeLaunchers(launcher.run)) {
        return;
    }
    Shortcuts& system = *launcher.run.System.Launchers;
    const Shortcut shortcut = ShortcutOf(launcher, setup);
    Text written;
    Faults faults;
    for (const ShortcutPlace place : places) {
        const Error failed = system.Make(place, shortcut);
        faults.Note(system, place, shortcut, failed);
        written += failed ? Text() : Join(NewLine, PathLineOf(system, place, shortcut));
    }
    Tell(launcher.run, Join(written.empty() ? Text() : Join("This was written:", NewLine, written, NewLine),
                            faults.Behind("This could not be written:")));
}

void LaunchersFollow(Launcher& launcher, TextView before, const Setup& now) {
    if (!CanMakeLaunchers(launcher.run)) {
        return;
    }
    Shortcuts& system = *launcher.run.System.Launchers;
    Setup former = now;
    former.Name = before;
    const Shortcut old = ShortcutOf(launcher, former);
    const Shortcut made = ShortcutOf(launcher, now);
    Faults faults;
    for (const ShortcutPlace place : kLauncherPlaces) {
        if (!system.IsThere(place, old)) {
            continue;
        }
        const bool isRenamed = !SameText(before, now.Name);
        const bool sharesItsFile = isRenamed && SameText(system.PathOf(place, old), system.PathOf(place, made));
        Error failed = sharesItsFile ? system.Remove(place, old) : Error();
        if (!failed) {
            failed = system.Make(place, made);
        }
        if (!failed && isRenamed) {
            failed = system.Remove(place, old);
        }
        faults.Note(system, place, made, failed);
    }
    Tell(launcher.run, faults.Behind("The launchers of this setup could not follow:"));
}

void TakeLaunchersAway(Launcher& launcher, const Setup& deleted) {
    if (!CanMakeLaunchers(launcher.run)) {
        return;
    }
    Shortcuts& system = *launcher.run.System.Launchers;
    const Shortcut shortcut = ShortcutOf(launcher, deleted);
    Faults faults;
    for (const ShortcutPlace place : kLauncherPlaces) {
        faults.Note(system, place, shortcut, system.Remove(place, shortcut));
    }
    Tell(launcher.run, faults.Behind("The launchers of this setup could not be taken away:"));
}

}  // namespace lv
