// platform/linux/linux_shortcuts.h
//
// Shortcuts as desktop entries: in the user's own directory of applications, and on the desktop, where one must be
// executable to be trusted with a start.

#pragma once

#include <filesystem>

#include "platform/shortcuts.h"

namespace lv {

struct ShortcutDirectories {
    std::filesystem::path Applications;  // made when it is needed
    std::filesystem::path Desktop;       // never made
    std::filesystem::path Pictures;      // the program's own; made when it is needed
    std::filesystem::path Program;       // the file that is to be started
};

/// Of this user and this program.
ShortcutDirectories OwnShortcutDirectories();

class LinuxShortcuts : public Shortcuts {
  public:
    explicit LinuxShortcuts(ShortcutDirectories directories = OwnShortcutDirectories())
        : where_(std::move(directories)) {}

    std::string CaptionOf(ShortcutPlace place) override;
    bool HasPlace(ShortcutPlace place) override;
    std::string PathOf(ShortcutPlace place, const Shortcut& shortcut) override;
    bool IsThere(ShortcutPlace place, const Shortcut& shortcut) override;
    Error Make(ShortcutPlace place, const Shortcut& shortcut) override;
    Error Remove(ShortcutPlace place, const Shortcut& shortcut) override;

  private:
    [[nodiscard]] std::filesystem::path FileOf(ShortcutPlace place, const Shortcut& shortcut) const;
    [[nodiscard]] Error PutPicture(const Shortcut& shortcut, std::string& path) const;

    ShortcutDirectories where_;
};

}  // namespace lv
