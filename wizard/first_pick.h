// wizard/first_pick.h
//
// Which entry is picked when the main window comes up behind the setup.

#pragma once

#include "foundation/run.h"
#include "games/engines/engine_table.h"

namespace lv {

/// Of a list that the user has picked nothing from: if the entry that is picked cannot be started here for want of what
/// runs it, a DOS program without DOSBox, the first is picked that can and is no server. Without any such entry the
/// pick stays. `list` is the value of the catalog of executables; its order is not touched.
void PickWhatStarts(Run& run, const EngineTable& engines, TextView list);

}  // namespace lv
