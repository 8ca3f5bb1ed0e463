#include "platform/error.h"

#include <new>
#include <stdexcept>

namespace lv {

namespace {

struct ErrorRow {
    int Number;
    const char* Text;
};

// clang-format off
constexpr ErrorRow kErrors[] = {
    {error::kInvalidCall, "Invalid procedure call"},
    {error::kOutOfMemory, "Out of memory"},
    {error::kInternal, "Internal error"},
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

Error MakeTooLarge(std::uint64_t most) {
    return {error::kOutOfMemory, "The file is larger than " + std::to_string(most >> 20U) + " MB"};
}

Error ErrorOfException(const std::exception& thrown) {
    // A length_error is what a text asks for that no memory could ever hold.
    if (dynamic_cast<const std::bad_alloc*>(&thrown) != nullptr ||
        dynamic_cast<const std::length_error*>(&thrown) != nullptr) {
        return MakeError(error::kOutOfMemory);
    }
    return MakeError(error::kInternal, thrown.what());
}

}  // namespace lv
