#include "platform/error.h"

namespace lv {

namespace {

struct ErrorRow {
    int Number;
    const char* Text;
};

// clang-format off
constexpr ErrorRow kErrors[] = {
    {error::kInvalidCall, "Invalid procedure call"},
    {error::kBadFileName, "Bad file name or number"},
    {error::kFileNotFound, "File not found"},
    {error::kAlreadyOpen, "File already open"},
    {error::kDeviceFault, "Device I/O error"},
    {error::kDiskFull, "Disk full"},
    {error::kDeviceUnavailable, "Device unavailable"},
    {error::kPermissionDenied, "Permission denied"},
    {error::kDiskNotReady, "Disk not ready"},
    {error::kPathFileAccess, "Path/File access error"},
    {error::kPathNotFound, "Path not found"},
};
// clang-format on

}  // namespace

Error MakeError(int number) {
    for (const ErrorRow& row : kErrors) {
        if (row.Number == number) {
            return {number, row.Text};
        }
    }
    return {number, "Unexpected error"};
}

Error MakeError(int number, const std::string& about) {
    Error made = MakeError(number);
    made.Text += ": " + about;
    return made;
}

}  // namespace lv
