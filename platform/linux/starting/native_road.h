// platform/linux/starting/native_road.h
//
// The road of a Linux program or script: the batch's effect is carried out directly.

#pragma once

#include "platform/linux/starting/game_start.h"

namespace lv {

/// Error 70 if the file may not be run; the text says how to mend it.
Result<HostCommand> NativeRoad(Files& disk, const GameStart& start);

}  // namespace lv
