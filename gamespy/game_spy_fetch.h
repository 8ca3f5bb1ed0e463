// gamespy/game_spy_fetch.h
//
// The server selected in GameSpy 3D, taken from its window as a user would: its copy command by keys, then the
// clipboard. Both are shared with the whole desktop, and two pauses of a second are all that keeps time with it.

#pragma once

#include "foundation/run.h"

namespace lv {

/// "10.0.0.1:27500", or with `raw` the whole text that was copied. Empty if it failed; the user was told why.
Text GameSpyFetch(Run& run, bool raw = false);

}  // namespace lv
