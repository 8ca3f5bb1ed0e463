// platform/windows/full_path.h
//
// The games' own paths made whole, and as the system's calls take them, long ones included.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv {

/// A whole path in parts: no ".", no "..", no empty component.
struct FullPath {
    std::string Root;  // "C:" with its letter in upper case, or "\\server\share"
    std::vector<std::string> Parts;
};

/// Takes a path apart, "/" counting as "\". Without a root it is taken from `current`; behind a drive it is always
/// taken from the drive's root. ".." is resolved by the text alone and stops at the root. Nothing if the path is empty,
/// holds a character 0, or names a server without a share.
std::optional<FullPath> TakeApart(std::string_view path, const FullPath& current);

/// "C:\QUAKE\ID1", "\\server\share\QUAKE"; a root is "C:\" or "\\server\share".
std::string PutTogether(const FullPath& path);

/// Whether the system lets anything have these names: it keeps <>:"|?* to itself, and takes some of them for a pattern
/// where a name is asked for.
bool HasPlainNames(const FullPath& path);

/// The path as the system's calls take it. One longer than those allow goes round the limit by the prefix "\\?\".
std::wstring SystemPath(const FullPath& path);

}  // namespace lv
