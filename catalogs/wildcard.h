// catalogs/wildcard.h
//
// File names by pattern, "*" for any stretch and "?" for any one character, blind to letter case.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

/// "*.*" is every name, with or without a point.
bool MatchesWildcard(TextView name, TextView pattern);

/// The files of a directory that match, in the file system's order; none if it cannot be listed.
std::vector<Text> ListFiles(Files& files, TextView directory, TextView pattern);

}  // namespace lv
