// launcher/start/engine_load.h
//
// The engines of today, as a run knows them: the program's table, the user's own, and the seats that were kept.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// Reads the user's "lorvane3d\engines.tsv" in the directory of settings beside the program's own table. Tells what is
/// wrong with it; what is right with it counts.
void LoadEngines(Launcher& launcher);

}  // namespace lv
