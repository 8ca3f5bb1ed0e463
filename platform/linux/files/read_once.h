// platform/linux/files/read_once.h
//
// A file that was written for a started program alone, taken away once that has read it: it may hold a password, and
// this program may end before the other has come so far.

#pragma once

#include <string>

namespace lv {

/// Watches for the file's being opened, from now on; a descriptor, or -1.
int WatchForOpening(const std::string& hostPath);

/// The rest of a forked process: waits up to ten minutes until the file has been opened, leaves the program a few
/// seconds to open it once more, and removes it. Holds no other open file. Calls nothing that a fork makes unsafe.
[[noreturn]] void RemoveOnceOpened(int watch, const char* hostPath);

}  // namespace lv
