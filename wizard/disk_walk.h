// wizard/disk_walk.h
//
// A walk over all directories of a disk: depth first, each directory before those in it, those in it sorted. No
// directory is met twice, whichever links lead to it, so the walk ends; what cannot be read is passed over.

#pragma once

#include <cstdint>
#include <optional>
#include <unordered_set>
#include <vector>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

class DiskWalk {
  public:
    explicit DiskWalk(Files& files) : files_(files) {}

    struct Step {
        Text Path;  // "C:\" or "C:\GAMES"
        std::vector<DirectoryEntry> Entries;
    };

    /// Starts at a drive's root. What was met on other drives is not met again.
    void Enter(TextView drive);

    /// The next directory; nothing at the end. Costs one listing.
    std::optional<Step> Next();

  private:
    /// The directories of one directory that are still to come. Their names stand in one text, as there may be very
    /// many.
    struct Level {
        Text Names;  // each ended by a character 0
        std::size_t At = 0;
        std::size_t PathSize = 0;  // of the directory's own path, without a "\" at the end
    };
    std::optional<Step> Visit(Text path);

    Files& files_;
    Text path_;
    std::vector<Level> levels_;
    std::optional<Text> root_;
    std::unordered_set<std::uint64_t> met_;
};

}  // namespace lv
