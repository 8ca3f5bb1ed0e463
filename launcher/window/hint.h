// launcher/window/hint.h
//
// The line below the list of games that says what to do next.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// "F2 starts glquake.exe, with player.cfg.", or what F2 does instead, or what stands in the way of that.
Text HintText(const Launcher& launcher);

}  // namespace lv
