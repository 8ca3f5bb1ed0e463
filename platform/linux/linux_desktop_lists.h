// platform/linux/linux_desktop_lists.h
//
// The lists of default applications and the desktop entries of this user, where the base directory rules have them.

#pragma once

#include "platform/desktop_lists.h"

namespace lv {

/// False in a sandbox, whose files no desktop reads.
bool IsReadByTheDesktop();

class LinuxDesktopLists : public DesktopLists {
  public:
    Result<std::string> Defaults() override;
    Error SetDefaults(std::string_view text) override;
    /// "kde-mimeapps.list" and the like, by XDG_CURRENT_DESKTOP.
    std::vector<std::string> StrongerDefaults() override;
    Result<std::string> Entry(std::string_view name) override;
    Error SetEntry(std::string_view name, std::string_view text) override;
    Error RemoveEntry(std::string_view name) override;
    std::string ProgramFile() override;
};

}  // namespace lv
