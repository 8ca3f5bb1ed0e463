// platform/windows/dosbox.h
//
// DOS programs, which a 64-bit Windows cannot start by itself.

#pragma once

#include <string>

#include "platform/error.h"
#include "platform/files.h"
#include "platform/starting/batch_game.h"
#include "platform/windows/started_process.h"

namespace lv {

/// Whether this Windows has a part that runs DOS programs: a 32-bit one.
bool RunsDosPrograms();

/// The host path of DOSBox or of a program of its family: on PATH, or in a directory of its name where programs are
/// installed. Empty if there is none.
std::wstring FindDosBox();

/// Starts the game in DOSBox, which is told of it by a file in the user's directory for temporary files. Error 53 with
/// a text that says what to install if there is no DOSBox, and those of DosBoxConfiguration.
Result<StartedProcess> StartInDosBox(Files& disk, const BatchGame& game);

}  // namespace lv
