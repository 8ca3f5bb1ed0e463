// games/fitting/engine_rules.h
//
// What a composed command line becomes for an engine: nothing that it must not get, nothing that it would cut off or
// tear apart, its own names for what it calls otherwise. Whatever is changed is said.

#pragma once

#include <utility>
#include <vector>

#include "games/engines/engine_table.h"
#include "platform/processes.h"

namespace lv {

/// A command line as a launch has composed it, and what the launch knows beside.
struct ComposedCommand {
    Text Command;                  // "QUAKESPASM -zone 512 -width 640 +exec lv_666.qs "
    std::vector<GivenWord> Given;  // with their places in it
    std::size_t PrefixLength = 0;  // of the program's name; 0: it is the first word
    Text ProgramPath;              // as the engine gets it ahead of its arguments; empty: the name in the command
    Text Script = "lv_666.qs";     // the launch's script, by the name that "+exec" gets; never empty
    Text DataDirectory;            // of the game, as the engine is to read it; empty: nobody needs to be told
    Game Played = Game::None;
    bool IsShareware = false;  // the game's data are
};

enum class FitKind {
    LeftOut,          // it does not reach the engine
    Changed,          // it does in another way
    Added,            // the engine wants it
    MovedToScript,    // it is a line of the script now
    MovedToAutoexec,  // it is a line of the engine's own autoexec.cfg
    Kept,             // it reaches the engine as it is, which may take it for more
};

struct FitNote {
    FitKind Kind = FitKind::LeftOut;
    Text Part;  // as the launch composed it
    Text Why;   // "manages its own memory"
};

struct FittedCommand {
    Text Command;  // in the form of the composed one
    std::vector<GivenWord> Given;
    Text ScriptHead;    // lines for the script, ahead of its own, each ended by NewLine
    Text ScriptTail;    // behind its own
    Text AutoexecTail;  // lines for autoexec.cfg in the game's base directory, without which the script does not run
    bool ForShareware = false;  // that is so as the engine runs no command with the game's shareware data
    std::vector<std::pair<Text, Text>> Environment;
    bool StartInDataDirectory = false;  // that is how the engine finds the data
    std::vector<FitNote> Notes;         // in the order of the rules
};

/// Commands that stay keep their order, and so do those that move: behind one that moves the others move too. A command
/// that moves is run when the script is. Where lines come to the script, and the command does not yet execute it, that
/// is added.
FittedCommand FitCommandLine(const Engine& engine, const ComposedCommand& composed);

/// "-heapsize 16384: left out, manages its own memory".
Text NoteText(const FitNote& note);

}  // namespace lv
