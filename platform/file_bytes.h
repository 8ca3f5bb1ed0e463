// platform/file_bytes.h
//
// The bytes of a file, in as many reads as the system needs, and never more memory than there are bytes.

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/error.h"

namespace lv {

/// One read of the system's: up to `most` bytes from `at` into `room`. Gives how many there were, 0 at the end.
using ReadSome = std::function<Result<std::size_t>(char* room, std::size_t most, std::uint64_t at)>;

/// Up to `count` bytes from `offset` of a file of `size` bytes; fewer if it has become shorter. Memory that there is
/// not is error 7.
Result<std::string> ReadRange(std::uint64_t size, std::uint64_t offset, std::size_t count, const ReadSome& readSome);

/// All that reads give until their end. `size` is what the file says of itself, 0 if it says nothing: it may grow
/// meanwhile. Error 7 for more than kLargestWholeFile, or than there is memory for.
Result<std::string> ReadWhole(std::uint64_t size, const ReadSome& readSome);

}  // namespace lv
