// catalogs/archive_names.h
//
// The names of what lies in an archive: id Software's PAK or Sin's.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

/// More entries than any game reads; what stands behind them is not looked at.
constexpr std::size_t kMostArchiveEntries = 20000;

/// The names in the directory's order, with "/" between their components. Left out is what no file could be called:
/// characters that names can't have, a component that is empty, "." or "..". So is an entry whose file lies beyond the
/// archive's end. A damaged archive costs its own entries and nothing else.
std::vector<Text> ArchiveEntryNames(RandomAccessFile& archive);

}  // namespace lv
