#include "platform/linux/files/walkable.h"

#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <iterator>

namespace lv {

namespace {

constexpr std::uint32_t kFuse = 0x65735546;

// The numbers of the kernel's linux/magic.h and of the file systems' own headers.
constexpr std::uint32_t kPassedOver[] = {
    0x00009FA0,  // proc
    0x62656572,  // sysfs
    0x00001CD1,  // devpts
    0x0027E0EB,  // cgroup
    0x63677270,  // cgroup2
    0x64626720,  // debugfs
    0x74726163,  // tracefs
    0x73636673,  // securityfs
    0x62656570,  // configfs
    0x6165676C,  // pstore
    0xCAFE4A11,  // bpf
    0x19800202,  // mqueue
    0x958458F6,  // hugetlbfs
    0x42494E4D,  // binfmt_misc
    0xDE5E81E4,  // efivarfs
    0x6E736673,  // nsfs
    0x65735543,  // fusectl
    0x00000187,  // autofs
    0x00006969,  // NFS
    0x0000517B,  // SMB
    0xFF534D42,  // CIFS
    0xFE534D42,  // SMB2
    0x0000564C,  // NCP
    0x73757245,  // Coda
    0x5346414F,  // AFS
    0x6B414653,  // the kernel's AFS
    0x00C36400,  // Ceph
    0x01021997,  // 9P
};

// Device files live in a file system of their own, of a type that ordinary directories may have too.
bool IsOfDevices(dev_t device) {
    struct stat devices {};
    struct stat root {};
    return stat("/dev", &devices) == 0 && stat("/", &root) == 0 && devices.st_dev != root.st_dev &&
           devices.st_dev == device;
}

bool Ask(dev_t device, const std::string& hostPath) {
    struct statfs info {};
    if (IsOfDevices(device) || statfs(hostPath.c_str(), &info) != 0) {
        return false;
    }
    return IsWalkedType(static_cast<std::uint32_t>(info.f_type), major(device) != 0);
}

}  // namespace

std::uint64_t IdentityOf(dev_t device, ino_t inode) {
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;  // odd, with its bits all over the word
    return static_cast<std::uint64_t>(inode) ^ (static_cast<std::uint64_t>(device) * kSpread);
}

bool IsWalkedType(std::uint32_t type, bool onBlockDevice) {
    if (type == kFuse) {
        return onBlockDevice;
    }
    return std::find(std::begin(kPassedOver), std::end(kPassedOver), type) == std::end(kPassedOver);
}

bool WalkableDevices::MayWalk(dev_t device, const std::string& hostPath) {
    const auto known = known_.find(device);
    if (known != known_.end()) {
        return known->second;
    }
    return known_[device] = Ask(device, hostPath);
}

}  // namespace lv
