// platform/linux/files/host_names.h
//
// The games' own paths, taken apart, and their components found on the host: as spelled if that exists, otherwise by
// a comparison blind to letter case.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv {

/// A full path in parts: no ".", no "..", no empty component.
struct DrivePath {
    char Letter = 'C';  // upper case
    std::vector<std::string> Parts;
};

/// Takes a path apart, "/" counting as "\". Without a drive it is taken from `current`; behind a drive it is always
/// taken from the root, for a drive has no current directory of its own. ".." is resolved by the text alone and stops
/// at the root. Nothing if the path is empty or holds a character 0.
std::optional<DrivePath> TakeApart(std::string_view path, const DrivePath& current);

/// Whether the path is said as one of a directory.
bool EndsInSeparator(std::string_view path);

/// "C:\QUAKE\ID1"; a root is "C:\".
std::string PutTogether(const DrivePath& path);

/// The host path of `parts` below `root`. Where several names differ only in case, the one that is as spelled is taken,
/// otherwise the first in byte order; where a directory further on is not found below that, the next of them. A file is
/// looked for in the first directory alone that is found so: two directories are never mixed. Parts that do not exist
/// keep their spelling. No directory is read for a path that exists as it is spelled.
std::string HostPathBelow(const std::string& root, const std::vector<std::string>& parts);

/// The entries of the host directory that are called `name` in another spelling than this, as whole paths.
std::vector<std::string> OtherSpellings(const std::string& directory, std::string_view name);

/// The parts as the host spells them, for showing.
std::vector<std::string> PartsAsFound(const std::string& root, const std::vector<std::string>& parts);

/// A host name in code page 1252. Nothing if it has no such form, or holds a "\" and so could never be asked for.
std::optional<std::string> NameFromHost(std::string_view hostName);

}  // namespace lv
