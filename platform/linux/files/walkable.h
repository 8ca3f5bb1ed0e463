// platform/linux/files/walkable.h
//
// Which file systems a walk over whole disks goes into: not those that the kernel makes up, nor those of other
// machines, where a walk is slow, may hang, and is somebody else's disk.

#pragma once

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <string>

namespace lv {

/// One number for a directory, whichever way leads to it.
std::uint64_t IdentityOf(dev_t device, ino_t inode);

/// Whether a file system of this type (statfs, f_type) is walked. `onBlockDevice`: it lies on a disk of this machine,
/// which tells a Windows disk from a network share among those that a user's program serves (FUSE).
bool IsWalkedType(std::uint32_t type, bool onBlockDevice);

/// Asks once for each file system.
class WalkableDevices {
  public:
    bool MayWalk(dev_t device, const std::string& hostPath);

  private:
    std::map<dev_t, bool> known_;
};

}  // namespace lv
