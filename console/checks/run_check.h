// console/checks/run_check.h
//
// A script checked as what it is in its game: one of those that are run at the start.

#pragma once

#include "console/checks/script_check.h"
#include "console/files/start_run.h"

namespace lv {

/// What the run itself shows, of scripts that are files of the player's: what they execute that is not there, is being
/// run already, is too long. `run` is of that console.
std::vector<Finding> CheckRun(const StartRun& run, Console console);

/// Each file of the run that lies in no archive, checked with the aliases of all of them, and with the settings that
/// they make by "set", or that the game's own scripts and what it writes itself know; and CheckRun. Scripts that are
/// too long for the console are gone through as if it took them.
std::vector<Finding> CheckScriptsOf(Files& disk, const StartRequest& request);

/// A script that the start does not run, as one of its own name hides it, say: what it executes is looked for where the
/// start would look.
std::vector<Finding> CheckScriptBeside(Files& disk, const StartRequest& request, TextView path, TextView content);

}  // namespace lv
