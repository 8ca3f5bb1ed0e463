#include "platform/windows/system_error.h"

#include <array>
#include <string_view>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr DWORD kDiskQuotaExceeded = 1295;  // not in every winerror.h

struct SystemRow {
    DWORD System;
    int Number;
};

constexpr SystemRow kSystemErrors[] = {
    {ERROR_FILE_NOT_FOUND, error::kFileNotFound},
    {ERROR_PATH_NOT_FOUND, error::kPathNotFound},
    {ERROR_INVALID_NAME, error::kPathNotFound},
    {ERROR_BAD_PATHNAME, error::kPathNotFound},
    {ERROR_DIRECTORY, error::kPathNotFound},
    {ERROR_FILENAME_EXCED_RANGE, error::kPathNotFound},
    {ERROR_INVALID_DRIVE, error::kPathNotFound},
    {ERROR_BAD_NETPATH, error::kPathNotFound},
    {ERROR_BAD_NET_NAME, error::kPathNotFound},
    {ERROR_CANT_RESOLVE_FILENAME, error::kPathNotFound},
    {ERROR_ACCESS_DENIED, error::kPermissionDenied},
    {ERROR_SHARING_VIOLATION, error::kPermissionDenied},
    {ERROR_LOCK_VIOLATION, error::kPermissionDenied},
    {ERROR_USER_MAPPED_FILE, error::kPermissionDenied},
    {ERROR_WRITE_PROTECT, error::kPermissionDenied},
    {ERROR_ALREADY_EXISTS, error::kPathFileAccess},
    {ERROR_FILE_EXISTS, error::kPathFileAccess},
    {ERROR_DIR_NOT_EMPTY, error::kPathFileAccess},
    {ERROR_DISK_FULL, error::kDiskFull},
    {ERROR_HANDLE_DISK_FULL, error::kDiskFull},
    {kDiskQuotaExceeded, error::kDiskFull},
    {ERROR_FILE_TOO_LARGE, error::kDiskFull},
    {ERROR_NOT_READY, error::kDiskNotReady},
    {ERROR_NO_MEDIA_IN_DRIVE, error::kDiskNotReady},
    {ERROR_DEVICE_NOT_CONNECTED, error::kDeviceUnavailable},
    {ERROR_DEV_NOT_EXIST, error::kDeviceUnavailable},
    {ERROR_CRC, error::kDeviceFault},
    {ERROR_SEEK, error::kDeviceFault},
    {ERROR_SECTOR_NOT_FOUND, error::kDeviceFault},
    {ERROR_READ_FAULT, error::kDeviceFault},
    {ERROR_WRITE_FAULT, error::kDeviceFault},
    {ERROR_GEN_FAILURE, error::kDeviceFault},
    {ERROR_IO_DEVICE, error::kDeviceFault},
    {ERROR_FILE_CORRUPT, error::kDeviceFault},
    {ERROR_DISK_CORRUPT, error::kDeviceFault},
    {ERROR_UNEXP_NET_ERR, error::kDeviceFault},
    {ERROR_NETNAME_DELETED, error::kDeviceFault},
};

}  // namespace

Error ErrorOfSystem(unsigned long number) {
    if (number == ERROR_SUCCESS) {
        return {};
    }
    for (const SystemRow& row : kSystemErrors) {
        if (row.System == number) {
            return MakeError(row.Number);
        }
    }
    return MakeError(error::kPathFileAccess);
}

Error ErrorOfDirectory(unsigned long number) {
    switch (number) {
        case ERROR_FILE_NOT_FOUND:
            return MakeError(error::kPathNotFound);
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
            return MakeError(error::kPathFileAccess);
        default:
            return ErrorOfSystem(number);
    }
}

std::string SystemText(unsigned long number) {
    std::array<wchar_t, 512> text{};
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, number, 0,
                                        text.data(), static_cast<DWORD>(text.size()), nullptr);
    std::wstring_view said(text.data(), length);
    while (!said.empty() && (said.back() == L'\r' || said.back() == L'\n' || said.back() == L' ')) {
        said.remove_suffix(1);
    }
    return FromWideLossy(said);
}

}  // namespace lv
