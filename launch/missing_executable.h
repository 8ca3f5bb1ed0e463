// launch/missing_executable.h
//
// What is told of an executable that is not there.

#pragma once

#include "foundation/text.h"

namespace lv {

/// Of a row without a path, in a launch and in GameSpy's part.
constexpr TextView kEmptyExecutable = "Executable defined as an empty string.";

/// `lastPoint` is the fourth of the listed possibilities, "4) ...": a launch and GameSpy's part word it differently.
Text MissingExecutableText(TextView path, TextView lastPoint);

}  // namespace lv
