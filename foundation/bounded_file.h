// foundation/bounded_file.h
//
// Scripts and inis of the user's, and which are refused: larger ones than anybody's game has, and UTF-16 text.

#pragma once

#include <memory>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

constexpr std::uint64_t kLargestIni = 64U << 20U;
constexpr std::uint64_t kLargestScript = 256U << 20U;

/// Beyond it a script takes longer to read than anybody waits without having been asked. A launch reads no such script.
constexpr std::uint64_t kLargeScript = 8U << 20U;

/// The file, if it has no more than `most` bytes; otherwise error 7, whose text says how many it may have, and its
/// path. UTF-16 text is error 75 (foundation/utf16_text.h): read as anything else it would be lost by the next save.
Result<std::unique_ptr<RandomAccessFile>> OpenBounded(Files& disk, TextView path, std::uint64_t most);

/// All of it.
Result<Text> ReadBounded(Files& disk, TextView path, std::uint64_t most);

}  // namespace lv
