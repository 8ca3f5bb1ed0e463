// catalogs/sorted_names.h
//
// The directories of a listing as a directory list shows them.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

/// The names of the directories, without "." and "..", sorted blind to letter case.
std::vector<Text> SortedDirectories(const std::vector<DirectoryEntry>& entries);

}  // namespace lv
