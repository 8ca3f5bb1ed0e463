// games/trees/vdf_file.h
//
// Valve's KeyValues text, as Steam writes its libraries ("libraryfolders.vdf") and installed games
// ("appmanifest_2310.acf"): "key" "value" and "key" { ... }, with // comments. Keys have no letter case.

#pragma once

#include <cstddef>
#include <vector>

#include "foundation/text.h"

namespace lv {

constexpr std::size_t kLargestVdf = 8U << 20U;  // bytes; what stands behind them is not read
constexpr std::size_t kDeepestVdf = 16;         // blocks within blocks; what lies deeper is passed over
constexpr std::size_t kMostVdfEntries = 20000;

struct VdfEntry {
    Text Key;
    Text Value;  // UTF-8, as in the file; "" of a block
    std::vector<VdfEntry> Block;
};

/// The entries of the file. Damaged text gives what could be read: a block that is not closed ends with the file.
std::vector<VdfEntry> ReadVdf(TextView bytes);

/// The first entry with this key; null if there is none.
const VdfEntry* FindVdf(const std::vector<VdfEntry>& entries, TextView key);

/// The value of that; empty if there is none.
Text VdfValue(const std::vector<VdfEntry>& entries, TextView key);

}  // namespace lv
