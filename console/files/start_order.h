// console/files/start_order.h
//
// What each console executes when its game starts, in its order: a row a step.

#pragma once

#include <span>
#include <vector>

#include "console/console_rules.h"

namespace lv {

enum class StartSort {
    Rc,            // a script of the game's that names the others; without it the game's own says as `Otherwise` does
    RcOrElse,      // the same, but `Otherwise` is the engine's own order
    NearRcOrElse,  // the same, and one that lies behind "default.cfg" does not count
    Script,        // as "exec" finds it
    NotTheGames,   // the same, unless it is the one of the game's first archive
    LooseScript,   // a file alone, and none of an archive
    IfLoose,       // "exec", if the game's directory has a file of that name; the modification's, if one is played
    EachLoose,     // the files of the base directory and of the modification's, in this order
    IfNotRun,      // "exec", if no script before has had it run
    AllLoose,      // the files of a directory, by their names: "userconfig.d/*.cfg"
    EarlySets,     // each "+set" of the command line
    CommandLine,   // its other commands, unless "stuffcmds" has run them
    Ini,           // of Unreal; the command line may name another: "INI=my.ini"
};

struct StartStep {
    Console Of = Console::Quake;
    StartSort Sort = StartSort::Script;
    TextView File{};       // for Rc those that are looked for, parted by ";"; "%" is the game's directory
    TextView Otherwise{};  // commands; of an ini the switch that names another
    bool MayLack = false;  // nobody misses it
};

std::span<const StartStep> AllStartSteps();
std::vector<StartStep> StartStepsOf(Console console);

}  // namespace lv
