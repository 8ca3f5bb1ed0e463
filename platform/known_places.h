// platform/known_places.h
//
// Where programs and games lie by the customs of this system, and by what other programs have noted down. All paths
// are paths on the drives, without a "\" at the end but for a drive's root, of directories that are there, each once,
// in the order in which they are to be looked at. Each call looks anew and takes a fraction of a second at most.

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lv {

/// No list has more entries than this.
constexpr std::size_t kMostKnownPlaces = 1000;

class KnownPlaces {
  public:
    virtual ~KnownPlaces() = default;

    /// Directories that hold programs: those of PATH first.
    virtual std::vector<std::string> Programs() = 0;

    /// Where the user's programs keep data and settings; empty if no drive holds it.
    virtual std::string DataDirectory() = 0;
    virtual std::string ConfigDirectory() = 0;

    /// Directories that hold games, the user's own before the system's.
    virtual std::vector<std::string> Games() = 0;

    /// Those of Steam, each of which may name further libraries.
    virtual std::vector<std::string> SteamRoots() = 0;

    /// Directories with a "drive_c", the one in use first. Those of Steam's further libraries are not among them.
    virtual std::vector<std::string> WinePrefixes() = 0;

    /// Directories of single games that other launchers have noted down. A stranger wrote the notes: nothing follows
    /// from a path but that there is such a directory.
    virtual std::vector<std::string> NotedGames() = 0;
};

}  // namespace lv
