// games/fitting/switch_fitting.h
//
// A command line on its way to an engine, and the steps that concern its switches one by one.

#pragma once

#include <vector>

#include "games/fitting/command_parts.h"
#include "games/fitting/engine_rules.h"

namespace lv {

struct Fitting {
    const Engine& Its;
    const ComposedCommand& Composed;
    std::vector<CommandPart> Parts;
    FittedCommand Fitted;

    void Note(FitKind kind, const CommandPart& part, TextView why) {
        Fitted.Notes.push_back({kind, part.Written(), Text(why)});
    }
};

/// What stands behind a line break gets a sign of its own.
void SplitLines(Fitting& fitting);

/// What the engine knows under another name.
void WriteOtherwise(Fitting& fitting);

/// What it must not get. A value of such a switch goes with it.
void LeaveOutRefused(Fitting& fitting);

/// "+set name value" where it wants "+name value".
void WriteSetsPlain(Fitting& fitting);

/// The switches that the game needs, and how the engine is told the game's directory.
void AddWanted(Fitting& fitting);
void TellDataDirectory(Fitting& fitting);

/// Says which options hold what the engine may take for a command.
void NoteHeldCommands(Fitting& fitting);

}  // namespace lv
