// launch/launch_step.h
//
// How far a launch has come: what an error report shows of it, so that the place of a failure is known.

#pragma once

#include "foundation/text.h"

namespace lv {

/// A number is what the user is shown: users quote it, so it stays with its step.
enum class LaunchStep {
    NotBegun = 0,
    Executable = 20,  // looked for, and wrapped where it goes online
    Switches = 40,    // of the command lines, Unreal's ini, the modification
    Memory = 50,
    Resolution = 60,
    BitDepth = 70,
    PlayerScript = 80,  // the devices' switches around it
    DedicatedServer = 90,
    Mouse = 100,
    Drawing = 110,         // what the 3D card or the processor draws with, and the demo
    GraphicsDriver = 120,  // the Quake II family's mode, and sound
    Server = 130,
    GameSpyServer = 140,
    StartMap = 190,  // or the benchmark
    LaunchScript = 205,
    LaunchBatch = 230,
    LaunchBatchWritten = 240,
    GameSpyGames = 250,  // which there are
    GameSpyFiles = 294,
    GameSpyRegistry = 404,
    GameSpyStart = 410,
    GameSpyStarted = 460,
    View = 470,
    Clipboard = 480,  // and the start of the game
};

/// "EC00205": the code of an error report.
Text ShownStep(LaunchStep step);

}  // namespace lv
