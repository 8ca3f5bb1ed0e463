// tests/foundry/rounds.h
//
// How often a test repeats itself. A plain build proves what must hold, with all rounds; under the address sanitizer
// each takes ten times as long, and a share of them touches the same memory.

#pragma once

namespace lv {

#ifdef __SANITIZE_ADDRESS__
constexpr int kShare = 16;
#else
constexpr int kShare = 1;
#endif

/// Of `all` rounds, lines or bytes those that this build takes.
template <class Count>
constexpr Count Rounds(Count all) {
    return all / static_cast<Count>(kShare);
}

/// Whether this build takes a step of things tried with each other: in a plain build always, otherwise once in `of`.
template <class Count>
constexpr bool TakesStep(Count step, Count of) {
    return kShare == 1 || step % of == 0;
}

}  // namespace lv
