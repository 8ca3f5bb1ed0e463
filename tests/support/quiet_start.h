// tests/support/quiet_start.h
//
// Settings with which a main window loads without a question, and with nothing ticked.

#pragma once

#include "foundation/settings.h"

namespace lv {

inline void PrepareQuietStart(Run& run) {
    Save(run, "LV-Stuff", "FirstTime", 0);
    Save(run, "LV-Stuff", "VP_Version", 1);
    Save(run, "LV-Stuff", "NVC_Version", 1);
    Save(run, kOptions, "VideoProfileList", "Base;Optimize for Speed;Optimize for Beauty;Default");
    for (const char* const key : {"UseDemos", "UseMemory", "UseGames", "UseServers", "UseScripts"}) {
        Save(run, kOptions, key, 0);
    }
}

}  // namespace lv
