#include "commands/unseen/unseen_launcher.h"

#include "foundation/settings.h"
#include "launcher/played/played_games.h"
#include "launcher/start/start.h"

namespace lv {

UnseenLauncher::UnseenLauncher(const CommandPlace& place, const StandInSystem& other)
    : settings_(place.System.Settings),
      system_{settings_,
              other.Registry != nullptr ? *other.Registry : place.System.Registry,
              other.Disk != nullptr ? *other.Disk : place.System.Disk,
              other.Programs != nullptr ? *other.Programs : place.System.Programs,
              clip_,
              place.System.Time,
              nullptr,
              nullptr,
              place.System.Places},
      place_(place),
      TheRun(system_, User),
      Its(TheRun) {
    Its.ShippedEngines = place.ShippedEngines;
    if (other.Programs == nullptr) {
        settings_.LetThrough(kStuff, "LaunchCount");
        settings_.LetAllThrough(kPlayed);
    }
}

Text UnseenLauncher::Load() {
    if (GetSetting(TheRun, TheRun.AppName, kOptions, "Executables").empty()) {
        return "No games are set up yet. Start lorvane3d without words once, or take your settings from another "
               "machine: lorvane3d --import FILE";
    }
    if (place_.Connect) {
        place_.Connect(Its);
    }
    Its.ShowInstallWizard = nullptr;
    if (!LoadUnseen(Its)) {
        const Text why = User.Said();
        User.Forget();
        return why.empty() ? Text("The settings cannot be used.") : why;
    }
    User.Forget();  // what the window's load tells is the window's
    return {};
}

}  // namespace lv
