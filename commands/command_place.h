// commands/command_place.h
//
// What a command of the command line works on, and what it comes to.

#pragma once

#include <functional>

#include "foundation/text.h"
#include "launcher/launcher.h"
#include "platform/platform.h"

namespace lv {

struct CommandPlace {
    Platform& System;
    TextView ShippedEngines{};                   // the table that the program carries
    std::function<Text(TextView)> PathOfWord{};  // the drive path of a file that a word names; empty: no drive has it
    std::function<void(Launcher&)> Connect{};    // to what lies above the launcher
    bool PrintsHostPaths = false;                // for a terminal; a window has the games' own paths
};

/// A path on the drives as it is printed. One that text cannot say as the host does stays as it is.
Text PrintedPath(const CommandPlace& place, TextView path);

/// The error's text, with the path that it is about as it is printed.
Text PrintedFault(const CommandPlace& place, const Error& fault, TextView path);

namespace exit_code {
constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kNotUnderstood = 2;
constexpr int kNothingCalledSo = 3;
constexpr int kFinds = 4;
}  // namespace exit_code

/// Texts are code page 1252, their lines end in "\n", and neither holds a control character but that and tabs.
struct CommandResult {
    int Code = exit_code::kDone;
    Text Out{};
    Text Err{};
    Text Started{};      // the program file of the game that runs now
    Text StartedPath{};  // and its whole path; no other start is told of it
};

/// The text as CommandResult has it: line ends made "\n", one at its end, other control characters "?".
Text Printed(TextView text);

}  // namespace lv
