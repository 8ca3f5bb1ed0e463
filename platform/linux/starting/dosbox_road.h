// platform/linux/starting/dosbox_road.h
//
// The road of a DOS program: DOSBox, told in a configuration file what the batch says.

#pragma once

#include "platform/linux/starting/game_start.h"

namespace lv {

/// Error 53 if DOSBox is not installed, and those of DosBoxConfiguration.
Result<HostCommand> DosBoxRoad(Files& disk, const GameStart& start);

}  // namespace lv
