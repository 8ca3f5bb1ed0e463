#include "platform/linux/files/errno_error.h"

#include <cerrno>

namespace lv {

namespace {

struct ErrnoRow {
    int Errno;
    int Number;
};

constexpr ErrnoRow kErrnos[] = {
    {ENOENT, error::kFileNotFound},       {ENOTDIR, error::kPathNotFound},     {ELOOP, error::kPathNotFound},
    {ENAMETOOLONG, error::kPathNotFound}, {EACCES, error::kPermissionDenied},  {EPERM, error::kPermissionDenied},
    {EROFS, error::kPermissionDenied},    {ETXTBSY, error::kPermissionDenied}, {EBUSY, error::kPermissionDenied},
    {EISDIR, error::kPathFileAccess},     {EEXIST, error::kPathFileAccess},    {ENOTEMPTY, error::kPathFileAccess},
    {ENOSPC, error::kDiskFull},           {EDQUOT, error::kDiskFull},          {EFBIG, error::kDiskFull},
    {EIO, error::kDeviceFault},           {ESTALE, error::kDeviceFault},       {ETIMEDOUT, error::kDeviceFault},
    {ENXIO, error::kDeviceUnavailable},   {ENODEV, error::kDeviceUnavailable}, {ENOMEDIUM, error::kDiskNotReady},
};

}  // namespace

Error ErrorOf(int number) {
    if (number == 0) {
        return {};
    }
    for (const ErrnoRow& row : kErrnos) {
        if (row.Errno == number) {
            return MakeError(row.Number);
        }
    }
    return MakeError(error::kPathFileAccess);
}

}  // namespace lv
