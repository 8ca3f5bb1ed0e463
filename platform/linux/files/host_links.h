// platform/linux/files/host_links.h
//
// Links of the host: where they lead, and whether that is within a directory.

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lv {

/// Where the links at the end of the path lead, whether or not anything is there. Nothing for links in a circle.
std::optional<std::string> FollowLinks(std::string hostPath);

/// The path with every link on it followed, and no "/" at the end. What is not there stays as it is said, without "."
/// and "..".
std::filesystem::path FollowAll(const std::filesystem::path& path);

/// As FollowAll, but a link to a file at the end stays.
std::filesystem::path FollowButForAFile(const std::filesystem::path& path);

/// The parts of `path` below `directory`; nothing if it does not lie there. Both are taken as they are written.
std::optional<std::vector<std::filesystem::path>> PartsBelow(const std::filesystem::path& directory,
                                                             const std::filesystem::path& path);

}  // namespace lv
