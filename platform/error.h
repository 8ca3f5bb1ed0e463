// platform/error.h
//
// Errors as values, with the numbers that the program's messages show.

#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace lv {

namespace error {
constexpr int kInvalidCall = 5;
constexpr int kOutOfMemory = 7;
constexpr int kInternal = 51;
constexpr int kBadFileName = 52;
constexpr int kFileNotFound = 53;
constexpr int kAlreadyOpen = 55;
constexpr int kDeviceFault = 57;
constexpr int kDiskFull = 61;
constexpr int kDeviceUnavailable = 68;
constexpr int kPermissionDenied = 70;
constexpr int kDiskNotReady = 71;
constexpr int kPathFileAccess = 75;
constexpr int kPathNotFound = 76;
}  // namespace error

/// Number 0 is success. Text is code page 1252, fit to be shown as it is.
struct Error {
    int Number = 0;
    std::string Text;

    explicit operator bool() const { return Number != 0; }
};

/// The error with its customary text, "File not found" for 53; a number without one gives "Unexpected error".
Error MakeError(int number);

/// The customary text, followed by ": " and what it was about.
Error MakeError(int number, const std::string& about);

/// Error 7 of a file with more bytes than `most`: "The file is larger than 64 MB".
Error MakeTooLarge(std::uint64_t most);

/// What an exception comes to where it is caught: 7 for memory that there is not, 51 with its own text for any other.
Error ErrorOfException(const std::exception& thrown);

/// A value, or the error that stood in its way; Value is default-made when Fault is set.
template <class T>
struct Result {
    T Value{};
    Error Fault;

    Result() = default;
    Result(T value) : Value(std::move(value)) {}      // NOLINT: a value is a result
    Result(Error fault) : Fault(std::move(fault)) {}  // NOLINT: so is an error
    [[nodiscard]] bool Ok() const { return Fault.Number == 0; }
};

}  // namespace lv
