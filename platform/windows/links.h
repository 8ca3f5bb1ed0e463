// platform/windows/links.h
//
// Links of the file system: where they lead, and whether that is within a directory.

#pragma once

#include <optional>
#include <string>

namespace lv {

/// The path with every link on it followed, as the system spells it behind "\\?\". Nothing if there is nothing.
std::optional<std::wstring> FollowAll(const std::wstring& path);

/// Whether the path itself is a link of the file system, to a file or to a directory.
bool IsLink(const std::wstring& path);

/// Whether a link of the file system, to a file or to a directory, is the last of the path or stands on the way to it.
bool HasLinkOnTheWay(const std::wstring& path);

/// Whether the first path is the second or lies below it; both as FollowAll gives them. Nothing counts as below a
/// drive's root.
bool LiesWithin(const std::wstring& path, const std::wstring& directory);

/// The user's own directory; empty if the environment does not say.
std::wstring HomeDirectory();

}  // namespace lv
