// platform/linux/settings/lock_holder.h
//
// Which program keeps another one from a file: the system's list of locks, read.

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv {

/// One line of /proc/locks.
struct FileLock {
    int Process = 0;
    std::uint64_t File = 0;  // its inode
    bool IsExclusive = false;
};

/// The locks that are held, in the list's order. Left out is what only waits for one, what belongs to no process that
/// can be named, and what cannot be read.
std::vector<FileLock> ReadLocks(std::string_view locks);

struct LockHolder {
    int Process = 0;
    std::string Name;  // of the program, code page 1252; at most 15 characters
};

/// The other process that holds a lock on one of the files: one that keeps everybody out, else one that reads.
/// Nothing if the system does not tell, as of other users' processes.
std::optional<LockHolder> FindLockHolder(const std::vector<std::filesystem::path>& files);

}  // namespace lv
