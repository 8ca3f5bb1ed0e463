// tests/faults/calls.h
//
// The system's calls that change files, counted, and one of them made to fail or to be the process's last. The calls of
// this test program and of the libraries in it all come by here; only those about files below one directory count.

#pragma once

#include <array>
#include <filesystem>

namespace lv {

enum class Call { kOpen, kWrite, kSync, kRename, kMakeDirectory, kRemove, kTruncate };
constexpr int kCalls = 7;

/// The calls that a fault test goes through; the others only count as moments for a kill.
constexpr std::array<Call, 5> kFaultyCalls = {Call::kOpen, Call::kWrite, Call::kSync, Call::kRename,
                                              Call::kMakeDirectory};

/// What happens to the process at the chosen call.
enum class Fate {
    kNone,          // it is only counted
    kFails,         // the call gives an error and does nothing
    kKilledBefore,  // SIGKILL instead of the call
    kKilledAmid,    // after half of a write; after any other call
    kKilledAfter,
};

struct Trap {
    std::filesystem::path Below;
    Fate What = Fate::kNone;
    int At = 0;  // from 1: of all calls, or of one kind's if there is an error
    Call Kind = Call::kWrite;
    int Errno = 0;
};

/// From now on, in this process and what it forks.
void SetTrap(const Trap& trap);
void TakeTrapAway();

/// How often each was called since SetTrap; a Call as the index.
const std::array<int, kCalls>& CallsSeen();

}  // namespace lv
