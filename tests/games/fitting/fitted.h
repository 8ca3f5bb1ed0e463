// tests/games/fitting/fitted.h
//
// Command lines as the shipped engines get them.

#pragma once

#include <vector>

#include "games/fitting/engine_rules.h"

namespace lv {

FittedCommand Fit(TextView engine, TextView command);
FittedCommand FitShareware(TextView engine, TextView command);

/// The word as it stands in a composed command.
GivenWord GivenAt(const Text& command, const Text& written);

/// As NoteText says them.
std::vector<Text> NotesOf(const FittedCommand& fitted);

using Lines = std::vector<Text>;

}  // namespace lv
