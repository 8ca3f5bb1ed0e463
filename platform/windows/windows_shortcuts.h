// platform/windows/windows_shortcuts.h
//
// Shortcuts as shell links, in the user's own start menu and on the desktop.

#pragma once

#include <optional>

#include "platform/shortcuts.h"

namespace lv {

/// Without a "\" at the end; an empty one is not there.
struct ShortcutDirectories {
    std::wstring Menu;
    std::wstring Desktop;
    std::wstring Pictures;  // the program's own; made when it is needed
    std::wstring Program;   // the file that is to be started
};

/// Of this user and this program.
ShortcutDirectories OwnShortcutDirectories();

/// The file's name for what a link is called: what the system has no names of is "_", and no name is a device's.
std::wstring LinkNameOf(const std::string& name);

class WindowsShortcuts : public Shortcuts {
  public:
    explicit WindowsShortcuts(ShortcutDirectories directories = OwnShortcutDirectories())
        : where_(std::move(directories)) {}

    std::string CaptionOf(ShortcutPlace place) override;
    bool HasPlace(ShortcutPlace place) override;
    std::string PathOf(ShortcutPlace place, const Shortcut& shortcut) override;
    /// By the program's file name and the words, letter case apart.
    bool IsThere(ShortcutPlace place, const Shortcut& shortcut) override;
    Error Make(ShortcutPlace place, const Shortcut& shortcut) override;
    Error Remove(ShortcutPlace place, const Shortcut& shortcut) override;

  private:
    [[nodiscard]] const std::wstring& DirectoryOf(ShortcutPlace place) const;
    [[nodiscard]] std::wstring FileOf(ShortcutPlace place, const Shortcut& shortcut) const;
    [[nodiscard]] Error PutPicture(const Shortcut& shortcut, std::wstring& path) const;

    ShortcutDirectories where_;
};

}  // namespace lv
