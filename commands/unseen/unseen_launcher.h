// commands/unseen/unseen_launcher.h
//
// The launcher without its window: loaded from the settings as the main window is, and of what it then picks and
// ticks nothing is stored.

#pragma once

#include "commands/command_place.h"
#include "commands/unseen/overlay_settings.h"
#include "commands/unseen/printing_user.h"
#include "launcher/launcher.h"

namespace lv {

class NoClipboard : public Clipboard {
  public:
    Error SetText(std::string_view) override { return MakeError(error::kInvalidCall); }
    std::string GetText() override { return {}; }
};

/// What stands in for parts of the system; null: the system itself.
struct StandInSystem {
    Files* Disk = nullptr;
    Processes* Programs = nullptr;
    UserRegistry* Registry = nullptr;
};

class UnseenLauncher {
  public:
    /// `place` outlives it.
    explicit UnseenLauncher(const CommandPlace& place, const StandInSystem& other = {});

    /// Empty if it stands, or why not.
    Text Load();

  private:
    OverlaySettings settings_;
    NoClipboard clip_;
    Platform system_;
    const CommandPlace& place_;

  public:
    PrintingUser User;
    Run TheRun;
    Launcher Its;
};

}  // namespace lv
