// tests/engines/own_streams.h
//
// The tests' own words apart from those of the games they start.

#pragma once

#include <filesystem>

namespace lv {

/// From now on what is started prints into this file, and the tests go on where they printed before; false if the file
/// cannot be written.
bool KeepOwnStreams(const std::filesystem::path& forOthers);

}  // namespace lv
