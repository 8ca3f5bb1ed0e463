// launch/launch_composition.h
//
// What each selection and each key of the video profile adds to the command lines and the scripts of a launch.
// The rows stand in command_line_switches.cpp; here they are run.

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "launch/launch_selection.h"
#include "launch/launch_step.h"
#include "platform/error.h"
#include "platform/processes.h"
#include "video/profile_model.h"

namespace lv {

enum class StopKind {
    None,
    Message,  // the user is told
    Silent,   // the user was told already
    Error,    // the error report, with the step
};

struct LaunchStop {
    StopKind Kind = StopKind::None;
    Text Message;
    Error Fault;

    explicit operator bool() const { return Kind != StopKind::None; }
};

/// The texts of one launch. All four grow side by side; which of them is used depends on the game. On a stop they stay
/// as far as they had come.
struct LaunchTexts {
    Text GameCommand;                    // every game but Unreal
    Text UnrealCommand;                  // Unreal
    Text QuakeScript;                    // lines of the Quake family, each ended by NewLine
    Text Quake2Script;                   // lines of the Quake II family, "set", name and value
    std::vector<GivenWord> GameGiven;    // where the values that are no text of the user's stand in GameCommand
    std::vector<GivenWord> UnrealGiven;  // and in UnrealCommand
    std::size_t PrefixLength = 0;        // of GameCommand once it may have been wrapped: executable and wrapper
    lv::LaunchStep LaunchStep{};         // the step reached
    LaunchStop Stop;
};

/// What happens elsewhere in the middle of the composition. Without a hook nothing happens, and there is no server.
struct LaunchHooks {
    std::function<Error()> RewriteUnrealIni;
    std::function<Error(TextView scriptPath)> ScriptToRegistry;
    /// "address:port"; nothing, or an empty text, ends the launch without a word: the fetch has said why.
    std::function<std::optional<Text>()> GameSpyFetch;
};

/// All that stands in the texts before the launch files are written: the steps up to StartMap.
LaunchTexts ComposeLaunch(const LaunchSelection& selection, const LaunchGame& game, const ProfileSnapshot& profile,
                          const LaunchHooks& hooks);

/// Step LaunchScript: the user's own addition, and the switch that runs the script once that has been written.
void AddCommandLineAdditions(const LaunchSelection& selection, LaunchTexts& texts);
void AddScriptExec(LaunchTexts& texts);

/// The executable's file name as it opens a command line, in upper case.
Text ExecutableName(const LaunchSelection& selection);

/// The first two characters of the executable's path, "C:".
Text ExeDriveOf(const LaunchSelection& selection);

}  // namespace lv
