// platform/linux/files/host_places.h
//
// Where a path of the drives lies on the host, and the way back.

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/files/drives.h"
#include "platform/linux/files/host_names.h"

namespace lv {

struct HostPlace {
    DrivePath Path;
    std::string Root;  // the drive's entry
    std::string Host;  // the whole host path
    bool EndsInSeparator = false;
};

/// Nothing for a path that has no form, and for a drive that is not there.
std::optional<HostPlace> FindPlace(const DriveDirectories& directories, std::string_view path,
                                   const DrivePath& current);

/// The drive's own directory with all links of it followed, and below it the names as they are found.
std::string LinkedHostPath(const HostPlace& place);

/// The path on the drive that has the deepest directory above `hostPath`; nothing if none has. Links on the way are
/// followed, and so is a link to a directory at the end; a link to a file stays.
std::string DrivePathOf(const DriveDirectories& directories, std::string_view hostPath);

/// Where a link leads that is neither within `tree` nor a file of the same kind in the user's home; else nothing.
std::string LeadsAway(const HostPlace& place, const std::optional<HostPlace>& tree);

/// The path of the drives below `tree` that the link at `place` was made to; nothing for anything else.
std::string LeadsInto(const HostPlace& place, const HostPlace& tree);

/// The part of a host path that lies below the host directory, as a path of the drives; nothing if none does, or if it
/// has no such form.
std::string PathInside(std::string_view hostPath, std::string_view directory);

}  // namespace lv
