// platform/desktop_lists.h
//
// What a Linux desktop reads to know which program opens what: this user's files of the MIME applications and desktop
// entry specifications, whole and in UTF-8. What stands in them is for others to know.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace lv {

/// No list or entry that a desktop reads is longer; one that is, is refused with error 7.
constexpr std::size_t kLongestDesktopList = 1U << 20U;

class DesktopLists {
  public:
    virtual ~DesktopLists() = default;

    /// The user's list of default applications; empty if there is none.
    virtual Result<std::string> Defaults() = 0;

    /// Replaces it in one step. A link stays one, and what it leads to is replaced.
    virtual Error SetDefaults(std::string_view text) = 0;

    /// The user's lists that the running desktop looks into ahead of that one; those that cannot be read are left out.
    virtual std::vector<std::string> StrongerDefaults() = 0;

    /// The user's desktop entry of that name ("program.desktop"); empty if there is none.
    virtual Result<std::string> Entry(std::string_view name) = 0;

    /// Replaces it in one step, a link too, which is not followed.
    virtual Error SetEntry(std::string_view name, std::string_view text) = 0;

    /// Fine if it is not there.
    virtual Error RemoveEntry(std::string_view name) = 0;

    /// The program's own file, as a user starts it: its whole path.
    virtual std::string ProgramFile() = 0;
};

}  // namespace lv
